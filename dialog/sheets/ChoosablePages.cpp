#include "dialog/sheets/ChoosablePages.h"

#include <algorithm>
#include <limits>

#include <QCoreApplication>
#include <QLocale>

#include "dialog/sheets/SheetCount.h"
#include "dialog/sheets/SheetTexts.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ChoosablePages)
};

constexpr int kOpenEnd = std::numeric_limits<int>::max();
constexpr qsizetype kMostLetters = 24;

PageChoice withRanges(PageChoice choice, const QList<PageRange> &ranges)
{
    choice.ranges = rangesText(ranges);
    return choice;
}

QString twoSentences(const QString &first, const QString &second)
{
    return second.isEmpty() ? first : Texts::tr("%1 %2", "two sentences").arg(first, second);
}

QString ofTheseSet(PageChoice::Set set)
{
    switch (set) {
    case PageChoice::Set::Odd:
        return Texts::tr("Only the odd ones of them are printed, as is set for this job.");
    case PageChoice::Set::Even:
        return Texts::tr("Only the even ones of them are printed, as is set for this job.");
    case PageChoice::Set::All:
        break;
    }
    return {};
}

} // namespace

int ChoosablePages::most() const
{
    int most = 0;
    for (const ChoosableDocument &document : documents)
        most = std::max(most, document.pages);
    return most;
}

bool ChoosablePages::areCounted() const
{
    return std::all_of(documents.cbegin(), documents.cend(),
                       [](const ChoosableDocument &document) { return document.pages > 0; });
}

QList<PageRange> ChoosablePages::ranges() const
{
    const QList<PageRange> chosen =
        choice.ranges.isEmpty() ? QList{PageRange{1, kOpenEnd}} : rangesOf(choice.ranges);
    return areCounted() ? PageTicks(chosen, most()).ranges() : chosen;
}

QList<PageRange> ChoosablePages::withTicks(const QList<PageRange> &ranges,
                                           const PageTicks &ticks) const
{
    QList<PageRange> all = ticks.ranges();
    for (const auto &[first, last] : ranges) {
        if (!areCounted() && last > most())
            all += PageRange{std::max(first, most() + 1), last};
    }
    return unitedRanges(all);
}

QString ChoosablePages::valueFor(const QList<PageRange> &ranges) const
{
    const PageTicks ticks(ranges, most());
    if (areCounted())
        return ticks.isAll() ? QString() : rangesText(ticks.ranges());
    // A document that nobody has counted may have more pages than are known.
    const bool isEverything = ranges == QList{PageRange{1, kOpenEnd}};
    return isEverything ? QString() : rangesText(ranges);
}

QString ChoosablePages::problemWith(const QList<PageRange> &ranges) const
{
    if (ranges.isEmpty())
        return Texts::tr("No page is chosen.");
    const PageChoice chosen = withRanges(choice, ranges);
    JobSheets sheets;
    for (const ChoosableDocument &document : documents) {
        DocumentSheets one;
        one.title = document.title;
        if (document.pages > 0) {
            one.pages = document.pages;
            one.sides = chosenPages(document.pages, chosen);
        }
        sheets.documents += one;
    }
    return emptyDocuments(sheets, chosen).join(u' ');
}

QString ChoosablePages::remarkOn(const QList<PageRange> &ranges) const
{
    const PageTicks ticks(ranges, most());
    QString counts;
    if (!areCounted())
        counts = Texts::tr("How many pages there are is not known.");
    else if (documents.size() > 1)
        counts = Texts::tr("%L1 of %L2 page numbers chosen.")
                     .arg(QLocale().toString(ticks.count()), QLocale().toString(most()));
    else
        counts = Texts::tr("%L1 of %L2 pages chosen.")
                     .arg(QLocale().toString(ticks.count()), QLocale().toString(most()));
    const QList<PageRange> beyond = rangesBeyond(ranges, most());
    if (areCounted() && !beyond.isEmpty())
        counts =
            twoSentences(counts, Texts::tr("There are no pages %1.").arg(readableRanges(beyond)));
    return twoSentences(counts, ofTheseSet(choice.set));
}

QString problemText(const TypedPages &typed)
{
    const QString part = terminalLine(
        typed.part.size() > kMostLetters ? typed.part.first(kMostLetters) + u'…' : typed.part);
    switch (typed.problem) {
    case TypedPages::Problem::NoPages:
        return Texts::tr("“%1” is no page. Pages are typed as in 1-4, 7, 9-.").arg(part);
    case TypedPages::Problem::Backwards:
        return Texts::tr("“%1” ends before it begins.").arg(part);
    case TypedPages::Problem::None:
        break;
    }
    return {};
}

} // namespace corvana
