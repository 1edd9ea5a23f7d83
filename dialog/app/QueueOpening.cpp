#include "dialog/app/QueueOpening.h"

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
                                                AlertPresenter &presenter, QString *error)
{
    auto opened = openPrinter(ready.printer, bundleRoots, presenter, error);
    if (opened) {
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

FittedOptions applyWhatFits(const QList<JobOption> &options, OpenedPrinter &printer)
{
    QList<JobOption> known;
    QStringList unknown;
    for (const JobOption &option : options) {
        if (isKnownOption(option.name, *printer.session))
            known += option;
        else
            unknown += option.name;
    }
    FittedOptions fitted;
    // All of their names in one line: whoever has set them for another program knows them.
    if (!unknown.isEmpty())
        fitted.problems += Texts::tr("This printer has no option of the name %1.")
                               .arg(unknown.join(QStringLiteral(", ")));
    const auto apply = [&](const QList<JobOption> &some) {
        const OptionOutcome outcome =
            applyOptions(some, *printer.session, printer.jobValues, *printer.panels);
        fitted.attributes += outcome.attributes;
        if (outcome.copies)
            fitted.copies = outcome.copies;
        return outcome.problems;
    };
    if (known.isEmpty() || apply(known).isEmpty())
        return fitted;
    // Together they cannot be taken, so each for itself, as far as they go.
    for (const JobOption &option : std::as_const(known))
        fitted.problems += apply({option});
    return fitted;
}

} // namespace corvana
