#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/sheets/SheetCounter.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/sheets/TestPdf.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using When = SheetCounter::When;

namespace {

constexpr int kPatience = 20000;

// Counts how often it was called, and hands the last argument, a document, on.
constexpr char kPassing[] = "echo . >>$DIR/calls; for last in \"$@\"; do :; done; cat \"$last\"\n";
constexpr char kHanging[] = "echo $$ >$DIR/pid; sleep 300\n";

struct Bad
{
    const char *name;
    QByteArray content;
    QString format;
};
const Bad kBad[] = {
    {"no PDF", "not a PDF at all", u"application/pdf"_s},
    {"nothing", "", u"application/pdf"_s},
    {"a PDF without pages",
     "%PDF-1.4\n1 0 obj\n<< /Type /Catalog >>\nendobj\ntrailer << /Root 1 0 R >>\n%%EOF\n",
     u"application/pdf"_s},
    {"pages within themselves",
     "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n2 0 obj\n<< /Type /Pages /Kids "
     "[2 0 R] /Count 9999999 >>\nendobj\ntrailer << /Root 1 0 R >>\n%%EOF\n",
     u"application/pdf"_s},
    {"PostScript that is none", "%!PS\nthis is no operator\n", u"application/postscript"_s},
    {"no picture", "\x89PNG\r\n", u"image/png"_s},
};

} // namespace

class SheetCounterTest : public QObject
{
    Q_OBJECT

private:
    static SheetRequest requestFor(const Document &document, const QList<JobOption> &options = {})
    {
        return {{document}, options, {kA4}};
    }
    static Document pdf(const QString &path) { return {path, u"application/pdf"_s, u"a.pdf"_s}; }

private Q_SLOTS:
    void whatCannotBeCountedIsSaidToBeUncounted_data() { addRows(kBad); }
    void whatCannotBeCountedIsSaidToBeUncounted()
    {
        const Bad &row = currentRow(kBad);
        const QTemporaryDir folder;
        const SheetRequest request =
            requestFor({writeFile(folder.filePath(u"bad"_s), row.content), row.format, u"bad"_s});
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QCOMPARE(counter.counted(request), nullptr);
        QVERIFY(finished.wait(kPatience));
        QVERIFY(counter.counted(request));
        QVERIFY(isUncounted(*counter.counted(request)));
    }

    // The other documents of the job are counted all the same.
    void oneBadDocumentIsOne()
    {
        const QTemporaryDir folder;
        const Document good = pdf(writeFile(folder.filePath(u"good"_s), pdfOfSizes({kA4, kA4})));
        const Document bad = pdf(writeFile(folder.filePath(u"bad"_s), "bad"));
        const SheetRequest request{{bad, good}, {}, {kA4}};
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kPatience));
        const JobSheets sheets = *counter.counted(request);
        QCOMPARE(sheets.documents.size(), 2);
        QVERIFY(!sheets.documents.at(0).sides);
        QCOMPARE(sheets.documents.at(1).sides, std::optional(2));
    }

    void rawDataIsNotCounted()
    {
        const QTemporaryDir folder;
        const SheetRequest request = requestFor(
            pdf(writeFile(folder.filePath(u"a"_s), pdfOfSizes({kA4}))), {{u"raw"_s, u"true"_s}});
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kPatience));
        QVERIFY(isUncounted(*counter.counted(request)));
    }

    void aTitleIsNotTakenForPages()
    {
        const QTemporaryDir folder;
        const SheetRequest request = requestFor(
            pdf(writeFile(folder.filePath(u"a"_s), pdfOfSizes({kA4}, "x\\nPages:           700"))));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kPatience));
        QCOMPARE(counter.counted(request)->documents.constFirst().pages, std::optional(1));
    }

    void whatWasCountedIsKept()
    {
        const FakeFilter filter(kPassing);
        const QString path = writeFile(filter.path(u"a.pdf"_s), pdfOfSizes({kA4}));
        const SheetRequest request = requestFor(pdf(path));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kPatience));
        const QByteArray calls = filter.content(u"calls"_s);
        QVERIFY(!calls.isEmpty());
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kPatience));
        QCOMPARE(filter.content(u"calls"_s), calls);
        // Other contents under the same name are another document.
        writeFile(path, pdfOfSizes({kA4, kA4}));
        QCOMPARE(counter.counted(request), nullptr);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kPatience));
        QCOMPARE(counter.counted(request)->documents.constFirst().sides, std::optional(2));
    }

    void aNewerRequestEndsAnOlderOne()
    {
        const FakeFilter filter(kHanging);
        const SheetRequest older =
            requestFor(pdf(writeFile(filter.path(u"a.pdf"_s), pdfOfSizes({kA4}))));
        const SheetRequest newer =
            requestFor(pdf(writeFile(filter.path(u"b.pdf"_s), "no PDF at all")));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(older, When::Now);
        QVERIFY(filter.waitForFile(u"pid"_s));
        counter.count(newer, When::Now);
        QVERIFY(filter.waitForEndOf(u"pid"_s));
        QVERIFY(finished.wait(kPatience));
        QCOMPARE(finished.size(), 1);
        QVERIFY(counter.counted(newer));
        QCOMPARE(counter.counted(older), nullptr);
    }

    void cancelingEndsTheChain()
    {
        const FakeFilter filter(kHanging);
        const SheetRequest request =
            requestFor(pdf(writeFile(filter.path(u"a.pdf"_s), pdfOfSizes({kA4}))));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(filter.waitForFile(u"pid"_s));
        counter.cancel();
        QVERIFY(filter.waitForEndOf(u"pid"_s));
        QTest::qWait(50);
        QVERIFY(finished.isEmpty());
    }

    // Each change of a field asks anew; only the last one is counted.
    void soonWaitsForFurtherChanges()
    {
        const FakeFilter filter(kPassing);
        const Document document = pdf(writeFile(filter.path(u"a.pdf"_s), pdfOfSizes({kA4})));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        for (const char *ranges : {"1", "1-2", "1-3"})
            counter.count(requestFor(document, {{u"page-ranges"_s, QString::fromLatin1(ranges)}}),
                          When::Soon);
        QTest::qWait(50);
        QVERIFY(filter.content(u"calls"_s).isNull());
        QVERIFY(finished.wait(kPatience));
        QTest::qWait(300);
        QCOMPARE(finished.size(), 1);
        QVERIFY(counter.counted(requestFor(document, {{u"page-ranges"_s, u"1-3"_s}})));
    }
};

QTEST_MAIN(SheetCounterTest)

#include "sheet_counter_test.moc"
