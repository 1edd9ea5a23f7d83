#pragma once

#include "dialog/job/HandoverOutcomes.h"
#include "dialog/job/JobEnds.h"

namespace corvana {

/// A job at its server, wherever it is by now: in the queue that it was sent to, in another one, or
/// at its end, which its server remembers apart.
/// Ownership: the outcomes are borrowed; they are told what is seen. Thread: the worker's.
class FollowedJob
{
public:
    /// `toItsEnd`: how it ends is to be known, too.
    FollowedJob(const Printer &printer, bool toItsEnd, HandoverOutcomes &outcomes)
        : m_queue(printer), m_toItsEnd(toItsEnd), m_outcomes(outcomes)
    {
    }

    /// The queue that has it now.
    const Printer &queue() const { return m_queue; }

    /// To be called once the job has a number, before its document is sent.
    void begin(ServerConnection &connection);
    /// To be called now and then by whoever waits for its end.
    void keepFollowing(ServerConnection &connection) { m_ends.keepRemembering(connection); }
    /// To be called when nothing more is to be known of it.
    void end(ServerConnection &connection);

    /// Errors: as lookUpJob().
    std::optional<JobStatus> lookUp(ServerConnection &connection);
    /// How far a job is that its server describes so.
    JobProgress progress(const JobStatus &status) const;

private:
    Printer m_queue;
    bool m_toItsEnd;
    HandoverOutcomes &m_outcomes;
    JobEnds m_ends;
};

} // namespace corvana
