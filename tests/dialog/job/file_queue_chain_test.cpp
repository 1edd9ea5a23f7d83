#include <QSignalSpy>
#include <QTest>

#include "dialog/job/FileQueue.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A chain that writes its number, waits for long and keeps the number of a filter of its own.
constexpr char kLong[] = "sleep 300 & echo $! > $DIR/child; echo $$ > $DIR/parent; "
                         "echo half; touch $DIR/started; wait\n";

} // namespace

/// Filter chains that fail, are stopped, or do not want to stop.
class FileQueueChainTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFailureLeavesAnEarlierResultAndNothingElse_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const QByteArray &script, const QString &told) {
            QTest::newRow(name) << script << told;
        };
        row("it fails and says why",
            "echo half; echo 'ERROR: first' >&2; echo 'INFO: more' >&2; "
            "echo 'ERROR: The paper is upside down' >&2; exit 1\n",
            u"converted for the printer: The paper is upside down"_s);
        row("it fails without a word", "echo half; exit 7\n", u"exit status 7"_s);
        row("it fails before anything came", "exit 1\n", u"exit status 1"_s);
        row("it crashes", "echo half; kill -SEGV $$\n", u"crashed"_s);
        row("it is killed by somebody else", "echo half; kill -KILL $$\n", u"crashed"_s);
        row("it writes nothing", "exit 0\n", u"nothing came out"_s);
        row("it writes nothing and says why", "echo 'ERROR: No filter' >&2; exit 0\n",
            u"nothing came out. No filter"_s);
        row("its output is taken away", "rm -f $DIR/*.part; echo printed\n", u"nothing came out"_s);
    }
    void aFailureLeavesAnEarlierResultAndNothingElse()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, told);
        const FakeFilter filter(script);
        writeFile(filter.output(), "yesterday's");
        FileQueue queue;
        const QSignalSpy finished(&queue, &FileQueue::finished);
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(!queue.wait());
        QCOMPARE(finished.size(), 1);
        const QString problem = finished.at(0).at(0).toString();
        QVERIFY2(problem.contains(told), qPrintable(problem));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY2(filter.leftOvers().isEmpty(), qPrintable(filter.leftOvers().join(u' ')));
    }

    void whatTheChainOnlyWarnsOfIsNoFailure()
    {
        const FakeFilter filter(
            "echo 'WARNING: low toner' >&2; echo 'DEBUG: ERROR:' >&2; echo ok\n");
        FileQueue queue;
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(queue.wait());
    }

    void aChainThatTalksMuchIsNotHeldUp()
    {
        const FakeFilter filter("i=0; while [ $i -lt 20000 ]; do "
                                "echo 'DEBUG: a line of the size of a line of a log' >&2; "
                                "i=$((i+1)); done; echo ok\n");
        FileQueue queue;
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(queue.wait());
    }

    void theChainDoesNotReadFromTheTerminal()
    {
        const FakeFilter filter("cat; echo ok\n");
        FileQueue queue;
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(queue.wait());
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("ok\n"));
    }

    void aCanceledJobEndsWithItsWholeChain()
    {
        const FakeFilter filter(kLong);
        writeFile(filter.output(), "yesterday's");
        FileQueue queue;
        QSignalSpy finished(&queue, &FileQueue::finished);
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(filter.waitForFile(u"started"_s));
        queue.cancel();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        QCOMPARE(finished.at(0).at(0).toString(), u"Printing was canceled."_s);
        QVERIFY(filter.waitForEndOf(u"child"_s));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void aJobThatIsCanceledAtOnceIsCanceled()
    {
        const FakeFilter filter("sleep 300\n");
        FileQueue queue;
        QSignalSpy finished(&queue, &FileQueue::finished);
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        queue.cancel();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        QCOMPARE(finished.at(0).at(0).toString(), u"Printing was canceled."_s);
    }

    void aChainThatIgnoresThatIsStoppedByForce()
    {
        const FakeFilter filter("trap '' TERM; echo $$ > $DIR/parent; touch $DIR/started; "
                                "while :; do sleep 0.1; done\n");
        FileQueue queue;
        QSignalSpy finished(&queue, &FileQueue::finished);
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(filter.waitForFile(u"started"_s));
        queue.cancel();
        QTest::qWait(200);
        QCOMPARE(finished.size(), 0); // it is given time to clean up
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        QVERIFY(filter.waitForEndOf(u"parent"_s));
    }

    void cancelingAfterTheEndChangesNothing()
    {
        const FakeFilter filter("echo ok\n");
        FileQueue queue;
        QSignalSpy finished(&queue, &FileQueue::finished);
        queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        QVERIFY(queue.wait());
        queue.cancel();
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("ok\n"));
    }

    void aQueueThatDiesTakesItsChainAlong()
    {
        const FakeFilter filter(kLong);
        writeFile(filter.output(), "yesterday's");
        {
            FileQueue queue;
            queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
            QVERIFY(filter.waitForFile(u"started"_s));
        }
        QVERIFY(filter.waitForEndOf(u"parent"_s));
        QVERIFY(filter.waitForEndOf(u"child"_s));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void aQueueThatDiesAtOnceLeavesNothing()
    {
        const FakeFilter filter("sleep 300; echo late\n");
        {
            FileQueue queue;
            queue.print(filter.document(), {}, filter.ppdPath(), filter.output());
        }
        QVERIFY(filter.leftOvers().isEmpty());
        QVERIFY(filter.content(u"out.ps"_s).isNull());
    }
};

QTEST_GUILESS_MAIN(FileQueueChainTest)

#include "file_queue_chain_test.moc"
