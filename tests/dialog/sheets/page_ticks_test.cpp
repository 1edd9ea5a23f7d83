#include <limits>

#include <QTest>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/sheets/ChoosablePages.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Problem = TypedPages::Problem;
using Which = PageTicks::Which;

namespace {

constexpr int kEnd = std::numeric_limits<int>::max();

struct Typed
{
    const char *name;
    QString text;
    QString ranges; // as they are written again
    Problem problem = Problem::None;
    QString part{};
};
const Typed kTyped[] = {
    {"nothing", u""_s, u""_s},
    {"blanks", u"  "_s, u""_s},
    {"one page", u"7"_s, u"7"_s},
    {"a range", u"2-5"_s, u"2-5"_s},
    {"a range of one", u"3-3"_s, u"3"_s},
    {"blanks anywhere", u" 1 - 4 , 7 "_s, u"1-4,7"_s},
    {"an open end", u"5-"_s, u"5-"_s},
    {"an open beginning", u"-3"_s, u"1-3"_s},
    {"in another order", u"7,1-3"_s, u"1-3,7"_s},
    {"twice", u"3,3,2-4"_s, u"2-4"_s},
    {"side by side", u"1-3,4,5-6"_s, u"1-6"_s},
    {"behind an open end", u"5-,9"_s, u"5-"_s},
    {"over an open end", u"4-6,5-"_s, u"4-"_s},
    {"not finished", u"1-3,"_s, u"1-3"_s},
    {"digits and signs of full width", u"\uff11\uff0d\uff14\u3001\uff17"_s, u"1-4,7"_s},
    {"a long dash", u"1\u20134"_s, u"1-4"_s},
    {"Arabic digits", u"\u0661-\u0664\u060c \u0667"_s, u"1-4,7"_s},
    {"the last number that has room", u"999999999"_s, u"999999999"_s},
    {"a larger one", u"1000000000"_s, {}, Problem::NoPages, u"1000000000"_s},
    {"backwards", u"1,9-7"_s, {}, Problem::Backwards, u"9-7"_s},
    {"page 0", u"0"_s, {}, Problem::NoPages, u"0"_s},
    {"from page 0", u"0-4"_s, {}, Problem::NoPages, u"0-4"_s},
    {"a word", u"1,all"_s, {}, Problem::NoPages, u"all"_s},
    {"a dash alone", u"-"_s, {}, Problem::NoPages, u"-"_s},
    {"two dashes", u"1-2-3"_s, {}, Problem::NoPages, u"1-2-3"_s},
    {"a sign", u"+3"_s, {}, Problem::NoPages, u"+3"_s},
    {"commas alone", u",,"_s, {}, Problem::NoPages, u",,"_s},
};

struct Choice
{
    const char *name;
    QList<int> documents; // their pages; 0: nobody knows
    QString chosen;
    QString value;
    QString problem{}; // empty: it can be chosen
    PageChoice::Set set = PageChoice::Set::All;
};
const Choice kChoices[] = {
    {"all", {12}, u"1-12"_s, u""_s},
    {"all, and more", {12}, u"1-99"_s, u""_s},
    {"an open end", {12}, u"5-"_s, u"5-12"_s},
    {"the shortest form", {12}, u"1,2,3,7,9,10,11,12"_s, u"1-3,7,9-12"_s},
    {"the only page", {1}, u"1"_s, u""_s},
    {"beyond the end", {5}, u"4-9"_s, u"4-5"_s},
    {"only beyond the end",
     {5},
     u"9-12"_s,
     u""_s,
     u"The document has 5 pages; 9 to 12 are not in it."_s},
    {"none", {5}, u""_s, u""_s, u"No page is chosen."_s},
    {"of the longest", {5, 3}, u"1-5"_s, u""_s},
    {"of two", {5, 3}, u"3-4"_s, u"3-4"_s},
    {"nothing of the shorter one",
     {5, 3},
     u"4-5"_s,
     u"4-5"_s,
     u"“document 1” has 3 pages; 4 to 5 are not in it."_s},
    {"even ones of odd ones",
     {5},
     u"1,3"_s,
     u"1,3"_s,
     u"Nothing would be printed: the document has 5 pages, and only even pages were chosen."_s,
     PageChoice::Set::Even},
    {"all that there are, of an unknown number", {0}, u"1-"_s, u""_s},
    {"some of an unknown number", {0}, u"2-4,7-"_s, u"2-4,7-"_s},
    {"more than is known, where one is unknown", {5, 0}, u"4-9"_s, u"4-9"_s},
};

ChoosablePages pagesOf(const QList<int> &documents)
{
    ChoosablePages pages;
    for (const int count : documents) {
        ChoosableDocument document;
        document.title = u"document %1"_s.arg(pages.documents.size());
        document.pages = count;
        pages.documents += document;
    }
    return pages;
}

PageTicks ticksOf(const QString &text, int pages)
{
    return {typedPages(text).ranges, pages};
}

} // namespace

class PageTicksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsTypedIsRead_data() { addRows(kTyped); }
    void whatIsTypedIsRead()
    {
        const Typed &row = currentRow(kTyped);
        const TypedPages typed = typedPages(row.text);
        QCOMPARE(typed.problem, row.problem);
        QCOMPARE(typed.part, row.part);
        QCOMPARE(rangesText(typed.ranges), row.ranges);
        QCOMPARE(problemText(typed).isEmpty(), row.problem == Problem::None);
        // What comes of it is what the attribute takes in every face.
        if (!row.ranges.isEmpty())
            QVERIFY(jobAttribute(kPageRangesAttribute)->accepts(row.ranges));
    }

    void aHostileTextIsNamedInOneBoundedLine()
    {
        const QString text = problemText(typedPages(QString(5000, u'x') + u'\u202e'));
        QVERIFY(text.size() < 100);
        QVERIFY(!problemText(typedPages(u"a\u202eb"_s)).contains(u'\u202e'));
    }

    void ticksBecomeTheShortestRanges()
    {
        PageTicks ticks(12);
        QVERIFY(ticks.isAll());
        QCOMPARE(rangesText(ticks.ranges()), u"1-12"_s);
        ticks.tick(4, false);
        ticks.tick(8, false);
        ticks.tickRun(6, 5, false); // whichever end comes first
        QCOMPARE(rangesText(ticks.ranges()), u"1-3,7,9-12"_s);
        QCOMPARE(readableRanges(ticks.ranges()), u"1-3, 7, 9-12"_s);
        QCOMPARE(ticks.count(), 8);
        QCOMPARE(ticksOf(u"1-3,7,9-12"_s, 12), ticks);
        ticks.invert();
        QCOMPARE(rangesText(ticks.ranges()), u"4-6,8"_s);
    }

    void ticksOutsideTheDocumentDoNotExist()
    {
        PageTicks ticks = ticksOf(u"3-9"_s, 5);
        QCOMPARE(ticks.count(), 3);
        ticks.tickRun(-4, 99, true);
        ticks.tick(0, false);
        ticks.tick(6, false);
        QVERIFY(ticks.isAll());
        QVERIFY(!ticks.isTicked(0) && !ticks.isTicked(6));
        QVERIFY(PageTicks(0).isNone());
    }

    void oddAndEvenOfTwoThousand()
    {
        PageTicks ticks(2000);
        ticks.tickOnly(Which::Odd);
        QCOMPARE(ticks.count(), 1000);
        const QString odd = rangesText(ticks.ranges());
        QVERIFY(odd.startsWith("1,3,5,"_L1) && odd.endsWith(",1999"_L1));
        QVERIFY(jobAttribute(kPageRangesAttribute)->accepts(odd));
        QCOMPARE(ticksOf(odd, 2000), ticks);
        ticks.tickOnly(Which::Even);
        QVERIFY(rangesText(ticks.ranges()).startsWith("2,4,"_L1));
        ticks.tickOnly(Which::None);
        QVERIFY(ticks.isNone());
        ticks.tickOnly(Which::All);
        QCOMPARE(rangesText(ticks.ranges()), u"1-2000"_s);
    }

    void choicesBecomeAValueOrSayWhyNot_data() { addRows(kChoices); }
    void choicesBecomeAValueOrSayWhyNot()
    {
        const Choice &row = currentRow(kChoices);
        ChoosablePages pages = pagesOf(row.documents);
        pages.choice.set = row.set;
        const QList<PageRange> ranges = typedPages(row.chosen).ranges;
        QCOMPARE(pages.problemWith(ranges), row.problem);
        QCOMPARE(pages.valueFor(ranges), row.value);
    }

    void whatIsInForceIsShownAsRanges()
    {
        ChoosablePages pages = pagesOf({12});
        QCOMPARE(rangesText(pages.ranges()), u"1-12"_s);
        pages.choice.ranges = u"3-"_s;
        QCOMPARE(rangesText(pages.ranges()), u"3-12"_s);
        pages = pagesOf({12, 0});
        QCOMPARE(rangesText(pages.ranges()), u"1-"_s);
    }

    void ticksLeaveWhatNobodyHasCounted()
    {
        const ChoosablePages pages = pagesOf({5, 0});
        PageTicks ticks(5);
        ticks.tick(2, false);
        QCOMPARE(rangesText(pages.withTicks({PageRange{1, kEnd}}, ticks)), u"1,3-"_s);
        QCOMPARE(rangesText(pages.withTicks({PageRange{1, 3}}, ticks)), u"1,3-5"_s);
        // Where all are counted nothing is left over.
        QCOMPARE(rangesText(pagesOf({5}).withTicks({PageRange{1, 99}}, ticks)), u"1,3-5"_s);
    }

    void aRemarkCountsAndSaysWhatIsNotThere()
    {
        ChoosablePages pages = pagesOf({200});
        QCOMPARE(pages.remarkOn({PageRange{1, 3}}), u"3 of 200 pages chosen."_s);
        pages = pagesOf({10});
        QCOMPARE(pages.remarkOn({PageRange{9, 12}}),
                 u"2 of 10 pages chosen. There are no pages 11-12."_s);
        pages.choice.set = PageChoice::Set::Odd;
        QVERIFY(pages.remarkOn({PageRange{1, 3}}).contains("odd"_L1));
        QCOMPARE(pagesOf({0}).remarkOn({PageRange{1, 3}}),
                 u"How many pages there are is not known."_s);
    }
};

QTEST_GUILESS_MAIN(PageTicksTest)

#include "page_ticks_test.moc"
