#pragma once

#include <QList>
#include <QMarginsF>
#include <QSizeF>
#include <QString>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// How a text stands on its pages. What is not chosen is as the text filter of CUPS has it.
///
/// Units: points of 1/72 inch.
struct TextFormat
{
    QSizeF page; ///< as it is read: landscape is wider than high
    QMarginsF margins;
    double charactersPerInch = 10;
    double linesPerInch = 6;
    int columns = 1;     ///< of text, beside each other
    bool wrap = true;    ///< whether long lines go on in the next one; else they are cut
    bool header = false; ///< title, date and page number above each page
    QString title;       ///< for the header

    // What follows from these, in characters and lines; each is 1 or more.

    double cellWidth() const { return 72 / charactersPerInch; }
    double lineHeight() const { return 72 / linesPerInch; }
    /// Height of the header, with the space below it.
    double headerHeight() const { return header ? 3 * lineHeight() : 0; }
    int linesOnPage() const;
    int cellsInLine() const; ///< over the whole width of the page
    int gapOfColumns() const;
    int cellsInColumn() const; ///< what a line of the text has room in
};

/// The most cells that a page can have; more is a mistake of the options rather than a text.
inline constexpr int kMostCellsOfPage = 1'000'000;

/// The format that options ask for, on the paper and with the margins of a printer's PPD.
/// "PageSize" and "orientation-requested" are read, and the attributes that shape a text. Errors:
/// an empty page; `problem` says why.
TextFormat textFormat(const QString &ppdPath, const QList<JobOption> &options, const QString &title,
                      QString *problem);

} // namespace corvana
