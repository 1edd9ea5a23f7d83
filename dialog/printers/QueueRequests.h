#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QList>

#include "dialog/driverless/PrinterCapabilities.h"
#include "dialog/printers/Printer.h"
#include "dialog/server/ServerConnection.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

// What is asked of a print server about its queues. All of it waits for a network: for workers.

/// Everything that a list of printers shows, of one printer in a response.
Printer printerOfAttributes(ipp_t *response, ipp_attribute_t **next);

/// How much a server may tell of its queues: no server has as many, and one that invents names
/// without end must not fill the memory. Looked at when a page is full, so that a last page may go
/// beyond it.
struct QueueBounds
{
    qsizetype queues = 100'000;
    qsizetype texts = 64 * 1024 * 1024; ///< Units: UTF-16 code units of all texts
};

/// Asks for all queues, page by page, so that the first ones of thousands can be shown before the
/// last ones are known. `found` gets each page.
/// Errors: false; the connection's problem() says why.
bool listQueues(ServerConnection &connection,
                const std::function<void(const QList<Printer> &)> &found,
                const QueueBounds &bounds = {});

/// The server's default queue; empty when it has none.
QString defaultQueue(ServerConnection &connection);

/// What one queue says of itself now.
struct QueueDetails
{
    enum class Ppd {
        Unknown, ///< see `problem`
        Read,    ///< in `ppd`
        None,    ///< the queue has none; `capabilities` say what it supports
    };

    Printer printer;
    Ppd state = Ppd::Unknown;
    QByteArray ppd{};
    QByteArray ppdHash{}; ///< see hashOfPpd()
    std::shared_ptr<const PrinterCapabilities> capabilities{};
    QList<JobOption> defaults{}; ///< see queueDefaults(); none of a device
    ServerProblem problem{};
};

/// Looks at one queue and fetches its PPD.
QueueDetails inspectQueue(ServerConnection &connection, const Printer &printer);

/// Fetches only the PPD of a queue, to compare it: of the answer `state`, `ppd`, `ppdHash` and
/// `problem` are of use. The problem is `NotFound` for a queue that is not there any more.
QueueDetails fetchPpdOnly(ServerConnection &connection, const Printer &printer);

/// Asks for what a queue adds to each job, see queueDefaults(), to compare it.
/// Errors: nothing; the connection's problem() says why.
std::optional<QList<JobOption>> fetchDefaults(ServerConnection &connection, const Printer &printer);

/// Whether a queue hands documents to its device as they are, see isRawQueue().
/// Errors: nothing; the connection's problem is the one that it had before.
std::optional<bool> fetchWhetherRaw(ServerConnection &connection, const Printer &printer);

/// The path of a printer's requests at its server, not escaped: libcups does that.
QByteArray resourceOf(const Printer &printer);

} // namespace corvana
