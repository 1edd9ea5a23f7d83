#include "dialog/window/SettingsColumn.h"

#include <QVBoxLayout>

namespace corvana {

namespace {

// The frame of a panel, and what the pages have around it. Units: heights of the font.
constexpr int kWidth = 36;

} // namespace

SettingsColumn::SettingsColumn(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

int SettingsColumn::usualWidth() const
{
    return qMax(kWidth * fontMetrics().height(), minimumSizeHint().width());
}

QSize SettingsColumn::sizeHint() const
{
    return {usualWidth(), QWidget::sizeHint().height()};
}

} // namespace corvana
