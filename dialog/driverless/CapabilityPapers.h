#pragma once

#include "dialog/driverless/PrinterCapabilities.h"

namespace corvana {

/// Reads the papers that a printer takes, with their margins, and which of them is the usual one.
void readPapers(ipp_t *attributes, PrinterCapabilities &printer);

} // namespace corvana
