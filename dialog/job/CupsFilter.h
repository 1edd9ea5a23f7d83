#pragma once

#include <QString>

namespace corvana {

/// Finds the program that runs CUPS' filter chain. It lies where users' paths do not lead.
/// The environment variable CORVANA_PRINT_CUPSFILTER names another one, where
/// it counts (see ownVariable()).
/// Errors: null; `error` then says where it was looked for.
QString findCupsFilter(QString *error);

} // namespace corvana
