#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace corvana::test {

/// How the capturing backend ends, as CUPS defines it for backends.
enum class BackendExit {
    Ok = 0,           ///< the job is done
    Failed = 1,       ///< the queue's error policy decides; these servers abort the job
    AuthRequired = 2, ///< the job is held until somebody authenticates ("auth-info-required")
    Hold = 3,         ///< the job is held
    Stop = 4,         ///< the queue stops, the job stays
    Cancel = 5,       ///< the job is cancelled
    Retry = 6,
    RetryCurrent = 7,
};

/// One run of the capturing backend: one document of a job.
struct CapturedJob
{
    int id = 0;
    QString user;
    QString title;
    int copies = 0;
    /// The options of the job, as the filters get them: "name=value name2=value2 …".
    QString options;
    /// What the scheduler tells its backends: DEVICE_URI, PRINTER, CONTENT_TYPE, PPD and so on.
    QMap<QString, QString> environment;
    /// What the printer would have got.
    QByteArray data;
};

/// A printer that keeps what it is sent: the device URI of a queue whose backend is `capture`,
/// which every PrivateCups has, and the folder where its jobs arrive.
///
/// A test steps it without sleeping: the backend waits at the points that are switched on until
/// the test releases them. Points are named "start" (nothing of the document has been read yet),
/// "page-1", "page-2", … (that page has been reported), "end" (everything is captured and reported,
/// the backend has not ended).
class CaptureDevice
{
public:
    /// `folder` must exist. Its jobs are seen by every CaptureDevice of the same folder.
    explicit CaptureDevice(const QString &folder) : m_folder(folder) {}

    QString folder() const { return m_folder; }

    /// The pages that it reports to have printed ("PAGE:", and "job-media-progress" in per cent).
    CaptureDevice &pages(int count);
    /// Waits at "start", at every page or at the "end".
    CaptureDevice &waitAtStart();
    CaptureDevice &waitAtPages();
    CaptureDevice &waitAtEnd();
    /// How it ends. All data has been read and kept by then.
    CaptureDevice &exitWith(BackendExit status);
    /// A line for the scheduler, written before the first page, for instance
    /// "STATE: +media-empty-warning" or "ERROR: Out of staples". Can be given several times.
    CaptureDevice &report(const QString &line);

    /// "capture:/folder?pages=3&…"
    QString uri() const;

    /// Lets the backend go on from a point, now or when it gets there. "all" lets it through
    /// everywhere. A point stays released for the following jobs.
    void release(const QString &point) const;
    /// Closes all points again.
    void withdrawReleases() const;
    /// Whether a backend waits, or has waited, at a point of job `id`.
    bool hasReached(int id, const QString &point) const;

    /// Complete jobs in the order of their numbers; documents of one job in their order.
    QList<CapturedJob> jobs() const;
    /// Numbers of jobs that a backend has begun, complete or not.
    QList<int> begunJobs() const;

private:
    QString m_folder;
    int m_pages = 0;
    int m_exit = 0;
    QStringList m_waits;
    QStringList m_reports;
};

} // namespace corvana::test
