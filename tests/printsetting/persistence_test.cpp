#include <QTest>

#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QList<HostCall> withoutArguments(const QStringList &operations)
{
    QList<HostCall> calls;
    for (const QString &operation : operations)
        calls += HostCall{operation, {}};
    return calls;
}

// The printers with two separate options instead of the single one.
PpdBuilder withTwoImproveOptions()
{
    return PpdBuilder().onOff("QXFixIntensity", "Fix").onOff("QXLessPaperCurl", "Curl");
}

PpdBuilder withOneImproveOption()
{
    return PpdBuilder().option(
        "QXImproveOutput", "Improve", "OFF",
        {{"OFF", "Off"}, {"QXFixIntensity", "Fix"}, {"QXLessPaperCurl", "Curl"}});
}

} // namespace

class PersistenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructionRunsItsStepsInOrder()
    {
        const auto host = RecordingHost::forPpd(
            PpdBuilder().onOff("QXSkipBlank", "Skip").onOff("QXReduceGhost", "Ghost").text());
        PrintSettingProbe panel(host);
        panel.tracing = true;
        QVERIFY(panel.initWithHost());
        QList<HostCall> expected =
            withoutArguments({u"setPPDKeys"_s, u"checkFax"_s, u"checkLang"_s, u"setDefaults"_s,
                              u"restoreOptionState"_s, u"checkConstraints"_s, u"saveAllValues"_s,
                              u"canSelectColorMode"_s, u"checkConstraints"_s, u"checkLang"_s});
        expected += HostCall{u"readPageSetup"_s, {QString()}};
        // Whether the printer has media to choose from is the host's to say.
        expected +=
            HostCall{u"willChangePPDOptionKeyValue_ppdChoice"_s, {u"QXMediaType"_s, u"Plain"_s}};
        expected += HostCall{u"setDefaults"_s, {}};
        QCOMPARE(host->calls(), expected);
    }

    void restoreRunsItsStepsInOrder()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.tracing = true;
        host->forgetCalls();
        QString error = u"untouched"_s;
        QVERIFY(panel.restoreValuesAndReturnError(&error));
        QCOMPARE(error, u"untouched"_s);
        // The driver's colour matching is not looked at here, unlike in the base's restore.
        const QStringList expected{
            u"checkFax"_s,
            u"checkLang"_s,
            u"setDefaults"_s,
            u"restoreOptionState"_s,
            u"checkConstraints"_s,
            u"restoreDensityValue"_s,
            u"restoreSleepTimeValue"_s,
            u"saveAllValues"_s,
            u"saveDensityValue"_s,
            u"saveSleepTimeValue"_s,
            u"canSelectColorMode"_s,
        };
        QCOMPARE(host->calls(), withoutArguments(expected));
    }

    void aShownPanelRestoresItsControlsBeforeItSaves()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        panel.tracing = true;
        host->forgetCalls();
        panel.restoreValuesAndReturnError(nullptr);
        const auto at = [&host](const QString &operation) {
            return host->calls().indexOf(HostCall{operation, {}});
        };
        QVERIFY(at(u"updateUI"_s) > at(u"restoreSleepTimeValue"_s));
        QVERIFY(at(u"saveAllValues"_s) > at(u"updateUI"_s));
        QVERIFY(at(u"getUIValues"_s) > at(u"saveAllValues"_s));
        QVERIFY(at(u"saveDensityValue"_s) > at(u"saveOptionState"_s));
        QVERIFY(at(u"saveSleepTimeValue"_s) > at(u"saveDensityValue"_s));
        QCOMPARE(host->calls().last(), (HostCall{u"canSelectColorMode"_s, {}}));
    }

    void printersWithoutTheNumbersSkipThem()
    {
        const auto host = RecordingHost::forPpd(PpdBuilder().onOff("QXSkipBlank", "Skip").text());
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(!host->settings().contains(kSleepEntry));
        QVERIFY(!host->settings().contains(kSleepModeEntry));
        QVERIFY(!host->settings().contains(kDensityEntry));
        QVERIFY(!panel.outputBin().contains(u"QXSleepTime"_s));
        QVERIFY(!panel.outputBin().contains(QXLaserPrintSetting::densityParamKey()));
    }

    void markedChoicesAreTakenOverAndDefaultsElsewhere()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXMediaType"_s, u"Label"_s);
        host->unmark(u"QXQuietMode"_s);
        host->refuseEverything();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.stored(u"QXMediaType"_s), u"Label"_s);
        QCOMPARE(panel.stored(u"QXQuietMode"_s), u"UseDeviceSettings"_s);
    }

    void theSingleImproveOptionFollowsTheTwo_data()
    {
        QTest::addColumn<QVariant>("fixIntensity");
        QTest::addColumn<QVariant>("lessPaperCurl");
        QTest::addColumn<QString>("result");
        const QVariant on(u"ON"_s);
        const QVariant off(u"OFF"_s);
        QTest::newRow("fixing") << on << off << u"QXFixIntensity"_s;
        QTest::newRow("curl") << off << on << u"QXLessPaperCurl"_s;
        QTest::newRow("both: the later wins") << on << on << u"QXLessPaperCurl"_s;
        QTest::newRow("neither") << off << off << u"OFF"_s;
        QTest::newRow("only ON counts") << QVariant(u"True"_s) << QVariant() << u"OFF"_s;
        QTest::newRow("no entries") << QVariant() << QVariant() << u"OFF"_s;
    }
    void theSingleImproveOptionFollowsTheTwo()
    {
        QFETCH(QVariant, fixIntensity);
        QFETCH(QVariant, lessPaperCurl);
        QFETCH(QString, result);
        const auto host = RecordingHost::forPpd(withOneImproveOption().text());
        if (fixIntensity.isValid())
            host->settings().setValue(u"QXFixIntensity"_s, fixIntensity);
        if (lessPaperCurl.isValid())
            host->settings().setValue(u"QXLessPaperCurl"_s, lessPaperCurl);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.stored(u"QXImproveOutput"_s), result);
        QVERIFY(!panel.outputBin().contains(u"QXFixIntensity"_s));
        QVERIFY2(host->asked().filter(u"QXImproveOutput"_s).isEmpty(),
                 "reconciling only changes what the panel holds");
    }

    void theTwoImproveOptionsFollowTheSingleOne_data()
    {
        QTest::addColumn<QVariant>("single");
        QTest::addColumn<QString>("fixIntensity");
        QTest::addColumn<QString>("lessPaperCurl");
        // Both are marked ON beforehand, so that a value that changes nothing leaves them so.
        QTest::newRow("off") << QVariant(u"OFF"_s) << u"OFF"_s << u"OFF"_s;
        QTest::newRow("fixing") << QVariant(u"QXFixIntensity"_s) << u"ON"_s << u"OFF"_s;
        QTest::newRow("curl") << QVariant(u"QXLessPaperCurl"_s) << u"OFF"_s << u"ON"_s;
        QTest::newRow("another value") << QVariant(u"ON"_s) << u"ON"_s << u"ON"_s;
        QTest::newRow("no entry") << QVariant() << u"ON"_s << u"ON"_s;
    }
    void theTwoImproveOptionsFollowTheSingleOne()
    {
        QFETCH(QVariant, single);
        QFETCH(QString, fixIntensity);
        QFETCH(QString, lessPaperCurl);
        const auto host = RecordingHost::forPpd(withTwoImproveOptions().text());
        host->mark(u"QXFixIntensity"_s, u"ON"_s);
        host->mark(u"QXLessPaperCurl"_s, u"ON"_s);
        if (single.isValid())
            host->settings().setValue(u"QXImproveOutput"_s, single);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.stored(u"QXFixIntensity"_s), fixIntensity);
        QCOMPARE(panel.stored(u"QXLessPaperCurl"_s), lessPaperCurl);
        QVERIFY(!panel.outputBin().contains(u"QXImproveOutput"_s));
    }

    void withoutPrintSettingsTheMarksStand_data()
    {
        QTest::addColumn<bool>("lacksTheOperation");
        QTest::newRow("the host has no such operation") << true;
        QTest::newRow("the host has none") << false;
    }
    void withoutPrintSettingsTheMarksStand()
    {
        QFETCH(bool, lacksTheOperation);
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(u"QXFixIntensity"_s, u"ON"_s);
        const QVariantMap before = host->settings().entries();
        if (lacksTheOperation)
            host->lack(PDECallbackOperation::printSettings);
        else
            host->answerNoPrintSettings();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QCOMPARE(panel.stored(u"QXImproveOutput"_s), u"OFF"_s);
        QCOMPARE(host->settings().entries(), before);
    }

    void savingStopsTonerSaveInTheJobOnly_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QStringList>("asked");
        QTest::newRow("1200dpi") << u"1200dpi"_s << QStringList{u"TonerSaveMode=OFF"_s};
        QTest::newRow("2400x600dpi") << u"2400x600dpi"_s << QStringList{u"TonerSaveMode=OFF"_s};
        QTest::newRow("600dpi") << u"600dpi"_s << QStringList{};
    }
    void savingStopsTonerSaveInTheJobOnly()
    {
        QFETCH(QString, resolution);
        QFETCH(QStringList, asked);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"TonerSaveMode"_s, u"ON"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        host->forgetCalls();
        panel.PPDOptionKeyValueDidChange_ppdChoice(u"QXResolution"_s, resolution);
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QCOMPARE(host->asked(), asked);
        QCOMPARE(panel.stored(u"TonerSaveMode"_s), u"ON"_s);
        QCOMPARE(host->marked(u"TonerSaveMode"_s), asked.isEmpty() ? u"ON"_s : u"OFF"_s);
    }

    void aShownBoxThatCannotBeTickedCountsAsOffAndKeepsItsTick()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"TonerSaveMode"_s, u"ON"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        panel.PPDOptionKeyValueDidChange_ppdChoice(u"QXResolution"_s, u"1200dpi"_s);
        for (int save = 0; save < 2; ++save) {
            QVERIFY(panel.saveValuesAndReturnError(nullptr));
            QVERIFY(panel.tonerSaveButton->isChecked());
            QVERIFY(!panel.tonerSaveButton->isEnabled());
            QCOMPARE(host->marked(u"TonerSaveMode"_s), u"OFF"_s);
            QCOMPARE(panel.stored(u"TonerSaveMode"_s), u"OFF"_s);
        }
        panel.PPDOptionKeyValueDidChange_ppdChoice(u"QXResolution"_s, u"600dpi"_s);
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QVERIFY(panel.tonerSaveButton->isEnabled());
        QCOMPARE(host->marked(u"TonerSaveMode"_s), u"ON"_s); // the tick counts again
    }

    void aRefusalToStopTonerSaveIsNoMatter()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->refuseEverything();
        host->forgetCalls();
        panel.setMode(kModeNoTonerSave, true);
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QCOMPARE(host->asked(), QStringList{u"TonerSaveMode=OFF"_s});
        QVERIFY(panel.entry(kSleepEntry).isValid()); // what follows is saved all the same
    }

    void savingRunsItsStepsInOrder()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.setMode(kModeNoTonerSave, true);
        panel.tracing = true;
        host->forgetCalls();
        QString error = u"untouched"_s;
        QVERIFY(panel.saveValuesAndReturnError(&error));
        QCOMPARE(error, u"untouched"_s);
        QList<HostCall> expected = withoutArguments({u"saveAllValues"_s, u"saveDensityValue"_s});
        expected +=
            HostCall{u"willChangePPDOptionKeyValue_ppdChoice"_s, {u"TonerSaveMode"_s, u"OFF"_s}};
        expected += HostCall{u"saveSleepTimeValue"_s, {}};
        QCOMPARE(host->calls(), expected);
    }

    void theControlsAreFilledOnce()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.tracing = true;
        panel.willShow();
        QVERIFY(host->calls().contains(HostCall{u"initializeAdvOption"_s, {}}));
        QVERIFY(host->calls().contains(HostCall{u"updateUI"_s, {}}));
        host->forgetCalls();
        panel.willShow();
        QVERIFY(!host->calls().contains(HostCall{u"initializeAdvOption"_s, {}}));
        QVERIFY(host->calls().contains(HostCall{u"updateUI"_s, {}}));
        QVERIFY(panel.hasMode(kModePanelShown));
    }

private:
    TestBundle m_bundle = TestBundle::built();
};

QTEST_MAIN(PersistenceTest)
#include "persistence_test.moc"
