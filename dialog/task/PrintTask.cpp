#include "dialog/task/PrintTask.h"

#include <utility>

#include <QPointer>

#include "dialog/job/PageChoice.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/session/Summary.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/Collation.h"
#include "dialog/task/OrderOfPages.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/SavedAsPdf.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/StartValues.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "dialog/text/TextCheck.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

namespace {

// How often it is looked whether documents that have changed can be looked at. Units: milliseconds.
constexpr int kUntilReady = 1000;

} // namespace

PrintTask::PrintTask(PrintRequest request, TaskFace &face, QObject *parent)
    : QObject(parent), m_request(std::move(request)), m_face(face),
      m_credentials(CredentialStore::create()),
      m_source({m_request.printers, m_request.wantedPrinter, m_request.bundleRoots,
                whyNotOffered(m_request)},
               ServerContext{m_request.server, m_credentials}),
      m_output{m_request.output, m_request.outputWasNamed, m_request.outputWasNamed,
               m_request.outputWasNamed ? QString() : m_request.output}
{
    using By = JobSettings::By;
    m_settings.askForCopies(m_request.copies,
                            m_request.copiesWereNamed ? By::CommandLine : By::Program);
    if (m_request.credentials)
        m_credentials->giveInAdvance(*m_request.credentials);
    m_history = std::make_unique<TaskHistory>(*this);
    m_presets = std::make_unique<TaskPresets>(*this);
    connectSource();
    connect(&m_sheets, &SheetCounter::finished, this, &PrintTask::sheetsKnown);
    connect(&m_sheets, &SheetCounter::firstKnown, this, [this] {
        if (m_run.awaits != Run::Awaits::Sheets)
            Q_EMIT sheetsCounted();
    });
    connect(&m_coming, &ComingDocuments::came, this, &PrintTask::takeComing);
    connect(&m_coming, &ComingDocuments::said, this, &PrintTask::said);
    connect(&m_coming, &ComingDocuments::unsaid, this, &PrintTask::unsaid);
    m_looks.textPatience.setSingleShot(true);
    connect(&m_looks.textPatience, &QTimer::timeout, this, &PrintTask::settleTexts);
    connect(&m_looks.documents, &DocumentChecks::changed, this, &PrintTask::documentsLookedAt);
    connect(&m_looks.documents, &DocumentChecks::outdated, this, [this] {
        // A job is that of its own moment, and what is set comes to a printer that is ready.
        if (m_phase == Phase::Ready)
            setDocuments(m_request.documents);
        else if (m_phase != Phase::Ended)
            QTimer::singleShot(kUntilReady, &m_looks.documents, &DocumentChecks::outdated);
    });
    if (m_request.documentPassword)
        m_looks.documents.addPassword(*m_request.documentPassword);
    if (!m_face.canAsk())
        return;
    m_credentials->setQuestioner(
        [this](const CredentialsQuestion &question, const CredentialStore::Answer &answer) {
            m_source.questionPut();
            m_face.askCredentials(question, [this, answer](std::optional<Credentials> given) {
                m_source.questionAnswered();
                answer(std::move(given));
            });
        });
}

PrintTask::~PrintTask()
{
    m_credentials->setQuestioner(nullptr);
}

void PrintTask::enter(Phase phase)
{
    if (std::exchange(m_phase, phase) != phase)
        Q_EMIT phaseChanged(phase);
    // What a panel's alert has changed while a job was made can be taken back as well.
    if (m_phase == Phase::Ready)
        m_history->recordSoon();
}

void PrintTask::say(TaskMessage::Kind kind, const QString &text)
{
    Q_EMIT said({kind, text});
}

