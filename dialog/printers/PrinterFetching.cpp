#include "dialog/printers/PrinterFetching.h"

#include <QCoreApplication>

#include "dialog/driverless/CapabilityPpd.h"
#include "dialog/printers/DevicePrinter.h"
#include "dialog/printers/PanelRecognition.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/session/PpdFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PrinterFetching)
};

FetchedPrinter withWrittenPpd(const Printer &printer,
                              const std::shared_ptr<const PrinterCapabilities> &capabilities,
                              const QList<JobOption> &defaults, QString *error)
{
    return {printer, writtenPpd(ppdOfCapabilities(*capabilities), error), defaults, capabilities};
}

SharedPpd keptPpd(const QueueDetails &details, const PpdCache &cache, const ServerAddress &server,
                  QString *error)
{
    SharedPpd kept = cache.store(server.argument(), details);
    // Without a cache it works as well, only not while the server is away.
    return kept ? kept : temporaryPpd(details.ppd, error);
}

} // namespace

FetchedPrinter fetchedPrinter(const QueueDetails &details, const PpdCache &cache,
                              const ServerAddress &server, QString *error)
{
    switch (details.state) {
    case QueueDetails::Ppd::None:
        return withWrittenPpd(details.printer, details.capabilities, details.defaults, error);
    case QueueDetails::Ppd::Read:
        return {details.printer, keptPpd(details, cache, server, error), details.defaults};
    case QueueDetails::Ppd::Unknown:
        break;
    }
    return {details.printer};
}

bool hasPanels(const QueueDetails &details, const QStringList &bundleRoots)
{
    QString error;
    const SharedPpd copy = temporaryPpd(details.ppd, &error);
    const PpdFile ppd = copy ? openPpdFile(copy->path, &error) : nullptr;
    return ppd && decidePanels(ppd.get(), details.printer, bundleRoots).panels;
}

FetchedPrinter printerWithItsFile(const Printer &printer)
{
    return {printer, ppdOfFile(printer.ppdPath)};
}

Printer queueNamed(const QString &name, ServerAddress *server)
{
    if (const auto device = deviceOfUri(name)) {
        *server = device->address;
        return device->printer;
    }
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    printer.name = name;
    printer.description = name;
    printer.uri = queueUri(queueOfInstance(name));
    return printer;
}

Printer pdfPrinter()
{
    Printer printer;
    printer.name = kPdfPrinterName;
    printer.description = Texts::tr("Save as PDF");
    return printer;
}

FetchedPrinter fetchedPdfPrinter(QString *error)
{
    // Paper that has no backs, no strips that nobody can print on, and is there once.
    PrinterCapabilities file;
    file.documentFormats = QStringList{u"application/pdf"_s};
    file.sides = QStringList{u"one-sided"_s};
    file.colorModes = QStringList{u"color"_s};
    file.margins = {0, 0, 0, 0};
    file.maximumCopies = 1;
    return withWrittenPpd(pdfPrinter(), std::make_shared<const PrinterCapabilities>(file), {},
                          error);
}

} // namespace corvana
