#include <QTemporaryDir>
#include <QTest>

#include <cups/file.h>

#include "dialog/session/PpdBounds.h"
#include "dialog/session/PpdFile.h"
#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A sanitizer has each question of 40,000 constraints take a second.
constexpr int kAsked = 10;

constexpr PpdBounds kBounds{.bytes = 100'000,
                            .options = 6,
                            .choices = 5,
                            .allChoices = 12,
                            .sizes = 4,
                            .constraints = 3,
                            .termsOfLine = 6,
                            .terms = 40,
                            .resolverTerms = 10,
                            .questions = 200,
                            .groups = 3,
                            .attributes = 40,
                            .sameAttributes = 30,
                            .keywords = 60};

QByteArray lines(const QByteArray &begin, int count, const QByteArray &end)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += begin + QByteArray::number(i) + end + '\n';
    return all;
}

QByteArray option(const QByteArray &keyword, int choices)
{
    return "*OpenUI *" + keyword + "/Text: PickOne\n*Default" + keyword + ": C0\n" +
           lines('*' + keyword + " C", choices, "/Text: \"\"") + "*CloseUI: *" + keyword + '\n';
}

QByteArray texts(const QByteArray &language, int ofOptions, int ofChoices)
{
    return lines('*' + language + ".Translation A", ofOptions, "/B: \"\"") +
           lines('*' + language + ".Tray C", ofChoices, "/B: \"\"");
}

QByteArray allOptions(int count)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += option('O' + QByteArray::number(i), 3);
    return all;
}

// Each over two lines, as libcups takes them.
QByteArray constraints(int count, int terms, const QByteArray &keyword = "cupsUIConstraints")
{
    QByteArray named = "*A C0\n";
    for (int i = 1; i < terms; ++i)
        named += "*PageSize C" + QByteArray::number(i) + ' ';
    return lines('*' + keyword + " R", count, ": \"" + named + "\"\n*End");
}

// A text of each: "aa", "ab" and so on.
QByteArray languages(int count)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += QByteArray("*") + static_cast<char>('a' + i / 26) + static_cast<char>('a' + i % 26) +
               ".A B: \"\"\n";
    return all;
}

struct Row
{
    const char *what;
    QByteArray text;
    QString excess; // what is named; null where there is none
};

