#pragma once

#include <QString>

#include "dialog/printers/Printer.h"

namespace corvana {

/// What makes two values the same printer, whatever else is known of it by now. A queue is what its
/// server calls it: its URI says no more than that, and says it differently once the queue is known
/// to be a class. A device is its URI, a PPD file its path and its name.
///
/// Queues of one server only are told apart; a program speaks to one.
struct PrinterId
{
    PrinterOrigin origin = PrinterOrigin::File;
    QString place; ///< the URI of a device, the path of a PPD file; empty for a queue
    QString name;  ///< of a queue: folded; empty for a device

    bool operator==(const PrinterId &) const = default;
};

PrinterId idOf(const Printer &printer);
size_t qHash(const PrinterId &id, size_t seed = 0);

/// The name of a queue, or "NAME/INSTANCE", in the one form that all its spellings have. Servers
/// and libcups tell no capital letter from a small one, in ASCII; any other letter they do.
QString foldedQueueName(QString name);

/// Whether two names are the same queue.
bool isSameQueue(const QString &name, const QString &other);

/// Whether a printer is the one that a user, a preference or a server calls by this name.
bool isCalled(const Printer &printer, const QString &name);

} // namespace corvana
