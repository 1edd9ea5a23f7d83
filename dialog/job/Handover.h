#pragma once

#include <functional>
#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/job/JobOutcome.h"
#include "dialog/job/JobProgress.h"
#include "dialog/printers/PpdCopy.h"
#include "dialog/printers/Printer.h"
#include "dialog/server/ServerWork.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// The format of documents that a server hands on past all filters.
inline constexpr QLatin1StringView kRawFormat{"application/vnd.cups-raw"};

/// A job for a queue of a print server, or for an IPP printer.
struct ServerJobRequest
{
    ServerContext server;
    Printer printer;
    QList<Document> documents;
    JobTicket ticket;
    /// The PPD in use: documents are put together with it, and a queue that has another one by now
    /// gets nothing. Never null.
    SharedPpd ppd;
    /// What the queue was known to add to each job; one that adds something else by now gets
    /// nothing. Null where that does not matter.
    std::optional<QList<JobOption>> defaults{};
    /// The other half of what was printed already: it gets what that had, whatever the queue has by
    /// now.
    bool goesOn = false;
    /// The document formats that an IPP printer takes; empty where everything is taken.
    QStringList formats{};
    /// The attributes that an IPP printer takes with a job; empty where everything is taken, or
    /// nobody says. What is missing there is done to the pages here, or refused.
    QStringList takenAttributes{};
    /// The options in the words of the PPD, for what is done to the pages here, where those of the
    /// ticket are in the printer's own; else empty.
    QList<JobOption> chosenOptions{};
    /// Whether pages are laid out here even where an IPP printer could do it: its order on a side
    /// may be another one.
    bool laysOutPages = false;
    /// Whether the queue chooses pages (page-ranges) of a job that names none.
    bool queueChoosesPages = false;
    /// A job of an earlier try whose fate is not known, or 0. It is looked up first, so that the
    /// same is not printed twice by accident.
    int earlierJob = 0;
    /// How many documents that one was to have; 0 where that is not known.
    int earlierDocuments = 0;
    /// How many of the documents were sent by earlier tries, as jobs of their own.
    int sentDocuments = 0;
    /// Of documents that go past all filters, which is all that their formats say: whether they can
    /// stand in a row in one stream.
    bool canStandInARow = false;
    /// Whether nobody could count what comes out, so that there may be no page at all: such a job
    /// is "sent", never "printed".
    bool mayBeEmpty = false;
    /// Whether to follow the job to its end, rather than until the server has all of it.
    bool follow = true;
};

/// Hands documents to a print server as one job: looks whether they may be sent, creates the job,
/// sends one document after the other, asks for the job again, and follows it. Waits for a network:
/// for workers. `documents` stand for those of the request. `report` is told how far it is, on the
/// worker's thread.
JobOutcome handOver(ServerWorker &worker, const ServerJobRequest &request,
                    const QList<Document> &documents,
                    const std::function<void(const JobProgress &)> &report);

} // namespace corvana
