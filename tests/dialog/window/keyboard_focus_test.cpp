#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include "dialog/window/KeyboardFocus.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Where the frame is that shows the focus.
class KeyboardFocusTest : public QObject
{
    Q_OBJECT

private:
    static QRect placeIn(const QTabBar &bar)
    {
        return bar.tabRect(bar.currentIndex()).adjusted(3, 3, -3, -3);
    }

private Q_SLOTS:
    void theFrameOfATabGoesAlongWithIt()
    {
        const KeyboardFocus focus;
        QWidget window;
        window.resize(300, 100);
        auto *other = new QPushButton(&window);
        other->setGeometry(0, 60, 50, 30);
        auto *bar = new QTabBar(&window);
        bar->setUsesScrollButtons(true);
        for (int i = 0; i < 12; ++i)
            bar->addTab(u"Panel %1"_s.arg(i));
        bar->setGeometry(0, 0, 300, 40);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        window.setAttribute(Qt::WA_KeyboardFocusChange); // by Tab
        bar->setFocus(Qt::TabFocusReason);
        auto *frame = bar->findChild<QWidget *>(u"tabFrame"_s);
        QVERIFY(frame && frame->isVisible());
        QCOMPARE(frame->geometry(), placeIn(*bar));

        QToolButton *right = nullptr;
        for (QToolButton *button : bar->findChildren<QToolButton *>())
            right = button->objectName() == u"ScrollRightButton"_s ||
                            button->arrowType() == Qt::RightArrow
                        ? button
                        : right;
        QVERIFY(right && right->isVisible());
        const QRect before = placeIn(*bar);
        QTest::mouseClick(right, Qt::LeftButton);
        QVERIFY(placeIn(*bar) != before);
        QTRY_COMPARE(frame->geometry(), placeIn(*bar));
        for (int i = 0; i < 11; ++i) // to a tab that was out of sight
            QTest::keyClick(bar, Qt::Key_Right);
        QTRY_COMPARE(frame->geometry(), placeIn(*bar));
        QFont large = bar->font();
        large.setPointSize(large.pointSize() * 2);
        bar->setFont(large);
        QTRY_COMPARE(frame->geometry(), placeIn(*bar));
        bar->setTabText(0, u"A name that is longer"_s);
        QTRY_COMPARE(frame->geometry(), placeIn(*bar));
        // The buttons lie over it.
        QVERIFY(bar->children().indexOf(frame) < bar->children().indexOf(right));
    }
};

QTEST_MAIN(KeyboardFocusTest)

#include "keyboard_focus_test.moc"
