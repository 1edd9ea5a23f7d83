#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/PpdFilters.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Line
{
    const char *name;
    QByteArray value;
    bool isSafe;
};
const Line kLines[] = {
    {"no program, PostScript", "application/vnd.cups-postscript 0 -", true},
    {"no program, with a destination", "application/vnd.cups-postscript application/postscript 0 -",
     true},
    {"no program, PDF", "application/vnd.cups-pdf application/pdf 0 -", true},
    {"no program, a document as it is", "application/pdf 0 -", true},
    {"no program, anything as it is", "*/* 0 -", true},
    {"a filter of CUPS", "application/vnd.cups-raster 100 rastertohp", true},
    {"a filter with a limit of size", "application/vnd.cups-pdf 0 maxsize(100) pdftops", true},
    {"a filter with a limit and a destination",
     "application/vnd.cups-raster image/pwg-raster 100 maxsize(5000000000) rastertopwg", true},
    {"tabs between the fields", "image/urf\timage/urf\t0\t-", true},
    {"capital letters in a format", "Application/Vnd.CUPS-Raster 0 rastertoepson", true},
    {"a program for commands, which no document becomes",
     "application/vnd.cups-command 0 commandtoanything", true},

    {"a program that runs command lines", "application/vnd.cups-pdf 0 foomatic-rip", false},
    {"a driver of a maker", "application/vnd.cups-raster 0 rastertomaker", false},
    {"a script of the system", "application/vnd.cups-raster 0 sys5ippprinter", false},
    {"an absolute path", "application/vnd.cups-raster 0 /usr/bin/id", false},
    {"a filter by its absolute path",
     "application/vnd.cups-raster 0 /usr/lib/cups/filter/rastertohp", false},
    {"a way out of the folder", "application/vnd.cups-raster 0 ../../../bin/id", false},
    {"a filter and a way out", "application/vnd.cups-raster 0 rastertohp/../../../../bin/id",
     false},
    {"a filter in other letters", "application/vnd.cups-raster 0 RasterToHP", false},
    {"a command line", "application/vnd.cups-raster 0 rastertohp -x", false},
    {"a command behind a semicolon", "application/vnd.cups-raster 0 rastertohp;id", false},
    {"a command behind a pipe", "application/vnd.cups-raster 0 rastertohp|id", false},
    {"a command in backticks", "application/vnd.cups-raster 0 `id`", false},
    {"a command in brackets", "application/vnd.cups-raster 0 $(id)", false},
    {"a second line", "application/vnd.cups-raster 0 -\n*cupsFilter: /bin/id", false},
    {"a blank behind the filter", "application/vnd.cups-raster 0 rastertohp ", false},
    {"a blank in front of the format", " application/vnd.cups-raster 0 rastertohp", false},
    {"a limit that is none", "application/vnd.cups-pdf 0 maxsize(x) pdftops", false},
    {"a program behind a limit", "application/vnd.cups-pdf 0 maxsize(1)/bin/id", false},
    {"a path for commands", "application/vnd.cups-commands 0 /usr/bin/id", false},
    {"a filter that would get a document's name", "application/pdf 0 gstoraster", false},
    {"a filter for every format", "*/* 0 pdftops", false},
    {"a format that leads to other programs", "application/vnd.cups-brf 0 -", false},
    {"formats that lead to other programs", "application/* 0 -", false},
    {"no cost", "application/vnd.cups-raster rastertohp", false},
    {"no program", "application/vnd.cups-raster 0", false},
    {"no format", "0 rastertohp", false},
    {"nothing", "", false},
    {"a format that libcups would cut", "application/" + QByteArray(300, 'x') + " 0 -", false},
};

