#pragma once

#include <QPalette>

class QApplication;

namespace corvana {

/// How much a text differs from what is behind it, as WCAG 2 counts it. `text` may be transparent.
/// Range: 1, the same color, to 21, black on white.
double contrast(const QColor &text, const QColor &background);

/// The palette with hints, and with texts on the highlight, that people with weak sight can read.
/// Qt's own hints have less than 4.5 to 1 in a light theme, as has its highlight; and some platform
/// themes set the colors of texts and of what is behind them, and forget the hints, so that in a
/// dark theme these stay black. What is readable stays as the theme has it.
QPalette withReadableTexts(QPalette palette);

/// Gives every widget of the program that palette, and the one that comes of another theme.
void keepTextsReadable(QApplication &application);

} // namespace corvana
