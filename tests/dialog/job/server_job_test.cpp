#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/ServerJob.h"
#include "tests/dialog/job/JobServer.h"
#include "tests/dialog/server/WorkerThread.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = JobOutcome::Kind;

namespace {

constexpr SaidOfJob kHangsUp{0, -1, IPP_STATUS_OK, true};
constexpr SaidOfJob kForgotten{0, -1, IPP_STATUS_ERROR_NOT_FOUND};

SaidOfJob in(const char *queue, int state)
{
    SaidOfJob said{state};
    said.queue = queue;
    return said;
}

// What the server says of a job at last, and what that is called.
struct End
{
    const char *name;
    int state;
    Kind kind;
};
constexpr End kEnds[] = {
    {"completed", IPP_JSTATE_COMPLETED, Kind::Printed},
    {"canceled", IPP_JSTATE_CANCELED, Kind::Canceled},
    {"aborted", IPP_JSTATE_ABORTED, Kind::Failed},
    {"stopped", IPP_JSTATE_STOPPED, Kind::Stopped},
    {"held", IPP_JSTATE_HELD, Kind::InQueue},
};

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
    {"no queue any more", kServersPpd, 404, false, Kind::Failed, "not there"},
    {"not to be found out", kServersPpd, 403, true, Kind::Failed, "not allow"},
    {"not said, because it has not changed", kServersPpd, 304, true, Kind::Failed, ""},
    {"none, as before", nullptr, 404, true, Kind::Printed, ""},
    {"one where there was none", nullptr, 200, true, Kind::PrinterChanged, "have changed"},
};

// How often such a job is looked for and canceled.
struct NumberlessJob
{
    const char *name;
    JobServer::Creation creation;
    int looked;
    int canceled;
    const char *words;
};
constexpr NumberlessJob kNumberlessJobs[] = {
    {"made, and its answer lost", JobServer::Creation::LostAndListed, 1, 1,
     "broke the connection. Job office-8 was canceled; nothing was printed."},
    {"made, and its number left out", JobServer::Creation::Numberless, 1, 1,
     "which job it has made. Job office-8 was canceled; nothing was printed."},
    {"not made", JobServer::Creation::Lost, 1, 0, "broke the connection. Nothing was printed."},
    {"nobody says", JobServer::Creation::LostAndUnlistable, 1, 0,
     "a job without a document may be at the print server"},
    {"refused", JobServer::Creation::Refused, 0, 0, "Nothing was printed."},
};

struct LostJob
{
    const char *name;
    SaidOfJob said;
    Kind kind;
    const char *words;
};
constexpr LostJob kLostJobs[] = {
    {"no record is kept", kForgotten, Kind::Unknown, "has left the queue"},
    {"the server is gone", kHangsUp, Kind::Unknown, "is not known"},
    {"the server refuses", {0, -1, IPP_STATUS_ERROR_NOT_AUTHORIZED}, Kind::Unknown, "is not known"},
};

