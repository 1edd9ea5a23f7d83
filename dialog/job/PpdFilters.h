#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// Which programs the filter chain may run for a PPD, and which files these may open.
///
/// A PPD comes from a print server, and its filter lines name programs, which `cupsfilter -e`
/// starts as the user. So a PPD may only choose among filters of the system that are on a list
/// here, by their bare names, and for the formats that our chain makes. The colour profiles that it
/// names are read by such a filter; they have to be the system's own.

/// Whether a filter line of a PPD, the value of `cupsFilter`, `cupsFilter2` or `cupsPreFilter`,
/// leads to nothing but what is on the list.
bool isSafeFilterLine(const QByteArray &line);

/// Why nothing may be made with the filters of a PPD: a sentence that names what was asked for, and
/// what the user can do instead. Empty when nothing is in the way.
/// Errors: a PPD that cannot be opened is a reason.
QString problemOfPpdFilters(const QString &ppdPath);

/// What becomes of several documents of one job, as the PPD of their queue has it.
struct PpdStream
{
    /// Whether what the filters make of two documents can stand one after the other in a stream:
    /// PostScript and the languages of printers can. Of two PDF or raster files in a row a printer
    /// sees the first at most.
    bool continues = true;
    /// Whether a print server hands each document to the device by itself all the same.
    bool isCutByServer = false;

    bool operator==(const PpdStream &) const = default;
};

/// Errors: a PPD that cannot be opened has a stream that continues.
PpdStream streamOfPpd(const QString &ppdPath);
/// The same of one that is open: a large PPD takes long to be read.
PpdStream streamOfPpd(ppd_file_t *ppd);

/// What withOrderForFilters() answers for a PPD in a file.
/// Errors: a PPD that cannot be opened changes nothing.
QList<JobOption> inOrderForFilters(const QList<JobOption> &options, const QString &ppdPath);

} // namespace corvana
