#include <QCommandLineParser>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include "dialog/app/CommandLine.h"
#include "dialog/app/CommandLineHelp.h"
#include "dialog/app/CommandLineOptions.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Of the files of translations.
constexpr const char *kLanguages[] = {"de", "fr", "es",    "it",   "pt_BR",
                                      "ko", "ja", "zh_CN", "zh_TW"};

// Of a line, and where its second column begins.
constexpr int kWidth = 79;
constexpr int kRight = 35;

struct Wrapped
{
    const char *name;
    const char *text;
    int columns;
    const char *lines; // with "|" between them
};

constexpr Wrapped kWrapped[] = {
    {"nothing", "", 10, ""},
    {"a line that is full", "four words fit in", 17, "four words fit in"},
    {"one that is too long", "four words fit in", 16, "four words fit|in"},
    {"no option, number or path is broken", "-o page-ranges= 1-4,7 ipp://a/b/c", 12,
     "-o|page-ranges=|1-4,7|ipp://a/b/c"},
    {"a word that is longer than a line", "an ipp://HOST:PORT/ipp/print or so", 10,
     "an|ipp://HOST:PORT/ipp/print|or so"},
    {"a dash is not left at the end", "to FILE; - is standard output", 10,
     "to FILE;|- is|standard|output"},
    {"nor behind a sign", "文档；- 表示", 10, "文档；- 表|示"},
    {"a range without an end may be", "-P 7,9- pages", 8, "-P 7,9-|pages"},
    {"no-break spaces hold", "Le nom\u00a0: un fichier\u00a0; rien", 12,
     "Le nom\u00a0: un|fichier\u00a0;|rien"},
    {"ideographs are two columns wide", "打印机的设置", 8, "打印机的|设置"},
    {"no sign begins a line", "打印机的设，置", 10, "打印机的|设，置"},
    {"none that opens ends one", "打印机（的）", 8, "打印机|（的）"},
    {"kana", "プリンターの設定", 10, "プリンター|の設定"},
    {"Latin words among them", "プリンター NAME に印刷", 15, "プリンター NAME|に印刷"},
    {"words in Korean stay whole", "프린터 이름을 표시합니다", 18, "프린터 이름을|표시합니다"},
    {"beyond the first plane", "\U00020000\U00020001\U00020002", 4,
     "\U00020000\U00020001|\U00020002"},
    {"beside letters", "\U00020000ab\U00020001", 2, "\U00020000|ab|\U00020001"},
};

struct Refused
{
    const char *name;
    const char *arguments; // with blanks between them
};

// What Qt's parser refuses, and what the program does.
constexpr Refused kRefused[] = {
    {"unknown", "--glitter x.pdf"},
    {"unknown, two", "--glitter --glow x.pdf"},
    {"no value", "x.pdf -d"},
    {"a value too many", "--demo=yes x.pdf"},
    {"copies", "-n 0 x.pdf"},
    {"pages", "-P 3-1 x.pdf"},
    {"hold", "-H never x.pdf"},
    {"release", "-H resume x.pdf"},
    {"policy", "--check-policy a b"},
    {"server", "-h :: x.pdf"},
    {"alert", "--on-alert sleep x.pdf"},
    {"format", "--format=xml x.pdf"},
    {"mail", "-m x.pdf"},
    {"empty", "--ppd= x.pdf"},
    {"wait", "--wait=1 --no-wait x.pdf"},
    {"passwords", "--password-fd=3 --password-file=x x.pdf"},
    {"input for two", "--password-fd=0 -"},
    {"preset", "--save-preset=A x.pdf"},
    {"json", "--format=json x.pdf"},
    {"output for two", "--format=json --output - --no-dialog x.pdf"},
    {"device", "-d ipp:// x.pdf"},
    {"option", "-o =2 x.pdf"},
    {"input twice", "- -"},
    {"no document", "--no-dialog"},
};

ParsedCommandLine parsed(const char *arguments)
{
    return parseCommandLine(u"corvana-print %1"_s.arg(QString::fromUtf8(arguments)).split(u' '));
}

// Each two words of a text that follow each other, in small letters: one word may be the same in
// another language, two are English.
QStringList pairsOf(const QString &text)
{
    static const QRegularExpression pair(u"(?<![-\\w'])(?=([a-z']+ [a-z']+)(?![-\\w=]))"_s);
    // In Italian, too; and a program.
    const QStringList same{u"standard input"_s, u"standard output"_s, u"use lp"_s};
    QStringList pairs;
    for (const auto &match : pair.globalMatch(text))
        pairs += match.captured(1);
    pairs.removeIf([&](const QString &one) { return same.contains(one); });
    return pairs;
}

} // namespace

