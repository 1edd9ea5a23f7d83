#include "dialog/job/SlowWork.h"

#include <mutex>
#include <thread>
#include <utility>

namespace corvana {

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
    m_shared->owner = this;
    std::thread([shared = m_shared, work = std::move(work)] {
        Then then = work(shared->stop.get_token());
        const std::scoped_lock lock(shared->mutex);
        shared->then = std::move(then);
        // Under the mutex, so that the owner does not go meanwhile.
        if (shared->owner)
            QMetaObject::invokeMethod(shared->owner, &SlowWork::end, Qt::QueuedConnection);
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
