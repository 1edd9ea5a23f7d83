#include "dialog/window/WindowGrowth.h"

#include <QScreen>
#include <QWidget>

namespace corvana {

void WindowGrowth::follow(int missing)
{
    if (missing < 0)
        return growBy(-qMin(-missing, m_height)); // the height that the user gave stays the user's
    // Beyond the screen the page scrolls.
    const int room =
        m_window.screen()->availableGeometry().bottom() - m_window.frameGeometry().bottom();
    growBy(qBound(0, missing, qMax(0, room)));
}

void WindowGrowth::giveBack()
{
    growBy(-m_height);
}

void WindowGrowth::resized(QSize size)
{
    if (size != m_followed)
        m_height = 0;
}

void WindowGrowth::growBy(int pixels)
{
    if (pixels == 0)
        return;
    m_height += pixels;
    m_followed = m_window.size() + QSize(0, pixels);
    m_window.resize(m_followed);
}

} // namespace corvana
