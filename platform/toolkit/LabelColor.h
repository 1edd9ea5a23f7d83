#pragma once

#include <QMetaType>

#include "platform/PlatformExport.h"

class QWidget;

namespace corvana {

/// The text colour of a label, as a role of the palette rather than a colour: it follows a change
/// between light and dark.
enum class ControlTextColor { Normal, Disabled };

/// Gives a label (a text field) the colour of normal or disabled control text, now and after every
/// change of the application's palette.
CORVANA_PLATFORM_EXPORT void setTextColor(QWidget *label, ControlTextColor color);

/// The colour last given by setTextColor(); Normal for a label that never got one.
CORVANA_PLATFORM_EXPORT ControlTextColor textColor(const QWidget *label);

} // namespace corvana

Q_DECLARE_METATYPE(corvana::ControlTextColor)
