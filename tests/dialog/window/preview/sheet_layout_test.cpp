#include <QTest>

#include "dialog/window/preview/SideTexts.h"
#include "tests/dialog/window/preview/FakePictures.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize kView{600, 640};

SheetSpace space(QSize viewport = kView, bool mirrored = false)
{
    return {viewport, 1.0, 20, mirrored};
}

SheetLayout layoutOf(const ShownSheets &sheets, const Zoom &zoom = {},
                     const SheetSpace &where = space())
{
    return {sheets.plan, zoom, where};
}

} // namespace

class SheetLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void aFittedPageIsSeenWhole()
    {
        for (const QSize viewport : {QSize(600, 640), QSize(300, 900), QSize(1500, 400)}) {
            const SheetLayout layout = layoutOf(sheetsOfPages(1), {}, space(viewport));
            const QRect whole = layout.sheet(0);
            QVERIFY(QRect(QPoint(), viewport).contains(whole));
            // One of the directions is used up, but for the margin.
            const bool full =
                viewport.width() - whole.width() <= 42 || viewport.height() - whole.height() <= 42;
            QVERIFY(full);
        }
    }

    void aFittedWidthIsUsedUp()
    {
        const SheetLayout layout = layoutOf(sheetsOfPages(3, true), {Zoom::Fit::Width});
        const QRect whole = layout.sheet(0);
        QVERIFY(whole.width() <= kView.width() - 40);
        QVERIFY(whole.width() >= kView.width() - 44);
    }

    void aPercentageIsOfTheActualSize()
    {
        const SheetLayout layout = layoutOf(sheetsOfPages(1), {Zoom::Fit::Percent, 200});
        QCOMPARE(layout.paper({0}).size(), QSize(1190, 1684));
        QCOMPARE(layoutOf(sheetsOfPages(1), {Zoom::Fit::Percent, 9000}).scale(), 4.0);
        QCOMPARE(layoutOf(sheetsOfPages(1), {Zoom::Fit::Percent, 1}).scale(), 0.25);
    }

    void backsAreBesideTheirFronts()
    {
        const SheetLayout layout = layoutOf(sheetsOfPages(3, true));
        const QRect front = layout.paper({0});
        const QRect back = layout.paper({0, true});
        QVERIFY(front.right() < back.left());
        QCOMPARE(front.top(), back.top());
        QCOMPARE(front.size(), back.size());
        // The last sheet has no back; its front is below the others.
        QVERIFY(layout.paper({1, true}).isNull());
        QCOMPARE(layout.paper({1}).left(), front.left());
    }

    void frontsAreAtTheRightWhereReadingBeginsThere()
    {
        const SheetLayout layout = layoutOf(sheetsOfPages(3, true), {}, space(kView, true));
        QVERIFY(layout.paper({0}).left() > layout.paper({0, true}).right());
        QCOMPARE(layout.paper({1}).left(), layout.paper({0}).left());
    }

    void sheetsThatHaveRoomStandBesideEachOther()
    {
        const SheetLayout layout =
            layoutOf(sheetsOfPages(10), {Zoom::Fit::Percent, 25}, space({800, 600}));
        QCOMPARE(layout.columns(), 4); // 148.75 + 20 each
        QCOMPARE(layout.sheet(0).top(), layout.sheet(3).top());
        QVERIFY(layout.sheet(4).top() > layout.sheet(3).bottom());
        QVERIFY(layout.sheet(1).left() > layout.sheet(0).right());
        const SheetLayout mirrored =
            layoutOf(sheetsOfPages(10), {Zoom::Fit::Percent, 25}, space({800, 600}, true));
        QVERIFY(mirrored.sheet(1).right() < mirrored.sheet(0).left());
    }

    void sheetsOfOneJobHaveOneScale()
    {
        ShownSheets sheets = sheetsOfPages(2);
        sheets.plan.sheets[1].front.paper = {297.5, 421}; // half as wide and high
        const SheetLayout layout = layoutOf(sheets);
        const QSize large = layout.paper({0}).size();
        const QSize small = layout.paper({1}).size();
        QVERIFY(qAbs(large.width() - 2 * small.width()) <= 1);
        QVERIFY(qAbs(large.height() - 2 * small.height()) <= 1);
    }

    void whatLiesAtAPlaceIsFound()
    {
        const SheetLayout layout = layoutOf(sheetsOfPages(100, true));
        for (const SideIndex side : {SideIndex{0}, SideIndex{0, true}, SideIndex{49, true}})
            QCOMPARE(layout.sideAt(layout.paper(side).center()), side);
        QVERIFY(!layout.sideAt({1, 1}).isValid());
    }

    void onlyWhatCanBeSeenIsFound()
    {
        const SheetLayout layout = layoutOf(sheetsOfPages(1000));
        for (const int top : {0, 5000, 100'000, layout.contents().height() - 640}) {
            const auto [first, last] = layout.sheetsBetween(top, top + 639);
            QVERIFY(first <= last);
            QVERIFY(last - first <= 2);
            for (int i = qMax(0, first - 3); i < qMin(1000, last + 4); ++i) {
                const QRect sheet = layout.sheet(i);
                const bool seen = sheet.bottom() >= top && sheet.top() <= top + 639;
                QVERIFY2(!seen || (i >= first && i <= last), qPrintable(QString::number(i)));
            }
        }
    }

    void aSizeThatIsNoneMakesNoLayoutOfNothing_data()
    {
        QTest::addColumn<QSizeF>("paper");
        QTest::newRow("nothing") << QSizeF(0, 0);
        QTest::newRow("less than nothing") << QSizeF(-5, 800);
        QTest::newRow("huge") << QSizeF(1e30, 1e30);
        QTest::newRow("no number") << QSizeF(qQNaN(), qInf());
    }
    void aSizeThatIsNoneMakesNoLayoutOfNothing()
    {
        QFETCH(QSizeF, paper);
        for (const Zoom &zoom : {Zoom{}, Zoom{Zoom::Fit::Width}, Zoom{Zoom::Fit::Percent, 400}}) {
            const SheetLayout layout = layoutOf(sheetsOfPages(2, false, paper), zoom);
            QVERIFY(layout.paper({0}).width() >= 1);
            QVERIFY(layout.contents().width() < 100'000);
            QVERIFY(layout.contents().height() < 200'000);
        }
    }

    void noSheetsAreNoTrouble()
    {
        const SheetLayout layout = layoutOf({});
        QCOMPARE(layout.sheetsBetween(0, 1000), std::pair(0, -1));
        QCOMPARE(layout.contents(), kView);
        QVERIFY(layout.paper({0}).isNull());
    }

    // It is folded in the middle, and bound at no edge.
    void theSidesOfABookletAreFrontAndBack()
    {
        ShownSheets sheets = sheetsOfPages(2, true);
        sheets.plan.binding = SheetPlan::Binding::None;
        QCOMPARE(sideLabel(sheets.plan, {0}), u"1 front"_s);
        QCOMPARE(sideLabel(sheets.plan, {0, true}), u"1 back"_s);
        QCOMPARE(sideDescription(sheets.plan, sheets.titles, {0, true}),
                 u"Sheet 1, back: page 2"_s);
    }

    void aSideIsSaidInWords_data();
    void aSideIsSaidInWords();
};

namespace {

struct Said
{
    const char *name;
    bool twoSided;
    QList<int> pages;
    bool landscape;
    PlannedSide::Kind kind;
    SideIndex side;
    const char *label;
    const char *text;
};
const Said kSaid[] = {
    {"one-sided", false, {3}, false, PlannedSide::Kind::Pages, {2}, "3", "Sheet 3: page 3"},
    {"front", true, {1}, false, PlannedSide::Kind::Pages, {0}, "1 front", "Sheet 1, front: page 1"},
    {"several pages, landscape",
     true,
     {7, 8},
     true,
     PlannedSide::Kind::Pages,
     {1, true},
     "2 back",
     "Sheet 2, back: pages 7 and 8, landscape"},
    {"blank",
     true,
     {},
     false,
     PlannedSide::Kind::Blank,
     {1, true},
     "2 back",
     "Sheet 2, back: blank"},
    {"cover",
     true,
     {},
     false,
     PlannedSide::Kind::Cover,
     {0},
     "1 front",
     "Sheet 1, front: cover sheet"},
    {"nobody knows the pages",
     false,
     {},
     false,
     PlannedSide::Kind::Pages,
     {0},
     "1",
     "Sheet 1: printed"},
};

} // namespace

void SheetLayoutTest::aSideIsSaidInWords_data()
{
    addRows(kSaid);
}
void SheetLayoutTest::aSideIsSaidInWords()
{
    const Said &row = currentRow(kSaid);
    ShownSheets sheets = sheetsOfPages(row.twoSided ? 4 : 3, row.twoSided);
    PlannedSheet &sheet = sheets.plan.sheets[row.side.sheet];
    PlannedSide &side = row.side.isBack ? *sheet.back : sheet.front;
    side.pages = row.pages;
    side.kind = row.kind;
    if (row.landscape)
        side.paper.transpose();
    QCOMPARE(sideLabel(sheets.plan, row.side), QString::fromLatin1(row.label));
    QCOMPARE(sideDescription(sheets.plan, sheets.titles, row.side), QString::fromLatin1(row.text));
}

QTEST_GUILESS_MAIN(SheetLayoutTest)
#include "sheet_layout_test.moc"
