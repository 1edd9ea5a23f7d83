#include "dialog/task/TaskPresets.h"

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueuesFile.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/StartValues.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// "NAME" of the queue that a printer is; empty for one that is none.
QString queueOf(const Printer &printer)
{
    return printer.origin == PrinterOrigin::Queue ? queueOfInstance(printer.name) : QString();
}

} // namespace

InstanceDraft TaskPresets::elsewhere(const QString &name) const
{
    if (!m_task.opened())
        return {};
    const KnownInstances known = KnownInstances::read();
    const QString preset = presetName(name);
    return nameInstance(nameElsewhere(preset, known), *m_task.opened(), m_task.settings(), known,
                        preset);
}

QString TaskPresets::selectedElsewhere() const
{
    const QString queue = queueOf(m_task.printer());
    return m_kept.selected.kind == SelectedPreset::Kind::Preset && !queue.isEmpty()
               ? KnownInstances::read().ofSettings(m_kept.selected.name, queue)
               : QString();
}

InstanceDraft TaskPresets::draft(const QString &name, const QString &settings,
                                 const KnownInstances &known, bool withDevice) const
{
    if (!m_task.opened() || m_task.phase() == PrintTask::Phase::Opened)
        return {{}, {}, {}, tr("The printer is not known yet.")};
    // The panels restore and save on the way.
    m_task.summaryOfSettings();
    return draftInstance(name, *m_task.opened(), m_task.settings(), known, withDevice, settings);
}

void TaskPresets::sayOfInstance(const InstanceDraft &draft)
{
    for (const QString &sentence : draft.leftOut)
        Q_EMIT m_task.noted(sentence);
    Q_EMIT m_task.noted(tr("Other programs print with these settings to “%1”.").arg(draft.name));
}

std::optional<TaskRefusal> TaskPresets::saveInstance(const QString &settings)
{
    const QString &name = m_task.request().instance;
    if (name.isEmpty())
        return std::nullopt;
    // A preset has nothing of what sets up the device; what was asked for just now has.
    const bool withDevice = settings.isEmpty();
    const QString of = withDevice ? name : settings;
    const InstanceDraft made = draft(name, of, KnownInstances::read(), withDevice);
    QString problem = made.problem;
    if (problem.isEmpty())
        problem = writeInstance(made, of);
    if (!problem.isEmpty())
        return TaskRefusal{{problem}};
    sayOfInstance(made);
    return std::nullopt;
}

// Whoever keeps a preset under the name of an earlier one means its instance, too, which may be
// called by a name that the preset had before.
QString TaskPresets::nameElsewhere(const QString &preset, const KnownInstances &known) const
{
    const QString there = known.ofSettings(preset, queueOf(m_task.printer()));
    return there.isEmpty() ? preset : there.section(u'/', 1);
}

InstanceDraft TaskPresets::draftElsewhere(const PresetToSave &wanted) const
{
    const KnownInstances known = KnownInstances::read();
    const QString name = presetName(wanted.name);
    return draft(nameElsewhere(name, known), name, known, wanted.device);
}

void TaskPresets::writeElsewhere(const InstanceDraft &draft, const QString &name)
{
    m_written = draft;
    m_shelf.writeInstance(draft.name, [draft, name] { return writeInstance(draft, name); });
}

// Nobody else prints any more with a preset that is gone.
void TaskPresets::removeElsewhere()
{
    const QString instance = selectedElsewhere();
    if (!instance.isEmpty())
        m_shelf.writeInstance(instance, [instance] {
            const QString problem = UserQueuesFile().removeInstance(instance);
            return problem.isEmpty() ? OwnInstances().forget(instance) : problem;
        });
}

// Other programs know it by the name that it had: scripts would not find another one.
void TaskPresets::renameElsewhere(const QString &name)
{
    const QString instance = selectedElsewhere();
    if (!instance.isEmpty())
        m_shelf.writeInstance(instance,
                              [instance, name] { return OwnInstances().note(instance, name); });
}

// An instance was written, or is no more.
void TaskPresets::elsewhereEnded(const QString &instance, const QString &problem)
{
    const std::optional<InstanceDraft> written = std::exchange(m_written, std::nullopt);
    if (!problem.isEmpty())
        m_task.say(TaskMessage::Kind::Problem,
                   tr("“%1” in other programs: %2").arg(instance, problem));
    else if (written)
        sayOfInstance(*written);
    if (written)
        Q_EMIT ended(problem);
}

QStringList TaskPresets::instancesOfOthers() const
{
    const QString queue = queueOf(m_task.printer());
    if (queue.isEmpty())
        return {};
    const KnownInstances known = KnownInstances::read();
    QStringList names = known.queues.instancesOf(queue);
    names.removeIf([&](const QString &name) { return known.own.contains(name); });
    return names;
}

void TaskPresets::useInstance(const QString &name)
{
    const QList<JobOption> options = KnownInstances::read().queues.optionsOf(name);
    if (options.isEmpty())
        return m_task.say(TaskMessage::Kind::Problem,
                          tr("“%1” is not there any more, or has no settings.").arg(name));
    apply(m_kept.defaults, {}, {SelectedPreset::Kind::Preset, name}, options);
}

// Pages and copies are of one job, whoever has set them. Answers what this printer does not take.
QStringList TaskPresets::takeInstance(const QList<JobOption> &options)
{
    QList<JobOption> kept = options;
    kept.removeIf([](const JobOption &option) {
        const QString name = inOneSpelling(option).name;
        return name == "copies"_L1 || (jobAttribute(name) && !isKept(name));
    });
    const OptionOutcome outcome = applyUsersOptions(kept, *m_task.opened());
    for (const JobOption &attribute : outcome.attributes)
        m_task.settings().setAttribute(
            attribute.name, attribute.value,
            usualValueOf(attribute.name, outcome.attributes, *m_task.opened()));
    return outcome.problems;
}

} // namespace corvana
