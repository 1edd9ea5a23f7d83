#pragma once

#include "dialog/job/ServerJob.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

/// What is handed to a server: the ticket in the words of the printer.
ServerJobRequest serverJobRequest(const OpenedPrinter &printer, const ServerContext &server,
                                  const PrintRequest &request, const JobTicket &ticket);

} // namespace corvana
