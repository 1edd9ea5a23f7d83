#include <algorithm>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/IppEvePrinter.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30000; // milliseconds that a program may take on a busy machine

// What a printer is told to take, instead of PostScript.
constexpr char kPdfLine[] = "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n";
constexpr char kRasterLine[] = "*cupsFilter2: \"image/pwg-raster image/pwg-raster 0 -\"\n";

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    [&] { QVERIFY2(process.waitForFinished(kPatience), qPrintable(program)); }();
    return process.readAllStandardOutput();
}

// How much of each page each ink covers, the last page first: "0.00000 0.1 0.1 0.00000" of cyan to
// black.
QByteArrayList inksOf(const QByteArray &data)
{
    QProcess process;
    process.start(u"gs"_s, {u"-q"_s, u"-o"_s, u"-"_s, u"-sDEVICE=inkcov"_s, u"-"_s});
    process.write(data);
    process.closeWriteChannel();
    [&] { QVERIFY(process.waitForFinished(kPatience)); }();
    QByteArrayList pages;
    for (const QByteArray &line : process.readAllStandardOutput().split('\n')) {
        if (line.contains("CMYK"))
            pages.prepend(line.simplified().split(' ').mid(0, 4).join(' '));
    }
    return pages;
}

// Where two streams part, for a test that fails.
QByteArray firstDifference(const QByteArray &data, const QByteArray &other)
{
    const QByteArrayList lines = data.split('\n');
    const QByteArrayList others = other.split('\n');
    for (qsizetype i = 0; i < std::max(lines.size(), others.size()); ++i) {
        if (lines.value(i) != others.value(i))
            return lines.value(i).left(200) + " / " + others.value(i).left(200);
    }
    return {};
}

} // namespace

/// Several documents as one job, and pages of each: what a printer gets, read by Ghostscript, and
/// beside what lp gets there.
class QueueDocumentsTest : public QueueRuns
{
    Q_OBJECT

private:
    QString document(const QByteArray &name, int pages) const
    {
        return write(QString::fromLatin1(name) + u".pdf"_s, numberedPdf(name, pages));
    }
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_runner->filePath(name));
        [&] {
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(content), content.size());
        }();
        return file.fileName();
    }
    // "five:5" is the document five.pdf of five pages.
    QStringList documents(const QString &words) const
    {
        QStringList paths;
        for (const QString &word : words.split(u' '))
            paths += document(word.section(u':', 0, 0).toLatin1(), word.section(u':', 1).toInt());
        return paths;
    }
    // The sample printer with other filter lines.
    QString ppd(const QByteArray &lines) const
    {
        if (lines.isEmpty())
            return kPpd;
        QByteArray text;
        for (const QByteArray &line : readAll(kPpd).split('\n')) {
            if (!line.startsWith("*cupsFilter"))
                text += line + '\n';
        }
        return write(u"queue.ppd"_s, text + lines);
    }
    // What stands on each side that a printer would print, its pages in the order of the alphabet:
    // "a1 a2 | b1"; "-" is a blank side.
    static QString sidesOf(const QByteArray &data)
    {
        static const QRegularExpression page(u"([a-z]+) ([0-9]+)"_s);
        QStringList sides = printedSides(data);
        for (QString &side : sides) {
            QStringList pages = side.replace(page, u"\\1\\2"_s).split(u' ', Qt::SkipEmptyParts);
            pages.sort();
            side = pages.isEmpty() ? u"-"_s : pages.join(u' ');
        }
        return sides.join(u" | "_s);
    }
    static QStringList withOptions(const QStringList &options)
    {
        QStringList arguments;
        for (const QString &option : options)
            arguments +=
                option.startsWith(u'-') ? QStringList{option} : QStringList{u"-o"_s, option};
        return arguments;
    }
    // What the printer gets of a job that lp sends.
    QByteArray printedByLp(const QString &queue, const QStringList &arguments) const
    {
        const qsizetype before = m_cups->capture(queue).jobs().size();
        outputOf(u"lp"_s, QStringList{u"-h"_s, m_cups->server(), u"-d"_s, queue} + arguments);
        [&] {
            QTRY_COMPARE_WITH_TIMEOUT(m_cups->capture(queue).jobs().size(), before + 1, kPatience);
        }();
        return m_cups->capture(queue).jobs().constLast().data;
    }

