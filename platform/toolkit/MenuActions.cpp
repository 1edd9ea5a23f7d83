#include "platform/toolkit/MenuActions.h"

#include <QComboBox>

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ControlActions.h"

namespace corvana {

void postNotificationWhenMenuActs(QComboBox *menu)
{
    connectControlAction(menu, [menu](QWidget *) {
        NotificationCenter::defaultCenter().post(
            QLatin1StringView(kMenuDidSendActionNotification), menu,
            {{QLatin1StringView(kMenuItem), menu->currentText()}});
    });
}

} // namespace corvana
