#pragma once

#include <QString>

#include "platform/PlatformExport.h"

class QLabel;

namespace corvana {

/// A text that is shown as it is where Qt would take an "&" for the mark of a key to press: on
/// buttons, boxes, tabs, and labels that lead to a control.
CORVANA_PLATFORM_EXPORT QString withoutMnemonic(const QString &text);

/// Shows a text as it is, whether or not the label leads to a control: neither a key to press nor
/// markup is seen in it.
CORVANA_PLATFORM_EXPORT void setLiteralText(QLabel *label, const QString &text);

/// A text as the title of what stands behind it: with a colon, which French keeps off its word.
CORVANA_PLATFORM_EXPORT QString asTitle(const QString &text);

/// The text that a label shows: without the marks of keys to press, where it leads to a control.
CORVANA_PLATFORM_EXPORT QString literalText(const QLabel *label);

} // namespace corvana
