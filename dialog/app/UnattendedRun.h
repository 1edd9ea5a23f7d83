#pragma once

#include "dialog/app/PrintRequest.h"

namespace corvana {

/// Prints without a window, through the same panels: what a script or a terminal asks for.
///
/// Writes the summary and the place of the result to standard output, problems to standard error.
/// A signal that asks the program to end cancels the job.
/// Returns the program's exit status: 0 printed, 1 refused or failed, 128 and more ended by a
/// signal.
int runUnattended(const PrintRequest &request);

/// Writes the printers to standard output, those of the print server too. Returns the program's
/// exit status: 1 when there are none because the server could not be asked.
int listPrinters(const PrintRequest &request);

} // namespace corvana
