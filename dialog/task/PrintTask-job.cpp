#include "dialog/task/PrintTask.h"

#include <algorithm>
#include <utility>

#include <QFileInfo>

#include "dialog/job/FileJob.h"
#include "dialog/job/PageChoice.h"
#include "dialog/job/ResultFormat.h"
#include "dialog/job/SeparateJobs.h"
#include "dialog/job/ServerJob.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "dialog/session/TwoSided.h"
#include "dialog/sheets/OrderOnSheet.h"
#include "dialog/task/Collation.h"
#include "dialog/task/OrderOfPages.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/SavedAsPdf.h"
#include "dialog/task/ServerJobRequests.h"
#include "dialog/task/StartValues.h"
#include "dialog/task/TaskPresets.h"

namespace corvana {

bool PrintTask::canPrint() const
{
    return m_opened && (m_phase == Phase::Opened || m_phase == Phase::Ready) &&
           m_opened->panelProblem.isEmpty() &&
           (!m_request.documents.isEmpty() || m_request.isForSettings());
}

bool PrintTask::printsToFile() const
{
    return printsTo() == PrintsTo::File;
}

PrintsTo PrintTask::printsTo() const
{
    const bool toFile = m_output.toFile || m_chosen.printer.origin == PrinterOrigin::File;
    return toFile ? PrintsTo::File : PrintsTo::Server;
}

void PrintTask::print()
{
    if (m_phase == Phase::Opened) {
        // By an Enter that was typed ahead, or because nobody waits for anything to be shown: what
        // cannot be set has not been seen by anybody.
        bringUp();
        if (m_opened->panelProblem.isEmpty() && !m_chosen.unset.isEmpty()) {
            Q_EMIT refused({m_chosen.unset});
            return;
        }
    }
    if (m_phase != Phase::Ready)
        return;
    if (!m_opened->panelProblem.isEmpty()) {
        Q_EMIT refused({{m_opened->panelProblem}});
        return;
    }
    // Of a job without it nobody would notice what is missing.
    if (m_coming.isReading())
        return m_coming.sayAgain();
    if (m_request.documents.isEmpty() && !m_request.isForSettings()) {
        Q_EMIT refused({{tr("Choose a document to print.")}});
        return;
    }
    // They may be others by now. What is not known yet is waited for when the job is made, so that
    // it is the job of this moment.
    m_looks.documents.check(m_request.documents);
    m_looks.areReady = m_looks.documents.isDone();
    if (m_looks.areReady && !documentsAreReady())
        return;
    enter(Phase::Asking);
    m_run.textsAreSettled = false;
    std::optional<TaskRefusal> refusal = finish();
    if (!refusal && m_phase == Phase::Asking)
        refusal = presets().saveInstance();
    // Interrupted, while an alert was waiting for its answer.
    if (m_phase != Phase::Asking)
        return;
    if (refusal) {
        enter(Phase::Ready);
        Q_EMIT refused(*refusal);
        return;
    }
    if (m_request.documents.isEmpty())
        return enter(Phase::Ended);
    prepareJob();
}

QList<JobOption> PrintTask::jobAttributes() const
{
    JobSettings settings = m_settings;
    if (m_run.held)
        settings.setAttribute(kJobHoldUntilAttribute, kHeldIndefinitely);
    return withAnswersToDefaults(
        asCopiesComeOut(withPagesOfOrder(settings.attributes()), *m_opened, printsTo()), *m_opened);
}

// Everything that has to be known before a job is made. Answers why it is not made; a place in the
// window, and what the user has just said himself, go along.
std::optional<TaskRefusal> PrintTask::finish()
{
    using Place = TaskRefusal::Place;
    if (!m_face.finishEditing())
        return TaskRefusal{{}, Place::Nowhere, true};
    if (const QString forbidden = whyNoFile(); printsToFile() && !forbidden.isEmpty())
        return TaskRefusal{{forbidden}, Place::Output};
    if (printsToFile() && m_output.path.isEmpty() && !m_request.documents.isEmpty())
        return TaskRefusal{{tr("Name the file to print to.")}, Place::Output};
    if (!m_settings.hasValidPageRanges())
        return TaskRefusal{{noPagesText(m_settings.pageRanges())}, Place::Pages};
    if (const QStringList problems = problemsOfOrder(m_settings, *m_opened->session);
        !problems.isEmpty())
        return TaskRefusal{problems};
    if (const QStringList problems =
            problemsOfByHand(m_settings.attributes(), *m_opened, printsToFile(), m_face.canAsk());
        !problems.isEmpty() && !m_request.documents.isEmpty())
        return TaskRefusal{problems};
    m_output.isTaken = printsToFile() && m_output.wouldReplace(m_chosen.canBeAnother);
    if (m_output.isTaken && !m_face.mayOverwrite(m_output.path))
        return TaskRefusal{{}, Place::Output, true};
    if (const QString unknown = unknownDocument(); !passesFilesOn() && !unknown.isEmpty())
        return TaskRefusal{
            {tr("%1 is of a kind that is not known here. Only a queue can pass it on "
                "to its printer, as it is, with the option “raw”.")
                 .arg(unknown)}};
    if (passesFilesOn()) {
        QList<JobOption> asked = m_settings.attributes();
        const QStringList problems = takeWhatCannotBeDone(asked, *m_opened);
        if (!problems.isEmpty())
            return TaskRefusal{problems,
                               m_settings.pageRanges().isEmpty() ? Place::Nowhere : Place::Pages};
        if (printsToFile())
            return TaskRefusal{{tr("What is passed on as it is cannot be printed to a file.")}};
    } else if (isTextCheckOver() && !mayPrintTexts()) {
        return TaskRefusal{{}, Place::Nowhere, true};
    } else if (!m_request.documents.isEmpty()) {
        if (auto refusal = askPanels())
            return refusal;
    }
    if (m_phase != Phase::Asking)
        return std::nullopt;
    // Panels have saved what is theirs alone; a job is not printed with other values than were
    // shown.
    const QStringList locked = lockedTexts(keepLocks());
    // Before the ticket: the panels restore and save on the way.
    m_run.lines = summaryOfSettings();
    QStringList problems = locked;
    const QList<Refusal> refusals = m_opened->session->takeRefusals();
    for (const Refusal &refusal : refusals)
        problems += refusalText(refusal, *m_opened->session);
    problems += jobProblems(*m_opened->session, m_opened->jobValues);
    problems += problemsOfLocks();
    // What is printed is counted first.
    if (m_request.summary && (!problems.isEmpty() || m_request.documents.isEmpty()))
        m_face.writeSummary(m_run.lines);
    return problems.isEmpty() ? std::nullopt : std::optional(TaskRefusal{problems});
}

// The name of a document that nothing can be made of; null where there is none.
QString PrintTask::unknownDocument() const
{
    const auto isUnknown = [](const Document &one) { return one.format == kUnknownFormat; };
    const QList<Document> &documents = m_request.documents;
    const auto found = std::find_if(documents.cbegin(), documents.cend(), isUnknown);
    return found == documents.cend() ? QString() : found->title;
}

// The panels say whether they let the job go, and may show instructions first.
std::optional<TaskRefusal> PrintTask::askPanels()
{
    using Instructions = TaskFace::Instructions;
    const bool allowed = m_opened->panels->shouldPrint();
    if (m_phase != Phase::Asking)
        return std::nullopt;
    const Instructions instructions = m_face.instructions();
    if (instructions == Instructions::Refuse)
        return TaskRefusal{{tr("The printer's settings show instructions.")}};
    m_run.held = instructions == Instructions::Wait;
    if (m_run.held && printsToFile())
        return TaskRefusal{{tr("The job would have to wait for these instructions, and a file "
                               "cannot wait. Follow them and print with --on-alert=print.")}};
    if (m_run.held && isTwoSidedByHand(m_settings.attributes()))
        return TaskRefusal{{tr("The job would have to wait for these instructions, and two-sided "
                               "printing by hand cannot. Follow them and print with "
                               "--on-alert=print.")}};
    // Whoever releases it has read them; a job that goes out by itself would not have waited.
    if (m_run.held && !m_settings.lockedBy(kJobHoldUntilAttribute).isNull() &&
        m_settings.attribute(kJobHoldUntilAttribute) != kHeldIndefinitely)
        return TaskRefusal{
            {tr("%1 So the job cannot wait for these instructions. Follow them and print with "
                "--on-alert=print.")
                 .arg(lockedText(kJobHoldUntilAttribute, *m_opened->session))}};
    if (!allowed)
        return TaskRefusal{
            {tr("The printer's settings hold the job back.")}, TaskRefusal::Place::Nowhere, true};
    return std::nullopt;
}

void PrintTask::startJob(const JobTicket &ticket)
{
    Q_EMIT unsaid();
    presets().jobBegins();
    m_run.hand.reset();
    const JobSheets *sheets = m_sheets.counted(sheetRequest(ticket));
    // What the filters are told, so that the reader sees the order that was asked for.
    const int turn = sheets ? commonOrderTurn(*sheets).value_or(0) : 0;
    const JobTicket turned = withOrderForReader(ticket, turn);
    if (printsToFile()) {
        FileJobRequest request{printedDocuments(), turned, m_opened->fetched.ppd->path,
                               m_output.path, m_output.namedBy()};
        if (sheets && savesAsPdf()) // to be read on a screen
            request.turns = turnsOfPdf(*sheets, arrangementOf(ticket));
        followJob(std::make_unique<FileJob>(request));
    } else if (isTwoSidedByHand(ticket.options) && !passesFilesOn()) {
        startByHand(ticket);
    } else {
        ServerJobRequest request = serverJobRequest(*m_opened, server(), m_request, turned);
        request.documents = printedDocuments();
        request.laysOutPages = turn != 0;
        if (m_settings.attributes().contains(kRaw) || !unknownDocument().isNull()) {
            request.canStandInARow = canStandInARow(request.documents);
            for (Document &document : request.documents)
                document.format = kRawFormat;
        }
        const Memory memory = m_memory.value(idOf(m_chosen.printer));
        request.earlierJob = memory.earlierJob;
        request.earlierDocuments = memory.earlierDocuments;
        request.sentDocuments = memory.sentDocuments;
        request.mayBeEmpty = passesFilesOn() || !sheets || isUncounted(*sheets);
        followJob(std::make_unique<ServerJob>(request));
    }
}

void PrintTask::followJob(std::unique_ptr<Job> job)
{
    m_run.job = std::move(job);
    connect(m_run.job.get(), &Job::progressed, this, [this](const JobProgress &progress) {
        if (!m_run.job->isCanceled())
            Q_EMIT progressed(progress);
    });
    connect(m_run.job.get(), &Job::finished, this, &PrintTask::jobFinished);
    enter(Phase::Printing);
    m_run.job->start();
}

void PrintTask::cancel()
{
    if (m_phase == Phase::Turning)
        return endBetweenPasses(Phase::Ready);
    if (m_phase != Phase::Printing)
        return;
    if (!m_run.job)
        return endPreparing();
    // A server that does not answer has a few seconds to be told.
    enter(Phase::Canceling);
    m_run.job->cancel();
}

void PrintTask::leave()
{
    // What is being canceled is waited for: whether it still was in time has to be known.
    if (m_phase != Phase::Printing || !isJobHandedOver())
        return;
    enter(Phase::Leaving);
    m_run.job->letGo();
}

void PrintTask::interrupt(OnInterrupt job)
{
    if (m_phase == Phase::Leaving || m_phase == Phase::Ended)
        return;
    if (m_phase == Phase::Turning)
        return endBetweenPasses(Phase::Ended);
    if (!m_run.job) {
        stopPreparing();
        return enter(Phase::Ended);
    }
    if (job == OnInterrupt::LeaveJob)
        leave();
    if (m_phase == Phase::Leaving)
        return;
    enter(Phase::Leaving);
    m_run.job->cancel();
}

// Whoever types such a name believes it, and so does every program that opens the file.
bool PrintTask::isNoPdfInSpiteOfItsName(const QString &file) const
{
    constexpr QLatin1StringView pdf("pdf");
    return QFileInfo(file).suffix().compare(pdf, Qt::CaseInsensitive) == 0 && !savesAsPdf() &&
           !passesFilesOn() && resultSuffix(m_opened->session->ppd()) != pdf;
}

void PrintTask::jobFinished(const JobOutcome &ofJob)
{
    using Kind = JobOutcome::Kind;
    m_run.job->disconnect(this);
    m_run.job.release()->deleteLater();
    const std::optional<JobOutcome> whole = m_run.hand ? afterPass(ofJob) : std::optional(ofJob);
    if (!whole)
        return;
    m_run.hand.reset();
    JobOutcome outcome = *whole;
    if (outcome.isDone() && isNoPdfInSpiteOfItsName(outcome.file))
        outcome.text = tr("Printed to %1, which holds data for the printer and is no PDF document")
                           .arg(outcome.file);
    m_run.outcome = outcome;
    noteInJournal(outcome);
    Memory &memory = m_memory[idOf(m_chosen.printer)];
    // It may be printed yet, so the same is not sent once more by accident. A try that never got a
    // number has learnt nothing about an earlier one.
    if (mayStillPrint(outcome)) {
        memory.earlierJob = outcome.job;
        memory.earlierDocuments = outcome.documents;
    } else if (outcome.job > 0) {
        memory.earlierJob = 0;
    }
    // What failed before anything was asked of a server says nothing of them.
    if (outcome.documents > 0) {
        memory.earlierDocuments = outcome.documents;
        memory.sentDocuments = outcome.sentDocuments;
    }
    // What a script prints to says nothing about what its user opens next.
    if (m_chosen.canBeAnother && outcome.isDone() && outcome.file.isEmpty())
        m_source.rememberUse(m_chosen.printer);
    presets().jobEnded(outcome);
    if (outcome.kind == Kind::PrinterChanged)
        m_source.retry();
    const bool ends = m_phase == Phase::Leaving || outcome.kind == Kind::Printed ||
                      outcome.kind == Kind::Sent ||
                      (outcome.kind == Kind::InQueue && m_request.noWait);
    enter(ends ? Phase::Ended : Phase::Ready);
    Q_EMIT jobEnded(outcome);
    if (m_phase == Phase::Ready)
        takeNext();
}

} // namespace corvana
