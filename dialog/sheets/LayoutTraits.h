#pragma once

#include <QByteArray>
#include <QList>
#include <QMarginsF>
#include <QSizeF>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// All that the layout step of the filter chain (pdftopdf of cups-filters) takes from a printer's
/// PPD: the paper of the job and what cannot be printed on of it, and how sheets are turned and
/// stacked. A plain value; a printer's filters, commands and texts are no part of it.
struct LayoutTraits
{
    QSizeF paper{};      ///< Units: points
    QMarginsF margins{}; ///< Units: points
    bool isTwoSided = false;
    bool isByHand = false;   ///< two-sided because somebody turns the sheets over
    bool isReversed = false; ///< the layout step puts the last page first
    /// Whatever comes out of the layout step is turned round behind it.
    bool isTurnedRound = false;
    bool fillsSheets = false; ///< a blank side is added where the last sheet lacks one
    bool turnsRight = false;  ///< landscape pages are turned clockwise

    bool operator==(const LayoutTraits &) const = default;
};

/// The traits of a job. `ppd` is the printer's, `options` are the job's in the words of that PPD.
LayoutTraits layoutTraits(ppd_file_t *ppd, const QList<JobOption> &options);

/// A PPD that holds these traits and nothing else. Every number in it is a possible one, whatever
/// the printer's own PPD says, and every word is ours.
QByteArray layoutPpd(const LayoutTraits &traits);

/// What layoutPpd() calls its only paper.
inline constexpr const char *kLayoutPaper = "Paper";

} // namespace corvana
