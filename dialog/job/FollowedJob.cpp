#include "dialog/job/FollowedJob.h"

#include "dialog/printers/QueueRequests.h"

namespace corvana {

void FollowedJob::begin(ServerConnection &connection)
{
    if (m_toItsEnd && m_queue.origin == PrinterOrigin::Queue)
        m_ends.remember(connection);
}

void FollowedJob::end(ServerConnection &connection)
{
    // A server that has gone silent is not waited for once more.
    if (!connection.problem().mayPass())
        m_ends.forget(connection);
}

std::optional<JobStatus> FollowedJob::lookUp(ServerConnection &connection)
{
    auto status = lookUpJob(connection, m_queue, m_outcomes.job());
    if (!status && connection.problem().kind == ServerProblem::Kind::NotFound) {
        const ServerProblem problem = connection.problem();
        status = m_ends.endOf(connection, m_outcomes.job());
        if (!status)
            connection.restore(problem);
    }
    if (!status)
        return std::nullopt;
    m_outcomes.see(*status);
    if (const auto queue = movedTo(*status, m_queue)) {
        m_queue = *queue;
        m_outcomes.moveTo(m_queue, fetchWhetherRaw(connection, m_queue));
    }
    return status;
}

JobProgress FollowedJob::progress(const JobStatus &status) const
{
    JobProgress progress{JobProgress::Stage::Waiting,
                         m_outcomes.job(),
                         status.pages,
                         0,
                         0,
                         status.message,
                         status.reasons};
    if (status.state == IPP_JSTATE_PROCESSING)
        progress.stage = JobProgress::Stage::Printing;
    else if (status.state == IPP_JSTATE_HELD)
        progress.stage = JobProgress::Stage::Held;
    else if (status.printerStopped || status.state == IPP_JSTATE_STOPPED)
        progress.stage = JobProgress::Stage::Stopped;
    return progress;
}

} // namespace corvana
