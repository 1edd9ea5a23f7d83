#include "dialog/task/PrintTask.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/TaskHistory.h"

#include <QFileInfo>
#include <QTimer>

#include "dialog/job/ResultFormat.h"
#include "dialog/session/LockedValues.h"
#include "dialog/session/OptionNames.h"
#include "dialog/task/TaskPresets.h"

namespace corvana {

namespace {

// How often it is looked whether the user is done with what keeps the printer. Units: milliseconds.
constexpr int kPatience = 200;

} // namespace

void PrintTask::connectSource()
{
    connect(&m_source, &PrinterSource::ready, this, &PrintTask::take);
    connect(&m_source, &PrinterSource::checked, this, &PrintTask::printerChecked);
    connect(&m_source, &PrinterSource::failed, this, &PrintTask::printerFailed);
    connect(&m_source, &PrinterSource::betterQueueFound, this, &PrintTask::offerQueue);
    connect(&m_source, &PrinterSource::listChanged, this, &PrintTask::takeExpectedPrinter);
}

void PrintTask::start()
{
    m_chosen.canBeAnother = true;
    m_looks.documents.hold(); // until there is something to see
    m_looks.documents.check(m_request.documents);
    choosePrinter(m_source.first());
    m_chosen.deliberately = !m_source.firstIsProvisional();
    m_coming.await(m_request.toRead, ComingDocuments::AskedBy::Request);
    m_coming.proceed();
}

void PrintTask::startUnattended()
{
    m_chosen.deliberately = true;
    m_looks.documents.check(m_request.documents);
    m_source.openWanted();
}

void PrintTask::choosePrinter(const Printer &printer)
{
    if (!m_baseline.coming) // else the history is there already
        m_history->recordStep();
    rememberSession();
    close();
    if (m_baseline.coming && idOf(m_baseline.coming->printer) != idOf(printer))
        m_baseline.coming.reset();
    Q_EMIT unsaid();     // and with it an offer that was meant for the other printer
    m_coming.sayAgain(); // of whichever printer
    m_chosen.printer = printer;
    m_chosen.deliberately = true;
    m_chosen.next.reset();
    m_chosen.problem = {};
    m_phase = Phase::Fetching;
    Q_EMIT phaseChanged(m_phase); // also while another printer is being asked for
    Q_EMIT printerChanged();
    m_source.open(printer);
    if (m_phase == Phase::Fetching)
        Q_EMIT printerChanged(); // from here on it is one of printers()
}

void PrintTask::retry()
{
    if (m_phase == Phase::Missing) {
        m_chosen.problem = {};
        enter(Phase::Fetching);
        Q_EMIT printerChanged();
    }
    m_source.retry();
}

bool PrintTask::isPrinting() const
{
    return m_phase == Phase::Asking || m_phase == Phase::Printing || m_phase == Phase::Canceling ||
           m_phase == Phase::Turning || m_phase == Phase::Leaving;
}

// A printer is not taken away while it prints or one of its panels is at work.
void PrintTask::take(const FetchedPrinter &ready)
{
    if (m_phase == Phase::Ended)
        return;
    if (m_opened && (isPrinting() || m_face.userIsBusy())) {
        m_chosen.next = ready;
        // A job that runs takes it up when it has ended.
        if (!m_run.job)
            QTimer::singleShot(kPatience, this, &PrintTask::takeNext);
        return;
    }
    m_chosen.next.reset();
    const bool again = m_opened != nullptr;
    rememberSession(&ready);
    open(ready);
    if (again && m_opened)
        Q_EMIT said({.text = tr("The options of the printer have changed at its server; yours were "
                                "kept."),
                     .canWait = true});
}

void PrintTask::takeNext()
{
    if (m_chosen.next && !m_run.job)
        take(FetchedPrinter(*m_chosen.next));
}

void PrintTask::open(const FetchedPrinter &ready)
{
    close();
    // Faces build their pages when they hear of it, those of a printer that comes before the panels
    // of the last one did as well.
    if (m_phase == Phase::Opened)
        m_phase = Phase::Fetching;
    m_chosen.printer = ready.printer;
    Q_EMIT printerChanged();
    const Memory memory = m_memory.value(idOf(m_chosen.printer));
    QStringList lost;
    const auto prepare = [&](OpenedPrinter &opened) {
        lock(opened);
        m_baseline.opened = opened.session->snapshot();
        m_memory[idOf(ready.printer)].opened.insert(ready.ppd->hash, m_baseline.opened);
        if (memory.session)
            lost = restoreLeft(*memory.session, ready.ppd->hash, *opened.session);
        // What panels had stored was stored before there was a lock, or another one.
        putBackLockedValues(*opened.session, opened.jobValues);
        if (memory.session)
            m_baseline.left = opened.session->snapshot();
    };
    m_opened = openPrinter(ready, m_request.bundleRoots, m_face.alerts(), &m_chosen.problem.text,
                           prepare, &m_source.ppds());
    if (!m_opened) {
        m_chosen.problem.brief = m_chosen.problem.text;
        enter(Phase::Missing);
        Q_EMIT printerChanged();
        return;
    }
    connect(m_opened->panels.get(), &PanelHost::settled, this, &PrintTask::settled);
    connect(m_opened->session.get(), &PpdSession::changed, m_history.get(),
            &TaskHistory::noteTouched);
    connect(m_opened->panels.get(), &PanelHost::shownValuesChanged, m_history.get(),
            &TaskHistory::recordSoon);
    // A panel is asked for what it shows when it is done with what it is doing.
    connect(m_opened->panels.get(), &PanelHost::shownValuesChanged, this, &PrintTask::showColors,
            Qt::QueuedConnection);
    m_chosen.problem = {};
    m_settings.setLocks(m_opened->session->locks());
    // A face may show the copies before the panels come up, and shows as many as are printed.
    m_settings.setMostCopies(mostCopiesOf(*m_opened));
    proposeOutput();
    enter(Phase::Opened);
    if (!m_opened->panelProblem.isEmpty())
        say(TaskMessage::Kind::Problem,
            tr("The printer's own settings are missing: %1").arg(m_opened->panelProblem));
    if (!lost.isEmpty())
        say(TaskMessage::Kind::Problem, lostText(lost));
}

void PrintTask::setOutput(const QString &path, bool confirmed)
{
    if (path != m_output.path || confirmed)
        m_output = {path, m_output.toFile, confirmed, m_output.proposed};
}

// Gives the name that nobody has chosen the ending of what this printer's filters yield.
void PrintTask::proposeOutput()
{
    if (m_output.proposed.isEmpty() || m_output.path != m_output.proposed)
        return;
    const QString suffix = resultSuffix(m_opened->session->ppd());
    const QFileInfo former(m_request.output);
    if (QFileInfo(m_output.path).suffix() == suffix)
        return;
    m_output.path = m_output.proposed =
        freeResultName(former.path(), former.completeBaseName(), suffix);
    Q_EMIT outputProposed();
}

// The panels delete their views, so a face lets go of its pages only afterwards.
void PrintTask::close()
{
    m_sheets.cancel();
    m_preview = {};
    if (!m_opened)
        return;
    m_settings.leavePrinter();
    // Counts where the options of the printer that is left had asked for copies.
    m_settings.askForCopies(m_request.copies, JobSettings::By::Program);
    m_opened.reset();
    settingsAffectColors();
    Q_EMIT printerClosed();
}

// Keeps what the user has set, so that it comes back with the printer. `next` is what the same
// printer is opened with now, if it is.
void PrintTask::rememberSession(const FetchedPrinter *next)
{
    if (m_phase != Phase::Ready)
        return;
    m_face.finishEditing(); // what is being typed counts as well
    // So does what a panel has not saved yet, such as a slider that was moved: one that is left
    // saves.
    m_opened->panels->visit(-1);
    // What was asked for on the command line is the user's as well; with the same options it is
    // asked for anew.
    const bool asksAnew = next && next->ppd->hash == m_opened->fetched.ppd->hash;
    if (isUntouched() && (m_request.options.isEmpty() || asksAnew))
        return;
    QList<JobOption> attributes = m_settings.attributesOfOthers();
    attributes.removeIf(
        [](const JobOption &option) { return option.name == kPageRangesAttribute; });
    LeftSession left{m_baseline.opened, m_opened->session->snapshot(), m_opened->fetched.ppd->hash,
                     attributes};
    const JobSettings::By by = m_settings.copiesAskedForBy();
    if (by == JobSettings::By::Queue || by == JobSettings::By::UserQueues ||
        by == JobSettings::By::Policy)
        left.copies = m_settings.copiesAskedFor();
    left.chosen = m_settings.chosenAttributes();
    left.takenAlong = m_settings.takenAlong();
    Memory &memory = m_memory[idOf(m_chosen.printer)];
    memory.session = left;
    memory.base = m_history->base();
    memory.kept = std::make_shared<const KeptSettings>(presets().kept());
}

// Whether nothing would be lost if another printer took the place of this one. Copies and pages go
// along.
bool PrintTask::isUntouched() const
{
    return m_phase != Phase::Ready || (m_opened->session->snapshot() == m_baseline.started &&
                                       m_settings.chosenAttributes() == m_baseline.chosen);
}

void PrintTask::takeExpectedPrinter()
{
    if (m_chosen.deliberately || m_run.job || m_phase == Phase::Ended || !isUntouched())
        return;
    // The list may have nothing more to say afterwards.
    if (m_face.userIsBusy() || isPrinting()) {
        QTimer::singleShot(kPatience, this, &PrintTask::takeExpectedPrinter);
        return;
    }
    // The first printer was there for want of a better one.
    const std::optional<Printer> expected = m_source.expected();
    const bool complete = m_source.queues().state() == QueueList::State::Known;
    if (expected && (complete || expected->isDefault)) {
        // Where the user has done something, such as to the documents, it is a step like any other:
        // nobody loses what can be taken back.
        m_history->forgetIfEmpty();
        choosePrinter(*expected);
    }
}

void PrintTask::printerChecked(const FetchedPrinter &checked)
{
    // Asked for once more, because it could not be opened, and its options are what they were.
    if (m_phase == Phase::Fetching)
        return take(checked);
    m_chosen.printer = checked.printer;
    if (m_opened)
        m_chosen.problem = {}; // it was the server's, which answers
    // What comes next has its own words for it.
    if (m_opened && !m_chosen.next)
        setFetched(checked, *m_opened);
    Q_EMIT printerChanged();
}

void PrintTask::printerFailed(const QString &problem, const QString &brief)
{
    if (m_phase == Phase::Ended)
        return;
    m_chosen.problem = {problem, brief};
    if (m_chosen.printer.name.isEmpty())
        m_chosen.printer = m_source.asked(); // whose name nobody had to say
    if (!m_opened)
        enter(Phase::Missing);
    Q_EMIT printerChanged();
}

void PrintTask::offerQueue(const Printer &printer)
{
    if (isPrinting())
        return; // something that matters more is being said
    Q_EMIT said(
        {TaskMessage::Kind::Information,
         tr("The queue “%1” leads to the same printer, and has pages with all of its settings.")
             .arg(printer.description),
         tr("Use “%1”").arg(printer.description), [this, printer] { choosePrinter(printer); },
         true});
}

} // namespace corvana
