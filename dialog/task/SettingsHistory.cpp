#include "dialog/task/SettingsHistory.h"

#include <utility>

namespace corvana {

namespace {

// About what a state takes in memory: a node of a map with its texts is some 200 bytes.
qsizetype bytesOf(const TaskSettings &settings)
{
    constexpr qsizetype kEach = 200;
    const SessionSnapshot &session = settings.session;
    return kEach * (session.marks.size() + session.customValues.size() + session.entries.size() +
                    settings.job.attributes().size() + settings.documents.size() + 1);
}

} // namespace

void SettingsHistory::clear()
{
    m_states.clear();
    m_steps.clear();
    m_present = 0;
}

void SettingsHistory::begin(const TaskSettings &now)
{
    clear();
    m_states += now;
}

void SettingsHistory::add(const TaskSettings &now, const Step &step)
{
    if (!hasBegun())
        return begin(now);
    if (takesIn(step)) {
        m_states[m_present] = now;
        if (now == m_states.at(m_present - 1)) {
            m_states.removeLast();
            m_steps.removeLast();
            --m_present;
        }
        return;
    }
    m_states.resize(m_present + 1);
    m_steps.resize(m_present);
    m_states += now;
    m_steps += step;
    ++m_present;
    forgetOldest();
}

bool SettingsHistory::takesIn(const Step &step) const
{
    return canUndo() && !canRedo() && m_steps.constLast().goesOn && step.goesOn &&
           m_steps.constLast().settings == step.settings;
}

void SettingsHistory::replacePresent(const TaskSettings &now)
{
    if (!hasBegun())
        return begin(now);
    m_states[m_present] = now;
}

void SettingsHistory::addToAll(const QList<Document> &documents)
{
    for (TaskSettings &state : m_states)
        state.documents += documents;
}

void SettingsHistory::endStep()
{
    if (!m_steps.isEmpty())
        m_steps.last().goesOn = false;
}

QString SettingsHistory::undoName() const
{
    return canUndo() ? m_steps.at(m_present - 1).name : QString();
}

QString SettingsHistory::redoName() const
{
    return canRedo() ? m_steps.at(m_present).name : QString();
}

void SettingsHistory::notePreset(std::shared_ptr<const PresetStep> preset)
{
    if (canUndo())
        m_steps[m_present - 1].preset = std::move(preset);
}

const TaskSettings &SettingsHistory::undo()
{
    endStep();
    return m_states.at(--m_present);
}

const TaskSettings &SettingsHistory::redo()
{
    return m_states.at(++m_present);
}

void SettingsHistory::forgetOldest()
{
    qsizetype bytes = 0;
    for (const TaskSettings &state : std::as_const(m_states))
        bytes += bytesOf(state);
    while (m_steps.size() > 1 && (m_steps.size() > kMostSteps || bytes > kMostBytes)) {
        bytes -= bytesOf(m_states.constFirst());
        m_states.removeFirst();
        m_steps.removeFirst();
        --m_present;
    }
}

} // namespace corvana
