#pragma once

#include <memory>

#include <QList>

#include "dialog/driverless/PrinterCapabilities.h"
#include "dialog/printers/PpdCopy.h"
#include "dialog/printers/Printer.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// A printer and what it takes to open it, wherever that comes from.
struct FetchedPrinter
{
    Printer printer;
    SharedPpd ppd{}; ///< null: it is not here
    /// What its server adds to a job that does not say otherwise, see queueDefaults().
    QList<JobOption> defaults{};
    /// What a printer without a PPD of its own can do. Its PPD was written from that, and its
    /// choices are said in its own words when it is printed to. Null for any other printer.
    std::shared_ptr<const PrinterCapabilities> capabilities{};
};

} // namespace corvana
