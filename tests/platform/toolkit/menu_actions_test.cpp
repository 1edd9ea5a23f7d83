#include <QComboBox>
#include <QtTest>

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/MenuActions.h"
#include "platform/toolkit/PopUpButton.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class MenuActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_log.clear();
        m_menu = std::make_unique<QComboBox>();
        m_menu->addItems({u"A4"_s, u"A5"_s});
        connectControlAction(m_menu.get(), [this](QWidget *) { m_log += u"action"_s; });
        postNotificationWhenMenuActs(m_menu.get());
        NotificationCenter::defaultCenter().addObserver(
            this, QLatin1StringView(kMenuDidSendActionNotification), m_menu.get(),
            [this](const Notification &notification) {
                m_log += notification.userInfo.value(QLatin1StringView(kMenuItem)).toString();
                QVERIFY(notification.hasUserInfo);
                QCOMPARE(static_cast<QComboBox *>(notification.sender), m_menu.get());
            });
        QVERIFY(user::show(m_menu.get()));
    }
    void cleanup()
    {
        NotificationCenter::defaultCenter().removeObserver(this);
        m_menu.reset();
    }

    void aPickIsPostedAfterItsOwnAction()
    {
        user::pick(m_menu.get(), 1);
        QCOMPARE(m_log, (QStringList{u"action"_s, u"A5"_s}));
    }

    void theItemPickedAgainIsPostedAgain()
    {
        user::pick(m_menu.get(), 0);
        QCOMPARE(m_log, (QStringList{u"action"_s, u"A4"_s}));
    }

    void aProgrammaticSelectionIsNotPosted()
    {
        popup::selectItemAt(m_menu.get(), 1);
        QVERIFY(m_log.isEmpty());
    }

private:
    std::unique_ptr<QComboBox> m_menu;
    QStringList m_log;
};

QTEST_MAIN(MenuActionsTest)
#include "menu_actions_test.moc"
