#pragma once

#include <QString>

namespace corvana {

/// Why there is no picture of a page.
enum class PageTrouble {
    None,
    Damaged,
    TooLarge,
    TakesTooLong,
    PasswordNeeded,
    Unreadable,
    NoRenderer, ///< the program that draws pages does not run
};

/// A sentence for the place of the picture; empty for None.
QString pageTroubleText(PageTrouble trouble);

} // namespace corvana
