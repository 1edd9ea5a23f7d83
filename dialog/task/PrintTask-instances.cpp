#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/printers/UserQueuesFile.h"
#include "dialog/task/PrintTask.h"

namespace corvana {

InstanceDraft PrintTask::instanceDraft(const QString &name, const QStringList &own)
{
    if (!m_opened || m_phase == Phase::Opened)
        return {{}, {}, {}, tr("The printer is not known yet.")};
    // The panels restore and save on the way.
    summaryOfSettings();
    return draftInstance(name, *m_opened, m_settings, readUserQueues(), own);
}

// For somebody who waits for the end of the program, and for nothing else.
std::optional<TaskRefusal> PrintTask::saveInstance()
{
    const OwnInstances own;
    const InstanceDraft draft = instanceDraft(m_request.instance, own.names());
    for (const QString &sentence : draft.leftOut)
        Q_EMIT noted(sentence);
    QString problem = draft.problem;
    if (problem.isEmpty())
        problem = UserQueuesFile().setInstance(draft.name, draft.options);
    if (problem.isEmpty())
        problem = own.note(draft.name, m_request.instance);
    if (!problem.isEmpty())
        return TaskRefusal{{problem}};
    Q_EMIT noted(tr("Other programs print with these settings to “%1”.").arg(draft.name));
    return std::nullopt;
}

} // namespace corvana
