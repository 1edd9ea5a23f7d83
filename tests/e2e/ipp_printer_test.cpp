#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>

#include "tests/dialog/documents/CameraPictures.h"
#include "tests/dialog/task/SheetGrid.h"
#include "tests/e2e/ProgramRunner.h"
#include "tests/e2e/QueueRuns.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/IppEvePrinter.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kPages = corvana::test::sourceFile(u"tests/data/pages.pdf"_s);
const QString kPhoto = corvana::test::sourceFile(u"tests/data/page.jpg"_s);

/// What pdfinfo says of a PDF.
QString infoOf(const QByteArray &pdf, const QString &what)
{
    QTemporaryFile document;
    if (!document.open() || document.write(pdf) != pdf.size() || !document.flush())
        return {};
    QProcess info;
    info.start(u"pdfinfo"_s, {document.fileName()});
    if (!info.waitForFinished())
        return {};
    const QRegularExpression line(u"^%1: +(.*)$"_s.arg(what), QRegularExpression::MultilineOption);
    return line.match(QString::fromUtf8(info.readAllStandardOutput())).captured(1);
}

/// An attribute of the only job of a printer, as text; null without it.
QString jobValue(const IppEvePrinter &printer, const char *attribute)
{
    const std::unique_ptr<http_t, void (*)(http_t *)> http(
        httpConnect2("localhost", printer.port(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1,
                     5000, nullptr),
        httpClose);
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printer.uri().toUtf8().constData());
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", 1);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    const std::unique_ptr<ipp_t, void (*)(ipp_t *)> answer(
        cupsDoRequest(http.get(), request, "/ipp/print"), ippDelete);
    ipp_attribute_t *found = ippFindAttribute(answer.get(), attribute, IPP_TAG_ZERO);
    if (!found)
        return {};
    QByteArray text(4096, '\0');
    const size_t length = ippAttributeString(found, text.data(), static_cast<size_t>(text.size()));
    return QString::fromUtf8(text.constData(), static_cast<qsizetype>(length));
}

} // namespace

