#pragma once

#include <QMenu>

namespace corvana {

class TaskPresets;
struct SelectedPreset;

/// What settings can be called, and what can be done with that: the presets of the printer that is
/// open, with a mark at the one in use; and saving, updating, renaming and deleting one.
///
/// Ownership: borrows the presets.
class PresetMenu : public QMenu
{
    Q_OBJECT

public:
    explicit PresetMenu(TaskPresets &presets, QWidget *parent = nullptr);

private:
    void fill();
    void addPresets();
    void addChanges();
    QAction *addChoice(const QString &text, const SelectedPreset &selected);
    void askForName(bool rename);
    void askToRemove();

    TaskPresets &m_presets;
};

/// The name of settings, as a button or a menu shows it: one line, bounded, without a key.
QString presetLabel(const QString &name);

} // namespace corvana
