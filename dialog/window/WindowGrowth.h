#pragma once

#include <QSize>

class QWidget;

namespace corvana {

/// The height that a window has beyond the one its user gave it, because a panel has disclosed
/// more; it is given back when the panel needs it no longer, and is never remembered.
class WindowGrowth
{
public:
    /// Borrows the window.
    explicit WindowGrowth(QWidget &window) : m_window(window) {}

    /// Follows a page that lacks height, or has a surplus of it (negative), as far as the screen
    /// reaches. Units: pixels.
    void follow(int missing);
    /// Gives everything back: a page was entered that needs nothing.
    void giveBack();
    /// The window has another size: where that was not follow()'s doing, it is the user's.
    void resized(QSize size);
    /// Units: pixels.
    int height() const { return m_height; }

private:
    void growBy(int pixels);

    QWidget &m_window;
    int m_height = 0;
    QSize m_followed; // the window's size when it followed a page last
};

} // namespace corvana
