#pragma once

#include <QList>
#include <QString>

#include "dialog/job/Document.h"
#include "dialog/job/FileQueue.h"
#include "dialog/job/Job.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// A job whose result is a file.
struct FileJobRequest
{
    QList<Document> documents;
    JobTicket ticket;
    QString ppdPath;    ///< of the printer; never empty
    QString outputPath; ///< as the user named it; a relative one is that of the current folder
};

/// Prints into a file: the documents go through the filter chain of CUPS with the printer's PPD and
/// become what the printer would have got. Several documents are put together into one PDF first.
///
/// The result appears under its name when it is complete, in place of the file that stood there
/// when the job began; until then, and for good after a failure, that is untouched. A file that has
/// appeared there since, from another program or another window, is nobody's to replace: the job
/// fails.
class FileJob : public Job
{
    Q_OBJECT

public:
    explicit FileJob(const FileJobRequest &request, QObject *parent = nullptr);

    void start() override;
    void cancel() override;
    bool isCanceled() const override { return m_canceled; }

private:
    void finishWith(const QString &problem);

    FileJobRequest m_request;
    FileQueue m_queue;
    bool m_started = false;
    bool m_canceled = false;
};

} // namespace corvana
