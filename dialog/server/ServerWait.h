#pragma once

#include <atomic>
#include <chrono>

#include <cups/cups.h>

namespace corvana {

/// How long a server is waited for.
struct ServerPatience
{
    std::chrono::milliseconds connecting{10000};
    std::chrono::milliseconds answering{20000}; ///< without a single byte

    /// The environment variable CORVANA_PRINT_PATIENCE gives both, in seconds.
    static ServerPatience fromEnvironment();
};

/// Set by one thread, looked at by others.
using CancelFlag = std::atomic<int>;

/// The waiting of one connection: libcups asks it every moment whether to go on.
/// Thread: that of the connection.
class ServerWait
{
public:
    using Clock = std::chrono::steady_clock;

    /// `canceled` is borrowed and may be null.
    ServerWait(std::chrono::milliseconds patience, CancelFlag *canceled)
        : m_patience(patience), m_canceled(canceled)
    {
    }
    ServerWait(const ServerWait &) = delete;
    ServerWait &operator=(const ServerWait &) = delete;

    /// From here on this object says how long `connection` waits. It outlives the connection.
    void watch(http_t *connection);

    /// Whether an answer ends the wait: who sends to a server that has answered and takes nothing more
    /// would be blocked until patience is over.
    void endOnAnswer(bool ends) { m_endsOnAnswer = ends; }

    /// A wait begins, of the whole patience.
    void start() { startUntil(Clock::now() + m_patience); }
    void startUntil(Clock::time_point deadline);

    /// Whether to stop waiting now.
    bool isOver();
    /// The same, of a wait on `connection`.
    bool isOver(http_t *connection);
    bool isCanceled() const { return m_canceled && m_canceled->load() != 0; }
    /// It has taken too long, as somebody else has found out.
    void giveUp() { m_timedOut = true; }
    /// Whether the last wait ended because it took too long.
    bool timedOut() const { return m_timedOut; }

    std::chrono::milliseconds patience() const { return m_patience; }
    /// As libcups wants it while it connects. May be null.
    int *flag() const { return reinterpret_cast<int *>(m_canceled); }

private:
    std::chrono::milliseconds m_patience;
    CancelFlag *m_canceled;
    Clock::time_point m_deadline;
    bool m_timedOut = false;
    bool m_endsOnAnswer = false;
};

} // namespace corvana
