// Pop-up buttons report one act of the user with two signals; the action must run once.

#include <QtTest>

#include <QComboBox>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PopUpButton.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class OneActOfTheUserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPickFromTheListFiresOnce();
    void theCurrentItemPickedAgainFires();
    void anArrowKeyFiresOnce();
    void typingTheFirstLetterFiresOnce();
    void assistiveTechnologyFiresOnce();
    void theSelectionIsMadeWhenTheActionRuns();
    void anActionThatWaitsFiresOnce();
    void anActionThatWaitsFiresOnceEachTime();
    void quickPicksFireOnceEachEvenIfOneWaits();
    void aPickWhileAnActionWaitsFiresOnceEach();
    void aRefusedPickFiresOnceAndCanBeRepeated();
    void anActionMayRebuildTheItems();
    void aPickRightAfterTheItemsWereRebuiltFires();
    void aProgrammaticSelectionNeverFires();

private:
    std::unique_ptr<QComboBox> m_popUp;
    QStringList m_fired;
    std::function<void()> m_then; // what the action does beside being counted
};

void OneActOfTheUserTest::init()
{
    m_popUp = std::make_unique<QComboBox>();
    for (const char *title : {"Auto", "Cassette", "Tray"})
        popup::addItemWithTitle(m_popUp.get(), QString::fromLatin1(title));
    popup::selectItemAt(m_popUp.get(), 0);
    m_fired.clear();
    m_then = nullptr;
    QVERIFY(connectControlAction(m_popUp.get(), [this](QWidget *control) {
        m_fired += static_cast<QComboBox *>(control)->currentText();
        if (m_then)
            m_then();
    }));
    QVERIFY(user::show(m_popUp.get()));
}

void OneActOfTheUserTest::aPickFromTheListFiresOnce()
{
    user::pick(m_popUp.get(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_fired, QStringList{u"Cassette"_s});
}

void OneActOfTheUserTest::theCurrentItemPickedAgainFires()
{
    user::pick(m_popUp.get(), 0);
    QCOMPARE(m_fired, QStringList{u"Auto"_s});
    user::pick(m_popUp.get(), 2);
    user::pick(m_popUp.get(), 2);
    QCOMPARE(m_fired, (QStringList{u"Auto"_s, u"Tray"_s, u"Tray"_s}));
}

void OneActOfTheUserTest::anArrowKeyFiresOnce()
{
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QTest::keyClick(m_popUp.get(), Qt::Key_Up);
    QCOMPARE(m_fired, (QStringList{u"Cassette"_s, u"Tray"_s, u"Cassette"_s}));
}

void OneActOfTheUserTest::typingTheFirstLetterFiresOnce()
{
    QTest::keyClick(m_popUp.get(), Qt::Key_T);
    QCoreApplication::processEvents();
    QCOMPARE(m_fired, QStringList{u"Tray"_s});
}

void OneActOfTheUserTest::assistiveTechnologyFiresOnce()
{
    m_popUp->setCurrentIndex(2); // nobody but the program's own scopes is programmatic
    QCoreApplication::processEvents();
    QCOMPARE(m_fired, QStringList{u"Tray"_s});
    // What follows is an act of its own.
    user::pick(m_popUp.get(), 2);
    QCOMPARE(m_fired.count(), 2);
}

void OneActOfTheUserTest::theSelectionIsMadeWhenTheActionRuns()
{
    int told = -1;
    m_then = [&] { told = m_popUp->currentIndex(); };
    user::pick(m_popUp.get(), 2);
    QCOMPARE(told, 2);
}

void OneActOfTheUserTest::anActionThatWaitsFiresOnce()
{
    m_then = &user::runNestedEventLoop;
    user::pick(m_popUp.get(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(m_fired, QStringList{u"Cassette"_s});
}

void OneActOfTheUserTest::anActionThatWaitsFiresOnceEachTime()
{
    m_then = &user::runNestedEventLoop;
    user::pick(m_popUp.get(), 1);
    user::pick(m_popUp.get(), 1);
    user::pick(m_popUp.get(), 2);
    QCOMPARE(m_fired.count(), 3);
}

void OneActOfTheUserTest::quickPicksFireOnceEachEvenIfOneWaits()
{
    // Both are in the queue before the event loop turns, as on a busy machine.
    m_then = [this] {
        if (m_popUp->currentIndex() == 2)
            user::runNestedEventLoop();
    };
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QCOMPARE(m_fired, (QStringList{u"Cassette"_s, u"Tray"_s}));
}

void OneActOfTheUserTest::aPickWhileAnActionWaitsFiresOnceEach()
{
    m_then = [this] {
        if (m_popUp->currentIndex() == 1) {
            QTest::keyClick(m_popUp.get(), Qt::Key_Down);
            user::runNestedEventLoop();
        }
    };
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QCOMPARE(m_fired, (QStringList{u"Cassette"_s, u"Tray"_s}));
}

void OneActOfTheUserTest::aRefusedPickFiresOnceAndCanBeRepeated()
{
    m_then = [this] { popup::selectItemAt(m_popUp.get(), 0); };
    user::pick(m_popUp.get(), 2);
    QCOMPARE(m_popUp->currentIndex(), 0);
    user::pick(m_popUp.get(), 2);
    QCOMPARE(m_fired, (QStringList{u"Tray"_s, u"Tray"_s}));
}

void OneActOfTheUserTest::anActionMayRebuildTheItems()
{
    m_then = [this] {
        popup::removeAllItems(m_popUp.get());
        popup::addItemWithTitle(m_popUp.get(), u"Tray"_s);
        popup::selectItemAt(m_popUp.get(), 0);
    };
    user::pick(m_popUp.get(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(m_fired, QStringList{u"Tray"_s});
}

void OneActOfTheUserTest::aPickRightAfterTheItemsWereRebuiltFires()
{
    // Without a selection at its end, the first act lacks its second signal.
    m_then = [this] { popup::selectItemAt(m_popUp.get(), -1); };
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QCoreApplication::processEvents();
    m_then = nullptr;
    user::pick(m_popUp.get(), 1);
    user::pick(m_popUp.get(), 1);
    QCOMPARE(m_fired.count(), 3);
}

void OneActOfTheUserTest::aProgrammaticSelectionNeverFires()
{
    for (const int index : {2, 2, -1, 0})
        popup::selectItemAt(m_popUp.get(), index);
    QCoreApplication::processEvents();
    QCOMPARE(m_fired, QStringList());
}

QTEST_MAIN(OneActOfTheUserTest)
#include "one_act_of_the_user_test.moc"
