#pragma once

#include <QString>

#include "platform/PlatformExport.h"

namespace corvana {

/// What a text shows when an alert takes it as a format string without arguments: "%%" becomes "%",
/// every other directive shows nothing. A translation with a stray per cent sign can thus lose
/// letters, but never reads memory.
CORVANA_PLATFORM_EXPORT QString formattedWithoutArguments(const QString &format);

} // namespace corvana
