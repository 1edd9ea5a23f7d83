#pragma once

#include <QSize>

namespace corvana {

/// The size that the user last gave the dialog; `usual` when there is none. One from a larger
/// screen is cut to this one, but not below `usual`. Units: pixels.
QSize rememberedWindowSize(const QSize &usual, const QSize &screen);

/// Keeps a size for the next dialog. Preferences that cannot be written are logged and no more.
void rememberWindowSize(const QSize &size);

} // namespace corvana
