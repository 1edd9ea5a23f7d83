#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// What the other panel would hear.
class Listener
{
public:
    Listener()
    {
        NotificationCenter::defaultCenter().addObserver(
            this, kLaserPrintSettingNotification, nullptr,
            [this](const Notification &notification) { heard += notification; });
    }
    ~Listener() { NotificationCenter::defaultCenter().removeObserver(this); }

    QList<Notification> heard;
};

} // namespace

class RulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = RecordingHost::forSamplePrinter();
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        m_host->forgetCalls();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
    }

    void someResolutionsAllowNoTonerSave_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("600dpi") << u"600dpi"_s << true;
        QTest::newRow("1200dpi") << u"1200dpi"_s << false;
        QTest::newRow("2400x600dpi") << u"2400x600dpi"_s << false;
        QTest::newRow("other letter case") << u"1200DPI"_s << true;
        QTest::newRow("a longer name") << u"1200dpix"_s << true;
        QTest::newRow("nothing") << QString() << true;
    }
    void someResolutionsAllowNoTonerSave()
    {
        QFETCH(QString, resolution);
        QFETCH(bool, allowed);
        QCOMPARE(QXLaserPrintSetting::allowTonerSaveResolution(resolution), allowed);
        for (const bool before : {false, true}) {
            m_panel->m_outputBin.insert(u"QXResolution"_s, resolution);
            m_panel->setMode(kModeNoTonerSave, before);
            m_panel->updateUIforKey(u"QXResolution"_s);
            QCOMPARE(m_panel->hasMode(kModeNoTonerSave), !allowed);
        }
    }

    void someMediaNeedTheBackCoverOpen_data()
    {
        QTest::addColumn<QString>("medium");
        QTest::addColumn<bool>("open");
        for (const char *medium : {"Env", "EnvThick", "EnvThin", "EnvOther", "Label", "PostCard"})
            QTest::newRow(medium) << QString::fromLatin1(medium) << true;
        for (const char *medium : {"Postcard", "Glossy", "Plain", "env", "NoEnv", "Labels", ""})
            QTest::newRow(medium) << QString::fromLatin1(medium) << false;
    }
    void someMediaNeedTheBackCoverOpen()
    {
        QFETCH(QString, medium);
        QFETCH(bool, open);
        QCOMPARE(QXLaserPrintSetting::shouldOpenCoverPaperKind(medium), open);
    }

    void aResolutionThatAllowsNoTonerSaveDisablesItsBox_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<bool>("fax");
        QTest::addColumn<bool>("usable");
        QTest::newRow("600dpi") << u"600dpi"_s << false << true;
        QTest::newRow("1200dpi") << u"1200dpi"_s << false << false;
        QTest::newRow("2400x600dpi") << u"2400x600dpi"_s << false << false;
        QTest::newRow("600dpi, to a fax") << u"600dpi"_s << true << false;
    }
    void aResolutionThatAllowsNoTonerSaveDisablesItsBox()
    {
        QFETCH(QString, resolution);
        QFETCH(bool, fax);
        QFETCH(bool, usable);
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->mark(u"QXOutput"_s, fax ? u"FAX"_s : u"Printer"_s);
        m_host->mark(u"QXResolution"_s, resolution);
        m_panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->tonerSaveButton->isEnabled(), usable);
        QCOMPARE(m_panel->mediaTypePopup->isEnabled(), !fax);
        // Back again, in one pick.
        m_host->mark(u"QXOutput"_s, u"Printer"_s);
        m_panel->restoreValuesAndReturnError(nullptr);
        QVERIFY(pick(m_panel->resolutionPopup, u"600 dpi"_s));
        QVERIFY(m_panel->tonerSaveButton->isEnabled());
    }

    void theTonerRuleLeavesAFaxAlone()
    {
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_panel->setMode(kModeFaxOutput, true);
        m_panel->setMode(kModeNoTonerSave, true);
        m_panel->checkUIConstraints();
        QVERIFY(!m_panel->tonerSaveButton->isEnabled()); // by the common rule
        m_panel->setMode(kModeFaxOutput, false);
        m_panel->setMode(kModeNoTonerSave, false);
        m_panel->checkUIConstraints();
        QVERIFY(m_panel->tonerSaveButton->isEnabled());
    }

    void aPrinterWithPlainResolutionsKnowsTheTonerRule()
    {
        const auto host =
            RecordingHost::forPpd(PpdBuilder()
                                      .option("Resolution", "Resolution", "600dpi",
                                              {{"600dpi", "600 dpi"}, {"1200dpi", "1200 dpi"}})
                                      .onOff("TonerSaveMode", "Toner Save", "ON")
                                      .text());
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.tonerSaveButton->isEnabled());
        host->mark(u"Resolution"_s, u"1200dpi"_s);
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QVERIFY(panel.hasMode(kModeNoTonerSave));
        QVERIFY(!panel.tonerSaveButton->isEnabled());
        QCOMPARE(host->marked(u"TonerSaveMode"_s), u"OFF"_s);
        QVERIFY(pick(panel.resolutionPopup, u"600 dpi"_s));
        QVERIFY(!panel.hasMode(kModeNoTonerSave));
        QVERIFY(panel.tonerSaveButton->isEnabled());
    }

    void everySaveTellsTheHostThatNoTonerIsSaved_data()
    {
        QTest::addColumn<QString>("output");
        QTest::newRow("to the printer") << u"Printer"_s;
        QTest::newRow("to a fax") << u"FAX"_s;
    }
    void everySaveTellsTheHostThatNoTonerIsSaved()
    {
        QFETCH(QString, output);
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->mark(u"QXOutput"_s, output);
        m_host->mark(u"QXResolution"_s, u"1200dpi"_s);
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        for (int save = 0; save < 3; ++save) {
            m_host->forgetCalls();
            m_panel->saveAllValues();
            QCOMPARE(m_host->asked(), QStringList{u"TonerSaveMode=OFF"_s});
        }
    }

    // The items of a pop-up

    void choicesAreDisabledAndReplaced_data()
    {
        QTest::addColumn<QString>("popUp");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QStringList>("choices");
        QTest::addColumn<bool>("toDefault");
        QTest::addColumn<QString>("result");
        const QString media = u"mediaTypePopup"_s;
        const QString source = u"paperFeedPopup"_s;
        const QString resolution = u"resolutionPopup"_s;
        QTest::newRow("another choice")
            << media << u"Thick"_s << QStringList{u"Label"_s} << false << u"Thick"_s;
        QTest::newRow("the selected one")
            << media << u"Thick"_s << QStringList{u"Label"_s, u"Thick"_s} << false << u"Plain"_s;
        QTest::newRow("to the default")
            << media << u"Thick"_s << QStringList{} << true << u"Plain"_s;
        QTest::newRow("the selected source")
            << source << u"MPTray"_s << QStringList{u"MPTray"_s} << false << u"Tray1"_s;
        QTest::newRow("a source to the default")
            << source << u"MPTray"_s << QStringList{} << true << u"Tray1"_s;
        QTest::newRow("a pop-up without a default")
            << resolution << u"1200dpi"_s << QStringList{u"1200dpi"_s} << true << u"1200dpi"_s;
        QTest::newRow("an unknown choice")
            << media << u"Thick"_s << QStringList{u"Wood"_s} << false << u"Thick"_s;
    }
    void choicesAreDisabledAndReplaced()
    {
        QFETCH(QString, popUp);
        QFETCH(QString, selected);
        QFETCH(QStringList, choices);
        QFETCH(bool, toDefault);
        QFETCH(QString, result);
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->forgetCalls();
        auto *control = m_panel->m_panelView->findChild<QComboBox *>(popUp);
        const auto itemOf = [control](const QString &choice) {
            return popup::indexOfItemWithRepresentedObject(control, choice);
        };
        popup::selectItemAt(control, itemOf(selected));
        m_panel->changeState_forArray_toEnable_toDefault(control, choices, false, toDefault);
        QCOMPARE(popup::representedObject(control, control->currentIndex()), QVariant(result));
        for (int item = 0; item < control->count(); ++item) {
            const QString choice = popup::representedObject(control, item).toString();
            QCOMPARE(popup::isItemEnabled(control, item), !choices.contains(choice));
        }
        m_panel->changeState_forArray_toEnable_toDefault(control, choices, true, false);
        for (int item = 0; item < control->count(); ++item)
            QVERIFY(popup::isItemEnabled(control, item));
        QVERIFY2(m_host->calls().isEmpty(), "nothing of this is the user's doing");
    }

    void aButtonNamesItsState_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QString>("result");
        QTest::newRow("on") << true << true << u"name_on"_s;
        QTest::newRow("off") << true << false << u"name_off"_s;
        QTest::newRow("on, disabled") << false << true << u"name_off"_s;
        QTest::newRow("off, disabled") << false << false << u"name_off"_s;
    }
    void aButtonNamesItsState()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, on);
        QFETCH(QString, result);
        QCheckBox box;
        box.setEnabled(enabled);
        box.setChecked(on);
        QCOMPARE(m_panel->addOnOffSuffix_ToString(&box, u"name"_s), result);
        QCOMPARE(m_panel->addOnOffSuffix_ToString(nullptr, u"name"_s), u"name_off"_s);
    }

    void theSleepTimeIsManualForTwoKindsOfChoices_data()
    {
        QTest::addColumn<QVariant>("choice");
        QTest::addColumn<bool>("manual");
        QTest::newRow("Custom") << QVariant(u"Custom"_s) << true;
        QTest::newRow("begins with Custom") << QVariant(u"Custom.12"_s) << true;
        QTest::newRow("True") << QVariant(u"True"_s) << true;
        QTest::newRow("False") << QVariant(u"False"_s) << false;
        QTest::newRow("Default") << QVariant(u"Default"_s) << false;
        QTest::newRow("begins with True") << QVariant(u"Truely"_s) << false;
        QTest::newRow("other letter case") << QVariant(u"custom"_s) << false;
        QTest::newRow("contains Custom") << QVariant(u"NoCustom"_s) << false;
        QTest::newRow("nothing") << QVariant() << false;
    }
    void theSleepTimeIsManualForTwoKindsOfChoices()
    {
        QFETCH(QVariant, choice);
        QFETCH(bool, manual);
        if (choice.isValid())
            m_panel->m_outputBin.insert(u"QXSleepTime"_s, choice);
        else
            m_panel->m_outputBin.remove(u"QXSleepTime"_s);
        for (const bool before : {false, true}) {
            m_panel->setMode(kModeManualSleep, before);
            m_panel->checkConstraints();
            QCOMPARE(m_panel->hasMode(kModeManualSleep), manual);
            m_panel->setMode(kModeManualSleep, before);
            m_panel->canSetManualSleep();
            QCOMPARE(m_panel->hasMode(kModeManualSleep), manual);
            m_panel->setMode(kModeManualSleep, before);
            m_panel->updateUIforKey(u"QXSleepTime"_s);
            QCOMPARE(m_panel->hasMode(kModeManualSleep), manual);
        }
    }

    void theColorModeIsAnnounced_data()
    {
        QTest::addColumn<QVariant>("choice");
        QTest::addColumn<bool>("mono");
        QTest::newRow("Mono") << QVariant(u"Mono"_s) << true;
        QTest::newRow("Color") << QVariant(u"Color"_s) << false;
        QTest::newRow("begins with Mono") << QVariant(u"Monochrome"_s) << false;
        QTest::newRow("nothing") << QVariant() << false;
    }
    void theColorModeIsAnnounced()
    {
        QFETCH(QVariant, choice);
        QFETCH(bool, mono);
        m_panel->m_outputBin.insert(u"QXMonoColor"_s, choice);
        m_panel->setMode(kModeMono, !mono);
        Listener listener;
        m_panel->canSelectColorMode();
        QCOMPARE(m_panel->hasMode(kModeMono), mono);
        QCOMPARE(listener.heard.size(), 1);
        QCOMPARE(listener.heard.first().sender, static_cast<void *>(m_host.get()));
        QVERIFY(listener.heard.first().hasUserInfo);
        QCOMPARE(listener.heard.first().userInfo, (QVariantMap{{u"QXMonoColor"_s, mono}}));
    }

    void everyRestoreAnnouncesTheColorMode()
    {
        Listener listener;
        m_panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(listener.heard.size(), 1);
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        listener.heard.clear();
        m_panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(listener.heard.size(), 2); // once from the controls, once at its end
    }

    void aPrinterWithoutColorModeAnnouncesOncePerRestore()
    {
        const auto host = RecordingHost::forPpd(PpdBuilder().onOff("QXSkipBlank", "Skip").text());
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        Listener listener;
        panel.restoreValuesAndReturnError(nullptr);
        QCOMPARE(listener.heard.size(), 1);
    }

    void oneSidedIsTheDefaultOfTheTwoSidedOption_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QString>("marked"); // null: left as it is
        QTest::addColumn<bool>("simplex");
        const auto printer = [](const QByteArray &defaultChoice) {
            return PpdBuilder()
                .option("Duplex", "Two Sides", defaultChoice,
                        {{"None", "Off"}, {"DuplexTumble", "Short Edge"}})
                .text();
        };
        QTest::newRow("no such option") << PpdBuilder().text() << QString() << true;
        QTest::newRow("the default marked") << printer("None") << u"None"_s << true;
        QTest::newRow("another marked") << printer("None") << u"DuplexTumble"_s << false;
        // The default is taken as the one-sided setting, whatever its choice is called.
        QTest::newRow("another default, marked")
            << printer("DuplexTumble") << u"DuplexTumble"_s << true;
        QTest::newRow("another default, None marked")
            << printer("DuplexTumble") << u"None"_s << false;
    }
    void oneSidedIsTheDefaultOfTheTwoSidedOption()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(QString, marked);
        QFETCH(bool, simplex);
        const auto host = RecordingHost::forPpd(ppd);
        if (!marked.isNull())
            host->mark(u"Duplex"_s, marked);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.isSimplexMode(), simplex);
    }

    void aTwoSidedOptionWithoutAnyMarkIsNotOneSided()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->unmark(u"Duplex"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(!panel.isSimplexMode());
    }

    // A user's pick

    void theRulesRunBeforeThePickAndItsOwnRuleAfter_data()
    {
        QTest::addColumn<QString>("popUp");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QString>("ownRule");
        QTest::newRow("color mode") << u"monoColorPopup"_s << u"Mono"_s << u"QXMonoColor"_s
                                    << u"Mono"_s << u"canSelectColorMode"_s;
        QTest::newRow("paper source") << u"paperFeedPopup"_s << u"Tray 1"_s << u"QXInputSlot"_s
                                      << u"Tray1"_s << u"checkStateWithPaperFeed"_s;
        QTest::newRow("media type")
            << u"mediaTypePopup"_s << u"Thin Paper"_s << u"QXMediaType"_s << u"Thin"_s << QString();
    }
    void theRulesRunBeforeThePickAndItsOwnRuleAfter()
    {
        QFETCH(QString, popUp);
        QFETCH(QString, item);
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(QString, ownRule);
        QWidget *view = m_panel->panelView();
        QVERIFY(view);
        m_panel->willShow();
        m_host->forgetCalls();
        m_panel->tracing = true;
        QVERIFY(pick(view->findChild<QComboBox *>(popUp), item));
        QList<HostCall> expected{
            {u"checkConstraints"_s, {}},
            {u"willChangePPDOptionKeyValue_ppdChoice"_s, {keyword, choice}},
            {u"updateUIforKey"_s, {keyword}},
        };
        if (!ownRule.isNull())
            expected += HostCall{ownRule, {}};
        expected += HostCall{u"saveAllValues"_s, {}};
        QCOMPARE(m_host->calls().first(expected.size()), expected);
        const QString last = m_host->calls().last().operation;
        if (!ownRule.isNull())
            QCOMPARE(last, ownRule);
        else
            QVERIFY(last != u"canSelectColorMode"_s && last != u"checkStateWithPaperFeed"_s);
    }

    void aRefusedColorModeIsEvaluatedFromWhatIsStored()
    {
        QWidget *view = m_panel->panelView();
        QVERIFY(view);
        m_panel->willShow();
        m_host->refuse(u"QXMonoColor"_s, u"Mono"_s);
        Listener listener;
        QVERIFY(pick(m_panel->monoColorPopup, u"Mono"_s));
        QVERIFY(!m_panel->hasMode(kModeMono));
        QCOMPARE(m_panel->monoColorPopup->currentText(), u"Auto (Color or Mono)"_s);
        QCOMPARE(listener.heard.size(), 2); // after the control was put back, and after the pick
        m_panel->revertUI_forKey(m_panel->mediaTypePopup, u"QXMediaType"_s);
        QCOMPARE(listener.heard.size(), 2);
    }

    void aPaperSourceChangedElsewhereRunsItsRule()
    {
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->forgetCalls();
        m_panel->tracing = true;
        m_panel->PPDOptionKeyValueDidChange_ppdChoice(u"QXInputSlot"_s, u"Tray1"_s);
        const QList<HostCall> expected{{u"updateUIforKey"_s, {u"QXInputSlot"_s}},
                                       {u"checkStateWithPaperFeed"_s, {}}};
        QCOMPARE(m_host->calls(), expected);
        QCOMPARE(m_panel->paperFeedPopup->currentText(), u"Tray 1"_s);
    }

private:
    TestBundle m_bundle = TestBundle::built();
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

QTEST_MAIN(RulesTest)
#include "rules_test.moc"