void PrintTask::bringUp()
{
    // Beside the panels, which take as long to come up as that process does.
    m_looks.documents.begin();
    if (m_phase != Phase::Opened)
        return;
    lookForMissingCharacters();
    const QList<Refusal> refusals = bringPanelsUp();
    noteMissingPages();
    if (!m_memory.value(idOf(m_chosen.printer)).session)
        m_baseline.opened = m_opened->session->snapshot();
    applyStartOptions();
    m_baseline.started = m_opened->session->snapshot();
    m_baseline.chosen = m_settings.chosenAttributes();
    if (m_phase != Phase::Opened)
        return; // interrupted, while an alert of a panel was waiting for its answer
    beginHistory();
    enter(Phase::Ready);
    presets().begin();
    showSettings();
    if (m_chosen.canBeAnother)
        m_looks.documents.follow();
    for (const Refusal &refusal : refusals)
        sayRefusal(refusal);
    sayStartProblems();
    for (const Refusal &refusal : refusals)
        m_chosen.unset += refusalText(refusal, *m_opened->session);
    if (!m_looks.documents.isDone())
        return;
    sayOfDocuments();
    askForPasswords();
}

// Answers what the panels proposed in vain while they came up: nobody could be told yet.
QList<Refusal> PrintTask::bringPanelsUp()
{
    const QSignalBlocker blocker(m_opened->panels.get());
    m_opened->panels->bringUp();
    return m_opened->session->takeRefusals();
}

// Takes what the printer starts with: what the user had set before, else what a job starts with.
void PrintTask::applyStartOptions()
{
    using By = JobSettings::By;
    m_chosen.unset.clear();
    m_chosen.ignored.clear();
    m_baseline.asked.reset();
    // What happens on the way is part of the outcome, not an event of the user's.
    const QSignalBlocker blocker(m_opened->panels.get());
    const Memory &memory = m_memory[idOf(m_chosen.printer)];
    if (memory.session) {
        if (memory.kept)
            presets().comeBack(*memory.kept);
        m_settings.addAttributes(memory.session->attributes);
        m_settings.restoreChosenAttributes(memory.session->chosen);
        m_settings.restoreTakenAlong(memory.session->takenAlong);
        takeInevitableDefaults();
        if (memory.session->copies)
            m_settings.askForCopies(*memory.session->copies, By::UserQueues);
        const SessionSnapshot &opened = memory.session->opened;
        if (memory.session->ppdHash == m_opened->fetched.ppd->hash)
            m_baseline.opened = opened;
        else // its choices are those of other options; what panels wrote is not the user's either
            m_baseline.opened.entries.insert(opened.entries);
        // New panels judge the paper for the first time, and take a plain medium for nobody's wish.
        m_opened->panels->restoreTo(m_baseline.left);
        m_opened->panels->restoreAll();
    } else {
        const StartOutcome started = applyStartValues(m_request, *m_opened, m_settings);
        m_chosen.unset = started.unset;
        m_chosen.ignored = started.ignored;
        m_baseline.asked = started.before;
        m_baseline.jobAsked = started.settingsBefore;
        presets().start(started);
    }
    m_chosen.ignored += policyProblems();
    // Whoever chooses an order of pages here has room made for it; these were asked for together.
    m_chosen.unset +=
        lockedCopies() + takeMostCopies() + problemsOfOrder(m_settings, *m_opened->session);
    keepLocks();
}

// What the queue adds to each job by now, whatever was so when it was left.
void PrintTask::takeInevitableDefaults()
{
    QList<JobOption> chosen = m_settings.chosenAttributes();
    const QList<JobOption> defaults = inevitableDefaults(*m_opened);
    for (const JobOption &option : defaults) {
        chosen.removeIf(
            [&](const JobOption &one) { return one.name == option.name && one.value.isNull(); });
        m_settings.restoreChosenAttributes(chosen);
        if (m_settings.attribute(option.name).isNull())
            m_settings.addAttributes({option});
    }
}

// Everything that is not as somebody wanted it, in one message: a face shows one.
void PrintTask::sayStartProblems()
{
    for (const QString &problem : std::as_const(m_chosen.ignored))
        Q_EMIT ignored(problem);
    QStringList texts;
    if (!m_chosen.unset.isEmpty())
        texts += tr("What was asked for cannot be set:\n%1").arg(m_chosen.unset.join(u'\n'));
    const QStringList lost = std::exchange(m_baseline.lost, {});
    if (!lost.isEmpty())
        texts += lostText(lost);
    if (!m_chosen.ignored.isEmpty())
        texts += tr("Not everything that is set for this printer could be taken:\n%1")
                     .arg(m_chosen.ignored.join(u'\n'));
    TaskMessage message{m_chosen.unset.isEmpty() && lost.isEmpty() ? TaskMessage::Kind::Information
                                                                   : TaskMessage::Kind::Problem};
    // Settings that nobody has chosen for this job are named, with the way out of them.
    const bool isLeft = m_memory.value(idOf(m_chosen.printer)).session.has_value();
    if (!isLeft && presets().selected().kind == SelectedPreset::Kind::LastUsed) {
        texts.prepend(tr("As in your last job."));
        message.offer = tr("Use Defaults");
        message.take = [this] { presets().useDefaults(); };
    }
    message.text = texts.join(u'\n');
    if (!texts.isEmpty())
        Q_EMIT said(message);
}

