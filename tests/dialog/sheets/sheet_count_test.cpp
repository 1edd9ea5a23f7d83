#include <limits>

#include <QTest>

#include "dialog/sheets/SheetCount.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kNoEnd = std::numeric_limits<int>::max();
using Set = PageChoice::Set;

struct Ranges
{
    const char *name;
    QString text;
    int pages;
    QList<PageRange> read;
    QList<PageRange> within;
    QList<PageRange> beyond;
};
const Ranges kRanges[] = {
    {"all are there", u"1-4"_s, 5, {{1, 4}}, {{1, 4}}, {}},
    {"the last one", u"5"_s, 5, {{5, 5}}, {{5, 5}}, {}},
    {"one behind the last", u"6"_s, 5, {{6, 6}}, {}, {{6, 6}}},
    {"the end is missing", u"3-9"_s, 5, {{3, 9}}, {{3, 5}}, {{6, 9}}},
    {"none is there", u"9-12"_s, 5, {{9, 12}}, {}, {{9, 12}}},
    {"several", u"1-2,4,8-9"_s, 5, {{1, 2}, {4, 4}, {8, 9}}, {{1, 2}, {4, 4}}, {{8, 9}}},
    {"an open end lacks nothing", u"3-"_s, 5, {{3, kNoEnd}}, {{3, 5}}, {}},
    {"an open end behind the last", u"6-"_s, 5, {{6, kNoEnd}}, {}, {{6, kNoEnd}}},
    {"an open begin", u"-3"_s, 2, {{1, 3}}, {{1, 2}}, {{3, 3}}},
    {"no range is left out", u"x,0,4-2,2"_s, 5, {{2, 2}}, {{2, 2}}, {}},
};

struct Chosen
{
    const char *name;
    int pages;
    PageChoice choice;
    int count;
};
const Chosen kChosen[] = {
    {"all", 5, {}, 5},
    {"odd", 5, {{}, Set::Odd}, 3},
    {"even", 5, {{}, Set::Even}, 2},
    {"even of one", 1, {{}, Set::Even}, 0},
    {"a range", 5, {u"2-4"_s}, 3},
    {"odd of a range", 5, {u"2-4"_s, Set::Odd}, 1},
    {"even of a range", 5, {u"2-4"_s, Set::Even}, 2},
    {"a range beyond", 5, {u"4-9"_s}, 2},
    {"nothing of a range", 5, {u"9-"_s}, 0},
};

struct PaperRow
{
    const char *name;
    QList<std::optional<int>> sides;
    bool twoSided;
    std::optional<int> sheets;
};
const PaperRow kPapers[] = {
    {"one-sided", {5}, false, 5},
    {"two-sided, the last has no back", {5}, true, 3},
    {"two-sided, one side", {1}, true, 1},
    {"nothing", {0}, true, 0},
    {"each document begins on its own sheet", {1, 3, 2}, true, 4},
    {"one that nobody counted", {1, std::nullopt}, false, std::nullopt},
};

constexpr QSizeF kPaper{595, 842};
struct LaidOutRow
{
    const char *name;
    QList<PageScale> scales;
    QList<int> turns;
    std::optional<int> sides;
    bool isOtherwise;
};
const LaidOutRow kLaidOut[] = {
    {"as large as the paper", {{kPaper, 1}}, {0}, 1, false},
    {"rounded", {{{595.28, 841.89}, 0.999}}, {0}, 1, false},
    {"scaled", {{kPaper, 0.97}}, {0}, 1, true},
    {"smaller, as it is", {{{420, 595}, 1}}, {0}, 1, true},
    {"less high", {{{595, 792}, 1}}, {0}, 1, true},
    {"wider", {{{612, 842}, 1}}, {0}, 1, true},
    {"turned", {{kPaper, 1}}, {0, 90}, 2, true},
    {"one of two", {{kPaper, 1}, {{612, 792}, 1}}, {0, 0}, 2, true},
    {"of no known size", {}, {}, 2, true},
    {"never counted", {}, {}, std::nullopt, false},
    {"without a side", {}, {}, 0, false},
};

} // namespace

class SheetCountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSentAsItIsMayLieOtherwise_data() { addRows(kLaidOut); }
    void whatIsSentAsItIsMayLieOtherwise()
    {
        const LaidOutRow &row = currentRow(kLaidOut);
        DocumentSheets document;
        document.scales = row.scales;
        document.turns = row.turns;
        document.sides = row.sides;
        QCOMPARE(isLaidOutOtherwise(document, kPaper), row.isOtherwise);
    }

    void rangesAreComparedWithTheDocument_data() { addRows(kRanges); }
    void rangesAreComparedWithTheDocument()
    {
        const Ranges &row = currentRow(kRanges);
        const QList<PageRange> read = rangesOf(row.text);
        QCOMPARE(read, row.read);
        QCOMPARE(rangesWithin(read, row.pages), row.within);
        QCOMPARE(rangesBeyond(read, row.pages), row.beyond);
    }

    void chosenPagesAreCounted_data() { addRows(kChosen); }
    void chosenPagesAreCounted()
    {
        const Chosen &row = currentRow(kChosen);
        QCOMPARE(chosenPages(row.pages, row.choice), row.count);
        QCOMPARE(printedPages(row.pages, row.choice).count(true), row.count);
    }

    void sidesBecomeSheets_data() { addRows(kPapers); }
    void sidesBecomeSheets()
    {
        const PaperRow &row = currentRow(kPapers);
        JobSheets sheets{{}, row.twoSided};
        for (const std::optional<int> &sides : row.sides)
            sheets.documents += DocumentSheets{u"a"_s, sides, sides};
        QCOMPARE(sheetsOfOneCopy(sheets), row.sheets);
        QCOMPARE(isUncounted(sheets), !row.sheets.has_value());
    }
};

QTEST_APPLESS_MAIN(SheetCountTest)

#include "sheet_count_test.moc"
