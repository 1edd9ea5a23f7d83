#include <QClipboard>
#include <QTest>
#include <QToolTip>

#include "platform/toolkit/LabelColor.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kMinutes = u"QXSleepTime_Time"_s;

// Minutes from 5 to 240, while most printers have 1 to 99.
QByteArray printerWithLongSleepTimes()
{
    return PpdBuilder()
        .option("QXSleepTime", "Sleep", "Custom", {{"Default", "Default"}, {"Custom", "Manual"}})
        .customInteger("QXSleepTime", "Time", "Minutes", 5, 240)
        .text();
}

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
         return panel.outputBin().value(kMinutes).toLongLong();
     }},
    {"showing",
     [](PrintSettingProbe &panel, int minutes) {
         panel.m_outputBin.insert(kMinutes, QString::number(minutes));
         panel.updateSleepTimeUI();
         return panel.sleepTimeField->text().toLongLong();
     }},
    {"stepping",
     [](PrintSettingProbe &panel, int minutes) {
         panel.sleepTimeStepper->setRange(-1000, 1000);
         showWithoutReport(panel.sleepTimeStepper, minutes);
         panel.requestNewOutputBin(panel.sleepTimeStepper);
         return panel.outputBin().value(kMinutes).toLongLong();
     }},
    {"saving",
     [](PrintSettingProbe &panel, int minutes) {
         panel.m_outputBin.insert(kMinutes, QString::number(minutes));
         panel.setMode(kModeManualSleep, true);
         panel.saveSleepTimeValue();
         return panel.entry(kSleepEntry).toLongLong();
     }},
    {"restoring",
     [](PrintSettingProbe &panel, int minutes) {
         panel.printSettings()->setValue(kSleepEntry, QString::number(minutes));
         panel.restoreSleepTimeValue();
         return panel.outputBin().value(kMinutes).toLongLong();
     }},
};

// What a keyboard or an input method enters at the cursor in one edit.
void enter(QLineEdit *field, const QString &text)
{
    QTest::sendKeyEvent(QTest::Press, field, Qt::Key_unknown, text, Qt::NoModifier);
}

} // namespace