QList<Row> rows()
{
    return {
        {"nothing", {}, {}},
        {"as many choices as there may be", option("Tray", 5), {}},
        {"one choice too many", option("Tray", 6), u"“*tray”"_s},
        {"in other letters", QByteArray(option("Tray", 6)).replace("*Tray C", "*TRAY C"),
         u"“*tray”"_s},
        {"lines that end with a carriage return", option("Tray", 6).replace('\n', '\r'),
         u"“*tray”"_s},
        {"as many choices in all", option("A", 5) + option("B", 5) + option("C", 2), {}},
        {"too many choices in all", option("A", 4) + option("B", 5) + option("C", 4),
         u"more than 12 choices of all options together. “*b” has the most"_s},
        {"too many options", lines("*OpenUI *A", 7, "/A: PickOne"), u"“*openui”"_s},
        {"too many papers", option("PageSize", 5), u"“*pagesize”"_s},
        {"too many measures of papers", lines("*PaperDimension P", 5, ": \"1 1\""),
         u"“*paperdimension”"_s},
        {"too many constraints", lines("*UIConstraints: *A A", 4, " *B B"), u"“*uiconstraints”"_s},
        {"too many constraints of CUPS' own", lines("*cupsUIConstraints C", 31, ": \"*A A\""),
         u"more than 30 lines that begin with “*cupsuiconstraints”"_s},
        {"as many choices in constraints as there may be", constraints(10, 4), {}},
        {"too many choices in constraints", constraints(8, 5) + constraints(1, 1),
         u"more than 40 choices in lines that begin with “*cupsuiconstraints”"_s},
        {"too many choices in constraints of both kinds",
         constraints(9, 4) + lines("*UIConstraints: *A A", 3, " *B B"),
         u"more than 40 choices in lines that begin with “*uiconstraints”"_s},
        {"a constraint with too many choices", constraints(1, 7),
         u"more than 6 choices in one line that begins with “*cupsuiconstraints”"_s},
        {"as many choices in ways out of constraints as there may be",
         constraints(2, 5, "cupsUIResolver"),
         {}},
        {"too many choices in ways out of constraints",
         constraints(2, 5, "cupsUIResolver") + constraints(1, 1, "CUPSUIResolver"),
         u"more than 10 choices in lines that begin with “*cupsuiresolver”"_s},
        {"a way out with too many choices", constraints(1, 7, "cupsUIResolver"),
         u"more than 6 choices in one line that begins with “*cupsuiresolver”"_s},
        // Three options, of which one has two choices: five questions.
        {"as many questions as may be asked",
         constraints(8, 5) + option("A", 2) + lines("*OpenUI *B", 2, "/B: PickOne"),
         {}},
        {"too many questions",
         constraints(8, 5) + option("A", 2) + lines("*OpenUI *B", 3, "/B: PickOne"),
         u"its constraints name 40 choices. Beside as many options and choices as it has, 33 are"_s},
        {"what looks like papers in a text",
         "*Comment: \"one\n" + lines("*PageSize P", 20, "") + "\"\n" + option("PageSize", 4),
         {}},
        {"what only looks like a text", "*% a: \"\n" + option("Tray", 6), u"“*tray”"_s},
        {"quotes in front of the colon", "*Comment \"a: b\n" + option("Tray", 6), u"“*tray”"_s},
        {"a text that ends in its own line", "*Comment: \"a\" \"\n\"\n" + option("Tray", 6),
         u"“*tray”"_s},
        {"as many groups as there may be", lines("*OpenGroup: G", 3, "/G"), {}},
        {"too many groups", lines("*OpenGroup: G", 4, "/G"),
         u"more than 3 lines that begin with “*opengroup”"_s},
        {"too many groups in a group", lines("*OpenSubGroup: G", 4, "/G"), u"“*opensubgroup”"_s},
        {"as many of one attribute as there may be", lines("*Font F", 30, ": Standard"), {}},
        {"too many of one attribute", lines("*Font F", 31, ": Standard"),
         u"more than 30 lines that begin with “*font”"_s},
        {"keywords that only begin alike",
         lines("*Font F", 16, ": S") + lines("*Fonts F", 16, ": S"),
         {}},
        {"one keyword, written in several ways",
         QByteArray("*Font F: S\n*FONT/F: S\n*font:S\n").repeated(11), u"“*font”"_s},
        {"keywords that differ behind what libcups keeps of them",
         lines('*' + QByteArray(40, 'a') + "b F", 16, ": S") +
             lines('*' + QByteArray(40, 'a') + "c F", 16, ": S"),
         u"more than 30 lines"_s},
        {"as many attributes as there may be",
         lines("*Font F", 30, ": Standard") + lines("*Face F", 10, ": Standard"),
         {}},
        {"too many attributes",
         lines("*Font F", 30, ": Standard") + lines("*Face F", 11, ": Standard"),
         u"more than 40 lines that belong to no option. The most frequent is “*font”"_s},
        {"as many texts of each of two languages",
         texts("ja", 30, 10) + texts("zh_CN", 30, 10),
         {}},
        {"too many texts of one language", texts("ja", 30, 11), u"“*ja.”"_s},
        {"too many texts of one language and its regions",
         texts("zh_CN", 20, 0) + texts("zh_TW", 21, 0), u"“*zh.”"_s},
        {"too many texts of one kind", texts("ja", 31, 0), u"“*ja.translation”"_s},
        {"what is no language", lines("*l", 41, ".A B: \"\""),
         u"more than 40 lines that belong to no option"_s},
        {"too many keywords", languages(61), u"more than 60 different keywords"_s},
        {"comments", lines("*% C", 100, "") + lines("*%", 100, ": C"), {}},
        {"ends of texts", QByteArray("*End\n").repeated(100), {}},
        {"what only begins like an end", lines("*End", 41, ": \"\""),
         u"more than 40 lines that belong to no option"_s},
        // What libcups does not see, and other blanks that it knows.
        {"the end of a file in front of lines", option("Tray", 6).replace("*Tray C", "\x1a*Tray C"),
         u"“*tray”"_s},
        {"the end of a file in keywords",
         option("Tray", 6).replace("*Tray C", "*Tr\x1a"
                                              "ay C"),
         u"“*tray”"_s},
        {"many ends of files", "*Font" + QByteArray(70'000, '\x1a') + lines("*Font F", 32, ": S"),
         u"“*font”"_s},
        {"a form feed behind keywords", lines("*PaperDimension\fP", 5, ": \"1 1\""),
         u"“*paperdimension”"_s},
        {"a vertical tabulator behind keywords", lines("*PaperDimension\vP", 5, ": \"1 1\""),
         u"“*paperdimension”"_s},
        {"what does not begin a line", QByteArray(" *Font F\nx*Font F\n").repeated(100), {}},
        {"a long line", "*Comment: \"" + QByteArray(90'000, '*') + '"', {}},
        {"too many bytes", QByteArray(100'001, ' '), u"larger"_s},
    };
}

} // namespace

/// How much of a PPD libcups gets to see.
class PpdBoundsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath(u"a.ppd"_s); }

private Q_SLOTS:
    void whatIsTooMuchIsNamed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("excess");
        for (const Row &row : rows())
            QTest::newRow(row.what) << row.text << row.excess;
    }
    void whatIsTooMuchIsNamed()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, excess);
        writeFile(path(), text);
        const QString said = excessOfPpd(path(), kBounds);
        QVERIFY2(said.contains(excess), qPrintable(said));
        QCOMPARE(said.isEmpty(), excess.isNull());
    }

    void whatIsCompressedIsCountedAsItBecomes()
    {
        cups_file_t *file = cupsFileOpen(qPrintable(path()), "w9");
        QVERIFY(file);
        const QByteArray text = option("Tray", 6);
        cupsFileWrite(file, text.constData(), static_cast<size_t>(text.size()));
        cupsFileClose(file);
        QVERIFY(excessOfPpd(path(), kBounds).contains(u"“*tray”"_s));
    }

    void theSamplesAreFarFromTheirBounds()
    {
        PpdBounds bounds;
        for (int *bound :
             {&bounds.options, &bounds.choices, &bounds.allChoices, &bounds.sizes,
              &bounds.constraints, &bounds.termsOfLine, &bounds.terms, &bounds.resolverTerms,
              &bounds.groups, &bounds.attributes, &bounds.sameAttributes, &bounds.keywords})
            *bound /= 10;
        bounds.questions /= 10;
        QCOMPARE(excessOfPpd(samplePpdPath(), bounds), QString());
    }

    // libcups looks each paper up among all of them, and is busy for minutes. What is refused and
    // what is read takes as long as e2e.hostile_ppds allows.
    void aPpdThatWouldNeverBeReadIsRefused_data()
    {
        QTest::addColumn<QByteArray>("keyword");
        QTest::newRow("papers") << QByteArray("PageSize");
        QTest::newRow("anything else") << QByteArray("Tray");
    }
    void aPpdThatWouldNeverBeReadIsRefused()
    {
        QFETCH(QByteArray, keyword);
        writeFile(path(), "*PPD-Adobe: \"4.3\"\n" + option(keyword, 100'000));
        QString error;
        QVERIFY(!openPpdFile(path(), &error));
        QVERIFY2(error.startsWith(path() + u": There is too much in it"_s), qPrintable(error));
    }

    // libcups compares each with all that are like it: 30,000 keep it busy for half a minute.
    void whatIsWithinBoundsIsRead_data()
    {
        const PpdBounds bounds;
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("parameters of a custom option")
            << option("Tray", 2) + "*CustomTray True: \"\"\n" +
                   lines("*ParamCustomTray P", bounds.sameAttributes, "/P: 1 string 0 10");
        QTest::newRow("groups in a group")
            << "*OpenGroup: G/G\n" +
                   lines("*OpenSubGroup: G", bounds.groups, "/G\n*CloseSubGroup: G") +
                   "*CloseGroup: G\n";
        QTest::newRow("constraints")
            << allOptions(150) + lines("*UIConstraints: *O0 C0 *O1 C", bounds.constraints - 50, "");
        QTest::newRow("constraints of CUPS' own that hold but for one choice")
            << allOptions(150) + lines("*cupsUIConstraints R", 790,
                                       ": \"" + QByteArray("*O0 C0\n").repeated(49) + "*O1 C1\"");
        QTest::newRow("two attributes in turn")
            << lines("*Typeface F", bounds.sameAttributes, ": \"a\"\n*Alias F: \"a\"");
    }
    void whatIsWithinBoundsIsRead()
    {
        QFETCH(QByteArray, text);
        QFile sample(samplePpdPath());
        QVERIFY(sample.open(QIODevice::ReadOnly));
        writeFile(path(), sample.readAll() + text);
        QString error;
        PpdFile ppd = openPpdFile(path(), &error);
        QVERIFY2(ppd, qPrintable(error));
        // What a page of options asks, and what becomes of a choice that is refused.
        PpdSession session(std::move(ppd));
        for (const ppd_option_t *one : session.options().mid(0, kAsked))
            session.conflictsOf({ppdKeyword(one->keyword), u"C1"_s});
        session.wayOut({u"O1"_s, u"C1"_s});
    }
};

QTEST_GUILESS_MAIN(PpdBoundsTest)

#include "ppd_bounds_test.moc"
