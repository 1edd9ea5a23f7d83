#include "dialog/task/TaskHistory.h"

#include <algorithm>
#include <utility>

#include <QTimer>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/OrderOfPages.h"
#include "dialog/task/PrintTask.h"
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

} // namespace

TaskHistory::TaskHistory(PrintTask &task) : m_task(task)
{
    connect(&m_task, &PrintTask::documentsChanged, this, &TaskHistory::changed);
}

bool TaskHistory::isReady() const
{
    return m_task.phase() == PrintTask::Phase::Ready;
}

void TaskHistory::begin(const SettingsBase &base)
{
    m_base = base;
    const TaskSettings now = m_task.settingsNow();
    m_touched.clear();
    if (!m_steps.hasBegun())
        m_steps.begin(now);
    else if (idOf(m_steps.present().printer) != idOf(now.printer))
        m_steps.add(now, {tr("Printer"), {}});
    else
        m_steps.replacePresent(now); // its options may be others by now
    Q_EMIT changed();
}

void TaskHistory::setBase(const SettingsBase &base)
{
    m_base = base;
    Q_EMIT changed();
}

QStringList TaskHistory::changedSettings() const
{
    if (!isReady())
        return {};
    QStringList names = differences(m_base.settings, m_task.settingsNow(), *m_task.opened());
    // They belong to this job alone, and no base has them.
    names.removeAll(kCopiesSetting);
    names.removeAll(kPageRangesAttribute);
    return names;
}

bool TaskHistory::canUndo() const
{
    return isReady() && m_steps.canUndo();
}

bool TaskHistory::canRedo() const
{
    return isReady() && m_steps.canRedo();
}

QString TaskHistory::undoText() const
{
    const QString name = m_steps.undoName();
    return name.isEmpty() ? tr("Undo") : tr("Undo %1").arg(name);
}

QString TaskHistory::redoText() const
{
    const QString name = m_steps.redoName();
    return name.isEmpty() ? tr("Redo") : tr("Redo %1").arg(name);
}

void TaskHistory::undo()
{
    recordStep();
    if (!canUndo())
        return;
    const std::shared_ptr<const PresetStep> preset = m_steps.undoStep().preset;
    const QString text = undoText(); // of what was recorded just now as well
    goTo(m_steps.undo());
    if (preset)
        m_task.presets().stepBack(*preset);
    Q_EMIT stepped(text);
}

void TaskHistory::redo()
{
    recordStep();
    if (!canRedo())
        return;
    const std::shared_ptr<const PresetStep> preset = m_steps.redoStep().preset;
    const QString text = redoText();
    goTo(m_steps.redo());
    if (preset)
        m_task.presets().stepForward(*preset);
    Q_EMIT stepped(text);
}

QString TaskHistory::backText() const
{
    return tr("Back to %1").arg(m_base.name);
}

QString TaskHistory::baseText(const QString &name) const
{
    if (!m_task.opened())
        return {};
    const OpenedPrinter &opened = *m_task.opened();
    return valueText(name, valuesOf(m_base.settings, opened).value(name), opened);
}

void TaskHistory::resetSettings(const QStringList &names)
{
    if (!isReady() || names.isEmpty())
        return;
    recordStep();
    Q_EMIT m_task.unsaid();
    OpenedPrinter &opened = *m_task.opened();
    JobSettings &settings = m_task.settings();
    const QMap<QString, QString> base = valuesOf(m_base.settings, opened);
    QList<JobOption> options;
    const QList<JobOption> former = settings.attributes();
    const QStringList all = withOtherForm(names);
    for (const QString &name : all) {
        settings.keepTakenAlong(name);
        if (ppdOption(opened.session->ppd(), name) && base.contains(name))
            options += JobOption{name, base.value(name)};
        else
            settings.setAttribute(name, base.value(name),
                                  usualValueOf(name, settings.attributes(), opened));
    }
    for (const OptionChoice &along : takeOrderAlong(former, settings, opened))
        options += JobOption{along.keyword, along.choice};
    const OptionOutcome outcome =
        applyOptions(options, *opened.session, opened.jobValues, *opened.panels);
    m_touched = names;
    m_task.showSettings();
    recordStep(names.size() == 1 ? settingTitle(names.constFirst(), opened) : tr("Reset"));
    if (!outcome.ok())
        Q_EMIT m_task.said({TaskMessage::Kind::Problem,
                            tr("This cannot go back:\n%1").arg(outcome.problems.join(u'\n'))});
}

