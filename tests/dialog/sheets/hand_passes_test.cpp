#include "dialog/sheets/HandPasses.h"

#include <QTest>

#include "dialog/session/OptionNames.h"
#include "tests/dialog/sheets/TurnedByHand.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Printed = HandFeed::Printed;
using First = HandPasses::First;

constexpr QSizeF kPaper(595, 842);

PlannedSide side(int page, int turn = 0, QSizeF paper = kPaper)
{
    PlannedSide one;
    one.laidOutPage = page - 1;
    one.pages = {page};
    one.turn = turn;
    one.paper = turn % 180 == 0 ? paper : paper.transposed();
    return one;
}

PlannedSide blank()
{
    PlannedSide one;
    one.kind = PlannedSide::Kind::Blank;
    one.paper = kPaper;
    return one;
}

// So many pages, two on each sheet; the last one alone where their number is odd.
SheetPlan planOf(int pages, int turn = 0, QSizeF paper = kPaper)
{
    SheetPlan plan;
    for (int page = 1; page <= pages; page += 2) {
        PlannedSheet sheet{side(page, turn, paper)};
        if (page < pages)
            sheet.back = side(page + 1, turn, paper);
        plan.sheets += sheet;
    }
    return plan;
}

// The pages of a pass in the order of printing; 0 is an empty side.
QList<int> pagesOf(const QList<PassSide> &sides)
{
    QList<int> pages;
    for (const PassSide &one : sides)
        pages += one.laidOutPage + 1;
    return pages;
}

struct Feeding
{
    const char *name;
    HandFeed feed;
    First half;
    QList<int> first; // of five pages
    QList<int> second;
};
const Feeding kFeedings[] = {
    {"out face down, back face down",
     {Printed::Down, Printed::Down},
     First::Fronts,
     {1, 3, 5},
     {0, 4, 2}},
    {"out face down, back face up",
     {Printed::Down, Printed::Up},
     First::Fronts,
     {5, 3, 1},
     {0, 4, 2}},
    {"out face up, back face down",
     {Printed::Up, Printed::Down},
     First::Backs,
     {0, 4, 2},
     {5, 3, 1}},
    {"out face up, back face up", {Printed::Up, Printed::Up}, First::Backs, {2, 4, 0}, {5, 3, 1}},
};

enum class Copies { One, Sets, EachSide };
struct Repetition
{
    const char *name;
    Copies copies;
    int times;
};
const Repetition kRepetitions[] = {
    {"once", Copies::One, 1}, {"sets", Copies::Sets, 3}, {"each side", Copies::EachSide, 3}};

// A pass as a printer gets it, with copies made in that way.
QList<int> repeated(const QList<int> &pages, const Repetition &repetition)
{
    QList<int> all;
    if (repetition.copies == Copies::EachSide) {
        for (const int page : pages)
            all += QList<int>(repetition.times, page);
        return all;
    }
    for (int i = 0; i < repetition.times; ++i)
        all += pages;
    return all;
}

// What an edge of a page is that goes into the printer first.
struct Edge
{
    const char *name;
    int turn;
    Qt::Edge edge;
    bool isWide;
};
constexpr Edge kEdges[] = {{"upright", 0, Qt::TopEdge, false},
                           {"turned right", 90, Qt::RightEdge, true},
                           {"upside down", 180, Qt::BottomEdge, false},
                           {"turned left", 270, Qt::LeftEdge, true}};

struct Binding
{
    const char *name;
    QSizeF paper;
    bool atShortEdge;
    bool isTurned;
};
constexpr Binding kBindings[] = {{"upright, long edge", {595, 842}, false, false},
                                 {"upright, short edge", {595, 842}, true, true},
                                 {"wide, long edge", {842, 595}, false, true},
                                 {"wide, short edge", {842, 595}, true, false}};

