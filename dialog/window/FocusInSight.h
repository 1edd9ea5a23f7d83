#pragma once

#include <memory>

#include <QObject>

class QWidget;

namespace corvana {

/// Scrolls whatever the control lies in until the whole of it is seen, as far as there is room.
/// Unlike QScrollArea::ensureWidgetVisible, which is content with the cursor of a text field.
void scrollIntoSight(QWidget *control);

/// Keeps the control of a window that has the focus in sight. A focus that comes by a click, from a
/// program or back from a disabled control is scrolled to as one that comes by Tab; and what makes
/// the page shorter, or moves its rows, takes no control away from whoever works it. Who scrolls
/// away from it stays there.
class FocusInSight : public QObject
{
public:
    explicit FocusInSight(QWidget *window);
    ~FocusInSight() override;

private:
    class Watch;

    void follow(QWidget *focus);

    QWidget *m_window;
    std::unique_ptr<Watch> m_watch; // of the control that had the focus last
};

} // namespace corvana
