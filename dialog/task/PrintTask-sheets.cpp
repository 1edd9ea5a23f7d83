#include "dialog/task/PrintTask.h"

#include <algorithm>

#include "dialog/job/FilterPlan.h"
#include "dialog/job/PostScriptPages.h"
#include "dialog/job/PpdFilters.h"
#include "dialog/job/ResultPages.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OutputOrder.h"
#include "dialog/session/Summary.h"
#include "dialog/sheets/SheetTexts.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/RefusalText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPostScript = "application/postscript"_L1;

// What the number of sheets depends on, besides the traits of the printer.
bool mattersForSheets(const JobOption &option)
{
    return isAppliedTo(JobAttribute::AppliedTo::Pages, option) ||
           isAppliedTo(JobAttribute::AppliedTo::Document, option);
}

// Why nothing would come out. Of PostScript without a page that is known of a file only: a printer
// may be set up by it.
QStringList problemsOfEmpty(const JobSheets &sheets, const PageChoice &choice, bool printsToFile)
{
    if (printsToFile && drawsNoPage(sheets))
        return {noPageText()};
    return emptyDocuments(sheets, choice);
}

// Whether pstops, which finds pages by their marks only, has to turn them round, or to put a blank
// side behind the last one of a copy.
bool needsMarks(const DocumentSheets &document, const SheetRequest &request,
                const JobTicket &ticket, ppd_file_t *ppd)
{
    const bool endsOnFront = request.traits.isTwoSided && document.sides.value_or(0) % 2 == 1;
    return printsLastPageFirst(ppd, ticket.options) || (endsOnFront && ticket.copies > 1);
}

// CUPS' pstops, through which PostScript goes to a printer that takes PostScript, sends pages as
// large as they are into a corner of the paper, and nothing at all of a picture that does not end
// its page. What was laid out, shown and said otherwise comes out by way of a PDF only, at the
// price of what such a document asks of the device itself.
bool losesLayout(const JobSheets &sheets, const SheetRequest &request, const JobTicket &ticket,
                 ppd_file_t *ppd)
{
    if (!becomesPostScript(ppd))
        return false;
    const qsizetype count = std::min(sheets.documents.size(), request.documents.size());
    for (qsizetype i = 0; i < count; ++i) {
        const Document &document = request.documents.at(i);
        const DocumentSheets &laidOut = sheets.documents.at(i);
        if (document.format != kPostScript || laidOut.sides.value_or(0) == 0)
            continue;
        // What is picked of it is picked as of a PDF, with the blank sides that this gets.
        if (isLaidOutOtherwise(laidOut, request.traits.paper) ||
            mustBecomePdf(document, request.options) || isEncapsulated(document.path) ||
            (needsMarks(laidOut, request, ticket, ppd) &&
             !marksPages(document.path, laidOut.pages.value_or(0))))
            return true;
    }
    return false;
}

} // namespace

JobTicket PrintTask::ticket() const
{
    return passesFilesOn()
               ? ticketOfPassedOn(jobAttributes(), m_request.title, m_settings.copies())
               : makeTicket(*m_opened, jobAttributes(), m_request.title, m_settings.copies());
}

SheetRequest PrintTask::sheetRequest(const JobTicket &ticket) const
{
    SheetRequest request;
    request.documents = printedDocuments();
    ppd_file_t *ppd = m_opened->session->ppd();
    request.traits = layoutTraits(ppd, ticket.options);
    const QList<JobOption> options =
        request.traits.isTurnedRound ? withOrderForFilters(ticket.options, ppd) : ticket.options;
    for (const JobOption &option : options) {
        if (mattersForSheets(option))
            request.options += option;
    }
    const bool isForDevice = !printsToFile() && m_chosen.printer.origin == PrinterOrigin::Device;
    const bool becomesOne = isForDevice || putsDocumentsTogether();
    request.makesPdfs = becomesOne;
    request.picksPages = request.documents.size() > 1 && (becomesOne || printsToFile());
    return request;
}

// Where what the filters make of several documents cannot stand in one stream, the job makes one
// document of them.
bool PrintTask::putsDocumentsTogether() const
{
    if (m_request.documents.size() < 2)
        return false;
    const PpdStream stream = streamOfPpd(m_opened->session->ppd());
    return !stream.continues && (printsToFile() || !stream.isCutByServer);
}

