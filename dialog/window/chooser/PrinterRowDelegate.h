#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace corvana {

/// Draws a printer as two lines beside its icon: the name, then location and state. The printer
/// that is chosen so far has a check mark.
class PrinterRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PrinterRowDelegate(QObject *parent = nullptr);

    /// The row of the model behind the view's that is chosen so far; invalid for none.
    void setChosen(const QModelIndex &chosen) { m_chosen = chosen; }
    /// The width of a row that shows these texts in full. Units: pixels
    int widthFor(const QString &name, const QString &detail, const QWidget *view) const;
    /// The height of every row. Units: pixels
    int rowHeight(const QWidget *view) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QPersistentModelIndex m_chosen;
};

} // namespace corvana
