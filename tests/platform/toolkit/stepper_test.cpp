#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/Stepper.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class StepperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_field = new QLineEdit;
        m_other = new QLineEdit;
        m_stepper = new Stepper;
        for (QWidget *widget : {static_cast<QWidget *>(m_field), static_cast<QWidget *>(m_other),
                                static_cast<QWidget *>(m_stepper)})
            layout->addWidget(widget);
        m_stepper->setRange(1, 20);
        m_stepper->setValue(5);
        m_steps = 0;
        connectControlAction(m_stepper, [this](QWidget *) { ++m_steps; });
        QVERIFY(user::show(m_window.get()));
    }
    void cleanup() { m_window.reset(); }

    void theArrowsStepUpAndDown()
    {
        QTest::mouseClick(arrow(Qt::UpArrow), Qt::LeftButton);
        QCOMPARE(m_stepper->value(), 6);
        QCOMPARE(m_steps, 1);
        QTest::mouseClick(arrow(Qt::DownArrow), Qt::LeftButton);
        QTest::mouseClick(arrow(Qt::DownArrow), Qt::LeftButton);
        QCOMPARE(m_stepper->value(), 4);
        QCOMPARE(m_steps, 3);
        QVERIFY(arrow(Qt::UpArrow)->y() < arrow(Qt::DownArrow)->y());
    }

    void anArrowThatLeadsOutOfTheRangeIsDisabled_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("up");
        QTest::addColumn<bool>("down");
        QTest::newRow("inside") << 5 << true << true;
        QTest::newRow("the lowest") << 1 << true << false;
        QTest::newRow("the highest") << 20 << false << true;
    }
    void anArrowThatLeadsOutOfTheRangeIsDisabled()
    {
        QFETCH(int, value);
        QFETCH(bool, up);
        QFETCH(bool, down);
        m_stepper->setValue(value);
        QCOMPARE(arrow(Qt::UpArrow)->isEnabled(), up);
        QCOMPARE(arrow(Qt::DownArrow)->isEnabled(), down);
    }

    void anotherRangeEnablesTheArrowsAnew()
    {
        m_stepper->setRange(5, 5);
        QVERIFY(!arrow(Qt::UpArrow)->isEnabled());
        QVERIFY(!arrow(Qt::DownArrow)->isEnabled());
        m_stepper->setRange(0, 9);
        QVERIFY(arrow(Qt::UpArrow)->isEnabled());
        QVERIFY(arrow(Qt::DownArrow)->isEnabled());
    }

    void theKeysStep_data()
    {
        QTest::addColumn<bool>("inField");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("value");
        for (const bool inField : {false, true}) {
            const char *where = inField ? "in the field" : "on the stepper";
            QTest::addRow("up, %s", where) << inField << int(Qt::Key_Up) << 6;
            QTest::addRow("down, %s", where) << inField << int(Qt::Key_Down) << 4;
            QTest::addRow("page up, %s", where) << inField << int(Qt::Key_PageUp) << 15;
            QTest::addRow("page down, %s", where) << inField << int(Qt::Key_PageDown) << 1;
        }
    }
    void theKeysStep()
    {
        QFETCH(bool, inField);
        QFETCH(int, key);
        QFETCH(int, value);
        QWidget *focus = m_stepper;
        if (inField) {
            m_stepper->setField(m_field);
            focus = m_field;
        }
        focus->setFocus();
        QVERIFY(focus->hasFocus());
        QTest::keyClick(focus, static_cast<Qt::Key>(key));
        QCOMPARE(m_stepper->value(), value);
        QCOMPARE(m_steps, 1);
    }

    void otherKeysAreTheFields()
    {
        m_stepper->setField(m_field);
        m_field->setFocus();
        QTest::keyClicks(m_field, u"12"_s);
        QTest::keyClick(m_field, Qt::Key_Home);
        QTest::keyClick(m_field, Qt::Key_Right);
        QCOMPARE(m_field->text(), u"12"_s);
        QCOMPARE(m_field->cursorPosition(), 1);
        QCOMPARE(m_steps, 0);
    }

    void theFieldStepsOnlyWhileItHasTheFocus()
    {
        m_stepper->setField(m_field);
        m_other->setFocus();
        QTest::keyClick(m_field, Qt::Key_Up);
        QCOMPARE(m_stepper->value(), 5);
        turnWheelOver(m_field);
        QCOMPARE(m_stepper->value(), 5);
        m_field->setFocus();
        turnWheelOver(m_field);
        QCOMPARE(m_stepper->value() > 5, true);
    }

    void theFieldStepsNothingThatIsDisabled_data()
    {
        QTest::addColumn<bool>("stepper");
        QTest::newRow("the stepper is disabled") << true;
        QTest::newRow("the field is disabled") << false;
    }
    void theFieldStepsNothingThatIsDisabled()
    {
        QFETCH(bool, stepper);
        m_stepper->setField(m_field);
        m_field->setFocus();
        if (stepper)
            m_stepper->setEnabled(false);
        else
            m_field->setEnabled(false);
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QCoreApplication::sendEvent(m_field, &up);
        QCOMPARE(m_stepper->value(), 5);
    }

    void withAFieldTheArrowsTakeNoFocus()
    {
        QVERIFY(m_stepper->focusPolicy() & Qt::TabFocus);
        m_stepper->setField(m_field);
        m_field->setFocus();
        QTest::mouseClick(arrow(Qt::UpArrow), Qt::LeftButton);
        QVERIFY(m_field->hasFocus());
        QCOMPARE(m_stepper->focusPolicy(), Qt::NoFocus);
    }

    void assistiveTechnologySteps()
    {
        QVERIFY(user::setValue(m_stepper, 7));
        QCOMPARE(m_stepper->value(), 7);
        QCOMPARE(m_steps, 1);
    }

    void theArrowsHaveRoom()
    {
        for (const Qt::ArrowType type : {Qt::UpArrow, Qt::DownArrow}) {
            QVERIFY(arrow(type)->width() >= 8);
            QVERIFY(arrow(type)->height() >= 6);
        }
        QVERIFY(!m_stepper->sizeHint().isEmpty());
        QCOMPARE(m_stepper->size(), m_stepper->sizeHint());
    }

    void theFieldMayGoFirst()
    {
        m_stepper->setField(m_field);
        delete m_field;
        QTest::mouseClick(arrow(Qt::UpArrow), Qt::LeftButton);
        QCOMPARE(m_stepper->value(), 6);
    }

    void theStepperMayGoFirst()
    {
        m_stepper->setField(m_field);
        delete m_stepper;
        m_field->setFocus();
        QTest::keyClick(m_field, Qt::Key_Up);
        QVERIFY(m_field->hasFocus());
    }

private:
    QToolButton *arrow(Qt::ArrowType type) const
    {
        for (auto *button : m_stepper->findChildren<QToolButton *>()) {
            if (button->arrowType() == type)
                return button;
        }
        qFatal("no such arrow");
    }
    static void turnWheelOver(QWidget *widget)
    {
        const QPointF centre = widget->rect().center();
        QWheelEvent wheel(centre, widget->mapToGlobal(centre), {}, QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &wheel);
    }

    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_field = nullptr;
    QLineEdit *m_other = nullptr;
    Stepper *m_stepper = nullptr;
    int m_steps = 0;
};

QTEST_MAIN(StepperTest)
#include "stepper_test.moc"
