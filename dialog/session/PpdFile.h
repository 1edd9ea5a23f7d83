#pragma once

#include <memory>

#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

/// An opened PPD file. Ownership: sole.
using PpdFile = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Opens a PPD file with its texts in the user's language and its default choices marked.
///
/// One-sided is what the panels take the default of "Duplex" for. A print server rewrites defaults
/// when two-sided is made a queue's default; then the one-sided choice becomes the default again
/// and the queue's wish stays as the mark.
///
/// Copies are collated by default. Where the PPD has an option "Collate" for it that CUPS' filters
/// do not use, because a default excludes it (memory that is not installed) or because they do not
/// know its choices, it cannot be looked up: the filters collate, as for printers without one.
///
/// Errors: null; `error` then says which file, which line where one is known, and what is wrong. A
/// file with more in it than PpdBounds allow is not read.
PpdFile openPpdFile(const QString &path, QString *error);

/// Whether an option that stands in the groups of an opened PPD is one of the printer's.
bool isOption(ppd_file_t *ppd, const ppd_option_t &option);

} // namespace corvana
