#pragma once

#include <QString>

namespace corvana {

/// The printer that the user printed to last, of those of a server. Empty when there is none.
QString lastPrinter(const QString &server);

void rememberPrinter(const QString &server, const QString &name);

} // namespace corvana
