#include "dialog/job/FileJob.h"

#include <QTimer>

#include "dialog/job/ResultPages.h"

namespace corvana {

FileJob::FileJob(const FileJobRequest &request, QObject *parent) : Job(parent), m_request(request)
{
}

FileJob::~FileJob() = default;

void FileJob::start()
{
    if (m_canceled)
        return fail(tr("Printing was canceled."));
    const QString problem = prepare();
    if (!problem.isEmpty())
        return fail(problem);
    report({JobProgress::Stage::Printing});
    if (hasDocumentToLayOut(m_request.documents, m_request.ticket))
        m_texts->start();
    else
        convert({});
}

// Makes the file that is written. Answers what stands in the way.
QString FileJob::prepare()
{
    for (const Document &document : m_request.documents) {
        const bool isOriginal =
            !document.original.isEmpty() && isSameFile(m_request.outputPath, document.original);
        if (isOriginal || isSameFile(m_request.outputPath, document.path))
            return tr("%1 is the document itself; name another file.").arg(m_request.outputPath);
    }
    QString problem;
    m_result = ResultFile::create(m_request.outputPath, &problem, m_request.namedBy);
    if (!m_result)
        return problem;
    m_texts =
        std::make_unique<TextDocuments>(m_request.documents, m_request.ticket, m_request.ppdPath);
    connect(m_texts.get(), &TextDocuments::finished, this, &FileJob::convert);
    connect(m_texts.get(), &TextDocuments::pageReached, this, [this](int page) {
        report({JobProgress::Stage::Printing, 0, page});
    });
    return {};
}

// The texts among the documents have become pages.
void FileJob::convert(const QString &problem)
{
    if (!problem.isEmpty())
        return fail(problem);
    ConversionRequest request;
    request.documents = m_texts->documents();
    request.ticket = m_request.ticket;
    if (request.documents != m_request.documents)
        request.ticket.options = optionsAfterTexts(request.ticket.options, m_request.documents);
    request.ppdPath = m_request.ppdPath;
    request.outputPath = m_result->path();
    request.outputName = m_request.outputPath;
    request.turns = m_request.turns;
    m_conversion = std::make_unique<Conversion>(request);
    connect(m_conversion.get(), &Conversion::finished, this, &FileJob::converted);
    connect(m_conversion.get(), &Conversion::pageReached, this, [this](int page) {
        report({JobProgress::Stage::Printing, 0, page});
    });
    m_conversion->start();
}

void FileJob::cancel()
{
    if (m_canceled || outcome())
        return;
    if (m_flush) {
        m_canceled = true;
        m_flush.reset();
        QTimer::singleShot(0, this, [this] { fail(tr("Printing was canceled.")); });
        return;
    }
    if (m_conversion)
        m_conversion->cancel();
    else if (m_texts)
        m_texts->cancel();
    m_canceled = !m_conversion || m_conversion->isCanceled();
}

void FileJob::converted(const QString &problem)
{
    if (!problem.isEmpty())
        return fail(problem);
    checkResultPages(m_result->path(), this, [this](const QString &why) { flush(why); });
}

// What a disk or a server has not taken is not printed. It may take its time, and may be canceled.
void FileJob::flush(const QString &problem)
{
    if (!problem.isEmpty())
        return fail(problem);
    m_flush = std::make_unique<SlowWork>(
        [this, flushing = m_result->flushing()](const std::stop_token &) -> SlowWork::Then {
            return [this, why = flushing()] { publish(why); };
        });
}

void FileJob::publish(const QString &problem)
{
    const QString why = problem.isEmpty() ? m_result->publish() : problem;
    if (!why.isEmpty())
        return fail(why);
    finish({JobOutcome::Kind::Printed, 0, tr("Printed to %1").arg(m_result->name()),
            m_result->name()});
}

void FileJob::fail(const QString &problem)
{
    m_result.reset();
    finish({m_canceled ? JobOutcome::Kind::Canceled : JobOutcome::Kind::Failed, 0, problem});
}

} // namespace corvana