QStringList PrintTask::takeMostCopies()
{
    using By = JobSettings::By;
    m_settings.setMostCopies(mostCopiesOf(*m_opened));
    if (!m_settings.asksForTooMany())
        return {};
    const QString problem = savesAsPdf()
                                ? tr("A PDF file is saved once: there are no copies of it.")
                                : tr("The printer prints at most %1 copies at once, not %2.")
                                      .arg(QString::number(m_settings.mostCopies()),
                                           QString::number(m_settings.copiesAskedFor()));
    switch (m_settings.copiesAskedForBy()) {
    case By::Options:
    case By::CommandLine:
        return {problem};
    case By::Queue:
    case By::UserQueues:
    case By::Policy:
    case By::LastUsed: // keeps no copies
    case By::Preset:
        m_chosen.ignored += problem;
        break;
    case By::Program:
    case By::User:
        say(TaskMessage::Kind::Information, problem);
        break;
    }
    return {};
}

QList<SummaryLine> PrintTask::summaryOfSettings()
{
    QList<JobOption> attributes = jobAttributes();
    if (passesFilesOn())
        return summaryOfPassedOn(attributes, m_settings.copies());
    attributes.removeIf([&](const JobOption &one) {
        // The same in other letters, for a queue that writes it so, is said already.
        const bool isSaid = nameInOneCase(one.name, m_opened->session->ppd()) != one.name;
        return isSaid || !hasEffectOn(m_request.documents, one);
    });
    QHash<QString, QString> remarks = remarksOn(attributes, *m_opened, m_request.documents);
    remarks.insert(remarksOnCopies(m_settings.attributes(), *m_opened, printsTo()));
    return sessionSummary(*m_opened->session, *m_opened->panels, m_settings.copies(), attributes,
                          remarks);
}

bool PrintTask::passesFilesOn() const
{
    return m_opened && corvana::passesFilesOn(*m_opened, m_settings.attributes());
}

bool PrintTask::savesAsPdf() const
{
    return m_opened && savesPdf(*m_opened);
}

// Without its controls a panel would print other choices than with them.
void PrintTask::noteMissingPages()
{
    QStringList problems = takeInterfaceProblems();
    const QList<QPointer<QWidget>> &views = m_opened->panels->views();
    if (problems.isEmpty()) {
        for (int i = 0; i < views.size(); ++i) {
            if (!views.at(i))
                problems += tr("“%1” has nothing to show.")
                                .arg(m_opened->panels->panels().at(i)->panelName());
        }
    }
    if (problems.isEmpty())
        return;
    m_opened->panelProblem = problems.join(u'\n');
    say(TaskMessage::Kind::Problem,
        tr("A page of the printer's settings cannot be shown: %1").arg(m_opened->panelProblem));
}

void PrintTask::settled()
{
    // While the job is being made, finish() takes them: it must not be printed without what a panel
    // has proposed.
    const QList<Refusal> refusals =
        m_phase == Phase::Asking ? QList<Refusal>() : m_opened->session->takeRefusals();
    for (const Refusal &refusal : refusals)
        sayRefusal(refusal);
    sayLocked(keepLocks());
    // Showing the settings asks the panels, which save again: only another state is news.
    if (m_opened->session->snapshot() != m_baseline.shown || !refusals.isEmpty())
        showSettings();
    m_history->recordSoon();
}

void PrintTask::showSettings()
{
    Q_EMIT settingsChanged();
    m_baseline.shown = m_opened->session->snapshot();
    settingsAffectColors();
}

} // namespace corvana
