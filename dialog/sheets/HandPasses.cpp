#include "dialog/sheets/HandPasses.h"

#include <algorithm>
#include <array>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OutputOrder.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using First = HandPasses::First;
using Kind = PlannedSide::Kind;
using Printed = HandFeed::Printed;

// Of the sheet before a side is turned to be read.
QSizeF paperInPrinter(const PlannedSide &side)
{
    return side.turn % 180 == 0 ? side.paper : side.paper.transposed();
}

PassSide passSide(const PlannedSide &side)
{
    return {side.document, side.laidOutPage, paperInPrinter(side), false};
}

PassSide emptySide(const PlannedSide &other)
{
    return {other.document, -1, paperInPrinter(other), false};
}

bool isEmpty(const std::optional<PlannedSide> &side)
{
    return !side || side->laidOutPage < 0;
}

// A side that the printer prints from its top on leaves it with its top in front. Somebody who
// keeps that edge in front turns the sheet over like the page of a book: the top of the other side
// is where the top of the first one is. That is bound at the edge of the paper that is its left or
// right one; for any other binding the other side stands on its head.
bool standsOnItsHead(const QSizeF &paper, bool bindsAtShortEdge)
{
    const bool isUpright = paper.height() >= paper.width();
    return isUpright == bindsAtShortEdge;
}

QList<PlannedSide> sidesOf(const SheetPlan &plan, First half)
{
    QList<PlannedSide> sides;
    for (const PlannedSheet &sheet : plan.sheets)
        sides +=
            half == First::Fronts ? sheet.front : sheet.back.value_or(PlannedSide{Kind::Blank});
    return sides;
}

// The edge of a side as it is read that is the upper one of the side in the printer.
Qt::Edge upperEdge(int turn)
{
    constexpr std::array kEdges{Qt::TopEdge, Qt::RightEdge, Qt::BottomEdge, Qt::LeftEdge};
    return kEdges.at(turn / 90 % 4);
}

} // namespace

HandFeed handFeed(ppd_file_t *ppd, const QList<JobOption> &options)
{
    HandFeed feed;
    feed.inBin = stacksFaceUp(ppd, options) ? Printed::Up : Printed::Down;
    for (const JobOption &option : options) {
        if (option.name == kPutBackAttribute)
            feed.inTray = option.value == kPutBackFaceUp ? Printed::Up : Printed::Down;
        else if (option.name == kSidesByHandAttribute)
            feed.bindsAtShortEdge = option.value == kByHandShortEdge;
    }
    return feed;
}

// The finished stack is to lie with the first front uppermost, to be taken as it is. The sheet that
// is printed last lies uppermost, so the second pass begins with the last sheet and ends with the
// first one. Where sheets come out with the printed side down, the front is up after the backs were
// printed: the backs come second. Where they come out with the printed side up, the fronts do.
//
// The tray gives the uppermost sheet first, which so has to be the last one. The first pass leaves
// the sheet uppermost that it printed last; with the stack turned over, the one that it printed
// first. So the first pass begins with the first sheet where the stack is put back as it lies, and
// with the last sheet where it is turned over on the way.
HandPasses planPasses(const SheetPlan &plan, const HandFeed &feed)
{
    HandPasses passes;
    passes.feed = feed;
    if (plan.sheets.isEmpty())
        return passes;
    QList<PassSide> fronts;
    QList<PassSide> backs;
    bool hasBacks = false;
    for (const PlannedSheet &sheet : plan.sheets) {
        fronts += passSide(sheet.front);
        // A sheet without a back goes through all the same: with a side less in one pass, all
        // sheets behind it would get the backs of others.
        backs += sheet.back ? passSide(*sheet.back) : emptySide(sheet.front);
        hasBacks = hasBacks || !isEmpty(sheet.back);
    }
    const bool isFaceUp = feed.inBin == Printed::Up;
    if (!hasBacks) {
        // Printed once, as any other job is.
        if (isFaceUp)
            std::reverse(fronts.begin(), fronts.end());
        passes.first = fronts;
        return passes;
    }
    passes.half = isFaceUp ? First::Backs : First::Fronts;
    passes.first = isFaceUp ? backs : fronts;
    passes.second = isFaceUp ? fronts : backs;
    for (PassSide &side : passes.second)
        side.isTurned = standsOnItsHead(side.paper, feed.bindsAtShortEdge);
    std::reverse(passes.second.begin(), passes.second.end());
    const bool isTurnedOver = feed.inBin != feed.inTray;
    if (isTurnedOver)
        std::reverse(passes.first.begin(), passes.first.end());
    const QList<PlannedSide> printed = sidesOf(plan, passes.half);
    passes.uppermost = printed.constLast();
    // A side that nothing is printed on has no edges to go by: those of the next sheet are meant.
    const auto shown = std::find_if(printed.crbegin(), printed.crend(),
                                    [](const PlannedSide &side) { return !isEmpty(side); });
    if (shown != printed.crend()) {
        passes.leadingEdge = upperEdge(shown->turn);
        passes.isWide = shown->paper.width() > shown->paper.height();
    }
    return passes;
}

} // namespace corvana
