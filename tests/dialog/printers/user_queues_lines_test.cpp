#include <random>

#include <QTest>

#include <cups/cups.h>

#include "dialog/printers/UserQueuesFile.h"
#include "dialog/printers/UserQueuesLine.h"
#include "tests/dialog/printers/UserQueuesFolder.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// A value, or a name, and whether it can stand in the file.
struct Value
{
    const char *name;
    JobOption option;
    bool canBeWritten = true;
};

const QList<Value> kValues{
    {"a word", {u"media"_s, u"A4"_s}},
    {"nothing", {u"job-billing"_s, u""_s}},
    {"a blank", {u"x"_s, u" "_s}},
    {"blanks around and between", {u"x"_s, u"  two  words "_s}},
    {"double quotes", {u"x"_s, u"a \"b\" c\""_s}},
    {"single quotes", {u"x"_s, u"it's 'that'"_s}},
    {"a backslash", {u"x"_s, u"\\"_s}},
    {"backslashes and quotes", {u"x"_s, u"\\\\\"\\'\\n\\\""_s}},
    {"commas", {u"x"_s, u",a,,'b,\"c,"_s}},
    {"braces", {u"media-col"_s, u"{media-size={x-dimension=1 y-dimension=2} a=\"}\"}"_s}},
    {"a brace that is not closed", {u"x"_s, u"{{a"_s}},
    {"equals signs", {u"x"_s, u"=a=b"_s}},
    {"a number sign", {u"x"_s, u"#1"_s}},
    {"several number signs", {u"x"_s, u"a#b\\#c#"_s}},
    {"other letters", {u"x"_s, u"größer 日本語 🖨"_s}},
    {"a custom value", {u"QXSleepTime"_s, u"Custom.12"_s}},
    {"a dotted name", {u"com.corvana.print.PrintSettings.densitymode"_s, u"-3"_s}},
    {"a word that looks like no", {u"nocollate"_s, u"no"_s}},
    {"a line break", {u"x"_s, u"a\nDest lobby y=1"_s}, false},
    {"a carriage return", {u"x"_s, u"a\rb"_s}, false},
    {"a tab", {u"x"_s, u"a\tb"_s}, false},
    {"a NUL", {u"x"_s, QString(u'a') + QChar(0) + u'b'}, false},
    {"a name with a blank", {u"x y"_s, u"1"_s}, false},
    {"a name with an equals sign", {u"x="_s, u"1"_s}, false},
    {"a name of other letters", {u"größe"_s, u"1"_s}, false},
    {"no name", {u""_s, u"1"_s}, false},
    {"more than libcups reads of a line", {u"x"_s, QString(8200, u'x')}, false},
};

/// A queue's lines in a file, read by libcups' own function: "NAME" and "NAME/INSTANCE" as they
/// stand there, and what cupsParseOptions() finds behind them.
QList<std::pair<QByteArray, QList<JobOption>>> readByCups(const QString &path)
{
    QList<std::pair<QByteArray, QList<JobOption>>> read;
    cups_file_t *file = cupsFileOpen(path.toUtf8().constData(), "r");
    char line[8192];
    char *value = nullptr;
    int number = 0;
    while (file && cupsFileGetConf(file, line, sizeof line, &value, &number)) {
        const QByteArray keyword = QByteArray(line).toLower();
        if ((keyword != "dest" && keyword != "default") || !value)
            continue;
        const std::size_t size = strcspn(value, " \t\n\v\f\r");
        cups_option_t *options = nullptr;
        const int count = cupsParseOptions(value + size, 0, &options);
        QList<JobOption> found;
        for (int i = 0; i < count; ++i)
            found +=
                JobOption{QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)};
        cupsFreeOptions(count, options);
        read.emplaceBack(QByteArray(value, qsizetype(size)), found);
    }
    if (file)
        cupsFileClose(file);
    return read;
}

