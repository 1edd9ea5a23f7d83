#include "dialog/task/PrintTask.h"

#include <utility>

#include <QPointer>

#include "dialog/sheets/PassJob.h"
#include "dialog/task/ServerJobRequests.h"

namespace corvana {

using namespace Qt::StringLiterals;

// A printer that turns no sheets over prints them twice, each time as a job of its own: the second
// one is made only when somebody says that the sheets are back in the tray. Both print sides as
// they were laid out for the preview.
void PrintTask::startByHand(const JobTicket &ticket)
{
    const SheetRequest request = sheetRequest(ticket);
    const JobSheets *sheets = m_sheets.counted(request);
    QStringList problems;
    HandRun run;
    for (qsizetype i = 0; i < request.documents.size(); ++i) {
        const DocumentSheets document = sheets ? sheets->documents.value(i) : DocumentSheets();
        if (!document.laidOut && document.sides != 0)
            problems += tr("The sides of “%1” are not known here, so they cannot be printed in two "
                           "halves. With sides-by-hand=no one side of each sheet is printed.")
                            .arg(request.documents.at(i).title);
        run.documents += document.laidOut;
    }
    if (!problems.isEmpty()) {
        enter(Phase::Ready);
        Q_EMIT refused({problems});
        return takeNext();
    }
    ppd_file_t *ppd = m_opened->session->ppd();
    const SheetPlan plan = planSheets(
        *sheets, sheetArrangement(ticket.options, layoutTraits(ppd, ticket.options), false));
    run.passes = planPasses(plan, handFeed(ppd, ticket.options));
    QStringList titles;
    for (const Document &document : request.documents)
        titles += document.title;
    run.question = turnQuestion(run.passes, titles, ticket.copies);
    m_run.hand = run;
    startPass();
}

void PrintTask::startPass()
{
    using Sides = JobProgress::Sides;
    const HandRun &run = *m_run.hand;
    JobTicket ticket = m_run.ticket;
    ticket.options = optionsOfPass(ticket.options);
    Sides sides = Sides::All;
    if (run.passes.needsBoth()) {
        sides = run.isSecond ? Sides::Other : Sides::First;
        ticket.title = (run.isSecond ? tr("%1 (other sides)") : tr("%1 (first sides)"))
                           .arg(m_run.ticket.title);
    }
    ServerJobRequest request = serverJobRequest(*m_opened, server(), m_request, ticket);
    // Nobody can put back what was not printed yet.
    request.follow = request.follow || sides == Sides::First;
    const Memory memory = m_memory.value(idOf(m_chosen.printer));
    request.earlierJob = run.isSecond ? run.earlierJob : memory.earlierJob;
    request.earlierDocuments = request.earlierJob > 0 ? 1 : 0;
    request.goesOn = run.goesOn;
    const PassSource source{run.isSecond ? run.passes.second : run.passes.first, run.documents};
    followJob(std::make_unique<PassJob>(request, source, sides));
}

bool PrintTask::isFirstPass() const
{
    return m_run.hand && m_run.hand->passes.needsBoth() && !m_run.hand->isSecond;
}

// Answers what became of the job as a whole; nothing while there is another pass to be made.
std::optional<JobOutcome> PrintTask::afterPass(const JobOutcome &outcome)
{
    using Kind = JobOutcome::Kind;
    HandRun &run = *m_run.hand;
    if (!run.passes.needsBoth())
        return outcome;
    const bool isOver = m_phase == Phase::Leaving || m_phase == Phase::Canceling;
    JobOutcome whole = outcome;
    if (!run.isSecond) {
        whole.text = tr("First sides: %1").arg(outcome.text);
        if (!outcome.isDone())
            return whole;
        run.first = outcome;
        run.question.done = whole.text;
        // Half of it is not what was to be printed.
        whole.kind = Kind::Canceled;
        whole.text = textOfHalf({});
    } else {
        whole.text = textOfHalf(outcome.text);
        // An earlier try of the other sides that has got there is as good as this one.
        if (outcome.isDone() || outcome.kind == Kind::AlreadyThere)
            return whole;
        run.question.problem = tr("Other sides: %1").arg(outcome.text);
        // The sheets lie in the tray, and half of them would be lost. Their other sides belong to
        // what is printed, not to what the printer would do by now; whoever sees a reason not to
        // go on takes them out.
        run.goesOn = run.goesOn || outcome.kind == Kind::PrinterChanged;
        if (outcome.kind == Kind::PrinterChanged)
            run.question.problem =
                tr("%1 %2").arg(run.question.problem,
                                tr("The sheets can stay in the tray: the other sides are printed "
                                   "with the settings of the first ones."));
        if (outcome.kind == Kind::Unknown || outcome.kind == Kind::Stopped)
            run.earlierJob = outcome.job;
        else if (outcome.job > 0)
            run.earlierJob = 0;
    }
    if (isOver)
        return whole;
    run.isSecond = true;
    askToTurn();
    return std::nullopt;
}

// What became of both halves. `other`: of the other sides; empty where they were not tried.
QString PrintTask::textOfHalf(const QString &other) const
{
    return tr("First sides: %1 Other sides: %2")
        .arg(m_run.hand->first.text, other.isEmpty() ? tr("Not printed.") : other);
}

void PrintTask::askToTurn()
{
    enter(Phase::Turning);
    if (m_phase != Phase::Turning)
        return;
    m_face.askToTurn(m_run.hand->question, [task = QPointer(this)](bool arePutBack) {
        if (!task || task->m_phase != Phase::Turning)
            return;
        // Later: whoever has asked is still at it.
        QMetaObject::invokeMethod(
            task,
            [task, arePutBack] {
                if (task->m_phase != Phase::Turning)
                    return;
                arePutBack ? task->startPass() : task->endBetweenPasses(Phase::Ready);
            },
            Qt::QueuedConnection);
    });
}

// Only the first sides are there, and no job runs.
void PrintTask::endBetweenPasses(Phase next)
{
    const QString problem = m_run.hand->question.problem;
    m_run.outcome = m_run.hand->first;
    m_run.outcome.kind = JobOutcome::Kind::Canceled;
    m_run.outcome.text =
        problem.isEmpty() ? textOfHalf({}) : tr("%1 %2").arg(m_run.hand->question.done, problem);
    m_run.hand.reset();
    enter(next);
    Q_EMIT jobEnded(m_run.outcome);
    if (m_phase == Phase::Ready)
        takeNext();
}

} // namespace corvana
