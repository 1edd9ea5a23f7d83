#pragma once

#include "dialog/app/CommandLine.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

/// Looks into a command line: inspects its documents, finds its printers.
/// Errors: nothing; `error` says which document is missing or wrong.
std::optional<PrintRequest> preparePrintRequest(const CommandLine &line, QString *error);

/// Whether a command line wants no window.
bool isUnattended(const CommandLine &line);

/// The printers that the command line offers without any server.
QList<Printer> offeredPrinters(const CommandLine &line);

/// Where plug-in bundles are trusted: the installation's folder and those named on the command
/// line.
QStringList trustedBundleRoots(const CommandLine &line);

} // namespace corvana
