#pragma once

#include "platform/PlatformExport.h"

class QComboBox;

namespace corvana {

/// Posted after the user picked an item of a menu and the item's own action has run, with the menu
/// (a QComboBox) as its sender and the item's title under kMenuItem.
inline constexpr char kMenuDidSendActionNotification[] = "NSMenuDidSendActionNotification";
inline constexpr char kMenuItem[] = "MenuItem";

/// Makes a pop-up post kMenuDidSendActionNotification. To be called after its action was connected.
CORVANA_PLATFORM_EXPORT void postNotificationWhenMenuActs(QComboBox *menu);

} // namespace corvana
