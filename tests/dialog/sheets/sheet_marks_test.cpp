#include <QTest>

#include "dialog/sheets/SheetMarks.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

DocumentSheets document(const QString &title, int pages, int sides)
{
    DocumentSheets sheets;
    sheets.title = title;
    sheets.pages = pages;
    sheets.sides = sides;
    return sheets;
}

SheetPlan planOf(const JobSheets &sheets, const PageChoice &choice)
{
    SheetArrangement arrangement;
    arrangement.choice = choice;
    arrangement.binding =
        sheets.isTwoSided ? SheetPlan::Binding::LongEdge : SheetPlan::Binding::None;
    return planSheets(sheets, arrangement);
}

QList<SheetMark> marksOf(const JobSheets &sheets, const PageChoice &choice = {})
{
    return sheetMarks(planOf(sheets, choice), sheets, choice);
}

} // namespace

class SheetMarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sheetsOfWhichThereIsNothingToSayAreNotMarked()
    {
        QVERIFY(marksOf({{document(u"a"_s, 3, 3)}, false}).isEmpty());
        QVERIFY(marksOf({{document(u"a"_s, 3, 3)}, true}).isEmpty());
        QVERIFY(marksOf({{document(u"a"_s, 1, 1)}, false}).isEmpty());
    }

    void aBackThatStaysEmptyIsMarkedWhereItIs()
    {
        const QList<SheetMark> marks =
            marksOf({{document(u"a"_s, 3, 3), document(u"b"_s, 1, 1)}, true});
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.constFirst().sheet, 2); // behind the two of the first document
        QCOMPARE(marks.constFirst().text,
                 u"The back of this sheet stays empty: only one side is printed."_s);
    }

    void pagesThatADocumentLacksAreMissedBehindItsLastSheet()
    {
        const PageChoice choice{u"2-5"_s};
        const JobSheets sheets{{document(u"a"_s, 3, 2), document(u"b"_s, 9, 4)}, false};
        const QList<SheetMark> marks = marksOf(sheets, choice);
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.constFirst().sheet, 1);
        QCOMPARE(marks.constFirst().text, u"“a” has 3 pages; 4 to 5 are not in it."_s);
    }

    void aDocumentIsMarkedAtItsFirstSheetBesideWhatStandsThere()
    {
        const JobSheets sheets{{document(u"a"_s, 2, 2), document(u"b"_s, 1, 1)}, true};
        const SheetPlan plan = planOf(sheets, {});
        QList<SheetMark> marks = sheetMarks(plan, sheets, {});
        markDocument(marks, plan, 0, u"A is damaged."_s);
        markDocument(marks, plan, 1, u"B is damaged."_s);
        markDocument(marks, plan, 2, u"There is no such document."_s);
        markDocument(marks, plan, 0, {});
        QCOMPARE(marks.size(), 2);
        QCOMPARE(markOn(marks, 0, SheetSide::Front), u"A is damaged."_s);
        QCOMPARE(markOn(marks, 1, SheetSide::Front).split(u'\n').constLast(), u"B is damaged."_s);
        QCOMPARE(markOn(marks, 1, SheetSide::Front).split(u'\n').size(), 2);
        QVERIFY(markOn(marks, 0, SheetSide::Back).isEmpty());
    }
};

QTEST_GUILESS_MAIN(SheetMarksTest)

#include "sheet_marks_test.moc"
