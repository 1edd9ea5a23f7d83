#pragma once

#include <algorithm>
#include <utility>

#include <QList>

#include "dialog/sheets/HandPasses.h"

namespace corvana::test {

/// What a printer and a person do with sheets that go through the printer twice, with sheets that
/// are things: each has two faces and an edge that goes in first. It knows nothing of the order in
/// which sides are sent.

/// One face of a sheet.
struct PrintedFace
{
    int pass = 0;  ///< 1 or 2; 0: nothing was printed on it
    int side = -1; ///< of that pass, from 0

    bool operator==(const PrintedFace &) const = default;
};

/// A sheet as it lies in a stack. The same edge of it goes into the printer first each time, and
/// the top of what is printed comes to lie there.
struct StackedSheet
{
    PrintedFace up;
    PrintedFace down;

    bool operator==(const StackedSheet &) const = default;
};

/// A stack, the uppermost sheet first.
using Stack = QList<StackedSheet>;

/// A person turns a stack over.
inline Stack turnedOver(Stack stack)
{
    std::reverse(stack.begin(), stack.end());
    for (StackedSheet &sheet : stack)
        std::swap(sheet.up, sheet.down);
    return stack;
}

/// The printer takes the sheets of its tray from above and prints so many of them.
inline Stack printed(const Stack &tray, int pass, int sides, const HandFeed &feed)
{
    Stack bin;
    for (int side = 0; side < sides; ++side) {
        StackedSheet sheet = tray.value(side);
        // The tray is filled so that an empty face is the one that is printed on.
        PrintedFace &face = feed.inTray == HandFeed::Printed::Down ? sheet.up : sheet.down;
        face = {pass, side};
        const bool isUp = &face == &sheet.up;
        if (isUp != (feed.inBin == HandFeed::Printed::Up))
            std::swap(sheet.up, sheet.down);
        bin.prepend(sheet);
    }
    return bin;
}

/// What lies in the bin after both passes.
inline Stack printedTwice(int sides, const HandFeed &feed)
{
    const Stack once = printed({}, 1, sides, feed);
    const bool isUp = !once.isEmpty() && once.constFirst().up.pass == 1;
    const bool mustLieUp = feed.inTray == HandFeed::Printed::Up;
    return printed(isUp == mustLieUp ? once : turnedOver(once), 2, sides, feed);
}

/// What lies in the bin after one pass, turned so that its prints can be read.
inline Stack printedOnce(int sides, const HandFeed &feed)
{
    const Stack once = printed({}, 1, sides, feed);
    return feed.inBin == HandFeed::Printed::Up ? once : turnedOver(once);
}

} // namespace corvana::test
