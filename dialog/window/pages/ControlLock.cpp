#include "dialog/window/pages/ControlLock.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionSpinBox>

#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kLockName{"controlLock"};

// A picture of a padlock over the part of a control that would open or step it.
class LockMark : public QWidget
{
public:
    explicit LockMark(QWidget *control) : QWidget(control)
    {
        setObjectName(u"lockMark"_s);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const bool isButton = qobject_cast<QAbstractButton *>(parentWidget()) != nullptr;
        const bool isField =
            parentWidget()->inherits("QLineEdit") || parentWidget()->inherits("QAbstractSpinBox");
        if (!isButton && !parentWidget()->inherits("QAbstractSlider"))
            painter.fillRect(rect(), palette().color(isField ? QPalette::Base : QPalette::Button));
        const int size = qMin(width(), height());
        const QColor color = palette().color(isField ? QPalette::Text : QPalette::ButtonText);
        const qreal ratio = devicePixelRatioF();
        painter.drawPixmap((width() - size) / 2, (height() - size) / 2,
                           lockPicture(qRound(size * ratio), color, ratio));
    }
};

// Keys that go elsewhere and change nothing here.
bool leadsAway(const QKeyEvent &key)
{
    switch (key.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F1:
    case Qt::Key_F6:
        return true;
    default:
        return false;
    }
}

// A field that can be read and copied from by keyboard and mouse, and nothing else.
bool becomesReadOnly(QWidget *widget, bool readOnly)
{
    if (auto *field = qobject_cast<QLineEdit *>(widget)) {
        field->setReadOnly(readOnly);
        return true;
    }
    if (auto *number = qobject_cast<QAbstractSpinBox *>(widget)) {
        number->setReadOnly(readOnly);
        return true;
    }
    return false;
}

} // namespace

QPixmap lockPicture(int size, const QColor &color, qreal ratio)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 16.0, size / 16.0);
    QPen pen(color, 1.8);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    QPainterPath shackle;
    shackle.moveTo(5, 8);
    shackle.lineTo(5, 5.5);
    shackle.arcTo(QRectF(5, 2.5, 6, 6), 180, -180);
    shackle.lineTo(11, 8);
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(3, 7.5, 10, 7), 1.2, 1.2);
    painter.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

ControlLock::ControlLock(QWidget *control, QWidget *label)
    : QObject(control), m_control(control), m_label(label), m_mark(new LockMark(control)),
      m_toolTip(control->toolTip()), m_labelToolTip(label ? label->toolTip() : QString()),
      m_description(control->accessibleDescription())
{
    setObjectName(kLockName);
    watch(control);
    const QList<QWidget *> children = control->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child != m_mark)
            watch(child);
    }
    if (const auto *slider = qobject_cast<QAbstractSlider *>(control))
        connect(slider, &QAbstractSlider::valueChanged, this, &ControlLock::placeMark);
    placeMark();
    m_mark->show();
}

ControlLock::~ControlLock()
{
    delete m_mark;
}

void ControlLock::set(QWidget *control, const QString &why, QWidget *label)
{
    if (!control)
        return;
    auto *lock = control->findChild<ControlLock *>(kLockName, Qt::FindDirectChildrenOnly);
    if (why.isEmpty()) {
        if (!lock)
            return;
        becomesReadOnly(control, false);
        const QList<QWidget *> children = control->findChildren<QWidget *>();
        for (QWidget *child : children)
            becomesReadOnly(child, false);
        control->setToolTip(lock->m_toolTip);
        control->setAccessibleDescription(lock->m_description);
        if (lock->m_label)
            lock->m_label->setToolTip(lock->m_labelToolTip);
        if (auto *field = qobject_cast<QLineEdit *>(control))
            field->setTextMargins({});
        delete lock;
        return;
    }
    if (!lock)
        lock = new ControlLock(control, label);
    lock->say(why);
}

