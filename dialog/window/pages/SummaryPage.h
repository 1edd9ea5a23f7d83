#pragma once

#include <QList>
#include <QWidget>

#include "dialog/session/PanelHost.h"
#include "dialog/window/pages/ShownChanges.h"

class QCheckBox;
class QLabel;
class QTableWidget;

namespace corvana {

/// All settings of the job, one line each, in display order; or only those that were changed. A
/// line leads to its control.
class SummaryPage : public QWidget
{
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    /// Makes the table, which is no part of a window that is just coming up.
    void build();
    /// The page is built first where it was not yet.
    void setLines(const QList<SummaryLine> &lines, const ShownChanges &changes = {});

Q_SIGNALS:
    /// The user wants to go to the control of a setting.
    void settingWanted(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildTable();
    void showLines();
    void setRow(int row, const SummaryLine &line);
    bool goToLine(int row);

    QTableWidget *m_table = nullptr;
    QCheckBox *m_onlyChanged = nullptr;
    QLabel *m_nothing = nullptr; // is changed
    QList<SummaryLine> m_lines;
    ShownChanges m_changes;
};

} // namespace corvana
