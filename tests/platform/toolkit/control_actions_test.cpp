#include <QtTest>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/RadioMatrix.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class ControlActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fired.clear(); }
    void aCheckBoxFiresOnceForEachActOfTheUser();
    void aCheckBoxThatWaitsFiresOnce();
    void aButtonFiresWhenItIsPressed();
    void aSliderFiresForEachStepOfTheUser();
    void aRangeOfASliderFiresNothing();
    void aFieldFiresWhenItIsLeftOrConfirmed();
    void aFieldThatNobodyChangedFiresNothing();
    void aMatrixFiresForARowOfTheUser();
    void aProgrammaticChangeNeverFires();
    void theActionIsGivenItsControl();
    void aControlWithoutActionsIsRefused();
    void theTagIsThatOfTheInterfaceFile_data();
    void theTagIsThatOfTheInterfaceFile();
    void enabledIsTheControlsOwnState();

private:
    ControlAction counter()
    {
        return [this](QWidget *control) { m_fired += control; };
    }

    QList<QWidget *> m_fired;
};

void ControlActionsTest::aCheckBoxFiresOnceForEachActOfTheUser()
{
    QCheckBox box;
    QVERIFY(connectControlAction(&box, counter()));
    QVERIFY(user::show(&box));
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
    QCOMPARE(m_fired.count(), 1);
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(m_fired.count(), 2);
    QVERIFY(user::act(&box, QAccessibleActionInterface::toggleAction()));
    QTRY_COMPARE(m_fired.count(), 3);
    QVERIFY(box.isChecked());
}

void ControlActionsTest::aCheckBoxThatWaitsFiresOnce()
{
    QCheckBox box;
    int fired = 0;
    QVERIFY(connectControlAction(&box, [&](QWidget *) {
        ++fired;
        user::runNestedEventLoop();
    }));
    QVERIFY(user::show(&box));
    QTest::keyClick(&box, Qt::Key_Space);
    QCoreApplication::processEvents();
    QCOMPARE(fired, 1);
}

void ControlActionsTest::aButtonFiresWhenItIsPressed()
{
    QPushButton button;
    QVERIFY(connectControlAction(&button, counter()));
    QVERIFY(user::show(&button));
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(m_fired.count(), 2);
    QVERIFY(user::act(&button, QAccessibleActionInterface::pressAction()));
    QTRY_COMPARE(m_fired.count(), 3);
}

void ControlActionsTest::aSliderFiresForEachStepOfTheUser()
{
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 10);
    QVERIFY(connectControlAction(&slider, counter()));
    QVERIFY(user::show(&slider));
    QTest::keyClick(&slider, Qt::Key_Right);
    QTest::keyClick(&slider, Qt::Key_Right);
    QCOMPARE(m_fired.count(), 2);
    QVERIFY(user::setValue(&slider, 7));
    QCOMPARE(m_fired.count(), 3);
    QTest::keyClick(&slider, Qt::Key_End);
    QTest::keyClick(&slider, Qt::Key_End); // it is there already
    QCOMPARE(m_fired.count(), 4);
}

void ControlActionsTest::aRangeOfASliderFiresNothing()
{
    QSlider slider;
    slider.setRange(0, 10);
    slider.setValue(9);
    QVERIFY(connectControlAction(&slider, counter()));
    slider.setRange(-4, 4);
    QCOMPARE(slider.value(), 4);
    slider.setMinimum(6);
    QCOMPARE(slider.value(), 6);
    QCOMPARE(m_fired.count(), 0);
}

void ControlActionsTest::aFieldFiresWhenItIsLeftOrConfirmed()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *field = new QLineEdit;
    auto *other = new QLineEdit;
    layout->addWidget(field);
    layout->addWidget(other);
    QVERIFY(connectControlAction(field, counter()));
    QVERIFY(user::show(&window));
    field->setFocus();
    QTest::keyClicks(field, u"12"_s);
    QCOMPARE(m_fired.count(), 0);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(m_fired.count(), 1);
    QTest::keyClicks(field, u"3"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(other->hasFocus());
    QCOMPARE(m_fired.count(), 2);
}