bool ControlLock::isLocked(const QWidget *control)
{
    return control->findChild<ControlLock *>(kLockName, Qt::FindDirectChildrenOnly) != nullptr;
}

void ControlLock::watch(QWidget *widget)
{
    becomesReadOnly(widget, true);
    widget->installEventFilter(this);
}

void ControlLock::say(const QString &why)
{
    if (m_why == why)
        return;
    m_why = why;
    const QString toolTip = plainToolTip(why);
    m_control->setToolTip(toolTip);
    if (m_label)
        m_label->setToolTip(toolTip);
    m_control->setAccessibleDescription(m_description.isEmpty() ? why
                                                                : m_description + u'\n' + why);
}

void ControlLock::placeMark()
{
    if (!m_mark)
        return;
    const int size = qMin(m_control->fontMetrics().height(), m_control->height() - 4);
    QRect place(m_control->width() - size - 3, (m_control->height() - size) / 2, size, size);
    if (const auto *popUp = qobject_cast<QComboBox *>(m_control)) {
        QStyleOptionComboBox option;
        option.initFrom(popUp);
        option.editable = popUp->isEditable();
        const QRect arrow = popUp->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxArrow, popUp);
        if (arrow.width() >= size)
            place = arrow.adjusted(1, 3, -3, -3);
    } else if (auto *button = qobject_cast<QAbstractButton *>(m_control)) {
        // Behind the words, for which the button gets the room where its owner lets it.
        const int words = button->sizeHint().width();
        button->setMinimumWidth(words + size + 4);
        place.moveLeft(qMin(words + 2, button->width() - size));
    } else if (const auto *slider = qobject_cast<QAbstractSlider *>(m_control)) {
        // At the end where the handle is not.
        const int handle = slider->sliderPosition();
        if (handle - slider->minimum() > slider->maximum() - handle)
            place.moveLeft(3);
    } else if (auto *field = qobject_cast<QLineEdit *>(m_control)) {
        placeInField(field, size);
        return;
    }
    m_mark->setGeometry(QStyle::visualRect(m_control->layoutDirection(), m_control->rect(), place));
    m_mark->raise();
}

// Opposite to where a text stands at its end, as numbers do; else behind the text, which ends
// before the padlock.
void ControlLock::placeInField(QLineEdit *field, int size)
{
    const int side = qMin(size, field->width() / 3);
    const bool isTextRight =
        (QStyle::visualAlignment(field->layoutDirection(), field->alignment()) & Qt::AlignRight) !=
        0;
    const int left = isTextRight ? 3 : field->width() - side - 3;
    m_mark->setGeometry(left, (field->height() - side) / 2, side, side);
    m_mark->raise();
    const QMargins room = isTextRight ? QMargins(side, 0, 0, 0) : QMargins(0, 0, side, 0);
    if (field->textMargins() != room)
        field->setTextMargins(room);
}

bool ControlLock::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        if (watched == m_control)
            placeMark();
        return false;
    case QEvent::MouseButtonPress:
        if (widget && qobject_cast<QLineEdit *>(widget))
            return false; // to select and copy
        if (widget && (widget->focusPolicy() & Qt::ClickFocus) != 0)
            widget->setFocus(Qt::MouseFocusReason);
        return true;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return !qobject_cast<QLineEdit *>(widget);
    case QEvent::Wheel:
        event->ignore(); // the page scrolls
        return true;
    case QEvent::TouchBegin:
    case QEvent::Drop:
    case QEvent::DragEnter:
        return true;
    case QEvent::Shortcut: // a mnemonic of a button would press it
        if (!qobject_cast<QAbstractButton *>(widget))
            return false;
        widget->setFocus(Qt::ShortcutFocusReason);
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractSpinBox *>(widget))
            return false; // they are read-only
        if (leadsAway(*static_cast<QKeyEvent *>(event)))
            return false;
        event->ignore(); // the window's own keys
        return true;
    default:
        return false;
    }
}

} // namespace corvana