private Q_SLOTS:
    void aPrinterGetsWhatLpSendsIt_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("sides");
        QTest::newRow("as they are")
            << QStringList() << u"five1 | five2 | five3 | five4 | five5 | two1 | two2"_s;
        QTest::newRow("pages of each")
            << QStringList{u"page-ranges=1-2"_s} << u"five1 | five2 | two1 | two2"_s;
        QTest::newRow("two-sided") << QStringList{u"sides=two-sided-long-edge"_s}
                                   << u"five1 | five2 | five3 | five4 | five5 | two1 | two2"_s;
        QTest::newRow("two on a side")
            << QStringList{u"number-up=2"_s} << u"five1 five2 | five3 five4 | five5 | two1 two2"_s;
        QTest::newRow("odd pages of each")
            << QStringList{u"page-set=odd"_s} << u"five1 | five3 | five5 | two1"_s;
    }
    void aPrinterGetsWhatLpSendsIt()
    {
        QFETCH(QStringList, options);
        m_cups->addQueue(u"office"_s, kPpd);
        const QStringList arguments = QStringList{u"-t"_s, u"Letters"_s} + withOptions(options) +
                                      documents(u"five:5 two:2"_s);
        const QByteArray ours = withoutDates(printed(u"office"_s, arguments).data);
        QTEST(sidesOf(ours), "sides");
        const QByteArray lps = withoutDates(printedByLp(u"office"_s, arguments));
        QVERIFY2(ours == lps, firstDifference(ours, lps).constData());
    }

    // The filter chain counts sides, and lp leaves it at that.
    void rangesArePagesOfTheDocument_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QString>("documents");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("sides");
        const QStringList range{u"number-up=2"_s, u"page-ranges=3-4"_s};
        const QStringList odd{u"number-up=2"_s, u"page-set=odd"_s};
        QTest::newRow("a range") << QByteArray() << u"five:5"_s << range << u"five3 five4"_s;
        QTest::newRow("odd pages")
            << QByteArray() << u"five:5"_s << odd << u"five1 five3 | five5"_s;
        QTest::newRow("of several")
            << QByteArray() << u"five:5 four:4"_s << range << u"five3 five4 | four3 four4"_s;
        QTest::newRow("for a printer of PDF")
            << QByteArray(kPdfLine) << u"five:5"_s << range << u"five3 five4"_s;
        QTest::newRow("of several for a printer of PDF")
            << QByteArray(kPdfLine) << u"five:5 four:4"_s << odd
            << u"five1 five3 | five5 | four1 four3"_s;
    }
    void rangesArePagesOfTheDocument()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QString, documents);
        QFETCH(QStringList, options);
        const QString path = ppd(lines);
        m_cups->addQueue(u"office"_s, path);
        const QStringList arguments = withOptions(options) + this->documents(documents);
        QTEST(sidesOf(printed(u"office"_s, arguments).data), "sides");
        const QString output = m_runner->filePath(u"result"_s);
        const RunEnd filed =
            m_runner->run(QStringList{u"--ppd"_s, path, u"--output"_s, output} + arguments);
        QVERIFY2(filed.status == 0, filed.text().constData());
        QTEST(sidesOf(readAll(output)), "sides");
    }

    // The filters of a server take no password.
    void aProtectedDocumentReachesTheQueueWithoutProtection()
    {
        m_cups->addQueue(u"office"_s, ppd(kPdfLine));
        const QString file = m_runner->filePath(u"protected.pdf"_s);
        QCOMPARE(QProcess::execute(u"qpdf"_s, {u"--encrypt"_s, u"sesame"_s, u"owner"_s, u"256"_s,
                                               u"--"_s, document("five", 5), file}),
                 0);
        const QString password = write(u"password"_s, "sesame\n");
        QVERIFY(QFile::setPermissions(password, QFile::ReadOwner | QFile::WriteOwner));
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"--document-password-file"_s,
                                          password, document("two", 2), file});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.err.contains(u"“protected.pdf” is protected. The print server gets a copy "
                                  "without protection."_s),
                 end.text().constData());
        const CapturedJob job = m_cups->capture(u"office"_s).jobs().constLast();
        QCOMPARE(sidesOf(job.data), u"two1 | two2 | five1 | five2 | five3 | five4 | five5"_s);
        QVERIFY(!job.options.contains(u"sesame"_s));
    }

    void aDocumentThatHasNoneOfThePagesKeepsAllFromBeingPrinted()
    {
        m_cups->addQueue(u"office"_s, ppd({}));
        const RunEnd end =
            m_runner->run(withOptions({u"page-ranges=3-4"_s}) + QStringList{u"-d"_s, u"office"_s} +
                          documents(u"two:2 five:5"_s));
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"two"_s) && end.err.contains(u"2 pages"_s),
                 end.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
    }

    void aPrinterOfPdfGetsOneOfWholeSheets_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("sides");
        QTest::newRow("one-sided") << QStringList() << u"three1 | three2 | three3 | two1 | two2"_s;
        QTest::newRow("two-sided") << QStringList{u"sides=two-sided-long-edge"_s}
                                   << u"three1 | three2 | three3 | - | two1 | two2"_s;
        QTest::newRow("pages of each, two-sided")
            << QStringList{u"page-ranges=2-3"_s, u"Duplex=DuplexTumble"_s}
            << u"three2 | three3 | two2"_s;
        QTest::newRow("two on a side, two-sided")
            << QStringList{u"number-up=2"_s, u"Duplex=DuplexNoTumble"_s}
            << u"three1 three2 | three3 | two1 two2"_s;
        QTest::newRow("backwards")
            << QStringList{u"outputorder=reverse"_s} << u"three3 | three2 | three1 | two2 | two1"_s;
    }
    void aPrinterOfPdfGetsOneOfWholeSheets()
    {
        QFETCH(QStringList, options);
        const QString path = ppd(kPdfLine);
        m_cups->addQueue(u"office"_s, path);
        const QStringList arguments = withOptions(options) + documents(u"three:3 two:2"_s);
        const CapturedJob job = printed(u"office"_s, arguments);
        QCOMPARE(job.data.count("%PDF-"), qsizetype(1));
        QTEST(sidesOf(job.data), "sides");
        const QString output = m_runner->filePath(u"result"_s);
        const RunEnd filed =
            m_runner->run(QStringList{u"--ppd"_s, path, u"--output"_s, output} + arguments);
        QVERIFY2(filed.status == 0, filed.text().constData());
        QCOMPARE(readAll(output).count("%PDF-"), qsizetype(1));
        QTEST(sidesOf(readAll(output)), "sides");
        // What it is about.
        QCOMPARE(printedByLp(u"office"_s, arguments).count("%PDF-"), qsizetype(2));
    }

    // Once in each document; not in what was made of all of them as well.
    void pagesOfTheQueuesDefaultAreChosenOnce()
    {
        QueueSettings settings;
        settings.options = {u"page-ranges-default=2-3"_s};
        m_cups->addQueue(u"office"_s, ppd(kPdfLine), settings);
        const CapturedJob job = printed(u"office"_s, documents(u"five:5 three:3"_s));
        QCOMPARE(sidesOf(job.data), u"five2 | five3 | three2 | three3"_s);
    }

    void thatTheyWerePutTogetherIsSaid()
    {
        m_cups->addQueue(u"office"_s, ppd(kPdfLine));
        const RunEnd end =
            m_runner->run(QStringList{u"-d"_s, u"office"_s} + documents(u"a:1 b:1"_s));
        QCOMPARE(end.status, 0);
        QVERIFY2(end.out.startsWith(u"Printed on “office” as job office-1. The documents were put "
                                    "together as one"_s),
                 end.text().constData());
    }

    void aQueueWithoutADriverGetsAJobForEach()
    {
        m_cups->addRawQueue(u"office"_s);
        const QStringList paths = documents(u"one:1 two:2"_s);
        const RunEnd end = m_runner->run(QStringList{u"-d"_s, u"office"_s} + paths);
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.contains(u"So each is a job of its own: office-1, office-2."_s),
                 end.text().constData());
        const QList<CapturedJob> jobs = m_cups->capture(u"office"_s).jobs();
        QCOMPARE(jobs.size(), 2);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(jobs.at(i).data, readAll(paths.at(i)));
    }

    // Only the filter behind PDF follows the attribute where the PPD has no option for it.
    void postScriptIsBlackAndWhiteAsWell_data()
    {
        QTest::addColumn<bool>("intoFile");
        QTest::addColumn<bool>("withPdf"); // in front of it
        QTest::newRow("at a queue") << false << false;
        QTest::newRow("in a file") << true << false;
        QTest::newRow("behind a PDF") << false << true;
    }
    void postScriptIsBlackAndWhiteAsWell()
    {
        QFETCH(bool, intoFile);
        QFETCH(bool, withPdf);
        const QString path = write(u"color.ppd"_s, PpdBuilder().text() + "*ColorDevice: True\n");
        const QString red =
            write(u"red.ps"_s, "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
                               "1 0 0 setrgbcolor 100 100 200 200 rectfill\n"
                               "showpage\n%%EOF\n");
        m_cups->addQueue(u"office"_s, path);
        QStringList documents{red};
        if (withPdf)
            documents.prepend(document("one", 1));
        const auto printedWith = [&](const QString &mode) {
            const QStringList arguments = withOptions({u"print-color-mode="_s + mode}) + documents;
            if (!intoFile) {
                printed(u"office"_s, arguments);
                return m_cups->capture(u"office"_s).jobs().constLast().data;
            }
            const QString output = m_runner->filePath(u"result.ps"_s);
            m_runner->run(QStringList{u"--ppd"_s, path, u"--output"_s, output} + arguments);
            return readAll(output);
        };
        // The printer gets each document of a job for itself: the last one is the red one.
        const QByteArray gray = inksOf(printedWith(u"monochrome"_s)).value(0);
        QVERIFY2(gray.startsWith("0.00000 0.00000 0.00000 0.0") && !gray.endsWith("0.00000"),
                 gray.constData());
        if (intoFile)
            QVERIFY(!inksOf(printedWith(u"color"_s)).value(0).startsWith("0.00000 0.00000"));
    }

    void aRasterFileIsOne()
    {
        const QString output = m_runner->filePath(u"result"_s);
        const RunEnd end =
            m_runner->run(QStringList{u"--ppd"_s, ppd(kRasterLine), u"--output"_s, output} +
                          documents(u"three:3 two:2"_s));
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY(readAll(output).startsWith("RaS2"));
        QCOMPARE(readAll(output).count("RaS2PwgRaster"), qsizetype(1));
        QCOMPARE(readAll(output).count("PwgRaster"), qsizetype(5)); // a header a page
    }

    void aFileOfPostScriptHasThemInARow()
    {
        const QString output = m_runner->filePath(u"result.ps"_s);
        const RunEnd end =
            m_runner->run(QStringList{u"--ppd"_s, kPpd, u"--output"_s, output, u"-n"_s, u"2"_s} +
                          documents(u"two:2 one:1"_s));
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(sidesOf(readAll(output)), u"two1 | two2 | one1 | two1 | two2 | one1"_s);
    }

    void copiesComeInSets_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("sides");
        QTest::addColumn<int>("copies"); // that the printer makes of each page
        QTest::newRow("as usual") << QStringList() << u"two1 | two2 | one1 | two1 | two2 | one1"_s
                                  << 1;
        QTest::newRow("not collated")
            << QStringList{u"collate=false"_s} << u"two1 | two2 | one1"_s << 2;
    }
    void copiesComeInSets()
    {
        QFETCH(QStringList, options);
        QFETCH(int, copies);
        m_cups->addQueue(u"office"_s, kPpd);
        const CapturedJob job =
            printed(u"office"_s, QStringList{u"-n"_s, u"2"_s} + withOptions(options) +
                                     documents(u"two:2 one:1"_s));
        QCOMPARE(job.data.contains("NumCopies 2"), copies == 2);
        // The reader would count the printer's own copies: a key that it does not know is none.
        const QByteArray once = QByteArray(job.data).replace("/NumCopies exch", "/NoCopies exch");
        QTEST(sidesOf(once), "sides");
    }

    void hostilePdfsArePickedOrRefused_data()
    {
        QTest::addColumn<QStringList>("qpdf"); // how the document is made of a good one
        QTest::addColumn<QByteArray>("cutAt");
        QTest::addColumn<QString>("sides"); // null: refused
        QTest::newRow("damaged") << QStringList() << QByteArray("startxref\n") << u"five3 five4"_s;
        QTest::newRow("of half a page") << QStringList() << QByteArray("/Contents") << QString();
        QTest::newRow("with a password")
            << QStringList{u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s}
            << QByteArray() << QString();
        QTest::newRow("that may not be printed")
            << QStringList{u"--encrypt"_s, u""_s, u"owner"_s, u"256"_s, u"--print=none"_s, u"--"_s}
            << QByteArray() << QString();
        QTest::newRow("that may not be changed")
            << QStringList{u"--encrypt"_s, u""_s, u"owner"_s, u"256"_s, u"--modify=none"_s, u"--"_s}
            << QByteArray() << u"five3 five4"_s;
    }
    void hostilePdfsArePickedOrRefused()
    {
        QFETCH(QStringList, qpdf);
        QFETCH(QByteArray, cutAt);
        QFETCH(QString, sides);
        QString path = document("five", 5);
        if (!cutAt.isEmpty())
            write(u"five.pdf"_s, readAll(path).left(readAll(path).indexOf(cutAt)));
        if (!qpdf.isEmpty()) {
            const QString plain = path;
            path = m_runner->filePath(u"closed.pdf"_s);
            outputOf(u"qpdf"_s, QStringList{plain} + qpdf + QStringList{path});
        }
        const QString output = m_runner->filePath(u"result"_s);
        const RunEnd end = m_runner->run({u"--ppd"_s, kPpd, u"--output"_s, output, u"-o"_s,
                                          u"number-up=2"_s, u"-o"_s, u"page-ranges=3-4"_s, path});
        QCOMPARE(end.status, sides.isNull() ? 1 : 0);
        QCOMPARE(QFile::exists(output), !sides.isNull());
        if (!sides.isNull())
            QCOMPARE(sidesOf(readAll(output)), sides);
    }

    // The server would send it both in a row as one document.
    void aPrinterForEverywhereGetsOneOfWholeSheets()
    {
        if (!IppEvePrinter::isAvailable())
            QSKIP("no ippeveprinter here");
        const IppEvePrinter printer;
        m_cups->addEverywhereQueue(u"everywhere"_s, printer.uri());
        const QStringList arguments = documents(u"three:3 two:2"_s);
        const RunEnd end = m_runner->run(QStringList{u"-d"_s, u"everywhere"_s} + arguments);
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(printer.documents().size(), 1);
        QCOMPARE(printer.documents().constFirst().count("%PDF-"), qsizetype(1));
        QCOMPARE(sidesOf(printer.documents().constFirst()),
                 u"three1 | three2 | three3 | two1 | two2"_s);
    }

    void aPrinterThatIsSpokenToGetsOne_data()
    {
        QTest::addColumn<QStringList>("formats");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("sides");
        const QStringList pdf{u"application/pdf"_s};
        QTest::newRow("PDF") << pdf << QStringList() << u"three1 | three2 | three3 | two1 | two2"_s;
        QTest::newRow("pages of each")
            << pdf << QStringList{u"page-ranges=2-3"_s} << u"three2 | three3 | two2"_s;
        QTest::newRow("pages of each, two on a side")
            << pdf << QStringList{u"page-ranges=2-3"_s, u"number-up=2"_s}
            << u"three2 three3 | two2"_s;
        QTest::newRow("raster") << QStringList{u"image/pwg-raster"_s} << QStringList() << QString();
    }
    void aPrinterThatIsSpokenToGetsOne()
    {
        QFETCH(QStringList, formats);
        QFETCH(QStringList, options);
        QFETCH(QString, sides);
        if (!IppEvePrinter::isAvailable())
            QSKIP("no ippeveprinter here");
        const IppEvePrinter printer(u"Direct"_s, formats);
        const RunEnd end = m_runner->run(QStringList{u"-d"_s, printer.uri()} +
                                         withOptions(options) + documents(u"three:3 two:2"_s));
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.contains(u"put together"_s), end.text().constData());
        QCOMPARE(printer.documents().size(), 1);
        if (sides.isNull())
            QCOMPARE(printer.documents().constFirst().count("PwgRaster"), qsizetype(5));
        else
            QCOMPARE(sidesOf(printer.documents().constFirst()), sides);
    }
};

QTEST_GUILESS_MAIN(QueueDocumentsTest)

#include "queue_documents_test.moc"
