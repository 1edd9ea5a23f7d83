#include "dialog/window/ReadableTexts.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QColor>
#include <QEvent>
#include <QScopedValueRollback>

namespace corvana {

namespace {

// What a text must have over its background for people with weak sight (WCAG 2, level AA).
constexpr double kLeastContrast = 4.5;
// Hints stand on panes, too, which styles paint a little lighter or darker than the window.
constexpr double kLeastOfHints = 5.0;
constexpr int kOpaque = 255;
// What Qt makes of the text's color where it chooses that of placeholders.
constexpr int kUsualAlpha = 128;
constexpr int kStep = 4;

double linear(int component)
{
    const double part = component / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) +
           0.0722 * linear(color.blue());
}

QColor over(const QColor &color, const QColor &background)
{
    const int alpha = color.alpha();
    const auto mixed = [alpha](int above, int below) {
        return (above * alpha + below * (kOpaque - alpha)) / kOpaque;
    };
    return {mixed(color.red(), background.red()), mixed(color.green(), background.green()),
            mixed(color.blue(), background.blue())};
}

// Hints stand in fields and lists, and beside them on the window.
bool isReadable(const QColor &color, const QPalette &palette, QPalette::ColorGroup group)
{
    const auto on = [&](QPalette::ColorRole role) {
        return contrast(color, palette.color(group, role)) >= kLeastOfHints;
    };
    return on(QPalette::Base) && on(QPalette::Window);
}

void mendPlaceholders(QPalette &palette, QPalette::ColorGroup group)
{
    if (isReadable(palette.color(group, QPalette::PlaceholderText), palette, group))
        return;
    QColor color = palette.color(group, QPalette::Text);
    for (int alpha = kUsualAlpha; alpha < kOpaque; alpha += kStep) {
        color.setAlpha(alpha);
        if (isReadable(color, palette, group))
            break;
        color.setAlpha(kOpaque);
    }
    palette.setColor(group, QPalette::PlaceholderText, color);
}

// Qt's own highlight has 3.7 to 1. The text on it is what all themes agree on: black or white.
void mendHighlight(QPalette &palette, QPalette::ColorGroup group)
{
    const QColor text = palette.color(group, QPalette::HighlightedText);
    const QColor away = luminance(text) > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
    const QColor given = palette.color(group, QPalette::Highlight);
    for (int alpha = 0; alpha <= kOpaque; alpha += kStep) {
        QColor shade = away;
        shade.setAlpha(alpha);
        const QColor color = over(shade, given);
        if (contrast(text, color) < kLeastContrast)
            continue;
        if (alpha > 0)
            palette.setColor(group, QPalette::Highlight, color);
        return;
    }
}

/// Sees to it that widgets get readable texts whenever the palette of the program changes.
class PaletteKeeper : public QObject
{
public:
    explicit PaletteKeeper(QApplication &application) : QObject(&application)
    {
        application.installEventFilter(this);
        mend();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parent() && event->type() == QEvent::ApplicationPaletteChange &&
            !m_isMending) {
            mend();
            // Once more: behind this event Qt drops the palettes of classes, where the new one is
            // that of a theme.
            QMetaObject::invokeMethod(
                this, [this] { mend(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void mend()
    {
        // What is set here is such a change, too, and a style may make something else of it.
        const QScopedValueRollback<bool> mending(m_isMending, true);
        constexpr char kAllWidgets[] = "QWidget";
        QPalette palette = withReadableTexts(QApplication::palette());
        // What is set by itself in a palette of the program makes a palette of its own for each
        // widget. What a style has drawn for one would then serve no other one: seven equal boxes
        // are drawn seven times.
        palette.setResolveMask(0);
        if (palette != QApplication::palette(kAllWidgets))
            QApplication::setPalette(palette, kAllWidgets);
    }

    bool m_isMending = false;
};

} // namespace

void keepTextsReadable(QApplication &application)
{
    new PaletteKeeper(application);
}

double contrast(const QColor &text, const QColor &background)
{
    const double one = luminance(over(text, background));
    const double other = luminance(background);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QPalette withReadableTexts(QPalette palette)
{
    // What is disabled may be as weak as the theme likes.
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        mendPlaceholders(palette, group);
        mendHighlight(palette, group);
    }
    return palette;
}

} // namespace corvana
