#include "dialog/window/preview/SheetView.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QHelpEvent>
#include <QScrollBar>
#include <QScroller>
#include <QStyle>
#include <QToolTip>

#include "dialog/window/preview/SidePictures.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// A layout that is there sooner replaces the former one without a flicker.
constexpr std::chrono::milliseconds kDimAfter{200};

// The steps of the scale, as other viewers have them. Units: percent.
constexpr int kSteps[] = {25, 33, 50, 67, 75, 100, 125, 150, 200, 300, 400};

} // namespace

SheetView::SheetView(QWidget *parent) : QAbstractScrollArea(parent)
{
    setObjectName(u"sheets"_s);
    setAccessibleRole(this, QAccessible::Graphic);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    m_asking.setSingleShot(true);
    m_asking.setInterval(0);
    connect(&m_asking, &QTimer::timeout, this, &SheetView::askForPictures);
    m_dimming.setSingleShot(true);
    m_dimming.setInterval(kDimAfter);
    connect(&m_dimming, &QTimer::timeout, this, [this] {
        m_isDimmed = true;
        viewport()->update();
    });
    describeCurrent();
}

SheetView::~SheetView() = default;

void SheetView::setPictures(SidePictures *pictures)
{
    if (m_pictures)
        m_pictures->disconnect(this);
    m_pictures = pictures;
    if (m_pictures)
        connect(m_pictures, &SidePictures::drawn, this, &SheetView::pictureDrawn);
    m_asking.start();
    viewport()->update();
}

void SheetView::setSheets(const ShownSheets &sheets)
{
    setUpdating(false);
    if (sheets == m_sheets)
        return;
    m_sheets = sheets;
    const int count = static_cast<int>(sheets.plan.sheets.size());
    m_current.sheet = count == 0 ? -1 : std::clamp(m_current.sheet, 0, count - 1);
    if (!sideOf(m_sheets.plan, m_current))
        m_current.isBack = false;
    m_lookedAt = -1;
    layOut();
    describeCurrent();
}

void SheetView::setUpdating(bool updating)
{
    if (!updating) {
        m_dimming.stop();
        if (std::exchange(m_isDimmed, false))
            viewport()->update();
    } else if (!m_isDimmed && !m_dimming.isActive()) {
        m_dimming.start();
    }
}

void SheetView::setColors(const ColorTransform &colors)
{
    if (colors == m_painter.colors())
        return;
    m_painter.setColors(colors);
    viewport()->update();
}

void SheetView::setZoom(const Zoom &zoom)
{
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    const bool isCurrentSeen = m_layout.paper(m_current).intersects(seenPart());
    layOut(nearCurrent({viewport()->width() / 2, 0}));
    if (isCurrentSeen && zoom.fit == Zoom::Fit::Page)
        showCurrent();
    Q_EMIT zoomChanged();
}

// What of the current side is next to a place of the viewport: what was chosen to be looked at must
// not be lost where sheets become larger. The place itself where the current side cannot be seen.
QPoint SheetView::nearCurrent(QPoint place) const
{
    const QRect seen = m_layout.paper(m_current).translated(-offset()) & viewport()->rect();
    if (seen.isEmpty())
        return place;
    return {qBound(seen.left(), place.x(), seen.right()),
            qBound(seen.top(), place.y(), seen.bottom())};
}

void SheetView::zoomBy(int direction, std::optional<QPoint> fixed)
{
    const int now = percent();
    const auto *next = direction > 0 ? std::find_if(std::begin(kSteps), std::end(kSteps),
                                                    [now](int step) { return step > now; })
                                     : std::find_if(std::begin(kSteps), std::end(kSteps),
                                                    [now](int step) { return step >= now; });
    if (direction > 0 ? next == std::end(kSteps) : next == std::begin(kSteps))
        return;
    m_zoom = {Zoom::Fit::Percent, direction > 0 ? *next : *(next - 1)};
    layOut(fixed ? *fixed : nearCurrent(viewport()->rect().center()));
    Q_EMIT zoomChanged();
}

SheetLayout SheetView::layoutFor(QSize room) const
{
    SheetSpace space;
    space.viewport = room;
    space.pixelsPerPoint = logicalDpiX() / 72.0;
    space.labelHeight = fontMetrics().height() + 6;
    space.isMirrored = isRightToLeft();
    return {m_sheets.plan, m_zoom, space};
}

// The bars are reckoned with beforehand: a layout that fits without one must not be made narrower
// by it, and wider again when it has gone.
void SheetView::layOut(std::optional<QPoint> fixed)
{
    const Anchor anchor = anchorAt(fixed.value_or(QPoint(viewport()->width() / 2, 0)));
    const bool overlays = style()->styleHint(QStyle::SH_ScrollBar_Transient, nullptr, this) != 0;
    const int bar = overlays ? 0 : style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    QSize room = maximumViewportSize();
    m_layout = layoutFor(room);
    if (m_layout.contents().height() > room.height()) {
        room.rwidth() -= bar;
        m_layout = layoutFor(room);
    }
    if (m_layout.contents().width() > room.width()) {
        room.rheight() -= bar;
        m_layout = layoutFor(room);
    }
    setRanges(room);
    moveTo(anchor);
    viewport()->update();
    m_asking.start();
    tellLookedAt();
}