/// Runs without a window that print to an IPP printer which nobody of this project has written,
/// straight and through the queue of a print server.
class IppPrinterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!IppEvePrinter::isAvailable())
            QSKIP("no ippeveprinter here");
    }

    void aDocumentThatThePrinterTakesGetsThereAsItIs_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("format");
        QTest::newRow("PDF") << kPages << u"application/pdf"_s;
        QTest::newRow("JPEG") << kPhoto << u"image/jpeg"_s;
    }
    void aDocumentThatThePrinterTakesGetsThereAsItIs()
    {
        QFETCH(QString, document);
        QFETCH(QString, format);
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), u"-n"_s, u"2"_s, u"-t"_s,
                                       u"Übersicht"_s, u"-o"_s, u"media=Legal"_s, document});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.startsWith(u"Printed on “"_s), end.text().constData());
        QCOMPARE(printer.documents(), QList{readAll(document)});
        QCOMPARE(jobValue(printer, "job-state"), u"completed"_s);
        QCOMPARE(jobValue(printer, "job-name"), u"Übersicht"_s);
        QCOMPARE(jobValue(printer, "job-originating-user-name"), QString::fromUtf8(cupsUser()));
        QCOMPARE(jobValue(printer, "copies"), u"2"_s);
        QCOMPARE(jobValue(printer, "document-format-supplied"), format);
        const QString paper = jobValue(printer, "media-col");
        QVERIFY2(paper.contains(u"x-dimension=21590"_s) && paper.contains(u"y-dimension=35560"_s),
                 qUtf8Printable(paper));
    }

    void aPictureThatThePrinterDoesNotTakeBecomesWhatItTakes_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("PDF") << u"application/pdf"_s << QByteArray("%PDF-");
        QTest::newRow("raster data") << u"image/pwg-raster"_s << QByteArray("RaS2");
    }
    void aPictureThatThePrinterDoesNotTakeBecomesWhatItTakes()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, begin);
        const IppEvePrinter printer(u"Picky"_s, {format});
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), kPicture});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(printer.documents().size(), 1);
        QCOMPARE(printer.documents().constFirst().left(begin.size()), begin);
        QCOMPARE(jobValue(printer, "document-format-supplied"), format);
    }

    void whatThePrinterCannotDoIsRefusedAndNothingIsSent()
    {
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end =
            runner.run({u"-d"_s, printer.uri(), u"-o"_s, u"sides=two-sided-long-edge"_s, kPages});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"sides=two-sided-long-edge"_s), end.text().constData());
        QVERIFY(printer.documents().isEmpty());
    }

    void whatThePrinterDoesNotDoToThePagesIsDoneBefore_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("pages");
        QTest::newRow("odd pages") << QStringList{u"page-set=odd"_s} << u"2"_s;
        QTest::newRow("two on a sheet") << QStringList{u"number-up=2"_s} << u"2"_s;
        QTest::newRow("two of those on a sheet, backwards")
            << QStringList{u"page-set=odd"_s, u"number-up=2"_s, u"outputorder=reverse"_s} << u"1"_s;
        QTest::newRow("the first sheet, which the printer could choose itself")
            << QStringList{u"page-ranges=1"_s, u"number-up=2"_s} << u"1"_s;
        QTest::newRow("what asks for nothing")
            << QStringList{u"page-set=all"_s, u"outputorder=normal"_s, u"collate=true"_s} << u"3"_s;
    }
    void whatThePrinterDoesNotDoToThePagesIsDoneBefore()
    {
        QFETCH(QStringList, options);
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        QStringList arguments{u"-d"_s, printer.uri()};
        for (const QString &option : options)
            arguments << u"-o"_s << option;
        const RunEnd end = runner.run(arguments << kThreePages);
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(printer.documents().size(), 1);
        QTEST(infoOf(printer.documents().constFirst(), u"Pages"_s), "pages");
    }

    // The filters make the copies of a file, and collate those on two sides.
    void copiesIntoAFileAreSaidToComeOutAsTheyDo_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<QString>("copies");
        QTest::addColumn<QString>("sides");
        QTest::newRow("on two sides")
            << u"two-sided-long-edge"_s
            << u"2, collated (two-sided copies are always collated on this printer)"_s
            << u"three 1, three 2, three 3, , three 1, three 2, three 3, "_s;
        QTest::newRow("on one") << u"one-sided"_s << u"2, not collated"_s
                                << u"three 1, three 1, three 2, three 2, three 3, three 3"_s;
    }
    void copiesIntoAFileAreSaidToComeOutAsTheyDo()
    {
        QFETCH(QString, side);
        const IppEvePrinter printer(u"Duplex"_s, {u"application/pdf"_s}, {u"-2"_s});
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        QFile pages(runner.filePath(u"three.pdf"_s));
        QVERIFY(pages.open(QIODevice::WriteOnly));
        pages.write(numberedPdf("three", 3));
        pages.close();
        const QStringList asked{u"-d"_s,       printer.uri(),      u"-n"_s, u"2"_s,
                                u"-o"_s,       u"sides="_s + side, u"-o"_s, u"collate=false"_s,
                                u"--summary"_s};
        const QString result = runner.filePath(u"result.pdf"_s);
        const RunEnd end = runner.run(asked + QStringList{u"--output"_s, result, pages.fileName()});
        QVERIFY2(end.status == 0, end.text().constData());
        const QRegularExpression line(u"^Copies: (.*)$"_s, QRegularExpression::MultilineOption);
        QTEST(line.match(end.out).captured(1), "copies");
        QTEST(printedSides(readAll(result)).join(u", "_s), "sides");

        // It does not say that it could keep the pages of its copies together, or apart.
        const RunEnd sent = runner.run(asked + QStringList{pages.fileName()});
        QCOMPARE(sent.status, 1);
        QVERIFY2(sent.err.contains(u"collate=false"_s), sent.text().constData());
        QVERIFY(printer.documents().isEmpty());
    }

    // Slides are turned into their places; the order of the printer's own layout is not known.
    void theOrderOnASheetIsTheReaders_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("grid");
        QTest::newRow("the usual one") << QStringList{u"number-up=4"_s} << u"1 2 / 3 4"_s;
        QTest::newRow("one that the filters have anyway")
            << QStringList{u"number-up=4"_s, u"number-up-layout=tbrl"_s} << u"3 1 / 4 2"_s;
    }
    void theOrderOnASheetIsTheReaders()
    {
        QFETCH(QStringList, options);
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        QFile slides(runner.filePath(u"slides.pdf"_s));
        QVERIFY(slides.open(QIODevice::WriteOnly));
        slides.write(numberedPdf("slide", QList<QSizeF>(4, kA4.transposed())));
        slides.close();
        QStringList arguments{u"-d"_s, printer.uri()};
        for (const QString &option : options)
            arguments << u"-o"_s << option;
        const RunEnd end = runner.run(arguments << slides.fileName());
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(gridsAsRead(printer.documents().value(0)).size(), 1);
        QTEST(gridsAsRead(printer.documents().value(0)).constFirst(), "grid");
    }

    void aPhotoGetsThereAsItsCameraWasHeld()
    {
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        QFile photo(runner.filePath(u"photo.jpg"_s));
        QVERIFY(photo.open(QIODevice::WriteOnly));
        photo.write(withOrientation(jpegOf(corneredPicture({320, 192})), 6));
        photo.close();
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), photo.fileName()});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(QImage::fromData(printer.documents().value(0), "jpeg").size(), QSize(192, 320));
    }

    void pagesAreLaidOutOnThePaperThatWasChosen()
    {
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), u"-o"_s, u"media=Legal"_s, u"-o"_s,
                                       u"number-up=2"_s, kThreePages});
        QVERIFY2(end.status == 0, end.text().constData());
        const QString size = infoOf(printer.documents().value(0), u"Page size"_s);
        // Legal is 612 x 1008 points; two pages beside each other lie on it across.
        QVERIFY2(size.startsWith(u"1008 x 612"_s), qPrintable(size));
    }

    void aTextIsShapedHereBecauseNoPrinterKnowsHow()
    {
        const IppEvePrinter printer(u"Reader"_s, {u"text/plain"_s, u"application/pdf"_s});
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), u"-o"_s, u"cpi=5"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY(printer.documents().value(0).startsWith("%PDF-"));
    }

    void whatOnlyThePrinterCouldDoIsRefused()
    {
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end =
            runner.run({u"-d"_s, printer.uri(), u"-o"_s, u"job-billing=Sales"_s, kPages});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"job-billing=Sales"_s), end.text().constData());
        QVERIFY(printer.documents().isEmpty());
    }

    void aPrinterThatIsGoneIsSaid()
    {
        IppEvePrinter printer;
        printer.stop();
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), kPages});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"cannot be reached"_s), end.text().constData());
        QVERIFY2(end.err.contains(u"Nothing was printed."_s), end.text().constData());
    }

    void moreCopiesThanThePrinterMakesAreRefused()
    {
        const IppEvePrinter printer;
        const ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        const RunEnd end = runner.run({u"-d"_s, printer.uri(), u"-n"_s, u"1000"_s, kPages});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.text().contains("prints at most 999 copies at once, not 1000"),
                 end.text().constData());
        QVERIFY(printer.documents().isEmpty());
    }

    void aRawQueueOfAServerPrintsOnIt()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        const IppEvePrinter printer;
        PrivateCups cups;
        cups.start();
        cups.addRawQueue(u"everywhere"_s, {.deviceUri = printer.uri()});
        const RunEnd end = ProgramRunner(cups.server())
                               .run({u"-d"_s, u"everywhere"_s, u"-t"_s, u"Übersicht"_s, kPages});
        QVERIFY2(end.status == 0, end.text().constData());
        // The server has no idea what a page of it is.
        QVERIFY2(end.out.startsWith(u"Sent to “everywhere” as job everywhere-1."_s),
                 end.text().constData());
        QCOMPARE(printer.documents(), QList{readAll(kPages)});
        QVERIFY(jobValue(printer, "job-name").contains(u"Übersicht"_s));
    }

    void aQueueForEverywherePrintsOnIt()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        const IppEvePrinter printer;
        PrivateCups cups;
        cups.start();
        cups.addEverywhereQueue(u"everywhere"_s, printer.uri());
        const ProgramRunner runner(cups.server());
        const RunEnd list = runner.run({u"--list-printers"_s});
        QVERIFY2(list.out.startsWith(u"everywhere\t"_s), list.text().constData());
        const RunEnd end = runner.run({u"-d"_s, u"everywhere"_s, u"-t"_s, u"Übersicht"_s, u"-n"_s,
                                       u"2"_s, u"-o"_s, u"PageSize=Legal"_s, kPages});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(end.out, u"Printed on “everywhere” as job everywhere-1.\n"_s);
        QCOMPARE(printer.documents().size(), 1);
        QVERIFY(printer.documents().constFirst().startsWith("%PDF-"));
        QCOMPARE(jobValue(printer, "job-state"), u"completed"_s);
        QCOMPARE(jobValue(printer, "job-name"), u"Übersicht"_s);
        QCOMPARE(jobValue(printer, "copies"), u"2"_s);
        const QString paper = jobValue(printer, "media-col");
        QVERIFY2(paper.contains(u"x-dimension=21590"_s) && paper.contains(u"y-dimension=35560"_s),
                 qUtf8Printable(paper));
    }

    void aJobWhoseNumberNeverComesIsTakenBack()
    {
        const IppEvePrinter printer;
        FaultyServer between(printer.port());
        between.closeBeforeResponse(IPP_OP_CREATE_JOB);
        ProgramRunner runner(u"/nonexistent/cups.sock"_s);
        runner.setVariable(u"CORVANA_PRINT_PATIENCE"_s, u"2"_s);
        const RunEnd end =
            runner.run({u"-d"_s, u"ipp://localhost:%1/ipp/print"_s.arg(between.port()), kPages});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"was canceled; nothing was printed."_s), end.text().constData());
        QCOMPARE(jobValue(printer, "job-state"), u"canceled"_s);
        QVERIFY(printer.documents().isEmpty());
    }

    void aQueueWithThePanelsOptionsPrintsOnIt()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        const IppEvePrinter printer(u"PostScript"_s, {u"application/postscript"_s});
        PrivateCups cups;
        cups.start();
        cups.addQueue(u"office"_s, kPpd, {.deviceUri = printer.uri()});
        const RunEnd end =
            ProgramRunner(cups.server())
                .run({u"-d"_s, u"office"_s, u"-o"_s, u"QXMediaType=Thick"_s, kPicture});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(printer.documents().size(), 1);
        QCOMPARE(printer.documents().constFirst().count("CorvanaOption(QXMediaType=Thick)"),
                 qsizetype(1));
    }
};

QTEST_GUILESS_MAIN(IppPrinterTest)

#include "ipp_printer_test.moc"
