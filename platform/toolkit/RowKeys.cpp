#include "platform/toolkit/RowKeys.h"

#include <algorithm>

#include <Qt>

namespace corvana {

std::optional<int> rowAfterKey(int key, int row, int last, int page)
{
    if (last < 0)
        return std::nullopt;
    const auto within = [last](int wanted) { return std::clamp(wanted, 0, last); };
    switch (key) {
    case Qt::Key_Up:
        return within(row - 1);
    case Qt::Key_Down:
        return within(row + 1);
    case Qt::Key_PageUp:
        return within(row - page);
    case Qt::Key_PageDown:
        return within(row < 0 ? 0 : row + page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

} // namespace corvana
