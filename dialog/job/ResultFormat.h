#pragma once

#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

/// What a file of the printer's data is, as its name says it: "ps", "pdf", "pcl", "pwg", "urf",
/// "pclm", and "prn" for data that only its printer knows.
///
/// A PPD does not say what its filters yield. Of those that a document can come to, the one that
/// CUPS takes the shortest way to counts: by what it is told to yield, by what it takes and passes
/// on, or by the data that a filter of CUPS is known for.
QString resultSuffix(ppd_file_t *ppd);

/// The name in that folder that no file has yet, and that a file can have: "letter.ps",
/// "letter-2.ps".
QString freeResultName(const QString &folder, const QString &base, const QString &suffix);

} // namespace corvana
