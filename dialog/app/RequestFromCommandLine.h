#pragma once

#include <functional>

#include "dialog/app/CommandLine.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

/// Looks into a command line: inspects its documents, finds its printers.
/// Errors: nothing; `error` says which document is missing or wrong.
/// `isStopped` is asked again and again while a pipe is read to its end. Where it says so, the
/// answer is nothing, `error` is for nobody to read, and no file of a document stays behind.
std::optional<PrintRequest> preparePrintRequest(const CommandLine &line, QString *error,
                                                const std::function<bool()> &isStopped = {});

/// Whether a command line wants no window.
bool isUnattended(const CommandLine &line);

/// The printers that the command line offers without any server.
QList<Printer> offeredPrinters(const CommandLine &line);

/// Where plug-in bundles are trusted: the installation's folder and those named on the command
/// line.
QStringList trustedBundleRoots(const CommandLine &line);

} // namespace corvana
