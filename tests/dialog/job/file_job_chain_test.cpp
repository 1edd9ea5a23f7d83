#include <QSignalSpy>
#include <QTest>

#include "dialog/job/FileJob.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

// A chain that writes its number, waits for long and keeps the number of a filter of its own.
constexpr char kLong[] = "sleep 300 & echo $! > $DIR/child; echo $$ > $DIR/parent; "
                         "echo half; touch $DIR/started; wait\n";

// A filter of the chain has a temporary file where filters have theirs, and reads from a document
// there.
constexpr char kWithTemporaryFile[] =
    "mktemp /tmp/corvana-copy.XXXXXX > $DIR/copy; mktemp /tmp/corvana-letter.XXXXXX > $DIR/letter; "
    "sh -c 'exec 5<>$(cat $0/copy) 6<$(cat $0/letter); touch $0/started; exec sleep 300' $DIR & ";

enum class End { Canceled, IgnoresThat, Dies };
struct EndOfChain
{
    const char *name;
    const char *script;
    End end;
};
constexpr EndOfChain kEnds[] = {
    {"it is canceled", "wait\n", End::Canceled},
    {"it ignores that", "trap '' TERM; while :; do sleep 0.1; done\n", End::IgnoresThat},
    {"its job dies", "wait\n", End::Dies},
};

struct Failure
{
    const char *name;
    const char *script;
    const char *told;
};
constexpr Failure kFailures[] = {
    {"it fails and says why",
     "echo half; echo 'ERROR: first' >&2; echo 'INFO: more' >&2; "
     "echo 'ERROR: The paper is upside down' >&2; exit 1\n",
     "converted for the printer: The paper is upside down"},
    {"it fails without a word", "echo half; exit 7\n", "exit status 7"},
    {"it lacks a filter",
     "echo 'filter: File x not available' >&2; echo 'filter: No way' >&2; exit 1\n",
     "converted for the printer: File x not available"},
    {"it fails before anything came", "exit 1\n", "exit status 1"},
    {"it crashes", "echo half; kill -SEGV $$\n", "crashed"},
    {"it is killed by somebody else", "echo half; kill -KILL $$\n", "crashed"},
    {"it writes nothing", "exit 0\n", "nothing came out"},
    {"it writes nothing and says why", "echo 'ERROR: No filter' >&2; exit 0\n",
     "nothing came out. No filter"},
    {"its output is taken away", "rm -f $DIR/*.part; echo printed\n", "nothing came out"},
};

} // namespace

/// Filter chains that fail, are stopped, or do not want to stop.
class FileJobChainTest : public QObject
{
    Q_OBJECT

private:
    static void verifyCanceled(const QSignalSpy &finished)
    {
        const auto outcome = finished.at(0).at(0).value<JobOutcome>();
        QCOMPARE(outcome.kind, Kind::Canceled);
        QCOMPARE(outcome.text, u"Printing was canceled."_s);
    }

private Q_SLOTS:
    void aFailureLeavesAnEarlierResultAndNothingElse_data() { addRows(kFailures); }
    void aFailureLeavesAnEarlierResultAndNothingElse()
    {
        const Failure &failure = currentRow(kFailures);
        const FakeFilter filter(failure.script);
        writeFile(filter.output(), "yesterday's");
        FileJob job(filter.request());
        const QSignalSpy finished(&job, &Job::finished);
        job.start();
        const JobOutcome outcome = job.wait();
        QCOMPARE(outcome.kind, Kind::Failed);
        QCOMPARE(finished.size(), 1);
        QVERIFY2(outcome.text.contains(QString::fromUtf8(failure.told)), qPrintable(outcome.text));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY2(filter.leftOvers().isEmpty(), qPrintable(filter.leftOvers().join(u' ')));
    }

    void whatTheChainOnlyWarnsOfIsNoFailure()
    {
        const FakeFilter filter(
            "echo 'WARNING: low toner' >&2; echo 'DEBUG: ERROR:' >&2; echo ok\n");
        FileJob job(filter.request());
        job.start();
        QCOMPARE(job.wait().kind, Kind::Printed);
    }

