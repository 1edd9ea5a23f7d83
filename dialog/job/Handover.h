#pragma once

#include <functional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/queues/Printer.h"
#include "dialog/server/ServerWork.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// How far a job has come.
struct JobProgress
{
    enum class Stage { Converting, Sending, Waiting, Held, Printing, Stopped };

    Stage stage = Stage::Converting;
    int job = 0;       ///< its number at the server; 0 before it has one
    int page = 0;      ///< 0 where nobody counts
    qint64 sent = 0;   ///< bytes
    qint64 total = 0;  ///< bytes; 0 where nothing is being sent
    QString message{}; ///< what the printer says

    bool operator==(const JobProgress &) const = default;
    /// For a person: "Printing page 3…".
    QString text() const;
};

/// What became of a job, and nothing that is not known to be so.
struct JobOutcome
{
    enum class Kind {
        Printed,      ///< the server says that it is complete
        InQueue,      ///< the server has all of it and will print it; `text` says what it waits for
        Stopped,      ///< the server has all of it, and prints it when somebody releases it
        Failed,       ///< it will not be printed
        Canceled,     ///< somebody ended it, here or at the server
        Unknown,      ///< it was sent, and nobody can say what became of it
        AlreadyThere, ///< an earlier try turned out to have reached the queue; nothing was sent
        PrinterChanged, ///< the printer's options are others by now; nothing was sent
    };

    Kind kind = Kind::Failed;
    int job = 0; ///< its number at the server; 0 when it never had one
    QString text{};

    /// Whether the server has the job, for the exit status.
    bool isDone() const { return kind == Kind::Printed || kind == Kind::InQueue; }
};

/// A job for a queue of a print server, or for an IPP printer.
struct ServerJobRequest
{
    ServerContext server;
    Printer printer;
    QList<Document> documents;
    JobTicket ticket;
    /// The PPD that documents are put together with; never empty.
    QString ppdPath;
    /// When the PPD in use was last changed at the server, to find out whether it still is the
    /// same; 0 for a queue that had none.
    qint64 ppdLastModified = 0;
    /// The document formats that an IPP printer takes; empty where everything is taken.
    QStringList formats{};
    /// The attributes that an IPP printer takes with a job; empty where everything is taken, or
    /// nobody says. What is missing there is done to the pages here, or refused.
    QStringList takenAttributes{};
    /// The options in the words of the PPD, for what is done to the pages here, where those of the
    /// ticket are in the printer's own; else empty.
    QList<JobOption> chosenOptions{};
    /// A job of an earlier try whose fate is not known, or 0. It is looked up first, so that the
    /// same is not printed twice by accident.
    int earlierJob = 0;
    /// Whether to follow the job to its end, rather than until the server has all of it.
    bool follow = true;
};

/// How users and lp name a job: "QUEUE-NUMBER", without an instance, or the number of a printer
/// that is spoken to directly.
QString jobName(const Printer &printer, int job);

/// Hands one document to a print server as a job: looks whether it may be sent, creates the job,
/// sends the document, asks for the job again, and follows it. Waits for a network: for workers.
/// `report` is told how far it is, on the worker's thread.
JobOutcome handOver(ServerWorker &worker, const ServerJobRequest &request, const Document &document,
                    const std::function<void(const JobProgress &)> &report);

} // namespace corvana
