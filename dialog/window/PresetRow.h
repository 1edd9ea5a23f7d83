#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace corvana {

class ElidedToolButton;
class PrintTask;

/// The row below the printer: what the settings are called, and the way back from the last thing
/// that was done to them.
///
/// Ownership: borrows the task.
class PresetRow : public QWidget
{
    Q_OBJECT

public:
    explicit PresetRow(PrintTask &task, QWidget *parent = nullptr);

private:
    void buildPreset();
    void buildButtons();
    void refreshPreset();
    void refresh();

    PrintTask &m_task;
    QLabel *m_label = nullptr;
    ElidedToolButton *m_preset = nullptr;
    ElidedToolButton *m_undo = nullptr;
    QToolButton *m_redo = nullptr;
};

} // namespace corvana
