#pragma once

#include <atomic>
#include <functional>
#include <thread>
#include <utility>

#include <QTest>

namespace corvana::test {

/// Work that waits for a network, on a thread of its own, since it may ask the GUI thread, whose
/// event loop turns meanwhile. Ends with the work.
class WorkerThread
{
public:
    explicit WorkerThread(std::function<void()> work)
        : m_thread([this, work = std::move(work)] {
              work();
              m_done = true;
          })
    {
    }
    ~WorkerThread() { m_thread.join(); }
    WorkerThread(const WorkerThread &) = delete;
    WorkerThread &operator=(const WorkerThread &) = delete;

    bool isDone() const { return m_done; }

private:
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};

/// Runs `work` on a worker's thread and turns the event loop until it is done.
inline void onWorker(const std::function<void()> &work)
{
    const WorkerThread worker(work);
    // A minute is far more than any patience in these tests.
    if (!QTest::qWaitFor([&] { return worker.isDone(); }, 60000))
        QTest::qFail("the worker does not end", __FILE__, __LINE__);
}

} // namespace corvana::test
