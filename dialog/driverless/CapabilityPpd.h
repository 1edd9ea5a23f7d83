#pragma once

#include <QByteArray>

#include "dialog/driverless/PrinterCapabilities.h"

namespace corvana {

/// Writes the PPD of a printer that has none, with its texts in all languages of the dialog.
/// Printed into a file with it, a document becomes what the printer takes: PDF, PWG or Apple raster
/// data, or PostScript, the first of these that it lists.
///
/// A printer of which nothing is known gets a generic PostScript PPD: usual papers, any other size,
/// both sides, colour. What papers are usual depends on the user's region, nothing else does.
QByteArray ppdOfCapabilities(const PrinterCapabilities &printer);

} // namespace corvana