/// The minutes: typing them, stepping them, and when they can be used.
class SleepTimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forSamplePrinter();
        m_host->mark(u"QXSleepTime"_s, u"Custom"_s);
        m_host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        QVERIFY(m_panel->hasMode(kModeManualSleep));
        m_host->forgetCalls();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
    }

    void onlyDigitsInsideTheRangeStay_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("edited");
        QTest::addColumn<QString>("result");
        QTest::newRow("a digit") << u"5"_s << u"7"_s << u"7"_s;
        QTest::newRow("letters between digits") << u"5"_s << u"a1b2"_s << u"12"_s;
        QTest::newRow("full-width digits") << u"5"_s << u"\uff13\uff10"_s << u"30"_s;
        QTest::newRow("every full-width digit, low") << u"5"_s << u"\uff11\uff12"_s << u"12"_s;
        QTest::newRow("every full-width digit, high") << u"5"_s << u"\uff18\uff19"_s << u"89"_s;
        QTest::newRow("beside the full-width digits") << u"5"_s << u"\uff0f7\uff1a"_s << u"7"_s;
        QTest::newRow("beside the digits") << u"5"_s << u"/7:"_s << u"7"_s;
        QTest::newRow("digits of another script") << u"5"_s << u"٣"_s << u"5"_s;
        QTest::newRow("a sign") << u"5"_s << u"-7"_s << u"7"_s;
        QTest::newRow("blanks") << u"5"_s << u" 7 "_s << u"7"_s;
        QTest::newRow("zeros in front") << u"5"_s << u"007"_s << u"7"_s;
        QTest::newRow("the lowest") << u"5"_s << u"1"_s << u"1"_s;
        QTest::newRow("the highest") << u"5"_s << u"99"_s << u"99"_s;
        QTest::newRow("nothing") << u"5"_s << QString() << u"5"_s;
        QTest::newRow("no digit") << u"5"_s << u"abc"_s << u"5"_s;
        QTest::newRow("zero") << u"5"_s << u"0"_s << u"5"_s;
        QTest::newRow("three digits") << u"15"_s << u"150"_s << u"15"_s;
        QTest::newRow("beyond all numbers") << u"5"_s << u"999999999999"_s << u"5"_s;
        QTest::newRow("a pair of units") << u"5"_s << u"\U0001d7da3"_s << u"3"_s;
    }
    void onlyDigitsInsideTheRangeStay()
    {
        QFETCH(QString, stored);
        QFETCH(QString, edited);
        QFETCH(QString, result);
        edit(stored);
        QCOMPARE(m_panel->stored(kMinutes), stored);
        edit(edited);
        QCOMPARE(m_panel->sleepTimeField->text(), result);
        QCOMPARE(m_panel->outputBin().value(kMinutes), QVariant(result));
        QCOMPARE(m_panel->sleepTimeStepper->value(), result.toInt());
        QVERIFY2(m_host->calls().isEmpty(), "the host is not asked about minutes");
    }

    void aRefusedNumberLeavesTheCaretBehindTheFormerOne()
    {
        m_panel->kSleepTimeMin = 5;
        m_panel->kSleepTimeMax = 240;
        edit(u"60"_s);
        m_panel->sleepTimeField->selectAll();
        enter(m_panel->sleepTimeField, u"4"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), u"60"_s);
        QVERIFY(!m_panel->sleepTimeField->hasSelectedText());
        QCOMPARE(m_panel->sleepTimeField->cursorPosition(), 2);
        enter(m_panel->sleepTimeField, u"5"_s);
        QCOMPARE(m_panel->stored(kMinutes), u"60"_s); // no number of the halves: 605 is too much
    }

    void theFieldSaysWhatItTakes_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "ja", "zh_CN"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
    void theFieldSaysWhatItTakes()
    {
        QFETCH(QString, language);
        const UserLanguage user(language);
        m_bundle.reset(); // it keeps the texts of its first language
        m_bundle.emplace(TestBundle::built());
        PrintSettingProbe panel(RecordingHost::forPpd(printerWithLongSleepTimes()));
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        const QString said = panel.sleepTimeField->toolTip();
        QVERIFY2(said.endsWith(u": 5 – 240"_s), qUtf8Printable(said));
        QVERIFY(!said.startsWith(u"AllowedNumbers"_s));
        QCOMPARE(panel.sleepTimeField->accessibleDescription(), said);
    }

    void aRefusedNumberIsExplainedAtOnce()
    {
        QWidget window;
        m_panel->panelView()->setParent(&window);
        for (QWidget *part = m_panel->sleepTimeField; part != &window; part = part->parentWidget())
            part->show();
        window.show();
        QVERIFY(m_panel->sleepTimeField->isVisible());
        edit(u"7"_s);
        QVERIFY(!QToolTip::isVisible());
        edit(u"200"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), u"7"_s);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), m_panel->sleepTimeField->toolTip());
        QToolTip::hideText();
        m_panel->panelView()->setParent(nullptr);
    }

    void aPastedTextGivesTheNumberInIt_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("result");
        QTest::newRow("a sentence") << u"wait about 45 minutes"_s << u"45"_s;
        QTest::newRow("a number far behind")
            << u"this is how long it has always been here: 17"_s << u"17"_s;
        QTest::newRow("two numbers") << u"either 4 or, better, 2"_s << u"42"_s;
        QTest::newRow("a number that is too long") << u"123456789012345678901234"_s << u"60"_s;
    }
    void aPastedTextGivesTheNumberInIt()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, result);
        edit(u"60"_s);
        QGuiApplication::clipboard()->setText(pasted);
        m_panel->sleepTimeField->selectAll();
        m_panel->sleepTimeField->paste();
        QCOMPARE(m_panel->sleepTimeField->text(), result);
        QCOMPARE(m_panel->stored(kMinutes), result);
    }

    void deletingTheOnlyDigitBringsItBackAtOnce()
    {
        edit(u"5"_s);
        QTest::keyClick(m_panel->sleepTimeField, Qt::Key_Backspace);
        QCOMPARE(m_panel->sleepTimeField->text(), u"5"_s);
        QCOMPARE(m_panel->stored(kMinutes), u"5"_s);
    }

    void theCursorStaysWhereTheUserTypes_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("result");
        QTest::addColumn<int>("after");
        QTest::newRow("a digit at the end") << u"1"_s << 1 << u"2"_s << u"12"_s << 2;
        QTest::newRow("a digit in front") << u"1"_s << 0 << u"2"_s << u"21"_s << 1;
        QTest::newRow("a letter in the middle") << u"34"_s << 1 << u"x"_s << u"34"_s << 1;
        QTest::newRow("a letter in front") << u"34"_s << 0 << u"x"_s << u"34"_s << 0;
        QTest::newRow("a third digit in front") << u"50"_s << 0 << u"1"_s << u"50"_s << 2;
        QTest::newRow("a third digit at the end") << u"50"_s << 2 << u"1"_s << u"50"_s << 2;
        QTest::newRow("a zero in front") << u"5"_s << 0 << u"0"_s << u"5"_s << 0;
        QTest::newRow("a full-width digit") << u"5"_s << 0 << u"\uff11"_s << u"15"_s << 1;
    }
    void theCursorStaysWhereTheUserTypes()
    {
        QFETCH(QString, stored);
        QFETCH(int, cursor);
        QFETCH(QString, typed);
        QFETCH(QString, result);
        QFETCH(int, after);
        edit(stored);
        m_panel->sleepTimeField->setCursorPosition(cursor);
        enter(m_panel->sleepTimeField, typed);
        QCOMPARE(m_panel->sleepTimeField->text(), result);
        QCOMPARE(m_panel->sleepTimeField->cursorPosition(), after);
    }

    void whatIsTypedReachesTheJobWithTheNextSave()
    {
        edit(u"42"_s);
        QVERIFY(m_panel->entry(kSleepEntry) != QVariant(u"42"_s));
        m_panel->saveValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"42"_s));
        QCOMPARE(m_panel->entry(kSleepModeEntry), QVariant(u"Custom"_s));
    }

    void aStoredValueThatIsNoTextIsShownAsNothing()
    {
        m_panel->m_outputBin.insert(kMinutes, QVariantList{1, 2});
        edit(u"200"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), QString());
        QCOMPARE(m_panel->sleepTimeStepper->value(), 1); // the lowest that it can be
    }

    void theFieldIsLeftWithANumberInsideTheRangeOnly_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("left");
        QTest::newRow("inside") << u"5"_s << true;
        QTest::newRow("the lowest") << u"1"_s << true;
        QTest::newRow("the highest") << u"99"_s << true;
        QTest::newRow("zero") << u"0"_s << false;
        QTest::newRow("above") << u"100"_s << false;
        QTest::newRow("no digit") << u"soon"_s << false;
        QTest::newRow("empty") << u""_s << false;
        QTest::newRow("nothing") << QString() << false;
    }
    void theFieldIsLeftWithANumberInsideTheRangeOnly()
    {
        QFETCH(QString, text);
        QFETCH(bool, left);
        QCOMPARE(m_panel->control_textShouldEndEditing(m_panel->sleepTimeField, text), left);
    }

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
        m_panel->m_outputBin.insert(kMinutes, stored);
        m_panel->updateSleepTimeUI();
        QCOMPARE(m_panel->sleepTimeField->text(), QString::number(shown));
        QCOMPARE(m_panel->sleepTimeStepper->value(), shown);
        QCOMPARE(m_panel->outputBin().value(kMinutes), stored); // not written back
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
        QCOMPARE(m_panel->outputBin().value(kMinutes), QVariant(minutes));
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
        PrintSettingProbe panel(RecordingHost::forPpd(printerWithLongSleepTimes()));
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        const auto resultFor = kBoundedOperations[operation].resultFor;
        QCOMPARE(resultFor(panel, 4), qint64(5));
        QCOMPARE(resultFor(panel, 5), qint64(5));
        QCOMPARE(resultFor(panel, 240), qint64(240));
        QCOMPARE(resultFor(panel, 241), qint64(240));
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
        m_host = RecordingHost::forPpd(printerWithLongSleepTimes());
        m_host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        edit(u"60"_s);
        edit(minutes);
        QCOMPARE(m_panel->sleepTimeField->text(), accepted ? minutes : u"60"_s);
        QCOMPARE(m_panel->stored(kMinutes), accepted ? minutes : u"60"_s);
        QCOMPARE(m_panel->control_textShouldEndEditing(m_panel->sleepTimeField, minutes), accepted);
    }

    void theFieldIsReadWhileThePrinterChoosesTheTimeAsWell()
    {
        QVERIFY(pick(m_panel->sleepTimeMatrix, 0));
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
        showWithoutReport(m_panel->sleepTimeField, 42);
        m_panel->saveAllValues();
        QCOMPARE(m_panel->stored(kMinutes), u"42"_s);
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"Default"_s)); // none goes into the job
        showWithoutReport(m_panel->sleepTimeField, 150);
        m_panel->saveAllValues();
        QCOMPARE(m_panel->stored(kMinutes), u"99"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), u"99"_s);
    }

    // Stepper

    void aStepReachesFieldPanelAndJob()
    {
        edit(u"12"_s);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(m_panel->sleepTimeField->text(), u"13"_s);
        QCOMPARE(m_panel->outputBin().value(kMinutes), QVariant(u"13"_s));
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
        QCOMPARE(m_panel->stored(kMinutes), u"99"_s);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderToMinimum);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepSub);
        QCOMPARE(m_panel->stored(kMinutes), u"1"_s);
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
        QCOMPARE(m_panel->stored(kMinutes), minutes);
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
        m_panel->m_outputBin.insert(kMinutes, u"33"_s);
        m_panel->PPDOptionKeyValueDidChange_ppdChoice(u"QXSleepTime"_s, u"Default"_s);
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
        QCOMPARE(m_panel->sleepTimeField->text(), u"33"_s);
        QCOMPARE(m_panel->sleepTimeMatrix->selectedRow(), 0);
    }

private:
    // The user replaces the whole text in one edit.
    void edit(const QString &text)
    {
        m_panel->sleepTimeField->selectAll();
        if (text.isEmpty())
            QTest::keyClick(m_panel->sleepTimeField, Qt::Key_Delete);
        else
            enter(m_panel->sleepTimeField, text);
    }

    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

QTEST_MAIN(SleepTimeTest)
#include "sleep_time_test.moc"
