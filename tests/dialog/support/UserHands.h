#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

namespace corvana::test {

/// What somebody does to a window with a mouse and a keyboard, and how much of it that was: events
/// go the way of real ones, to what can be seen and is enabled, or to what has the focus. A turn of
/// a wheel to bring a control into sight counts as a click.
///
/// Errors: each answers false where a user could not have done it.
class UserHands
{
public:
    /// Borrows the window.
    explicit UserHands(QWidget &window) : m_window(window) {}

    int clicks() const { return m_clicks; }
    int keys() const { return m_keys; }
    /// Somebody else has answered an alert.
    void addClicks(int clicks) { m_clicks += clicks; }

    bool click(const QString &name);
    bool click(QWidget *widget, QPoint place);
    /// Opens a pop-up and clicks its item.
    bool choose(const QString &name, const QString &item);
    /// The same with the menu of a button.
    bool pick(const QString &button, const QString &action);
    /// The same in the list of printers.
    bool choosePrinter(const QString &printer);
    bool turnTo(int page);

    bool key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    bool type(const QString &text);
    /// Presses Tab until the control of this name has the focus.
    bool tabTo(const QString &name);

private:
    bool bringIntoSight(QWidget *widget);

    QWidget &m_window;
    int m_clicks = 0;
    int m_keys = 0;
};

} // namespace corvana::test
