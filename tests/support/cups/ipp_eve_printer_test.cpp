#include <QFile>
#include <QTest>

#include <cups/cups.h>

#include "tests/support/PpdBuilder.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/IppEvePrinter.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray pages()
{
    QFile file(corvana::test::sourceFile(u"tests/data/pages.pdf"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Owns a request or an answer.
using Ipp = std::unique_ptr<ipp_t, void (*)(ipp_t *)>;

Ipp ask(const IppEvePrinter &printer, ipp_op_t operation, const QByteArray &document = {})
{
    const std::unique_ptr<http_t, void (*)(http_t *)> http(
        httpConnect2("localhost", printer.port(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1,
                     5000, nullptr),
        httpClose);
    const Ipp request(ippNewRequest(operation), ippDelete);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printer.uri().toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 "lisa");
    if (!document.isEmpty()) {
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                     "application/pdf");
    }
    if (cupsSendRequest(http.get(), request.get(), "/ipp/print", CUPS_LENGTH_VARIABLE) ==
            HTTP_STATUS_CONTINUE &&
        !document.isEmpty())
        cupsWriteRequestData(http.get(), document.constData(),
                             static_cast<size_t>(document.size()));
    return {cupsGetResponse(http.get(), "/ipp/print"), ippDelete};
}

} // namespace

class IppEvePrinterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!IppEvePrinter::isAvailable())
            QSKIP("no ippeveprinter here");
        QVERIFY(!pages().isEmpty());
    }

    void itSaysWhatItTakes()
    {
        const IppEvePrinter printer(u"Everywhere"_s, {u"application/pdf"_s});
        const Ipp answer = ask(printer, IPP_OP_GET_PRINTER_ATTRIBUTES);
        QVERIFY2(answer, cupsLastErrorString());
        ipp_attribute_t *formats =
            ippFindAttribute(answer.get(), "document-format-supported", IPP_TAG_MIMETYPE);
        QVERIFY(ippContainsString(formats, "application/pdf"));
        QVERIFY(!ippContainsString(formats, "image/jpeg"));
        QCOMPARE(QByteArray(ippGetString(
                     ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME), 0, nullptr)),
                 QByteArray("Everywhere"));
    }

    void itKeepsEveryDocument()
    {
        const IppEvePrinter printer;
        QVERIFY(printer.documents().isEmpty());
        for (int job = 1; job <= 2; ++job) {
            // One job at a time is all it does.
            bool isTaken = false;
            QTRY_VERIFY(isTaken || (isTaken = ippGetStatusCode(
                                                  ask(printer, IPP_OP_PRINT_JOB, pages()).get()) ==
                                              IPP_STATUS_OK));
            QTRY_COMPARE(printer.documents().size(), job);
            QCOMPARE(printer.documents().last(), pages());
        }
    }

    void aQueueOfAServerPrintsOnIt()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        const IppEvePrinter printer;
        PrivateCups cups;
        cups.start();
        const QString queue = u"everywhere"_s;
        cups.addRawQueue(queue, {.deviceUri = printer.uri()});
        const std::unique_ptr<http_t, void (*)(http_t *)> http(
            httpConnect2("127.0.0.1", cups.port(), nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1, 5000,
                         nullptr),
            httpClose);
        ipp_t *request = ippNewRequest(IPP_OP_PRINT_JOB);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     "ipp://localhost/printers/everywhere");
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                     "application/pdf");
        const Ipp answer(
            cupsDoFileRequest(http.get(), request, "/printers/everywhere",
                              qUtf8Printable(corvana::test::sourceFile(u"tests/data/pages.pdf"_s))),
            ippDelete);
        QCOMPARE(ippGetStatusCode(answer.get()), IPP_STATUS_OK);
        QTRY_COMPARE_WITH_TIMEOUT(printer.documents().size(), 1, 10000);
        QTRY_COMPARE_WITH_TIMEOUT(cups.jobs(queue).first().state, IPP_JSTATE_COMPLETED, 10000);
        QCOMPARE(printer.documents().first(), pages());
    }

    void aStoppedPrinterIsGone()
    {
        IppEvePrinter printer;
        QVERIFY(ask(printer, IPP_OP_GET_PRINTER_ATTRIBUTES));
        printer.stop();
        QVERIFY(!ask(printer, IPP_OP_GET_PRINTER_ATTRIBUTES));
    }
};

QTEST_GUILESS_MAIN(IppEvePrinterTest)
#include "ipp_eve_printer_test.moc"
