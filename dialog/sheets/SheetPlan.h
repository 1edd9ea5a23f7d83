#pragma once

#include <optional>

#include <QList>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include "dialog/sheets/LayoutTraits.h"
#include "dialog/sheets/SheetCount.h"

namespace corvana {

/// Which page lies where: the sheets of one copy of a job, in the order in which they are printed.
/// A plain value. It is made of what the layout step of the filter chain has really yielded, so
/// that nothing in it is a guess of what a printer will do.

/// One side of a sheet that goes through the printer.
struct PlannedSide
{
    enum class Kind {
        Pages, ///< pages of a document
        Blank, ///< an empty side that belongs to a document, so that its last sheet has a back
        Cover, ///< of a sheet that the queue adds to the job
    };

    Kind kind = Kind::Pages;
    int document = 0;     ///< index in the job; -1 for a cover
    int laidOutPage = -1; ///< page of that document's laid-out PDF, from 0; -1: nothing is drawn
    /// The document's own pages on it, from 1 on, in the order of reading. Empty where nobody knows
    /// them.
    QList<int> pages{};
    /// Units: points, as the side is read: the paper of a landscape side lies on its long edge.
    QSizeF paper{};
    /// By how much the laid-out page, as a PDF reader shows it, is turned to be read upright.
    /// Units: degrees clockwise. Range: 0, 90, 180, 270.
    int turn = 0;
    QString cover{}; ///< which one, as the queue names it

    bool operator==(const PlannedSide &) const = default;
};

struct PlannedSheet
{
    PlannedSide front;
    /// Nothing where the printer leaves the back as it is.
    std::optional<PlannedSide> back{};

    bool operator==(const PlannedSheet &) const = default;
};

struct SheetPlan
{
    enum class Binding { None, LongEdge, ShortEdge };

    Binding binding = Binding::None;
    QList<PlannedSheet> sheets{};

    bool operator==(const SheetPlan &) const = default;
};

/// What a plan depends on beside the result of the layout step.
struct SheetArrangement
{
    PageChoice choice{};
    int pagesPerSide = 1;
    bool isReversed = false; ///< by the layout step
    SheetPlan::Binding binding = SheetPlan::Binding::None;
    QSizeF paper{};        ///< Units: points
    QString coverBefore{}; ///< empty: none
    QString coverBehind{};
    bool isTurnedRound = false; ///< the order, behind the layout step

    bool operator==(const SheetArrangement &) const = default;
};

/// How many sheets the queue adds.
int coverSheets(const SheetArrangement &arrangement);

/// `options` are all those of the job, in the words of its printer's PPD. `printsCovers`: whether
/// whatever prints the job adds the cover sheets that are among them.
SheetArrangement sheetArrangement(const QList<JobOption> &options, const LayoutTraits &traits,
                                  bool printsCovers);

/// The sheets of a job. A document that could not be laid out has none.
SheetPlan planSheets(const JobSheets &sheets, const SheetArrangement &arrangement);

/// The edge of a side, as it is read, at which the sheets of a two-sided job are bound. Nothing
/// where they are not.
enum class SheetSide { Front, Back };
std::optional<Qt::Edge> bindingEdge(SheetPlan::Binding binding, const PlannedSide &side,
                                    SheetSide which);

} // namespace corvana
