#pragma once

#include <QString>

#include "platform/PlatformExport.h"

/// Texts of PPDs, print servers, documents and command lines where something other than a widget
/// shows them. A terminal obeys the control characters in them: they may move its cursor, rename
/// its window, or make what follows read as something else.
namespace corvana {

/// Whether a character shows nothing but itself. Control characters do not, nor does what directs
/// the text around it, which would let a name change how its neighbours are read. The joiners
/// belong to the scripts that need them.
CORVANA_PLATFORM_EXPORT bool showsItself(char32_t character);

/// One line for a terminal. Every character that does not show itself, line breaks and tabs
/// included, is written as its number: "<U+001B>". Everything else stays as it is.
CORVANA_PLATFORM_EXPORT QString terminalLine(const QString &text);

/// The same for a message that may have several lines. All but the first are indented, so that none
/// of them passes for a message of its own.
CORVANA_PLATFORM_EXPORT QString terminalText(const QString &text);

} // namespace corvana
