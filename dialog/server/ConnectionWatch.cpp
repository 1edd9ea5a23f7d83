#include "dialog/server/ConnectionWatch.h"

#include <algorithm>
#include <optional>

#include <sys/socket.h>

namespace corvana {

namespace {
constexpr std::chrono::milliseconds kLookAround{100};
}

ConnectionWatch::ConnectionWatch(http_t *connection, const ServerWait &wait,
                                 std::chrono::milliseconds patience)
    : m_connection(connection), m_wait(wait), m_patience(patience), m_thread([this] { look(); })
{
}

ConnectionWatch::~ConnectionWatch()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_ended = true;
    }
    m_end.notify_all();
    m_thread.join();
}

bool ConnectionWatch::hasTimedOut() const
{
    const std::scoped_lock lock(m_mutex);
    return m_timedOut;
}

void ConnectionWatch::look()
{
    using Clock = ServerWait::Clock;
    std::optional<Clock::time_point> deadline;
    const auto interval = std::clamp(m_patience / 10, std::chrono::milliseconds(1), kLookAround);
    std::unique_lock lock(m_mutex);
    while (!m_end.wait_for(lock, interval, [this] { return m_ended; })) {
        const int socket = httpGetFd(m_connection);
        if (socket < 0)
            continue;
        const Clock::time_point now = Clock::now();
        if (!deadline)
            deadline = now + m_patience;
        m_timedOut = m_timedOut || now >= *deadline;
        // More than once: libcups may go on with another address.
        if (m_timedOut || m_wait.isCanceled())
            ::shutdown(socket, SHUT_RDWR);
    }
}

} // namespace corvana