QList<SummaryLine> PrintTask::summary()
{
    const QList<SummaryLine> lines = summaryOfSettings();
    // Nobody lays out what is passed on as it is.
    return m_request.documents.isEmpty() || passesFilesOn() ? lines : withSheets(lines, ticket());
}

// Says what comes out: the sheets behind the copies, and beside a choice that has no effect what
// happens instead.
QList<SummaryLine> PrintTask::withSheets(QList<SummaryLine> lines, const JobTicket &ticket) const
{
    const SheetRequest request = sheetRequest(ticket);
    const JobSheets *sheets = m_sheets.counted(request);
    const QList<SummaryLine> more = sheetLines(sheets, pageChoiceOf(request.options), ticket.copies,
                                               coverSheets(arrangementOf(ticket)));
    for (qsizetype i = 0; i < more.size(); ++i)
        lines.insert(std::min(lines.size(), i + 1), more.at(i));
    const QString reason = sheets ? oneSidedReason(*sheets) : QString();
    const QString twoSided = sheets && sheets->isByHand
                                 ? textOfJobAttribute({kSidesByHandAttribute, {}}).title
                                 : optionLine(*m_opened->session, kDuplexOption).title;
    for (SummaryLine &line : lines) {
        if (!reason.isEmpty() && line.title == twoSided)
            line.value = tr("%1 (%2)").arg(line.value, reason);
    }
    return lines;
}

void PrintTask::countSheets()
{
    if (!m_opened || m_phase != Phase::Ready || m_request.documents.isEmpty() || passesFilesOn())
        return;
    m_looks.countsThen = !documentsCanBeCounted();
    if (m_looks.countsThen)
        return;
    const SheetRequest request = sheetRequest(ticket());
    if (!m_sheets.counted(request))
        m_sheets.count(request, SheetCounter::When::Soon);
}

SheetPreview PrintTask::sheetPreview() const
{
    using State = SheetPreview::State;
    if (m_request.documents.isEmpty())
        return {State::None, tr("No document has been chosen.")};
    if (!m_opened)
        return {State::None, tr("There is a preview once the printer is known.")};
    if (passesFilesOn())
        return {State::None, tr("Files are passed on to the printer as they are. What comes out is "
                                "not known here.")};
    if (const QStringList problems = documentProblems().problems; !problems.isEmpty())
        return {State::None, problems.join(u' '), false};
    // Before the panels have come up nobody knows what the job will be, and the window, which has
    // not been painted yet, does not wait for a ticket of it.
    if (m_phase != Phase::Opened) {
        // While a panel is being asked there is no ticket yet.
        const bool hasTicket = isPrinting() && m_phase != Phase::Asking;
        const JobTicket job = hasTicket ? m_run.ticket : ticket();
        const SheetRequest request = sheetRequest(job);
        const JobSheets *sheets = m_sheets.counted(request);
        // Only now: what is being typed and no range yet may become one with the next letter.
        if (sheets && !hasTicket && !m_settings.hasValidPageRanges())
            return {State::None, noPagesText(m_settings.pageRanges()), false};
        if (sheets)
            return previewOf(*sheets, job);
        if (const JobSheets *first = m_sheets.begun(request))
            return beginOf(*first, job);
    }
    SheetPreview older = m_preview;
    older.state = State::Counting;
    older.reason.clear();
    older.counts.clear();
    return older;
}

// Only a queue adds cover sheets to a job.
SheetArrangement PrintTask::arrangementOf(const JobTicket &job) const
{
    const bool printsCovers = !printsToFile() && m_chosen.printer.origin == PrinterOrigin::Queue;
    return sheetArrangement(job.options, layoutTraits(m_opened->session->ppd(), job.options),
                            printsCovers);
}

