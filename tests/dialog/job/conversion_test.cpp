#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/Conversion.h"
#include "dialog/job/FileJob.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QString source(const QString &name)
{
    return corvana::test::sourceFile(name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The sample printer with other filters. Whoever runs a command of it leaves a file "ran" in the
// folder.
QByteArray ppdWithFilters(const QByteArray &lines)
{
    QByteArray ppd;
    for (const QByteArray &line : contentOf(samplePpdPath()).split('\n')) {
        if (!line.startsWith("*cupsFilter"))
            ppd += line + '\n';
    }
    return ppd + lines;
}

// What a PPD asks for that nobody may run here. "FOLDER" is that of the test, where "tool" is a
// program that would leave a file.
struct ForeignFilter
{
    const char *name;
    QByteArray lines;
    QByteArray named;
};
const ForeignFilter kForeignFilters[] = {
    {"a command line",
     "*cupsFilter: \"application/vnd.cups-pdf 0 foomatic-rip\"\n"
     "*FoomaticRIPCommandLine: \"touch FOLDER/ran; cat\"\n"
     "*FoomaticRIPCommandLinePDF: \"touch FOLDER/ran; cat\"\n",
     "foomatic-rip"},
    {"a command line for PostScript",
     "*cupsFilter2: \"application/vnd.cups-postscript application/postscript 0 foomatic-rip\"\n"
     "*FoomaticRIPCommandLine: \"touch FOLDER/ran; cat\"\n",
     "foomatic-rip"},
    {"an absolute path", "*cupsFilter: \"application/vnd.cups-pdf 0 FOLDER/tool\"\n",
     "FOLDER/tool"},
    {"a way out of the folder of the filters",
     "*cupsFilter: \"application/vnd.cups-pdf 0 ../../../../FOLDER/tool\"\n",
     "../../../../FOLDER/tool"},
    {"a command behind a filter",
     "*cupsFilter: \"application/vnd.cups-pdf 0 pdftops;FOLDER/tool\"\n", "pdftops;FOLDER/tool"},
    {"a filter before all others",
     "*cupsFilter: \"application/vnd.cups-postscript 0 -\"\n"
     "*cupsPreFilter: \"application/pdf 0 FOLDER/tool\"\n",
     "FOLDER/tool"},
    {"a filter of two",
     "*cupsFilter: \"application/vnd.cups-postscript 100 -\"\n"
     "*cupsFilter: \"application/vnd.cups-pdf 0 FOLDER/tool\"\n",
     "FOLDER/tool"},
};

// What a PPD may ask for, and how the result begins.
struct OwnFilter
{
    const char *name;
    QByteArray lines;
    QByteArray begin;
};
const OwnFilter kOwnFilters[] = {
    {"nothing, on a PostScript printer", "", "%!PS"},
    {"PDF as it is", "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n", "%PDF"},
    {"raster graphics", "*cupsFilter2: \"image/pwg-raster image/pwg-raster 0 -\"\n", "RaS2"},
    {"a filter of CUPS", "*cupsFilter: \"application/vnd.cups-raster 0 rastertohp\"\n",
     "\x1b"
     "E"},
};

} // namespace

/// Real documents through the filter chain of CUPS, as it is installed.
class ConversionTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    // A program that leaves a file, and lets the data through.
    QString writeTool(const QString &name) const
    {
        const QString tool = writeFile(
            path(name), "#!/bin/sh\ntouch " + QFile::encodeName(path(u"ran"_s)) + "\nexec cat\n");
        QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                        QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                        QFile::ExeOther);
        return tool;
    }
    QByteArray inFolder(QByteArray text) const
    {
        return text.replace("FOLDER", QFile::encodeName(m_folder->path()));
    }

    // The result of one job; null when it failed, and then `problem` says why.
    QByteArray printed(const QString &path, const QList<JobOption> &options, QString *problem,
                       int copies = 1, const QString &ppd = samplePpdPath())
    {
        const Document document = inspectDocument(path, problem);
        if (document.path.isEmpty())
            return {};
        const QString output = m_folder->filePath(u"out.ps"_s);
        FileJob job({{document}, {u"Job"_s, copies, options}, ppd, output});
        job.start();
        const JobOutcome outcome = job.wait();
        *problem = outcome.isDone() ? QString() : outcome.text;
        return outcome.isDone() ? contentOf(output) : QByteArray();
    }

