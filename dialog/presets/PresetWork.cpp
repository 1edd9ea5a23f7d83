#include "dialog/presets/PresetWork.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace corvana {

namespace {

// How long the end of the program waits for what is being written. A home folder that does not
// answer for longer does so for everything else as well.
constexpr std::chrono::seconds kPatienceAtEnd{5};

} // namespace

// Shared by the object and its thread, of which either may end first. Everything is under the
// mutex.
struct PresetWork::Queue
{
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::function<Then()>> work;
    std::deque<Then> finished;
    PresetWork *owner = nullptr; // null once it is gone
    bool isRunning = false;      // there is a thread

    static void serve(const std::shared_ptr<Queue> &queue);
};

// Until there is no more work.
void PresetWork::Queue::serve(const std::shared_ptr<Queue> &queue)
{
    std::unique_lock lock(queue->mutex);
    while (!queue->work.empty()) {
        const std::function<Then()> work = std::move(queue->work.front());
        queue->work.pop_front();
        lock.unlock();
        Then then = work();
        lock.lock();
        queue->finished.push_back(std::move(then));
        // Under the mutex, so that the owner does not go meanwhile.
        if (queue->owner)
            QMetaObject::invokeMethod(queue->owner, &PresetWork::takeDone, Qt::QueuedConnection);
    }
    queue->isRunning = false;
    queue->changed.notify_all();
}

PresetWork::PresetWork(QObject *parent) : QObject(parent), m_queue(std::make_shared<Queue>())
{
    m_queue->owner = this;
}

PresetWork::~PresetWork()
{
    std::unique_lock lock(m_queue->mutex);
    m_queue->owner = nullptr;
    const bool isDone =
        m_queue->changed.wait_for(lock, kPatienceAtEnd, [this] { return !m_queue->isRunning; });
    lock.unlock();
    if (!m_thread.joinable())
        return;
    // What a thread leaves behind at its very end uses what the end of the program destroys.
    if (isDone)
        m_thread.join();
    else
        m_thread.detach();
}

void PresetWork::run(std::function<Then()> work)
{
    ++m_pending;
    const std::scoped_lock lock(m_queue->mutex);
    m_queue->work.push_back(std::move(work));
    if (std::exchange(m_queue->isRunning, true))
        return;
    if (m_thread.joinable())
        m_thread.join(); // it has nothing left to do
    m_thread = std::thread([queue = m_queue] { Queue::serve(queue); });
}

void PresetWork::takeDone()
{
    while (true) {
        Then then;
        {
            const std::scoped_lock lock(m_queue->mutex);
            if (m_queue->finished.empty())
                return;
            then = std::move(m_queue->finished.front());
            m_queue->finished.pop_front();
        }
        --m_pending;
        if (then)
            then();
        Q_EMIT done();
    }
}

} // namespace corvana
