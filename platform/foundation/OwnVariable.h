#pragma once

#include <QString>

#include "platform/PlatformExport.h"

namespace corvana {

/// The value of an environment variable that would get around what an administrator has decided.
/// It counts only where the program's own file belongs to the user who runs it, and to nobody else:
/// whoever owns the program could make it another one just as well. An installed program is root's,
/// so that of all users only root, who decides anyway, is listened to. Else, and where it is not
/// set: empty.
CORVANA_PLATFORM_EXPORT QString ownVariable(const char *name);

/// The same for a program at that path.
CORVANA_PLATFORM_EXPORT QString ownVariable(const char *name, const QString &program);

} // namespace corvana
