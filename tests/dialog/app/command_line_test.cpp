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
        QCOMPARE(result.exitStatus, ExitStatus::Done);
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
        row("server, as lp has it", {u"-h"_s, u"there:8631"_s, doc},
            [](CommandLine &l) { l.server = u"there:8631"_s; });
        row("server", {u"--server"_s, u"there"_s, doc},
            [](CommandLine &l) { l.server = u"there"_s; });
        row("user", {u"-U"_s, u"lisa"_s, doc}, [](CommandLine &l) { l.user = u"lisa"_s; });
        row("encryption", {u"-E"_s, doc}, [](CommandLine &l) { l.encrypt = true; });
        row("quiet", {u"-s"_s, doc}, [](CommandLine &l) { l.quiet = true; });
        row("copied as always", {u"-c"_s, doc}, [](CommandLine &) {});
        row("several letters in one word", {u"-csE"_s, doc}, [](CommandLine &l) {
            l.quiet = true;
            l.encrypt = true;
        });
        row("pages", {u"-P"_s, u"1-4, 7,9-"_s, doc}, [](CommandLine &l) {
            l.switches = {{u"page-ranges"_s, u"1-4,7,9-"_s}};
        });
        row("priority", {u"-q"_s, u"100"_s, doc}, [](CommandLine &l) {
            l.switches = {{u"job-priority"_s, u"100"_s}};
        });
        row("held", {u"-H"_s, u"hold"_s, doc}, [](CommandLine &l) {
            l.switches = {{u"job-hold-until"_s, u"indefinite"_s}};
        });
        row("at once", {u"-H"_s, u"immediate"_s, doc}, [](CommandLine &l) {
            l.switches = {{u"job-hold-until"_s, u"no-hold"_s}, {u"job-priority"_s, u"100"_s}};
        });
        row("at once, but not before others", {u"-H"_s, u"immediate"_s, u"-q"_s, u"7"_s, doc},
            [](CommandLine &l) {
                l.switches = {{u"job-hold-until"_s, u"no-hold"_s}, {u"job-priority"_s, u"7"_s}};
            });
        row("at a time", {u"-H"_s, u"22:30"_s, doc}, [](CommandLine &l) {
            l.switches = {{u"job-hold-until"_s, u"22:30"_s}};
        });
        row("in the evening", {u"-H"_s, u"evening"_s, doc}, [](CommandLine &l) {
            l.switches = {{u"job-hold-until"_s, u"evening"_s}};
        });
        row("a limited wait", {u"--wait=30"_s, doc}, [](CommandLine &l) { l.wait = 30; });
        row("a line for programs", {u"--format=json"_s, u"--no-dialog"_s, doc}, [](CommandLine &l) {
            l.json = true;
            l.noDialog = true;
        });
        row("lines for people", {u"--format"_s, u"text"_s, doc}, [](CommandLine &) {});
        row("a password in a file", {u"--password-file"_s, u"secret"_s, doc},
            [](CommandLine &l) { l.passwordFile = u"secret"_s; });
        row("a password of documents in a file", {u"--document-password-file"_s, u"secret"_s, doc},
            [](CommandLine &l) { l.documentPasswordFile = u"secret"_s; });
        row("a password from a descriptor", {u"--password-fd=0"_s, doc},
            [](CommandLine &l) { l.passwordDescriptor = 0; });
        row("standard output as the result", {u"--output"_s, u"-"_s, u"--no-dialog"_s, doc},
            [](CommandLine &l) {
                l.output = u"-"_s;
                l.noDialog = true;
            });
        row("list without a document", {u"--list-printers"_s}, [](CommandLine &l) {
            l.listPrinters = true;
            l.documents.clear();
        });
        row("a preset to start with", {u"--preset"_s, u"Monthly reports"_s, doc},
            [](CommandLine &l) { l.preset = u"Monthly reports"_s; });
        row("presets without a document", {u"--list-presets"_s}, [](CommandLine &l) {
            l.listPresets = true;
            l.documents.clear();
        });
        row("a preset to keep without a document",
            {u"--save-preset"_s, u"Reports"_s, u"--no-dialog"_s}, [](CommandLine &l) {
                l.savePreset = u"Reports"_s;
                l.noDialog = true;
                l.documents.clear();
            });
        row("display check without a document", {u"--check-display"_s}, [](CommandLine &l) {
            l.checkDisplay = true;
            l.documents.clear();
        });
        row("a window without a document", {}, [](CommandLine &l) { l.documents.clear(); });
        row("options without a document", {u"-d"_s, u"office"_s}, [](CommandLine &l) {
            l.printer = u"office"_s;
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
        row("an empty name", {QString(u""_s)}, u"document"_s);
        row("no document", {u"--no-dialog"_s}, u"document"_s);
        row("no document for a terminal", {u"--no-dialog"_s, u"-d"_s, u"office"_s}, u"document"_s);
        row("standard input twice", {u"-"_s, u"-"_s}, u"standard input"_s);
        row("an option that cannot be read", {u"-o"_s, u"A=1 =2"_s, doc}, u"A=1 =2"_s);
        row("an open quote", {u"-o"_s, u"A=\"1"_s, doc}, u"KEY=VALUE"_s);
        row("unknown policy", {u"--on-alert"_s, u"sleep"_s, doc}, u"sleep"_s);
        row("unknown option", {u"--frobnicate"_s, doc}, u"frobnicate"_s);
        row("unknown letter", {u"-x"_s, doc}, u"x"_s);
        row("option without its value", {doc, u"-d"_s}, u"d"_s);
        row("value for what takes none", {u"--demo=yes"_s, doc}, u"demo"_s);
        row("-h is no help any more", {doc, u"-h"_s}, u"-h"_s);
        for (const char *name :
             {"-d", "--printer", "--ppd", "--output", "-U", "--password-file",
              "--document-password-file", "--bundle-root", "--preset", "--save-preset"})
            row(name, {QString::fromUtf8(name), QString(u""_s), doc}, u"is missing"_s);
        row("a document beside a preset to keep", {u"--save-preset"_s, u"Reports"_s, doc},
            u"--save-preset"_s);
        row("no server", {u"-h"_s, QString(u""_s), doc}, u"HOST"_s);
        row("pages that go back", {u"-P"_s, u"3-1"_s, doc}, u"-P \"3-1\""_s);
        row("no pages", {u"-P"_s, QString(u""_s), doc}, u"-P"_s);
        row("no priority", {u"-q"_s, u"0"_s, doc}, u"1 to 100"_s);
        row("a time that there is not", {u"-H"_s, u"25:00"_s, doc}, u"HH:MM"_s);
        row("a job that is there already", {u"-H"_s, u"resume"_s, doc}, u"lp -i"_s);
        row("no time at all", {u"--wait"_s, u"0"_s, doc}, u"--wait 0"_s);
        row("a wait without end", {u"--wait"_s, u"99999999999"_s, doc}, u"--wait"_s);
        row("wait and do not wait", {u"--wait=3"_s, u"--no-wait"_s, doc}, u"--no-wait"_s);
        row("a line for programs from a window", {u"--format=json"_s, doc}, u"--no-dialog"_s);
        row("unknown format", {u"--format=xml"_s, doc}, u"json or text"_s);
        row("mail", {u"-m"_s, doc}, u"no mail"_s);
        row("two passwords", {u"--password-fd=3"_s, u"--password-file=x"_s, doc},
            u"--password-fd"_s);
        row("no descriptor", {u"--password-fd=-1"_s, doc}, u"--password-fd -1"_s);
        row("one stream for two", {u"--password-fd=0"_s, u"-"_s}, u"standard input"_s);
        row("one stream for two results",
            {u"--output"_s, u"-"_s, u"--format=json"_s, u"--no-dialog"_s, doc},
            u"standard output"_s);
        row("a window that writes to standard output", {u"--output"_s, u"-"_s, doc},
            u"--no-dialog"_s);
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
        QCOMPARE(result.exitStatus, ExitStatus::NotUnderstood);
        QVERIFY2(result.text.contains(named), qPrintable(result.text));
        QVERIFY2(result.text.contains(u"--help"_s), qPrintable(result.text));
        QVERIFY(result.text.endsWith(u'\n'));
    }

    void theHelpNamesEveryOptionAndEndsWell_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("alone") << QStringList{u"--help"_s};
        QTest::newRow("with a document") << QStringList{u"report.pdf"_s, u"--help"_s};
    }
    void theHelpNamesEveryOptionAndEndsWell()
    {
        QFETCH(QStringList, arguments);
        const ParsedCommandLine result = parsed(arguments);
        QVERIFY(!result.commandLine);
        QCOMPARE(result.exitStatus, ExitStatus::Done);
        for (const QString &option :
             {u"-d"_s, u"--printer"_s, u"--ppd"_s, u"--output"_s, u"--demo"_s, u"--list-printers"_s,
              u"--preset"_s, u"--list-presets"_s, u"--save-preset"_s, u"-o"_s, u"-n"_s, u"-t"_s,
              u"--no-dialog"_s, u"--summary"_s, u"--bundle-root"_s, u"--check-display"_s,
              u"--version"_s, u"FILE"_s})
            QVERIFY2(result.text.contains(option), qPrintable(option));
        for (int status = 0; status <= int(ExitStatus::StillThere); ++status)
            QVERIFY2(result.text.contains(u"\n  %1    "_s.arg(status)), qPrintable(result.text));
        QVERIFY(result.text.contains(u"\n  128 "_s));
    }

    void theVersionIsOneLine()
    {
        const ParsedCommandLine result = parsed({u"--version"_s});
        QVERIFY(!result.commandLine);
        QCOMPARE(result.exitStatus, ExitStatus::Done);
        QCOMPARE(result.text, u"corvana-print %1\n"_s.arg(QLatin1StringView(CORVANA_VERSION)));
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)

#include "command_line_test.moc"