/// A file as hands, other programs and accidents leave it.
QByteArray randomContent(std::mt19937 &random)
{
    static const QList<QByteArray> kPieces{"Dest lobby a=1 b=\"two words\"",
                                           "Default lobby",
                                           "dest\tLOBBY/late  x=1 ",
                                           "# a comment",
                                           "Dest lobby/report x=1 # nearly",
                                           "   ",
                                           "",
                                           "Server elsewhere",
                                           "Dest",
                                           "Dest office/a",
                                           "Default office/b c='d",
                                           QByteArray("Dest lab\0x", 10),
                                           "\xff\xfe\x80 Dest lobby",
                                           "Dest B\xc3\xbcro x=y",
                                           "DestX lobby/reports",
                                           "<Dest lobby/reports>",
                                           "# Dest lobby/reports x=1",

                                           "Dest lobby/reportss x=1",
                                           "Dest long " + QByteArray(9000, 'o'),
                                           "\\# Dest lobby/reports"};
    static const QList<QByteArray> kEnds{"\n", "\n", "\n", "\r\n", "\r", "\n\n"};
    const auto any = [&](const QList<QByteArray> &list) {
        return list.at(qsizetype(random() % std::size_t(list.size())));
    };
    QByteArray content;
    for (auto count = random() % 12; count > 0; --count)
        content += any(kPieces) + any(kEnds);
    if (random() % 3 == 0)
        content += any(kPieces); // without an end
    return content;
}

} // namespace

/// The lines of the user's lpoptions, with one instance more, less, or another one: libcups reads
/// what was meant, and nothing else in them ever changes.
class UserQueuesLinesTest : public QObject
{
    Q_OBJECT

private:
    UserQueuesFolder m_folder;

private Q_SLOTS:
    void valuesAreReadAsTheyAreMeant_data() { addRows(kValues); }
    void valuesAreReadAsTheyAreMeant()
    {
        const Value &row = currentRow(kValues);
        // In the midst of others, which a value that is read otherwise would disturb.
        const QList<JobOption> options{{u"a"_s, u"1"_s}, row.option, {u"z"_s, u"2 3"_s}};
        const QByteArray before = "Dest lobby a=1\n";
        const QString path = m_folder.newFile(before);
        const QString problem = problemOfInstance(kInstance, options);
        QCOMPARE(problem.isEmpty(), row.canBeWritten);
        if (!row.canBeWritten) {
            QCOMPARE(UserQueuesFile(path).change({{kInstance, options}}).value(kInstance), problem);
            QCOMPARE(readFile(path), before);
            return;
        }
        writeFile(path, withInstance(before, kInstance, options));
        const auto read = readByCups(path);
        QCOMPARE(read.size(), 2);
        QCOMPARE(read.at(1).first, kInstance.toUtf8());
        QList<JobOption> found = read.at(1).second;
        QCOMPARE(found.size(), options.size());
        for (const JobOption &option : options)
            QVERIFY2(found.contains(option), qPrintable(option.name));
    }

    void twoNamesThatLibcupsTakesForOneAreRefused()
    {
        const QString problem =
            problemOfInstance(kInstance, {{u"Collate"_s, u"True"_s}, {u"collate"_s, u"false"_s}});
        QVERIFY2(problem.contains(u"Collate"_s), qPrintable(problem));
    }

