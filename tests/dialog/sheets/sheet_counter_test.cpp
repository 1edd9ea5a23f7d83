#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/sheets/LaidOutDocument.h"
#include "dialog/sheets/SheetCounter.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using When = SheetCounter::When;

namespace {

constexpr int kCountPatience = 20000;

// Counts how often it was called, and hands the last argument, a document, on.
constexpr char kPassing[] = "echo . >>$DIR/calls; for last in \"$@\"; do :; done; cat \"$last\"\n";
constexpr char kHanging[] = "echo $$ >$DIR/pid; sleep 300\n";

struct BadDocument
{
    const char *name;
    QByteArray content;
    QString format;
};
const BadDocument kBadDocuments[] = {
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
    void whatCannotBeCountedIsSaidToBeUncounted_data() { addRows(kBadDocuments); }
    void whatCannotBeCountedIsSaidToBeUncounted()
    {
        const BadDocument &row = currentRow(kBadDocuments);
        const QTemporaryDir folder;
        const SheetRequest request =
            requestFor({writeFile(folder.filePath(u"bad"_s), row.content), row.format, u"bad"_s});
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QCOMPARE(counter.counted(request), nullptr);
        QVERIFY(finished.wait(kCountPatience));
        QVERIFY(counter.counted(request));
        QVERIFY(isUncounted(*counter.counted(request)));
        const DocumentSheets &document = counter.counted(request)->documents.constFirst();
        QCOMPARE(document.trouble, DocumentSheets::Trouble::Failed);
        QVERIFY(!document.laidOut);
    }

    // Of another document it is not known why nothing came out.
    void onlyPostScriptIsKnownToDrawNothing()
    {
        const FakeFilter filter("exit 0\n");
        for (const QString &format : {u"application/postscript"_s, u"application/x-drawing"_s}) {
            const QString path = writeFile(filter.path(u"document"_s), "%!PS\n");
            const SheetRequest request = requestFor({path, format, u"document"_s});
            SheetCounter counter;
            QSignalSpy finished(&counter, &SheetCounter::finished);
            counter.count(request, When::Now);
            QVERIFY(finished.wait(kCountPatience));
            QCOMPARE(drawsNoPage(*counter.counted(request)), format == u"application/postscript"_s);
        }
    }

    // The other documents of the job are counted all the same.
    void oneBadDocumentIsOne()
    {
        const QTemporaryDir folder;
        const Document good = pdf(writeFile(folder.filePath(u"good"_s), numberedPdf("page", 2)));
        const Document bad = pdf(writeFile(folder.filePath(u"bad"_s), "bad"));
        const SheetRequest request{{bad, good}, {}, {kA4}};
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kCountPatience));
        const JobSheets sheets = *counter.counted(request);
        QCOMPARE(sheets.documents.size(), 2);
        QVERIFY(!sheets.documents.at(0).sides);
        QCOMPARE(sheets.documents.at(1).sides, std::optional(2));
    }

    void aTitleIsNotTakenForPages()
    {
        const QTemporaryDir folder;
        const SheetRequest request = requestFor(
            pdf(writeFile(folder.filePath(u"a"_s),
                          numberedPdf("page", QList<QSizeF>{kA4}, "x\\nPages:           700"))));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kCountPatience));
        QCOMPARE(counter.counted(request)->documents.constFirst().pages, std::optional(1));
    }

    void whatWasCountedIsKept()
    {
        const FakeFilter filter(kPassing);
        const QString path = writeFile(filter.path(u"a.pdf"_s), numberedPdf("page", 1));
        const SheetRequest request = requestFor(pdf(path));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kCountPatience));
        const QByteArray calls = filter.content(u"calls"_s);
        QVERIFY(!calls.isEmpty());
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kCountPatience));
        QCOMPARE(filter.content(u"calls"_s), calls);
        // Other contents under the same name are another document.
        writeFile(path, numberedPdf("page", 2));
        QCOMPARE(counter.counted(request), nullptr);
        counter.count(request, When::Now);
        QVERIFY(finished.wait(kCountPatience));
        QCOMPARE(counter.counted(request)->documents.constFirst().sides, std::optional(2));
    }

    void aNewerRequestEndsAnOlderOne()
    {
        const FakeFilter filter(kHanging);
        const SheetRequest older =
            requestFor(pdf(writeFile(filter.path(u"a.pdf"_s), numberedPdf("page", 1))));
        const SheetRequest newer =
            requestFor(pdf(writeFile(filter.path(u"b.pdf"_s), "no PDF at all")));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(older, When::Now);
        QVERIFY(filter.waitForFile(u"pid"_s));
        counter.count(newer, When::Now);
        QVERIFY(filter.waitForEndOf(u"pid"_s));
        QVERIFY(finished.wait(kCountPatience));
        QCOMPARE(finished.size(), 1);
        QVERIFY(counter.counted(newer));
        QCOMPARE(counter.counted(older), nullptr);
    }

    void cancelingEndsTheChain()
    {
        const FakeFilter filter(kHanging);
        const SheetRequest request =
            requestFor(pdf(writeFile(filter.path(u"a.pdf"_s), numberedPdf("page", 1))));
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
        const Document document = pdf(writeFile(filter.path(u"a.pdf"_s), numberedPdf("page", 1)));
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        for (const char *ranges : {"1", "1-2", "1-3"})
            counter.count(requestFor(document, {{u"page-ranges"_s, QString::fromLatin1(ranges)}}),
                          When::Soon);
        QTest::qWait(50);
        QVERIFY(filter.content(u"calls"_s).isNull());
        QVERIFY(finished.wait(kCountPatience));
        QTest::qWait(300);
        QCOMPARE(finished.size(), 1);
        QVERIFY(counter.counted(requestFor(document, {{u"page-ranges"_s, u"1-3"_s}})));
    }

    // Whoever changes one thing and looks does not wait for changes that never come.
    void theFirstChangeIsCountedAtOnce()
    {
        const FakeFilter filter(kHanging);
        SheetCounter counter;
        counter.count(requestFor(pdf(writeFile(filter.path(u"a.pdf"_s), numberedPdf("page", 1)))),
                      When::Soon);
        QTest::qWait(100);
        QVERIFY(!filter.content(u"pid"_s).isNull());
    }

    // Whoever shows the sides of an older layout goes on showing them while a newer one is made;
    // nothing of it stays behind in the end.
    void sidesLiveAsLongAsSomebodyHoldsThem()
    {
        const QTemporaryDir folder;
        const Variable temporary("TMPDIR", folder.path().toLocal8Bit());
        const Document document = pdf(writeFile(folder.filePath(u"a.pdf"_s), numberedPdf("a", 3)));
        const auto left = [&] {
            return QDir(folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        };
        std::shared_ptr<const LaidOutDocument> held;
        {
            SheetCounter counter;
            QSignalSpy finished(&counter, &SheetCounter::finished);
            const SheetRequest older = requestFor(document);
            counter.count(older, When::Now);
            QVERIFY(finished.wait(kCountPatience));
            held = counter.counted(older)->documents.constFirst().laidOut;
            QVERIFY(held);
            QCOMPARE(held->count(), 3);
            QCOMPARE(held->size(2), kA4);
            QCOMPARE(held->size(3), QSizeF());
            counter.count(requestFor(document, {{u"number-up"_s, u"2"_s}}), When::Now);
            QVERIFY(QFile::exists(held->path()));
            QVERIFY(finished.wait(kCountPatience));
            QVERIFY(QFile::exists(held->path()));
            QCOMPARE(left().size(), 2);
        }
        QCOMPARE(left().size(), 1);
        held.reset();
        QCOMPARE(left(), QStringList());
    }
};

QTEST_MAIN(SheetCounterTest)

#include "sheet_counter_test.moc"
