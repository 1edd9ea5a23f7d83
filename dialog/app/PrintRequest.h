#pragma once

#include <memory>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/app/CommandLine.h"
#include "dialog/job/Document.h"
#include "dialog/queues/Printer.h"
#include "dialog/session/JobTicket.h"

class QTemporaryFile;

namespace corvana {

struct OpenedPrinter;

/// A command line that was looked into: its document inspected, its printers found.
struct PrintRequest
{
    QList<Document> documents; ///< printed one after the other, as one job
    /// Holds what came on standard input; null without it.
    std::shared_ptr<QTemporaryFile> standardInput;
    QList<Printer> printers;
    int chosenPrinter = 0; ///< index into `printers`
    QList<JobOption> options;
    QStringList bundleRoots;
    QString title;
    QString output; ///< never empty where there is a document
    int copies = 1;
    bool summary = false;
    AlertPolicy onAlert = AlertPolicy::Print;
};

/// Errors: an empty list of printers; `error` says what is missing or wrong.
PrintRequest preparePrintRequest(const CommandLine &line, QString *error);

/// The printers that the command line offers.
QList<Printer> offeredPrinters(const CommandLine &line);

/// Where plug-in bundles are trusted: the installation's folder and those named on the command
/// line.
QStringList trustedBundleRoots(const CommandLine &line);

/// The job as it stands now.
JobTicket makeTicket(const OpenedPrinter &printer, const QList<JobOption> &attributes,
                     const QString &title, int copies);

} // namespace corvana
