#pragma once

#include <memory>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/task/TaskSettings.h"

namespace corvana {

struct PresetStep;

/// What a user has done to the settings of a task, step by step: the states that can be gone back
/// to and forward again, and what each step between two of them is called.
///
/// A plain value; knows no session and no panel. Bounded: the oldest steps are forgotten first.
class SettingsHistory
{
public:
    struct Step
    {
        QString name{};         ///< of what was set, as a user reads it: "Media Type"
        QStringList settings{}; ///< that it changed, as namesOf() has them
        /// Whether the next change of the same setting belongs to it: another letter in a field,
        /// another move of a slider.
        bool goesOn = false;
        /// Which preset was selected before and after it; null where that is the same one.
        std::shared_ptr<const PresetStep> preset{};
    };

    /// At most this many steps are kept, and of these as many as fit.
    static constexpr qsizetype kMostSteps = 200;
    static constexpr qsizetype kMostBytes = 16 * 1024 * 1024;

    /// Forgets everything. There is no present() until begin().
    void clear();
    /// Forgets everything, and begins with a state.
    void begin(const TaskSettings &now);
    bool hasBegun() const { return !m_states.isEmpty(); }
    /// The state in which the task is, as it was last said. Only after begin().
    const TaskSettings &present() const { return m_states.at(m_present); }

    /// The user has done something. Steps that were undone cannot be done again. A step that goes
    /// on takes in one that changes the same and nothing else; one that came to nothing is gone.
    void add(const TaskSettings &now, const Step &step);
    /// The present state is another one by nobody's act.
    void replacePresent(const TaskSettings &now);
    /// Documents that were there from the beginning are known only now: they belong to all states.
    void addToAll(const QList<Document> &documents);
    /// The last step goes on no longer: its field was left, or something else was touched.
    void endStep();

    bool canUndo() const { return m_present > 0; }
    bool canRedo() const { return m_present + 1 < m_states.size(); }
    /// What undo() takes back; empty where there is nothing.
    QString undoName() const;
    QString redoName() const;
    /// What undo() and redo() would do. Only where they can.
    const Step &undoStep() const { return m_steps.at(m_present - 1); }
    const Step &redoStep() const { return m_steps.at(m_present); }
    /// The last step has selected another preset.
    void notePreset(std::shared_ptr<const PresetStep> preset);
    /// Goes back by a step, or forward again. Answers the state to be in. Only where it can.
    const TaskSettings &undo();
    const TaskSettings &redo();

    qsizetype count() const { return m_steps.size(); }

private:
    bool takesIn(const Step &step) const;
    void forgetOldest();

    QList<TaskSettings> m_states; // one more than steps, once it has begun
    QList<Step> m_steps;          // the first leads from the first state to the second
    qsizetype m_present = 0;
};

} // namespace corvana
