#include <QTest>

#include "platform/toolkit/LabelColor.h"
#include "tests/printsetting/SleepTimeFixture.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// An operation that keeps the minutes inside the printer's range, and what it makes of them.
struct BoundedOperation
{
    const char *name;
    qint64 (*resultFor)(PrintSettingProbe &panel, int minutes);
};

void showWithoutReport(QWidget *control, int minutes)
{
    const QSignalBlocker silent(control);
    if (auto *field = qobject_cast<QLineEdit *>(control))
        field->setText(QString::number(minutes));
    else if (auto *stepper = qobject_cast<Stepper *>(control))
        stepper->setValue(minutes);
}

constexpr BoundedOperation kBoundedOperations[] = {
    {"reading the field",
     [](PrintSettingProbe &panel, int minutes) {
         showWithoutReport(panel.sleepTimeField, minutes);
         panel.getUIValues();
         return panel.outputBin().value(minutesEntry()).toLongLong();
     }},
    {"showing",
     [](PrintSettingProbe &panel, int minutes) {
         panel.m_outputBin.insert(minutesEntry(), QString::number(minutes));
         panel.updateSleepTimeUI();
         return panel.sleepTimeField->text().toLongLong();
     }},
    {"stepping",
     [](PrintSettingProbe &panel, int minutes) {
         panel.sleepTimeStepper->setRange(-1000, 1000);
         showWithoutReport(panel.sleepTimeStepper, minutes);
         panel.requestNewOutputBin(panel.sleepTimeStepper);
         return panel.outputBin().value(minutesEntry()).toLongLong();
     }},
    {"saving",
     [](PrintSettingProbe &panel, int minutes) {
         panel.m_outputBin.insert(minutesEntry(), QString::number(minutes));
         panel.setMode(kModeManualSleep, true);
         panel.saveSleepTimeValue();
         return panel.entry(kSleepEntry).toLongLong();
     }},
    {"restoring",
     [](PrintSettingProbe &panel, int minutes) {
         panel.printSettings()->setValue(kSleepEntry, QString::number(minutes));
         panel.restoreSleepTimeValue();
         return panel.outputBin().value(minutesEntry()).toLongLong();
     }},
};

} // namespace