    void aChainThatTalksMuchIsNotHeldUp()
    {
        const FakeFilter filter("i=0; while [ $i -lt 20000 ]; do "
                                "echo 'DEBUG: a line of the size of a line of a log' >&2; "
                                "i=$((i+1)); done; echo ok\n");
        FileJob job(filter.request());
        job.start();
        QCOMPARE(job.wait().kind, Kind::Printed);
    }

    void theChainDoesNotReadFromTheTerminal()
    {
        const FakeFilter filter("cat; echo ok\n");
        FileJob job(filter.request());
        job.start();
        QCOMPARE(job.wait().kind, Kind::Printed);
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("ok\n"));
    }

    void aCanceledJobEndsWithItsWholeChain()
    {
        const FakeFilter filter(kLong);
        writeFile(filter.output(), "yesterday's");
        FileJob job(filter.request());
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        QVERIFY(filter.waitForFile(u"started"_s));
        job.cancel();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        verifyCanceled(finished);
        QVERIFY(filter.waitForEndOf(u"child"_s));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void aJobThatIsCanceledAtOnceIsCanceled()
    {
        const FakeFilter filter("sleep 300\n");
        FileJob job(filter.request());
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        job.cancel();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        verifyCanceled(finished);
    }

    void aChainThatIgnoresThatIsStoppedByForce()
    {
        const FakeFilter filter("trap '' TERM; echo $$ > $DIR/parent; touch $DIR/started; "
                                "while :; do sleep 0.1; done\n");
        FileJob job(filter.request());
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        QVERIFY(filter.waitForFile(u"started"_s));
        job.cancel();
        QTest::qWait(200);
        QCOMPARE(finished.size(), 0); // it is given time to clean up
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        QVERIFY(filter.waitForEndOf(u"parent"_s));
    }

    void cancelingAfterTheEndChangesNothing()
    {
        const FakeFilter filter("echo ok\n");
        FileJob job(filter.request());
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        QCOMPARE(job.wait().kind, Kind::Printed);
        job.cancel();
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("ok\n"));
    }

    void aJobThatDiesTakesItsChainAlong()
    {
        const FakeFilter filter(kLong);
        writeFile(filter.output(), "yesterday's");
        {
            FileJob job(filter.request());
            job.start();
            QVERIFY(filter.waitForFile(u"started"_s));
        }
        QVERIFY(filter.waitForEndOf(u"parent"_s));
        QVERIFY(filter.waitForEndOf(u"child"_s));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void whatAFilterKeepsForItselfGoesWithIt_data() { addRows(kEnds); }
    void whatAFilterKeepsForItselfGoesWithIt()
    {
        const EndOfChain &row = currentRow(kEnds);
        const FakeFilter filter(QByteArray(kWithTemporaryFile) + row.script);
        auto job = std::make_unique<FileJob>(filter.request());
        QSignalSpy finished(job.get(), &Job::finished);
        job->start();
        QVERIFY(filter.waitForFile(u"started"_s));
        const QString copy = QString::fromUtf8(filter.content(u"copy"_s).trimmed());
        const QString letter = QString::fromUtf8(filter.content(u"letter"_s).trimmed());
        QVERIFY(QFile::exists(copy));
        if (row.end == End::Dies) {
            job.reset();
        } else {
            job->cancel();
            QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        }
        const bool isLeft = QFile::remove(copy);
        QVERIFY2(QFile::remove(letter), "the document was removed");
        QVERIFY(!isLeft);
    }

    void aJobThatDiesAtOnceLeavesNothing()
    {
        const FakeFilter filter("sleep 300; echo late\n");
        {
            FileJob job(filter.request());
            job.start();
        }
        QVERIFY(filter.leftOvers().isEmpty());
        QVERIFY(filter.content(u"out.ps"_s).isNull());
    }
};

QTEST_GUILESS_MAIN(FileJobChainTest)

#include "file_job_chain_test.moc"