private Q_SLOTS:
    void initTestCase() { qunsetenv("CORVANA_PRINT_CUPSFILTER"); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void everyKindOfDocumentCarriesTheChoicesToThePrinter_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("PDF") << source(u"resources/sample/welcome.pdf"_s);
        QTest::newRow("PostScript") << source(u"tests/data/page.ps"_s);
        QTest::newRow("text") << source(u"tests/data/page.txt"_s);
        QTest::newRow("PNG") << source(u"tests/data/page.png"_s);
        QTest::newRow("JPEG") << source(u"tests/data/page.jpg"_s);
    }
    void everyKindOfDocumentCarriesTheChoicesToThePrinter()
    {
        QFETCH(QString, path);
        QString problem;
        const QByteArray data = printed(
            path, {{u"QXMediaType"_s, u"Thick"_s}, {u"QXSleepTime"_s, u"Custom.12"_s}}, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(data.startsWith("%!PS"));
        QVERIFY(data.contains("(QXMediaType=Thick)"));
        QVERIFY(!data.contains("(QXMediaType=Plain)"));
        QVERIFY(data.contains("(QXSleepTime=Custom)"));
    }

    void aChoiceThatIsLeftOutIsThePrintersDefault()
    {
        QString problem;
        const QByteArray data = printed(source(u"tests/data/page.txt"_s), {}, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(data.contains("(QXMediaType=Plain)"));
    }

    void aBrokenDocumentFailsAndLeavesNothing()
    {
        const QString broken = writeFile(m_folder->filePath(u"broken.pdf"_s),
                                         "%PDF-1.4\nnothing that a reader would take\n%%EOF\n");
        writeFile(m_folder->filePath(u"out.ps"_s), "yesterday's");
        QString problem;
        QVERIFY(printed(broken, {}, &problem).isNull());
        QVERIFY2(problem.contains(u"could not be converted"_s), qPrintable(problem));
        QCOMPARE(contentOf(m_folder->filePath(u"out.ps"_s)), QByteArray("yesterday's"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
    }

    void noProgramRunsThatAPpdNames_data() { addRows(kForeignFilters); }
    void noProgramRunsThatAPpdNames()
    {
        const ForeignFilter &foreign = currentRow(kForeignFilters);
        writeTool(u"tool"_s);
        const QString ppd =
            writeFile(path(u"printer.ppd"_s), ppdWithFilters(inFolder(foreign.lines)));
        QString problem;
        QVERIFY(printed(source(u"resources/sample/welcome.pdf"_s), {}, &problem, 1, ppd).isNull());
        QVERIFY(!QFile::exists(path(u"ran"_s)));
        const QString named = QString::fromUtf8(inFolder(foreign.named));
        QVERIFY2(problem.contains(u"needs the program “"_s + named + u'”'), qPrintable(problem));
        QVERIFY2(problem.contains(u"Print on the printer itself"_s), qPrintable(problem));
    }

    void noProgramRunsThatAPpdNamesWhenAPdfIsMade_data() { noProgramRunsThatAPpdNames_data(); }
    void noProgramRunsThatAPpdNamesWhenAPdfIsMade()
    {
        writeTool(u"tool"_s);
        const QString ppd = writeFile(path(u"printer.ppd"_s),
                                      ppdWithFilters(inFolder(currentRow(kForeignFilters).lines)));
        using Result = ConversionRequest::Result;
        QString problem;
        const Document pdf = inspectDocument(source(u"resources/sample/welcome.pdf"_s), &problem);
        const Document postScript = inspectDocument(source(u"tests/data/page.ps"_s), &problem);
        JobTicket firstPage;
        firstPage.options = {{u"page-ranges"_s, u"1"_s}};
        const QString output = path(u"out.pdf"_s);
        const ConversionRequest requests[] = {
            {{pdf, pdf}, {}, ppd, output, output, Result::Pdf, {{u"number-up"_s, u"2"_s}}},
            {{pdf}, firstPage, ppd, output, output, Result::ChosenPages},
            {{postScript}, firstPage, ppd, output, output, Result::ChosenPages},
        };
        for (const ConversionRequest &request : requests) {
            QFile::remove(output);
            Conversion conversion(request);
            QSignalSpy finished(&conversion, &Conversion::finished);
            conversion.start();
            QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30000);
            QCOMPARE(finished.at(0).at(0).toString(), QString());
            QVERIFY(contentOf(output).startsWith("%PDF"));
            QVERIFY(!QFile::exists(path(u"ran"_s)));
        }
    }

    void filtersOfTheSystemRun_data() { addRows(kOwnFilters); }
    void filtersOfTheSystemRun()
    {
        const OwnFilter &own = currentRow(kOwnFilters);
        const QString ppd = writeFile(path(u"printer.ppd"_s), ppdWithFilters(own.lines));
        QString problem;
        const QByteArray data =
            printed(source(u"resources/sample/welcome.pdf"_s), {}, &problem, 1, ppd);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY2(data.startsWith(own.begin), data.left(20).toHex(' ').constData());
    }

    // A folder of a limited size takes a part of the PPD, as a disk does that is just full.
    void aDiskThatGetsFullIsCalledFull()
    {
        QString problem;
        const QString document = source(u"resources/sample/welcome.pdf"_s);
        {
            const FileSizeLimit limit(10'000);
            printed(document, {}, &problem);
        }
        QVERIFY2(problem.endsWith(u"cannot be written: File too large"_s), qPrintable(problem));
    }

    void theEnvironmentDoesNotMoveTheFolderOfTheFilters()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"filter"_s));
        for (const QString &filter : {u"pdftopdf"_s, u"pdftops"_s, u"pstops"_s})
            writeTool(u"filter/"_s + filter);
        const Variable moved("CUPS_SERVERBIN", QFile::encodeName(m_folder->path()));
        QString problem;
        const QByteArray data = printed(source(u"resources/sample/welcome.pdf"_s), {}, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(data.startsWith("%!PS"));
        QVERIFY(!QFile::exists(path(u"ran"_s)));
    }
};

QTEST_MAIN(ConversionTest)

#include "conversion_test.moc"
