#pragma once

#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

// What messages for a terminal or a script say of options: by their keywords, as `-o` takes them.

/// "Tray=Lower"; a password is dots, whatever has become of it.
QString optionText(ppd_file_t *ppd, const QString &name, const QString &value);

/// The choices of an option, and what it takes as custom values: "Default, Custom.1 … Custom.99".
QString allowedChoices(ppd_file_t *ppd, const ppd_option_t *option);

} // namespace corvana
