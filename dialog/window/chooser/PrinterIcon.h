#pragma once

#include <QIcon>

#include "dialog/window/chooser/PrinterTexts.h"

namespace corvana {

/// How a printer looks: what matters most of what is known of it.
enum class PrinterLook { Ready, Printing, Stopped, TakesNoJobs, Gone };

PrinterLook lookOf(const Printer &printer, Presence presence = Presence::Listed);

/// The theme's printer, or one of our own where the theme has none, with a mark that tells the
/// looks apart by its form as well as by its colour. Follows the palette; sharp at any scale.
///
/// It is our own until takePrinterIconsFromTheme() was called.
QIcon printerIcon(PrinterLook look);

/// From now on the theme is asked, also by icons that were made before. The first question to a
/// theme reads its folders, so a window asks when it is on the screen.
void takePrinterIconsFromTheme();

/// The sign of a search field: the theme's, or one of our own.
QIcon searchIcon();

} // namespace corvana
