#pragma once

#include "dialog/app/OpenedPrinter.h"
#include "dialog/app/PrintRequest.h"
#include "dialog/job/ServerJob.h"
#include "dialog/session/OptionRequest.h"

namespace corvana {

/// What is handed to a server: the ticket in the words of the printer.
ServerJobRequest serverJobRequest(const OpenedPrinter &printer, const ServerContext &server,
                                  const PrintRequest &request, const JobTicket &ticket);

/// What became of options of former days. `problems` says each one that was not taken.
using FittedOptions = OptionOutcome;

/// Takes what the user has set for a queue with lpoptions, or had set before the printer was opened
/// anew: as much as the printer still has.
FittedOptions applyWhatFits(const QList<JobOption> &options, OpenedPrinter &printer);

} // namespace corvana
