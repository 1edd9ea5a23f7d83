#pragma once

#include <chrono>
#include <optional>

#include "dialog/job/JobRequests.h"

namespace corvana {

/// Has a queue remember how its jobs end, for as long as one of them is followed. A server without
/// a job history forgets a job in the moment in which it ends, together with whoever had asked for
/// news of just that job: only a subscription to the whole queue still tells afterwards whether
/// the job was printed.
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
    void remember(ServerConnection &connection, const Printer &queue);
    /// To be called now and then, by whoever waits for the end.
    void keepRemembering(ServerConnection &connection);
    /// How a job has ended; nothing where the queue has not heard of that.
    std::optional<JobStatus> endOf(ServerConnection &connection, int job);
    void forget(ServerConnection &connection);

private:
    using Clock = std::chrono::steady_clock;

    IppMessage newRequest(ipp_op_t operation) const;

    Printer m_queue;
    int m_subscription = 0; // 0: none
    Clock::time_point m_renewal;
};

} // namespace corvana
