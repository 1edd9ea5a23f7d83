#pragma once

#include <optional>

#include <QList>
#include <QSizeF>

#include "dialog/sheets/SheetPlan.h"

namespace corvana {

/// Two-sided printing on a printer that turns no sheets over: the sheets go through it twice, and
/// somebody puts them back in between. Which sides are printed in which pass, in which order, and
/// how the sheets have to lie. Plain values.

/// How sheets come out of a printer, and how they are put back into it.
struct HandFeed
{
    enum class Printed {
        Down, ///< the printed side
        Up,
    };

    /// As the sheets come to lie in the output bin. They lie on top of each other in any case, the
    /// last one uppermost.
    Printed inBin = Printed::Down;
    /// As they have to lie in the tray, which gives the uppermost sheet first.
    Printed inTray = Printed::Down;
    /// The sheets are turned over like the pages of a notepad: the top of the back is where the
    /// bottom of the front is.
    bool bindsAtShortEdge = false;

    bool operator==(const HandFeed &) const = default;
};

/// What a job with these options does. `ppd` is that of its printer.
HandFeed handFeed(ppd_file_t *ppd, const QList<JobOption> &options);

/// One side in a pass.
struct PassSide
{
    int document = 0;     ///< index in the job
    int laidOutPage = -1; ///< of that document, from 0; -1: an empty side
    /// Of the sheet as it goes through the printer. Units: points.
    QSizeF paper{};
    bool isTurned = false; ///< by half a turn, against the side as it was laid out

    bool operator==(const PassSide &) const = default;
};

/// What one copy of a job needs of both passes. The copies of a pass are made as those of any other
/// job are: both passes repeat their sides in the same way, so that their sheets stay together.
struct HandPasses
{
    enum class First { Fronts, Backs };

    HandFeed feed{};
    First half = First::Fronts; ///< which half of the sides is printed first
    QList<PassSide> first{};
    /// As many as the first has; empty where the backs of all sheets are empty, so that one pass is
    /// enough.
    QList<PassSide> second{};
    /// What the first pass has printed on the sheet that is uppermost when they are put back.
    PlannedSide uppermost{};
    /// The edge of that side, as it is read, which goes into the printer first.
    Qt::Edge leadingEdge = Qt::TopEdge;
    bool isWide = false; ///< that side is read on its long edge

    bool needsBoth() const { return !second.isEmpty(); }
    bool operator==(const HandPasses &) const = default;
};

/// The passes of a job whose sheets are these. Nothing of a plan without sheets.
HandPasses planPasses(const SheetPlan &plan, const HandFeed &feed);

} // namespace corvana
