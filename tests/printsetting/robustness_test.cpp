#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/printcore/PageFormat.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QList<std::pair<const char *, QVariant>> strangeValues()
{
    return {
        {"a word", u"soon"_s},
        {"empty", u""_s},
        {"nothing", QVariant()},
        {"a sign", u"-"_s},
        {"a digit of another script", u"٣"_s},
        {"beyond all numbers", u"999999999999999999999"_s},
        {"below all numbers", u"-999999999999999999999"_s},
        {"an infinite number", qInf()},
        {"no number", qQNaN()},
        {"a number", 1e300},
        {"a truth", true},
        {"a list", QVariantList{1, u"ON"_s}},
        {"texts", QStringList{u"ON"_s, u"OFF"_s}},
        {"a dictionary", QVariantMap{{u"a"_s, 1}}},
        {"bytes", QByteArray("\xff\xfe\x00", 3)},
        {"a long text", QString(100000, u'9')},
        {"signs of formats", u"%1%n%@%s"_s},
    };
}

} // namespace

/// What no job, printer or bundle should hold, but may.
class RobustnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_preferences.emplace(); }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
        m_preferences.reset();
    }

    void strangePrintSettingsAreBroughtInOrder_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const QStringList keys{kSleepEntry,
                               kSleepModeEntry,
                               kDensityEntry,
                               kPageToPaperMappingEntry,
                               u"com.corvana.print.PrintSettings.advancedItem"_s,
                               u"QXImproveOutput"_s,
                               u"QXFixIntensity"_s,
                               u"QXLessPaperCurl"_s};
        for (const QString &key : keys) {
            for (const auto &[name, value] : strangeValues())
                QTest::addRow("%s: %s", qUtf8Printable(key), name) << key << value;
        }
    }
    void strangePrintSettingsAreBroughtInOrder()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        m_bundle.emplace(TestBundle::built());
        for (const bool twoImproveOptions : {false, true}) {
            m_panel.reset();
            m_host = RecordingHost::forPpd(
                twoImproveOptions
                    ? PpdBuilder().onOff("QXFixIntensity", "F").onOff("QXLessPaperCurl", "C").text()
                    : samplePpd(5));
            m_host->settings().setValue(key, value);
            useEverything();
            if (twoImproveOptions) {
                for (const QString &option : {u"QXFixIntensity"_s, u"QXLessPaperCurl"_s})
                    QCOMPARE(m_host->marked(option), u"OFF"_s);
                continue;
            }
            const QString minutes = m_panel->entry(kSleepEntry).toString();
            const QString density = m_panel->entry(kDensityEntry).toString();
            QVERIFY2(minutes == u"Default" || (minutes.toInt() >= 1 && minutes.toInt() <= 99),
                     qUtf8Printable(minutes.left(40)));
            QCOMPARE(m_panel->entry(kSleepModeEntry), QVariant(u"Default"_s));
            QVERIFY2(qAbs(density.toInt()) <= 6 && QString::number(density.toInt()) == density,
                     qUtf8Printable(density.left(40)));
        }
    }

    void strangeValuesOfThePanelItselfAreSurvived_data()
    {
        QTest::addColumn<QVariant>("value");
        for (const auto &[name, value] : strangeValues())
            QTest::newRow(name) << value;
    }
    void strangeValuesOfThePanelItselfAreSurvived()
    {
        QFETCH(QVariant, value);
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forSamplePrinter();
        useEverything();
        const QStringList keys = m_panel->outputBin().keys();
        QVERIFY(keys.size() > 10);
        for (const QString &key : keys) {
            m_panel->m_outputBin.insert(key, value);
            m_panel->effectContent->setValue(key, value);
            useControls();
        }
        m_panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), m_host->marked(u"QXMediaType"_s));
    }

    void anUnknownSleepModeIsAnAutomaticOne()
    {
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forSamplePrinter();
        m_host->settings().setValue(kSleepModeEntry, u"Sometimes"_s);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
        QVERIFY(!m_panel->sleepTimeField->isEnabled());
        m_panel->saveValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->entry(kSleepModeEntry), QVariant(u"Default"_s));
    }

    void aHostThatRefusesEverythingIsSurvived()
    {
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forSamplePrinter();
        m_host->refuseEverything();
        useEverything();
        for (const QString &keyword : *m_panel->PPDKeys) {
            if (keyword == u"QXSleepTime"_s)
                continue; // the panel keeps a mode of its own
            QCOMPARE(m_panel->stored(keyword), m_host->marked(keyword));
        }
    }

    void aHostWithNothingButAnAnswerIsEnough()
    {
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forSamplePrinter();
        for (const PDECallbackOperation operation :
             {PDECallbackOperation::printSettings, PDECallbackOperation::pageFormat,
              PDECallbackOperation::panelViewDidResize, PDECallbackOperation::alertPresenter})
            m_host->lack(operation);
        useEverything();
        QVERIFY(m_panel->paperName.isNull() || m_panel->paperName == u"Custom"_s);
    }

    void aPrinterOfNoOptionsHasAPanel()
    {
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forPpd(PpdBuilder().text());
        useEverything();
        QCOMPARE(m_panel->PPDKeys, std::optional(QStringList()));
        QVERIFY(m_panel->summaryInfo().contains(u"Model"_s));
    }

    void aSingleControlMayBeMissing_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {"advancedTabView",      "advancedTableView",     "mediaTypePopup",
              "resolutionPopup",      "monoColorPopup",        "paperFeedPopup",
              "tonerSaveButton",      "improveMatrix",         "reducePaperButton",
              "reduceGhostButton",    "improveTonerfixButton", "densityField",
              "densitySlider",        "sleepTimeField",        "sleepTimeStepper",
              "sleepTimeMatrix",      "skipBlankButton",       "quietModeMatrix",
              "mediaTypeLabel",       "resolutionLabel",       "monoColorLabel",
              "paperFeedLabel",       "optionLabel",           "optionButton",
              "densityLabel",         "improveLabel",          "sleepTimePrefixLabel",
              "sleepTimeSuffixLabel", "accessoryView"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void aSingleControlMayBeMissing()
    {
        QFETCH(QString, name);
        m_bundle.emplace(TestBundle::built());
        for (const bool fromTheStart : {true, false}) {
            m_panel.reset();
            m_host = RecordingHost::forSamplePrinter();
            m_panel = std::make_unique<PrintSettingProbe>(m_host);
            QVERIFY(m_panel->initWithHost());
            QWidget *view = m_panel->panelView();
            QVERIFY(view);
            if (!fromTheStart)
                m_panel->willShow();
            QVERIFY(view->findChild<QWidget *>(name));
            delete view->findChild<QWidget *>(name);
            m_panel->willShow();
            useControls();
            QVERIFY(m_panel->popupInited);
        }
    }

    void aPanelWithoutAnyControlKeepsItsValues()
    {
        m_bundle.emplace(TestBundle::copied());
        m_bundle->remove(u"interface/QXLaserPrintSetting.ui"_s);
        m_host = RecordingHost::forSamplePrinter();
        m_host->mark(u"QXSleepTime"_s, u"Custom"_s);
        m_host->settings().setValue(kSleepEntry, u"12"_s);
        m_host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        m_host->settings().setValue(kDensityEntry, u"-2"_s);
        useEverything();
        QVERIFY(!m_panel->m_panelView);
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"12"_s));
        QCOMPARE(m_panel->entry(kDensityEntry), QVariant(u"-2"_s));
        QVERIFY(!takeInterfaceProblems().isEmpty());
    }

    void aBundleWithoutTextsShowsTheKeys()
    {
        m_bundle.emplace(TestBundle::copied());
        for (const QString &language : {u"English"_s, u"Japanese"_s, u"zh_CN"_s})
            m_bundle->remove(u"strings/%1.qm"_s.arg(language));
        m_host = RecordingHost::forSamplePrinter();
        useEverything();
        QCOMPARE(m_panel->panelName(), u"Print Setting"_s);
        QCOMPARE(m_panel->optionLabel->text(), u"advancedItem"_s);
        m_panel->m_outputBin.insert(u"QXMediaType"_s, u"PostCard"_s);
        m_host->alerts().expect();
        m_panel->shouldPrint();
        QVERIFY(!m_host->alerts().shown().isEmpty());
    }

    void aPanelMayDieWhileItsFieldIsBeingEdited()
    {
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forSamplePrinter();
        m_host->mark(u"QXSleepTime"_s, u"Custom"_s);
        m_host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_panel->m_panelView->show();
        m_panel->m_panelView->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel->m_panelView));
        m_panel->optionButton->click();
        m_panel->advancedTableView->setCurrentIndex(
            m_panel->advancedTableView->model()->index(3, 0));
        m_panel->sleepTimeField->setFocus();
        QVERIFY(m_panel->sleepTimeField->hasFocus());
        {
            const QSignalBlocker nobodyTypes(m_panel->sleepTimeField);
            m_panel->sleepTimeField->setText(u"0"_s); // what the field may not be left with
        }
        m_panel.reset(); // must not ask a panel that is half gone
        QCoreApplication::processEvents();
    }

    void anAbsurdSleepTimeRangeIsSurvived_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("the wrong way round") << 50 << 5;
        QTest::newRow("huge") << -2147483647 << 2147483647;
        QTest::newRow("one") << 7 << 7;
        QTest::newRow("below zero") << -20 << -10;
    }
    void anAbsurdSleepTimeRangeIsSurvived()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        m_bundle.emplace(TestBundle::built());
        m_host = RecordingHost::forPpd(
            PpdBuilder()
                .option("QXSleepTime", "Sleep", "Default", {{"Default", "Automatic"}})
                .customInteger("QXSleepTime", "Time", "Minutes", minimum, maximum)
                .text());
        m_host->mark(u"QXSleepTime"_s, u"Custom"_s);
        m_host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        useEverything();
        m_panel->sleepTimeField->setText(u"12"_s);
        m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        m_panel->saveValuesAndReturnError(nullptr);
        const qint64 minutes = m_panel->entry(kSleepEntry).toLongLong();
        QVERIFY(minutes >= qMin(minimum, maximum) && minutes <= qMax(minimum, maximum));
    }

    void optionsWithoutTheirDefaultsAreSurvived()
    {
        m_bundle.emplace(TestBundle::built());
        QByteArray ppd = samplePpd(5);
        for (const char *option :
             {"QXMediaType: Plain", "QXSleepTime: Default", "QXDensityAdjustment: 0",
              "QXImproveOutput: OFF", "TonerSaveMode: OFF", "Duplex: None"})
            ppd.replace("*Default" + QByteArray(option) + '\n', "");
        m_host = RecordingHost::forPpd(ppd);
        useEverything();
        QVERIFY(!m_panel->stored(u"QXMediaType"_s).isNull());
    }

