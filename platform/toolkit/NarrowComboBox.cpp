#include "platform/toolkit/NarrowComboBox.h"

#include <algorithm>

#include <QStyle>
#include <QStyleOptionComboBox>

namespace corvana {

namespace {

// As QComboBox has them. Units: pixels.
constexpr int kLeastTextHeight = 14;
constexpr int kAroundText = 2;
constexpr int kBesideIcon = 4;

} // namespace

QSize NarrowComboBox::sizeHint() const
{
    return minimumSizeHint();
}

QSize NarrowComboBox::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int letters = minimumContentsLength() * metrics.horizontalAdvance(u'X');
    int width = letters + iconSize().width() + kBesideIcon;
    if (!placeholderText().isEmpty())
        width = std::max(width, metrics.boundingRect(placeholderText()).width());
    const int text = std::max(qCeil(QFontMetricsF(metrics).height()), kLeastTextHeight);
    const int height = std::max(text, iconSize().height()) + kAroundText;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, {width, height}, this);
}

// What QComboBox adds has its window laid out once more, for a size that depends on the items.
void NarrowComboBox::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

} // namespace corvana
