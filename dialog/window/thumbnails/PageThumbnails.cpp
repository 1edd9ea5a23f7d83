#include "dialog/window/thumbnails/PageThumbnails.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QScroller>
#include <QStyle>

#include "dialog/preview/PagePictures.h"
#include "dialog/window/thumbnails/PageDelegate.h"
#include "dialog/window/thumbnails/PageModel.h"

namespace corvana {

using namespace Qt::StringLiterals;

PageThumbnails::PageThumbnails(PageModel &model, PagePictures &pictures, QWidget *parent)
    : QListView(parent), m_model(model), m_pictures(pictures),
      m_delegate(new PageDelegate(pictures, this))
{
    setObjectName(u"thumbnails"_s);
    setAccessibleName(tr("Pages"));
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setMovement(Static);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Or the width would be another one with the bar than without it, on which it depends.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    setItemDelegate(m_delegate);
    m_asking.setSingleShot(true);
    m_asking.setInterval(0);
    connect(&m_asking, &QTimer::timeout, this, &PageThumbnails::askForPictures);
    connect(&m_pictures, &PagePictures::drawn, this, &PageThumbnails::pictureDrawn);
    setWidths();
    setModel(&m_model);
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] { m_asking.start(); });
    connect(&m_model, &QAbstractItemModel::dataChanged, this, [this] { m_asking.start(); });
}

// As many beside each other as have room, and the rest of the room shared among them.
void PageThumbnails::setWidths()
{
    const int room = viewport()->width() - 1;
    const int least = PageDelegate::leastWidth(fontMetrics());
    const int columns = qMax(1, room / least);
    m_delegate->setWidths(room, qMax(least, room / columns));
    verticalScrollBar()->setSingleStep(3 * fontMetrics().height());
}

void PageThumbnails::resizeEvent(QResizeEvent *event)
{
    setWidths();
    QListView::resizeEvent(event);
    scheduleDelayedItemsLayout();
    m_asking.start();
}

void PageThumbnails::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setWidths();
        scheduleDelayedItemsLayout();
    }
}

void PageThumbnails::showEvent(QShowEvent *event)
{
    QListView::showEvent(event);
    m_asking.start();
}

void PageThumbnails::hideEvent(QHideEvent *event)
{
    QListView::hideEvent(event);
    m_asking.stop();
    m_pictures.want({});
}

void PageThumbnails::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    m_asking.start();
}

// Somebody who comes by keyboard sees where he is.
void PageThumbnails::focusInEvent(QFocusEvent *event)
{
    if (!currentIndex().isValid())
        setCurrentIndex(enabledFrom(0, 1));
    QListView::focusInEvent(event);
    viewport()->update();
}

QModelIndex PageThumbnails::enabledFrom(int row, int step) const
{
    for (; row >= 0 && row < m_model.rowCount(); row += step) {
        const QModelIndex index = m_model.index(row);
        if (index.flags().testFlag(Qt::ItemIsEnabled))
            return index;
    }
    return {};
}

// In a row and on into the next one, as pages are read.
QModelIndex PageThumbnails::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int row = currentIndex().row();
    const int onward = isRightToLeft() ? -1 : 1;
    QModelIndex next;
    switch (action) {
    case MoveRight:
        next = enabledFrom(row + onward, onward);
        break;
    case MoveLeft:
        next = enabledFrom(row - onward, -onward);
        break;
    case MoveHome:
        next = enabledFrom(0, 1);
        break;
    case MoveEnd:
        next = enabledFrom(m_model.rowCount() - 1, -1);
        break;
    default:
        next = QListView::moveCursor(action, modifiers);
    }
    return next.isValid() ? next : currentIndex();
}

void PageThumbnails::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) {
        tick(currentIndex(), event->modifiers());
        return event->accept();
    }
    QListView::keyPressEvent(event);
}

void PageThumbnails::tick(const QModelIndex &index, Qt::KeyboardModifiers modifiers)
{
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
        return;
    if (modifiers.testFlag(Qt::ShiftModifier) && m_anchor.isValid())
        return m_model.tickRun(m_anchor, index, m_anchorTicks);
    m_anchor = index;
    m_anchorTicks = index.data(Qt::CheckStateRole).toInt() != Qt::Checked;
    m_model.tickRun(index, index, m_anchorTicks);
}

void PageThumbnails::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.flags().testFlag(Qt::ItemIsEnabled))
        return event->ignore();
    setCurrentIndex(index);
    tick(index, event->modifiers());
}

// A list would select what is dragged over.
void PageThumbnails::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
}

void PageThumbnails::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

// Two quick clicks are two clicks.
void PageThumbnails::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

// The first row that ends below a height in the viewport. Rows follow each other downwards.
int PageThumbnails::firstRowAt(int height) const
{
    int first = 0;
    int behind = m_model.rowCount();
    while (first < behind) {
        const int middle = first + (behind - first) / 2;
        if (visualRect(m_model.index(middle)).bottom() < height)
            first = middle + 1;
        else
            behind = middle;
    }
    return first;
}

std::pair<int, int> PageThumbnails::seenRows() const
{
    const int first = firstRowAt(0);
    int last = first - 1;
    while (last + 1 < m_model.rowCount() &&
           visualRect(m_model.index(last + 1)).top() < viewport()->height())
        ++last;
    return {first, last};
}

// What is seen first, then what comes next when somebody scrolls.
void PageThumbnails::askForPictures()
{
    if (!isVisible())
        return;
    QList<PageToDraw> pages;
    const double ratio = devicePixelRatioF();
    const auto add = [&](int row) {
        const QModelIndex index = m_model.index(row);
        const QString file = index.data(PageModel::FileRole).toString();
        if (!file.isEmpty() && m_model.isDescribed(file))
            pages += PageDelegate::pictureOf(index, fontMetrics(), ratio);
    };
    const auto [first, last] = seenRows();
    for (int row = first; row <= last; ++row)
        add(row);
    const int around = last - first + 1;
    for (int row = last + 1; row <= last + around && row < m_model.rowCount(); ++row)
        add(row);
    for (int row = first - 1; row >= 0 && row >= first - around; --row)
        add(row);
    m_pictures.want(pages);
}

void PageThumbnails::pictureDrawn(const QString &file, int page)
{
    const auto [first, last] = seenRows();
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model.index(row);
        if (index.data(PageModel::PageRole).toInt() == page + 1 &&
            index.data(PageModel::FileRole).toString() == file)
            update(index);
    }
}

} // namespace corvana