private:
    void useEverything()
    {
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        m_panel->panelView();
        m_panel->willShow();
        useControls();
    }
    // Each operation that a host calls, and what a user does to each control that there is.
    void useControls()
    {
        m_host->alerts().whenShown = nullptr;
        const auto expectAlerts = [this] {
            while (m_host->alerts().outstanding() < 20)
                m_host->alerts().expect();
        };
        expectAlerts();
        if (m_panel->mediaTypePopup)
            pick(m_panel->mediaTypePopup, u"Thick Paper"_s);
        if (m_panel->sleepTimeField)
            m_panel->sleepTimeField->insert(u"7"_s);
        if (m_panel->sleepTimeStepper)
            m_panel->sleepTimeStepper->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        if (m_panel->densitySlider)
            m_panel->densitySlider->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        if (m_panel->optionButton)
            m_panel->optionButton->click();
        for (const QString &keyword : m_panel->PPDKeys.value_or(QStringList())) {
            m_panel->requestNewOutputBin(m_panel->determineUI(keyword));
            m_panel->PPDOptionKeyValueDidChange_ppdChoice(keyword, m_host->marked(keyword));
        }
        m_panel->requestNewOutputBin(nullptr);
        NotificationCenter::defaultCenter().post(
            QLatin1StringView(kPrintDestinationPaperDidChangeNotification), nullptr);
        m_panel->restoreValuesAndReturnError(nullptr);
        m_panel->saveValuesAndReturnError(nullptr);
        m_panel->summaryInfo();
        m_panel->showAlertWhenSelectMediaKey_withAlertKey(u"QXMediaType"_s, u"Any"_s);
        expectAlerts();
        m_panel->shouldPrint();
        m_panel->shouldHide();
        if (m_panel->optionButton)
            m_panel->optionButton->click();
    }

    std::optional<UserPreferences> m_preferences;
    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

QTEST_MAIN(RobustnessTest)
#include "robustness_test.moc"
