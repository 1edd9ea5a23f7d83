#pragma once

#include <QList>
#include <QString>

#include "dialog/queues/Printer.h"

namespace corvana {

/// The sample printers in a folder of PPD files, by name; a PPD's file name without its suffix is
/// the printer's name. Files that are no PPD are left out and logged.
QList<Printer> samplePrinters(const QString &folder);

/// The printer of one PPD file. Errors: an empty description where the PPD cannot be read.
Printer printerOfPpd(const QString &ppdPath);

} // namespace corvana
