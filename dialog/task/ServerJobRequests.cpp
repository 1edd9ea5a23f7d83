#include "dialog/task/ServerJobRequests.h"

#include "dialog/driverless/StandardJobOptions.h"

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
    job.ppd = printer.fetched.ppd;
    job.follow = !request.noWait;
    if (const auto &capabilities = printer.fetched.capabilities) {
        job.chosenOptions = ticket.options;
        job.ticket.options = standardJobOptions(ticket.options, *capabilities);
        if (job.printer.origin == PrinterOrigin::Device) {
            job.formats = capabilities->documentFormats;
            job.takenAttributes = capabilities->jobAttributes;
        }
    }
    return job;
}

} // namespace corvana