    void namesOfInstances_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("canBe");
        QTest::newRow("usual") << u"lobby/reports"_s << true;
        QTest::newRow("queue of other letters") << u"Büro/A4-2.duplex_x"_s << true;
        for (const auto &name :
             {u"lobby"_s, u"lobby/"_s, u"/a"_s, u"lobby/a b"_s, u"lobby/ä"_s, u"lobby/a/b"_s,
              u"lobby/a#"_s, u"lob by/a"_s, u"lobby/a\n"_s, u"lob#by/a"_s, u"lobby/"_s + QChar(0)})
            QTest::newRow(qPrintable(u"not "_s + name)) << name << false;
    }
    void namesOfInstances()
    {
        QFETCH(QString, name);
        QFETCH(bool, canBe);
        QCOMPARE(problemOfInstance(name, kOptions).isEmpty(), canBe);
    }

    void theLineStandsWhereItStood_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
            QTest::newRow(name) << before << after;
        };
        row("no file yet", "", kLine + '\n');
        row("behind others", "Dest lab x=1\n", "Dest lab x=1\n" + kLine + '\n');
        row("behind one without an end", "Dest lab", "Dest lab\n" + kLine + '\n');
        row("in the midst", "# a\nDest lobby/reports x=1\nDest lab\n",
            "# a\n" + kLine + "\nDest lab\n");
        row("with a comment of its own", "Dest lobby/reports# x=1\n", kLine + '\n');
        row("another system's end", "Dest lobby/reports x=1\r\nDest lab\r\n",
            kLine + "\r\nDest lab\r\n");
        row("without an end", "Dest lobby/reports x=1", kLine);
        row("in another spelling", "dest LOBBY/Reports\n", kLine + '\n');
        row("the user's default", "Default lobby/reports x=1\nDefault lab\n",
            "Default lobby/reports sides=two-sided-long-edge\nDefault lab\n");
        row("twice", "Dest lobby/reports x=1\nDest lab\nDest lobby/reports y=1\n",
            kLine + "\nDest lab\n" + kLine + '\n');
    }
    void theLineStandsWhereItStood()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QCOMPARE(withInstance(before, kInstance, kOptions), after);
    }

    void onlyTheLinesOfTheInstanceAreRemoved()
    {
        const QByteArray content = "# x\r\nDest lobby/reports a=1\nDest lobby/report b=1\n"
                                   "dest lobby/Reports c=1\rDest lobby d=1";
        QCOMPARE(withoutInstance(content, kInstance),
                 "# x\r\nDest lobby/report b=1\nDest lobby d=1");
    }

    void everyOtherByteStaysAsItIs()
    {
        const quint32 seed = 15;
        std::mt19937 random(seed);
        const QString path = m_folder.newPath();
        for (int round = 0; round < 2000; ++round) {
            const QByteArray others = randomContent(random);
            const QByteArray with = withInstance(others, kInstance, kOptions);
            const bool needsEnd =
                !others.isEmpty() && !others.endsWith('\n') && !others.endsWith('\r');
            QCOMPARE(with, others + (needsEnd ? "\n" : "") + kLine + '\n');
            QCOMPARE(withoutInstance(with, kInstance), others + (needsEnd ? "\n" : ""));
            // Another content in the midst of such a file, and back.
            const QByteArray more = randomContent(random);
            const QList<JobOption> other{{u"x"_s, QString::number(round)}};
            QCOMPARE(withInstance(withInstance(with + more, kInstance, other), kInstance, kOptions),
                     with + more);
            if (round % 20 == 0) {
                writeFile(path, with + more);
                qsizetype found = 0;
                for (const auto &[name, options] : readByCups(path)) {
                    if (name == "lobby/reports") {
                        ++found;
                        QCOMPARE(options, kOptions);
                    }
                }
                QCOMPARE(found, 1);
            }
        }
    }

    void linesAreThoseOfLibcups()
    {
        std::mt19937 random(4);
        const QString path = m_folder.newPath();
        for (int round = 0; round < 300; ++round) {
            const QByteArray content = randomContent(random);
            writeFile(path, content);
            QList<std::pair<QByteArray, QList<JobOption>>> ours;
            const QList<QByteArrayView> lines = linesOfUserQueues(content);
            for (const QByteArrayView line : lines) {
                if (const auto read = userQueuesLine(line))
                    ours.emplaceBack(read->name, optionsOfLine(*read));
            }
            QCOMPARE(ours, readByCups(path));
        }
    }
};

QTEST_GUILESS_MAIN(UserQueuesLinesTest)
#include "user_queues_lines_test.moc"
