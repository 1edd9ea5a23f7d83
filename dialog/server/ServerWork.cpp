#include "dialog/server/ServerWork.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

#include <QCoreApplication>

namespace corvana {

struct ServerWorkState
{
    CancelFlag canceled{0};
    std::atomic<bool> canceledOnPurpose{false};
    std::atomic<bool> abandoned{false};
    std::mutex mutex;
    std::condition_variable wake;

    void cancel()
    {
        {
            const std::scoped_lock lock(mutex);
            canceled = 1;
        }
        wake.notify_all();
    }
};

namespace {

// How long the end of the program waits for threads that have been canceled.
constexpr std::chrono::milliseconds kFarewell{1000};

// All threads of the program's, so that its end can be told to them. It outlives everything else,
// because a thread may be left that nothing can interrupt.
class RunningThreads
{
public:
    static RunningThreads &instance()
    {
        static auto *threads = new RunningThreads;
        return *threads;
    }

    void add(const std::shared_ptr<ServerWorkState> &shared, void (*cancel)(ServerWorkState &))
    {
        const std::scoped_lock lock(m_mutex);
        if (!std::exchange(m_open, true))
            qAddPostRoutine([] { instance().close(); });
        m_cancel = cancel;
        m_running.insert(shared);
    }
    void remove(const std::shared_ptr<ServerWorkState> &shared)
    {
        const std::scoped_lock lock(m_mutex);
        m_running.erase(shared);
        m_ended.notify_all();
    }
    void post(std::function<void()> function)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_open)
            return;
        m_posted.push_back(std::move(function));
        // The lock, not Qt's queue, hands the function over: a race detector knows nothing of the
        // latter.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { instance().runNext(); }, Qt::QueuedConnection);
    }

private:
    // One for each event, so that others come in between as they would without this queue.
    void runNext()
    {
        std::function<void()> function;
        {
            const std::scoped_lock lock(m_mutex);
            function = std::move(m_posted.front());
            m_posted.pop_front();
        }
        function();
    }

    void close()
    {
        std::unique_lock lock(m_mutex);
        m_open = false;
        for (const auto &shared : m_running)
            m_cancel(*shared);
        m_ended.wait_for(lock, kFarewell, [this] { return m_running.empty(); });
        // Nobody will run them; what they own may do anything when it goes.
        const std::deque<std::function<void()>> posted = std::move(m_posted);
        m_posted.clear();
        lock.unlock();
    }

    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::set<std::shared_ptr<ServerWorkState>> m_running;
    std::deque<std::function<void()>> m_posted;
    void (*m_cancel)(ServerWorkState &) = nullptr;
    bool m_open = false;
};

} // namespace

ServerWorker::ServerWorker(ServerContext context, std::shared_ptr<ServerWorkState> shared)
    : m_shared(std::move(shared)), m_connection(std::move(context), &m_shared->canceled)
{
}

bool ServerWorker::isCanceled() const
{
    return m_shared->canceled != 0;
}

bool ServerWorker::isLeftAlone() const
{
    return isCanceled() && !m_shared->canceledOnPurpose;
}

void ServerWorker::post(std::function<void()> function) const
{
    RunningThreads::instance().post([shared = m_shared, function = std::move(function)] {
        if (!shared->abandoned)
            function();
    });
}

bool ServerWorker::sleep(std::chrono::milliseconds time) const
{
    std::unique_lock lock(m_shared->mutex);
    return !m_shared->wake.wait_for(lock, time, [this] { return m_shared->canceled != 0; });
}

ServerWork::ServerWork(ServerContext context, Work work)
    : m_shared(std::make_shared<ServerWorkState>())
{
    RunningThreads::instance().add(m_shared, [](ServerWorkState &shared) { shared.cancel(); });
    std::thread([shared = m_shared, context = std::move(context),
                 work = std::move(work)]() mutable {
        {
            ServerWorker worker(std::move(context), shared);
            work(worker);
            work = nullptr;
        }
        RunningThreads::instance().remove(shared);
    }).detach();
}

ServerWork::~ServerWork()
{
    abandon();
}

ServerWork &ServerWork::operator=(ServerWork &&other) noexcept
{
    if (this != &other) {
        abandon();
        m_shared = std::move(other.m_shared);
    }
    return *this;
}

void ServerWork::cancel()
{
    if (!m_shared)
        return;
    m_shared->canceledOnPurpose = true;
    m_shared->cancel();
}

void ServerWork::abandon()
{
    if (!m_shared)
        return;
    m_shared->abandoned = true;
    m_shared->cancel();
    m_shared.reset();
}

} // namespace corvana
