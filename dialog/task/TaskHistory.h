#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "dialog/task/SettingsHistory.h"
#include "dialog/task/TaskSettings.h"

namespace corvana {

class PrintTask;

/// What the user of one task has done to its settings: what can be taken back and done again, and
/// the state from before, which "changed" compares with and "back" returns to. All of it only once
/// a printer is ready.
///
/// What one event has changed is found by comparing the settings before and after it, so that a
/// step holds all that rules and panels have made of it.
///
/// Ownership: the task's, which it borrows. Thread: GUI thread only.
class TaskHistory : public QObject
{
    Q_OBJECT

public:
    explicit TaskHistory(PrintTask &task);

    /// What "changed" compares with and "back" returns to.
    const SettingsBase &base() const { return m_base; }
    void setBase(const SettingsBase &base);
    /// The options, attributes and values of the panels' own that differ from base(), by keyword.
    /// Copies and pages belong to this job alone and are not among them.
    QStringList changedSettings() const;

    /// Not while a job is made or printed.
    bool canUndo() const;
    bool canRedo() const;
    /// What undo() would take back: "Undo Media Type"; "Undo" where there is nothing.
    QString undoText() const;
    QString redoText() const;
    /// Takes back the last thing that the user did, with all that came of it.
    void undo();
    void redo();
    /// "Back to Printer Defaults".
    QString backText() const;
    /// What base() has for a setting, as a user reads it; null for nothing.
    QString baseText(const QString &name) const;
    /// Brings settings, of those that changedSettings() names, or all of them, back to base(). What
    /// cannot be had together with the others is said.
    void resetSettings(const QStringList &names);
    void resetAll();
    /// What is typed or moved from now on is another step: a field was left, a slider let go.
    void endStep();

    // What the task tells

    /// A printer has come up: the first one, another one, or the same with other options.
    void begin(const SettingsBase &base);
    /// The user, or a rule, has set something: a name of settingTitle().
    void noteTouched(const QString &name);
    /// A step is recorded when what is going on now has been told to all panels.
    void recordSoon();
    /// Records what has been done since the last step, under a name for people or under that of
    /// what was set. Answers whether there was anything.
    bool recordStep(const QString &name = {});
    /// Other documents are printed, or in another order: a step, also while no printer is ready.
    void recordDocuments(const QList<Document> &documents);
    /// Documents that the task was started with are known only now, and are nobody's step.
    void addDocuments(const QList<Document> &documents);
    /// The last step has selected another preset.
    void notePreset(const PresetStep &step);
    /// Begins anew with the next printer where nobody has done anything yet.
    void forgetIfEmpty();

Q_SIGNALS:
    /// canUndo(), canRedo(), their texts or base() are others.
    void changed();
    void stepped(const QString &text); ///< what undo() or redo() has done

private:
    bool isReady() const;
    void goTo(const TaskSettings &state);
    TaskSettings stateOfBase() const;
    QString nameOfStep(const QStringList &changed, const QStringList &touched) const;

    PrintTask &m_task;
    SettingsHistory m_steps;
    SettingsBase m_base;
    QStringList m_touched;     // since the last step, in this order
    bool m_willRecord = false; // soon
};

} // namespace corvana
