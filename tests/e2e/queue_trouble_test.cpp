#include <QFile>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"
#include "tests/support/cups/FaultyServer.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kInterrupted = 130; // the exit status that shells give to SIGINT

} // namespace

/// Runs without a window whose jobs wait, fail or are broken off: what the run says and ends with,
/// and what is left at the server.
class QueueTroubleTest : public QueueRuns
{
    Q_OBJECT

private Q_SLOTS:
    // Who can be asked

    void withoutATerminalNobodyIsAskedForAPassword_data()
    {
        QTest::addColumn<int>("operation");
        QTest::newRow("for the printer") << int(IPP_OP_GET_PRINTER_ATTRIBUTES);
        QTest::newRow("for the job") << int(IPP_OP_CREATE_JOB);
    }
    void withoutATerminalNobodyIsAskedForAPassword()
    {
        QFETCH(int, operation);
        m_cups->addQueue(u"office"_s, kPpd);
        FaultyServer between(m_cups->port());
        between.askForPassword(u"lisa"_s, u"right"_s, operation);
        const RunEnd end =
            m_runner->run({u"--server"_s, between.server(), u"-d"_s, u"office"_s, kText});
        QVERIFY2(end.status == 1, end.text().constData());
        QVERIFY2(end.err.contains(u"wants a user and a password"_s) &&
                     !end.err.contains(u"none was given"_s),
                 end.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
    }

    // Instructions of the panels

    void instructionsHoldTheJobAndTheNamedCommandReleasesIt_data()
    {
        QTest::addColumn<QStringList>("policy");
        QTest::addColumn<bool>("serverIsNamed");
        QTest::newRow("unasked") << QStringList() << false;
        QTest::newRow("asked for") << QStringList{u"--on-alert=hold"_s} << false;
        QTest::newRow("server of the command line") << QStringList() << true;
    }
    void instructionsHoldTheJobAndTheNamedCommandReleasesIt()
    {
        QFETCH(QStringList, policy);
        QFETCH(bool, serverIsNamed);
        m_cups->addQueue(u"office"_s, kPpd);
        QStringList arguments =
            policy + QStringList{u"-d"_s, u"office"_s, u"-o"_s, u"QXMediaType=Label"_s, kText};
        if (serverIsNamed) {
            arguments = QStringList{u"--server"_s, m_cups->server()} + arguments;
            m_runner->setVariable(u"CUPS_SERVER"_s, u"/nonexistent/cups.sock"_s);
        }
        const RunEnd end = m_runner->run(arguments);
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.err.contains(u"Open the back cover of the printer"_s), end.text().constData());
        const KnownJob job = onlyJob(u"office"_s);
        QCOMPARE(job.state, IPP_JSTATE_HELD);
        QVERIFY(m_cups->capture(u"office"_s).jobs().isEmpty());
        QVERIFY(!end.out.contains(u"Printed"_s));

        const QString command = end.out.section(u"Release it with: "_s, 1).trimmed();
        QVERIFY2(command.startsWith(u"lp "_s), end.text().constData());
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // The user's own, which names the server unless the command does.
        environment.insert(u"CUPS_SERVER"_s,
                           serverIsNamed ? u"/nonexistent/cups.sock"_s : m_cups->server());
        shell.setProcessEnvironment(environment);
        shell.start(u"sh"_s, {u"-c"_s, command});
        QVERIFY(shell.waitForFinished(kQueuePatience));
        QVERIFY2(shell.exitCode() == 0, shell.readAllStandardError().constData());
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->job(job.id).state, IPP_JSTATE_COMPLETED, kQueuePatience);
        QVERIFY(m_cups->capture(u"office"_s)
                    .jobs()
                    .value(0)
                    .data.contains(codeOf("QXMediaType=Label")));
    }

    void theReleaseCommandWorksForEveryName_data()
    {
        QTest::addColumn<QString>("queue");
        for (const char *name : {"2nd.floor", "büro", "100%", "a%20b", "a&b", "$HOME"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }
    void theReleaseCommandWorksForEveryName()
    {
        QFETCH(QString, queue);
        m_cups->addQueue(queue, kPpd);
        const RunEnd end = m_runner->run({u"-d"_s, queue, u"-o"_s, u"QXMediaType=Label"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"CUPS_SERVER"_s, m_cups->server());
        shell.setProcessEnvironment(environment);
        shell.start(u"sh"_s, {u"-c"_s, end.out.section(u"Release it with: "_s, 1).trimmed()});
        QVERIFY(shell.waitForFinished(kQueuePatience));
        QVERIFY2(shell.exitCode() == 0, (end.text() + shell.readAllStandardError()).constData());
        QTRY_COMPARE_WITH_TIMEOUT(onlyJob(queue).state, IPP_JSTATE_COMPLETED, kQueuePatience);
    }

    void aJobIsPrintedPastInstructionsWhenThatIsAskedFor()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const CapturedJob job =
            printed(u"office"_s, {u"--on-alert=print"_s, u"-o"_s, u"QXMediaType=Label"_s, kText});
        QVERIFY(job.data.contains(codeOf("QXMediaType=Label")));
        QCOMPARE(onlyJob(u"office"_s).state, IPP_JSTATE_COMPLETED);
    }

    void aJobWithInstructionsIsRefusedWhenThatIsAskedFor()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end = m_runner->run(
            {u"-d"_s, u"office"_s, u"--on-alert=refuse"_s, u"-o"_s, u"QXMediaType=Label"_s, kText});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"Open the back cover of the printer"_s), end.text().constData());
        QVERIFY2(end.err.endsWith(u"Nothing was printed.\n"_s), end.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
    }

    // Queues that do not print

    void aStoppedQueueIsWaitedForAndSaysWhy()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->stopQueue(u"office"_s, u"Toner is ordered"_s);
        const auto run = m_runner->start({u"-d"_s, u"office"_s, kText});
        QTRY_VERIFY_WITH_TIMEOUT(run->err().contains(u"The printer is stopped: Toner is ordered"_s),
                                 kQueuePatience);
        QVERIFY(run->isRunning());
        m_cups->startQueue(u"office"_s);
        const RunEnd end = run->wait();
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(end.out, u"Printed on “office” as job office-1.\n"_s);
        QCOMPARE(m_cups->capture(u"office"_s).jobs().size(), 1);
    }

    void aStoppedQueueTakesAJobThatNobodyWaitsFor()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->stopQueue(u"office"_s);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"--no-wait"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(
            end.out.startsWith(u"Job office-1 waits in the queue “office”, which is stopped."_s),
            end.text().constData());
        m_cups->startQueue(u"office"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->job(1).state, IPP_JSTATE_COMPLETED, kQueuePatience);
    }

    void whatCannotBePrintedIsSaid_data()
    {
        enum Cause { Rejecting, Unknown, Deleted, ServerGone };
        QTest::addColumn<int>("cause");
        QTest::addColumn<QString>("message");
        QTest::newRow("a queue that takes no jobs")
            << int(Rejecting) << u"The queue “office” takes no jobs at the moment."_s;
        QTest::newRow("a queue that was never there")
            << int(Unknown) << u"There is no printer “office” at “127.0.0.1:"_s;
        QTest::newRow("a queue that is not there any more")
            << int(Deleted) << u"There is no printer “office” at “127.0.0.1:"_s;
        QTest::newRow("a server that is not there any more")
            << int(ServerGone)
            << u"cannot be reached. So the printer “office” could not be asked for."_s;
    }
    void whatCannotBePrintedIsSaid()
    {
        enum Cause { Rejecting, Unknown, Deleted, ServerGone };
        QFETCH(int, cause);
        QFETCH(QString, message);
        // One that has been used is known from then on, and must not be taken for being there.
        int earlier = 0;
        if (cause != Unknown) {
            m_cups->addQueue(u"office"_s, kPpd);
            printed(u"office"_s, {kText});
            earlier = 1;
        }
        if (cause == Rejecting)
            m_cups->rejectJobs(u"office"_s);
        else if (cause == Deleted)
            m_cups->removeQueue(u"office"_s);
        else if (cause == ServerGone)
            m_cups->stop();
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, kText});
        QCOMPARE(end.status, 1);
        QCOMPARE(end.out, QString());
        QVERIFY2(end.err.contains(message), end.text().constData());
        QCOMPARE(end.err.count(u"Nothing was printed."_s), 1);
        QCOMPARE(m_cups->capture(u"office"_s).jobs().size(), earlier);
    }

    void aServerThatNeverAnswersEndsTheRunInTime_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("printing") << QStringList{u"-d"_s, u"office"_s, kText};
        QTest::newRow("printing to the default") << QStringList{kText};
        QTest::newRow("listing") << QStringList{u"--list-printers"_s};
    }
    void aServerThatNeverAnswersEndsTheRunInTime()
    {
        QFETCH(QStringList, arguments);
        const FaultyServer server(0, FaultyServer::Manner::NeverAnswers);
        m_runner->setVariable(u"CUPS_SERVER"_s, server.server());
        m_runner->setVariable(u"CORVANA_PRINT_PATIENCE"_s, u"1"_s);
        const RunEnd end = m_runner->run(arguments);
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"does not answer"_s), end.text().constData());
        QVERIFY(server.acceptedConnections() > 0);
    }

    void aServerThatFallsSilentBehindTheDocumentIsNotSaidToHavePrinted()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        FaultyServer server(m_cups->port());
        m_runner->setVariable(u"CUPS_SERVER"_s, server.server());
        m_runner->setVariable(u"CORVANA_PRINT_PATIENCE"_s, u"1"_s);
        server.swallowResponse(IPP_OP_SEND_DOCUMENT);
        server.swallowResponse(IPP_OP_GET_JOB_ATTRIBUTES);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, kText});
        QCOMPARE(end.status, 3);
        QVERIFY(!end.out.contains(u"Printed"_s));
        QVERIFY2(end.err.contains(u"job office-1 may be printed or not"_s), end.text().constData());
    }

    void aJobWhoseNumberNeverComesIsTakenBack_data()
    {
        QTest::addColumn<bool>("isSilent");
        QTest::newRow("the connection is cut") << false;
        QTest::newRow("the server falls silent") << true;
    }
    void aJobWhoseNumberNeverComesIsTakenBack()
    {
        QFETCH(bool, isSilent);
        m_cups->addQueue(u"office"_s, kPpd);
        FaultyServer server(m_cups->port());
        m_runner->setVariable(u"CUPS_SERVER"_s, server.server());
        m_runner->setVariable(u"CORVANA_PRINT_PATIENCE"_s, u"1"_s);
        if (isSilent)
            server.swallowResponse(IPP_OP_CREATE_JOB);
        else
            server.closeBeforeResponse(IPP_OP_CREATE_JOB);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, kText});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.endsWith(u" Job office-1 was canceled; nothing was printed.\n"_s),
                 end.text().constData());
        QCOMPARE(m_cups->jobs().size(), 1);
        QCOMPARE(m_cups->job(1).state, IPP_JSTATE_CANCELED);
        QVERIFY(m_cups->capture(u"office"_s).jobs().isEmpty());
    }

    // Ctrl+C

    void anInterruptedJobIsGoneFromTheServer_data()
    {
        enum Stage { Asking, Creating, Sending, Sent, Waiting, Printing };
        QTest::addColumn<int>("stage");
        QTest::newRow("while the server is asked for the printer") << int(Asking);
        QTest::newRow("while the job is made") << int(Creating);
        QTest::newRow("in the midst of the document") << int(Sending);
        QTest::newRow("behind the document") << int(Sent);
        QTest::newRow("while it waits in the queue") << int(Waiting);
        QTest::newRow("while it is printed") << int(Printing);
    }
    void anInterruptedJobIsGoneFromTheServer()
    {
        enum Stage { Asking, Creating, Sending, Sent, Waiting, Printing };
        QFETCH(int, stage);
        m_cups->addQueue(u"office"_s, kPpd,
                         {.deviceUri = m_cups->capture(u"office"_s).waitAtStart().uri()});
        FaultyServer server(m_cups->port());
        m_runner->setVariable(u"CUPS_SERVER"_s, server.server());
        const CaptureDevice device = m_cups->capture(u"office"_s);
        QString document = kText;
        switch (stage) {
        case Asking:
            server.delayResponse(IPP_OP_GET_PRINTER_ATTRIBUTES);
            break;
        case Creating:
            server.delayResponse(IPP_OP_CREATE_JOB);
            break;
        case Sending: {
            // More than sockets hold, without taking room on a disk.
            document = m_runner->filePath(u"large.ps"_s);
            QFile file(document);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("%!PS-Adobe-3.0\n");
            QVERIFY(file.resize(qint64(64) << 20));
            server.stallInDocument(1 << 20);
            break;
        }
        case Sent:
            server.delayResponse(IPP_OP_SEND_DOCUMENT);
            break;
        case Waiting:
            m_cups->stopQueue(u"office"_s);
            break;
        default:
            break;
        }
        const auto run = m_runner->start({u"-d"_s, u"office"_s, document});
        if (stage == Waiting)
            QTRY_VERIFY_WITH_TIMEOUT(run->err().contains(u"stopped"_s), kQueuePatience);
        else if (stage == Printing)
            QTRY_VERIFY_WITH_TIMEOUT(device.hasReached(1, u"start"_s), kQueuePatience);
        else
            QTRY_VERIFY_WITH_TIMEOUT(server.faultsMade() > 0, kQueuePatience);
        QVERIFY(run->isRunning());
        run->interrupt();
        const RunEnd end = run->wait();
        QVERIFY2(end.status == kInterrupted, end.text().constData());
        QVERIFY2(!(end.out + end.err).contains(u"Printed"_s), end.text().constData());
        for (const KnownJob &job : m_cups->jobs())
            QVERIFY2(job.state == IPP_JSTATE_CANCELED,
                     (end.text() + "state " + QByteArray::number(job.state)).constData());
        QCOMPARE(m_cups->jobs().size(), stage == Asking ? 0 : 1);
        device.release(u"all"_s);
        m_cups->startQueue(u"office"_s);
        QVERIFY(device.jobs().isEmpty());
    }

    // What becomes of it at the printer

    void aJobThatThePrinterGivesUpIsAFailure_data()
    {
        QTest::addColumn<int>("exit");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("failed") << int(BackendExit::Failed) << 1 << u"Job office-1 failed"_s;
        QTest::newRow("canceled at the printer")
            << int(BackendExit::Cancel) << 1 << u"Job office-1 was canceled at the printer"_s;
        QTest::newRow("held by the printer")
            << int(BackendExit::Hold) << 0 << u"Job office-1 is held in the queue"_s;
    }
    void aJobThatThePrinterGivesUpIsAFailure()
    {
        QFETCH(int, exit);
        QFETCH(int, status);
        QFETCH(QString, message);
        const QString uri =
            m_cups->capture(u"office"_s).exitWith(static_cast<BackendExit>(exit)).uri();
        m_cups->addQueue(u"office"_s, kPpd, {.deviceUri = uri});
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, kText});
        QVERIFY2(end.status == status, end.text().constData());
        QVERIFY2((status == 0 ? end.out : end.err).contains(message), end.text().constData());
        QVERIFY(!(end.out + end.err).contains(u"Printed on"_s));
    }
};

QTEST_GUILESS_MAIN(QueueTroubleTest)

#include "queue_trouble_test.moc"
