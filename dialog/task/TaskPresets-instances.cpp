#include "dialog/task/TaskPresets.h"

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/UserQueuesFile.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/StartValues.h"

namespace corvana {

using namespace Qt::StringLiterals;

bool TaskPresets::canHaveInstances() const
{
    return m_task.opened() && m_task.opened()->fetched.printer.origin == PrinterOrigin::Queue &&
           !m_task.passesFilesOn();
}

InstanceDraft TaskPresets::instanceNamed(const QString &name) const
{
    return m_task.opened() ? nameInstance(name, *m_task.opened(), m_task.settings(), m_known)
                           : InstanceDraft();
}

QString TaskPresets::instanceOf(const QString &name) const
{
    return canHaveInstances() && !name.isEmpty()
               ? m_known.ofSettings(name, queueOfInstance(m_task.printer().name))
               : QString();
}

QStringList TaskPresets::instancesOfOthers() const
{
    if (!canHaveInstances())
        return {};
    QStringList names = m_known.queues.instancesOf(queueOfInstance(m_task.printer().name));
    names.removeIf([this](const QString &name) { return m_known.own.contains(name); });
    return names;
}

void TaskPresets::useInstance(const QString &name)
{
    lookForInstances();
    const QList<JobOption> options = m_known.queues.optionsOf(name);
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
        m_task.settings().setAttribute(attribute.name, attribute.value);
    return outcome.problems;
}

// The preset is kept. Other programs get it beside the GUI thread, since they may be writing the
// same file.
void TaskPresets::keepInstance(const Saving &saving)
{
    const InstanceDraft draft = saving.instance;
    const QString settings = saving.selected.name;
    m_work.run([this, draft, settings]() -> PresetWork::Then {
        const QString problem = writeInstance(draft, settings);
        // Called only while this object lives.
        return [this, draft, problem] {
            if (problem.isEmpty())
                m_task.sayOfInstance(draft);
            else
                m_task.say(
                    TaskMessage::Kind::Problem,
                    tr("The preset is kept, but other programs do not have it: %1").arg(problem));
            Q_EMIT ended(problem);
        };
    });
}

// Nobody else prints any more with a preset that is gone.
void TaskPresets::removeInstance(const QString &name)
{
    lookForInstances();
    const QString instance = instanceOf(name);
    if (instance.isNull())
        return;
    m_work.run([this, instance]() -> PresetWork::Then {
        QString problem = UserQueuesFile().removeInstance(instance);
        if (problem.isEmpty())
            problem = OwnInstances().forget(instance);
        return [this, instance, problem] {
            if (!problem.isEmpty())
                m_task.say(TaskMessage::Kind::Problem,
                           tr("Other programs still have “%1”: %2").arg(instance, problem));
        };
    });
}

// Other programs know it by the name that it had: scripts would not find another one.
void TaskPresets::renameInstance(const QString &name, const QString &newName)
{
    lookForInstances();
    const QString instance = instanceOf(name);
    if (instance.isNull())
        return;
    m_work.run([this, instance, newName]() -> PresetWork::Then {
        const QString problem = OwnInstances().note(instance, newName);
        return [this, problem] {
            if (!problem.isEmpty())
                m_task.say(TaskMessage::Kind::Problem, problem);
        };
    });
}

} // namespace corvana
