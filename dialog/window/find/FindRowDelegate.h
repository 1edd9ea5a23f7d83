#pragma once

#include <QStyledItemDelegate>

namespace corvana {

/// Draws a setting that was found: its name with what it is at now, and below them where it is.
class FindRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The height of every row. Units: pixels.
    static int rowHeight(const QWidget *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace corvana
