#pragma once

#include <memory>
#include <vector>

#include <sys/types.h>

#include <QFile>
#include <QList>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include "dialog/job/Document.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// Finds the program that runs CUPS' filter chain. It lies where users' paths do not lead.
/// The environment variable CORVANA_PRINT_CUPSFILTER names another one.
/// Errors: null; `error` then says where it was looked for.
QString findCupsFilter(QString *error);

/// A queue that prints into a file: the document goes through the CUPS filter chain with the
/// printer's PPD and becomes what the printer would have got. Several documents are put together
/// into one PDF first, and are one job.
///
/// One object prints one job. The result appears under its name when it is complete, in place of
/// the file that stood there when the job began; until then, and for good after a failure, that is
/// untouched. A file that has appeared there since, from another program or another window, is
/// nobody's to replace: the job fails.
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
    void print(const QList<Document> &documents, const JobTicket &ticket, const QString &ppdPath,
               const QString &outputPath);

    /// Only puts the documents together into one PDF, on the printer's paper and without any other
    /// of its choices, for a queue that applies those itself. `layout` are the options that are
    /// applied all the same: which pages, how many on a sheet, in which order.
    void unite(const QList<Document> &documents, const JobTicket &ticket, const QString &ppdPath,
               const QString &outputPath, const QList<JobOption> &layout = {});

    /// Whether any of the options shapes the pages of a text or a picture, so that it has to be
    /// applied when a PDF is made of those.
    static bool shapesDocuments(const QList<JobOption> &options);

    /// Stops the filter chain, by force when it does not stop by itself; `finished` follows with a
    /// failure. A job that has its result already stays printed.
    void cancel();

    /// Whether cancel() was in time.
    bool isCanceled() const { return m_canceled; }

    /// Waits until the job is done, turning the event loop. True when it was printed.
    bool wait();

Q_SIGNALS:
    /// The filter chain has come to this page. Range: 1 and more.
    void pageReached(int page);
    /// `problem` is empty when the job was printed.
    void finished(const QString &problem);

private:
    enum class Writes { StandardOutput, FileOfItsOwn };
    // One program of the chain. Filters do not notice a full disk, so that what they write to their
    // standard output is put into the file here.
    struct Step
    {
        QString program;
        QStringList arguments;
        QString outputFile;
        Writes writes = Writes::StandardOutput;
    };
    void stopChain();
    void signalChain(int signal);

    enum class Result { PrinterData, Pdf };
    QList<JobOption> m_layout; // of a PDF
    void start(const QList<Document> &documents, const JobTicket &ticket, const QString &ppdPath,
               const QString &outputPath, Result result);
    QString prepare(const QList<Document> &documents, const JobTicket &ticket,
                    const QString &ppdPath, Result result);
    QString takePpd(const QString &ppdPath, Result result);
    void addStepsToUnite(const QList<Document> &documents, const JobTicket &ticket,
                         const QString &ppdPath, const QString &filter, const QString &outputFile);
    void startNextStep();
    void stepFinished(int exitCode, QProcess::ExitStatus status);
    QString problemOfStep(int exitCode, QProcess::ExitStatus status);
    QString problemOfWriting() const;
    QString takeResult();
    void readLog();
    void readOutput();
    void closeOutput();
    void finish(const QString &problem);

    QProcess m_process;
    pid_t m_chain = 0;         // the process group of the step that was started last
    std::vector<Step> m_steps; // the current one first
    std::unique_ptr<QTemporaryDir> m_parts;
    std::unique_ptr<QTemporaryFile> m_result;
    QFile m_output;        // of the current step; closed where it writes a file of its own
    QString m_writeError;  // why that could not be written
    QStringList m_secrets; // what its options hold, and no log may
    QByteArray m_log;      // of the current step
    QString m_outputName;  // as it was given, for messages
    QString m_outputPath;
    bool m_replaces = false; // a file that stood there at the beginning
    QString m_problem;
    bool m_done = false;
    bool m_canceled = false;
};

} // namespace corvana
