#include <QtTest>

#include "platform/printcore/PageFormat.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class PageFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePaperIsTheOneInThePageFormat();
    void aMissingPageFormatIsAnInvalidObject();
    void theNameIsAnswered();
    void thePpdNameIsAnswered();
    void theSizeIsInPoints();
    void aPaperWithoutANameHasNoneToGive();
    void aSizeThatThePpdLacksHasNoPpdName();
    void aMissingPaperIsAnInvalidObject_data();
    void aMissingPaperIsAnInvalidObject();
    void pageFormatsAreComparedByValue();
};

namespace {

const Paper a4{u"A4"_s, u"A4.Full"_s, 595.0, 842.0};
const QString untouched = u"untouched"_s;

} // namespace

void PageFormatTest::thePaperIsTheOneInThePageFormat()
{
    const PageFormat format{a4};
    PMPaper paper = nullptr;
    QCOMPARE(PMGetPageFormatPaper(&format, &paper), kPMNoError);
    // Borrowed, not copied: it lives as long as the format.
    QCOMPARE(paper, &format.paper);
}

void PageFormatTest::aMissingPageFormatIsAnInvalidObject()
{
    PMPaper paper = &a4;
    QCOMPARE(PMGetPageFormatPaper(nullptr, &paper), kPMInvalidObject);
    QCOMPARE(paper, &a4);
}

void PageFormatTest::theNameIsAnswered()
{
    QString name;
    QCOMPARE(PMPaperGetName(&a4, &name), kPMNoError);
    QCOMPARE(name, u"A4"_s);
}

void PageFormatTest::thePpdNameIsAnswered()
{
    QString name;
    QCOMPARE(PMPaperGetPPDPaperName(&a4, &name), kPMNoError);
    QCOMPARE(name, u"A4.Full"_s);
}

void PageFormatTest::theSizeIsInPoints()
{
    double width = 0;
    double height = 0;
    QCOMPARE(PMPaperGetWidth(&a4, &width), kPMNoError);
    QCOMPARE(PMPaperGetHeight(&a4, &height), kPMNoError);
    QCOMPARE(width, 595.0);
    QCOMPARE(height, 842.0);
}

void PageFormatTest::aPaperWithoutANameHasNoneToGive()
{
    const Paper nameless{{}, u"A4"_s, 595.0, 842.0};
    QString name = untouched;
    QCOMPARE(PMPaperGetName(&nameless, &name), kPMValueUnavailable);
    QCOMPARE(name, untouched);
}

void PageFormatTest::aSizeThatThePpdLacksHasNoPpdName()
{
    const Paper custom{u"Custom.200x300"_s, std::nullopt, 200.0, 300.0};
    QString name = untouched;
    QCOMPARE(PMPaperGetPPDPaperName(&custom, &name), kPMValueUnavailable);
    QCOMPARE(name, untouched);
}

void PageFormatTest::aMissingPaperIsAnInvalidObject_data()
{
    QTest::addColumn<int>("status");
    QString name = untouched;
    double size = -1;
    QTest::newRow("name") << int(PMPaperGetName(nullptr, &name));
    QTest::newRow("PPD name") << int(PMPaperGetPPDPaperName(nullptr, &name));
    QTest::newRow("width") << int(PMPaperGetWidth(nullptr, &size));
    QTest::newRow("height") << int(PMPaperGetHeight(nullptr, &size));
    QTest::newRow("nothing was written")
        << int(name == untouched && size == -1 ? kPMInvalidObject : kPMNoError);
}

void PageFormatTest::aMissingPaperIsAnInvalidObject()
{
    QFETCH(int, status);
    QCOMPARE(status, int(kPMInvalidObject));
}

void PageFormatTest::pageFormatsAreComparedByValue()
{
    const PageFormat format{a4};
    QVERIFY(format == PageFormat{a4});
    const Paper variants[] = {{u"A5"_s, a4.ppdPaperName, a4.width, a4.height},
                              {a4.name, std::nullopt, a4.width, a4.height},
                              {a4.name, a4.ppdPaperName, a4.width + 1, a4.height},
                              {a4.name, a4.ppdPaperName, a4.width, a4.height + 1}};
    for (const Paper &other : variants)
        QVERIFY(format != PageFormat{other});
}

QTEST_GUILESS_MAIN(PageFormatTest)
#include "page_format_test.moc"
