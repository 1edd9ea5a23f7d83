#pragma once

#include <QDialog>

#include "dialog/task/TaskPresets.h"
#include "dialog/window/InstancePrinters.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace corvana {

/// Asks under which name the settings are to be kept, and for which printers; or only for another
/// name of those that are in use.
///
/// Ownership: borrows the presets.
class SavePresetDialog : public QDialog
{
    Q_OBJECT

public:
    SavePresetDialog(const TaskPresets &presets, bool rename, QWidget *parent = nullptr);

    PresetToSave preset() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeRoom();
    void addRange();
    void check();
    QString remarkOnInstance();
    QList<OtherQueue> otherQueues() const;
    bool isTicked(const OtherQueue &queue) const;
    void askForPrinters();

    const TaskPresets &m_presets;
    const bool m_renames;
    QLineEdit *m_name;
    QRadioButton *m_forModel = nullptr;
    QRadioButton *m_forAll = nullptr;
    QCheckBox *m_device = nullptr;
    QCheckBox *m_elsewhere = nullptr;
    QPushButton *m_more = nullptr;
    InstancePrinters::Picks m_picks; // of queues that are not open, as far as somebody has picked
    QLabel *m_remark = nullptr;
    QPushButton *m_save = nullptr;
    bool m_replaces = false; // as the button says
};

} // namespace corvana
