#pragma once

#include <QByteArray>
#include <QString>

namespace corvana {

/// Which programs the filter chain may run for a PPD.
///
/// A PPD comes from a print server, and its filter lines name programs, which `cupsfilter -e`
/// starts as the user. So a PPD may only choose among filters of the system that are on a list
/// here, by their bare names, and for the formats that our chain makes.

/// Whether a filter line of a PPD, the value of `cupsFilter`, `cupsFilter2` or `cupsPreFilter`,
/// leads to nothing but what is on the list.
bool isSafeFilterLine(const QByteArray &line);

/// Why nothing may be made with the filters of a PPD: a sentence that names what was asked for, and
/// what the user can do instead. Empty when nothing is in the way.
/// Errors: a PPD that cannot be opened is a reason.
QString problemOfPpdFilters(const QString &ppdPath);

} // namespace corvana
