#include "dialog/task/PrintTask.h"

namespace corvana {

InstanceDraft PrintTask::instanceDraft(const QString &name, const KnownInstances &known,
                                       bool withDevice)
{
    if (!m_opened || m_phase == Phase::Opened)
        return {{}, {}, {}, tr("The printer is not known yet.")};
    // The panels restore and save on the way.
    summaryOfSettings();
    return draftInstance(name, *m_opened, m_settings, known, withDevice);
}

void PrintTask::sayOfInstance(const InstanceDraft &draft)
{
    for (const QString &sentence : draft.leftOut)
        Q_EMIT noted(sentence);
    Q_EMIT noted(tr("Other programs print with these settings to “%1”.").arg(draft.name));
}

std::optional<TaskRefusal> PrintTask::saveInstance(const QString &settings)
{
    if (m_request.instance.isEmpty())
        return std::nullopt;
    // A preset has nothing of what sets up the device; what was asked for just now has.
    const bool withDevice = settings.isEmpty();
    const InstanceDraft draft =
        instanceDraft(m_request.instance, KnownInstances::read(), withDevice);
    QString problem = draft.problem;
    if (problem.isEmpty())
        problem = writeInstance(draft, withDevice ? m_request.instance : settings);
    if (!problem.isEmpty())
        return TaskRefusal{{problem}};
    sayOfInstance(draft);
    return std::nullopt;
}

} // namespace corvana
