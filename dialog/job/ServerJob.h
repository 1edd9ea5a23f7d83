#pragma once

#include <memory>

#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>

#include "dialog/job/Document.h"
#include "dialog/job/FileQueue.h"
#include "dialog/job/JobRequests.h"
#include "dialog/server/ServerWork.h"

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
    /// same; 0 where nothing is to be compared.
    qint64 ppdLastModified = 0;
    /// The document formats that an IPP printer takes; empty where everything is taken.
    QStringList formats{};
    /// A job of an earlier try whose fate is not known, or 0. It is looked up first, so that the
    /// same is not printed twice by accident.
    int earlierJob = 0;
    /// Whether to follow the job to its end, rather than until the server has all of it.
    bool follow = true;
};

/// Hands one job to a print server and follows it: converts what has to be converted, creates the
/// job, sends the document, and asks for the job again before anything is called printed.
///
/// One object prints one job. Thread: GUI thread.
class ServerJob : public QObject
{
    Q_OBJECT

public:
    explicit ServerJob(QObject *parent = nullptr);
    ~ServerJob() override;

    /// Starts. `finished` follows in every case, never before this returns.
    void print(const ServerJobRequest &request);

    /// Ends the job wherever it is; `finished` follows with what came of that.
    void cancel();
    bool isCanceled() const { return m_canceled; }

    /// Follows the job no longer; `finished` says how far it was. For a job that the server has;
    /// does nothing before that.
    void letGo();
    /// Whether the server has all of the job.
    bool isHandedOver() const { return m_handedOver; }

    /// Waits until the job is done, turning the event loop.
    JobOutcome wait();

Q_SIGNALS:
    void progressed(const corvana::JobProgress &progress);
    void finished(const corvana::JobOutcome &outcome);

private:
    void convert();
    void converted(const QString &problem);
    void send(const Document &document, const JobTicket &ticket);
    void report(const JobProgress &progress);
    void finish(const JobOutcome &outcome);

    ServerJobRequest m_request;
    std::unique_ptr<QTemporaryDir> m_parts;
    std::unique_ptr<FileQueue> m_conversion;
    Document m_converted;
    ServerWork m_work;
    std::optional<JobProgress> m_progress; // what was told last
    std::optional<JobOutcome> m_outcome;
    bool m_canceled = false;
    bool m_handedOver = false;
    bool m_told = false;
};

} // namespace corvana
