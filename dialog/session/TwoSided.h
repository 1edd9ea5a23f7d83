#pragma once

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// Whether an option of a job makes its printer print on both sides, in the words of a PPD. CUPS'
/// filters know two-sided jobs by these options and choices and by no others.
bool isTwoSidedChoice(const JobOption &option);

/// Whether a printer turns sheets over itself.
bool turnsSheetsOver(ppd_file_t *ppd);

/// Whether a job is printed on both sides by somebody who puts the sheets back for their backs.
bool isTwoSidedByHand(const QList<JobOption> &options);

} // namespace corvana
