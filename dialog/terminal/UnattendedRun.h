#pragma once

#include "dialog/task/PrintRequest.h"

namespace corvana {

/// Prints without a window, through the same panels: what a script or a terminal asks for.
///
/// Writes the summary and what became of the job to standard output, problems to standard error.
/// A signal that asks the program to end cancels the job.
/// Returns an ExitStatus, or 128 and more where a signal ended it.
int runUnattended(const PrintRequest &request);

} // namespace corvana