/// The minutes: showing, reading and stepping them, and when they can be used.
class SleepTimeTest : public SleepTimeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openInManualMode(); }
    void cleanup() { closeAll(); }

    void storedMinutesAreShownInsideTheRange_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<int>("shown");
        QTest::newRow("inside") << QVariant(u"12"_s) << 12;
        QTest::newRow("below") << QVariant(u"0"_s) << 1;
        QTest::newRow("above") << QVariant(u"250"_s) << 99;
        QTest::newRow("a number") << QVariant(7.9) << 7;
        QTest::newRow("nothing") << QVariant() << 1;
    }
    void storedMinutesAreShownInsideTheRange()
    {
        QFETCH(QVariant, stored);
        QFETCH(int, shown);
        m_panel->m_outputBin.insert(minutesEntry(), stored);
        m_panel->updateSleepTimeUI();
        QCOMPARE(m_panel->sleepTimeField->text(), QString::number(shown));
        QCOMPARE(m_panel->sleepTimeStepper->value(), shown);
        QCOMPARE(m_panel->outputBin().value(minutesEntry()), stored); // not written back
    }

    void theFieldIsReadInsideTheRange_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("minutes");
        QTest::newRow("inside") << u"42"_s << u"42"_s;
        QTest::newRow("zero") << u"0"_s << u"1"_s;
        QTest::newRow("above") << u"150"_s << u"99"_s;
        QTest::newRow("empty") << QString() << u"1"_s;
        QTest::newRow("as a number") << u"007"_s << u"7"_s;
    }
    void theFieldIsReadInsideTheRange()
    {
        QFETCH(QString, text);
        QFETCH(QString, minutes);
        {
            const QSignalBlocker nobodyTypes(m_panel->sleepTimeField);
            m_panel->sleepTimeField->setText(text);
        }
        m_panel->saveValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->outputBin().value(minutesEntry()), QVariant(minutes));
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(minutes));
        QCOMPARE(m_panel->sleepTimeField->text(), minutes);
        QCOMPARE(m_panel->sleepTimeStepper->value(), minutes.toInt());
    }

    // The range that the printer declares

    void everyOperationKeepsTheMinutesInsideThePrintersRange_data()
    {
        QTest::addColumn<int>("operation");
        for (int i = 0; i < int(std::size(kBoundedOperations)); ++i)
            QTest::newRow(kBoundedOperations[i].name) << i;
    }
    void everyOperationKeepsTheMinutesInsideThePrintersRange()
    {
        QFETCH(int, operation);
        openPanel(printerWithLongSleepTimes());
        showPanel();
        const auto resultFor = kBoundedOperations[operation].resultFor;
        QCOMPARE(resultFor(*m_panel, 4), qint64(5));
        QCOMPARE(resultFor(*m_panel, 5), qint64(5));
        QCOMPARE(resultFor(*m_panel, 240), qint64(240));
        QCOMPARE(resultFor(*m_panel, 241), qint64(240));
    }

    void onlyMinutesOfThePrintersRangeCanBeEntered_data()
    {
        QTest::addColumn<QString>("minutes");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("below") << u"4"_s << false;
        QTest::newRow("the lowest") << u"5"_s << true;
        QTest::newRow("the highest") << u"240"_s << true;
        QTest::newRow("above") << u"241"_s << false;
    }
    void onlyMinutesOfThePrintersRangeCanBeEntered()
    {
        QFETCH(QString, minutes);
        QFETCH(bool, accepted);
        const auto host = RecordingHost::forPpd(printerWithLongSleepTimes());
        host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        openPanel(host);
        showPanel();
        edit(u"60"_s);
        edit(minutes);
        QCOMPARE(m_panel->sleepTimeField->text(), accepted ? minutes : u"60"_s);
        QCOMPARE(m_panel->stored(minutesEntry()), accepted ? minutes : u"60"_s);
        QCOMPARE(m_panel->control_textShouldEndEditing(m_panel->sleepTimeField, minutes), accepted);
    }

    void theFieldIsReadWhileThePrinterChoosesTheTimeAsWell()
    {
        QVERIFY(pick(m_panel->sleepTimeMatrix, 0));
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
        showWithoutReport(m_panel->sleepTimeField, 42);
        m_panel->saveAllValues();
        QCOMPARE(m_panel->stored(minutesEntry()), u"42"_s);
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"Default"_s)); // none goes into the job
        showWithoutReport(m_panel->sleepTimeField, 150);
        m_panel->saveAllValues();
        QCOMPARE(m_panel->stored(minutesEntry()), u"99"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), u"99"_s);
    }

    // Stepper

    void aStepReachesFieldPanelAndJob()
    {
        edit(u"12"_s);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(m_panel->sleepTimeField->text(), u"13"_s);
        QCOMPARE(m_panel->outputBin().value(minutesEntry()), QVariant(u"13"_s));
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"13"_s));
        QVERIFY(m_host->asked().isEmpty());
    }

    void aStepIsTakenBeforeTheRulesAndSavedAfter()
    {
        edit(u"12"_s);
        m_host->forgetCalls();
        m_panel->tracing = true;
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepSub);
        const QStringList order{u"checkConstraints"_s, u"saveAllValues"_s,
                                u"getUIValues"_s,      u"saveOptionState"_s,
                                u"saveDensityValue"_s, u"saveSleepTimeValue"_s};
        QStringList operations;
        for (const HostCall &call : m_host->calls())
            operations += call.operation;
        QCOMPARE(operations, order);
    }

    void stepsEndAtTheRange()
    {
        edit(u"98"_s);
        for (int i = 0; i < 3; ++i)
            m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(m_panel->stored(minutesEntry()), u"99"_s);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderToMinimum);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepSub);
        QCOMPARE(m_panel->stored(minutesEntry()), u"1"_s);
    }

    void aStepperThatWasSetBeyondTheRangeIsBroughtBack_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("minutes");
        QTest::newRow("above") << 500 << u"99"_s;
        QTest::newRow("below") << -3 << u"1"_s;
    }
    void aStepperThatWasSetBeyondTheRangeIsBroughtBack()
    {
        QFETCH(int, value);
        QFETCH(QString, minutes);
        m_panel->sleepTimeStepper->setRange(-1000, 1000);
        m_panel->sleepTimeStepper->setValue(value);
        QCOMPARE(m_panel->sleepTimeField->text(), minutes);
        QCOMPARE(m_panel->stored(minutesEntry()), minutes);
        QCOMPARE(m_panel->sleepTimeStepper->value(), minutes.toInt());
    }

    // When it can be used

    void theMinutesAreUsableInManualModeOnly_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("fax");
        QTest::addColumn<bool>("choosable");
        QTest::addColumn<bool>("minutes");
        QTest::newRow("Custom") << u"Custom"_s << false << true << true;
        QTest::newRow("begins with Custom") << u"Custom.12"_s << false << true << true;
        QTest::newRow("True") << u"True"_s << false << true << true;
        QTest::newRow("False") << u"False"_s << false << true << false;
        QTest::newRow("Default") << u"Default"_s << false << true << false;
        QTest::newRow("an unknown one") << u"Sometimes"_s << false << true << false;
        QTest::newRow("Custom, to a fax") << u"Custom"_s << true << false << false;
        QTest::newRow("Default, to a fax") << u"Default"_s << true << false << false;
    }
    void theMinutesAreUsableInManualModeOnly()
    {
        QFETCH(QString, mode);
        QFETCH(bool, fax);
        QFETCH(bool, choosable);
        QFETCH(bool, minutes);
        m_panel->m_outputBin.insert(u"QXSleepTime"_s, mode);
        m_panel->setMode(kModeFaxOutput, fax);
        m_panel->checkConstraints();
        m_panel->checkUIConstraints();
        QCOMPARE(m_panel->sleepTimeMatrix->isEnabled(), choosable);
        QCOMPARE(m_panel->sleepTimePrefixLabel->isEnabled(), choosable);
        QCOMPARE(textColor(m_panel->sleepTimePrefixLabel) == ControlTextColor::Normal, choosable);
        QCOMPARE(m_panel->sleepTimeSuffixLabel->isEnabled(), minutes);
        QCOMPARE(textColor(m_panel->sleepTimeSuffixLabel) == ControlTextColor::Normal, minutes);
        QCOMPARE(m_panel->sleepTimeField->isEnabled(), minutes);
        QCOMPARE(m_panel->sleepTimeStepper->isEnabled(), minutes);
    }

    void pickingTheModeChangesWhatCanBeUsedAtOnce()
    {
        QVERIFY(pick(m_panel->sleepTimeMatrix, 0));
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
        QVERIFY(!m_panel->sleepTimeField->isEnabled());
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"Default"_s));
        QCOMPARE(m_panel->entry(kSleepModeEntry), QVariant(u"Default"_s));
        QVERIFY(pick(m_panel->sleepTimeMatrix, 1));
        QVERIFY(m_panel->hasMode(kModeManualSleep));
        QVERIFY(m_panel->sleepTimeField->isEnabled());
        QCOMPARE(m_panel->entry(kSleepModeEntry), QVariant(u"Custom"_s));
    }

    void aModeChangedElsewhereShowsItsMinutes()
    {
        m_panel->m_outputBin.insert(minutesEntry(), u"33"_s);
        m_panel->PPDOptionKeyValueDidChange_ppdChoice(u"QXSleepTime"_s, u"Default"_s);
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
        QCOMPARE(m_panel->sleepTimeField->text(), u"33"_s);
        QCOMPARE(m_panel->sleepTimeMatrix->selectedRow(), 0);
    }
};

QTEST_MAIN(SleepTimeTest)
#include "sleep_time_test.moc"
