#pragma once

#include <utility>

#include <QList>
#include <QMetaType>
#include <QRect>
#include <QSize>

#include "dialog/sheets/SheetPlan.h"

namespace corvana {

/// How large sheets are shown.
struct Zoom
{
    enum class Fit { Page, Width, Percent };

    static constexpr int kLeast = 25;
    static constexpr int kMost = 400;

    Fit fit = Fit::Page;
    int percent = 100; ///< of the actual size; counts for Fit::Percent only

    bool operator==(const Zoom &) const = default;
};

/// What the sheets of a plan are laid out for.
struct SheetSpace
{
    QSize viewport{};
    double pixelsPerPoint = 96.0 / 72.0; ///< at 100 percent
    int labelHeight = 16;                ///< of the line below each side
    bool isMirrored = false;             ///< the first sheet is at the right

    bool operator==(const SheetSpace &) const = default;
};

/// One side of a sheet: the sheet, from 0, and which of its sides.
struct SideIndex
{
    int sheet = -1;
    bool isBack = false;

    bool isValid() const { return sheet >= 0; }
    bool operator==(const SideIndex &) const = default;
};

/// Where the sides of sheets are in a view: in rows below each other, the back of a sheet beside
/// its front, several sheets beside each other where they have room. All have the same scale, so
/// that a small sheet is seen to be one.
///
/// A plain value. It keeps a few numbers for each row, so that thousands of sheets cost nothing
/// while they are scrolled. Units: pixels of the view, from the top left of all contents.
class SheetLayout
{
public:
    SheetLayout() = default;
    SheetLayout(const SheetPlan &plan, const Zoom &zoom, const SheetSpace &space);

    /// The scale that came out of it; 1 is the actual size.
    double scale() const { return m_scale; }
    QSize contents() const { return m_contents; }
    int columns() const { return m_columns; }
    int sheets() const { return static_cast<int>(m_plan.sheets.size()); }

    /// The paper of a side; null where there is none.
    QRect paper(SideIndex side) const;
    /// The sheet with both its sides and their labels.
    QRect sheet(int index) const;
    /// The sheets of which something lies between these heights, first and last; (0, -1) for none.
    std::pair<int, int> sheetsBetween(int top, int bottom) const;
    /// The side at a place; none between sheets.
    SideIndex sideAt(QPoint place) const;

    /// The space around the sheets and between them.
    static int margin(const SheetSpace &space) { return space.labelHeight; }

private:
    struct Row
    {
        int top = 0;
        int height = 0; ///< of the highest paper in it
    };

    QSize paperSize(const PlannedSide &side) const;
    int sheetWidth(const PlannedSheet &sheet) const;
    int gap() const { return margin(m_space); }
    int innerGap() const { return qMax(4, gap() * 2 / 3); }
    double fittingScale(const Zoom &zoom) const;
    void placeRows();
    int rowAt(int height) const;

    SheetPlan m_plan; // shared with whoever made it
    SheetSpace m_space;
    double m_scale = 1.0;
    bool m_hasBacks = false;
    int m_columns = 1;
    int m_cell = 0; // the width that each sheet of a row has
    QList<Row> m_rows;
    QSize m_contents;
};

} // namespace corvana

Q_DECLARE_METATYPE(corvana::Zoom)
