#pragma once

#include <vector>

#include <QString>
#include <QVariant>
#include <QWidget>

#include "platform/PlatformExport.h"
#include "platform/toolkit/ReportedActs.h"

class QRadioButton;
class QVBoxLayout;

namespace corvana {

/// A column of radio buttons, one row a choice, of which at most one is selected. Each cell has a
/// title and carries a represented object.
///
/// Everything below is the program's own doing and fires nothing; `activated` is the user's.
class CORVANA_PLATFORM_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT
    /// Range: 0 and more. The interface file sets the initial number.
    Q_PROPERTY(int rows READ numberOfRows WRITE setNumberOfRows)

public:
    explicit RadioMatrix(QWidget *parent = nullptr);

    int numberOfRows() const { return static_cast<int>(m_cells.size()); }
    /// Adds rows at the end or removes rows from the end.
    void setNumberOfRows(int rows);

    void addRow();
    /// Removes one row; the others keep their order. Removing the selected row selects nothing.
    /// Range: a row that does not exist is ignored.
    void removeRow(int row);

    QString cellTitle(int row) const;
    void setCellTitle(int row, const QString &title);
    /// Invalid for a cell that carries none and for a row that does not exist.
    QVariant representedObject(int row) const;
    void setRepresentedObject(int row, const QVariant &object);

    /// The selected row, or -1.
    int selectedRow() const;
    /// Selects a row, or nothing with -1.
    void selectRow(int row);

    /// The button of a row, for assistive technology and tests; owned by the matrix.
    QRadioButton *cell(int row) const;

Q_SIGNALS:
    /// The user picked a row, also the one that was selected already.
    void activated(int row);

private:
    void cellToggled(QRadioButton *cell);
    void cellClicked(QRadioButton *cell);
    int rowOf(const QRadioButton *cell) const;

    std::vector<QRadioButton *> m_cells;
    QVBoxLayout *m_layout;
    // A cell's toggle is followed by its click when both are the same act of the user.
    ReportedActs m_reported{this};
};

} // namespace corvana
