#pragma once

#include <memory>

#include <QObject>
#include <QProcess>
#include <QString>
#include <QTemporaryFile>

#include "dialog/job/Document.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// Finds the program that runs CUPS' filter chain. It lies where users' paths do not lead.
/// The environment variable CORVANA_PRINT_CUPSFILTER names another one.
/// Errors: null; `error` then says where it was looked for.
QString findCupsFilter(QString *error);

/// A queue that prints into a file: the document goes through the CUPS filter chain with the
/// printer's PPD and becomes what the printer would have got.
///
/// One object prints one job. The result appears under its name when it is complete, in place of
/// the file that stood there; until then, and for good after a failure, that is untouched.
/// Thread: GUI thread; the filter chain is a process of its own.
class FileQueue : public QObject
{
    Q_OBJECT

public:
    explicit FileQueue(QObject *parent = nullptr);
    ~FileQueue() override;

    /// Starts printing. `finished` follows in every case, never before this returns.
    void print(const Document &document, const JobTicket &ticket, const QString &ppdPath,
               const QString &outputPath);

    /// Stops the filter chain, by force when it does not stop by itself; `finished` follows with a
    /// failure.
    void cancel();

    /// Waits until the job is done, turning the event loop. True when it was printed.
    bool wait();

Q_SIGNALS:
    /// `problem` is empty when the job was printed.
    void finished(const QString &problem);

private:
    void finish(const QString &problem);
    void signalFilterChain(int signal);
    void filterFinished(int exitCode, QProcess::ExitStatus status);
    QString problemOfFilter(int exitCode, QProcess::ExitStatus status);

    QProcess m_filter;
    std::unique_ptr<QTemporaryFile> m_result;
    QString m_ppdPath;
    QString m_outputPath;
    QString m_problem;
    bool m_done = false;
    bool m_canceled = false;
};

} // namespace corvana
