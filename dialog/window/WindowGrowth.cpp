#include "dialog/window/WindowGrowth.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "dialog/window/WindowSize.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// By how much a window can grow at its lower edge. Wayland tells no window where it is: half of
// what the screen has left is there for one in its middle, where compositors put dialogs.
int roomBelow(const QWidget &window)
{
    const QRect screen = window.screen()->availableGeometry();
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        return qMax(0, screen.height() - window.frameGeometry().height()) / 2;
    return qMax(0, screen.bottom() - window.frameGeometry().bottom());
}

} // namespace

void WindowGrowth::open(QSize usual)
{
    m_given = rememberedWindowSize(usual, m_window.screen()->availableSize());
    m_window.resize(m_given);
}

void WindowGrowth::keepOnScreen()
{
    const bool asOpened = m_window.size() == m_given;
    corvana::keepOnScreen(&m_window);
    if (asOpened)
        m_given = m_window.size();
}

void WindowGrowth::remember() const
{
    const bool maximized = m_window.isMaximized();
    const QSize own = maximized ? m_window.normalGeometry().size() : m_window.size();
    rememberWindowSize({own.width(), own.height() - (maximized ? 0 : m_height)}, m_given);
}

void WindowGrowth::follow(int missing)
{
    if (missing < 0)
        return growBy(-qMin(-missing, m_height)); // the height that the user gave stays the user's
    // Beyond the screen the page scrolls.
    growBy(qBound(0, missing, roomBelow(m_window)));
}

void WindowGrowth::giveBack()
{
    growBy(-m_height);
}

void WindowGrowth::resized(QSize size)
{
    if (size != m_followed)
        m_height = 0;
    // A window is never smaller than its contents. Where these have made it larger, nobody has.
    const QSize least = m_window.minimumSize();
    if (size.width() == least.width())
        m_given.setWidth(qMax(m_given.width(), size.width()));
    if (size.height() == least.height())
        m_given.setHeight(qMax(m_given.height(), size.height()));
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
