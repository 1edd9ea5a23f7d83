#include <QTest>

#include "tests/dialog/job/ServerJobScene.h"
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

} // namespace

/// What is found out of a job whose number, whose answer or whose end did not come, and where it
/// has gone.
class ServerJobLostTest : public QObject, private ServerJobScene
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }

    void aJobWhoseNumberNeverCameIsTakenBack_data() { addRows(kNumberlessJobs); }
    void aJobWhoseNumberNeverCameIsTakenBack()
    {
        const auto &[name, creation, looked, canceled, words] = currentRow(kNumberlessJobs);
        m_server->setCreation(creation);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind,
                 creation == JobServer::Creation::Refused ? Kind::Refused : Kind::Failed);
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
    void theEndOfAForgottenJobIsKnownFromItsServer_data() { addRows(kEndsOfJobs); }
    void theEndOfAForgottenJobIsKnownFromItsServer()
    {
        const auto &[name, state, kind] = currentRow(kEndsOfJobs);
        const bool isEnd = kind != JobOutcome::Kind::Unknown && state >= IPP_JSTATE_CANCELED;
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
};

QTEST_GUILESS_MAIN(ServerJobLostTest)
#include "server_job_lost_test.moc"
