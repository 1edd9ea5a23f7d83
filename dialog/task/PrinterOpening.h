#pragma once

#include <memory>

#include <QTemporaryFile>

#include "dialog/job/ServerJob.h"
#include "dialog/printers/PrinterFetching.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

/// openPrinter(), for a printer that a server has told about.
std::unique_ptr<OpenedPrinter> openReadyPrinter(const ReadyPrinter &ready,
                                                const QStringList &bundleRoots,
                                                AlertPresenter &presenter, QString *error,
                                                const std::function<void(PpdSession &)> &restore);

/// What is handed to a server: the ticket in the words of the printer.
ServerJobRequest serverJobRequest(const OpenedPrinter &printer, const ServerContext &server,
                                  const PrintRequest &request, const JobTicket &ticket);

} // namespace corvana
