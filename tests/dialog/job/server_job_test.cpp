#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "tests/dialog/job/ServerJobScene.h"
#include "tests/dialog/server/WorkerThread.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

struct EarlierTry
{
    const char *name;
    SaidOfJob said;
    Kind kind;
};
constexpr EarlierTry kEarlierTries[] = {
    {"printed", {IPP_JSTATE_COMPLETED, 1}, Kind::AlreadyThere},
    {"waits", {IPP_JSTATE_PENDING, 1}, Kind::AlreadyThere},
    {"is printed", {IPP_JSTATE_PROCESSING, 1}, Kind::AlreadyThere},
    {"is held", {IPP_JSTATE_HELD, 1}, Kind::AlreadyThere},
    {"waits with who knows what", {IPP_JSTATE_PENDING, -1}, Kind::AlreadyThere},
    {"has no document", {IPP_JSTATE_HELD, 0}, Kind::Printed},
    {"was canceled", {IPP_JSTATE_CANCELED, 1}, Kind::Printed},
    {"was given up", {IPP_JSTATE_ABORTED, 1}, Kind::Printed},
    {"is not known", {0, 0, IPP_STATUS_ERROR_NOT_FOUND}, Kind::Printed},
    {"nobody says", {0, 0, IPP_STATUS_ERROR_BUSY}, Kind::Failed},
};

// How a server answers the question for the PPD.
struct NewOptions
{
    const char *name;
    const char *opened; // null: one that was written because the queue had none
    int status;
    bool queueIsThere;
    Kind kind;
    const char *words;
};
constexpr NewOptions kNewOptions[] = {
    {"the same", kServersPpd, 200, true, Kind::Printed, ""},
    {"another PPD", "*PPD-Adobe: \"4.2\"\n", 200, true, Kind::PrinterChanged, "have changed"},
    {"none any more", kServersPpd, 404, true, Kind::PrinterChanged, "have changed"},
    {"no queue any more", kServersPpd, 404, false, Kind::Refused, "not there"},
    {"not to be found out", kServersPpd, 403, true, Kind::Refused, "not allow"},
    {"not said, because it has not changed", kServersPpd, 304, true, Kind::Failed, ""},
    {"none, as before", nullptr, 404, true, Kind::Printed, ""},
    {"one where there was none", nullptr, 200, true, Kind::PrinterChanged, "have changed"},
};

struct Cancellation
{
    const char *name;
    bool cancels; ///< the server
    int state;    ///< after that
    Kind kind;
};
constexpr Cancellation kCancellations[] = {
    {"in time", true, IPP_JSTATE_CANCELED, Kind::Canceled},
    {"too late", false, IPP_JSTATE_COMPLETED, Kind::Printed},
    {"not allowed", false, IPP_JSTATE_PROCESSING, Kind::Unknown},
};

} // namespace

