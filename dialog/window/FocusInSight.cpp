#include "dialog/window/FocusInSight.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace corvana {

namespace {

QRect placeIn(const QScrollArea &area, const QWidget &control)
{
    return {control.mapTo(area.widget(), QPoint()), control.size()};
}

// The areas in which a control scrolls, the innermost one first.
QList<QScrollArea *> areasAround(const QWidget *control)
{
    QList<QScrollArea *> areas;
    for (QWidget *above = control->parentWidget(); above; above = above->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(above);
        if (area && area->widget() && area->widget()->isAncestorOf(control))
            areas += area;
    }
    return areas;
}

bool isInSight(const QWidget *control)
{
    const QList<QScrollArea *> areas = areasAround(control);
    return std::all_of(areas.cbegin(), areas.cend(), [control](const QScrollArea *area) {
        const QRect place = placeIn(*area, *control).translated(area->widget()->pos());
        return area->viewport()->rect().intersects(place);
    });
}

bool isHandAtWork()
{
    return QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget();
}

} // namespace

void scrollIntoSight(QWidget *control)
{
    for (QScrollArea *area : areasAround(control)) {
        const QRect place = placeIn(*area, *control);
        const QRect shown(-area->widget()->pos(), area->viewport()->size());
        if ((shown & place).size() == place.size().boundedTo(shown.size()))
            continue;
        // With a little of what lies around it, where there is room for that.
        const int beside = std::min(place.width() / 2 + 1, shown.width() / 2);
        const int above =
            std::min(place.height() / 2 + area->fontMetrics().height(), shown.height() / 2);
        area->ensureVisible(place.center().x(), place.center().y(), beside, above);
    }
}

/// One control that has the focus.
class FocusInSight::Watch : public QObject
{
public:
    explicit Watch(QWidget *control) : m_control(control)
    {
        m_soon.setSingleShot(true);
        connect(&m_soon, &QTimer::timeout, this, [this] { bringIntoSight(); });
        for (QScrollArea *area : areasAround(control))
            watch(area);
        if (m_above.isEmpty())
            return;
        wait();
        m_soon.start(0);
    }

    const QWidget *control() const { return m_control; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonRelease:
            if (m_isWaiting)
                m_soon.start(QApplication::doubleClickInterval());
            break;
        case QEvent::Hide: // of a menu, in which buttons are pressed
        case QEvent::FocusIn:
            if (m_isWaiting && !m_soon.isActive())
                m_soon.start(0);
            break;
        case QEvent::Move:
            if (!m_scrolled.contains(watched))
                moved(watched);
            break;
        case QEvent::Resize:
            moved(watched);
            break;
        default:
            break;
        }
        return false;
    }

private:
    void watch(QScrollArea *area)
    {
        for (QWidget *one = m_control; one != area; one = one->parentWidget()) {
            if (m_above.contains(one))
                continue;
            m_above += one;
            one->installEventFilter(this);
        }
        m_scrolled += area->widget();
        for (QScrollBar *bar : {area->verticalScrollBar(), area->horizontalScrollBar()})
            connect(
                bar, &QAbstractSlider::actionTriggered, this,
                [this] { m_isKept = m_control && isInSight(m_control); }, Qt::QueuedConnection);
    }

    // What was clicked stays under the mouse until the clicks are over, and a menu beside what it
    // belongs to.
    void wait()
    {
        if (m_isWaiting)
            return;
        m_isWaiting = true;
        qApp->installEventFilter(this);
    }

    void moved(QObject *watched)
    {
        if (!m_above.contains(watched) || m_soon.isActive())
            return;
        wait();
        m_soon.start(0);
    }

    void bringIntoSight()
    {
        if (isHandAtWork())
            return;
        m_isWaiting = false;
        qApp->removeEventFilter(this);
        if (m_isKept && m_control && m_control->isVisible())
            scrollIntoSight(m_control);
    }

    QPointer<QWidget> m_control;
    QList<QObject *> m_above; // the control and what it lies in, up to the outermost view
    QList<QObject *> m_scrolled;
    QTimer m_soon;
    bool m_isWaiting = false;
    bool m_isKept = true; // nobody has scrolled away from it
};

FocusInSight::FocusInSight(QWidget *window) : QObject(window), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
}

FocusInSight::~FocusInSight() = default;

// A list that pops up has the focus for a while, and so have other windows.
void FocusInSight::follow(QWidget *focus)
{
    const bool isHere = focus && m_window->isAncestorOf(focus);
    if (isHere && !(m_watch && m_watch->control() == focus))
        m_watch = std::make_unique<Watch>(focus);
}

} // namespace corvana
