#include <QTest>

#include "dialog/sheets/OrderOnSheet.h"
#include "dialog/sheets/SheetCount.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr QRectF kUprightBox{0, 0, 595, 842};
constexpr QRectF kLyingBox{0, 0, 842, 595};
constexpr QRectF kSquareBox{0, 0, 600, 600};
constexpr QRectF kWideCut{0, 150, 595, 400};
const PdfPage kUpright{kUprightBox, {}, {}};
const PdfPage kLying{kLyingBox, {}, {}};
const PdfPage kSquare{kSquareBox, {}, {}};

QList<JobOption> layout(const char *number, const char *orientation = nullptr)
{
    QList<JobOption> options{{u"number-up"_s, QString::fromLatin1(number)}};
    if (orientation)
        options += JobOption{u"orientation-requested"_s, QString::fromLatin1(orientation)};
    return options;
}

LayoutTraits onPaper(QSizeF paper, bool turnsRight = false)
{
    LayoutTraits traits{paper};
    traits.turnsRight = turnsRight;
    return traits;
}

struct TurnRow
{
    const char *name;
    QList<PdfPage> pages;
    QList<JobOption> options;
    int turn;
    LayoutTraits traits = onPaper(kA4);
    int picture = 0;
};
const TurnRow kTurnRows[] = {
    {"upright pages", {kUpright, kUpright}, layout("4"), 0},
    {"slides", {kLying, kLying}, layout("4"), 90},
    {"slides, two of them", {kLying}, layout("2"), 90},
    {"slides by their rotation", {{kUprightBox, {}, {}, 90}}, layout("4"), 90},
    {"upright by their rotation", {{kLyingBox, {}, {}, 270}}, layout("4"), 0},
    {"upside down by their rotation", {{kLyingBox, {}, {}, 180}}, layout("4"), 90},
    {"cut to slides", {{kUprightBox, kUprightBox, kWideCut}}, layout("4"), 90},
    {"shown as slides, and not cut", {{kUprightBox, kWideCut, kUprightBox}}, layout("4"), 0},
    {"square pages", {kSquare}, layout("4"), 0},
    {"square pages on paper that lies", {kSquare}, layout("4"), 90, onPaper(kA4.transposed())},
    {"upright pages on paper that lies", {kUpright}, layout("4"), 90, onPaper(kA4.transposed())},
    {"slides on paper that lies", {kLying}, layout("4"), 0, onPaper(kA4.transposed())},
    {"slides, upright", {kLying}, layout("4", "3"), 90},
    {"slides, landscape", {kLying}, layout("4", "4"), 0},
    {"slides, reverse landscape", {kLying}, layout("4", "5"), 0},
    {"slides, upside down", {kLying}, layout("4", "6"), 90},
    {"upright pages, landscape", {kUpright}, layout("4", "4"), 90},
    {"upright pages, reverse landscape", {kUpright}, layout("4", "5"), 90},
    {"turned to the right", {kLying}, layout("4"), 270, onPaper(kA4, true)},
    {"upright where others are turned to the right",
     {kUpright},
     layout("4"),
     0,
     onPaper(kA4, true)},
    {"slides and other pages", {kLying, kUpright}, layout("4"), 0},
    {"one on a side", {kLying}, layout("1"), 0},
    {"nothing said of several", {kLying}, {}, 0},
    {"a booklet", {kLying}, {{u"booklet"_s, u"left"_s}}, 90},
    {"each page twice", {kLying}, {{u"repeat"_s, u"2"_s}}, 90},
    {"no page", {}, layout("4"), 0},
    {"a picture that lies on its page", {kUpright}, layout("4"), 90, onPaper(kA4), 90},
    {"a picture that lies on a page that is turned back",
     {kLying},
     layout("4"),
     0,
     onPaper(kA4, true),
     90},
    {"a picture that is upside down then", {kLying}, layout("4"), 180, onPaper(kA4), 90},
};

struct WordsRow
{
    const char *wanted;
    const char *told;       // where sides are turned to the right to be read
    const char *toldOnLeft; // and to the left
    const char *toldUpsideDown;
};
constexpr WordsRow kWordsRows[] = {
    {"lrtb", "btlr", "tbrl", "rlbt"}, {"lrbt", "btrl", "tblr", "rltb"},
    {"rltb", "tblr", "btrl", "lrbt"}, {"rlbt", "tbrl", "btlr", "lrtb"},
    {"tblr", "lrbt", "rltb", "btrl"}, {"tbrl", "lrtb", "rlbt", "btlr"},
    {"btlr", "rlbt", "lrtb", "tbrl"}, {"btrl", "rltb", "lrbt", "tblr"},
};

DocumentSheets counted(std::optional<int> sides, int turn)
{
    DocumentSheets document;
    document.sides = sides;
    document.orderTurn = turn;
    return document;
}

} // namespace

class OrderOnSheetTest : public QObject
{
    Q_OBJECT

private:
    static QList<JobOption> order(const char *value)
    {
        return {{u"number-up-layout"_s, QString::fromLatin1(value)}};
    }

private Q_SLOTS:
    void theOrderIsTurnedAsPagesAre_data() { addRows(kTurnRows); }
    void theOrderIsTurnedAsPagesAre()
    {
        const TurnRow &row = currentRow(kTurnRows);
        QCOMPARE(turnOfOrder(row.pages, row.picture, row.options, row.traits), row.turn);
    }

    void anotherOrderIsToldThanTheOneThatIsWanted()
    {
        for (const WordsRow &row : kWordsRows) {
            QCOMPARE(withOrderForReader(order(row.wanted), 0), order(row.wanted));
            QCOMPARE(withOrderForReader(order(row.wanted), 90), order(row.told));
            QCOMPARE(withOrderForReader(order(row.wanted), 270), order(row.toldOnLeft));
            QCOMPARE(withOrderForReader(order(row.wanted), 180), order(row.toldUpsideDown));
        }
    }

    void theUsualOrderIsToldWhereItIsAnother()
    {
        QCOMPARE(withOrderForReader(layout("4"), 90), layout("4") + order("btlr"));
        QCOMPARE(withOrderForReader(layout("4"), 0), layout("4"));
    }

    // The last one counts, as in the chain; the words of a PPD's own option are its own.
    void whatIsSaidTwiceOrByNobodyHere()
    {
        QCOMPARE(withOrderForReader(order("tblr") + layout("4") + order("lrtb"), 90),
                 layout("4") + order("btlr"));
        for (const char *words : {"zigzag", "lr", "xxtb", "lrxx", "l"})
            QCOMPARE(withOrderForReader(order(words), 90), order(words));
    }

    void aJobHasOneOrder()
    {
        QCOMPARE(commonOrderTurn({}), 0);
        QCOMPARE(commonOrderTurn({{counted(2, 90), counted(1, 90)}}), 90);
        QCOMPARE(commonOrderTurn({{counted(2, 90), counted(1, 0)}}), std::nullopt);
        QCOMPARE(commonOrderTurn({{counted(0, 0), counted(1, 90), counted({}, 0)}}), 90);
    }
};

QTEST_APPLESS_MAIN(OrderOnSheetTest)
#include "order_on_sheet_test.moc"
