#include "dialog/job/ServerJob.h"

#include <algorithm>

#include <QFileInfo>

#include "dialog/job/DocumentCopies.h"
#include "dialog/job/HandoverOutcomes.h"
#include "dialog/job/JobRequests.h"
#include "dialog/job/PageChoice.h"
#include "dialog/job/PpdFilters.h"
#include "dialog/job/SeparateJobs.h"
#include "dialog/job/TemporaryFolder.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"

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
    return (copies == 1 && option.name == "collate"_L1) || corvana::asksForNothing(option);
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
    if (laysOutTexts())
        return layOutTexts();
    convert();
}

void ServerJob::convert()
{
    if (m_request.printer.origin == PrinterOrigin::Queue)
        convertForQueue();
    else
        convertForDevice();
}

// A queue without a driver gets everything as it is, and so does a printer that takes no pages.
bool ServerJob::laysOutTexts() const
{
    const QStringList &formats = m_request.formats;
    const bool isRaw = m_request.printer.origin == PrinterOrigin::Queue && m_request.ppd->isWritten;
    const bool takesPages =
        formats.isEmpty() || formats.contains(kPdf) || formats.contains(kRaster);
    return !isRaw && takesPages && hasDocumentToLayOut(m_request.documents, m_request.ticket);
}

// Texts (and some PostScript) are made into pages before anything else, with fonts that have their
// characters: what a print server has is not known, and its filter prints what it lacks as boxes.
void ServerJob::layOutTexts()
{
    report({JobProgress::Stage::Converting});
    JobTicket ticket = m_request.ticket;
    if (!m_request.chosenOptions.isEmpty())
        ticket.options = m_request.chosenOptions;
    m_texts = std::make_unique<TextDocuments>(m_request.documents, ticket, m_request.ppd->path);
    connect(m_texts.get(), &TextDocuments::finished, this, [this](const QString &problem) {
        if (m_canceled)
            return finish({JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")});
        if (!problem.isEmpty())
            return finish({JobOutcome::Kind::Failed, 0, problem});
        for (QList<JobOption> *list : {&m_request.ticket.options, &m_request.chosenOptions})
            *list = optionsAfterTexts(*list, m_request.documents);
        m_request.documents = m_texts->documents();
        convert();
    });
    m_texts->start();
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
    bool allTaken = !m_request.laysOutPages && m_request.documents.size() == 1 &&
                    !mustPickPages(m_request.ticket.options);
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
    // Printers know "collate" by its name of IPP.
    const QString name =
        option.name == kCollateAttribute ? QString(kHandlingAttribute) : option.name;
    return m_request.takenAttributes.isEmpty() || m_request.takenAttributes.contains(name) ||
           asksForNothing(option, m_request.ticket.copies);
}

// The filters of a queue convert each document of a job by itself.
void ServerJob::convertForQueue()
{
    const QList<Document> &documents = m_request.documents;
    const bool several = documents.size() > 1;
    const bool isRaw = m_request.ppd->isWritten;
    const bool picks = mustPickPages(m_request.ticket.options);
    if (isRaw && picks)
        return finish(
            {JobOutcome::Kind::Failed, 0,
             tr("The queue “%1” has no driver and prints documents as they are: it can neither put "
                "several pages on a sheet (number-up) nor choose pages (page-ranges, page-set). "
                "Nothing was printed.")
                 .arg(m_request.printer.name)});
    m_sendsSeparately = needsJobsOfTheirOwn();
    // What goes past the filters is nothing that they could put together.
    if (documents.constFirst().format == kRawFormat)
        return send(documents, m_request.ticket);
    const PpdStream stream = isRaw ? PpdStream() : streamOfPpd(m_request.ppd->path);
    if (several && !stream.continues && !stream.isCutByServer)
        return putTogether();
    const bool becomesPdf =
        std::any_of(documents.cbegin(), documents.cend(), [&](const Document &one) {
            return !isRaw && mustBecomePdf(one, m_request.ticket.options);
        });
    if (picks || becomesPdf)
        return pickNext();
    send(documents, m_request.ticket);
}

// A queue without a driver hands everything to its device as it comes, in one stream, and so does
// any queue with what goes past its filters.
bool ServerJob::needsJobsOfTheirOwn() const
{
    const QList<Document> &documents = m_request.documents;
    if (documents.size() < 2)
        return false;
    if (m_request.ppd->isWritten)
        return !canStandInARow(documents);
    return documents.constFirst().format == kRawFormat && !m_request.canStandInARow;
}

// What an IPP printer does not take becomes what it does take; several documents become one.
void ServerJob::convertForDevice()
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
    const bool several = m_request.documents.size() > 1;
    if (!several && taken && pages.isEmpty() && !isShaped)
        return send(m_request.documents, m_request.ticket);
    m_isPutTogether = several;
    if (formats.isEmpty() || formats.contains(kPdf))
        return runConversion(toPdf(pages), kPdf);
    if (formats.contains(kRaster))
        return runConversion(toRaster(), kRaster);
    finish({JobOutcome::Kind::Failed, 0,
            tr("The printer “%1” takes documents of these kinds only: %2.")
                .arg(m_request.printer.name, formats.join(u", "_s))});
}

// For a queue whose printer would see only the first of several files in a stream. Its filters do
// what remains, which is nothing to the pages any more.
void ServerJob::putTogether()
{
    m_isPutTogether = true;
    ConversionRequest request{m_request.documents, m_request.ticket, m_request.ppd->path};
    request.result = ConversionRequest::Result::Pdf;
    request.layout = m_request.ticket.options;
    runConversion(request, kPdf);
}

// The next document with the pages that are asked for. One that has none of them is left out.
void ServerJob::pickNext()
{
    const qsizetype next = m_pickedOf;
    if (next == m_request.documents.size()) {
        if (m_picked.isEmpty())
            return finish({JobOutcome::Kind::Failed, 0, noSuchPages()});
        JobTicket ticket = m_request.ticket;
        ticket.options = withoutPageChoice(ticket.options);
        return send(m_picked, ticket);
    }
    ConversionRequest request{
        {m_request.documents.at(next)}, m_request.ticket, m_request.ppd->path};
    request.result = ConversionRequest::Result::ChosenPages;
    runConversion(request, kPdf);
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
    if (!m_parts)
        m_parts = std::make_unique<QTemporaryDir>();
    if (!m_parts->isValid())
        return finish({JobOutcome::Kind::Failed, 0, problemOf(*m_parts)});
    const bool isOne = request.documents.size() == 1;
    m_converted = {m_parts->filePath(u"document-%1"_s.arg(m_pickedOf)), format,
                   isOne ? request.documents.constFirst().title : m_request.ticket.title};
    ConversionRequest intoFile = request;
    intoFile.outputPath = m_converted.path;
    intoFile.outputName = m_converted.path;
    m_conversion = std::make_unique<Conversion>(intoFile);
    const bool picks = request.result == ConversionRequest::Result::ChosenPages;
    connect(m_conversion.get(), &Conversion::finished, this,
            [this, picks](const QString &problem) { converted(problem, picks); });
    m_conversion->start();
}

void ServerJob::converted(const QString &problem, bool isPicked)
{
    m_conversion.release()->deleteLater();
    if (m_canceled)
        return finish({JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")});
    if (!problem.isEmpty())
        return finish({JobOutcome::Kind::Failed, 0, problem});
    if (isPicked) {
        if (QFileInfo(m_converted.path).size() > 0)
            m_picked += m_converted;
        ++m_pickedOf;
        return pickNext();
    }
    JobTicket ticket = m_request.ticket;
    if (m_request.printer.origin == PrinterOrigin::Queue)
        ticket.options = optionsAfterLayout(ticket.options);
    else if (m_converted.format == kRaster || m_isPutTogether || !layout().isEmpty())
        ticket.options.removeIf(isAppliedByChain);
    send({m_converted}, ticket);
}

void ServerJob::send(const QList<Document> &documents, const JobTicket &ticket)
{
    report({JobProgress::Stage::Sending});
    ServerJobRequest request = m_request;
    request.ticket = ticket;
    request.ticket.options = withoutPageOrder(ticket.options); // nobody else knows them
    // Of pages that were picked here the server would take those of its own default once more.
    if (request.queueChoosesPages && pageChoiceOf(request.ticket.options).ranges.isEmpty())
        request.ticket.options += JobOption{kPageRangesAttribute, u"1-"_s};
    if (request.printer.origin == PrinterOrigin::Queue && !request.ppd->isWritten)
        request.ticket.options = inOrderForFilters(request.ticket.options, request.ppd->path);
    const int times = repetitionsOf(ticket, static_cast<int>(documents.size()));
    QList<Document> all;
    for (int i = 0; i < times; ++i)
        all += documents;
    if (times > 1)
        request.ticket.copies = 1;
    const QString remark = remarkOn(ticket, static_cast<int>(documents.size()));
    m_work = ServerWork(m_request.server, [this, request, all, remark,
                                           separately = m_sendsSeparately](ServerWorker &worker) {
        const auto handOverAll = separately ? handOverSeparately : handOver;
        JobOutcome outcome = handOverAll(worker, request, all, [&](const JobProgress &progress) {
            worker.post([this, progress] { followed(progress); });
        });
        if (outcome.isDone() && !remark.isEmpty())
            outcome.text += u' ' + remark;
        worker.post([this, outcome] { finish(outcome); });
    });
}

// What comes out otherwise than somebody might expect who has given several documents.
QString ServerJob::remarkOn(const JobTicket &ticket, int documents) const
{
    if (m_isPutTogether)
        return tr("The documents were put together as one, because the printer takes one at a "
                  "time; each begins on a new sheet.");
    const CopiesOrder order = copiesOrder(ticket, documents, false);
    if (order == CopiesOrder::EachDocument && isCollated(ticket.options))
        return tr("There are too many copies to send them in sets. Their order is: %1.")
            .arg(textOf(order));
    return {};
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
    if (m_texts)
        m_texts->cancel();
    if (m_conversion)
        m_conversion->cancel();
    m_work.cancel();
}

void ServerJob::letGo()
{
    if (!m_handedOver || outcome() || m_canceled)
        return;
    m_work = {};
    HandoverOutcomes outcomes(m_request.printer);
    outcomes.setJob(progress()->job);
    outcomes.see(*progress());
    if (progress()->stage == JobProgress::Stage::Stopped)
        return finish(outcomes.inQueue(*progress()));
    JobOutcome outcome = outcomes.inQueue({});
    outcome.text = tr("Job %1 is in the queue; it was not followed to its end.")
                       .arg(jobName(m_request.printer, outcome.job));
    finish(outcome);
}

} // namespace corvana
