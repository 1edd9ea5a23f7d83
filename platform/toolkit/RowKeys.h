#pragma once

#include <optional>

#include "platform/PlatformExport.h"

namespace corvana {

/// The row of a list that a key leads to, for lists whose keys are pressed in a field beside them.
/// Such a list is not sent the key itself: one that it cannot use, such as Up on the first row, it
/// would pass on to its parents, and so back to the field.
///
/// `row`: the one that is highlighted, -1 for none: then every key but End leads to the first.
/// `last`: of the list, -1 for an empty one. `page`: how many rows are seen, at least 1.
/// Answers nothing for an empty list and for other keys than Up, Down, Page Up, Page Down, Home and
/// End (Qt::Key).
CORVANA_PLATFORM_EXPORT std::optional<int> rowAfterKey(int key, int row, int last, int page);

} // namespace corvana
