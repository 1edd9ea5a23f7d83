#pragma once

#include <QSize>

class QWidget;

namespace corvana {

/// How large a window is, and by whose wish. What a panel needs beyond the height that the user
/// gave the window is given back when the panel needs it no longer; neither that nor what a small
/// screen forces on the window is remembered.
class WindowGrowth
{
public:
    /// Borrows the window.
    explicit WindowGrowth(QWidget &window) : m_window(window) {}

    /// Gives the window the size that its user left it at, else `usual`. Units: pixels.
    void open(QSize usual);
    /// Moves and cuts a window that has just been shown, so that all of it is on its screen.
    void keepOnScreen();
    /// Keeps the size for the next window.
    void remember() const;

    /// Follows a page that lacks height, or has a surplus of it (negative), as far as the screen
    /// reaches. Units: pixels.
    void follow(int missing);
    /// Gives everything back: a page was entered that needs nothing.
    void giveBack();
    /// The window has another size: where that was not follow()'s doing, it is the user's.
    void resized(QSize size);

private:
    void growBy(int pixels);

    QWidget &m_window;
    int m_height = 0; // beyond the user's
    QSize m_given;    // the window's size when it opened, or what its contents made of that
    QSize m_followed; // the window's size when it followed a page last
};

} // namespace corvana
