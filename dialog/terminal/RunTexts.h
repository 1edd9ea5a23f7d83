#pragma once

#include <QString>

namespace corvana {

struct PrintRequest;
struct Printer;

// What a run without a window says of printers and jobs.

/// How a held job is let go, for whoever follows its instructions.
QString releaseCommand(const PrintRequest &request, const Printer &printer, int job);
/// A window shows beside a problem which printer it is about.
QString withName(const QString &problem, const Printer &printer);
/// For somebody who has mistyped the name of a printer that needs no server.
QString withOtherPrinters(const QString &problem, const PrintRequest &request);

} // namespace corvana