struct Printer
{
    const char *name;
    QByteArray lines; ///< of its PPD
    QByteArray named; ///< what is refused; empty where nothing is
};
const Printer kPrinters[] = {
    {"without filter lines", "", ""},
    {"with a filter of the system", "*cupsFilter: \"application/vnd.cups-raster 0 rastertohp\"\n",
     ""},
    {"with a foreign filter", "*cupsFilter: \"application/vnd.cups-raster 0 rastertomaker\"\n",
     "rastertomaker"},
    {"whose second line is foreign",
     "*cupsFilter2: \"application/vnd.cups-raster image/urf 0 -\"\n"
     "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 /usr/bin/id\"\n",
     "/usr/bin/id"},
    {"with a keyword in other letters",
     "*CUPSFILTER2: \"application/vnd.cups-pdf application/pdf 0 /usr/bin/id\"\n", "/usr/bin/id"},
    {"whose older lines do not count",
     "*cupsFilter: \"application/vnd.cups-raster 0 rastertomaker\"\n"
     "*cupsFilter2: \"application/vnd.cups-raster application/vnd.cups-raster 0 -\"\n",
     ""},
    {"with a filter before the others", "*cupsPreFilter: \"application/pdf 0 /usr/bin/id\"\n",
     "/usr/bin/id"},
    {"with a value over two lines",
     "*cupsFilter: \"application/vnd.cups-raster 0 rastertohp\n/usr/bin/id\"\n",
     "application/vnd.cups-raster 0 rastertohp /usr/bin/id"},
    {"with an escape sequence", "*cupsFilter: \"application/vnd.cups-raster 0 \x1b[2Jmaker\"\n",
     "application/vnd.cups-raster 0  [2Jmaker"},
    {"with a colour profile of CUPS", "*cupsICCProfile Gray../Gray: \"gray.icc\"\n", ""},
    {"with a colour profile of a package",
     "*cupsICCProfile Gray../Gray: \"/usr/share/color/icc/gray.icc\"\n", ""},
    {"with a colour profile anywhere", "*cupsICCProfile Gray../Gray: \"/dev/zero\"\n", "/dev/zero"},
    {"whose second colour profile is anywhere",
     "*cupsICCProfile Gray../Gray: \"gray.icc\"\n*cupsICCProfile RGB../RGB: \"/etc/passwd\"\n",
     "/etc/passwd"},
    {"with a colour profile above its folder", "*APTiogaProfile 1/RGB: \"../../../../dev/zero\"\n",
     "../../../../dev/zero"},
    {"with a colour profile above the packages'",
     "*cupsICCProfile Gray../Gray: \"/usr/share/../../dev/zero\"\n", "/usr/share/../../dev/zero"},
    {"with command lines that nobody runs",
     "*FoomaticRIPCommandLine: \"id\"\n"
     "*cupsFilter: \"application/vnd.cups-postscript 0 -\"\n",
     ""},
};

} // namespace

/// Which programs a PPD may have run, and which not.
class PpdFiltersTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void onlyFiltersOfTheSystemMayRun_data() { addRows(kLines); }
    void onlyFiltersOfTheSystemMayRun()
    {
        const Line &line = currentRow(kLines);
        QCOMPARE(isSafeFilterLine(line.value), line.isSafe);
    }

    void everyLineOfAPpdIsLookedAt_data() { addRows(kPrinters); }
    void everyLineOfAPpdIsLookedAt()
    {
        const Printer &printer = currentRow(kPrinters);
        const QString path =
            writeFile(m_folder.filePath(u"printer.ppd"_s), PpdBuilder().text() + printer.lines);
        const QString problem = problemOfPpdFilters(path);
        if (printer.named.isEmpty()) {
            QCOMPARE(problem, QString());
            return;
        }
        QVERIFY2(problem.contains(u'“' + QString::fromUtf8(printer.named) + u'”'),
                 qPrintable(problem));
        QVERIFY2(problem.contains(u"Print on the printer itself"_s), qPrintable(problem));
    }

    void theSamplePrintersHaveNothingToRefuse()
    {
        QCOMPARE(problemOfPpdFilters(samplePpdPath()), QString());
    }

    void aPpdThatCannotBeReadIsRefused()
    {
        const QString missing = m_folder.filePath(u"missing.ppd"_s);
        QVERIFY(problemOfPpdFilters(missing).contains(missing));
        const QString other = writeFile(m_folder.filePath(u"other.ppd"_s), "no PPD\n");
        QVERIFY(problemOfPpdFilters(other).contains(other));
    }
};

QTEST_GUILESS_MAIN(PpdFiltersTest)

#include "ppd_filters_test.moc"
