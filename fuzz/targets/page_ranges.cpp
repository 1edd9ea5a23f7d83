#include <algorithm>
#include <limits>

#include "dialog/job/PageChoice.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/sheets/PageTicks.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPages = 40;

void requireTyped(const QString &text)
{
    const TypedPages typed = typedPages(text);
    require((typed.problem == TypedPages::Problem::None) || typed.ranges.isEmpty(),
            "what is no choice of pages chooses none", text);
    if (typed.problem != TypedPages::Problem::None) {
        require(!typed.part.isEmpty() || text.contains(u','), "what is no page is named", text);
        return;
    }
    require(unitedRanges(typed.ranges) == typed.ranges, "ranges that were typed are apart", text);
    const QString written = rangesText(typed.ranges);
    require(written.isEmpty() || jobAttribute(kPageRangesAttribute)->accepts(written),
            "pages that were typed can be said to a job", written);
    require(rangesOf(written) == typed.ranges, "pages that are written are read as themselves",
            written);
    require(typedPages(readableRanges(typed.ranges)).ranges == typed.ranges,
            "pages that are shown can be typed", readableRanges(typed.ranges));
    const PageTicks ticks(typed.ranges, kPages);
    require(PageTicks(ticks.ranges(), kPages) == ticks, "pages that are ticked are said as ranges",
            written);
    require(unitedRanges(rangesWithin(typed.ranges, kPages)) == ticks.ranges(),
            "the pages of a document are those that are ticked", written);
}

// What an attribute takes chooses the same pages as what is typed.
void requireAttribute(const QString &text)
{
    const bool isTaken = jobAttribute(kPageRangesAttribute)->accepts(text);
    const QList<PageRange> ranges = rangesOf(text);
    for (const PageRange &range : ranges)
        require(range.first >= 1 && range.last >= range.first, "a range begins before it ends",
                text);
    if (!isTaken)
        return;
    const TypedPages typed = typedPages(text);
    require(typed.problem == TypedPages::Problem::None && typed.ranges == unitedRanges(ranges),
            "what an attribute takes can be typed", text);
    const PageChoice choice = pageChoiceOf({{kPageRangesAttribute, text}});
    const QList<int> pages = pagesInOrder(choice, kPages);
    for (const int page : pages)
        require(page >= 1 && page <= kPages && PageTicks(ranges, kPages).isTicked(page),
                "a page that is printed was chosen", QString::number(page));
    require(pages.size() == PageTicks(ranges, kPages).count(), "each chosen page is printed once",
            text);
    require(pickedPages(choice, kPages, u"a.pdf"_s).isEmpty() == pages.isEmpty(),
            "a document is picked from where it has one of the pages", text);
    for (const PageChoice::Booklet booklet :
         {PageChoice::Booklet::Left, PageChoice::Booklet::Right}) {
        PageChoice folded = choice;
        folded.booklet = booklet;
        QList<int> sides = pagesInOrder(folded, kPages);
        require(sides.size() % 4 == 0, "a folded sheet has four pages", text);
        sides.removeAll(0);
        std::sort(sides.begin(), sides.end());
        require(sides == pages, "a booklet has each page once", text);
        const QStringList picked = pickedPages(folded, kPages, u"a.pdf"_s, u"blank.pdf"_s);
        require(picked.size() % 2 == 0 && picked.isEmpty() == pages.isEmpty(),
                "each file of a booklet has its pages", picked.join(u' '));
    }
}

// A job whose pages were picked asks for none any more, and says nothing twice.
void requireOrder(const QString &text)
{
    for (const char *booklet : {"no", "left", "right"}) {
        const QList<JobOption> job{{kPageRangesAttribute, text},
                                   {u"page-set"_s, text.size() % 2 == 0 ? u"odd"_s : u"even"_s},
                                   {u"booklet"_s, QString::fromLatin1(booklet)},
                                   {u"repeat"_s, text.left(1)},
                                   {u"number-up"_s, text.right(1)}};
        const QList<JobOption> ordered = withPagesOfOrder(job);
        require(problemsOfOrder(ordered).isEmpty() || !problemsOfOrder(job).isEmpty(),
                "an order that is completed excludes nothing more", text);
        require(!mustPickPages(withoutPageChoice(withoutPageOrder(job))),
                "pages that were picked are not picked again", text);
    }
}

// What a document has of some pages, and what it lacks, are the pages that were asked for.
void requireNothingIsLost(const QList<PageRange> &ranges)
{
    const QList<PageRange> within = rangesWithin(ranges, kPages);
    for (const PageRange &range : within)
        require(range.first >= 1 && range.last <= kPages, "a page that a document has lies in it");
    for (const PageRange &range : rangesBeyond(ranges, kPages))
        require(range.first > kPages, "a page that a document lacks does not lie in it");
    for (const PageRange &range : ranges)
        require(range.first > kPages || PageTicks(within, kPages).isTicked(range.first),
                "a page is there, or is lacking");
}

void requireTicks(const QList<PageRange> &ranges)
{
    PageTicks ticks(ranges, kPages);
    const int count = ticks.count();
    ticks.invert();
    require(ticks.count() == kPages - count, "what was ticked is not, and the other way round");
    ticks.invert();
    require(ticks == PageTicks(ranges, kPages), "turned round twice it is the same");
    ticks.tickOnly(PageTicks::Which::Odd);
    require(ticks.count() == kPages / 2, "every second page is odd");
}

/// Input: pages as somebody types them, or as a job says them. What is typed is ranges that are
/// apart, or is named; ranges are written, read, ticked and shown as the same pages; and an order
/// of pages has each of them once.
void run(const QByteArray &input)
{
    const QString text = QString::fromUtf8(input.left(2000));
    requireTyped(text);
    requireAttribute(text);
    requireOrder(text);
    requireNothingIsLost(rangesOf(text));
    requireTicks(rangesOf(text));
}

const Target target("page_ranges", run);

} // namespace

} // namespace corvana::fuzz