// The very state of the base, with what is stored in it and not in force.
void TaskHistory::resetAll()
{
    if (!isReady())
        return;
    if (m_base.settings.ppdHash != m_task.opened()->fetched.ppd->hash)
        return resetSettings(changedSettings());
    recordStep();
    Q_EMIT m_task.unsaid();
    m_task.restoreSettings(stateOfBase());
    recordStep(tr("Reset"));
}

// With the documents, copies and pages of now, which no base has.
TaskSettings TaskHistory::stateOfBase() const
{
    TaskSettings state = m_base.settings;
    state.documents = m_task.documents();
    state.job = m_task.settings();
    state.job.takeAttributesOf(m_base.settings.job);
    return state;
}

void TaskHistory::goTo(const TaskSettings &state)
{
    Q_EMIT m_task.unsaid();
    m_task.restoreSettings(TaskSettings(state));
    // With options of another time it is what this printer has of it, which is no step of its own.
    if (isReady() && m_steps.present().ppdHash != m_task.settingsNow().ppdHash)
        m_steps.replacePresent(m_task.settingsNow());
    m_touched.clear();
    Q_EMIT changed();
}

void TaskHistory::endStep()
{
    // What has been typed or moved up to now still belongs to it.
    recordStep();
    m_steps.endStep();
}

void TaskHistory::noteTouched(const QString &name)
{
    if (isReady() && !m_touched.contains(name))
        m_touched += name;
    recordSoon();
}

// When what is going on now has been told to all panels.
void TaskHistory::recordSoon()
{
    if (std::exchange(m_willRecord, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_willRecord = false;
        recordStep();
    });
}

// Panels may say anything on the way: a box that is ticked and disabled asks for on and off again
// at each save.
bool TaskHistory::recordStep(const QString &name)
{
    const auto canBeRecorded = [this] {
        return m_task.opened() && isReady() && !m_task.opened()->panels->isBusy();
    };
    // The pages of a printer that is being closed still say that a field was left.
    if (!canBeRecorded())
        return false; // it is recorded when the panel is done
    m_task.opened()->panels->deliverPending();
    if (!canBeRecorded())
        return false;
    const TaskSettings now = m_task.settingsNow();
    const QStringList touched = std::exchange(m_touched, {});
    if (!m_steps.hasBegun() || now == m_steps.present())
        return false;
    const QStringList names = differences(m_steps.present(), now, *m_task.opened());
    if (names.isEmpty()) {
        m_steps.replacePresent(now); // nothing of it is in the job
        return false;
    }
    const bool goesOn = name.isEmpty() && names.size() == 1 &&
                        isTypedOrMoved(names.constFirst(), now, *m_task.opened());
    m_steps.add(now, {name.isEmpty() ? nameOfStep(names, touched) : name, names, goesOn});
    Q_EMIT changed();
    return true;
}

// They are settings of no printer, so that this is a step also while another one is asked for, and
// the step of that other printer comes after it.
void TaskHistory::recordDocuments(const QList<Document> &documents)
{
    recordStep(); // what was typed just now
    if (!m_steps.hasBegun())
        return;
    TaskSettings state = m_steps.present();
    state.documents = documents;
    m_steps.add(state, {tr("Documents"), {}});
}

void TaskHistory::addDocuments(const QList<Document> &documents)
{
    recordStep(); // what was typed just now
    m_steps.addToAll(documents);
}

void TaskHistory::notePreset(const PresetStep &step)
{
    m_steps.notePreset(std::make_shared<const PresetStep>(step));
}

void TaskHistory::forgetIfEmpty()
{
    if (m_steps.count() == 0)
        m_steps.clear();
}

// What was set first made the rules set the others.
QString TaskHistory::nameOfStep(const QStringList &changed, const QStringList &touched) const
{
    const auto isFirst = [&](const QString &name) { return changed.contains(name); };
    const auto first = std::find_if(touched.cbegin(), touched.cend(), isFirst);
    const QString name = first == touched.cend() ? changed.constFirst() : *first;
    if (const QString title = settingTitle(name, *m_task.opened()); !title.isEmpty())
        return title;
    const int panel = m_task.opened()->panels->visiblePanel();
    return panel < 0 ? tr("Setting") : m_task.opened()->panels->panels().at(panel)->panelName();
}

} // namespace corvana
