#pragma once

#include <QByteArray>

#include "platform/PlatformExport.h"

namespace corvana {

/// Whether a compiled table of texts (".qm") is whole. QTranslator believes what stands in one: it
/// reads wherever an offset or a length leads, and opens the files that a table depends on.
///
/// Errors: false for a table that leads out of itself, that depends on another one, or that is
/// none. Time: one walk over the table.
CORVANA_PLATFORM_EXPORT bool isWholeStringTable(const QByteArray &table);

} // namespace corvana