/// What becomes of a job whatever its server says, and that it is told as it is.
class ServerJobTest : public QObject, private ServerJobScene
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }

    void printedIsWhatTheServerCallsSo_data() { addRows(kEndsOfJobs); }
    void printedIsWhatTheServerCallsSo()
    {
        const auto &[name, state, kind] = currentRow(kEndsOfJobs);
        m_server->say({{IPP_JSTATE_PENDING}, {IPP_JSTATE_PROCESSING}, {state}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(outcome.job, kJob);
        QVERIFY2(outcome.text.contains(u"office-8"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

    void aStateThatIsNoneIsSaidAsWhatTheServerCallsIt()
    {
        m_server->say({{IPP_JSTATE_PROCESSING}, {99}});
        QCOMPARE(print().text, u"Job office-8 was handed over completely. The print server gives "
                               "job office-8 the state 99, which is not known. So whether it has "
                               "been printed is not known."_s);
    }

    void aJobWhosePagesNobodyCountedIsSentAndNeverPrinted()
    {
        m_request.mayBeEmpty = true;
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Sent);
        QVERIFY(outcome.isDone());
        QVERIFY2(outcome.text.startsWith(u"Sent to “office” as job office-8."_s),
                 qPrintable(outcome.text));
        m_server->say({{IPP_JSTATE_ABORTED}});
        QCOMPARE(print().kind, Kind::Failed);
    }

    void anEarlierTryIsNotRepeatedByAccident_data() { addRows(kEarlierTries); }
    void anEarlierTryIsNotRepeatedByAccident()
    {
        const auto &[name, said, kind] = currentRow(kEarlierTries);
        m_server->sayOfEarlierJob(said);
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

    void aPrinterWhoseOptionsAreOthersByNowGetsNothing_data() { addRows(kNewOptions); }
    void aPrinterWhoseOptionsAreOthersByNowGetsNothing()
    {
        const auto &[name, opened, status, queueIsThere, kind, words] = currentRow(kNewOptions);
        m_server->setPpdStatus(status);
        if (!queueIsThere)
            m_server->forgetTheQueue();
        QString error;
        m_request.ppd = opened ? temporaryPpd(opened, &error) : writtenPpd(kServersPpd, &error);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), kind == Kind::Printed ? 1 : 0);
        if (kind != Kind::Printed)
            QVERIFY2(outcome.text.contains(u"Nothing was printed"_s), qPrintable(outcome.text));
        QVERIFY2(outcome.text.contains(QString::fromUtf8(words)), qPrintable(outcome.text));
    }

    void forAPpdThatIsTheSameTheQueueIsAskedNothingElse()
    {
        m_server->setPpdStatus(200);
        QString error;
        m_request.ppd = temporaryPpd(kServersPpd, &error);
        QCOMPARE(print().kind, Kind::Printed);
        QCOMPARE(m_server->count(IPP_OP_GET_PRINTER_ATTRIBUTES), 0);
    }

    void theReasonOfAQueueThatTakesNoJobsIsSaid()
    {
        m_server->setCreation(JobServer::Creation::NotAccepted);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Refused);
        QCOMPARE(outcome.text, u"The queue “office” takes no jobs at the moment: Toner is being "
                               "changed. Nothing was printed."_s);
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

    void aCanceledJobIsTakenBack_data() { addRows(kCancellations); }
    void aCanceledJobIsTakenBack()
    {
        const auto &[name, cancels, state, kind] = currentRow(kCancellations);
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
        QCOMPARE(outcome.kind, given ? Kind::Printed : Kind::Refused);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), given ? 1 : 0);
        QVERIFY(!outcome.text.contains(u"secret"_s));
        QStringList sent;
        for (const auto &request : m_server->requests())
            sent += request.values("auth-info");
        QCOMPARE(sent, given ? (QStringList{u"lisa"_s, u"secret"_s}) : QStringList());
    }

    // The server's was tried for the device first, and may be another one.
    void aDeviceThatWantsAnotherPasswordIsAskedForWhileTheJobWaits_data()
    {
        QTest::addColumn<bool>("known");
        QTest::newRow("the server's was tried") << true;
        QTest::newRow("the user was asked already") << false;
    }
    void aDeviceThatWantsAnotherPasswordIsAskedForWhileTheJobWaits()
    {
        QFETCH(bool, known);
        m_request.printer.authInfo = {u"username"_s, u"password"_s};
        QStringList passwords{u"device"_s};
        if (known)
            passwords.prepend(u"server"_s);
        int asked = 0;
        m_request.server.credentials->setQuestioner(
            [&](const CredentialsQuestion &, const auto &answer) {
                answer(Credentials{u"lisa"_s, passwords.value(asked++)});
            });
        if (known) {
            const WorkerThread server([&] {
                m_request.server.credentials->ask(m_request.server.address.argument(), {},
                                                  [] { return false; });
            });
            QTRY_VERIFY(server.isDone());
        }
        SaidOfJob held{IPP_JSTATE_HELD};
        held.wantsLogIn = true;
        m_server->say({held, {IPP_JSTATE_COMPLETED}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, known ? Kind::Printed : Kind::Failed);
        QCOMPARE(asked, passwords.size());
        QStringList sent;
        for (const auto &request : m_server->requests())
            sent += request.values("auth-info");
        QCOMPARE(sent, known ? (QStringList{u"lisa"_s, u"server"_s, u"lisa"_s, u"device"_s})
                             : (QStringList{u"lisa"_s, u"device"_s}));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_CUPS_AUTHENTICATE_JOB), known ? 1 : 0);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), known ? 0 : 1);
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
};

QTEST_GUILESS_MAIN(ServerJobTest)
#include "server_job_test.moc"
