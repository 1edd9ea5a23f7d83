#include "dialog/window/preview/SheetView.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace corvana {

bool SheetView::event(QEvent *event)
{
    // The keys of the view, which a shortcut of the window would have taken.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() == Qt::NoModifier &&
            (key->key() == Qt::Key_Home || key->key() == Qt::Key_End))
            event->accept();
    }
    return QAbstractScrollArea::event(event);
}

void SheetView::keyPressEvent(QKeyEvent *event)
{
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier || m_layout.sheets() == 0 || !moveByKey(event->key()))
        event->ignore(); // the window's keys, Enter and Escape among them
}

bool SheetView::moveByKey(int key)
{
    const int onward = isRightToLeft() ? -1 : 1;
    const int perRow = m_layout.columns();
    switch (key) {
    case Qt::Key_Right:
        step(onward);
        return true;
    case Qt::Key_Left:
        step(-onward);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up: {
        const int direction = key == Qt::Key_Down ? 1 : -1;
        if (scrollsWithinSide(direction))
            return true;
        SideIndex next{m_current.sheet + direction * perRow, m_current.isBack};
        if (next.sheet >= m_layout.sheets() &&
            m_current.sheet / perRow < (m_layout.sheets() - 1) / perRow)
            next.sheet = m_layout.sheets() - 1;
        if (next.sheet >= 0 && next.sheet < m_layout.sheets())
            setCurrent(sideOf(m_sheets.plan, next) ? next : SideIndex{next.sheet});
        return true;
    }
    case Qt::Key_Space:
        if (markOf(m_current).isEmpty())
            return false;
        Q_EMIT markPressed(markOf(m_current));
        return true;
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        turnPage(key == Qt::Key_PageDown ? 1 : -1);
        return true;
    case Qt::Key_Home:
        setCurrent({0});
        return true;
    case Qt::Key_End: {
        const SideIndex back{m_layout.sheets() - 1, true};
        setCurrent(sideOf(m_sheets.plan, back) ? back : SideIndex{back.sheet});
        return true;
    }
    default:
        return false;
    }
}

// A side that is higher than the view is read before the keys go on to the next one.
bool SheetView::scrollsWithinSide(int direction)
{
    const QRect paper = m_layout.paper(m_current).translated(-offset());
    QScrollBar *bar = verticalScrollBar();
    const bool hides = direction > 0 ? paper.bottom() >= viewport()->height() : paper.top() < 0;
    if (paper.height() <= viewport()->height() || !hides || !paper.intersects(viewport()->rect()))
        return false;
    bar->setValue(bar->value() + direction * bar->singleStep());
    return true;
}

void SheetView::step(int sides)
{
    const bool isTwoSided = sideOf(m_sheets.plan, {m_current.sheet, true});
    SideIndex next = m_current;
    if (sides > 0 && isTwoSided && !m_current.isBack)
        next.isBack = true;
    else if (sides < 0 && m_current.isBack)
        next.isBack = false;
    else
        next = {m_current.sheet + sides, false};
    if (sides < 0 && next.sheet != m_current.sheet && sideOf(m_sheets.plan, {next.sheet, true}))
        next.isBack = true;
    if (sideOf(m_sheets.plan, next))
        setCurrent(next);
}

void SheetView::turnPage(int direction)
{
    QScrollBar *bar = verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + direction * (bar->pageStep() - fontMetrics().height()));
    if (bar->value() == before)
        return setCurrent({direction > 0 ? m_layout.sheets() - 1 : 0});
    const auto [first, last] = m_layout.sheetsBetween(seenPart().top(), seenPart().bottom());
    if (m_current.sheet < first || m_current.sheet > last) {
        m_current = {direction > 0 ? first : last};
        updateCurrent();
    }
}

void SheetView::setCurrent(SideIndex side)
{
    if (!sideOf(m_sheets.plan, side))
        return;
    if (side != m_current) {
        m_current = side;
        updateCurrent();
    }
    showCurrent();
}

void SheetView::updateCurrent()
{
    describeCurrent();
    viewport()->update();
    tellLookedAt();
}

// The current side is framed; of one that is larger than the view, or was scrolled away, nothing of
// that is seen.
bool SheetView::isFocusOutOfSight() const
{
    if (!hasFocus() || m_sheets.plan.sheets.isEmpty())
        return false;
    const QRect paper = m_layout.paper(m_current).translated(-offset());
    const QRect seen = viewport()->rect();
    return !paper.intersects(seen) || paper.contains(seen);
}

// Its name is what a screen reader says of the control that has the focus, and says again when it
// has become another one.
void SheetView::describeCurrent()
{
    const QString side = sideDescription(m_sheets.plan, m_sheets.titles, m_current);
    const QString mark = markOf(m_current);
    const QString text = mark.isEmpty() ? side : tr("%1. Note: %2").arg(side, mark);
    const QString name = side.isEmpty() ? tr("Preview") : tr("Preview. %1").arg(text);
    // The same name again would be read again.
    if (name != accessibleName())
        setAccessibleName(name);
}

void SheetView::showCurrent()
{
    const QRect sheet = m_layout.sheet(m_current.sheet);
    const QRect paper = m_layout.paper(m_current);
    const QRect seen = seenPart();
    const int margin = fontMetrics().height() / 2;
    QScrollBar *bar = verticalScrollBar();
    if (sheet.height() > seen.height() || sheet.top() < seen.top())
        bar->setValue(sheet.top() - margin);
    else if (sheet.bottom() > seen.bottom())
        bar->setValue(sheet.bottom() + margin - seen.height());
    QScrollBar *across = horizontalScrollBar();
    const auto place = [&](int left) {
        across->setValue(isRightToLeft() ? across->maximum() - left : left);
    };
    if (paper.width() > seen.width() || paper.left() < seen.left())
        place(paper.left() - margin);
    else if (paper.right() > seen.right())
        place(paper.right() + margin - seen.width());
}

void SheetView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(event);
    // A touch pad tells less than a step at a time.
    m_wheel += event->angleDelta().y();
    const int steps = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel -= steps * QWheelEvent::DefaultDeltasPerStep;
    for (int i = 0; i < qAbs(steps); ++i)
        zoomBy(steps > 0 ? 1 : -1, event->position().toPoint());
    event->accept();
}

void SheetView::mousePressEvent(QMouseEvent *event)
{
    const SideIndex side = m_layout.sideAt(offset() + event->position().toPoint());
    if (event->button() != Qt::LeftButton || !side.isValid())
        return event->ignore();
    m_current = side;
    updateCurrent();
    const QString mark = markOf(side);
    if (!mark.isEmpty() && markPlace(side).contains(event->position().toPoint()))
        Q_EMIT markPressed(mark);
}

void SheetView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void SheetView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

} // namespace corvana
