#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// Which pages of each document are printed: its own pages, whatever lies together on a sheet; and
/// in which order the filter chain gets them, which lays them on sides one after the other.
struct PageChoice
{
    enum class Set { All, Odd, Even };
    /// Sheets that are folded in the middle, one in the other.
    enum class Booklet {
        No,
        Left, ///< bound at the left, as Latin texts are
        Right
    };

    QString ranges{}; ///< as "page-ranges" has them, ascending ("1-4,7,9-"); empty: all
    Set set = Set::All;
    Booklet booklet = Booklet::No;
    int repetitions = 1; ///< how often each page follows itself

    bool operator==(const PageChoice &) const = default;
    bool isAll() const { return *this == PageChoice(); }
    /// Whether the pages come in another order than they have in the document.
    bool isOrdered() const { return booklet != Booklet::No || repetitions > 1; }
};

/// The job attributes that say so. They are ours: no program of CUPS knows them, and no server gets
/// them.
inline constexpr QLatin1StringView kBookletAttribute{"booklet"};
inline constexpr QLatin1StringView kRepeatAttribute{"repeat"};

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

/// The options of a job, with as many pages on a side as its order of pages is made for.
QList<JobOption> withPagesOfOrder(const QList<JobOption> &options);
/// The options that the order of pages excludes: by name.
QStringList excludedByOrder(const QList<JobOption> &options);
/// Why the order of pages and something else among the options exclude each other: for a person, a
/// sentence each.
QStringList problemsOfOrder(const QList<JobOption> &options);

/// The pages of a document of so many in the order in which they are laid on sides; 0 is a blank
/// page, which a booklet has where its last sheet is not full.
QList<int> pagesInOrder(const PageChoice &choice, int pagesOfDocument);

/// Whether the pages have to be picked before the filter chain, which counts sides: with several
/// pages on a side its "page 3" is another one than the document's.
bool mustPickPages(const QList<JobOption> &options);

/// The options of a job whose pages were picked already.
QList<JobOption> withoutPageChoice(const QList<JobOption> &options);

/// The options of a job without those that say in which order its pages and sides come, which no
/// program of CUPS knows.
QList<JobOption> withoutPageOrder(const QList<JobOption> &options);

/// For a person: none of the documents has any of the pages.
QString noSuchPages();

/// What qpdf is told to take of a document, "--pages" to "--", as its arguments between the two:
/// "FILE 3-5 FILE 8-9". `file` is what it calls the document, `blank` a PDF of an empty page.
/// Errors: none for a document that has none of the pages.
QStringList pickedPages(const PageChoice &choice, int pagesOfDocument, const QString &file,
                        const QString &blank = QString());

} // namespace corvana
