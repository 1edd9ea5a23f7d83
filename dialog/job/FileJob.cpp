#include "dialog/job/FileJob.h"

#include <QFileInfo>

namespace corvana {

FileJob::FileJob(const FileJobRequest &request, QObject *parent) : Job(parent), m_request(request)
{
    connect(&m_queue, &FileQueue::finished, this, &FileJob::finishWith);
    connect(&m_queue, &FileQueue::pageReached, this, [this](int page) {
        report({JobProgress::Stage::Printing, 0, page});
    });
}

void FileJob::start()
{
    if (m_canceled)
        return finishWith(tr("Printing was canceled."));
    m_started = true;
    report({JobProgress::Stage::Printing});
    m_queue.print(m_request.documents, m_request.ticket, m_request.ppdPath, m_request.outputPath);
}

void FileJob::cancel()
{
    if (m_canceled || outcome())
        return;
    m_queue.cancel();
    m_canceled = !m_started || m_queue.isCanceled();
}

void FileJob::finishWith(const QString &problem)
{
    if (!problem.isEmpty()) {
        const auto kind = m_canceled ? JobOutcome::Kind::Canceled : JobOutcome::Kind::Failed;
        return finish({kind, 0, problem});
    }
    const QString file = QFileInfo(m_request.outputPath).absoluteFilePath();
    finish({JobOutcome::Kind::Printed, 0, tr("Printed to %1").arg(file), file});
}

} // namespace corvana
