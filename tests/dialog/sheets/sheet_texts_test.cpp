#include <QLocale>
#include <QTest>

#include "dialog/sheets/SheetTexts.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Set = PageChoice::Set;

DocumentSheets document(int pages, int sides, const QString &title = u"a.pdf"_s)
{
    return {title, pages, sides};
}

struct Empty
{
    const char *name;
    QList<DocumentSheets> documents;
    PageChoice choice;
    QStringList texts;
};
const Empty kEmpty[] = {
    {"something comes out", {document(5, 2)}, {u"1-2"_s}, {}},
    {"pages that are not there",
     {document(5, 0)},
     {u"9-12"_s},
     {u"The document has 5 pages; 9 to 12 are not in it."_s}},
    {"one page that is not there",
     {document(1, 0)},
     {u"2"_s},
     {u"The document has 1 page; 2 is not in it."_s}},
    {"an open end",
     {document(5, 0)},
     {u"7,9-"_s},
     {u"The document has 5 pages; 7, 9 and later are not in it."_s}},
    {"even pages of one",
     {document(1, 0)},
     {{}, Set::Even},
     {u"Nothing would be printed: the document has 1 page, and only even pages were chosen."_s}},
    {"odd pages of an even range",
     {document(5, 0)},
     {u"2"_s, Set::Odd},
     {u"Nothing would be printed: the document has 5 pages, and only odd pages were chosen."_s}},
    {"one of several",
     {document(5, 3), document(1, 0, u"two\n.pdf"_s)},
     {u"3-"_s},
     {u"“two<U+000A>.pdf” has 1 page; 3 and later are not in it."_s}},
    {"what nobody counted is not refused", {{u"a.pdf"_s, 1, std::nullopt}}, {u"3"_s}, {}},
};

struct Count
{
    const char *name;
    QList<DocumentSheets> documents;
    bool twoSided;
    PageChoice choice;
    int copies;
    QString text;
};
const Count kCounts[] = {
    {"one page", {document(1, 1)}, false, {}, 1, u"1 page = 1 sheet"_s},
    {"pages", {document(9, 9)}, false, {}, 1, u"9 pages = 9 sheets"_s},
    {"two-sided copies", {document(9, 5)}, true, {}, 2, u"9 pages × 2 copies = 6 sheets"_s},
    {"chosen pages", {document(9, 2)}, false, {u"1-2"_s}, 3, u"2 pages × 3 copies = 6 sheets"_s},
    {"two documents", {document(1, 1), document(2, 2)}, true, {}, 1, u"3 pages = 2 sheets"_s},
    {"thousands", {document(2000, 2000)}, false, {}, 3, u"2.000 pages × 3 copies = 6.000 sheets"_s},
    {"nobody counted", {{u"a.pdf"_s}}, false, {}, 1, u"could not be counted"_s},
};

struct OneSided
{
    const char *name;
    QList<DocumentSheets> documents;
    bool twoSided;
    QString text;
};
const OneSided kOneSided[] = {
    {"not asked for two sides", {document(1, 1)}, false, {}},
    {"two sides", {document(2, 2)}, true, {}},
    {"one", {document(1, 1)}, true, u"the back stays empty, because only one side is printed"_s},
    {"four pages on one side",
     {document(4, 1)},
     true,
     u"the back stays empty, because only one side is printed"_s},
    {"several of one",
     {document(1, 1), document(1, 1)},
     true,
     u"the backs stay empty, because each document has only one side"_s},
    {"some of one",
     {document(1, 1), document(3, 3)},
     true,
     u"the back stays empty where a document has only one side: “a.pdf”"_s},
};

} // namespace

class SheetTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsNotShownIsNamedWithTheReason()
    {
        using Trouble = DocumentSheets::Trouble;
        JobSheets sheets{{document(3, 3), document(1, 1, u"slow\n.pdf"_s),
                          document(1, 1, u"large.pdf"_s), document(1, 1, u"bad.pdf"_s)}};
        sheets.documents[1].trouble = Trouble::TookTooLong;
        sheets.documents[2].trouble = Trouble::TooLarge;
        sheets.documents[3].trouble = Trouble::Failed;
        QCOMPARE(previewProblems(sheets),
                 (QStringList{u"“slow<U+000A>.pdf” takes too long to be shown. It can be printed "
                              "without a preview."_s,
                              u"“large.pdf” is too large to be shown. It can be printed without a "
                              "preview."_s,
                              u"“bad.pdf” could not be laid out, so there is no preview. Printing "
                              "it may work all the same."_s}));
    }

    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

    // Alone it would be no sentence.
    void whatNobodyCountedIsNamedWhereItStandsAlone()
    {
        QCOMPARE(countLine({{{u"a.pdf"_s}}}, {}, 1), u"Sheets: could not be counted"_s);
        QCOMPARE(countLine({{document(9, 9)}}, {}, 1), u"9 pages = 9 sheets"_s);
    }

    void documentsOfWhichNothingComesOutAreNamed_data() { addRows(kEmpty); }
    void documentsOfWhichNothingComesOutAreNamed()
    {
        const Empty &row = currentRow(kEmpty);
        QCOMPARE(emptyDocuments({row.documents}, row.choice), row.texts);
    }

    void pagesThatAreMissingAreNamed()
    {
        QCOMPARE(missingPages({{document(5, 3)}}, {u"3-9,12"_s}),
                 QStringList{u"The document has 5 pages; 6 to 9, 12 are not in it."_s});
        QCOMPARE(missingPages({{document(5, 3)}}, {u"3-"_s}), QStringList());
        // It is refused, and said once.
        QCOMPARE(missingPages({{document(5, 0)}}, {u"9"_s}), QStringList());
    }

    void sheetsAreCountedInWords_data() { addRows(kCounts); }
    void sheetsAreCountedInWords()
    {
        const Count &row = currentRow(kCounts);
        QCOMPARE(countText({row.documents, row.twoSided}, row.choice, row.copies), row.text);
    }

    void sheetsThatAQueueAddsAreCountedApart()
    {
        const JobSheets sheets{{document(5, 3)}};
        QCOMPARE(countText(sheets, {u"1-3"_s}, 2, 1),
                 u"3 pages × 2 copies = 6 sheets, and 1 cover sheet"_s);
        QCOMPARE(countText(sheets, {u"1-3"_s}, 1, 2), u"3 pages = 3 sheets, and 2 cover sheets"_s);
    }

    void whatComesOutOneSidedIsSaidWithTheReason_data() { addRows(kOneSided); }
    void whatComesOutOneSidedIsSaidWithTheReason()
    {
        const OneSided &row = currentRow(kOneSided);
        QCOMPARE(oneSidedReason({row.documents, row.twoSided}), row.text);
    }

    void scalesOtherThanTheActualSizeAreNamed()
    {
        DocumentSheets mixed = document(4, 4);
        mixed.scales = {{kA4, 0.9597}, {kLetter, 0.933}, {kA5, 1.0}, {kA4.transposed(), 0.96}};
        QCOMPARE(scaleText({{mixed}}), u"A4 at 96 %, Letter at 93 %"_s);
        mixed.scales = {{QSizeF(100, 200), 0.5}};
        QCOMPARE(scaleText({{mixed}}), u"35 × 71 mm at 50 %"_s);
        mixed.scales = {{kA4, 1.004}};
        QCOMPARE(scaleText({{mixed}}), QString());
    }

    void aLongListOfSizesEnds()
    {
        DocumentSheets mixed = document(50, 50);
        for (int i = 0; i < 50; ++i)
            mixed.scales += PageScale{QSizeF(100 + 9 * i, 100 + 9 * i), 0.5};
        QCOMPARE(scaleText({{mixed}}).count(u"at"_s), 6);
        QVERIFY(scaleText({{mixed}}).endsWith(u'…'));
    }

    void theSummaryWaitsForTheCount()
    {
        QCOMPARE(sheetLines(nullptr, {}, 1).constFirst().value, u"…"_s);
        const JobSheets sheets{{document(5, 3)}};
        const QList<SummaryLine> lines = sheetLines(&sheets, {u"3-9"_s}, 1);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.at(0).value, u"3 pages = 3 sheets"_s);
        QCOMPARE(lines.at(1).value, u"The document has 5 pages; 6 to 9 are not in it."_s);
    }
};

QTEST_MAIN(SheetTextsTest)

#include "sheet_texts_test.moc"
