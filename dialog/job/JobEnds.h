#pragma once

#include <chrono>
#include <optional>

#include "dialog/job/JobRequests.h"

namespace corvana {

/// Has a server remember how its jobs end, for as long as one of them is followed. A server without
/// a job history forgets a job in the moment in which it ends, together with whoever had asked for
/// news of just that job. A subscription to the whole server still tells afterwards whether the job
/// was printed, in whatever queue it was by then.
///
/// Servers let ordinary users subscribe, but each has room for few subscriptions: this one asks for
/// little time, renews it while it is needed, and is taken back at the end. Where a server refuses,
/// nothing is remembered, and nothing else is different.
///
/// Ownership: nothing. Thread: the one of the connection.
class JobEnds
{
public:
    /// To be called before the server can end the job. Nobody is asked for a password for it.
    void remember(ServerConnection &connection);
    /// To be called now and then, by whoever waits for the end.
    void keepRemembering(ServerConnection &connection);
    /// How a job has ended; nothing where the server does not tell.
    std::optional<JobStatus> endOf(ServerConnection &connection, int job);
    void forget(ServerConnection &connection);

private:
    using Clock = std::chrono::steady_clock;

    IppMessage newRequest(ipp_op_t operation) const;

    int m_subscription = 0; // 0: none
    Clock::time_point m_renewal;
};

} // namespace corvana
