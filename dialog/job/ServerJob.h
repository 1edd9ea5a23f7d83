#pragma once

#include <memory>

#include <QObject>
#include <QTemporaryDir>

#include "dialog/job/Document.h"
#include "dialog/job/FileQueue.h"
#include "dialog/job/Handover.h"

namespace corvana {

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
    /// does nothing before that, nor for one that is being canceled.
    void letGo();
    /// Whether the server has all of the job.
    bool isHandedOver() const { return m_handedOver; }

    /// Waits until the job is done, turning the event loop.
    JobOutcome wait();

Q_SIGNALS:
    void progressed(const corvana::JobProgress &progress);
    void finished(const corvana::JobOutcome &outcome);

private:
    QList<JobOption> refusedOptions() const;
    QList<JobOption> layout() const;
    bool isTaken(const JobOption &option) const;
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
