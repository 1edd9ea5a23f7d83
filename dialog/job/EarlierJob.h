#pragma once

#include <optional>

#include "dialog/job/Handover.h"

namespace corvana {

/// Looks up the job of an earlier try, so that the same is neither printed twice by accident nor
/// lost. What the server has of a job that never got all of its documents is taken back, because it
/// would print it after a while. Waits for a network: for workers.
/// Nothing where the same may be sent again.
std::optional<JobOutcome> whatBecameOfEarlierJob(ServerWorker &worker,
                                                 const ServerJobRequest &request);

} // namespace corvana
