#pragma once

#include <QList>
#include <QString>

#include "dialog/job/PageChoice.h"

namespace corvana {

/// Which pages of a document are ticked, and how that is written as ranges. With several documents
/// a number stands for the page of that number in each of them, because the pages of a job are
/// chosen so.
///
/// A plain value. Pages count from 1; whatever lies outside is never ticked.
class PageTicks
{
public:
    PageTicks() = default;
    /// All of so many pages are ticked.
    explicit PageTicks(int pages) : m_ticked(pages, true) {}
    /// Those that lie in the ranges.
    PageTicks(const QList<PageRange> &ranges, int pages);

    int pages() const { return static_cast<int>(m_ticked.size()); }
    bool isTicked(int page) const { return m_ticked.value(page - 1, false); }
    int count() const { return static_cast<int>(m_ticked.count(true)); }
    bool isAll() const { return count() == pages(); }
    bool isNone() const { return count() == 0; }

    void tick(int page, bool ticked) { tickRun(page, page, ticked); }
    /// All pages from one to another, whichever comes first.
    void tickRun(int one, int other, bool ticked);
    enum class Which { All, None, Odd, Even };
    void tickOnly(Which which);
    void invert();

    /// Ascending, and as few as possible.
    QList<PageRange> ranges() const;

    bool operator==(const PageTicks &) const = default;

private:
    QList<bool> m_ticked;
};

/// What somebody typed to choose pages ("1-4, 7, 9-").
struct TypedPages
{
    enum class Problem {
        None,
        NoPages,   ///< `part` is no page and no range of pages
        Backwards, ///< `part` ends before it begins
    };

    QList<PageRange> ranges{}; ///< ascending, apart from each other; none with a problem
    Problem problem = Problem::None;
    QString part{};

    bool operator==(const TypedPages &) const = default;
};

/// Reads what was typed, in any order and with repetitions: they are pages that are ticked, and
/// those know no order. An open end is an end beyond every page. Where nothing was typed there are
/// no ranges, and no problem.
TypedPages typedPages(const QString &text);

/// In ascending order and apart from each other: what touches or overlaps becomes one.
QList<PageRange> unitedRanges(QList<PageRange> ranges);

/// Ranges as short as they can be written: "1-3,7,9-12", and "9-" for an open end.
QString rangesText(const QList<PageRange> &ranges);
/// The same for a person: "1-3, 7, 9-12".
QString readableRanges(const QList<PageRange> &ranges);

} // namespace corvana
