#pragma once

#include <QString>

#include "dialog/window/PrintWindow.h"

namespace corvana::test {

/// What of the things that hold in a print window at any moment does not: every mark stands in the
/// print settings and is what the controls show that are seen; the summary that is seen is that of
/// the job, line by line; nothing above a page is disabled; the focus is on something that can be
/// used; Print and Cancel are in the window. Null where all of it holds.
QString brokenInvariant(PrintWindow &window);

/// Whether the focus is out of sight: null where it is seen, and where the window does not have it.
/// Somebody may scroll it away, or make the window smaller; but nothing that was just given the
/// focus may be out of sight.
QString unseenFocus(const PrintWindow &window);

} // namespace corvana::test
