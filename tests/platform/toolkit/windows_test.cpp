#include <QtTest>

#include <QCloseEvent>

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/Windows.h"

#include "UserActs.h"

using namespace corvana;

class WindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theWindowOfTheViewIsKey();
    void aViewInAHiddenWindowHasThatOne();
    void aViewInNoWindowHasTheActiveOne();
    void withoutAnyWindowNoneIsKey();
    void anAcceptedCloseIsPostedOnceWithTheWindowAsItsSender();
    void aRefusedCloseIsNotPosted();
    void aWindowHiddenAfterARefusedCloseIsNotPosted();
    void aCloseAcceptedAfterAQuestionIsPosted();
    void aCloseRefusedAfterAQuestionIsNotPosted();
    void aHiddenWindowIsNotPosted();
    void aWindowClosedTwiceIsPostedTwice();
    void watchingTwicePostsOnce();
    void aWindowThatNobodyWatchesIsNotPosted();
    void anObserverMayDeleteTheWindow();
    void aWindowThatDiesOpenIsNotPosted();

private:
    QList<void *> m_posted;
};

namespace {

class Window : public QWidget
{
public:
    bool accepts = true;
    bool asks = false;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        if (asks)
            user::runNestedEventLoop();
        event->setAccepted(accepts);
    }
};

} // namespace

void WindowsTest::init()
{
    m_posted.clear();
    NotificationCenter::defaultCenter().addObserver(
        this, QLatin1StringView(kWindowWillCloseNotification), nullptr,
        [this](const Notification &notification) { m_posted += notification.sender; });
}

void WindowsTest::cleanup()
{
    NotificationCenter::defaultCenter().removeObserver(this);
}

void WindowsTest::theWindowOfTheViewIsKey()
{
    QWidget window;
    QWidget view(&window);
    window.show();
    QWidget other;
    QVERIFY(user::show(&other));
    QCOMPARE(keyWindow(&view), &window);
    QCOMPARE(keyWindow(&window), &window);
}

// Another window may be active while a dialog is still being built, or is none that shows.
void WindowsTest::aViewInAHiddenWindowHasThatOne()
{
    QWidget hidden;
    QWidget view(&hidden);
    QWidget active;
    QVERIFY(user::show(&active));
    QCOMPARE(keyWindow(&view), &hidden);
}

void WindowsTest::aViewInNoWindowHasTheActiveOne()
{
    const QWidget view;
    QWidget active;
    QVERIFY(user::show(&active));
    QCOMPARE(keyWindow(&view), &active);
    QCOMPARE(keyWindow(nullptr), &active);
}

void WindowsTest::withoutAnyWindowNoneIsKey()
{
    QTRY_VERIFY(!QApplication::activeWindow());
    const QWidget view;
    QVERIFY(!keyWindow(&view));
    QVERIFY(!keyWindow(nullptr));
}

void WindowsTest::anAcceptedCloseIsPostedOnceWithTheWindowAsItsSender()
{
    Window window;
    postNotificationWhenClosing(&window);
    window.show();
    QVERIFY(window.close());
    // Observers take the sender for a widget.
    QCOMPARE(m_posted, QList<void *>{static_cast<QWidget *>(&window)});
    QCoreApplication::processEvents();
    QCOMPARE(m_posted.count(), 1);
}

void WindowsTest::aRefusedCloseIsNotPosted()
{
    Window window;
    window.accepts = false;
    postNotificationWhenClosing(&window);
    window.show();
    QVERIFY(!window.close());
    QCoreApplication::processEvents();
    QCOMPARE(m_posted.count(), 0);
    window.accepts = true;
    QVERIFY(window.close());
    QCOMPARE(m_posted.count(), 1);
}

void WindowsTest::aWindowHiddenAfterARefusedCloseIsNotPosted()
{
    Window window;
    window.accepts = false;
    postNotificationWhenClosing(&window);
    window.show();
    QVERIFY(!window.close());
    QCoreApplication::processEvents();
    window.hide();
    QCOMPARE(m_posted.count(), 0);
}

void WindowsTest::aCloseAcceptedAfterAQuestionIsPosted()
{
    Window window;
    window.asks = true;
    postNotificationWhenClosing(&window);
    window.show();
    QVERIFY(window.close());
    QCOMPARE(m_posted.count(), 1);
}

void WindowsTest::aCloseRefusedAfterAQuestionIsNotPosted()
{
    Window window;
    window.asks = true;
    window.accepts = false;
    postNotificationWhenClosing(&window);
    window.show();
    QVERIFY(!window.close());
    QCoreApplication::processEvents();
    window.hide();
    QCOMPARE(m_posted.count(), 0);
}

void WindowsTest::aHiddenWindowIsNotPosted()
{
    Window window;
    postNotificationWhenClosing(&window);
    window.show();
    window.hide();
    window.show();
    window.setVisible(false);
    QCOMPARE(m_posted.count(), 0);
}

void WindowsTest::aWindowClosedTwiceIsPostedTwice()
{
    Window window;
    postNotificationWhenClosing(&window);
    for (int i = 0; i < 2; ++i) {
        window.show();
        QVERIFY(window.close());
    }
    QCOMPARE(m_posted.count(), 2);
}

void WindowsTest::watchingTwicePostsOnce()
{
    Window window;
    postNotificationWhenClosing(&window);
    postNotificationWhenClosing(&window);
    window.show();
    window.close();
    QCOMPARE(m_posted.count(), 1);
}

void WindowsTest::aWindowThatNobodyWatchesIsNotPosted()
{
    Window watched;
    Window window;
    postNotificationWhenClosing(&watched);
    watched.show();
    window.show();
    window.close();
    QCOMPARE(m_posted.count(), 0);
}

void WindowsTest::anObserverMayDeleteTheWindow()
{
    auto *window = new Window;
    window->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QWidget> guard(window);
    postNotificationWhenClosing(window);
    window->show();
    window->close();
    QCOMPARE(m_posted.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!guard);
}

void WindowsTest::aWindowThatDiesOpenIsNotPosted()
{
    {
        Window window;
        postNotificationWhenClosing(&window);
        window.show();
    }
    QCOMPARE(m_posted.count(), 0);
}

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"
