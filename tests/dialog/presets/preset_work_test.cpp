#include <atomic>
#include <chrono>
#include <thread>

#include <QTest>
#include <QThread>

#include "dialog/presets/PresetWork.h"

using namespace corvana;

namespace {

std::atomic<bool> hasEnded = false;

// Something of a thread's own that takes its time to go.
struct OfThread
{
    ~OfThread()
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        hasEnded = true;
    }
    int uses = 0;
};

} // namespace

/// Files are read and written beside the window, never in it.
class PresetWorkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workIsDoneInOrderOnAnotherThreadAndAnsweredOnThisOne()
    {
        PresetWork work;
        QThread *const here = QThread::currentThread();
        QList<int> answered;
        for (int i = 0; i < 20; ++i) {
            work.run([i, here, &answered]() -> PresetWork::Then {
                const bool isElsewhere = QThread::currentThread() != here;
                return [i, isElsewhere, here, &answered] {
                    if (isElsewhere && QThread::currentThread() == here)
                        answered += i;
                };
            });
        }
        QVERIFY(work.isBusy());
        QTRY_VERIFY(!work.isBusy());
        QCOMPARE(answered.size(), 20);
        QVERIFY(std::is_sorted(answered.cbegin(), answered.cend()));
    }

    void whoAsksWaitsForNothing()
    {
        PresetWork work;
        std::atomic<bool> mayGoOn = false;
        work.run([&mayGoOn]() -> PresetWork::Then {
            while (!mayGoOn)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            return {};
        });
        QVERIFY(work.isBusy());
        mayGoOn = true;
        QTRY_VERIFY(!work.isBusy());
    }

    // The window closes as soon as its job is printed, and what it was set to is kept all the same.
    void whatWasAskedForIsDoneAlsoWhenNobodyHearsOfIt()
    {
        std::atomic<int> written = 0;
        bool isAnswered = false;
        {
            PresetWork work;
            for (int i = 0; i < 3; ++i) {
                work.run([&]() -> PresetWork::Then {
                    std::this_thread::sleep_for(std::chrono::milliseconds(20));
                    ++written;
                    return [&isAnswered] { isAnswered = true; };
                });
            }
        }
        QCOMPARE(written.load(), 3);
        QCoreApplication::processEvents();
        QVERIFY(!isAnswered);
    }

    // Else it may outlive what the end of the program destroys.
    void itsThreadHasEndedWithIt()
    {
        {
            PresetWork work;
            work.run([]() -> PresetWork::Then {
                thread_local OfThread ofThread;
                ++ofThread.uses;
                return {};
            });
        }
        QVERIFY(hasEnded);
    }
};

QTEST_GUILESS_MAIN(PresetWorkTest)
#include "preset_work_test.moc"
