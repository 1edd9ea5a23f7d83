#include <QTest>

#include "dialog/app/CommandLine.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

ParsedCommandLine parsed(const QStringList &arguments)
{
    return parseCommandLine(QStringList{u"corvana-print"_s} + arguments);
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDocumentAloneLeavesEverythingElseToTheDialog()
    {
        const ParsedCommandLine result = parsed({u"report.pdf"_s});
        QVERIFY(result.commandLine);
        CommandLine expected;
        expected.documents = {u"report.pdf"_s};
        QCOMPARE(*result.commandLine, expected);
        QVERIFY(!result.commandLine->copies);
        QVERIFY(result.text.isEmpty());
        QCOMPARE(result.exitStatus, 0);
    }

    void everythingThatCanBeSaid_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<CommandLine>("line");
        const auto row = [](const char *name, const QStringList &arguments, auto change) {
            CommandLine line;
            line.documents = {u"report.pdf"_s};
            change(line);
            QTest::newRow(name) << arguments << line;
        };
        const QString doc = u"report.pdf"_s;
        row("printer", {u"-d"_s, u"office"_s, doc},
            [](CommandLine &l) { l.printer = u"office"_s; });
        row("printer, long", {u"--printer"_s, u"office"_s, doc},
            [](CommandLine &l) { l.printer = u"office"_s; });
        row("printer, with equals sign", {u"--printer=office"_s, doc},
            [](CommandLine &l) { l.printer = u"office"_s; });
        row("after the document", {doc, u"-d"_s, u"office"_s},
            [](CommandLine &l) { l.printer = u"office"_s; });
        row("PPD", {u"--ppd"_s, u"a.ppd"_s, doc}, [](CommandLine &l) { l.ppd = u"a.ppd"_s; });
        row("output", {u"--output"_s, u"-odd name.ps"_s, doc},
            [](CommandLine &l) { l.output = u"-odd name.ps"_s; });
        row("title", {u"-t"_s, u"Two words"_s, doc},
            [](CommandLine &l) { l.title = u"Two words"_s; });
        row("one option", {u"-o"_s, u"A=1"_s, doc}, [](CommandLine &l) { l.options = {u"A=1"_s}; });
        row("options in their order",
            {u"-o"_s, u"B=2"_s, u"-oA=1 C=3"_s, u"--option"_s, u"B=4"_s, doc}, [](CommandLine &l) {
                l.options = {u"B=2"_s, u"A=1 C=3"_s, u"B=4"_s};
            });
        row("one copy", {u"-n"_s, u"1"_s, doc}, [](CommandLine &l) { l.copies = 1; });
        row("most copies", {u"-n"_s, u"9999"_s, doc}, [](CommandLine &l) { l.copies = 9999; });
        row("copies without a blank", {u"-n12"_s, doc}, [](CommandLine &l) { l.copies = 12; });
        row("bundle folders in their order",
            {u"--bundle-root"_s, u"/b"_s, u"--bundle-root"_s, u"/a"_s, doc}, [](CommandLine &l) {
                l.bundleRoots = {u"/b"_s, u"/a"_s};
            });
        row("demo", {u"--demo"_s, doc}, [](CommandLine &l) { l.demo = true; });
        row("no dialog", {u"--no-dialog"_s, doc}, [](CommandLine &l) { l.noDialog = true; });
        row("summary", {u"--summary"_s, doc}, [](CommandLine &l) { l.summary = true; });
        row("several documents, standard input among them", {doc, u"-"_s, u"b.png"_s},
            [](CommandLine &l) {
                l.documents += {u"-"_s, u"b.png"_s};
            });
        row("instructions hold the job", {u"--on-alert"_s, u"hold"_s, doc},
            [](CommandLine &l) { l.onAlert = AlertPolicy::Hold; });
        row("a document whose name begins with a dash", {u"--"_s, u"-n"_s},
            [](CommandLine &l) { l.documents = QStringList{u"-n"_s}; });
        row("list without a document", {u"--list-printers"_s}, [](CommandLine &l) {
            l.listPrinters = true;
            l.documents.clear();
        });
        row("display check without a document", {u"--check-display"_s}, [](CommandLine &l) {
            l.checkDisplay = true;
            l.documents.clear();
        });
        row("summary without a document", {u"--summary"_s, u"--demo"_s}, [](CommandLine &l) {
            l.summary = true;
            l.demo = true;
            l.documents.clear();
        });
    }
    void everythingThatCanBeSaid()
    {
        QFETCH(QStringList, arguments);
        QFETCH(CommandLine, line);
        const ParsedCommandLine result = parsed(arguments);
        QVERIFY2(result.commandLine, qPrintable(result.text));
        QCOMPARE(*result.commandLine, line);
    }

    void whatCannotBeUnderstoodEndsWithStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const QStringList &arguments, const QString &named) {
            QTest::newRow(name) << arguments << named;
        };
        const QString doc = u"report.pdf"_s;
        row("nothing", {}, u"document"_s);
        row("an empty name", {QString(u""_s)}, u"document"_s);
        row("no document", {u"--no-dialog"_s}, u"document"_s);
        row("standard input twice", {u"-"_s, u"-"_s}, u"standard input"_s);
        row("an option that cannot be read", {u"-o"_s, u"A=1 =2"_s, doc}, u"A=1 =2"_s);
        row("an open quote", {u"-o"_s, u"A=\"1"_s, doc}, u"KEY=VALUE"_s);
        row("unknown policy", {u"--on-alert"_s, u"sleep"_s, doc}, u"sleep"_s);
        row("unknown option", {u"--frobnicate"_s, doc}, u"frobnicate"_s);
        row("unknown letter", {u"-x"_s, doc}, u"x"_s);
        row("option without its value", {doc, u"-d"_s}, u"d"_s);
        row("value for what takes none", {u"--demo=yes"_s, doc}, u"demo"_s);
        for (const QString &copies :
             {u"0"_s, u"10000"_s, u"-1"_s, u"x"_s, u"1.5"_s, u"1e2"_s, u"4294967297"_s, u""_s})
            row(qUtf8Printable(u"copies: "_s + copies), {u"-n"_s, copies, doc}, u"1 to 9999"_s);
    }
    void whatCannotBeUnderstoodEndsWithStatusTwo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const ParsedCommandLine result = parsed(arguments);
        QVERIFY(!result.commandLine);
        QCOMPARE(result.exitStatus, 2);
        QVERIFY2(result.text.contains(named), qPrintable(result.text));
        QVERIFY2(result.text.contains(u"--help"_s), qPrintable(result.text));
        QVERIFY(result.text.endsWith(u'\n'));
    }

    void theHelpNamesEveryOptionAndEndsWell_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("short") << QStringList{u"-h"_s};
        QTest::newRow("long") << QStringList{u"--help"_s};
        QTest::newRow("with a document") << QStringList{u"report.pdf"_s, u"--help"_s};
    }
    void theHelpNamesEveryOptionAndEndsWell()
    {
        QFETCH(QStringList, arguments);
        const ParsedCommandLine result = parsed(arguments);
        QVERIFY(!result.commandLine);
        QCOMPARE(result.exitStatus, 0);
        for (const QString &option :
             {u"-d"_s, u"--printer"_s, u"--ppd"_s, u"--output"_s, u"--demo"_s, u"--list-printers"_s,
              u"-o"_s, u"-n"_s, u"-t"_s, u"--no-dialog"_s, u"--summary"_s, u"--bundle-root"_s,
              u"--check-display"_s, u"--version"_s, u"FILE"_s})
            QVERIFY2(result.text.contains(option), qPrintable(option));
    }

    void theVersionIsOneLine()
    {
        const ParsedCommandLine result = parsed({u"--version"_s});
        QVERIFY(!result.commandLine);
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.text, u"corvana-print %1\n"_s.arg(QLatin1StringView(CORVANA_VERSION)));
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)

#include "command_line_test.moc"
