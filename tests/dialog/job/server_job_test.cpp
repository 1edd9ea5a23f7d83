#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/ServerJob.h"
#include "tests/dialog/job/JobServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = JobOutcome::Kind;

namespace {

constexpr auto kDay = 1000000000; // when the PPD was changed last

} // namespace

/// What becomes of a job whatever its server says, and that it is told as it is.
class ServerJobTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_server = std::make_unique<JobServer>();
        QFile file(m_folder.filePath(u"document.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("Hello\n");
        m_request = {};
        m_request.server.address = {u"127.0.0.1"_s, m_server->port(), HTTP_ENCRYPTION_IF_REQUESTED};
        m_request.server.patience = {10s, 10s};
        m_request.server.mayAsk = true;
        m_request.server.credentials = std::make_shared<CredentialStore>();
        m_request.printer.origin = PrinterOrigin::Queue;
        m_request.printer.name = u"office"_s;
        m_request.printer.uri = u"ipp://localhost/printers/office"_s;
        m_request.documents = {{file.fileName(), u"text/plain"_s, u"document.txt"_s}};
        m_request.ticket = {u"document.txt"_s, 1, {{u"media"_s, u"A4"_s}}};
    }

    void printedIsWhatTheServerCallsSo_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<Kind>("kind");
        QTest::newRow("completed") << int(IPP_JSTATE_COMPLETED) << Kind::Printed;
        QTest::newRow("canceled") << int(IPP_JSTATE_CANCELED) << Kind::Canceled;
        QTest::newRow("aborted") << int(IPP_JSTATE_ABORTED) << Kind::Failed;
        QTest::newRow("stopped") << int(IPP_JSTATE_STOPPED) << Kind::Stopped;
        QTest::newRow("held") << int(IPP_JSTATE_HELD) << Kind::InQueue;
    }
    void printedIsWhatTheServerCallsSo()
    {
        QFETCH(int, state);
        QFETCH(Kind, kind);
        m_server->say({{IPP_JSTATE_PENDING}, {IPP_JSTATE_PROCESSING}, {state}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(outcome.job, kJob);
        QVERIFY2(outcome.text.contains(u"office-8"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

    void anEarlierTryIsNotRepeatedByAccident_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("documents");
        QTest::addColumn<int>("status");
        QTest::addColumn<Kind>("kind");
        const auto row = [](const char *name, int state, int documents, int status, Kind kind) {
            QTest::newRow(name) << state << documents << status << kind;
        };
        row("printed", IPP_JSTATE_COMPLETED, 1, IPP_STATUS_OK, Kind::AlreadyThere);
        row("waits", IPP_JSTATE_PENDING, 1, IPP_STATUS_OK, Kind::AlreadyThere);
        row("is printed", IPP_JSTATE_PROCESSING, 1, IPP_STATUS_OK, Kind::AlreadyThere);
        row("is held", IPP_JSTATE_HELD, 1, IPP_STATUS_OK, Kind::AlreadyThere);
        row("waits with who knows what", IPP_JSTATE_PENDING, -1, IPP_STATUS_OK, Kind::AlreadyThere);
        row("has no document", IPP_JSTATE_HELD, 0, IPP_STATUS_OK, Kind::Printed);
        row("was canceled", IPP_JSTATE_CANCELED, 1, IPP_STATUS_OK, Kind::Printed);
        row("was given up", IPP_JSTATE_ABORTED, 1, IPP_STATUS_OK, Kind::Printed);
        row("is not known", 0, 0, IPP_STATUS_ERROR_NOT_FOUND, Kind::Printed);
        row("nobody says", 0, 0, IPP_STATUS_ERROR_BUSY, Kind::Failed);
    }
    void anEarlierTryIsNotRepeatedByAccident()
    {
        QFETCH(int, state);
        QFETCH(int, documents);
        QFETCH(int, status);
        QFETCH(Kind, kind);
        m_server->sayOfEarlierJob({state, documents, static_cast<ipp_status_t>(status)});
        m_request.earlierJob = kEarlierJob;
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        const bool isNew = kind == Kind::Printed;
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), isNew ? 1 : 0);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), isNew ? 1 : 0);
        if (kind == Kind::AlreadyThere)
            QCOMPARE(outcome.job, kEarlierJob);
        if (!isNew)
            QVERIFY2(outcome.text.contains(u'7'), qPrintable(outcome.text));
    }

    void aPrinterWhoseOptionsAreOthersByNowGetsNothing_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("queueIsThere");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("words");
        const QString changed = u"have changed"_s;
        QTest::newRow("the same") << 304 << true << Kind::Printed << QString();
        QTest::newRow("another PPD") << 200 << true << Kind::PrinterChanged << changed;
        QTest::newRow("none any more") << 404 << true << Kind::PrinterChanged << changed;
        QTest::newRow("no queue any more") << 404 << false << Kind::Failed << u"not there"_s;
        QTest::newRow("not to be found out") << 403 << true << Kind::Failed << u"not allow"_s;
    }
    void aPrinterWhoseOptionsAreOthersByNowGetsNothing()
    {
        QFETCH(int, status);
        QFETCH(bool, queueIsThere);
        QFETCH(Kind, kind);
        QFETCH(QString, words);
        m_server->setPpdStatus(status);
        if (!queueIsThere)
            m_server->forgetTheQueue();
        m_request.ppdLastModified = kDay;
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), kind == Kind::Printed ? 1 : 0);
        if (kind != Kind::Printed)
            QVERIFY2(outcome.text.contains(u"Nothing was printed"_s), qPrintable(outcome.text));
        QVERIFY2(outcome.text.contains(words), qPrintable(outcome.text));
    }

    void forAnUnchangedPpdTheQueueIsAskedNothingElse()
    {
        m_server->setPpdStatus(304);
        m_request.ppdLastModified = kDay;
        QCOMPARE(print().kind, Kind::Printed);
        QCOMPARE(m_server->count(IPP_OP_GET_PRINTER_ATTRIBUTES), 0);
    }

    void aJobWhoseNumberNeverCameIsTakenBack_data()
    {
        using Creation = JobServer::Creation;
        QTest::addColumn<Creation>("creation");
        QTest::addColumn<int>("looked");
        QTest::addColumn<int>("canceled");
        QTest::addColumn<QString>("words");
        const QString tookBack = u"Job office-8 was canceled; nothing was printed."_s;
        const QString nothing = u"Nothing was printed."_s;
        QTest::newRow("made, and its answer lost")
            << Creation::LostAndListed << 1 << 1 << u"broke the connection. "_s + tookBack;
        QTest::newRow("made, and its number left out")
            << Creation::Numberless << 1 << 1 << u"which job it has made. "_s + tookBack;
        QTest::newRow("not made") << Creation::Lost << 1 << 0
                                  << u"broke the connection. "_s + nothing;
        QTest::newRow("nobody says") << Creation::LostAndUnlistable << 1 << 0
                                     << u"a job without a document may be at the print server"_s;
        QTest::newRow("refused") << Creation::Refused << 0 << 0 << nothing;
    }
    void aJobWhoseNumberNeverCameIsTakenBack()
    {
        QFETCH(JobServer::Creation, creation);
        QFETCH(int, looked);
        QFETCH(int, canceled);
        QFETCH(QString, words);
        m_server->setCreation(creation);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(words), qPrintable(outcome.text));
        QCOMPARE(outcome.job, canceled > 0 ? kJob : 0);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_GET_JOBS), looked);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), canceled);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 0);
        if (canceled > 0)
            QCOMPARE(m_server->requests().constLast().value("job-id"), QString::number(kJob));
    }

    void nobodyIsAskedForAPasswordToLookForAJob()
    {
        int asked = 0;
        m_request.server.credentials->setQuestioner(
            [&](const CredentialsQuestion &, const auto &answer) {
                ++asked;
                answer(std::nullopt);
            });
        m_server->setCreation(JobServer::Creation::LostAndGuarded);
        const JobOutcome outcome = print();
        QCOMPARE(asked, 0);
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(u"could not be looked for"_s), qPrintable(outcome.text));
    }

    void aServerThatWasNeverReachedIsNotSearchedForAJob()
    {
        m_request.server.address.port = 1; // nobody's
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(u"cannot be reached"_s), qPrintable(outcome.text));
        QVERIFY2(outcome.text.endsWith(u" Nothing was printed."_s), qPrintable(outcome.text));
    }

    void oneAnswerThatDoesNotComeIsAskedForAgain()
    {
        m_server->say({{IPP_JSTATE_PROCESSING},
                       {IPP_JSTATE_PROCESSING},
                       {0, -1, IPP_STATUS_OK, true},
                       {0, -1, IPP_STATUS_OK, true},
                       {IPP_JSTATE_COMPLETED}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Printed);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
    }

    void aJobThatIsLostSightOfIsNotCalledPrinted_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("hangsUp");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("words");
        QTest::newRow("no record is kept")
            << int(IPP_STATUS_ERROR_NOT_FOUND) << false << Kind::InQueue << u"has left the queue"_s;
        QTest::newRow("the server is gone") << 0 << true << Kind::Unknown << u"is not known"_s;
        QTest::newRow("the server refuses")
            << int(IPP_STATUS_ERROR_NOT_AUTHORIZED) << false << Kind::Unknown << u"is not known"_s;
    }
    void aJobThatIsLostSightOfIsNotCalledPrinted()
    {
        QFETCH(int, status);
        QFETCH(bool, hangsUp);
        QFETCH(Kind, kind);
        QFETCH(QString, words);
        m_request.server.patience = {1s, 1s};
        m_server->say({{IPP_JSTATE_PROCESSING},
                       {IPP_JSTATE_PROCESSING},
                       {0, -1, static_cast<ipp_status_t>(status), hangsUp}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QVERIFY2(outcome.text.contains(words), qPrintable(outcome.text));
        QVERIFY(outcome.text.contains(u"office-8"_s));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

    void anAnswerThatIsLostIsFoundOut_data()
    {
        QTest::addColumn<QList<SaidOfJob>>("states");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<int>("canceled");
        const SaidOfJob gone{0, -1, IPP_STATUS_OK, true};
        const SaidOfJob notFound{0, -1, IPP_STATUS_ERROR_NOT_FOUND};
        const auto row = [](const char *name, const QList<SaidOfJob> &states, Kind kind,
                            int canceled) { QTest::newRow(name) << states << kind << canceled; };
        row("printed meanwhile", {{IPP_JSTATE_COMPLETED}}, Kind::Printed, 0);
        row("will be printed", {{IPP_JSTATE_PENDING}, {IPP_JSTATE_COMPLETED}}, Kind::Printed, 0);
        row("back at the third try", {gone, gone, {IPP_JSTATE_COMPLETED}}, Kind::Printed, 0);
        row("came without its document", {{IPP_JSTATE_HELD, 0}}, Kind::Failed, 1);
        row("is not known", {notFound}, Kind::Failed, 0);
        row("nobody says", {gone}, Kind::Unknown, 0);
    }
    void anAnswerThatIsLostIsFoundOut()
    {
        QFETCH(QList<SaidOfJob>, states);
        QFETCH(Kind, kind);
        QFETCH(int, canceled);
        m_server->loseTheAnswerToTheDocument();
        m_server->say(states);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(outcome.job, kJob);
        QVERIFY2(outcome.text.contains(u"office-8"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), canceled);
    }

    void whoLetsGoOfAJobLeavesItInTheQueue()
    {
        m_server->say({{IPP_JSTATE_PROCESSING}});
        ServerJob job(m_request);
        const QSignalSpy finished(&job, &Job::finished);
        job.letGo(); // nothing to let go of
        job.start();
        job.letGo(); // not handed over yet
        QVERIFY(!job.isHandedOver());
        QTRY_VERIFY(job.isHandedOver());
        QCOMPARE(finished.size(), 0);
        job.letGo();
        job.letGo();
        QTRY_COMPARE(finished.size(), 1);
        const auto outcome = finished.constFirst().constFirst().value<JobOutcome>();
        QCOMPARE(outcome.kind, Kind::InQueue);
        QCOMPARE(outcome.job, kJob);
        QVERIFY(outcome.text.contains(u"office-8"_s));
        QVERIFY(!job.isCanceled());
        job.cancel(); // too late
        QVERIFY(!job.isCanceled());
        QTRY_VERIFY(!m_server->isInUse());
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

    void aCanceledJobIsTakenBack_data()
    {
        QTest::addColumn<bool>("cancels");
        QTest::addColumn<int>("state"); // after that
        QTest::addColumn<Kind>("kind");
        QTest::newRow("in time") << true << int(IPP_JSTATE_CANCELED) << Kind::Canceled;
        QTest::newRow("too late") << false << int(IPP_JSTATE_COMPLETED) << Kind::Printed;
        QTest::newRow("not allowed") << false << int(IPP_JSTATE_PROCESSING) << Kind::Unknown;
    }
    void aCanceledJobIsTakenBack()
    {
        QFETCH(bool, cancels);
        QFETCH(int, state);
        QFETCH(Kind, kind);
        m_server->say({{IPP_JSTATE_PROCESSING}});
        if (!cancels)
            m_server->refuseToCancel();
        m_server->sayAfterCancel({state});
        ServerJob job(m_request);
        const QSignalSpy finished(&job, &Job::finished);
        job.start();
        QTRY_VERIFY(job.isHandedOver());
        job.cancel();
        job.cancel();
        QVERIFY(job.isCanceled());
        const JobOutcome outcome = job.wait();
        QCOMPARE(outcome.kind, kind);
        QVERIFY2(outcome.text.contains(u"office-8"_s), qPrintable(outcome.text));
        QCOMPARE(finished.size(), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
    }

    void aJobThatIsCanceledInAWindowThatGoesIsTakenBackAllTheSame()
    {
        m_server->say({{IPP_JSTATE_PROCESSING}});
        auto job = std::make_unique<ServerJob>(m_request);
        job->start();
        QTRY_VERIFY(job->isHandedOver());
        job->cancel();
        job.reset();
        QTRY_VERIFY(!m_server->isInUse());
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 1);
    }

    void aJobThatIsNotFollowedIsHandedOverAndNoMore()
    {
        m_server->say({{IPP_JSTATE_PENDING}});
        m_request.follow = false;
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::InQueue);
        QVERIFY(outcome.isDone());
        QVERIFY(outcome.text.contains(u"office-8"_s));
    }

    void whatCannotBeSentAsksNobody()
    {
        m_request.ticket.options += {u"QXName"_s, QString(300, u'x')};
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY(outcome.text.contains(u"QXName"_s));
        QVERIFY(m_server->requests().isEmpty());
    }

    void aDocumentThatIsGoneTakesItsJobBack()
    {
        QVERIFY(QFile::remove(m_request.documents.constFirst().path));
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(u"document.txt"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 0);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), m_server->count(IPP_OP_CREATE_JOB));
    }

    void thePasswordOfTheDeviceIsAskedForOnce_data()
    {
        QTest::addColumn<bool>("given");
        QTest::newRow("given") << true;
        QTest::newRow("not given") << false;
    }
    void thePasswordOfTheDeviceIsAskedForOnce()
    {
        QFETCH(bool, given);
        m_request.printer.authInfo = {u"username"_s, u"password"_s};
        int asked = 0;
        m_request.server.credentials->setQuestioner(
            [&](const CredentialsQuestion &question, const auto &answer) {
                ++asked;
                QVERIFY(question.forDevice);
                answer(given ? std::optional(Credentials{u"lisa"_s, u"secret"_s}) : std::nullopt);
            });
        const JobOutcome outcome = print();
        QCOMPARE(asked, 1);
        QCOMPARE(outcome.kind, given ? Kind::Printed : Kind::Failed);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), given ? 1 : 0);
        QVERIFY(!outcome.text.contains(u"secret"_s));
        QStringList sent;
        for (const auto &request : m_server->requests())
            sent += request.values("auth-info");
        QCOMPARE(sent, given ? (QStringList{u"lisa"_s, u"secret"_s}) : QStringList());
    }

    void aJobWhoseWindowIsGoneStaysInTheQueue()
    {
        m_server->say({{IPP_JSTATE_PROCESSING}});
        auto job = std::make_unique<ServerJob>(m_request);
        job->start();
        QTRY_VERIFY(job->isHandedOver());
        job.reset();
        QTRY_VERIFY(!m_server->isInUse());
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

private:
    JobOutcome print()
    {
        ServerJob job(m_request);
        job.start();
        return job.wait();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<JobServer> m_server;
    ServerJobRequest m_request;
};

QTEST_GUILESS_MAIN(ServerJobTest)
#include "server_job_test.moc"
