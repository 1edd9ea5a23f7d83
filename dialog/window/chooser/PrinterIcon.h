#pragma once

#include <QIcon>

#include "dialog/window/chooser/PrinterTexts.h"

namespace corvana {

/// How a printer looks: what matters most of what is known of it.
enum class PrinterLook { Ready, Printing, Stopped, TakesNoJobs, Gone };

PrinterLook lookOf(const Printer &printer, Presence presence = Presence::Listed);

/// Whose picture of a printer is shown. The first question to a theme reads its folders, so a
/// window shows our own picture until it is on the screen.
enum class IconSource { Own, Theme };

/// The theme's printer, or one of our own where the theme has none or is not asked, with a mark
/// that tells the looks apart by its form as well as by its colour. Follows the palette; sharp at
/// any scale.
QIcon printerIcon(PrinterLook look, IconSource source);

/// The sign of a search field: the theme's, or one of our own.
QIcon searchIcon();

/// An arrow that turns back, and one that turns forward again. Our own, whatever the theme: the two
/// stand in a window that is just coming up.
QIcon undoIcon();
QIcon redoIcon();

} // namespace corvana
