#pragma once

#include <QSize>

class QWidget;

namespace corvana {

/// The size that the user last gave the dialog; `usual` when there is none. Neither is ever larger
/// than the free area of the `screen`. Units: pixels.
QSize rememberedWindowSize(const QSize &usual, const QSize &screen);

/// Keeps a size for the next dialog, as far as it is another one than the dialog was `given`: what
/// a small screen forced on it is nobody's wish. Preferences that cannot be written are logged and
/// no more.
void rememberWindowSize(const QSize &size, const QSize &given = {});

/// Cuts and moves a window that shows, so that all of it, its frame included, is on the free area
/// of its screen.
void keepOnScreen(QWidget *window);

} // namespace corvana
