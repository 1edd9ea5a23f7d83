#pragma once

#include <QList>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// The choices that CUPS' filters mark for a set of attributes, on a PPD without any mark. The
/// marks of `ppd` are afterwards what they were before.
/// Values of the form "Custom.…" and "{…}" mark nothing here: nobody has checked them.
QList<JobOption> choicesByCups(ppd_file_t *ppd, const QList<JobOption> &attributes);

} // namespace corvana