void ControlActionsTest::aFieldThatNobodyChangedFiresNothing()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *field = new QLineEdit;
    auto *other = new QLineEdit;
    layout->addWidget(field);
    layout->addWidget(other);
    QVERIFY(connectControlAction(field, counter()));
    QVERIFY(user::show(&window));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(other->hasFocus());
    QCOMPARE(m_fired.count(), 0);
    // Confirmed with Return and then left: that was one act.
    field->setFocus();
    QTest::keyClicks(field, u"5"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(other->hasFocus());
    QCOMPARE(m_fired.count(), 1);
}

void ControlActionsTest::aMatrixFiresForARowOfTheUser()
{
    RadioMatrix matrix;
    matrix.setNumberOfRows(2);
    QVERIFY(connectControlAction(&matrix, counter()));
    matrix.cell(1)->click();
    QCOMPARE(m_fired, QList<QWidget *>{&matrix});
    matrix.selectRow(0);
    QCOMPARE(m_fired.count(), 1);
}

void ControlActionsTest::aProgrammaticChangeNeverFires()
{
    QCheckBox box;
    QPushButton button;
    QSlider slider;
    QLineEdit field;
    for (QWidget *control : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&button),
                             static_cast<QWidget *>(&slider), static_cast<QWidget *>(&field)})
        QVERIFY(connectControlAction(control, counter()));
    {
        const ProgrammaticChange change;
        box.setChecked(true);
        button.click();
        slider.setValue(5);
        field.setText(u"5"_s);
        Q_EMIT field.editingFinished();
    }
    QCoreApplication::processEvents();
    QCOMPARE(m_fired.count(), 0);
}

void ControlActionsTest::theActionIsGivenItsControl()
{
    QCheckBox first;
    QCheckBox second;
    QVERIFY(connectControlAction(&first, counter()));
    QVERIFY(connectControlAction(&second, counter()));
    second.click();
    first.click();
    QCOMPARE(m_fired, (QList<QWidget *>{&second, &first}));
}

void ControlActionsTest::aControlWithoutActionsIsRefused()
{
    QLabel label;
    QGroupBox box;
    QWidget plain;
    for (QWidget *control : {static_cast<QWidget *>(&label), static_cast<QWidget *>(&box), &plain})
        QVERIFY(!connectControlAction(control, counter()));
}

void ControlActionsTest::theTagIsThatOfTheInterfaceFile_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::addColumn<int>("tag");
    QTest::newRow("none") << QVariant() << 0;
    QTest::newRow("number") << QVariant(7) << 7;
    QTest::newRow("negative") << QVariant(-1) << -1;
    QTest::newRow("text") << QVariant(u"seven"_s) << 0;
}

void ControlActionsTest::theTagIsThatOfTheInterfaceFile()
{
    QFETCH(QVariant, property);
    QFETCH(int, tag);
    QObject control;
    control.setProperty("tag", property);
    QCOMPARE(controlTag(&control), tag);
}

void ControlActionsTest::enabledIsTheControlsOwnState()
{
    QWidget window;
    QGroupBox group(&window);
    QCheckBox box(&group);
    group.setEnabled(false);
    window.setEnabled(false);
    QVERIFY(!box.isEnabled());
    QVERIFY(isControlEnabled(&box));
    box.setEnabled(false);
    QVERIFY(!isControlEnabled(&box));
    group.setEnabled(true);
    window.setEnabled(true);
    QVERIFY(!isControlEnabled(&box));
    QCheckBox alone;
    QVERIFY(isControlEnabled(&alone));
    alone.setEnabled(false);
    QVERIFY(!isControlEnabled(&alone));
}

QTEST_MAIN(ControlActionsTest)
#include "control_actions_test.moc"
