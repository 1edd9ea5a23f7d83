#pragma once

#include <QList>

#include "dialog/job/PdfPages.h"
#include "dialog/session/JobTicket.h"
#include "dialog/sheets/LayoutTraits.h"

namespace corvana {

/// In which order the pages of a document stand on a side ("number-up-layout"), as whoever reads
/// the sheet holds it. The layout step of the filter chain fills a side in the order that it is
/// told as pages lie that it does not turn. Pages that it turns by a quarter into their places
/// (slides, on upright paper) are read with the sheet turned, and so is their order: told "1 2
/// above 3 4", it gives 3 1 above 4 2. So it has to be told another order than the one that is
/// wanted.

/// By how much the order that the layout step is told is turned for whoever reads these pages.
/// `printed` are the pages that are printed; `pictureTurn` is how a picture on them is turned there
/// (see turnOfPicture()); `options` are those of the job. Pages that lie in several ways have no
/// common order for a reader: it stays that of the side. So does that of a single page on a side.
/// Units: degrees clockwise. Range: 0, 90, 180, 270.
int turnOfOrder(const QList<PdfPage> &printed, int pictureTurn, const QList<JobOption> &options,
                const LayoutTraits &traits);

/// The options of a job in the words of the layout step: with the order that gives the one that was
/// asked for, or the usual one, where that is turned so for the reader.
QList<JobOption> withOrderForReader(QList<JobOption> options, int turn);
JobTicket withOrderForReader(JobTicket ticket, int turn);

} // namespace corvana
