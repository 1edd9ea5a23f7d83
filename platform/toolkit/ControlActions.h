#pragma once

#include <functional>

#include <QVariant>

#include "platform/PlatformExport.h"

class QObject;
class QWidget;

namespace corvana {

/// What runs when the user changes a control; the argument is the control itself.
using ControlAction = std::function<void(QWidget *)>;

/// Calls `action` for every change of `control` that is the user's own, including picking what was
/// picked already; never for a programmatic change, and once for one act of the user. A view of an
/// image, which nobody changes, acts whenever it took another size.
///
/// Errors: false for a control that has nothing to act on.
CORVANA_PLATFORM_EXPORT bool connectControlAction(QWidget *control, const ControlAction &action);

/// The tag that the interface file gave a control, 0 without one.
CORVANA_PLATFORM_EXPORT int controlTag(const QObject *control);

/// Whether the control itself is enabled, whatever its ancestors are.
CORVANA_PLATFORM_EXPORT bool isControlEnabled(const QWidget *control);

/// Makes a pop-up button, slider or number field ignore the wheel while it has no focus, so that
/// scrolling a page never changes a setting.
CORVANA_PLATFORM_EXPORT void ignoreWheelWithoutFocus(QWidget *control);

} // namespace corvana
