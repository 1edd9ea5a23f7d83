#include "platform/toolkit/Stepper.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QWheelEvent>

namespace corvana {

using namespace Qt::StringLiterals;

Stepper::Stepper(QWidget *parent)
    : QAbstractSlider(parent), m_up(addArrow(Qt::UpArrow, SliderSingleStepAdd)),
      m_down(addArrow(Qt::DownArrow, SliderSingleStepSub))
{
    setOrientation(Qt::Vertical);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    enableArrows();
}

QToolButton *Stepper::addArrow(Qt::ArrowType arrow, SliderAction action)
{
    auto *button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(arrow == Qt::UpArrow ? u"+"_s : u"−"_s); // in every language
    connect(button, &QToolButton::clicked, this, [this, action] { triggerAction(action); });
    return button;
}

void Stepper::setField(QLineEdit *field)
{
    field->installEventFilter(this);
    setFocusPolicy(Qt::NoFocus);
}

bool Stepper::eventFilter(QObject *watched, QEvent *event)
{
    const auto *field = static_cast<const QWidget *>(watched);
    const bool steps = isEnabled() && field->isEnabled() && field->hasFocus();
    if (steps && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
            key == Qt::Key_PageDown) {
            keyPressEvent(static_cast<QKeyEvent *>(event));
            return true;
        }
    } else if (steps && event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent *>(event)); // called, not sent: the guard would stop it
        event->accept();                               // at either end the page must not scroll
        return true;
    }
    return QAbstractSlider::eventFilter(watched, event);
}

QSize Stepper::sizeHint() const
{
    const int height = fontMetrics().height();
    return {height + 4, 2 * (height * 3 / 4)};
}

QSize Stepper::minimumSizeHint() const
{
    return sizeHint();
}

void Stepper::resizeEvent(QResizeEvent *)
{
    const int half = height() / 2;
    m_up->setGeometry(0, 0, width(), half);
    m_down->setGeometry(0, half, width(), height() - half);
}

void Stepper::sliderChange(SliderChange change)
{
    QAbstractSlider::sliderChange(change);
    enableArrows();
}

void Stepper::enableArrows()
{
    m_up->setEnabled(value() < maximum());
    m_down->setEnabled(value() > minimum());
}

} // namespace corvana
