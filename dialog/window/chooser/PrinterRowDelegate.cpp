#include "dialog/window/chooser/PrinterRowDelegate.h"

#include <cmath>

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QApplication>
#include <QPainter>

#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterModel.h"

namespace corvana {

namespace {

QFont nameFont(const QFont &font)
{
    QFont bold = font;
    bold.setWeight(QFont::DemiBold);
    return bold;
}

// The parts of a row, from left to right; a right-to-left layout mirrors them.
struct RowLayout
{
    explicit RowLayout(const QFont &font)
        : name(nameFont(font)), nameHeight(QFontMetrics(name).height()),
          detailHeight(QFontMetrics(font).height()), gap(nameHeight / 2),
          iconSide(int(std::lround(1.7 * nameHeight))), checkSide(nameHeight * 3 / 4),
          height(nameHeight + detailHeight + gap)
    {
    }

    QFont name;
    int nameHeight;
    int detailHeight;
    int gap;
    int iconSide;
    int checkSide;
    int height;

    int textLeft() const { return gap + iconSide + gap; }
    int textRight() const { return gap + checkSide + gap; } // from the right edge
};

void drawCheck(QPainter *painter, const QRectF &rect, const QColor &color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, rect.height() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](qreal x, qreal y) {
        return QPointF(rect.left() + x * rect.width(), rect.top() + y * rect.height());
    };
    painter->drawPolyline(QPolygonF{at(0.12, 0.55), at(0.4, 0.82), at(0.9, 0.2)});
    painter->restore();
}

} // namespace

PrinterRowDelegate::PrinterRowDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

int PrinterRowDelegate::widthFor(const QString &name, const QString &detail,
                                 const QWidget *view) const
{
    const RowLayout row(view->font());
    return row.textLeft() + row.textRight() +
           qMax(QFontMetrics(row.name).horizontalAdvance(name),
                view->fontMetrics().horizontalAdvance(detail)) +
           1;
}

int PrinterRowDelegate::rowHeight(const QWidget *view) const
{
    return RowLayout(view->font()).height;
}

QSize PrinterRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    // The list is as wide as its view, whatever is in it.
    return {1, RowLayout(option.font).height};
}

void PrinterRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);

    const RowLayout row(option.font);
    const auto mirrored = [&](const QRect &rect) {
        return QStyle::visualRect(item.direction, item.rect, rect);
    };
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor nameColor =
        item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    // Placeholder text on the highlight would be as good as invisible.
    const QColor detailColor =
        selected ? nameColor : item.palette.color(group, QPalette::PlaceholderText);

    const QRect icon(item.rect.left() + row.gap,
                     item.rect.top() + (item.rect.height() - row.iconSide) / 2, row.iconSide,
                     row.iconSide);
    item.icon.paint(painter, mirrored(icon), Qt::AlignCenter,
                    selected ? QIcon::Selected : QIcon::Normal);

    const int width = item.rect.width() - row.textLeft() - row.textRight();
    const QString detail = index.data(PrinterModel::DetailRole).toString();
    const int textHeight = row.nameHeight + (detail.isEmpty() ? 0 : row.detailHeight);
    const QRect name(item.rect.left() + row.textLeft(),
                     item.rect.top() + (item.rect.height() - textHeight) / 2, width,
                     row.nameHeight);
    const QString location = index.data(PrinterModel::LocationRole).toString();
    const auto drawLine = [&](const QRect &rect, const QFont &font, const QColor &color,
                              const QString &text, const QString &head) {
        painter->setFont(font);
        painter->setPen(color);
        const auto alignment =
            QStyle::visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter);
        painter->drawText(mirrored(rect), int(alignment) | Qt::TextSingleLine,
                          elidedLine(QFontMetrics(font), text, head, rect.width()));
    };
    painter->save();
    painter->setLayoutDirection(item.direction);
    drawLine(name, row.name, nameColor, item.text, QString());
    if (!detail.isEmpty())
        drawLine(name.translated(0, row.nameHeight), option.font, detailColor, detail, location);
    painter->restore();

    const auto *shown = qobject_cast<const QAbstractProxyModel *>(index.model());
    if (m_chosen.isValid() && (shown ? shown->mapToSource(index) : index) == m_chosen)
        drawCheck(painter,
                  mirrored(QRect(item.rect.right() + 1 - row.gap - row.checkSide,
                                 item.rect.top() + (item.rect.height() - row.checkSide) / 2,
                                 row.checkSide, row.checkSide)),
                  nameColor);
}

} // namespace corvana
