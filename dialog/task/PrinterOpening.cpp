#include "dialog/task/PrinterOpening.h"

#include <QCoreApplication>

#include "dialog/driverless/StandardJobOptions.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QueueOpening)
};

} // namespace

std::unique_ptr<OpenedPrinter> openReadyPrinter(const ReadyPrinter &ready,
                                                const QStringList &bundleRoots,
                                                AlertPresenter &presenter, QString *error,
                                                const std::function<void(PpdSession &)> &restore)
{
    auto opened = openPrinter(ready.printer, bundleRoots, presenter, error, restore);
    if (opened) {
        opened->ppdHash = ready.ppdHash;
        opened->capabilities = ready.capabilities;
        opened->writtenPpd = ready.writtenPpd;
        opened->ppdLastModified = ready.ppdLastModified;
    }
    return opened;
}

ServerJobRequest serverJobRequest(const OpenedPrinter &printer, const ServerContext &server,
                                  const PrintRequest &request, const JobTicket &ticket)
{
    ServerJobRequest job;
    job.server = server;
    job.server.mayAsk = true;
    job.printer = printer.printer;
    job.documents = request.documents;
    job.ticket = ticket;
    job.ppdPath = printer.printer.ppdPath;
    job.ppdLastModified = printer.ppdLastModified;
    job.follow = !request.noWait;
    if (printer.capabilities) {
        job.chosenOptions = ticket.options;
        job.ticket.options = standardJobOptions(ticket.options, *printer.capabilities);
        if (printer.printer.origin == PrinterOrigin::Device) {
            job.formats = printer.capabilities->documentFormats;
            job.takenAttributes = printer.capabilities->jobAttributes;
        }
    }
    return job;
}

} // namespace corvana
