#include <QTest>

#include "dialog/sheets/SheetPlan.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Binding = SheetPlan::Binding;

namespace {

// "1+2" are pages on a side, "-" is a blank side, "?" one of which nobody knows what is on it, and
// "<name>" a cover. A back stands behind a stroke.
QString text(const PlannedSide &side)
{
    if (side.kind == PlannedSide::Kind::Cover)
        return u'<' + side.cover + u'>';
    if (side.kind == PlannedSide::Kind::Blank)
        return u"-"_s;
    QStringList pages;
    for (const int page : side.pages)
        pages += QString::number(page);
    return pages.isEmpty() ? u"?"_s : pages.join(u'+');
}

QString text(const SheetPlan &plan)
{
    QStringList sheets;
    for (const PlannedSheet &sheet : plan.sheets)
        sheets += text(sheet.front) + (sheet.back ? u'|' + text(*sheet.back) : QString());
    return sheets.join(u' ');
}

struct Planned
{
    const char *name;
    int pages;
    int sides; // that the chain has made
    SheetArrangement arrangement;
    QString plan;
};
constexpr auto kLong = Binding::LongEdge;
const PageChoice kOdd{{}, PageChoice::Set::Odd};
const PageChoice kBooklet{.booklet = PageChoice::Booklet::Left};
const PageChoice kTwice{.repetitions = 2};
const SheetArrangement kTurned{.isTurnedRound = true};
const SheetArrangement kTurnedBothSides{.binding = kLong, .isTurnedRound = true};
SheetArrangement turnedTwice(Binding binding)
{
    return {.isReversed = true, .binding = binding, .isTurnedRound = true};
}
const Planned kPlans[] = {
    {"one-sided", 3, 3, {}, u"1 2 3"_s},
    {"two-sided", 3, 3, {{}, 1, false, kLong}, u"1|2 3"_s},
    {"two-sided, filled", 3, 4, {{}, 1, false, kLong}, u"1|2 3|-"_s},
    {"one page, two-sided", 1, 1, {{}, 1, false, kLong}, u"1"_s},
    {"last page first", 3, 3, {{}, 1, true}, u"3 2 1"_s},
    {"last page first, two-sided", 3, 4, {{}, 1, true, kLong}, u"-|3 2|1"_s},
    {"turned round", 3, 3, kTurned, u"3 2 1"_s},
    {"turned round, two-sided", 3, 3, kTurnedBothSides, u"-|3 2|1"_s},
    {"turned round, one page, two-sided", 1, 1, kTurnedBothSides, u"1"_s},
    {"last page first, turned round", 3, 3, turnedTwice(Binding::None), u"1 2 3"_s},
    {"last page first, turned round, two-sided", 3, 4, turnedTwice(kLong), u"1|2 3|-"_s},
    {"two on a side", 5, 3, {{}, 2}, u"1+2 3+4 5"_s},
    {"two on a side, two-sided", 5, 3, {{}, 2, false, kLong}, u"1+2|3+4 5"_s},
    {"two on a side, last first", 5, 3, {{}, 2, true}, u"5 3+4 1+2"_s},
    {"a range", 9, 3, {{u"2-3,7"_s}}, u"2 3 7"_s},
    {"a range, two on a side", 9, 2, {{u"2-3,7"_s}, 2}, u"2+3 7"_s},
    {"odd pages", 5, 3, {kOdd}, u"1 3 5"_s},
    {"odd pages, two-sided", 5, 4, {kOdd, 1, false, kLong}, u"1|3 5|-"_s},
    {"a booklet", 8, 4, {kBooklet, 2, false, Binding::ShortEdge}, u"8+1|2+7 6+3|4+5"_s},
    {"a booklet with blank pages", 5, 4, {kBooklet, 2, false, Binding::ShortEdge}, u"1|2 3|4+5"_s},
    {"a booklet of one page", 1, 2, {kBooklet, 2, false, Binding::ShortEdge}, u"1|-"_s},
    {"each page twice on a side", 2, 2, {kTwice, 2}, u"1 2"_s},
    {"another number of sides than anybody knows", 5, 9, {}, u"? ? ? ? ? ? ? ? ?"_s},
    {"fewer sides than pages", 5, 2, {}, u"? ?"_s},
    {"nothing comes out", 5, 0, {}, u""_s},
    {"covers",
     2,
     2,
     {{}, 1, false, kLong, kA4, u"standard"_s, u"secret"_s},
     u"<standard> 1|2 <secret>"_s},
};

struct Arranged
{
    const char *name;
    QList<JobOption> options;
    bool isTwoSided;
    SheetArrangement arrangement;
};
const Arranged kArrangements[] = {
    {"nothing", {}, false, {}},
    {"long edge", {{u"Duplex"_s, u"DuplexNoTumble"_s}}, true, {{}, 1, false, kLong}},
    {"short edge", {{u"Duplex"_s, u"DuplexTumble"_s}}, true, {{}, 1, false, Binding::ShortEdge}},
    {"short edge of IPP",
     {{u"sides"_s, u"two-sided-short-edge"_s}},
     true,
     {{}, 1, false, Binding::ShortEdge}},
    {"an option that the printer has no use for", {{u"Duplex"_s, u"DuplexTumble"_s}}, false, {}},
    {"pages on a side", {{u"number-up"_s, u"4"_s}}, false, {{}, 4}},
    {"a booklet", {{u"booklet"_s, u"left"_s}}, false, {kBooklet, 2}},
    {"a booklet has no edge where it is bound",
     {{u"booklet"_s, u"left"_s}, {u"Duplex"_s, u"DuplexTumble"_s}},
     true,
     {kBooklet, 2}},
    {"each page twice", {{u"repeat"_s, u"2"_s}}, false, {kTwice, 2}},
    {"one cover",
     {{u"job-sheets"_s, u"standard,none"_s}},
     false,
     {{}, 1, false, Binding::None, {}, u"standard"_s}},
    {"another cover",
     {{u"job-sheets"_s, u"none,secret"_s}},
     false,
     {{}, 1, false, Binding::None, {}, {}, u"secret"_s}},
};

struct Bound
{
    const char *name;
    Binding binding;
    QSizeF paper; // as it is read
    int turn;
    Qt::Edge front;
    Qt::Edge back;
};
const Bound kBound[] = {
    {"as a book", kLong, kA4, 0, Qt::LeftEdge, Qt::RightEdge},
    {"as a notepad", Binding::ShortEdge, kA4, 0, Qt::TopEdge, Qt::BottomEdge},
    {"a landscape book", kLong, kA4.transposed(), 90, Qt::TopEdge, Qt::BottomEdge},
    {"a landscape book, turned otherwise", kLong, kA4.transposed(), 270, Qt::BottomEdge,
     Qt::TopEdge},
    {"a landscape notepad", Binding::ShortEdge, kA4.transposed(), 90, Qt::RightEdge, Qt::LeftEdge},
    {"upside down", kLong, kA4, 180, Qt::RightEdge, Qt::LeftEdge},
    {"paper that is fed by its long edge", kLong, kA4.transposed(), 0, Qt::TopEdge, Qt::BottomEdge},
};

} // namespace

class SheetPlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPageLiesWhereItIsPrinted_data() { addRows(kPlans); }
    void eachPageLiesWhereItIsPrinted()
    {
        const Planned &row = currentRow(kPlans);
        const bool isTwoSided = row.arrangement.binding != Binding::None;
        const JobSheets sheets{{{u"a"_s, row.pages, row.sides}}, isTwoSided};
        QCOMPARE(text(planSheets(sheets, row.arrangement)), row.plan);
    }

    void eachDocumentBeginsOnASheetOfItsOwn()
    {
        const JobSheets sheets{{{u"a"_s, 3, 3}, {u"b"_s}, {u"c"_s, 2, 2}}, true};
        const SheetPlan plan = planSheets(sheets, {{}, 1, false, kLong, kA4});
        QCOMPARE(text(plan), u"1|2 3 1|2"_s);
        QCOMPARE(plan.sheets.at(1).front.document, 0);
        QCOMPARE(plan.sheets.at(2).front.document, 2);
        QCOMPARE(plan.sheets.at(2).back->laidOutPage, 1);
    }

    // A blank side has the number of no page: nothing is drawn there.
    void aBlankSideLiesAsItsSheetDoes()
    {
        JobSheets sheets{{{u"a"_s, 1, 2}}, true};
        sheets.documents.first().turns = {90};
        const SheetPlan plan = planSheets(sheets, {{}, 1, true, kLong, kA4});
        QCOMPARE(text(plan), u"-|1"_s);
        const PlannedSheet &sheet = plan.sheets.constFirst();
        QCOMPARE(sheet.front.laidOutPage, -1);
        QCOMPARE(sheet.back->laidOutPage, 1);
        QCOMPARE(sheet.front.turn, 90);
        QCOMPARE(sheet.front.paper, kA4.transposed());
    }

    // Most pages of a side decide how it is read; the first where there are as many others.
    void aSideIsReadAsMostOfItsPages()
    {
        JobSheets sheets{{{u"a"_s, 8, 3}}, false};
        sheets.documents.first().turns = {0, 90, 90, 0, 90, 270, 90, 270};
        const SheetPlan plan = planSheets(sheets, {{}, 3, false, Binding::None, kA4});
        QCOMPARE(plan.sheets.at(0).front.turn, 90);
        QCOMPARE(plan.sheets.at(0).front.paper, kA4.transposed());
        QCOMPARE(plan.sheets.at(1).front.turn, 0);
        QCOMPARE(plan.sheets.at(2).front.turn, 90);
    }

    void whatAPlanDependsOnIsAmongTheOptions_data() { addRows(kArrangements); }
    void whatAPlanDependsOnIsAmongTheOptions()
    {
        const Arranged &row = currentRow(kArrangements);
        LayoutTraits traits;
        traits.isTwoSided = row.isTwoSided;
        QCOMPARE(sheetArrangement(row.options, traits, true), row.arrangement);
    }

    // A file has no covers, and neither has a device.
    void onlyAQueuePrintsCovers()
    {
        const SheetArrangement none =
            sheetArrangement({{u"job-sheets"_s, u"standard,standard"_s}}, {}, false);
        QCOMPARE(coverSheets(none), 0);
        QCOMPARE(coverSheets(sheetArrangement({{u"job-sheets"_s, u"standard,none"_s}}, {}, true)),
                 1);
        QCOMPARE(none, SheetArrangement());
    }

    void theBindingIsWhereTheReaderFindsIt_data() { addRows(kBound); }
    void theBindingIsWhereTheReaderFindsIt()
    {
        const Bound &row = currentRow(kBound);
        PlannedSide side;
        side.paper = row.paper;
        side.turn = row.turn;
        QCOMPARE(bindingEdge(row.binding, side, SheetSide::Front), std::optional(row.front));
        QCOMPARE(bindingEdge(row.binding, side, SheetSide::Back), std::optional(row.back));
        QCOMPARE(bindingEdge(Binding::None, side, SheetSide::Front), std::nullopt);
    }
};

QTEST_MAIN(SheetPlanTest)

#include "sheet_plan_test.moc"
