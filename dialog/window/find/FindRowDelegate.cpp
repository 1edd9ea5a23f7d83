#include "dialog/window/find/FindRowDelegate.h"

#include <QApplication>
#include <QPainter>

#include "dialog/window/find/FindModel.h"

namespace corvana {

namespace {

QFont titleFont(const QFont &font)
{
    QFont bold = font;
    bold.setWeight(QFont::DemiBold);
    return bold;
}

int heightFor(const QFont &font)
{
    const int title = QFontMetrics(titleFont(font)).height();
    return title + QFontMetrics(font).height() + title / 2;
}

} // namespace

int FindRowDelegate::rowHeight(const QWidget *view)
{
    return heightFor(view->font());
}

QSize FindRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    // The list is as wide as its view, whatever is in it.
    return {1, heightFor(option.font)};
}

void FindRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    // The focus is in the field, and the row is the one that Enter takes.
    item.state |= QStyle::State_Active;
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);

    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const QColor strong =
        item.palette.color(QPalette::Active, selected ? QPalette::HighlightedText : QPalette::Text);
    // Placeholder text on the highlight would be as good as invisible.
    const QColor weak =
        selected ? strong : item.palette.color(QPalette::Active, QPalette::PlaceholderText);
    const QFont bold = titleFont(option.font);
    const QFontMetrics titleMetrics(bold);
    const int gap = titleMetrics.height() / 2;
    const QRect inner = item.rect.adjusted(gap, gap / 2, -gap, -gap / 2);
    const QRect upper(inner.topLeft(), QSize(inner.width(), titleMetrics.height()));
    const QRect lower(upper.bottomLeft() + QPoint(0, 1),
                      QSize(inner.width(), item.fontMetrics.height()));
    const auto draw = [&](const QRect &rect, const QFont &font, const QColor &color,
                          const QString &text, Qt::Alignment side) {
        const QFontMetrics metrics(font);
        painter->setFont(font);
        painter->setPen(color);
        painter->drawText(QStyle::visualRect(item.direction, item.rect, rect),
                          int(QStyle::visualAlignment(item.direction, side | Qt::AlignVCenter)) |
                              Qt::TextSingleLine,
                          metrics.elidedText(text.simplified(), Qt::ElideRight, rect.width()));
    };
    painter->save();
    painter->setLayoutDirection(item.direction);
    // The name is what was searched for: the value gets what it leaves, but never less than a
    // third.
    const QString value = index.data(FindModel::ValueRole).toString();
    const int nameWidth = titleMetrics.horizontalAdvance(item.text) + 1;
    const int valueWidth = value.isEmpty()
                               ? 0
                               : qMin(item.fontMetrics.horizontalAdvance(value) + 1,
                                      qMax(upper.width() - nameWidth - gap, upper.width() / 3));
    draw(upper.adjusted(0, 0, valueWidth > 0 ? -(valueWidth + gap) : 0, 0), bold, strong, item.text,
         Qt::AlignLeft);
    draw(upper.adjusted(upper.width() - valueWidth, 0, 0, 0), option.font, strong, value,
         Qt::AlignRight);
    draw(lower, option.font, weak, index.data(FindModel::WhereRole).toString(), Qt::AlignLeft);
    painter->restore();
}

} // namespace corvana
