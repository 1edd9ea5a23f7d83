#pragma once

#include "platform/PlatformExport.h"

class QWidget;

namespace corvana {

/// Posted once when a window has accepted to close, with the window (a QWidget) as its sender.
inline constexpr char kWindowWillCloseNotification[] = "NSWindowWillCloseNotification";

/// Posted when a view has been laid out again after it took another size, with the view (a QWidget)
/// as its sender.
inline constexpr char kViewDidUpdateTrackingAreasNotification[] =
    "NSViewDidUpdateTrackingAreasNotification";

/// The window that a panel means by "the key window": the window that its view is in, shown or not;
/// for a view that is in none, the application's active window, else null.
CORVANA_PLATFORM_EXPORT QWidget *keyWindow(const QWidget *panelView);

/// Makes `window` post kWindowWillCloseNotification; asking twice posts once.
CORVANA_PLATFORM_EXPORT void postNotificationWhenClosing(QWidget *window);

/// Makes `view` post kViewDidUpdateTrackingAreasNotification once, when its layout is done.
CORVANA_PLATFORM_EXPORT void postNotificationWhenLaidOut(QWidget *view);

} // namespace corvana
