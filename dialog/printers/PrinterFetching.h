#pragma once

#include <memory>

#include <QTemporaryFile>

#include "dialog/driverless/PrinterCapabilities.h"
#include "dialog/printers/PpdCache.h"
#include "dialog/printers/QueueRequests.h"

namespace corvana {

/// A printer whose PPD is here, whatever it took to get it.
struct ReadyPrinter
{
    Printer printer; ///< with its `ppdPath`
    qint64 ppdLastModified = 0;
    QByteArray ppdHash{}; ///< see hashOfPpd(); empty where nobody has to compare it
    std::shared_ptr<const PrinterCapabilities> capabilities{};
    std::shared_ptr<QTemporaryFile> writtenPpd{};
};

/// Puts what a server said of a queue where a session can open it: a new PPD into the cache, the
/// PPD that a queue without one needs into a file of its own.
/// Errors: an empty `ppdPath`; `error` says what could not be written.
ReadyPrinter readyPrinter(const QueueDetails &details, const PpdCache &cache,
                          const ServerAddress &server, QString *error);

/// A queue of which only the name is known, or the printer that a URI names with its server.
Printer queueNamed(const QString &name, ServerAddress *server);

/// The printer that stands for no printer: prints any document into a PostScript file.
/// Errors: an empty `ppdPath`.
ReadyPrinter filePrinter(QString *error);

} // namespace corvana
