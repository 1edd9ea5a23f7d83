#include "dialog/window/Placeholders.h"

#include <cstdlib>

#include <QColor>

namespace corvana {

namespace {

// How much lighter or darker than its background a text must be, of 255. The themes that do set it
// are at 90 and above, those that forget it below 20.
constexpr int kLeastDifference = 50;
// What Qt makes of the text's color where it chooses that of placeholders.
constexpr int kAlpha = 128;

int grayOver(const QColor &color, const QColor &background)
{
    const int alpha = color.alpha();
    return (qGray(color.rgb()) * alpha + qGray(background.rgb()) * (255 - alpha)) / 255;
}

} // namespace

QPalette withReadablePlaceholders(QPalette palette)
{
    // What is disabled may be as weak as the theme likes.
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor base = palette.color(group, QPalette::Base);
        const int shown = grayOver(palette.color(group, QPalette::PlaceholderText), base);
        if (std::abs(shown - qGray(base.rgb())) >= kLeastDifference)
            continue;
        QColor color = palette.color(group, QPalette::Text);
        color.setAlpha(kAlpha);
        palette.setColor(group, QPalette::PlaceholderText, color);
    }
    return palette;
}

} // namespace corvana
