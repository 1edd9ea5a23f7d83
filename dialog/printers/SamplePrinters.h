#pragma once

#include <QList>
#include <QString>

#include "dialog/printers/Printer.h"

namespace corvana {

/// The sample printers in a folder of PPD files, the newest model first. Files that are no PPD are
/// left out and logged. One that begins like a PPD and goes on wrongly is found out when its
/// printer is opened: the list needs the first lines alone.
QList<Printer> samplePrinters(const QString &folder);

/// The printer of one PPD file; the file's name without its suffix is the printer's name.
/// Errors: `error` says what is wrong with the PPD; the printer then has no better description than
/// its name, so that it can still be listed.
Printer printerOfPpd(const QString &ppdPath, QString *error);

} // namespace corvana
