#pragma once

#include <QSizeF>
#include <QString>
#include <QWidget>

#include "platform/printcore/Ppd.h"

class QComboBox;
class QDoubleSpinBox;

namespace corvana {

/// Width and height of a paper that the PPD does not list, in millimetres or inches as the user
/// likes, always inside the printer's limits.
class CustomPaperSize : public QWidget
{
    Q_OBJECT

public:
    /// The unit is the one of the user's country until another one is picked. Borrows the PPD,
    /// which must take custom sizes.
    explicit CustomPaperSize(ppd_file_t *ppd, QWidget *parent = nullptr);

    /// Shows a size; one that the printer cannot take is moved to its limits. Units: points.
    void setSize(const QSizeF &points);
    /// Says who keeps the paper at its size; empty: nobody does.
    void setLocked(const QString &why);
    /// The size shown. Units: points.
    QSizeF size() const { return m_points; }

Q_SIGNALS:
    /// The user entered another size.
    void entered();

private:
    QDoubleSpinBox *addField(const QString &name);
    void showSize();
    void takeSize(const QDoubleSpinBox *field);

    ppd_file_t *m_ppd;
    QDoubleSpinBox *m_width;
    QDoubleSpinBox *m_height;
    QComboBox *m_unit;
    QSizeF m_points; // exact, whatever the fields round it to
};

} // namespace corvana
