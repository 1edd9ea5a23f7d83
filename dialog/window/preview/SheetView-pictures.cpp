#include "dialog/window/preview/SheetView.h"

#include <algorithm>
#include <cmath>

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "dialog/window/preview/SidePictures.h"

namespace corvana {

namespace {

// What all pictures that can be seen at a time may have together: sheets that are enlarged
// four times on a screen of many pixels would need more memory than a dialog may take.
// Units: pixels
constexpr double kMostPixels = 8e6;

SidePictures::Wish wishFor(const ShownSheets &sheets, const PlannedSide &side, QSize size)
{
    return {sheets.files.value(side.document), side.laidOutPage, size};
}

} // namespace

// Of a page that lies on its side on the sheet, the size in which it was laid out.
QSize SheetView::pictureSize(SideIndex side) const
{
    const PlannedSide *planned = sideOf(m_sheets.plan, side);
    if (!planned)
        return {};
    const QSizeF paper = QSizeF(m_layout.paper(side).size());
    const double ratio = devicePixelRatioF();
    const QRect sheet = m_layout.sheet(side.sheet);
    // How many can be seen at most, so that the size does not change while they are scrolled.
    const int rows = viewport()->height() / qMax(1, sheet.height()) + 2;
    const int across = viewport()->width() / qMax(1, int(paper.width())) + 1;
    const int sides = m_layout.columns() * (m_sheets.plan.sheets.at(side.sheet).back ? 2 : 1);
    const double most = kMostPixels / (rows * qMin(sides, across));
    const double pixels = paper.width() * paper.height() * ratio * ratio;
    const double scale = ratio * qMin(1.0, std::sqrt(most / qMax(1.0, pixels)));
    const QSize size = (paper * scale).toSize().expandedTo({1, 1});
    return planned->turn % 180 == 0 ? size : size.transposed();
}

// The sheet that is looked at and the others that can be seen, then those that come next when
// somebody scrolls, nearest first.
void SheetView::askForPictures()
{
    if (!m_pictures || !m_isSeen)
        return;
    QList<SidePictures::Wish> wishes;
    const auto add = [&](int sheet) {
        for (const bool isBack : {false, true}) {
            const SideIndex index{sheet, isBack};
            const PlannedSide *side = sideOf(m_sheets.plan, index);
            if (side && side->laidOutPage >= 0)
                wishes += wishFor(m_sheets, *side, pictureSize(index));
        }
    };
    const QRect seen = seenPart();
    const auto [first, last] = m_layout.sheetsBetween(seen.top(), seen.bottom());
    const int best = lookedAt();
    if (best >= 0)
        add(best);
    for (int sheet = first; sheet <= last; ++sheet) {
        if (sheet != best)
            add(sheet);
    }
    if (first <= last) {
        const auto [above, below] =
            m_layout.sheetsBetween(seen.top() - seen.height(), seen.bottom() + seen.height());
        for (int away = 1; away <= std::max(first - above, below - last); ++away) {
            if (last + away <= below)
                add(last + away);
            if (first - away >= above)
                add(first - away);
        }
    }
    m_pictures->want(wishes);
}

void SheetView::pictureDrawn(const QString &file, int page)
{
    if (!m_isSeen)
        return;
    const QRect seen = seenPart();
    const auto [first, last] = m_layout.sheetsBetween(seen.top(), seen.bottom());
    describeCurrent(); // it may be one that cannot be drawn
    for (int sheet = first; sheet <= last; ++sheet) {
        for (const bool isBack : {false, true}) {
            const PlannedSide *side = sideOf(m_sheets.plan, {sheet, isBack});
            if (side && side->laidOutPage == page && m_sheets.files.value(side->document) == file)
                viewport()->update(m_layout.paper({sheet, isBack}).translated(-offset()));
        }
    }
}

PaintedSide SheetView::painted(SideIndex index) const
{
    PaintedSide side;
    const PlannedSide &planned = *sideOf(m_sheets.plan, index);
    side.paper = m_layout.paper(index).translated(-offset());
    const int labelHeight =
        m_layout.sheet(index.sheet).bottom() + 1 - offset().y() - (side.paper.bottom() + 1);
    side.label = {side.paper.left(), side.paper.bottom() + 1, side.paper.width(), labelHeight};
    side.text = sideLabel(m_sheets.plan, index);
    side.turn = planned.turn;
    side.bound = boundEdge(m_sheets.plan, index);
    side.isCurrent = hasFocus() && index == m_current;
    if (!markOf(index).isEmpty())
        side.mark = markPlace(index);
    if (planned.kind == PlannedSide::Kind::Cover)
        side.problem = tr("Cover sheet of the queue: %1").arg(planned.cover);
    if (!m_pictures || planned.laidOutPage < 0)
        return side;
    const SidePictures::Wish wish = wishFor(m_sheets, planned, pictureSize(index));
    side.picture = m_pictures->picture(wish);
    if (side.picture.isNull())
        side.picture = m_pictures->anyPicture(wish.file, wish.page);
    if (side.picture.isNull())
        side.problem = m_pictures->problem(wish.file, wish.page);
    return side;
}

void SheetView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QRect exposed = event->rect();
    painter.fillRect(exposed, SidePainter::background(palette()));
    // A shadow, and what marks an edge or the current side, lie beside the paper.
    constexpr int kBeside = 6;
    const QRect near = exposed.adjusted(-kBeside, -kBeside, kBeside, kBeside);
    const QRect seen = near.translated(offset());
    const auto [first, last] = m_layout.sheetsBetween(seen.top(), seen.bottom());
    for (int sheet = first; sheet <= last; ++sheet) {
        for (const bool isBack : {false, true}) {
            if (!sideOf(m_sheets.plan, {sheet, isBack}))
                continue;
            const PaintedSide side = painted({sheet, isBack});
            if ((side.paper | side.label).intersects(near))
                m_painter.paint(painter, side, palette(), exposed);
        }
    }
    m_isOutlined = isFocusOutOfSight();
    if (m_isOutlined) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), SidePainter::kFocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
    if (m_isDimmed)
        paintUpdating(painter);
}

// Over the sheets, since they are those of settings that have changed.
void SheetView::paintUpdating(QPainter &painter)
{
    QColor veil = SidePainter::background(palette());
    veil.setAlpha(150);
    painter.fillRect(viewport()->rect(), veil);
    const QString text = tr("Updating…");
    const int em = fontMetrics().height();
    QRect place(0, 0, fontMetrics().horizontalAdvance(text) + 2 * em, 2 * em);
    place.moveCenter({viewport()->width() / 2, 0});
    place.moveTop(em);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), em / 2.0, em / 2.0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(place, Qt::AlignCenter, text);
}

} // namespace corvana
