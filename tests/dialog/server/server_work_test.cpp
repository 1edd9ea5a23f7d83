#include <future>
#include <thread>

#include <QProcess>
#include <QTest>

#include "dialog/server/ServerWork.h"

using namespace corvana;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const char *const kEndsWithHungThread = "--ends-with-a-hung-thread";
const char *const kEndsWithSleepingThread = "--ends-with-a-sleeping-thread";

ServerContext nowhere()
{
    ServerContext context;
    context.address = {u"/nonexistent/cups.sock"_s};
    return context;
}

// A program that ends while a thread does what nothing can interrupt, or what can be.
int endWithThread(int argc, char *argv[], bool hangs)
{
    static std::promise<void> begun;
    static std::atomic<bool> woken{false};
    static ServerWork work; // outlives the application
    {
        const QCoreApplication application(argc, argv);
        work = ServerWork(nowhere(), [hangs](ServerWorker &worker) {
            begun.set_value();
            if (hangs)
                std::this_thread::sleep_for(1h);
            else
                woken = !worker.sleep(1h);
            worker.post([] { qFatal("posted into a program that has ended"); });
        });
        begun.get_future().wait();
    }
    return woken != hangs ? 7 : 8;
}

} // namespace

class ServerWorkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workIsDoneOnAnotherThreadAndPostsOnThisOne()
    {
        std::atomic<QThread *> worked{nullptr};
        QThread *posted = nullptr;
        const ServerWork work(nowhere(), [&](ServerWorker &worker) {
            worked = QThread::currentThread();
            worker.post([&] { posted = QThread::currentThread(); });
        });
        QTRY_COMPARE(posted, QThread::currentThread());
        QVERIFY(worked != QThread::currentThread());
    }

    void postsArriveInTheirOrder()
    {
        constexpr int count = 1000;
        QList<int> arrived;
        QList<int> sent;
        for (int i = 0; i < count; ++i)
            sent += i;
        const ServerWork work(nowhere(), [&arrived](ServerWorker &worker) {
            for (int i = 0; i < count; ++i)
                worker.post([&arrived, i] { arrived += i; });
        });
        QTRY_COMPARE(arrived.size(), count);
        QCOMPARE(arrived, sent);
    }

    void nothingArrivesAfterTheInterestIsLost_data()
    {
        QTest::addColumn<bool>("replaced");
        QTest::newRow("destroyed") << false;
        QTest::newRow("replaced") << true;
    }
    void nothingArrivesAfterTheInterestIsLost()
    {
        QFETCH(bool, replaced);
        bool arrived = false;
        std::promise<void> posted;
        {
            ServerWork work(nowhere(), [&](ServerWorker &worker) {
                worker.post([&] { arrived = true; });
                posted.set_value();
            });
            posted.get_future().wait();
            // It is on its way here; the event loop has not turned yet.
            if (replaced)
                work = {};
        }
        bool later = false;
        const ServerWork other(nowhere(),
                               [&](ServerWorker &worker) { worker.post([&] { later = true; }); });
        QTRY_VERIFY(later);
        QVERIFY(!arrived);
    }

    void cancelingEndsASleepButNotThePosts()
    {
        std::promise<void> sleeps;
        std::optional<bool> slept;
        std::optional<bool> canceled;
        ServerWork work(nowhere(), [&](ServerWorker &worker) {
            sleeps.set_value();
            const bool whole = worker.sleep(1h);
            worker.post([&, whole, is = worker.isCanceled()] {
                slept = whole;
                canceled = is;
            });
        });
        sleeps.get_future().wait();
        work.cancel();
        QTRY_VERIFY(slept);
        QVERIFY(!*slept);
        QVERIFY(*canceled);
    }

    void aSleepThatNobodyDisturbsIsWhole()
    {
        std::optional<bool> slept;
        const ServerWork work(nowhere(), [&](ServerWorker &worker) {
            const bool whole = worker.sleep(1ms);
            worker.post([&, whole] { slept = whole; });
        });
        QTRY_VERIFY(slept);
        QVERIFY(*slept);
    }

    void canceledWorkDoesNotSleepAtAll()
    {
        std::promise<void> goOn;
        std::optional<bool> slept;
        ServerWork work(nowhere(), [&](ServerWorker &worker) {
            goOn.get_future().wait();
            const bool whole = worker.sleep(1h);
            worker.post([&, whole] { slept = whole; });
        });
        work.cancel();
        goOn.set_value();
        QTRY_VERIFY(slept);
        QVERIFY(!*slept);
    }

    void nobodyWaitsForAThreadThatHangs()
    {
        std::promise<void> goOn;
        std::promise<void> ended;
        auto keeper = std::make_shared<int>(0);
        std::weak_ptr<int> kept = keeper;
        {
            const ServerWork work(nowhere(), [&, keeper](ServerWorker &) {
                goOn.get_future().wait();
                ended.set_value();
            });
            keeper.reset();
        } // would hang here
        QVERIFY(!kept.expired());
        goOn.set_value();
        ended.get_future().wait();
        QTRY_VERIFY(kept.expired()); // what the work owned is gone with its thread
    }

    void movedWorkGoesOn()
    {
        bool arrived = false;
        std::promise<void> goOn;
        ServerWork work(nowhere(), [&](ServerWorker &worker) {
            goOn.get_future().wait();
            worker.post([&] { arrived = true; });
        });
        const ServerWork moved = std::move(work);
        goOn.set_value();
        QTRY_VERIFY(arrived);
    }

    void workOfNothingCanBeCanceled()
    {
        ServerWork work;
        work.cancel();
        work = {};
    }

    void theProgramEndsWhateverItsThreadsDo_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::newRow("hangs") << QString::fromLatin1(kEndsWithHungThread);
        QTest::newRow("sleeps") << QString::fromLatin1(kEndsWithSleepingThread);
    }
    void theProgramEndsWhateverItsThreadsDo()
    {
        QFETCH(QString, argument);
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationFilePath(), {argument});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 7);
    }
};

int main(int argc, char *argv[])
{
    for (const char *argument : {kEndsWithHungThread, kEndsWithSleepingThread}) {
        if (argc > 1 && qstrcmp(argv[1], argument) == 0)
            return endWithThread(argc, argv, argument == kEndsWithHungThread);
    }
    QCoreApplication application(argc, argv);
    ServerWorkTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "server_work_test.moc"
