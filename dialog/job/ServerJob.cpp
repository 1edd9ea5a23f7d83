#include "dialog/job/ServerJob.h"

#include <algorithm>

#include "dialog/job/JobRequests.h"
#include "dialog/session/JobAttributes.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kPdf = "application/pdf"_L1;
constexpr auto kRaster = "image/pwg-raster"_L1;

// What the filter chain does to the pages when it makes the printer's own data.
bool isAppliedByChain(const JobOption &option)
{
    return isAppliedTo(JobAttribute::AppliedTo::Pages, option);
}

// A value that asks for nothing but what is done anyway.
bool asksForNothing(const JobOption &option, int copies)
{
    if (copies == 1 && option.name == "collate"_L1)
        return true;
    const JobAttribute *attribute = jobAttribute(option.name);
    const QStringList values = option.value.split(u','); // before and behind the job
    return attribute && !attribute->usual.isEmpty() &&
           std::all_of(values.cbegin(), values.cend(),
                       [&](const QString &value) { return value == attribute->usual; });
}

} // namespace

ServerJob::ServerJob(const ServerJobRequest &request, QObject *parent)
    : Job(parent), m_request(request)
{
}

ServerJob::~ServerJob() = default;

void ServerJob::start()
{
    if (m_canceled)
        return finish({JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")});
    const QString problem = unsendableOption(m_request.ticket);
    if (!problem.isEmpty())
        return finish({JobOutcome::Kind::Failed, 0, problem});
    if (const QList<JobOption> refused = refusedOptions(); !refused.isEmpty()) {
        QStringList names;
        for (const JobOption &option : refused)
            names += u"%1=%2"_s.arg(option.name, option.value);
        return finish({JobOutcome::Kind::Failed, 0,
                       tr("The printer “%1” does not take these settings of a job: %2. Nothing was "
                          "printed.")
                           .arg(m_request.printer.name, names.join(u", "_s))});
    }
    // A password for the device goes along with the job: never where others can read it.
    const bool secret = !m_request.printer.authInfo.isEmpty();
    if (secret && !m_request.server.address.isLocal() &&
        m_request.server.address.encryption != HTTP_ENCRYPTION_ALWAYS)
        m_request.server.address.encryption = HTTP_ENCRYPTION_REQUIRED;
    convert();
}

// The options that only the printer could follow, and does not know.
QList<JobOption> ServerJob::refusedOptions() const
{
    QList<JobOption> refused;
    for (const JobOption &option : m_request.ticket.options) {
        if (isAppliedTo(JobAttribute::AppliedTo::Job, option) && !isTaken(option))
            refused += option;
    }
    return refused;
}

// What is done to the pages before they are sent: all of it where the printer does not know a part
// of it, since it would do the rest to pages that are others by then.
QList<JobOption> ServerJob::layout() const
{
    QList<JobOption> layout;
    bool allTaken = true;
    for (const JobOption &option : m_request.ticket.options) {
        if (!isAppliedByChain(option) || asksForNothing(option, m_request.ticket.copies))
            continue;
        layout += option;
        allTaken = allTaken && isTaken(option);
    }
    return allTaken ? QList<JobOption>() : layout;
}

bool ServerJob::isTaken(const JobOption &option) const
{
    return m_request.takenAttributes.isEmpty() || m_request.takenAttributes.contains(option.name) ||
           asksForNothing(option, m_request.ticket.copies);
}

// Several documents become one; and what an IPP printer does not take becomes what it does take.
void ServerJob::convert()
{
    const QStringList &formats = m_request.formats;
    const Document &first = m_request.documents.constFirst();
    // A printer that says it looks at any document itself still refuses those that it does not
    // know, so that is for printers that name nothing better.
    const bool convertible = formats.contains(kPdf) || formats.contains(kRaster);
    const QList<JobOption> pages = layout();
    // What shapes the pages of a text or a picture is nothing that a printer knows.
    const bool isShaped =
        !formats.isEmpty() && first.format != kPdf && shapesDocuments(m_request.ticket.options);
    const bool taken = formats.isEmpty() || formats.contains(first.format) ||
                       (!convertible && formats.contains("application/octet-stream"_L1));
    if (m_request.documents.size() == 1 && taken && pages.isEmpty() && !isShaped)
        return send(first, m_request.ticket);
    if (formats.isEmpty() || formats.contains(kPdf))
        return runConversion(toPdf(pages), kPdf);
    if (formats.contains(kRaster))
        return runConversion(toRaster(), kRaster);
    finish({JobOutcome::Kind::Failed, 0,
            tr("The printer “%1” takes documents of these kinds only: %2.")
                .arg(m_request.printer.name, formats.join(u", "_s))});
}

ConversionRequest ServerJob::toPdf(const QList<JobOption> &pages) const
{
    ConversionRequest request{m_request.documents, m_request.ticket, m_request.ppd->path};
    request.result = ConversionRequest::Result::Pdf;
    request.layout = pages;
    if (!m_request.chosenOptions.isEmpty())
        request.ticket.options = m_request.chosenOptions;
    return request;
}

ConversionRequest ServerJob::toRaster() const
{
    ConversionRequest request{m_request.documents, m_request.ticket, m_request.ppd->path};
    request.ticket.copies = 1; // the printer repeats them
    return request;
}

void ServerJob::runConversion(const ConversionRequest &request, QLatin1StringView format)
{
    report({JobProgress::Stage::Converting});
    m_parts = std::make_unique<QTemporaryDir>();
    if (!m_parts->isValid())
        return finish({JobOutcome::Kind::Failed, 0, m_parts->errorString()});
    m_converted = {m_parts->filePath(u"document"_s), format, m_request.ticket.title};
    ConversionRequest intoFile = request;
    intoFile.outputPath = m_converted.path;
    intoFile.outputName = m_converted.path;
    m_conversion = std::make_unique<Conversion>(intoFile);
    connect(m_conversion.get(), &Conversion::finished, this, &ServerJob::converted);
    m_conversion->start();
}

void ServerJob::converted(const QString &problem)
{
    m_conversion.release()->deleteLater();
    if (m_canceled)
        return finish({JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")});
    if (!problem.isEmpty())
        return finish({JobOutcome::Kind::Failed, 0, problem});
    JobTicket ticket = m_request.ticket;
    const bool isLaidOut = m_converted.format == kRaster || !layout().isEmpty();
    if (isLaidOut)
        ticket.options.removeIf(isAppliedByChain);
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
                worker.post([this, progress] { followed(progress); });
            });
        worker.post([this, outcome] { finish(outcome); });
    });
}

void ServerJob::followed(const JobProgress &progress)
{
    m_handedOver = m_handedOver || (progress.stage != JobProgress::Stage::Converting &&
                                    progress.stage != JobProgress::Stage::Sending);
    report(progress);
}

void ServerJob::cancel()
{
    if (m_canceled || outcome())
        return;
    m_canceled = true;
    if (m_conversion)
        m_conversion->cancel();
    m_work.cancel();
}

void ServerJob::letGo()
{
    if (!m_handedOver || outcome() || m_canceled)
        return;
    m_work = {};
    finish({JobOutcome::Kind::InQueue, progress()->job,
            tr("Job %1 is in the queue; it was not followed to its end.")
                .arg(jobName(m_request.printer, progress()->job))});
}

} // namespace corvana