// `room` is the viewport as it will be when the bars that are not needed have gone.
void SheetView::setRanges(QSize room)
{
    const QSize all = m_layout.contents();
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(3 * fontMetrics().height());
    verticalScrollBar()->setRange(0, qMax(0, all.height() - room.height()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(3 * fontMetrics().height());
    horizontalScrollBar()->setRange(0, qMax(0, all.width() - room.width()));
}

// The top left of the viewport in the contents.
QPoint SheetView::offset() const
{
    const int spare = qMax(0, viewport()->width() - m_layout.contents().width()) / 2;
    const int x = horizontalScrollBar()->value();
    const QScrollBar *bar = horizontalScrollBar();
    return {(isRightToLeft() ? bar->maximum() - x : x) - spare, verticalScrollBar()->value()};
}

QRect SheetView::seenPart() const
{
    return {offset(), viewport()->size()};
}

SheetView::Anchor SheetView::anchorAt(QPoint place) const
{
    const QPoint inContents = offset() + place;
    auto [first, last] = m_layout.sheetsBetween(inContents.y(), inContents.y());
    if (last < first) // between two rows: the next one counts
        std::tie(first, last) = m_layout.sheetsBetween(inContents.y(), seenPart().bottom());
    if (last < first)
        return {};
    int nearest = first;
    for (int i = first; i <= qMin(last, first + m_layout.columns() - 1); ++i) {
        if (m_layout.sheet(i).left() <= inContents.x())
            nearest = i;
    }
    const QRect sheet = m_layout.sheet(nearest);
    const QPointF away = QPointF(inContents - sheet.topLeft());
    return {nearest, {away.x() / sheet.width(), away.y() / sheet.height()}, place};
}

void SheetView::moveTo(const Anchor &anchor)
{
    if (anchor.sheet < 0 || anchor.sheet >= m_layout.sheets())
        return;
    const QRect sheet = m_layout.sheet(anchor.sheet);
    const QPoint target =
        sheet.topLeft() +
        QPointF(anchor.part.x() * sheet.width(), anchor.part.y() * sheet.height()).toPoint() -
        anchor.seen;
    verticalScrollBar()->setValue(target.y());
    QScrollBar *bar = horizontalScrollBar();
    bar->setValue(isRightToLeft() ? bar->maximum() - target.x() : target.x());
}

int SheetView::lookedAt() const
{
    const QRect seen = seenPart();
    const auto [first, last] = m_layout.sheetsBetween(seen.top(), seen.bottom());
    if (last < first)
        return -1;
    if (m_current.sheet >= first && m_current.sheet <= last &&
        m_layout.paper(m_current).intersects(seen))
        return m_current.sheet;
    return first;
}

void SheetView::tellLookedAt()
{
    if (std::exchange(m_lookedAt, lookedAt()) != m_lookedAt || m_lookedAt < 0)
        Q_EMIT lookedAtChanged();
}

QString SheetView::toolTipAt(QPoint place) const
{
    const SideIndex side = m_layout.sideAt(offset() + place);
    if (!side.isValid())
        return {};
    QStringList texts{sideDescription(m_sheets.plan, m_sheets.titles, side), markOf(side),
                      boundEdgeText(m_sheets.plan, side)};
    texts.removeAll(QString());
    return plainToolTip(texts.join(u'\n'));
}

// What is to be said of a side: what its task knows, and what whoever draws it has found out.
QString SheetView::markOf(SideIndex side) const
{
    const PlannedSide *planned = sideOf(m_sheets.plan, side);
    if (!planned)
        return {};
    QStringList texts{
        markOn(m_sheets.marks, side.sheet, side.isBack ? SheetSide::Back : SheetSide::Front)};
    if (m_pictures && planned->laidOutPage >= 0)
        texts += m_pictures->problem(m_sheets.files.value(planned->document), planned->laidOutPage);
    texts.removeAll(QString());
    return texts.join(u'\n');
}

// In the viewport, in the corner where a line of text ends.
QRect SheetView::markPlace(SideIndex side) const
{
    const QRect paper = m_layout.paper(side).translated(-offset());
    const int size = qMin(fontMetrics().height() * 3 / 2, paper.width() / 2);
    const int away = fontMetrics().height() / 3;
    QRect place(0, 0, size, size);
    place.moveTop(paper.top() + away);
    if (isRightToLeft())
        place.moveLeft(paper.left() + away);
    else
        place.moveRight(paper.right() - away);
    return place;
}

bool SheetView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), viewport());
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void SheetView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void SheetView::scrollContentsBy(int dx, int dy)
{
    // What lies over the sheets does not move with them.
    if (m_isDimmed || m_isOutlined || isFocusOutOfSight())
        viewport()->update();
    else
        viewport()->scroll(dx, dy);
    m_asking.start();
    tellLookedAt();
}

void SheetView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        layOut();
        break;
    case QEvent::PaletteChange:
        viewport()->update();
        break;
    default:
        break;
    }
}

void SheetView::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    m_isSeen = true;
    m_asking.start();
}

// Folded away, or in a window that has become an icon.
void SheetView::hideEvent(QHideEvent *event)
{
    QAbstractScrollArea::hideEvent(event);
    m_isSeen = false;
    m_asking.stop();
    if (m_pictures)
        m_pictures->want({});
}

QSize SheetView::sizeHint() const
{
    const int em = fontMetrics().height();
    return {44 * em, 40 * em};
}

QSize SheetView::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return {0, 4 * em};
}

} // namespace corvana
