#include "dialog/task/TaskPresets.h"

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/UserQueuesFile.h"
#include "dialog/task/PrintTask.h"

namespace corvana {

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
