#include "tests/dialog/support/ScriptedFace.h"

namespace corvana::test {

void ScriptedFace::watch(PrintTask &task)
{
    connect(&task, &PrintTask::phaseChanged, this,
            [this](PrintTask::Phase phase) { phases += phase; });
    connect(&task, &PrintTask::said, this,
            [this](const TaskMessage &message) { messages += message; });
    connect(&task, &PrintTask::refused, this,
            [this](const TaskRefusal &refusal) { refusals += refusal; });
    connect(&task, &PrintTask::ignored, this,
            [this](const QString &problem) { ignored += problem; });
    connect(&task, &PrintTask::noted, this, [this](const QString &what) { notes += what; });
    connect(&task, &PrintTask::jobEnded, this,
            [this](const JobOutcome &outcome) { outcomes += outcome; });
}

QStringList ScriptedFace::problems() const
{
    return refusals.isEmpty() ? QStringList() : refusals.constLast().problems;
}

QString ScriptedFace::message() const
{
    return messages.isEmpty() ? QString() : messages.constLast().text;
}

} // namespace corvana::test
