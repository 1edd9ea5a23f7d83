#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/app/RequestFromCommandLine.h"
#include "dialog/printers/PrinterFetching.h"
#include "dialog/task/OpenedPrinter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// From a command line to what is printed.
class PrintRequestTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_former;
    CommandLine m_line;

private Q_SLOTS:
    void init()
    {
        m_former = QDir::currentPath();
        m_folder = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(m_folder->path());
        writeFile(m_folder->filePath(u"notes.v2.txt"_s), "notes\n");
        m_line = {};
        m_line.documents = {u"notes.v2.txt"_s};
        m_line.ppd = samplePpdPath();
    }
    void cleanup()
    {
        QDir::setCurrent(m_former);
        m_folder.reset();
    }

    void theDocumentNamesTheJobAndTheOutput()
    {
        QString error;
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(request.title, u"notes.v2.txt"_s);
        QCOMPARE(request.output, QDir::current().absoluteFilePath(u"notes.v2.ps"_s));
        QCOMPARE(request.documents.value(0).format, u"text/plain"_s);
        QCOMPARE(request.copies, 1);
        QVERIFY(!request.copiesWereNamed);
    }

    void aNameThatIsTakenIsNotTakenAgain()
    {
        writeFile(m_folder->filePath(u"notes.v2.ps"_s), "earlier\n");
        writeFile(m_folder->filePath(u"notes.v2-2.ps"_s), "earlier\n");
        QString error;
        QCOMPARE(preparePrintRequest(m_line, &error)->output,
                 QDir::current().absoluteFilePath(u"notes.v2-3.ps"_s));
    }

    void whatTheCommandLineNamesIsTaken()
    {
        m_line.title = u"Title"_s;
        m_line.output = u"elsewhere.ps"_s;
        m_line.copies = 7;
        m_line.summary = true;
        m_line.options = {u"QXMediaType=Thick number-up=2"_s};
        m_line.bundleRoots = {u"/somewhere"_s};
        QString error;
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        QCOMPARE(request.title, u"Title"_s);
        QCOMPARE(request.output, u"elsewhere.ps"_s);
        QCOMPARE(request.copies, 7);
        QVERIFY(request.copiesWereNamed);
        QVERIFY(request.summary);
        QCOMPARE(request.options,
                 (QList<JobOption>{{u"number-up"_s, u"2"_s}, {u"QXMediaType"_s, u"Thick"_s}}));
        QCOMPARE(request.bundleRoots.constFirst(), u"/somewhere"_s);
        QCOMPARE(request.bundleRoots.size(), 2);
    }

    void aPrinterIsFoundByItsName()
    {
        m_line.printer = u"corvana-cl5"_s;
        QString error;
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(request.printers.value(wantedAmongFiles(request)).ppdPath, samplePpdPath());
    }

    void aPrinterThatIsNoFileIsLookedForAtAServer_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("printer");
        QTest::newRow("no printer at all") << QString() << QString();
        QTest::newRow("another name") << samplePpdPath() << u"office"_s;
        QTest::newRow("other case") << samplePpdPath() << u"Corvana-CL5"_s;
        QTest::newRow("URI") << samplePpdPath() << u"ipp://printer.example/ipp/print"_s;
    }
    void aPrinterThatIsNoFileIsLookedForAtAServer()
    {
        QFETCH(QString, ppd);
        QFETCH(QString, printer);
        m_line.ppd = ppd;
        m_line.printer = printer;
        QString error;
        const auto request = preparePrintRequest(m_line, &error);
        QVERIFY2(request, qPrintable(error));
        QCOMPARE(wantedAmongFiles(*request), -1);
        QCOMPARE(request->wantedPrinter, printer);
    }

    void theServerIsTheOneThatWasNamed()
    {
        QString error;
        qputenv("CUPS_SERVER", "usual.example");
        QVERIFY(!preparePrintRequest(m_line, &error)->serverWasNamed);
        m_line.server = u"print.example:8631"_s;
        const auto request = preparePrintRequest(m_line, &error);
        QVERIFY(request->serverWasNamed);
        QCOMPARE(request->server.host, u"print.example"_s);
        QCOMPARE(request->server.port, 8631);
        qunsetenv("CUPS_SERVER");
    }

    void aMissingDocumentIsTold()
    {
        m_line.documents = {u"missing.pdf"_s};
        QString error;
        QVERIFY(!preparePrintRequest(m_line, &error));
        QVERIFY2(error.contains(u"missing.pdf"_s), qPrintable(error));
    }

    // The window is there before a pipe is written, and what stands behind it keeps its place.
    void aWindowDoesNotWaitForAPipe()
    {
        QCOMPARE(::mkfifo("pipe", 0600), 0);
        writeFile(m_folder->filePath(u"more.txt"_s), "more\n");
        m_line.documents = {u"notes.v2.txt"_s, u"pipe"_s, u"more.txt"_s};
        QString error;
        QElapsedTimer time;
        time.start();
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(request.documents.size(), 1);
        QCOMPARE(request.toRead, (QStringList{u"pipe"_s, u"more.txt"_s}));
    }

    // The same of standard input. A file there is read at once, and nobody waits.
    void aWindowDoesNotWaitForStandardInput_data()
    {
        QTest::addColumn<bool>("isPipe");
        QTest::newRow("a pipe") << true;
        QTest::newRow("a file") << false;
    }
    void aWindowDoesNotWaitForStandardInput()
    {
        QFETCH(bool, isPipe);
        int ends[2];
        QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
        const int file = ::open("notes.v2.txt", O_RDONLY | O_CLOEXEC);
        const int input = ::dup(0);
        ::dup2(isPipe ? ends[0] : file, 0);
        m_line.documents = {u"-"_s, u"notes.v2.txt"_s};
        QString error;
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        ::dup2(input, 0);
        for (const int one : {ends[0], ends[1], file, input})
            ::close(one);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(request.toRead, isPipe ? m_line.documents : QStringList());
        QCOMPARE(request.documents.size(), isPipe ? 0 : 2);
    }

    // Where there is no window, or nothing can be known of a document later, it is waited for.
    void aPipeIsWaitedForWhereItCannotComeLater_data()
    {
        QTest::addColumn<QStringList>("documents");
        QTest::addColumn<bool>("isUnattended");
        QTest::addColumn<QString>("option");
        QTest::newRow("nobody looks on") << QStringList{u"pipe"_s} << true << QString();
        QTest::newRow("passed on as it is") << QStringList{u"pipe"_s} << false << u"raw"_s;
        QTest::newRow("in front of standard input")
            << QStringList{u"pipe"_s, u"-"_s} << true << QString();
    }
    void aPipeIsWaitedForWhereItCannotComeLater()
    {
        QFETCH(QStringList, documents);
        QFETCH(bool, isUnattended);
        QFETCH(QString, option);
        QCOMPARE(::mkfifo("pipe", 0600), 0);
        const int input = ::dup(0);
        const int given = ::open("notes.v2.txt", O_RDONLY | O_CLOEXEC);
        QCOMPARE(::dup2(given, 0), 0);
        std::thread writer([] {
            const int pipe = ::open("pipe", O_WRONLY | O_CLOEXEC);
            [[maybe_unused]] const ssize_t written = ::write(pipe, "words\n", 6);
            ::close(pipe);
        });
        m_line.documents = documents;
        m_line.noDialog = isUnattended;
        if (!option.isEmpty())
            m_line.options = {option};
        QString error;
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        const int released = ::open("pipe", O_RDONLY | O_NONBLOCK | O_CLOEXEC); // in any case
        writer.join();
        ::dup2(input, 0);
        for (const int one : {released, given, input})
            ::close(one);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(request.documents.size(), documents.size());
        QCOMPARE(request.documents.constFirst().title, u"pipe"_s);
        QCOMPARE(request.toRead, QStringList());
    }

    // libcups would read them in each thread, and never be done.
    void endlessSettingsOfCupsAreNamed_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("isTaken");
        for (const char *variable : {"HOME", "CUPS_SERVERROOT"}) {
            QTest::addRow("a pipe in %s", variable) << variable + u" pipe"_s << false;
            QTest::addRow("a device in %s", variable) << variable + u" device"_s << false;
            QTest::addRow("a large file in %s", variable) << variable + u" large"_s << false;
            QTest::addRow("a small file in %s", variable) << variable + u" small"_s << true;
        }
    }
    void endlessSettingsOfCupsAreNamed()
    {
        QFETCH(QString, kind);
        QFETCH(bool, isTaken);
        const QByteArray variable = kind.section(u' ', 0, 0).toLatin1();
        const QString folder = m_folder->filePath(variable == "HOME" ? u"home/.cups"_s : u"root"_s);
        QVERIFY(QDir().mkpath(folder));
        const QString path = folder + u"/client.conf"_s;
        const QString what = kind.section(u' ', 1);
        if (what == u"pipe"_s)
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else if (what == u"device"_s)
            QVERIFY(QFile::link(u"/dev/zero"_s, path));
        else
            writeFile(path, QByteArray("# nothing\n").repeated(what == u"large"_s ? 110'000 : 1));
        const Variable home("HOME", m_folder->filePath(u"home"_s).toUtf8());
        const Variable root("CUPS_SERVERROOT", m_folder->filePath(u"root"_s).toUtf8());
        QString error;
        QCOMPARE(preparePrintRequest(m_line, &error).has_value(), isTaken);
        QCOMPARE(error.contains(path + u" cannot be read to its end"_s), !isTaken);
    }

    void aSummaryNeedsNoDocument()
    {
        m_line.documents.clear();
        QString error;
        const PrintRequest request = preparePrintRequest(m_line, &error).value_or(PrintRequest());
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QVERIFY(request.documents.isEmpty());
        QVERIFY(request.output.isEmpty());
    }

    void aTicketHasTheSessionsOptionsAndTheAttributes()
    {
        ScriptedAlertPresenter presenter;
        QString error;
        const auto printer =
            openPrinter(printerWithItsFile({u"cl5"_s, u"CL"_s, samplePpdPath(), 5}),
                        builtBundleRoots(), presenter, &error);
        QVERIFY2(printer, qPrintable(error));
        printer->session->change(u"QXMediaType"_s, u"Thick"_s, PpdSession::Origin::Dialog);
        const JobTicket ticket = makeTicket(*printer, {{u"number-up"_s, u"2"_s}}, u"Title"_s, 4);
        QCOMPARE(ticket.title, u"Title"_s);
        QCOMPARE(ticket.copies, 4);
        QVERIFY(ticket.options.contains({u"QXMediaType"_s, u"Thick"_s}));
        QVERIFY(ticket.options.contains({u"number-up"_s, u"2"_s}));
    }
};

QTEST_MAIN(PrintRequestTest)

#include "print_request_test.moc"
