#pragma once

#include <QList>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// In which order the sides of a job leave a printer, and what CUPS' filters have to be told so
/// that they do. `options` are those of the job, in the words of the printer's PPD.

/// Whether the sheets of a job come out with the printed side up. A PPD says so by the order in
/// which it wants the pages: a sheet that lies face up is covered by the next one, so that the
/// first page has to come last.
bool stacksFaceUp(ppd_file_t *ppd, const QList<JobOption> &options);

/// Whether the last page is to leave the printer first: because the job asks for that, or because
/// it asks for nothing and the stack would not be in order otherwise.
bool printsLastPageFirst(ppd_file_t *ppd, const QList<JobOption> &options);

/// Whether the pages of a job pass the filter that makes PostScript of them.
bool becomesPostScript(ppd_file_t *ppd);

/// Whether a filter behind the layout step turns the order of sides round once more.
bool isTurnedRoundOnTheWay(ppd_file_t *ppd, const QList<JobOption> &options);

/// The options as the filters of a printer have to get them: so that the sides leave the printer in
/// the order that printsLastPageFirst() says, whatever is turned round on the way.
QList<JobOption> withOrderForFilters(QList<JobOption> options, ppd_file_t *ppd);

} // namespace corvana
