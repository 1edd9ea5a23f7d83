#include "dialog/window/preview/SheetLayout.h"

#include <algorithm>
#include <cmath>

namespace corvana {

namespace {

// What a document claims must make no picture of nothing, and none that is larger than any screen.
constexpr double kLeastPaper = 36;    // Units: points
constexpr double kMostPaper = 14'400; // Units: points

QSizeF bounded(const QSizeF &paper)
{
    // A number that is none is no size either.
    const auto side = [](double length) {
        return std::isfinite(length) ? std::clamp(length, kLeastPaper, kMostPaper) : kLeastPaper;
    };
    return {side(paper.width()), side(paper.height())};
}

// The width and the height that every sheet has room in. Units: points.
struct Largest
{
    double width = 0;
    double height = 0;
    int sides = 1; // of the widest sheet
};

Largest largestOf(const SheetPlan &plan)
{
    Largest largest;
    for (const PlannedSheet &sheet : plan.sheets) {
        const QSizeF front = bounded(sheet.front.paper);
        double width = front.width();
        double height = front.height();
        if (sheet.back) {
            width += bounded(sheet.back->paper).width();
            height = std::max(height, bounded(sheet.back->paper).height());
            largest.sides = 2;
        }
        largest.width = std::max(largest.width, width);
        largest.height = std::max(largest.height, height);
    }
    return largest;
}

} // namespace

SheetLayout::SheetLayout(const SheetPlan &plan, const Zoom &zoom, const SheetSpace &space)
    : m_plan(plan), m_space(space)
{
    m_scale = fittingScale(zoom);
    placeRows();
}

double SheetLayout::fittingScale(const Zoom &zoom) const
{
    constexpr double kLeast = Zoom::kLeast / 100.0;
    constexpr double kMost = Zoom::kMost / 100.0;
    if (zoom.fit == Zoom::Fit::Percent)
        return std::clamp(zoom.percent / 100.0, kLeast, kMost);
    const Largest largest = largestOf(m_plan);
    if (largest.width <= 0 || largest.height <= 0)
        return 1.0;
    const int between = largest.sides == 2 ? innerGap() : 0;
    const double width = m_space.viewport.width() - 2 * gap() - between;
    const double height = m_space.viewport.height() - 2 * gap() - m_space.labelHeight;
    double scale = width / (largest.width * m_space.pixelsPerPoint);
    if (zoom.fit == Zoom::Fit::Page)
        scale = std::min(scale, height / (largest.height * m_space.pixelsPerPoint));
    // A window may be so small that nothing can be seen in it; and a label enlarged to fill a large
    // screen says less than one that is seen to be small.
    return std::clamp(scale, 0.02, zoom.fit == Zoom::Fit::Page ? 2.0 : kMost);
}

void SheetLayout::placeRows()
{
    m_hasBacks = std::any_of(m_plan.sheets.begin(), m_plan.sheets.end(),
                             [](const PlannedSheet &sheet) { return sheet.back.has_value(); });
    m_cell = 0;
    for (const PlannedSheet &sheet : std::as_const(m_plan.sheets))
        m_cell = std::max(m_cell, sheetWidth(sheet));
    const int room = m_space.viewport.width() - gap();
    m_columns = std::max(1, m_cell > 0 ? room / (m_cell + gap()) : 1);
    m_columns = std::min(m_columns, std::max(1, sheets()));
    int top = gap();
    for (int first = 0; first < sheets(); first += m_columns) {
        int height = 0;
        for (int i = first; i < std::min(first + m_columns, sheets()); ++i) {
            const PlannedSheet &sheet = m_plan.sheets.at(i);
            height = std::max(height, paperSize(sheet.front).height());
            if (sheet.back)
                height = std::max(height, paperSize(*sheet.back).height());
        }
        m_rows += {top, height};
        top += height + m_space.labelHeight + gap();
    }
    // A single sheet stands in the middle.
    const int spare = std::max(0, (m_space.viewport.height() - top) / 2);
    for (Row &row : m_rows)
        row.top += spare;
    const int width = m_columns * m_cell + (m_columns + 1) * gap();
    m_contents = {std::max(width, m_space.viewport.width()),
                  std::max(top, m_space.viewport.height())};
}

QSize SheetLayout::paperSize(const PlannedSide &side) const
{
    const QSizeF paper = bounded(side.paper) * (m_scale * m_space.pixelsPerPoint);
    // Rounded down, so that what is fitted into a view needs no bar for a last pixel.
    return {std::max(1, int(paper.width())), std::max(1, int(paper.height()))};
}

int SheetLayout::sheetWidth(const PlannedSheet &sheet) const
{
    // The last sheet of a two-sided job may lack a back. Its front is below the others all the
    // same.
    const int front = paperSize(sheet.front).width();
    if (!m_hasBacks)
        return front;
    return front + innerGap() + (sheet.back ? paperSize(*sheet.back).width() : front);
}

QRect SheetLayout::sheet(int index) const
{
    if (index < 0 || index >= sheets())
        return {};
    const Row &row = m_rows.at(index / m_columns);
    const int all = m_columns * m_cell + (m_columns - 1) * gap();
    const int cell = (m_contents.width() - all) / 2 + index % m_columns * (m_cell + gap());
    const int width = sheetWidth(m_plan.sheets.at(index));
    const int left = cell + (m_cell - width) / 2;
    const QRect place(left, row.top, width, row.height + m_space.labelHeight);
    if (!m_space.isMirrored)
        return place;
    return {m_contents.width() - place.left() - width, place.top(), width, place.height()};
}

QRect SheetLayout::paper(SideIndex side) const
{
    const QRect whole = sheet(side.sheet);
    if (whole.isNull())
        return {};
    const PlannedSheet &planned = m_plan.sheets.at(side.sheet);
    if (side.isBack && !planned.back)
        return {};
    const QSize size = paperSize(side.isBack ? *planned.back : planned.front);
    const bool atRight = side.isBack != m_space.isMirrored;
    const int left = m_hasBacks && atRight ? whole.right() + 1 - size.width() : whole.left();
    // Small sheets stand on the line that their labels are below.
    const int bottom = whole.bottom() + 1 - m_space.labelHeight;
    return {{left, bottom - size.height()}, size};
}

int SheetLayout::rowAt(int height) const
{
    const auto below = std::upper_bound(m_rows.begin(), m_rows.end(), height,
                                        [](int h, const Row &row) { return h < row.top; });
    return std::max(0, static_cast<int>(below - m_rows.begin()) - 1);
}

std::pair<int, int> SheetLayout::sheetsBetween(int top, int bottom) const
{
    if (m_rows.isEmpty() || bottom < top)
        return {0, -1};
    int first = rowAt(top);
    if (m_rows.at(first).top + m_rows.at(first).height + m_space.labelHeight < top)
        ++first;
    const int last = rowAt(bottom);
    if (first > last || m_rows.at(last).top > bottom)
        return {0, -1};
    return {first * m_columns, std::min(sheets(), (last + 1) * m_columns) - 1};
}

SideIndex SheetLayout::sideAt(QPoint place) const
{
    const auto [first, last] = sheetsBetween(place.y(), place.y());
    for (int i = first; i <= last; ++i) {
        for (const bool isBack : {false, true}) {
            const SideIndex side{i, isBack};
            if (paper(side).contains(place))
                return side;
        }
    }
    return {};
}

} // namespace corvana
