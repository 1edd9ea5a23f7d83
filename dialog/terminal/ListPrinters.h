#pragma once

#include "dialog/task/PrintRequest.h"

namespace corvana {

/// Writes the printers to standard output, those of the print server too. Returns the program's
/// exit status: 1 when there are none because the server could not be asked.
int listPrinters(const PrintRequest &request);

} // namespace corvana
