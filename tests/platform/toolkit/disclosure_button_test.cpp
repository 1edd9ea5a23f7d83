#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>
#include <QtTest>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/DisclosureButton.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class DisclosureButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QDialog>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_heading = new QLabel(u"Advanced"_s);
        m_button = new DisclosureButton;
        layout->addWidget(m_heading);
        layout->addWidget(m_button);
        m_button->setHeading(m_heading);
        m_fired = 0;
        connectControlAction(m_button, [this](QWidget *) { ++m_fired; });
        QVERIFY(user::show(m_window.get()));
    }
    void cleanup() { m_window.reset(); }

    void aClickSwitchesItsState()
    {
        QVERIFY(!m_button->isChecked());
        QTest::mouseClick(m_button, Qt::LeftButton);
        QVERIFY(m_button->isChecked());
        QTest::mouseClick(m_button, Qt::LeftButton);
        QVERIFY(!m_button->isChecked());
        QCOMPARE(m_fired, 2);
    }

    void aClickOnTheHeadingIsOneOnTheButton()
    {
        QTest::mouseClick(m_heading, Qt::LeftButton);
        QVERIFY(m_button->isChecked());
        QCOMPARE(m_fired, 1);
    }

    void onlyTheLeftButtonClicks()
    {
        QTest::mouseClick(m_heading, Qt::RightButton);
        QTest::mouseClick(m_heading, Qt::MiddleButton);
        QVERIFY(!m_button->isChecked());
        QCOMPARE(m_fired, 0);
    }

    void aPressThatEndsElsewhereIsNoClick()
    {
        QTest::mousePress(m_heading, Qt::LeftButton);
        QTest::mouseRelease(m_heading, Qt::LeftButton, {}, QPoint(-50, -50));
        QVERIFY(!m_button->isChecked());
    }

    void aDisabledButtonHasADeadHeading()
    {
        m_button->setEnabled(false);
        QTest::mouseClick(m_heading, Qt::LeftButton);
        QVERIFY(!m_button->isChecked());
        QCOMPARE(m_fired, 0);
    }

    void theKeyboardSwitchesIt()
    {
        m_button->setFocus();
        QTest::keyClick(m_button, Qt::Key_Space);
        QVERIFY(m_button->isChecked());
    }

    void theReturnKeyIsLeftToTheDialog()
    {
        m_button->setFocus();
        QVERIFY(!m_button->autoDefault());
        QTest::keyClick(m_button, Qt::Key_Return);
        QVERIFY(!m_button->isChecked());
    }

    void theHeadingNamesTheButton()
    {
        QCOMPARE(m_heading->buddy(), m_button);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(m_button);
        QVERIFY(interface);
        QCOMPARE(interface->text(QAccessible::Name), u"Advanced"_s);
        QVERIFY(interface->state().expandable);
    }

    void itShowsItsState()
    {
        const QImage closed = m_button->grab().toImage();
        m_button->setChecked(true);
        const QImage open = m_button->grab().toImage();
        QVERIFY(closed != open);
        m_button->setChecked(false);
        QCOMPARE(m_button->grab().toImage(), closed);
        m_button->setLayoutDirection(Qt::RightToLeft);
        QVERIFY(m_button->grab().toImage() != closed);
    }

    void itShowsTheFocus()
    {
        m_window->setAttribute(Qt::WA_KeyboardFocusChange); // styles show it to the keyboard only
        m_button->clearFocus();
        const QImage without = m_button->grab().toImage();
        m_button->setFocus();
        QVERIFY(m_button->grab().toImage() != without);
    }

private:
    std::unique_ptr<QDialog> m_window;
    QLabel *m_heading = nullptr;
    DisclosureButton *m_button = nullptr;
    int m_fired = 0;
};

QTEST_MAIN(DisclosureButtonTest)
#include "disclosure_button_test.moc"
