#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/PdfPages.h"
#include "dialog/job/ProgramRun.h"
#include "dialog/job/ResultPages.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray kHeader(100, '\1');

struct Result
{
    const char *name;
    QByteArray content;
    bool isEmpty;
};
const Result kResults[] = {
    {"PostScript with pages", "%!PS-Adobe-3.0\n%%Pages: (atend)\n%%Trailer\n%%Pages: 5\n%%EOF\n",
     false},
    {"PostScript without a page",
     "%!PS-Adobe-3.0\n%%Pages: (atend)\n%%Trailer\n%%Pages: 0\n%%EOF\n", true},
    {"PostScript that says it at the begin", "%!PS-Adobe-3.0\n%%Pages: 0\n%%EOF\n", true},
    {"PostScript that says nothing", "%!PS-Adobe-3.0\nshowpage\n", false},
    {"PostScript that ends in the comment", "%!PS-Adobe-3.0\n%%Pages:", false},
    {"PostScript behind commands", "\033%-12345X@PJL\n%!PS-Adobe-3.0\n%%Trailer\n%%Pages: 0\n",
     true},
    {"raster without a page", "RaS2", true},
    {"raster with a page", "RaS2" + kHeader, false},
    {"raster of another byte order, without a page", "3SaR", true},
    {"the other raster without a page", QByteArray("UNIRAST\0\0\0\0\0", 12), true},
    {"the other raster with a page", QByteArray("UNIRAST\0\0\0\0\1", 12) + kHeader, false},
    {"PCL", "\033E\033&l1X", false},
    {"a PDF without a page",
     "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n2 0 obj\n<< /Type /Pages /Kids "
     "[] /Count 0 >>\nendobj\ntrailer << /Root 1 0 R /Size 3 >>\n%%EOF\n",
     true},
    {"a PDF with a page",
     "%PDF-1.4\n1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n2 0 obj\n<< /Type /Pages /Kids "
     "[3 0 R] /Count 1 >>\nendobj\n3 0 obj\n<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] "
     ">>\nendobj\ntrailer << /Root 1 0 R /Size 4 >>\n%%EOF\n",
     false},
    {"a PDF that nobody can read", "%PDF-1.4\n", false},
};

struct Answer
{
    const char *name;
    QByteArray text;
    int count; // -1: none
    QList<PdfPage> pages;
};
const QRectF kBox(QPointF(0, 0), QPointF(595, 842));
const Answer kAnswers[] = {
    {"one page", "Title: a\nPages:           1\nEncrypted: no\n", 1, {}},
    {"nothing", "", -1, {}},
    {"no number", "Pages:           many\n", -1, {}},
    {"a title like an answer", "Title: a\nPages:           7\nPages:           1\n", 1, {}},
    {"boxes",
     "Pages:           2\nPage    1 size:  595 x 842 pts (A4)\nPage    1 rot:   0\n"
     "Page    2 rot:   90\nPage    1 MediaBox:      0.00     0.00   595.00   842.00\n"
     "Page    1 CropBox:      0.00     0.00   595.00   842.00\n"
     "Page    1 TrimBox:      0.00     0.00   595.00   842.00\n"
     "Page    2 MediaBox:    -5.00     0.00   590.00   842.00\n",
     2,
     {{kBox, kBox, kBox, 0}, {QRectF(QPointF(-5, 0), QPointF(590, 842)), {}, {}, 90}}},
    {"pages that there are not",
     "Pages:           1\nPage    2 rot:   90\nPage    0 rot:   90\n",
     1,
     {}},
    {"a title that describes pages",
     "Title: a\nPage    1 rot:   90\nPages:           1\nPage    1 rot:   0\n",
     1,
     {PdfPage()}},
};

} // namespace

class ResultPagesTest : public QObject
{
    Q_OBJECT

private:
    // Runs a shell; answers what it said, or the problem.
    static std::pair<QByteArray, QString> run(const QString &script,
                                              const ProgramRun::Limits &limits = {})
    {
        ProgramRun run(u"/bin/sh"_s, {u"-c"_s, script}, limits);
        std::pair<QByteArray, QString> answer;
        int calls = 0;
        connect(&run, &ProgramRun::finished, [&](const QByteArray &said, const QString &problem) {
            answer = {said, problem};
            ++calls;
        });
        run.start();
        if (!QTest::qWaitFor([&] { return calls > 0; }, 20000))
            answer.second = u"no end"_s;
        return answer;
    }

private Q_SLOTS:
    void aResultWithoutAPageIsNoticed_data() { addRows(kResults); }
    void aResultWithoutAPageIsNoticed()
    {
        const Result &row = currentRow(kResults);
        const QTemporaryDir folder;
        const QString path = writeFile(folder.filePath(u"result"_s), row.content);
        std::optional<QString> problem;
        checkResultPages(path, this, [&](const QString &text) { problem = text; });
        QVERIFY(!problem);
        QTRY_VERIFY_WITH_TIMEOUT(problem, 20000);
        QCOMPARE(!problem->isEmpty(), row.isEmpty);
    }

    void theEndOfALongResultIsRead()
    {
        const QByteArray head = "%!PS-Adobe-3.0\n%%Pages: (atend)\n";
        const QByteArray end = "%%Trailer\n%%Pages: 0\n%%EOF\n";
        QVERIFY(isKnownToBeEmpty(head, end, 1 << 30));
        const QTemporaryDir folder;
        const QString path =
            writeFile(folder.filePath(u"result"_s), head + QByteArray(5 * kLookedAt, ' ') + end);
        std::optional<QString> problem;
        checkResultPages(path, this, [&](const QString &text) { problem = text; });
        QTRY_VERIFY(problem && !problem->isEmpty());
    }

    void anAnswerOfPdfinfoIsRead_data() { addRows(kAnswers); }
    void anAnswerOfPdfinfoIsRead()
    {
        const Answer &row = currentRow(kAnswers);
        const auto pages = readPdfPages(row.text);
        QCOMPARE(pages ? pages->count : -1, row.count);
        if (pages)
            QCOMPARE(pages->pages, row.pages);
    }

    void aProgramIsBounded()
    {
        QCOMPARE(run(u"echo hello"_s), (std::pair{QByteArray("hello\n"), QString()}));
        QVERIFY(run(u"exit 3"_s).second.contains(u"3"_s));
        QVERIFY(run(u"kill -SEGV $$"_s).second.contains(u"crashed"_s));
        QVERIFY(run(u"exec sleep 300"_s, {200}).second.contains(u"200 ms"_s));
        const auto [said, problem] = run(u"exec yes"_s, {20000, 5000});
        QVERIFY(problem.contains(u"5000 bytes"_s));
        QVERIFY(said.isEmpty());
        QVERIFY(run(u"ulimit -v"_s).first.trimmed().toLongLong() <= (2 << 20));
    }

    void aProgramThatIsNotThereIsAProblem()
    {
        ProgramRun run(u"/nowhere/program"_s, {}, {});
        QString problem;
        connect(&run, &ProgramRun::finished,
                [&](const QByteArray &, const QString &text) { problem = text; });
        run.start();
        QVERIFY(problem.isEmpty());
        QTRY_VERIFY(!problem.isEmpty());
    }
};

QTEST_MAIN(ResultPagesTest)

#include "result_pages_test.moc"
