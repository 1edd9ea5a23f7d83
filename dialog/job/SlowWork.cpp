#include "dialog/job/SlowWork.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

#include <QCoreApplication>

namespace corvana {

namespace {

// The threads that have not ended yet. What they hold goes with them: copies of documents.
std::atomic<int> running = 0;

// At the end of the program. Whoever was asked to stop does so soon; what nothing can interrupt is
// left.
void waitForThoseWhoStop()
{
    using namespace std::chrono_literals;
    constexpr auto kPatience = 500ms;
    constexpr auto kLook = 5ms;
    for (auto waited = 0ms; running > 0 && waited < kPatience; waited += kLook)
        std::this_thread::sleep_for(kLook);
}

} // namespace

// Of the object and its thread, of which either may end first. Under the mutex, but for `stop`.
struct SlowWork::Shared
{
    std::mutex mutex;
    SlowWork *owner = nullptr; // null once it is gone
    Then then;
    std::stop_source stop;
};

SlowWork::SlowWork(Work work) : m_shared(std::make_shared<Shared>())
{
    [[maybe_unused]] static const bool isAwaited = (qAddPostRoutine(waitForThoseWhoStop), true);
    m_shared->owner = this;
    ++running;
    std::thread([shared = m_shared, work = std::move(work)]() mutable {
        {
            Then then = work(shared->stop.get_token());
            const std::scoped_lock lock(shared->mutex);
            shared->then = std::move(then);
            // Under the mutex, so that the owner does not go meanwhile.
            if (shared->owner)
                QMetaObject::invokeMethod(shared->owner, &SlowWork::end, Qt::QueuedConnection);
        }
        work = {};
        shared.reset(); // with what nobody wants any more
        --running;
    }).detach();
}

SlowWork::~SlowWork()
{
    m_shared->stop.request_stop();
    const std::scoped_lock lock(m_shared->mutex);
    m_shared->owner = nullptr;
}

// The last that is done here: who is called may delete this.
void SlowWork::end()
{
    Then then;
    {
        const std::scoped_lock lock(m_shared->mutex);
        then = std::move(m_shared->then);
    }
    if (then)
        then();
}

} // namespace corvana
