#pragma once

#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

/// After a tray was marked, which takes the mark of the hand feed away in libcups. A hand feed that
/// is off would stand at nothing, and be moved where an administrator keeps it off. `handFeed`:
/// what was marked of it before; null where no tray was marked.
void endHandFeed(ppd_file_t *ppd, const QString &handFeed);

} // namespace corvana
