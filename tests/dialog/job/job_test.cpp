#include <QSignalSpy>
#include <QTest>

#include "dialog/job/FileJob.h"
#include "dialog/job/ServerJob.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/job/JobServer.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

struct KindOfJob
{
    const char *name;
    bool isFile;
};
constexpr KindOfJob kKinds[] = {{"a file", true}, {"a job of a server", false}};

} // namespace

/// What every job keeps, whatever it runs on.
class JobTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<JobServer> m_server;

    std::unique_ptr<Job> newJob() const
    {
        const Document document = m_filter->document();
        if (currentRow(kKinds).isFile)
            return std::make_unique<FileJob>(m_filter->request({u"Title"_s, 1, {}}));
        return std::make_unique<ServerJob>(m_server->request(document));
    }
    static void addKinds() { addRows(kKinds); }

private Q_SLOTS:
    void init()
    {
        m_filter = std::make_unique<FakeFilter>("echo printed\n");
        m_server = std::make_unique<JobServer>();
    }
    void cleanup()
    {
        m_server.reset();
        m_filter.reset();
    }

    void theOutcomeIsToldOnceAndNeverBeforeStartReturns_data() { addKinds(); }
    void theOutcomeIsToldOnceAndNeverBeforeStartReturns()
    {
        const auto job = newJob();
        const QSignalSpy finished(job.get(), &Job::finished);
        job->start();
        QCOMPARE(finished.size(), 0);
        const JobOutcome outcome = job->wait();
        QCOMPARE(outcome.kind, Kind::Printed);
        QVERIFY(!outcome.text.isEmpty());
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.at(0).at(0).value<JobOutcome>(), outcome);
        QCOMPARE(job->wait(), outcome); // asked for once more
    }

    void aJobThatIsCanceledBeforeItStartsDoesNothing_data() { addKinds(); }
    void aJobThatIsCanceledBeforeItStartsDoesNothing()
    {
        const auto job = newJob();
        const QSignalSpy finished(job.get(), &Job::finished);
        job->cancel();
        job->cancel();
        QVERIFY(job->isCanceled());
        QTest::qWait(20);
        QCOMPARE(finished.size(), 0);
        job->start();
        QCOMPARE(finished.size(), 0);
        QCOMPARE(job->wait().kind, Kind::Canceled);
        QCOMPARE(finished.size(), 1);
        QVERIFY(!m_filter->hasOutput());
        QVERIFY(m_server->requests().isEmpty());
    }

    void aJobThatIsCanceledTwiceIsCanceledOnce_data() { addKinds(); }
    void aJobThatIsCanceledTwiceIsCanceledOnce()
    {
        const auto job = newJob();
        const QSignalSpy finished(job.get(), &Job::finished);
        job->start();
        job->cancel();
        job->cancel();
        QVERIFY(job->isCanceled());
        QCOMPARE(job->wait().kind, Kind::Canceled);
        job->cancel();
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QVERIFY(!m_filter->hasOutput());
    }

    void whoLetsGoTooEarlyStillHearsTheOutcome_data() { addKinds(); }
    void whoLetsGoTooEarlyStillHearsTheOutcome()
    {
        const auto job = newJob();
        job->letGo();
        job->start();
        job->letGo();
        QVERIFY(!job->isHandedOver());
        QCOMPARE(job->wait().kind, Kind::Printed);
    }

    void aFileIsTheOutcomeOfAFileJobOnly_data() { addKinds(); }
    void aFileIsTheOutcomeOfAFileJobOnly()
    {
        const auto job = newJob();
        job->start();
        const JobOutcome outcome = job->wait();
        if (currentRow(kKinds).isFile) {
            QCOMPARE(outcome.file, m_filter->output());
            QCOMPARE(outcome.text, u"Printed to "_s + m_filter->output());
            QCOMPARE(outcome.job, 0);
        } else {
            QCOMPARE(outcome.file, QString());
            QCOMPARE(outcome.job, kJob);
        }
    }

    void thePageThatTheFilterChainHasComeToIsTold()
    {
        m_filter.reset();
        m_filter = std::make_unique<FakeFilter>("echo 'DEBUG: Copying page 3' >&2; echo printed\n");
        FileJob job(m_filter->request());
        QStringList told;
        connect(&job, &Job::progressed, this,
                [&](const JobProgress &progress) { told += progress.text(); });
        job.start();
        QCOMPARE(job.wait().kind, Kind::Printed);
        QCOMPARE(told, (QStringList{u"Printing…"_s, u"Printing page 3…"_s}));
    }

    void aFailureSaysWhatTheChainSaid()
    {
        m_filter.reset();
        m_filter = std::make_unique<FakeFilter>("echo 'ERROR: upside down' >&2; exit 1\n");
        FileJob job(m_filter->request());
        job.start();
        const JobOutcome outcome = job.wait();
        QCOMPARE(outcome.kind, Kind::Failed);
        QCOMPARE(outcome.file, QString());
        QVERIFY2(outcome.text.endsWith(u"upside down"_s), qPrintable(outcome.text));
    }
};

QTEST_GUILESS_MAIN(JobTest)

#include "job_test.moc"
