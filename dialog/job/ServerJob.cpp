#include "dialog/job/ServerJob.h"

#include <utility>

#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>

#include "dialog/job/JobRequests.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcServerJob, "corvana.dialog.serverjob", QtWarningMsg)

namespace {

constexpr QLatin1StringView kPdf{"application/pdf"};
constexpr QLatin1StringView kRaster{"image/pwg-raster"};

// What the filter chain does to the pages when it makes the printer's own data.
bool isAppliedByChain(const JobOption &option)
{
    static const QStringList names{
        QStringLiteral("number-up"),   QStringLiteral("number-up-layout"),
        QStringLiteral("page-border"), QStringLiteral("page-ranges"),
        QStringLiteral("page-set"),    QStringLiteral("outputorder"),
        QStringLiteral("fit-to-page"), QStringLiteral("print-scaling"),
        QStringLiteral("mirror"),      QStringLiteral("orientation-requested"),
    };
    return names.contains(option.name);
}

// What a printer has to do itself, and would print otherwise than it was asked to if it did not.
bool isForThePrinter(const JobOption &option)
{
    static const QStringList names{QStringLiteral("job-hold-until"), QStringLiteral("job-priority"),
                                   QStringLiteral("job-sheets"), QStringLiteral("job-billing")};
    return names.contains(option.name);
}

} // namespace

ServerJob::ServerJob(QObject *parent) : QObject(parent) {}

ServerJob::~ServerJob() = default;

void ServerJob::print(const ServerJobRequest &request)
{
    m_request = request;
    const QString problem = unsendableOption(m_request.ticket);
    if (!problem.isEmpty())
        return finish({JobOutcome::Kind::Failed, 0, problem});
    if (const QList<JobOption> refused = notTaken(isForThePrinter); !refused.isEmpty()) {
        QStringList names;
        for (const JobOption &option : refused)
            names += QStringLiteral("%1=%2").arg(option.name, option.value);
        return finish({JobOutcome::Kind::Failed, 0,
                       tr("The printer “%1” does not take these settings of a job: %2. Nothing was "
                          "printed.")
                           .arg(m_request.printer.name, names.join(QStringLiteral(", ")))});
    }
    // A password for the device goes along with the job: never where others can read it.
    const bool secret = !m_request.printer.authInfo.isEmpty();
    if (secret && !m_request.server.address.isLocal() &&
        m_request.server.address.encryption != HTTP_ENCRYPTION_ALWAYS)
        m_request.server.address.encryption = HTTP_ENCRYPTION_REQUIRED;
    convert();
}

// The options of one kind that the printer does not know.
QList<JobOption> ServerJob::notTaken(bool (*isOfThisKind)(const JobOption &)) const
{
    QList<JobOption> options;
    for (const JobOption &option : m_request.ticket.options) {
        if (!m_request.takenAttributes.isEmpty() && isOfThisKind(option) &&
            !m_request.takenAttributes.contains(option.name))
            options += option;
    }
    return options;
}

// Several documents become one; and what an IPP printer does not take becomes what it does take.
void ServerJob::convert()
{
    const QStringList &formats = m_request.formats;
    const Document &first = m_request.documents.constFirst();
    // A printer that says it looks at any document itself still refuses those that it does not
    // know, so that is for printers that name nothing better.
    const bool convertible = formats.contains(kPdf) || formats.contains(kRaster);
    const QList<JobOption> layout = notTaken(isAppliedByChain);
    const bool taken =
        formats.isEmpty() || formats.contains(first.format) ||
        (!convertible && formats.contains(QLatin1StringView("application/octet-stream")));
    if (m_request.documents.size() == 1 && taken && layout.isEmpty())
        return send(first, m_request.ticket);
    report({JobProgress::Stage::Converting});
    m_parts = std::make_unique<QTemporaryDir>();
    if (!m_parts->isValid())
        return finish({JobOutcome::Kind::Failed, 0, m_parts->errorString()});
    const QString file = m_parts->filePath(QStringLiteral("document"));
    m_conversion = std::make_unique<FileQueue>();
    connect(m_conversion.get(), &FileQueue::finished, this, &ServerJob::converted);
    if (formats.isEmpty() || formats.contains(kPdf)) {
        m_converted = {file, kPdf, m_request.ticket.title};
        return m_conversion->unite(m_request.documents, m_request.ticket, m_request.ppdPath, file,
                                   layout);
    }
    if (!formats.contains(kRaster))
        return finish({JobOutcome::Kind::Failed, 0,
                       tr("The printer “%1” takes documents of these kinds only: %2.")
                           .arg(m_request.printer.name, formats.join(QStringLiteral(", ")))});
    m_converted = {file, kRaster, m_request.ticket.title};
    JobTicket pages = m_request.ticket;
    pages.copies = 1; // the printer repeats them
    m_conversion->print(m_request.documents, pages, m_request.ppdPath, file);
}

void ServerJob::converted(const QString &problem)
{
    m_conversion.release()->deleteLater();
    if (m_canceled)
        return finish({JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")});
    if (!problem.isEmpty())
        return finish({JobOutcome::Kind::Failed, 0, problem});
    JobTicket ticket = m_request.ticket;
    const QList<JobOption> layout = notTaken(isAppliedByChain);
    ticket.options.removeIf([&](const JobOption &option) {
        return m_converted.format == kRaster ? isAppliedByChain(option) : layout.contains(option);
    });
    send(m_converted, ticket);
}

void ServerJob::send(const Document &document, const JobTicket &ticket)
{
    report({JobProgress::Stage::Sending});
    ServerJobRequest request = m_request;
    request.ticket = ticket;
    m_work = ServerWork(m_request.server, [this, request, document](ServerWorker &worker) {
        const JobOutcome outcome =
            handOver(worker, request, document, [&](const JobProgress &progress) {
                worker.post([this, progress] { report(progress); });
            });
        worker.post([this, outcome] { finish(outcome); });
    });
}

void ServerJob::report(const JobProgress &progress)
{
    if (m_outcome)
        return;
    m_handedOver = m_handedOver || (progress.stage != JobProgress::Stage::Converting &&
                                    progress.stage != JobProgress::Stage::Sending);
    if (std::exchange(m_progress, progress) != progress)
        Q_EMIT progressed(progress);
}

void ServerJob::cancel()
{
    if (m_canceled || m_outcome)
        return;
    m_canceled = true;
    if (m_conversion)
        m_conversion->cancel();
    m_work.cancel();
}

void ServerJob::letGo()
{
    if (!m_handedOver || m_outcome)
        return;
    m_work = {};
    finish({JobOutcome::Kind::InQueue, m_progress->job,
            tr("Job %1 is in the queue; it was not followed to its end.")
                .arg(jobName(m_request.printer, m_progress->job))});
}

// The one way in which a job ends.
void ServerJob::finish(const JobOutcome &outcome)
{
    qCInfo(lcServerJob).noquote() << outcome.text;
    m_outcome = outcome;
    QTimer::singleShot(0, this, [this] {
        m_told = true;
        Q_EMIT finished(*m_outcome);
    });
}

JobOutcome ServerJob::wait()
{
    QEventLoop loop;
    connect(this, &ServerJob::finished, &loop, &QEventLoop::quit);
    if (!m_told)
        loop.exec();
    return *m_outcome;
}

} // namespace corvana