struct Printer
{
    const char *name;
    QByteArray lines;
    QList<JobOption> options;
    Printed inBin;
};
const Printer kPrinters[] = {
    {"says nothing", {}, {}, Printed::Down},
    {"normal", "*DefaultOutputOrder: Normal", {}, Printed::Down},
    {"reverse", "*DefaultOutputOrder: Reverse", {}, Printed::Up},
    {"the bin of the job counts",
     "*DefaultOutputOrder: Normal\n*PageStackOrder Rear: Reverse",
     {{u"OutputBin"_s, u"Rear"_s}},
     Printed::Up},
    {"another bin",
     "*DefaultOutputOrder: Reverse\n*PageStackOrder Top: Normal",
     {{u"OutputBin"_s, u"Top"_s}},
     Printed::Down},
    {"the order that is asked for is that of the finished sheets",
     "*DefaultOutputOrder: Normal",
     {{u"outputorder"_s, u"reverse"_s}},
     Printed::Down},
};

} // namespace

class HandPassesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPrinterGetsTheSidesInItsOrder_data() { addRows(kFeedings); }
    void eachPrinterGetsTheSidesInItsOrder()
    {
        const Feeding &row = currentRow(kFeedings);
        const HandPasses passes = planPasses(planOf(5), row.feed);
        QCOMPARE(passes.half, row.half);
        QCOMPARE(pagesOf(passes.first), row.first);
        QCOMPARE(pagesOf(passes.second), row.second);
    }

    // With sheets that are things: whatever comes out, the person holds a stack whose first page is
    // uppermost, and each sheet has the back that belongs to it.
    void whatAPersonHoldsIsThePlan_data()
    {
        QTest::addColumn<int>("feeding");
        QTest::addColumn<int>("pages");
        QTest::addColumn<int>("repetition");
        for (int feeding = 0; feeding < int(std::size(kFeedings)); ++feeding) {
            for (const int pages : {2, 3, 4, 5, 9}) {
                for (int i = 0; i < int(std::size(kRepetitions)); ++i)
                    QTest::addRow("%s, %d pages, %s", kFeedings[feeding].name, pages,
                                  kRepetitions[i].name)
                        << feeding << pages << i;
            }
        }
    }
    void whatAPersonHoldsIsThePlan()
    {
        QFETCH(int, feeding);
        QFETCH(int, pages);
        QFETCH(int, repetition);
        const HandFeed &feed = kFeedings[feeding].feed;
        const Repetition &copies = kRepetitions[repetition];
        const HandPasses passes = planPasses(planOf(pages), feed);
        const QList<QList<int>> sent = {
            {}, repeated(pagesOf(passes.first), copies), repeated(pagesOf(passes.second), copies)};
        QCOMPARE(sent.at(1).size(), sent.at(2).size());
        const auto pageOn = [&](const PrintedFace &face) {
            return sent.at(face.pass).at(face.side);
        };
        QList<std::pair<int, int>> held;
        const Stack stack = printedTwice(int(sent.at(1).size()), feed);
        for (const StackedSheet &sheet : stack)
            held += std::pair(pageOn(sheet.up), pageOn(sheet.down));
        QList<std::pair<int, int>> expected;
        QList<int> fronts;
        for (int page = 1; page <= pages; page += 2)
            fronts += page;
        const QList<int> all = repeated(fronts, copies);
        for (const int front : all)
            expected += std::pair(front, front == pages ? 0 : front + 1);
        QCOMPARE(held, expected);
    }

    void sheetsWithoutAnyBackGoThroughOnce_data() { addRows(kFeedings); }
    void sheetsWithoutAnyBackGoThroughOnce()
    {
        const HandFeed &feed = currentRow(kFeedings).feed;
        SheetPlan plan;
        PlannedSheet withBlank{side(2)};
        withBlank.back = blank();
        plan.sheets = {PlannedSheet{side(1)}, withBlank, PlannedSheet{side(3)}};
        const HandPasses passes = planPasses(plan, feed);
        QVERIFY(!passes.needsBoth());
        const QList<int> sent = pagesOf(passes.first);
        QList<int> held;
        const Stack stack = printedOnce(3, feed);
        for (const StackedSheet &sheet : stack)
            held += sent.at(sheet.up.side);
        QCOMPARE(held, QList({1, 2, 3}));
    }

    void aSheetWithoutABackStaysWithTheOthers()
    {
        SheetPlan plan = planOf(4);
        plan.sheets.insert(1, PlannedSheet{side(9)});
        const HandPasses passes = planPasses(plan, {});
        QCOMPARE(pagesOf(passes.first), QList({1, 9, 3}));
        QCOMPARE(pagesOf(passes.second), QList({4, 0, 2}));
        QCOMPARE(passes.second.at(1).paper, kPaper);
    }

    void nothingComesOfNothing()
    {
        const HandPasses passes = planPasses({}, {});
        QVERIFY(passes.first.isEmpty());
        QVERIFY(!passes.needsBoth());
    }

    void theOtherSideStandsOnItsHeadWhereTheBindingWantsThat_data() { addRows(kBindings); }
    void theOtherSideStandsOnItsHeadWhereTheBindingWantsThat()
    {
        const Binding &row = currentRow(kBindings);
        for (const Feeding &feeding : kFeedings) {
            HandFeed feed = feeding.feed;
            feed.bindsAtShortEdge = row.atShortEdge;
            for (const int turn : {0, 90}) {
                const HandPasses passes = planPasses(planOf(4, turn, row.paper), feed);
                for (const PassSide &one : passes.first)
                    QVERIFY(!one.isTurned);
                for (const PassSide &one : passes.second) {
                    QCOMPARE(one.isTurned, row.isTurned);
                    QCOMPARE(one.paper, row.paper);
                }
            }
        }
    }

    void theLeadingEdgeIsThatOfThePageAsItIsRead_data() { addRows(kEdges); }
    void theLeadingEdgeIsThatOfThePageAsItIsRead()
    {
        const Edge &row = currentRow(kEdges);
        const HandPasses passes = planPasses(planOf(4, row.turn), {});
        QCOMPARE(passes.leadingEdge, row.edge);
        QCOMPARE(passes.isWide, row.isWide);
    }

    // It is seen by the person, so it has to be what the first pass has printed.
    void theUppermostSheetIsTheLastOne()
    {
        QCOMPARE(planPasses(planOf(5), {}).uppermost.pages, QList({5}));
        QCOMPARE(planPasses(planOf(4), {Printed::Up, Printed::Down}).uppermost.pages, QList({4}));
        const HandPasses empty = planPasses(planOf(5, 90), {Printed::Up, Printed::Down});
        QCOMPARE(empty.uppermost.laidOutPage, -1);
        QCOMPARE(empty.leadingEdge, Qt::RightEdge); // of the sheet below
    }

    void thePrinterSaysHowItsSheetsLie_data() { addRows(kPrinters); }
    void thePrinterSaysHowItsSheetsLie()
    {
        const Printer &row = currentRow(kPrinters);
        PpdBuilder ppd;
        if (!row.lines.isEmpty())
            ppd.line(row.lines);
        const auto session = sessionFor(ppd);
        QCOMPARE(handFeed(session->ppd(), row.options).inBin, row.inBin);
    }

    void theJobSaysHowTheyAreBoundAndPutBack()
    {
        const auto session = sessionFor(PpdBuilder());
        const HandFeed usual = handFeed(session->ppd(), {{kSidesByHandAttribute, kByHandLongEdge}});
        QCOMPARE(usual, HandFeed());
        const HandFeed other = handFeed(session->ppd(), {{kSidesByHandAttribute, kByHandShortEdge},
                                                         {kPutBackAttribute, kPutBackFaceUp}});
        QCOMPARE(other, (HandFeed{Printed::Down, Printed::Up, true}));
    }

    // Which order the pages of a printer have otherwise is nothing to them.
    void theSidesAreLaidOutInTheOrderOfReading()
    {
        const auto session = sessionFor(PpdBuilder().line("*DefaultOutputOrder: Reverse"));
        const JobOption byHand{kSidesByHandAttribute, kByHandLongEdge};
        const LayoutTraits traits = layoutTraits(session->ppd(), {byHand});
        QVERIFY(traits.isTwoSided);
        QVERIFY(traits.isByHand);
        QVERIFY(!traits.isReversed);
        QVERIFY(!traits.isTurnedRound);
        QVERIFY(layoutTraits(session->ppd(), {}).isTurnedRound);
        QVERIFY(
            layoutTraits(session->ppd(), {byHand, {u"outputorder"_s, u"reverse"_s}}).isReversed);
        QVERIFY(!layoutTraits(session->ppd(), {{kSidesByHandAttribute, u"no"_s}}).isTwoSided);
    }
};

QTEST_GUILESS_MAIN(HandPassesTest)
#include "hand_passes_test.moc"
