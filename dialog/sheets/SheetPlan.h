#pragma once

#include <optional>

#include <QList>
#include <QSizeF>

namespace corvana {

/// One side of a sheet of paper, as it leaves the printer.
struct PlannedSide
{
    enum class Kind { Pages, Blank, Cover };

    Kind kind = Kind::Pages;
    int document = 0;     ///< which document of the job, from 0; -1 for a cover
    int laidOutPage = -1; ///< the page of that document's laid-out PDF, from 0; -1: blank
    QList<int> pages{};   ///< the document's own pages on it, from 1, in reading order
    QSizeF paper{};       ///< as the sheet is read; Units: points
    int turn = 0;         ///< by which the laid-out page is read upright; Units: degrees clockwise
    QString cover{};      ///< which one, as the queue names it

    bool operator==(const PlannedSide &) const = default;
};

struct PlannedSheet
{
    PlannedSide front{};
    std::optional<PlannedSide> back{};

    bool operator==(const PlannedSheet &) const = default;
};

/// Which page lies where on which side of which sheet of a job, for one copy.
struct SheetPlan
{
    enum class Binding { None, LongEdge, ShortEdge };

    Binding binding = Binding::None;
    QList<PlannedSheet> sheets{};

    bool operator==(const SheetPlan &) const = default;
};

} // namespace corvana
