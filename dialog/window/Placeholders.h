#pragma once

#include <QPalette>

namespace corvana {

/// The palette with placeholder texts that can be read. Some platform themes set the colors of
/// texts and of what is behind them, and forget this one, so that in a dark theme it stays black.
QPalette withReadablePlaceholders(QPalette palette);

} // namespace corvana
