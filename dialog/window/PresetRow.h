#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QToolButton;

namespace corvana {

class ElidedToolButton;
class PresetButton;
class PrintTask;
class SettingsPages;

/// The row below the printer: what the settings are called, and the way back from the last thing
/// that was done to them.
///
/// Ownership: borrows the task.
class PresetRow : public QWidget
{
    Q_OBJECT

public:
    explicit PresetRow(PrintTask &task, QWidget *parent = nullptr);

    /// The label that titles the row, for the column of labels that it stands in.
    QLabel *label() const { return m_label; }
    /// Offers to take back what was changed on the page that is shown. Borrows the pages.
    void setPages(SettingsPages *pages);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void shareRoom();
    void buildPreset();
    void buildButtons();
    void refreshPreset();
    void buildReset();
    void refreshReset();
    void refresh();

    PrintTask &m_task;
    SettingsPages *m_pages = nullptr;
    QLabel *m_label = nullptr;
    PresetButton *m_preset = nullptr;
    QToolButton *m_reset = nullptr;
    QAction *m_resetPage = nullptr;
    QAction *m_resetAll = nullptr;
    ElidedToolButton *m_undo = nullptr;
    QToolButton *m_redo = nullptr;
};

} // namespace corvana
