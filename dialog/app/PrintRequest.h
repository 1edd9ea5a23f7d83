#pragma once

#include <memory>
#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/app/CommandLine.h"
#include "dialog/job/Document.h"
#include "dialog/printers/Printer.h"
#include "dialog/server/ServerAddress.h"
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
    /// Those that no server is needed for: PPD files and samples.
    QList<Printer> printers;
    /// A printer by its name, a queue or a URI; empty for the usual one.
    QString wantedPrinter;
    ServerAddress server;
    bool serverWasNamed = false; ///< on the command line
    QList<JobOption> options;
    QStringList bundleRoots;
    QString title;
    QString output;              ///< never empty where there is a document
    bool outputWasNamed = false; ///< so a file is wanted, whatever the printer
    int copies = 1;
    bool copiesWereNamed = false; ///< by -n, which counts more than any option
    bool summary = false;
    std::optional<AlertPolicy> onAlert; ///< nothing: as suits where the job goes
    bool noWait = false;
};

/// Errors: nothing; `error` says which document is missing or wrong.
std::optional<PrintRequest> preparePrintRequest(const CommandLine &line, QString *error);

/// The printers that the command line offers without any server.
QList<Printer> offeredPrinters(const CommandLine &line);

/// The index of the printer that is wanted among those that no server is needed for; -1 when it is
/// a queue or a URI, or there is none.
int wantedAmongFiles(const PrintRequest &request);

/// Where plug-in bundles are trusted: the installation's folder and those named on the command
/// line.
QStringList trustedBundleRoots(const CommandLine &line);

/// The job as it stands now.
JobTicket makeTicket(const OpenedPrinter &printer, const QList<JobOption> &attributes,
                     const QString &title, int copies);

} // namespace corvana
