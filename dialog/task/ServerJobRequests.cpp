#include "dialog/task/ServerJobRequests.h"

#include "dialog/driverless/StandardJobOptions.h"
#include "dialog/job/PageChoice.h"
#include "dialog/session/OptionNames.h"
#include "dialog/task/PassedOn.h"

namespace corvana {

ServerJobRequest serverJobRequest(const OpenedPrinter &printer, const ServerContext &server,
                                  const PrintRequest &request, const JobTicket &ticket)
{
    ServerJobRequest job;
    job.server = server;
    job.server.mayAsk = true;
    job.printer = printer.fetched.printer;
    job.documents = request.documents;
    job.ticket = ticket;
    // Who puts sheets back stands here; no printer knows them.
    job.ticket.options.removeIf([](const JobOption &option) {
        return option.name == kSidesByHandAttribute || option.name == kPutBackAttribute;
    });
    job.ppd = printer.fetched.ppd;
    job.follow = !request.noWait;
    const QList<JobOption> &defaults = printer.fetched.defaults;
    job.defaults = printer.saidDefaults;
    job.queueChoosesPages = !passesFilesOn(printer) && !pageChoiceOf(defaults).ranges.isEmpty();
    if (const auto &capabilities = printer.fetched.capabilities) {
        job.chosenOptions = job.ticket.options;
        job.ticket.options = standardJobOptions(job.chosenOptions, *capabilities);
        if (job.printer.origin == PrinterOrigin::Device) {
            job.formats = capabilities->documentFormats;
            job.takenAttributes = capabilities->jobAttributes;
        }
    }
    return job;
}

} // namespace corvana
