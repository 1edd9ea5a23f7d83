#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/ResultFormat.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Driver
{
    const char *name;
    QByteArrayList lines;
    const char *suffix;
};
const Driver kDrivers[] = {
    {"no filter", {}, "ps"},
    {"PostScript that is passed on", {"cupsFilter: \"application/vnd.cups-postscript 0 -\""}, "ps"},
    {"PDF that is passed on", {"cupsFilter: \"application/vnd.cups-pdf 0 -\""}, "pdf"},
    {"raster that is passed on", {"cupsFilter: \"image/pwg-raster 0 -\""}, "pwg"},
    {"a driver for PCL", {"cupsFilter: \"application/vnd.cups-raster 0 rastertohp\""}, "pcl"},
    {"PCL XL of Ghostscript", {"cupsFilter: \"application/vnd.cups-pdf 0 gstopxl\""}, "pcl"},
    {"a driver by its path",
     {"cupsFilter: \"application/vnd.cups-raster 0 /usr/lib/cups/filter/rastertopclx\""},
     "pcl"},
    {"a driver of nobody's", {"cupsFilter: \"application/vnd.cups-raster 0 rastertoxyz\""}, "prn"},
    {"what a filter yields, by its line",
     {"cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\""},
     "pdf"},
    {"a filter that says what it yields",
     {"cupsFilter2: \"application/vnd.cups-raster image/urf 10 rastertopwg\""},
     "urf"},
    {"the shortest way",
     {"cupsFilter2: \"image/pwg-raster image/pwg-raster 0 -\"",
      "cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\""},
     "pdf"},
    {"a dear filter is no short way",
     {"cupsFilter2: \"image/pwg-raster image/pwg-raster 0 -\"",
      "cupsFilter2: \"application/vnd.cups-pdf application/pdf 500 -\""},
     "pwg"},
    {"commands are no document",
     {"cupsFilter: \"application/vnd.cups-command 0 commandtops\"",
      "cupsFilter: \"application/vnd.cups-postscript 0 -\""},
     "ps"},
    {"pictures alone lead nowhere", {"cupsFilter: \"image/jpeg 0 -\""}, "prn"},
    {"a line that nobody can read", {"cupsFilter: \"whatever\""}, "prn"},
};

} // namespace

/// What a file of a printer's data is called.
class ResultFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSuffixIsWhatTheFiltersYield_data() { addRows(kDrivers); }
    void theSuffixIsWhatTheFiltersYield()
    {
        const Driver &row = currentRow(kDrivers);
        QByteArray text = smallPrinter().text();
        for (const QByteArray &line : row.lines)
            text += '*' + line + '\n';
        const auto session = sessionFor(text);
        QCOMPARE(resultSuffix(session->ppd()), QString::fromLatin1(row.suffix));
    }

    void theSampleYieldsPostScript() { QCOMPARE(resultSuffix(sampleSession()->ppd()), u"ps"_s); }

    void aNameIsOneThatNothingHas()
    {
        const QTemporaryDir folder;
        QCOMPARE(freeResultName(folder.path(), u"a.b"_s, u"pdf"_s), folder.filePath(u"a.b.pdf"_s));
        writeFile(folder.filePath(u"a.b.pdf"_s), "x");
        QCOMPARE(freeResultName(folder.path(), u"a.b"_s, u"pdf"_s),
                 folder.filePath(u"a.b-2.pdf"_s));
        QCOMPARE(freeResultName(folder.path(), u"a.b"_s, u"ps"_s), folder.filePath(u"a.b.ps"_s));
    }

    void aNameIsOneThatAFileCanHave()
    {
        const QTemporaryDir folder;
        const QString longest = QString(u"頁"_s).repeated(84); // 252 bytes
        QCOMPARE(freeResultName(folder.path(), longest, u"ps"_s),
                 folder.filePath(longest + u".ps"_s));
        const QString shorter = freeResultName(folder.path(), longest, u"pclm"_s);
        QCOMPARE(shorter, folder.filePath(longest.chopped(1) + u".pclm"_s));
        writeFile(shorter, "x");
        const QString next = freeResultName(folder.path(), longest, u"pclm"_s);
        QCOMPARE(next, folder.filePath(longest.chopped(2) + u"-2.pclm"_s));
        writeFile(next, "x"); // which nothing of 256 bytes can be
        QCOMPARE(freeResultName(folder.path(), {}, u"ps"_s), folder.filePath(u"document.ps"_s));
    }
};

QTEST_GUILESS_MAIN(ResultFormatTest)
#include "result_format_test.moc"
