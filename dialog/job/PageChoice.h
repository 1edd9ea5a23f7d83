#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// Which pages of each document are printed: its own pages, whatever lies together on a sheet.
struct PageChoice
{
    enum class Set { All, Odd, Even };

    QString ranges{}; ///< as "page-ranges" has them, ascending ("1-4,7,9-"); empty: all
    Set set = Set::All;

    bool operator==(const PageChoice &) const = default;
    bool isAll() const { return ranges.isEmpty() && set == Set::All; }
};

/// Numbers of pages, from 1 on; both ends belong to it.
struct PageRange
{
    int first = 1;
    int last = 1;

    bool operator==(const PageRange &) const = default;
};
/// The ranges of "1-4,7,9-". An open end is the largest number that there is.
/// Errors: leaves out what is no range.
QList<PageRange> rangesOf(const QString &text);
/// What of these ranges a document of so many pages has, and what it lacks. An open end lacks
/// nothing unless it begins behind the last page.
QList<PageRange> rangesWithin(const QList<PageRange> &ranges, int pages);
QList<PageRange> rangesBeyond(const QList<PageRange> &ranges, int pages);

/// The choice that is among the options of a job.
PageChoice pageChoiceOf(const QList<JobOption> &options);

/// Whether an option belongs to that choice.
bool isOfPageChoice(const JobOption &option);

/// Whether the pages have to be picked before the filter chain, which counts sides: with several
/// pages on a side its "page 3" is another one than the document's.
bool mustPickPages(const QList<JobOption> &options);

/// The options of a job whose pages were picked already.
QList<JobOption> withoutPageChoice(const QList<JobOption> &options);

/// For a person: none of the documents has any of the pages.
QString noSuchPages();

/// What qpdf is told to take of a document, "--pages" to "--", as its arguments between the two:
/// "FILE 3-5 FILE 8-9". `file` is what it calls the document.
/// Errors: none for a document that has none of the pages.
QStringList pickedPages(const PageChoice &choice, int pagesOfDocument, const QString &file);

} // namespace corvana
