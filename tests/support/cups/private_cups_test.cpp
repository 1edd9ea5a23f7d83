#include <csignal>
#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include "tests/support/PpdBuilder.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr auto text = "text/plain";
/// What the server logs when it ends in good order.
constexpr auto goodbye = "Scheduler shutting down";
const QString queue = u"office"_s;

QByteArray sample()
{
    QFile file(corvana::test::sourceFile(u"tests/data/page.txt"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Argument of this program that makes it start a server, say its port and folder, and die.
constexpr auto dieWithServer = "--die-with-server";

int startServerAndDie()
{
    PrivateCups cups;
    cups.start();
    std::printf("%d %s\n", cups.port(), qPrintable(cups.folder()));
    std::fflush(stdout);
    return std::raise(SIGKILL);
}

} // namespace

class PrivateCupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        QVERIFY(m_folder.isValid());
        m_ppd = write(u"sample.ppd"_s, samplePpd(5));
        QVERIFY(!sample().isEmpty());
    }

    void init()
    {
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
    }

    void cleanup() { m_cups.reset(); }

    void aJobGoesThroughTheQueueToThePrinter()
    {
        m_cups->addQueue(queue, m_ppd);
        Client client(m_cups->server());
        const int id =
            client.print(queue, sample(), text, {{"QXMediaType", "Thick"}, {"copies", "2"}});
        QVERIFY2(id > 0, cupsLastErrorString());
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
        const QList<CapturedJob> captured = m_cups->capture(queue).jobs();
        QCOMPARE(captured.size(), 1);
        QVERIFY(captured.first().data.startsWith("%!PS"));
        QVERIFY(captured.first().data.contains("CorvanaOption(QXMediaType=Thick)"));
        QVERIFY(!captured.first().data.contains("CorvanaOption(QXMediaType=Plain)"));
        QCOMPARE(captured.first().id, id);
        QCOMPARE(captured.first().title, u"A job"_s);
        QVERIFY(captured.first().options.contains(u"QXMediaType=Thick"));
        QCOMPARE(captured.first().environment.value(u"PRINTER"_s), queue);
        QCOMPARE(captured.first().user, QString::fromUtf8(cupsUser()));
    }

    void aQueueSaysWhatTheAdministratorSays()
    {
        m_cups->addQueue(queue, m_ppd, {u"Büro <1>"_s, u"2nd floor"_s, {u"QXMediaType=Glossy"_s}});
        Client client(m_cups->server());
        QCOMPARE(client.queueValue(queue, "printer-info"), u"Büro <1>"_s);
        QCOMPARE(client.queueValue(queue, "printer-location"), u"2nd floor"_s);
        QCOMPARE(client.queueValue(queue, "printer-is-accepting-jobs"), u"true"_s);
        QCOMPARE(client.queueValue(queue, "printer-state"), u"idle"_s);
        const int id = client.print(queue, sample(), text);
        QVERIFY2(id > 0, cupsLastErrorString());
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
        QVERIFY(m_cups->capture(queue).jobs().value(0).data.contains(
            "CorvanaOption(QXMediaType=Glossy)"));
    }

    void aRawQueuePassesTheDataUnchanged()
    {
        m_cups->addRawQueue(queue);
        const QByteArray data = QByteArray("\0\1\xff%!", 5).repeated(100000);
        const int id = Client(m_cups->server()).print(queue, data, "application/octet-stream");
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
        QCOMPARE(m_cups->capture(queue).jobs().value(0).data, data);
    }

    void aClassPrintsOnAMember()
    {
        const QString all = u"all"_s;
        m_cups->addRawQueue(queue);
        m_cups->addClass(all, {queue});
        const int id = Client(m_cups->server()).print(all, sample(), text);
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
        QCOMPARE(m_cups->capture(queue).jobs().size(), 1);
        QCOMPARE(m_cups->jobs(all).size(), 1);
    }

    void queuesComeAndGoAndChange()
    {
        const QString other = u"other"_s;
        m_cups->addQueue(queue, m_ppd);
        m_cups->addQueue(other, m_ppd);
        Client client(m_cups->server());
        const QString model = client.queueValue(queue, "printer-make-and-model");
        QVERIFY(!model.isEmpty());
        m_cups->setPpd(queue, corvana::test::sourceFile(u"resources/ppd/corvana-ml3.ppd"_s));
        QVERIFY(client.queueValue(queue, "printer-make-and-model") != model);
        for (const QString &name : {other, queue}) {
            m_cups->setDefault(name);
            QCOMPARE(client.ask(IPP_OP_CUPS_GET_DEFAULT, queue), IPP_STATUS_OK);
            QCOMPARE(QString::fromUtf8(cupsGetDefault2(client.http())), name);
        }
        m_cups->removeQueue(queue);
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_ERROR_NOT_FOUND);
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, other), IPP_STATUS_OK);
    }

    void aStoppedQueueKeepsItsJobs()
    {
        m_cups->addRawQueue(queue);
        m_cups->stopQueue(queue, u"Kein Papier"_s);
        Client client(m_cups->server());
        QCOMPARE(client.queueValue(queue, "printer-state"), u"stopped"_s);
        QCOMPARE(client.queueValue(queue, "printer-state-message"), u"Kein Papier"_s);
        const int id = client.print(queue, sample(), text);
        QCOMPARE(m_cups->job(id).state, IPP_JSTATE_PENDING);
        m_cups->startQueue(queue);
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
    }

    void aQueueThatRejectsTakesNoJob()
    {
        m_cups->addRawQueue(queue);
        m_cups->rejectJobs(queue, u"Moved"_s);
        Client client(m_cups->server());
        QCOMPARE(client.queueValue(queue, "printer-is-accepting-jobs"), u"false"_s);
        QCOMPARE(client.print(queue, sample(), text), 0);
        QCOMPARE(client.status(), IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS);
        m_cups->acceptJobs(queue);
        QVERIFY(client.print(queue, sample(), text) > 0);
    }

    void howABackendEnds_data()
    {
        QTest::addColumn<BackendExit>("status");
        QTest::addColumn<ipp_jstate_t>("jobState");
        QTest::addColumn<QString>("queueState");
        QTest::newRow("well") << BackendExit::Ok << IPP_JSTATE_COMPLETED << "idle";
        QTest::newRow("failed") << BackendExit::Failed << IPP_JSTATE_ABORTED << "idle";
        QTest::newRow("wants a password") << BackendExit::AuthRequired << IPP_JSTATE_HELD << "idle";
        QTest::newRow("holds the job") << BackendExit::Hold << IPP_JSTATE_HELD << "idle";
        QTest::newRow("stops the queue") << BackendExit::Stop << IPP_JSTATE_PENDING << "stopped";
        QTest::newRow("cancels the job") << BackendExit::Cancel << IPP_JSTATE_CANCELED << "idle";
    }
    void howABackendEnds()
    {
        QFETCH(BackendExit, status);
        QFETCH(ipp_jstate_t, jobState);
        QFETCH(QString, queueState);
        CaptureDevice device = m_cups->capture(queue);
        m_cups->addRawQueue(queue, {.deviceUri = device.waitAtEnd().exitWith(status).uri()});
        Client client(m_cups->server());
        const int id = client.print(queue, sample(), text);
        QTRY_VERIFY(device.hasReached(id, u"end"_s));
        QCOMPARE(m_cups->job(id).state, IPP_JSTATE_PROCESSING);
        device.release(u"end"_s);
        QTRY_COMPARE(m_cups->job(id).state, jobState);
        QTRY_COMPARE(client.queueValue(queue, "printer-state"), queueState);
    }

    void aTestStepsThePrinter()
    {
        CaptureDevice device = m_cups->capture(queue);
        device.pages(4).waitAtStart().waitAtPages().report(u"STATE: +media-empty-warning"_s);
        m_cups->addRawQueue(queue, {.deviceUri = device.uri()});
        Client client(m_cups->server());
        const int id = client.print(queue, sample(), text);
        QTRY_VERIFY(device.hasReached(id, u"start"_s));
        QCOMPARE(device.begunJobs(), QList<int>{id});
        QVERIFY(device.jobs().isEmpty());
        QVERIFY(!device.hasReached(id, u"page-1"_s));
        device.release(u"start"_s);

        QTRY_COMPARE(client.jobValue(id, "job-media-progress"), u"25"_s);
        QTRY_VERIFY(device.hasReached(id, u"page-1"_s));
        QCOMPARE(device.jobs().size(), 1);
        QTRY_VERIFY(
            client.queueValue(queue, "printer-state-reasons").contains(u"media-empty-warning"));
        QVERIFY(!device.hasReached(id, u"page-2"_s));
        device.release(u"page-1"_s);
        QTRY_COMPARE(client.jobValue(id, "job-media-progress"), u"50"_s);
        device.release(u"all"_s);
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);

        device.withdrawReleases();
        const int next = client.print(queue, sample(), text);
        QTRY_VERIFY(device.hasReached(next, u"start"_s));
        m_cups->cancelJob(next);
        QTRY_COMPARE(m_cups->job(next).state, IPP_JSTATE_CANCELED);
        QCOMPARE(device.jobs().size(), 1);
    }

    void aFilterThatFailsStopsTheJob()
    {
        m_cups->addQueue(queue, write(u"failing.ppd"_s, withFailingFilter(samplePpd(5))));
        const int id = Client(m_cups->server()).print(queue, sample(), text);
        QVERIFY(id > 0);
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_STOPPED);
        QVERIFY(m_cups->errorLog().contains(u"This filter always fails."));
    }

    void aFilterThatIsMissingIsToldByTheQueue()
    {
        m_cups->addQueue(queue, write(u"missing.ppd"_s, withMissingFilter(samplePpd(5))));
        Client client(m_cups->server());
        QTRY_VERIFY(
            client.queueValue(queue, "printer-state-reasons").contains(u"cups-missing-filter"));
    }

    void queuesJobsAndPortOutlastARestart()
    {
        m_cups->addRawQueue(queue);
        const QString server = m_cups->server();
        const int id = Client(server).print(queue, sample(), text);
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
        m_cups->stop();
        QVERIFY(!m_cups->isRunning());
        QVERIFY(m_cups->errorLog().contains(QString::fromLatin1(goodbye)));
        QVERIFY(!Client(server).isConnected());
        m_cups->start();
        QCOMPARE(m_cups->server(), server);
        QVERIFY(Client(server).print(queue, sample(), text) > id);
        QCOMPARE(m_cups->jobs(queue).size(), 2);
    }

    void aServerCanBeKilledInTheMiddleOfAJob()
    {
        CaptureDevice device = m_cups->capture(queue);
        m_cups->addRawQueue(queue, {.deviceUri = device.waitAtEnd().uri()});
        Client client(m_cups->server());
        const int id = client.print(queue, sample(), text);
        QTRY_VERIFY(device.hasReached(id, u"end"_s));
        m_cups->kill();
        QVERIFY(!m_cups->isRunning());
        QVERIFY(!m_cups->errorLog().contains(QString::fromLatin1(goodbye)));
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue),
                 IPP_STATUS_ERROR_SERVICE_UNAVAILABLE);
        device.release(u"all"_s);
        m_cups->restart();
        QCOMPARE(Client(m_cups->server()).ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
    }

    void aServerCanBeReachedWithEncryption()
    {
        m_cups->addRawQueue(queue);
        Client client(m_cups->server(), HTTP_ENCRYPTION_REQUIRED);
        QVERIFY(client.isConnected());
        QVERIFY(httpIsEncrypted(client.http()));
        QVERIFY(client.print(queue, sample(), text) > 0);
    }

    void aServerCanInsistOnEncryption()
    {
        CupsSettings settings;
        settings.encryption = CupsSettings::Encryption::Always;
        m_cups = std::make_unique<PrivateCups>(settings);
        m_cups->start();
        m_cups->addRawQueue(queue);
        QVERIFY(m_cups->queueUri(queue).startsWith(u"ipps:"));
        QVERIFY(Client(m_cups->server(), HTTP_ENCRYPTION_ALWAYS).print(queue, sample(), text) > 0);
        QVERIFY(Client(m_cups->server(), HTTP_ENCRYPTION_NEVER).print(queue, sample(), text) == 0);
        QCOMPARE(m_cups->jobs(queue).size(), 1);
    }

    void aQueueTakesNoJobsOfAUser()
    {
        m_cups->addRawQueue(queue, {.users = u"deny:"_s + cupsUser()});
        Client client(m_cups->server());
        QCOMPARE(client.print(queue, sample(), text), 0);
        QCOMPARE(client.status(), IPP_STATUS_ERROR_NOT_AUTHORIZED);
    }

    void aPolicyAsksForAPassword()
    {
        CupsSettings settings;
        settings.authenticated = {IPP_OP_CREATE_JOB, IPP_OP_PRINT_JOB};
        m_cups = std::make_unique<PrivateCups>(settings);
        m_cups->start();
        m_cups->addRawQueue(queue);
        static int questions;
        questions = 0;
        cupsSetPasswordCB2(
            [](const char *, http_t *, const char *, const char *, void *) -> const char * {
                ++questions;
                return nullptr;
            },
            nullptr);
        Client client(m_cups->server());
        QCOMPARE(client.print(queue, sample(), text), 0);
        QCOMPARE(client.status(), IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED);
        QCOMPARE(questions, 1);
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
    }

    void whatCannotBeSetUpThrows()
    {
        QVERIFY_EXCEPTION_THROWN(m_cups->addQueue(queue, u"/nonexistent.ppd"_s),
                                 std::runtime_error);
        QVERIFY_EXCEPTION_THROWN(m_cups->stopQueue(u"none"_s), std::runtime_error);
        CupsSettings settings;
        settings.directives = "<Location /unfinished>\n";
        PrivateCups broken(settings);
        QVERIFY_EXCEPTION_THROWN(broken.start(), std::runtime_error);
    }

    void twoServersKeepOutOfEachOthersWay()
    {
        PrivateCups other;
        other.start();
        QVERIFY(other.server() != m_cups->server());
        m_cups->addRawQueue(queue);
        QCOMPARE(Client(other.server()).ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue),
                 IPP_STATUS_ERROR_NOT_FOUND);
    }

    void theServerEndsWithATestThatDies()
    {
        QProcess test;
        test.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(dieWithServer)});
        QVERIFY(test.waitForFinished());
        QCOMPARE(test.exitStatus(), QProcess::CrashExit);
        const QString line = QString::fromUtf8(test.readAllStandardOutput()).trimmed();
        const QString server = u"127.0.0.1:"_s + line.section(u' ', 0, 0);
        QVERIFY(server.section(u':', 1).toInt() > 0);
        QTRY_VERIFY(!Client(server).isConnected());
        QVERIFY(QDir(line.section(u' ', 1)).removeRecursively());
    }

private:
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir m_folder;
    QString m_ppd;
    std::unique_ptr<PrivateCups> m_cups;
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (application.arguments().contains(QString::fromLatin1(dieWithServer)))
        return startServerAndDie();
    PrivateCupsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "private_cups_test.moc"