// What is said of a job whose document was sent, and how often it is canceled then.
struct LostAnswer
{
    const char *name;
    QList<SaidOfJob> states;
    Kind kind;
    int canceled;
};
const LostAnswer kLostAnswers[] = {
    {"printed meanwhile", {{IPP_JSTATE_COMPLETED}}, Kind::Printed, 0},
    {"will be printed", {{IPP_JSTATE_PENDING}, {IPP_JSTATE_COMPLETED}}, Kind::Printed, 0},
    {"back at the third try", {kHangsUp, kHangsUp, {IPP_JSTATE_COMPLETED}}, Kind::Printed, 0},
    {"came without its document", {{IPP_JSTATE_HELD, 0}}, Kind::Failed, 1},
    {"is not known", {{0, -1, IPP_STATUS_ERROR_NOT_FOUND}}, Kind::Failed, 0},
    {"nobody says", {kHangsUp}, Kind::Unknown, 0},
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
        m_request = m_server->request({file.fileName(), u"application/postscript"_s, u"document.txt"_s});
        m_request.server.mayAsk = true;
        m_request.ticket.options = {{u"media"_s, u"A4"_s}};
    }

    void printedIsWhatTheServerCallsSo_data() { addRows(kEnds); }
    void printedIsWhatTheServerCallsSo()
    {
        const auto &[name, state, kind] = currentRow(kEnds);
        m_server->say({{IPP_JSTATE_PENDING}, {IPP_JSTATE_PROCESSING}, {state}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(outcome.job, kJob);
        QVERIFY2(outcome.text.contains(u"office-8"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
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

    void aJobWhoseNumberNeverCameIsTakenBack_data() { addRows(kNumberlessJobs); }
    void aJobWhoseNumberNeverCameIsTakenBack()
    {
        const auto &[name, creation, looked, canceled, words] = currentRow(kNumberlessJobs);
        m_server->setCreation(creation);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(QString::fromUtf8(words)), qPrintable(outcome.text));
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

    void aJobThatIsLostSightOfIsNotCalledPrinted_data() { addRows(kLostJobs); }
    void aJobThatIsLostSightOfIsNotCalledPrinted()
    {
        const auto &[name, said, kind, words] = currentRow(kLostJobs);
        m_request.server.patience = {1s, 1s};
        m_server->say({{IPP_JSTATE_PROCESSING}, {IPP_JSTATE_PROCESSING}, said});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QVERIFY2(outcome.text.contains(QString::fromUtf8(words)), qPrintable(outcome.text));
        QVERIFY(outcome.text.contains(u"office-8"_s));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

    // A server without a job history forgets a job as it ends.
    void theEndOfAForgottenJobIsKnownFromItsServer_data() { addRows(kEnds); }
    void theEndOfAForgottenJobIsKnownFromItsServer()
    {
        const auto &[name, state, kind] = currentRow(kEnds);
        const bool isEnd = state >= IPP_JSTATE_CANCELED;
        m_server->rememberTheEnd({state});
        m_server->say({{IPP_JSTATE_PROCESSING}, kForgotten});
        const JobOutcome outcome = print();
        // What is no end says nothing.
        QCOMPARE(outcome.kind, isEnd ? kind : Kind::Unknown);
        QVERIFY2(outcome.text.contains(u"office-8"_s), qPrintable(outcome.text));
        QCOMPARE(outcome.text.contains(u"It has ended."_s), kind == Kind::Failed);
        QCOMPARE(m_server->count(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_SUBSCRIPTION), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 0);
    }

    void whoSubscribesDoesSoBeforeTheJobCanEnd()
    {
        m_server->rememberTheEnd({IPP_JSTATE_COMPLETED});
        m_server->say({kForgotten});
        QCOMPARE(print().kind, Kind::Printed);
        QList<int> operations;
        for (const CannedRequest &request : m_server->requests())
            operations += request.operation;
        const auto subscribed = operations.indexOf(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS);
        QVERIFY(subscribed > operations.indexOf(IPP_OP_CREATE_JOB));
        QVERIFY(subscribed < operations.indexOf(IPP_OP_SEND_DOCUMENT));
    }

    // The connection that it was made on is gone by then.
    void aJobThatIsTakenBackNeedsItsSubscriptionNoLonger()
    {
        m_server->rememberTheEnd({IPP_JSTATE_CANCELED});
        m_server->loseTheAnswerToTheDocument();
        m_server->say({{IPP_JSTATE_HELD, 0}});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(u"office-8 was canceled"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CANCEL_SUBSCRIPTION), 1);
    }

    void aJobThatIsNotFollowedNeedsNoSubscription()
    {
        m_request.follow = false;
        m_server->rememberTheEnd({IPP_JSTATE_ABORTED});
        m_server->say({kForgotten});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::InQueue);
        QVERIFY2(outcome.text.contains(u"handed over"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS), 0);
    }

    void aJobThatWasMovedIsReportedUnderItsNewQueue_data()
    {
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("queue"); // null: it is where it was
        QTest::addColumn<bool>("forgotten");
        const auto row = [](const char *name, const char *uri, const QString &queue,
                            bool forgotten = false) {
            QTest::newRow(name) << QString::fromLatin1(uri) << queue << forgotten;
        };
        row("another queue", "ipp://print/printers/lab", u"lab"_s);
        row("a class", "ipp://print/classes/all", u"all"_s);
        row("an escaped name", "ipp://print/printers/l%C3%A4b", u"läb"_s);
        row("as its end says", "ipp://print/printers/lab", u"lab"_s, true);
        row("where it was", "ipp://print/printers/office", QString());
        row("where it was, in another spelling", "ipp://print/printers/OFFICE", QString());
        row("no queue", "ipp://print/jobs/8", QString());
        row("nothing", "", QString());
    }
    void aJobThatWasMovedIsReportedUnderItsNewQueue()
    {
        QFETCH(QString, uri);
        QFETCH(QString, queue);
        QFETCH(bool, forgotten);
        const QByteArray bytes = uri.toLatin1();
        if (forgotten) {
            m_server->rememberTheEnd(in(bytes.constData(), IPP_JSTATE_COMPLETED));
            m_server->say({{IPP_JSTATE_PROCESSING}, kForgotten});
        } else {
            m_server->say({{IPP_JSTATE_PROCESSING},
                           in(bytes.constData(), IPP_JSTATE_PROCESSING),
                           in(bytes.constData(), IPP_JSTATE_COMPLETED)});
        }
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Printed);
        QCOMPARE(outcome.queue, queue.isNull() ? u"office"_s : queue);
        QVERIFY2(outcome.text.contains(outcome.queue + u"-8"_s), qPrintable(outcome.text));
        QCOMPARE(outcome.text.contains(u"moved from the queue “office”"_s), !queue.isNull());
    }

    void theReasonOfAQueueThatTakesNoJobsIsSaid()
    {
        m_server->setCreation(JobServer::Creation::NotAccepted);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QCOMPARE(outcome.text, u"The queue “office” takes no jobs at the moment: Toner is being "
                               "changed. Nothing was printed."_s);
    }

    void anAnswerThatIsLostIsFoundOut_data() { addRows(kLostAnswers); }
    void anAnswerThatIsLostIsFoundOut()
    {
        const auto &[name, states, kind, canceled] = currentRow(kLostAnswers);
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
        QCOMPARE(outcome.kind, given ? Kind::Printed : Kind::Failed);
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