class CommandLineHelpTest : public QObject
{
    Q_OBJECT

private:
    QTranslator m_translator;

    // Errors: fails the test.
    void speak(const QString &language)
    {
        QVERIFY(m_translator.load(u"corvana-print_"_s + language, sharedFile(u"translations"_s)));
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
    }
    void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : kLanguages)
            QTest::newRow(language) << QString::fromLatin1(language);
    }

private Q_SLOTS:
    void cleanup() { QCoreApplication::removeTranslator(&m_translator); }

    void linesBreakWhereTheLanguageAllowsIt_data() { addRows(kWrapped); }
    void linesBreakWhereTheLanguageAllowsIt()
    {
        const Wrapped &row = currentRow(kWrapped);
        const QString lines = QString::fromUtf8(row.lines);
        QCOMPARE(wrappedText(QString::fromUtf8(row.text), row.columns, 0).replace(u'\n', u'|'),
                 lines);
        QCOMPARE(wrappedText(QString::fromUtf8(row.text), row.columns, 3),
                 QString(lines).replace(u"|"_s, u"\n   "_s));
    }

    void columnsAreThoseOfATerminal()
    {
        QCOMPARE(columnsOf(u"a-b"_s), 3);
        QCOMPARE(columnsOf(u"用紙、A4"_s), 8);
        QCOMPARE(columnsOf(u"한글"_s), 4);
        QCOMPARE(columnsOf(u"l’e\u0301t\u00e9\u00a0"_s), 6);
    }

    void theHelpHasTwoColumnsInEveryLanguage_data() { addLanguages(); }
    void theHelpHasTwoColumnsInEveryLanguage()
    {
        QFETCH(QString, language);
        speak(language);
        const QStringList lines = parsed("--help").text.split(u'\n');
        int rows = 0;
        for (const QString &line : lines) {
            QVERIFY2(columnsOf(line) <= kWidth, qPrintable(line));
            QVERIFY2(!line.endsWith(u' '), qPrintable(line));
            if (!line.startsWith(u"  -"_s))
                continue;
            ++rows;
            QVERIFY2(line.size() > kRight && line.at(kRight - 1) == u' ' && line.at(kRight) != u' ',
                     qPrintable(line));
        }
        QCOMPARE(rows, CommandLineOptions().all().size());
    }

    void nothingOfTheHelpIsLeftInEnglish_data() { addLanguages(); }
    void nothingOfTheHelpIsLeftInEnglish()
    {
        QFETCH(QString, language);
        QList<QString> english;
        for (const QCommandLineOption &option : CommandLineOptions().all())
            english += option.description();
        const QStringList headings =
            parsed("--help").text.split(u'\n').filter(QRegularExpression(u"^[A-Z].*:$"_s));
        QCOMPARE(headings.size(), 3);
        speak(language);
        qsizetype index = 0;
        for (const QCommandLineOption &option : CommandLineOptions().all())
            QVERIFY2(option.description() != english.at(index++), qPrintable(option.description()));
        const QString help = parsed("--help").text;
        const QStringList lines = help.split(u'\n');
        for (const QString &heading : headings)
            QVERIFY2(!lines.contains(heading) || heading.startsWith(u"Options"_s),
                     qPrintable(heading));
        for (const QString &word : {u"Usage"_s, u"Prints"_s, u"printed"_s, u"signal's"_s})
            QVERIFY2(!help.contains(word), qPrintable(word));
    }

    void everyRefusalIsInTheUsersLanguage_data() { addRows(kRefused); }
    void everyRefusalIsInTheUsersLanguage()
    {
        const Refused &row = currentRow(kRefused);
        const ParsedCommandLine english = parsed(row.arguments);
        QCOMPARE(english.exitStatus, ExitStatus::NotUnderstood);
        const QStringList pairs = pairsOf(english.text);
        QVERIFY2(pairs.size() >= 3, qPrintable(english.text));
        for (const char *language : kLanguages) {
            speak(QString::fromLatin1(language));
            const ParsedCommandLine refusal = parsed(row.arguments);
            QCOMPARE(refusal.exitStatus, ExitStatus::NotUnderstood);
            QVERIFY(refusal.text.section(u'\n', 0, 0) != english.text.section(u'\n', 0, 0));
            const QStringList theirs = pairsOf(refusal.text);
            for (const QString &pair : pairs)
                QVERIFY2(!theirs.contains(pair), qPrintable(refusal.text + pair));
            QVERIFY2(refusal.text.contains(u"corvana-print --help"_s), qPrintable(refusal.text));
            QCoreApplication::removeTranslator(&m_translator);
        }
    }
};

QTEST_GUILESS_MAIN(CommandLineHelpTest)

#include "command_line_help_test.moc"
