#pragma once

#include <optional>

#include <QObject>

#include "dialog/job/JobOutcome.h"
#include "dialog/job/JobProgress.h"

namespace corvana {

/// A job on its way to an outcome, whatever it runs on: a FileJob makes a file, a ServerJob hands
/// the documents to a print server.
///
/// One object prints one job. Everything about it is given to its constructor.
/// Thread: GUI thread; whatever takes time runs elsewhere.
class Job : public QObject
{
    Q_OBJECT

public:
    explicit Job(QObject *parent = nullptr);
    ~Job() override;

    /// Starts, once. `finished` follows in every case, never before this returns.
    virtual void start() = 0;

    /// Ends the job wherever it is; `finished` follows with what came of that. Does nothing when it
    /// was called before, or when the job is over. A job that is canceled before start() is started
    /// all the same, and then ends at once.
    virtual void cancel() = 0;

    /// Whether cancel() was called in time to be tried.
    virtual bool isCanceled() const = 0;

    /// Whether the job goes on without this program.
    virtual bool isHandedOver() const { return false; }

    /// Follows the job no longer; `finished` says how far it was. Does nothing for a job that is
    /// not handed over, or is being canceled.
    virtual void letGo() {}

    /// Waits for the outcome of a job that was started, turning the event loop.
    JobOutcome wait();

Q_SIGNALS:
    /// Each time with other values than before, and never behind the outcome.
    void progressed(const corvana::JobProgress &progress);
    /// Once.
    void finished(const corvana::JobOutcome &outcome);

protected:
    /// Tells how far the job is.
    void report(const JobProgress &progress);
    /// The one way in which a job ends; later calls are ignored.
    void finish(const JobOutcome &outcome);

    /// Null until finish().
    const std::optional<JobOutcome> &outcome() const { return m_outcome; }
    /// What was reported last.
    const std::optional<JobProgress> &progress() const { return m_progress; }

private:
    std::optional<JobProgress> m_progress;
    std::optional<JobOutcome> m_outcome;
    bool m_told = false;
};

} // namespace corvana
