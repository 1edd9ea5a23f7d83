#include "dialog/task/PrintTask.h"

#include <algorithm>
#include <utility>

#include <QTimer>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/LeftSession.h"
#include "dialog/task/OrderOfPages.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/TaskPresets.h"
#include "platform/pde/PDEPanel.h"

namespace corvana {

namespace {

// A tray and the feeding by hand take each other's marks away, and go back together.
QStringList withOtherForm(QStringList names)
{
    const bool isTray = names.contains(kInputSlotOption);
    if (isTray != names.contains(kManualFeedOption))
        names += isTray ? kManualFeedOption : kInputSlotOption;
    return names;
}

// A printer whose options are others by now takes what it has still. `then` and `opened`: what was
// marked when it was opened with those, and with these.
SessionSnapshot withOptionsOfNow(const TaskSettings &settings, const SessionSnapshot &then,
                                 const SessionSnapshot &opened, const QByteArray &hash,
                                 PpdSession &session, QStringList *lost)
{
    if (settings.ppdHash == hash)
        return settings.session;
    session.restore(opened);
    *lost = restoreLeft(
        {.opened = then, .left = settings.session, .ppdHash = settings.ppdHash, .attributes = {}},
        hash, session);
    return session.snapshot();
}

} // namespace

TaskSettings PrintTask::settingsNow() const
{
    TaskSettings now{m_chosen.printer, m_opened->fetched.ppd->hash, m_opened->session->snapshot(),
                     m_settings, m_request.documents};
    const QVariantMap entries = m_opened->panels->shownEntries();
    if (entries == now.session.entries)
        return now;
    // A panel that is seen shows all of its values, also those that nobody has moved or that stand
    // for nothing in a job. Only what says something else in the job is a setting of the user's.
    TaskSettings shown = now;
    shown.session.entries = entries;
    const bool isOfAPlugInWithoutValues = !m_opened->jobValues;
    return isOfAPlugInWithoutValues || !differences(now, shown, *m_opened).isEmpty() ? shown : now;
}

void PrintTask::restoreSettings(const TaskSettings &settings)
{
    if (m_phase != Phase::Ready)
        return;
    m_baseline.coming = settings;
    if (idOf(settings.printer) != idOf(m_chosen.printer))
        return choosePrinter(settings.printer);
    takeComingSettings();
    showSettings();
    if (const QStringList lost = std::exchange(m_baseline.lost, {}); !lost.isEmpty())
        say(TaskMessage::Kind::Problem, lostText(lost));
}

// The settings that were asked for, when the printer that they are for is open.
void PrintTask::takeComingSettings()
{
    const std::optional<TaskSettings> settings = std::exchange(m_baseline.coming, std::nullopt);
    if (!settings || idOf(settings->printer) != idOf(m_chosen.printer))
        return;
    const QHash<QByteArray, SessionSnapshot> opened =
        m_memory.value(idOf(settings->printer)).opened;
    const bool isKnown = opened.contains(settings->ppdHash);
    if (isKnown || settings->ppdHash == m_opened->fetched.ppd->hash) {
        m_opened->panels->restoreTo(withOptionsOfNow(*settings, opened.value(settings->ppdHash),
                                                     m_baseline.opened, m_opened->fetched.ppd->hash,
                                                     *m_opened->session, &m_baseline.lost));
        m_settings = settings->job;
        m_settings.setLocks(m_opened->session->locks());
        m_settings.setMostCopies(mostCopiesOf(*m_opened));
    }
    if (settings->documents != m_request.documents)
        setDocuments(settings->documents); // a password may be asked for
}

void PrintTask::setBase(const Base &base)
{
    m_baseline.base = base;
    Q_EMIT historyChanged();
}

// A printer has come up: the first one, another one, or the same with other options.
void PrintTask::beginHistory()
{
    const Memory memory = m_memory.value(idOf(m_chosen.printer));
    m_baseline.base = memory.session && memory.base ? *memory.base : presets().baseNow();
    // What was asked for with this job belongs to no preset, nor to where the printer starts.
    if (const auto asked = std::exchange(m_baseline.asked, std::nullopt)) {
        m_baseline.base.settings.session = *asked;
        m_baseline.base.settings.job.takeAttributesOf(m_baseline.jobAsked);
    }
    takeComingSettings();
    SettingsHistory &history = m_baseline.history;
    const TaskSettings now = settingsNow();
    m_baseline.touched.clear();
    if (!history.hasBegun())
        history.begin(now);
    else if (idOf(history.present().printer) != idOf(now.printer))
        history.add(now, {tr("Printer"), {}});
    else
        history.replacePresent(now); // its options may be others by now
    Q_EMIT historyChanged();
}

QStringList PrintTask::changedSettings() const
{
    if (m_phase != Phase::Ready)
        return {};
    QStringList changed = differences(m_baseline.base.settings, settingsNow(), *m_opened);
    // They belong to this job alone, and no base has them.
    changed.removeAll(kCopiesSetting);
    changed.removeAll(kPageRangesAttribute);
    return changed;
}

bool PrintTask::canUndo() const
{
    return m_phase == Phase::Ready && m_baseline.history.canUndo();
}

bool PrintTask::canRedo() const
{
    return m_phase == Phase::Ready && m_baseline.history.canRedo();
}

QString PrintTask::undoText() const
{
    const QString name = m_baseline.history.undoName();
    return name.isEmpty() ? tr("Undo") : tr("Undo %1").arg(name);
}

QString PrintTask::redoText() const
{
    const QString name = m_baseline.history.redoName();
    return name.isEmpty() ? tr("Redo") : tr("Redo %1").arg(name);
}

void PrintTask::undo()
{
    recordStep();
    if (!canUndo())
        return;
    const std::shared_ptr<const PresetStep> preset = m_baseline.history.undoStep().preset;
    const QString text = undoText(); // of what was recorded just now as well
    goTo(m_baseline.history.undo());
    if (preset)
        presets().stepBack(*preset);
    Q_EMIT stepped(text);
}

void PrintTask::redo()
{
    recordStep();
    if (!canRedo())
        return;
    const std::shared_ptr<const PresetStep> preset = m_baseline.history.redoStep().preset;
    const QString text = redoText();
    goTo(m_baseline.history.redo());
    if (preset)
        presets().stepForward(*preset);
    Q_EMIT stepped(text);
}

QString PrintTask::backText() const
{
    return tr("Back to %1").arg(m_baseline.base.name);
}

QString PrintTask::baseText(const QString &name) const
{
    if (!m_opened)
        return {};
    return valueText(name, valuesOf(m_baseline.base.settings, *m_opened).value(name), *m_opened);
}

void PrintTask::resetSettings(const QStringList &names)
{
    if (m_phase != Phase::Ready || names.isEmpty())
        return;
    recordStep();
    Q_EMIT unsaid();
    const QMap<QString, QString> base = valuesOf(m_baseline.base.settings, *m_opened);
    QList<JobOption> options;
    const QList<JobOption> former = m_settings.attributes();
    const QStringList all = withOtherForm(names);
    for (const QString &name : all) {
        m_settings.keepTakenAlong(name);
        if (ppdOption(m_opened->session->ppd(), name) && base.contains(name))
            options += JobOption{name, base.value(name)};
        else
            m_settings.setAttribute(name, base.value(name),
                                    usualValueOf(name, m_settings.attributes(), *m_opened));
    }
    for (const OptionChoice &along : takeOrderAlong(former, m_settings, *m_opened))
        options += JobOption{along.keyword, along.choice};
    const OptionOutcome outcome =
        applyOptions(options, *m_opened->session, m_opened->jobValues, *m_opened->panels);
    m_baseline.touched = names;
    showSettings();
    recordStep(names.size() == 1 ? settingTitle(names.constFirst(), *m_opened) : tr("Reset"));
    if (!outcome.ok())
        say(TaskMessage::Kind::Problem,
            tr("This cannot go back:\n%1").arg(outcome.problems.join(u'\n')));
}

// The very state of the base, with what is stored in it and not in force.
void PrintTask::resetAll()
{
    if (m_phase != Phase::Ready)
        return;
    if (m_baseline.base.settings.ppdHash != m_opened->fetched.ppd->hash)
        return resetSettings(changedSettings());
    recordStep();
    Q_EMIT unsaid();
    restoreSettings(stateOfBase());
    recordStep(tr("Reset"));
}

// With the documents, copies and pages of now, which no base has.
TaskSettings PrintTask::stateOfBase() const
{
    TaskSettings state = m_baseline.base.settings;
    state.documents = m_request.documents;
    state.job = m_settings;
    state.job.takeAttributesOf(m_baseline.base.settings.job);
    return state;
}

void PrintTask::goTo(const TaskSettings &state)
{
    Q_EMIT unsaid();
    restoreSettings(TaskSettings(state));
    // With options of another time it is what this printer has of it, which is no step of its own.
    if (m_phase == Phase::Ready && m_baseline.history.present().ppdHash != settingsNow().ppdHash)
        m_baseline.history.replacePresent(settingsNow());
    m_baseline.touched.clear();
    Q_EMIT historyChanged();
}

void PrintTask::endStep()
{
    // What has been typed or moved up to now still belongs to it.
    recordStep();
    m_baseline.history.endStep();
}

void PrintTask::noteTouched(const QString &name)
{
    if (m_phase == Phase::Ready && !m_baseline.touched.contains(name))
        m_baseline.touched += name;
    recordSoon();
}

// When what is going on now has been told to all panels.
void PrintTask::recordSoon()
{
    if (std::exchange(m_baseline.willRecord, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_baseline.willRecord = false;
        recordStep();
    });
}

// Whether there is a step. What one event has changed is found by comparing, whatever panels have
// said on the way: a box that is ticked and disabled asks for on and off again at each save.
bool PrintTask::recordStep(const QString &name)
{
    // The pages of a printer that is being closed still say that a field was left.
    if (!m_opened || m_phase != Phase::Ready || m_opened->panels->isBusy())
        return false; // it is recorded when the panel is done
    m_opened->panels->deliverPending();
    if (m_phase != Phase::Ready || m_opened->panels->isBusy())
        return false;
    SettingsHistory &history = m_baseline.history;
    const TaskSettings now = settingsNow();
    const QStringList touched = std::exchange(m_baseline.touched, {});
    if (!history.hasBegun() || now == history.present())
        return false;
    const QStringList changed = differences(history.present(), now, *m_opened);
    if (changed.isEmpty()) {
        history.replacePresent(now); // nothing of it is in the job
        return false;
    }
    const bool goesOn = name.isEmpty() && changed.size() == 1 &&
                        isTypedOrMoved(changed.constFirst(), now, *m_opened);
    history.add(now, {name.isEmpty() ? nameOfStep(changed, touched) : name, changed, goesOn});
    Q_EMIT historyChanged();
    return true;
}

// They are settings of no printer, so that this is a step also while another one is asked for, and
// the step of that other printer comes after it.
void PrintTask::recordDocuments(const QList<Document> &documents)
{
    recordStep();          // what was typed just now
    if (m_baseline.coming) // a step is being undone, and leads to another printer
        m_baseline.coming->documents = documents;
    SettingsHistory &history = m_baseline.history;
    if (!history.hasBegun())
        return;
    TaskSettings state = history.present();
    state.documents = documents;
    history.add(state, {tr("Documents"), {}});
}

// What was set first made the rules set the others.
QString PrintTask::nameOfStep(const QStringList &changed, const QStringList &touched) const
{
    const auto isFirst = [&](const QString &name) { return changed.contains(name); };
    const auto first = std::find_if(touched.cbegin(), touched.cend(), isFirst);
    const QString name = first == touched.cend() ? changed.constFirst() : *first;
    if (const QString title = settingTitle(name, *m_opened); !title.isEmpty())
        return title;
    const int panel = m_opened->panels->visiblePanel();
    return panel < 0 ? tr("Setting") : m_opened->panels->panels().at(panel)->panelName();
}

} // namespace corvana
