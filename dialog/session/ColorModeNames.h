#pragma once

#include <QList>
#include <QString>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// The choice of a PPD that a value of "print-color-mode" stands for, by the names of options and
/// choices: of an option about colours that has grey choices beside coloured ones, as in
/// "ColorModel=grayscale" beside "ColorModel=color". libcups itself knows only some of those names.
/// Empty where there is no such option.
QList<JobOption> colorModeByName(ppd_file_t *ppd, const QString &mode);

} // namespace corvana
