#include "dialog/window/find/FoundMark.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSeen = 1500; // milliseconds until the eye has found it
constexpr int kFade = 400;  // milliseconds
constexpr int kMargin = 3;  // pixels around the control
constexpr int kWidth = 2;   // pixels

QRect aroundIn(const QWidget *control, const QWidget *holder)
{
    return QRect(control->mapTo(holder, QPoint(0, 0)), control->size())
        .adjusted(-kMargin, -kMargin, kMargin, kMargin);
}

QPointer<FoundMark> &shownMark()
{
    static QPointer<FoundMark> mark;
    return mark;
}

} // namespace

FoundMark::FoundMark(QWidget *parent, QWidget *control) : QWidget(parent), m_control(control)
{
    setObjectName(u"foundMark"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    delete shownMark();
    shownMark() = this;
}

void FoundMark::show(QWidget *control)
{
    // In what has room for it: what holds the control may be just as large, and would cut it off.
    QWidget *holder = control->parentWidget();
    while (holder && !holder->isWindow() && !holder->rect().contains(aroundIn(control, holder)))
        holder = holder->parentWidget();
    if (!holder)
        return;
    auto *mark = new FoundMark(holder, control);
    connect(control, &QObject::destroyed, mark, &QObject::deleteLater);
    for (QWidget *moved = control; moved != holder; moved = moved->parentWidget())
        moved->installEventFilter(mark);
    mark->follow();
    mark->begin();
}

void FoundMark::show(QWidget *view, const QRect &part)
{
    auto *mark = new FoundMark(view, nullptr);
    mark->setGeometry(part & view->rect());
    mark->begin();
}

void FoundMark::begin()
{
    raise();
    QWidget::show();
    m_end.setSingleShot(true);
    m_end.start(kSeen);
    connect(&m_end, &QTimer::timeout, this, [this] {
        if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) <= 0)
            return deleteLater();
        auto *fade = new QVariantAnimation(this);
        fade->setDuration(kFade);
        fade->setStartValue(1.0);
        fade->setEndValue(0.0);
        connect(fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
            m_opacity = value.toDouble();
            update();
        });
        connect(fade, &QVariantAnimation::finished, this, &QObject::deleteLater);
        fade->start();
    });
}

void FoundMark::follow()
{
    if (m_control)
        setGeometry(aroundIn(m_control, parentWidget()));
}

bool FoundMark::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        follow();
    else if (watched == m_control && event->type() == QEvent::Hide)
        deleteLater();
    return QWidget::eventFilter(watched, event);
}

void FoundMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity);
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), kWidth));
    const double half = kWidth / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), kMargin, kMargin);
}

} // namespace corvana
