#pragma once

#include <QList>

#include "dialog/job/PdfPages.h"
#include "dialog/sheets/LayoutTraits.h"

namespace corvana {

/// The first sheets of a long document can be laid out alone, long before the whole of it is, where
/// that gives the same: the layout step looks at all pages that it is given before it decides on
/// scale and direction, and says nothing of it. So all pages have to be of one kind, and the first
/// ones have to come first.

/// Of how many pages of a document the first sheets are made. `pages` are all of its `count` pages
/// as far as they were described; `options` are all those of the job that shape pages.
/// 0: the document is short, or nobody can be sure.
int pagesOfFirstSheets(const QList<PdfPage> &pages, int count, const QList<JobOption> &options,
                       const LayoutTraits &traits);

} // namespace corvana