SheetPreview PrintTask::previewOf(const JobSheets &sheets, const JobTicket &job) const
{
    const PageChoice choice = pageChoiceOf(job.options);
    SheetPreview preview;
    const QStringList empty = problemsOfEmpty(sheets, choice, printsToFile());
    const QStringList others = previewProblems(sheets);
    const QStringList problems =
        (empty.isEmpty() ? others : QStringList()) + empty + missingPages(sheets, choice);
    preview.reason = problems.join(u' ');
    preview.canBePrinted = empty.isEmpty();
    preview.reasonTellsSo = !others.isEmpty();
    const SheetArrangement arrangement = arrangementOf(job);
    preview.counts = countLine(sheets, choice, job.copies, coverSheets(arrangement));
    preview.plan = planSheets(sheets, arrangement);
    preview.marks = sheetMarks(preview.plan, sheets, choice);
    for (int i = 0; i < m_request.documents.size(); ++i)
        markDocument(preview.marks, preview.plan, i, damageOf(m_request.documents.at(i)));
    bool anything = false;
    for (const DocumentSheets &document : sheets.documents) {
        anything = anything || document.laidOut;
        preview.files += document.laidOut;
    }
    preview.state = anything ? SheetPreview::State::Known : SheetPreview::State::None;
    return preview;
}

// The counts are those of all sheets, which nobody knows yet, and nothing comes behind the last
// one.
SheetPreview PrintTask::beginOf(const JobSheets &first, const JobTicket &job) const
{
    SheetPreview preview = previewOf(first, job);
    preview.state = SheetPreview::State::Begun;
    preview.reason.clear();
    preview.counts.clear();
    preview.marks.clear(); // what concerns sheets is said of all of them
    const auto isBehind = [](const PlannedSheet &sheet) {
        return sheet.front.kind == PlannedSide::Kind::Cover;
    };
    QList<PlannedSheet> &sheets = preview.plan.sheets;
    while (!sheets.isEmpty() && isBehind(sheets.constLast()))
        sheets.removeLast();
    return preview;
}

// The ticket is made by now: what is set while the job is prepared belongs to the next one.
void PrintTask::prepareJob()
{
    m_run.ticket = ticket();
    enter(Phase::Printing);
    if (m_phase != Phase::Printing)
        return;
    // They may have been looked into while an alert of a panel was waiting for its answer.
    m_looks.printsThen = !m_looks.areReady && !m_looks.documents.isDone();
    if (!m_looks.printsThen && (m_looks.areReady || documentsAreReady()))
        goOnWithJob();
}

// Its documents are known.
void PrintTask::goOnWithJob()
{
    if (m_phase != Phase::Printing)
        return;
    if (!passesFilesOn())
        return awaitTexts();
    if (m_request.summary)
        m_face.writeSummary(m_run.lines);
    startJob(m_run.ticket);
}

void PrintTask::countBeforeJob()
{
    m_run.awaits = Run::Awaits::Sheets;
    m_sheets.count(sheetRequest(m_run.ticket), SheetCounter::When::Now);
}

void PrintTask::sheetsKnown()
{
    if (m_run.awaits != Run::Awaits::Sheets) {
        m_preview = sheetPreview();
        return Q_EMIT sheetsCounted();
    }
    m_run.awaits = Run::Awaits::Nothing;
    const SheetRequest request = sheetRequest(m_run.ticket);
    const PageChoice choice = pageChoiceOf(request.options);
    const JobSheets *sheets = m_sheets.counted(request);
    if (m_request.summary)
        m_face.writeSummary(withSheets(m_run.lines, m_run.ticket));
    const QStringList problems =
        sheets ? problemsOfEmpty(*sheets, choice, printsToFile()) : QStringList();
    std::optional<TaskRefusal> refusal;
    if (!problems.isEmpty())
        refusal = TaskRefusal{problems, TaskRefusal::Place::Pages};
    else
        refusal = askForManySheets();
    if (m_phase != Phase::Printing)
        return; // canceled, while a question was waiting for its answer
    if (!refusal) {
        if (sheets && losesLayout(*sheets, request, m_run.ticket, m_opened->session->ppd()))
            m_run.ticket.postScriptAsPdf = true;
        return startJob(m_run.ticket);
    }
    enter(Phase::Ready);
    Q_EMIT refused(*refusal);
    takeNext();
}

void PrintTask::stopPreparing()
{
    m_run.awaits = Run::Awaits::Nothing;
    m_looks.textPatience.stop();
    m_sheets.cancel();
    m_looks.printsThen = false;
}

// Nothing was begun that would have to be taken back.
void PrintTask::endPreparing()
{
    stopPreparing();
    m_run.outcome = {JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")};
    enter(Phase::Ready);
    Q_EMIT jobEnded(m_run.outcome);
    takeNext();
}

} // namespace corvana
