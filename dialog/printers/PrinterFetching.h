#pragma once

#include <QStringList>

#include "dialog/printers/FetchedPrinter.h"
#include "dialog/printers/PpdCache.h"
#include "dialog/printers/QueueRequests.h"

namespace corvana {

/// Puts what a server said of a queue where a session can open it: its PPD into the cache, the PPD
/// that a queue without one needs into a file of its own.
/// Errors: no PPD; `error` says what could not be written.
FetchedPrinter fetchedPrinter(const QueueDetails &details, const PpdCache &cache,
                              const ServerAddress &server, QString *error);

/// Whether the PPD of a queue has panels here.
bool hasPanels(const QueueDetails &details, const QStringList &bundleRoots);

/// A printer that is a PPD file.
FetchedPrinter printerWithItsFile(const Printer &printer);

/// A queue of which only the name is known, or the printer that a URI names with its server.
Printer queueNamed(const QString &name, ServerAddress *server);

/// The printer that is always there: saves any document as a PDF that is laid out on paper as
/// every printer would have it.
Printer pdfPrinter();

/// The same, with what its PPD says.
/// Errors: no PPD; `error` says what could not be written.
FetchedPrinter fetchedPdfPrinter(QString *error);

} // namespace corvana
