#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/ScreenReader.h"

#include <QLabel>
#include <QMouseEvent>
#include <QStyleOption>
#include <QStylePainter>

namespace corvana {

DisclosureButton::DisclosureButton(QWidget *parent) : QPushButton(parent)
{
    setAccessibleRole(this, QAccessible::Button);
    setCheckable(true);
    setAutoDefault(false); // Return is for the dialog's own button
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::toggled, this, [this] {
        QAccessible::State changed;
        changed.expanded = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    });
}

void DisclosureButton::setHeading(QLabel *heading)
{
    heading->installEventFilter(this);
    heading->setBuddy(this);
    // Beside the button, also words of a language that is written the other way than the window.
    heading->setAlignment(QStyle::visualAlignment(heading->layoutDirection(), Qt::AlignLeft) |
                          Qt::AlignAbsolute | Qt::AlignVCenter);
}

bool DisclosureButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && isEnabled()) {
        const auto *release = static_cast<QMouseEvent *>(event);
        const QRect heading = static_cast<QWidget *>(watched)->rect();
        if (release->button() == Qt::LeftButton && heading.contains(release->position().toPoint()))
            click();
        return true;
    }
    return QPushButton::eventFilter(watched, event);
}

QSize DisclosureButton::sizeHint() const
{
    const int side = fontMetrics().height();
    return {side, side};
}

QSize DisclosureButton::minimumSizeHint() const
{
    return sizeHint();
}

void DisclosureButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = rect().adjusted(2, 2, -2, -2);
    const auto sideways = layoutDirection() == Qt::RightToLeft ? QStyle::PE_IndicatorArrowLeft
                                                               : QStyle::PE_IndicatorArrowRight;
    painter.drawPrimitive(isChecked() ? QStyle::PE_IndicatorArrowDown : sideways, arrow);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace corvana
