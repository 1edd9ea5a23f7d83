#pragma once

#include <memory>

#include <QTemporaryDir>

#include "dialog/job/ServerJob.h"
#include "tests/dialog/job/JobServer.h"

namespace corvana::test {

/// What a server says of a job at last, and what that is called.
struct EndOfJob
{
    const char *name;
    int state;
    JobOutcome::Kind kind;
};
inline constexpr EndOfJob kEndsOfJobs[] = {
    {"completed", IPP_JSTATE_COMPLETED, JobOutcome::Kind::Printed},
    {"canceled", IPP_JSTATE_CANCELED, JobOutcome::Kind::Canceled},
    {"aborted", IPP_JSTATE_ABORTED, JobOutcome::Kind::Failed},
    {"stopped", IPP_JSTATE_STOPPED, JobOutcome::Kind::Stopped},
    {"held", IPP_JSTATE_HELD, JobOutcome::Kind::InQueue},
    {"no state", 0, JobOutcome::Kind::Unknown},
    {"before the first state", IPP_JSTATE_PENDING - 1, JobOutcome::Kind::Unknown},
    {"behind the last state", IPP_JSTATE_COMPLETED + 1, JobOutcome::Kind::Unknown},
    {"a state of its own", 99, JobOutcome::Kind::Unknown},
    {"less than none", -1, JobOutcome::Kind::Unknown},
};

/// A document, and a server whose queue it is sent to.
class ServerJobScene
{
protected:
    void begin();
    /// Prints, and waits for what becomes of it.
    JobOutcome print();

    std::unique_ptr<JobServer> m_server;
    ServerJobRequest m_request;

private:
    QTemporaryDir m_folder;
};

} // namespace corvana::test
