#include "dialog/printers/PrinterFetching.h"

#include <QCoreApplication>
#include <QDir>

#include "dialog/driverless/CapabilityPpd.h"
#include "dialog/printers/DevicePrinter.h"
#include "dialog/printers/UserQueues.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PrinterFetching)
};

// Null when it cannot be written; `error` says why.
std::shared_ptr<QTemporaryFile> temporaryPpd(const QByteArray &content, QString *error)
{
    auto file = std::make_shared<QTemporaryFile>(
        QDir::temp().filePath(QStringLiteral("corvana-print-XXXXXX.ppd")));
    if (file->open() && file->write(content) == content.size() && file->flush())
        return file;
    *error = Texts::tr("The printer's options cannot be written to %1: %2")
                 .arg(QDir::tempPath(), file->errorString());
    return nullptr;
}

ReadyPrinter withWrittenPpd(Printer printer, const PrinterCapabilities &capabilities,
                            QString *error)
{
    ReadyPrinter ready;
    const QByteArray ppd = ppdOfCapabilities(capabilities);
    ready.ppdHash = hashOfPpd(ppd);
    ready.writtenPpd = temporaryPpd(ppd, error);
    if (ready.writtenPpd)
        printer.ppdPath = ready.writtenPpd->fileName();
    ready.printer = printer;
    ready.capabilities = std::make_shared<const PrinterCapabilities>(capabilities);
    return ready;
}

} // namespace

ReadyPrinter readyPrinter(const QueueDetails &details, const PpdCache &cache,
                          const ServerAddress &server, QString *error)
{
    ReadyPrinter ready{details.printer, details.lastModified};
    if (details.state == QueueDetails::Ppd::None)
        return withWrittenPpd(details.printer, capabilitiesOf(details.attributes.get()), error);
    if (details.state != QueueDetails::Ppd::New)
        return ready;
    ready.ppdHash = hashOfPpd(details.ppd);
    ready.printer.ppdPath =
        cache.store(server.argument(), details.printer, details.ppd, details.lastModified);
    if (ready.printer.ppdPath.isEmpty()) {
        // Without a cache it works as well, only not while the server is away.
        ready.writtenPpd = temporaryPpd(details.ppd, error);
        if (ready.writtenPpd)
            ready.printer.ppdPath = ready.writtenPpd->fileName();
    }
    return ready;
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

ReadyPrinter filePrinter(QString *error)
{
    Printer printer;
    printer.name = QStringLiteral("file");
    printer.description = Texts::tr("PostScript File");
    return withWrittenPpd(printer, PrinterCapabilities(), error);
}

} // namespace corvana
