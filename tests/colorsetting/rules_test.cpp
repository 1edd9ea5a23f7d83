#include <QTest>

#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A flag that was never written is neither on nor off.
enum Flag { Untouched, Off, On };

Flag flag(const ColorSettingProbe &panel, const QString &key)
{
    if (!panel.effectContent->contains(key))
        return Untouched;
    return panel.effectContent->value(key).toBool() ? On : Off;
}

} // namespace

Q_DECLARE_METATYPE(Flag)

class RulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFlagsOfTheControls_data()
    {
        QTest::addColumn<bool>("driver");
        QTest::addColumn<bool>("mono");
        QTest::addColumn<bool>("fax");
        QTest::addColumn<Flag>("colorMatching");
        QTest::addColumn<Flag>("colorEnhancement");
        QTest::addColumn<Flag>("monoColor");
        QTest::addColumn<Flag>("color");
        QTest::newRow("the driver matches, color")
            << true << false << false << On << On << On << On;
        QTest::newRow("the driver matches, mono")
            << true << true << false << On << On << Off << Off;
        QTest::newRow("the application matches, color")
            << false << false << false << Off << Off << Off << Untouched;
        QTest::newRow("the application matches, mono")
            << false << true << false << Off << Off << Off << Off;
        QTest::newRow("fax") << true << false << true << On << Untouched << Untouched << Off;
        QTest::newRow("fax, the application matches")
            << false << true << true << Off << Untouched << Untouched << Off;
    }
    void theFlagsOfTheControls()
    {
        QFETCH(bool, driver);
        QFETCH(bool, mono);
        QFETCH(bool, fax);
        QFETCH(Flag, colorMatching);
        QFETCH(Flag, colorEnhancement);
        QFETCH(Flag, monoColor);
        QFETCH(Flag, color);
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.setMode(kModeColorSync, driver);
        panel.setMode(kModeMono, mono);
        panel.setMode(kModeFaxOutput, fax);
        panel.checkUIConstraints();
        QCOMPARE(flag(panel, u"QXColorMatching"_s), colorMatching);
        QCOMPARE(flag(panel, u"QXColorEnhancement"_s), colorEnhancement);
        QCOMPARE(flag(panel, u"QXMonoColor"_s), monoColor);
        QCOMPARE(flag(panel, u"Color"_s), color);
        QCOMPARE(flag(panel, u"QXOutput"_s), fax ? Off : On);
    }

    void withoutAViewTheRulesTouchNothing()
    {
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        panel.checkUIConstraints();
        QVERIFY(!panel.effectContent);
    }

    void grayDisablesEnhancedBlackWhichIsSavedOff()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXEnhanceBlkPrt"_s, u"ON"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.enhancedBlackCheckBox->isChecked());
        QVERIFY(panel.enhancedBlackCheckBox->isEnabled());
        host->forgetCalls();

        QVERIFY(click(panel.grayCheckBox));
        QCOMPARE(host->asked(), (QStringList{u"QXGray=ON"_s, u"QXEnhanceBlkPrt=OFF"_s}));
        QVERIFY(!panel.enhancedBlackCheckBox->isEnabled());
        QCOMPARE(panel.stored(u"QXEnhanceBlkPrt"_s), u"OFF"_s);
        QCOMPARE(host->marked(u"QXEnhanceBlkPrt"_s), u"OFF"_s);

        panel.updateUI();
        QVERIFY2(!panel.enhancedBlackCheckBox->isEnabled(), "after every pass of the rules");
        QVERIFY(click(panel.grayCheckBox));
        QVERIFY(panel.enhancedBlackCheckBox->isEnabled());
    }

    void grayRestoredFromTheJobDisablesEnhancedBlackAtOnce()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXGray"_s, u"ON"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.grayCheckBox->isChecked());
        QVERIFY(!panel.enhancedBlackCheckBox->isEnabled());
    }

    void enhancedBlackOutlivesTheColorMatchingOfTheApplication_data()
    {
        QTest::addColumn<QString>("black");
        QTest::newRow("on") << u"ON"_s;
        QTest::newRow("off") << u"OFF"_s;
    }
    void enhancedBlackOutlivesTheColorMatchingOfTheApplication()
    {
        QFETCH(QString, black);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXEnhanceBlkPrt"_s, black);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        for (const QString &mode :
             {u"AP_ApplicationColorMatching"_s, u"AP_VendorColorMatching"_s}) {
            host->mark(u"AP_ColorMatchingMode"_s, mode);
            QVERIFY(panel.restoreValuesAndReturnError(nullptr));
            QVERIFY(panel.saveValuesAndReturnError(nullptr));
            QVERIFY(panel.enhancedBlackCheckBox->isEnabled());
            QCOMPARE(panel.enhancedBlackCheckBox->isChecked(), black == u"ON"_s);
            QCOMPARE(panel.stored(u"QXEnhanceBlkPrt"_s), black);
            QCOMPARE(host->marked(u"QXEnhanceBlkPrt"_s), black);
        }
    }

    void grayDisablesEnhancedBlackWhoeverMatchesTheColors()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"AP_ColorMatchingMode"_s, u"AP_ApplicationColorMatching"_s);
        host->mark(u"QXGray"_s, u"ON"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(!panel.enhancedBlackCheckBox->isEnabled());
        QVERIFY(panel.grayCheckBox->isEnabled());
        QVERIFY(panel.grayCheckBox->isChecked());
    }

    void aFaxKeepsEnhancedBlack()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXEnhanceBlkPrt"_s, u"ON"_s);
        host->mark(u"QXGray"_s, u"ON"_s);
        host->mark(u"QXOutput"_s, u"FAX"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QVERIFY(!panel.enhancedBlackCheckBox->isEnabled());
        QCOMPARE(panel.stored(u"QXEnhanceBlkPrt"_s), u"ON"_s);
    }

    void thePanelImposesNoDefaults()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->unmark(u"QXGray"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.m_outputBin.clear();
        panel.setDefaults();
        QVERIFY(panel.outputBin().isEmpty());
        QVERIFY(host->asked().isEmpty());
    }

    void everyOptionOfTheBundlesListHasItsControl()
    {
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        const auto listed = m_bundle.bundle()->infoStringList(u"PMPPDKeysSupportedColor"_s);
        QVERIFY(listed && !listed->isEmpty());
        QStringList without;
        for (const QString &keyword : *listed) {
            const bool isEffect = panel.determineSlider(keyword) && panel.determineField(keyword) &&
                                  panel.determineLabel(keyword);
            if (!panel.determineUI(keyword) && !isEffect)
                without += keyword;
        }
        QCOMPARE(without, QStringList{u"QXSlowDrying"_s}); // of the summary only
    }

    void rosterLookups_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("label");
        QTest::newRow("color matching")
            << u"QXColorMatching"_s << u"colorMatchingMatrix"_s << u"colorMatchingLabel"_s;
        QTest::newRow("enhanced black")
            << u"QXEnhanceBlkPrt"_s << u"enhancedBlackCheckBox"_s << QString();
        QTest::newRow("gray") << u"QXGray"_s << u"grayCheckBox"_s << QString();
        QTest::newRow("slow drying has no control") << u"QXSlowDrying"_s << QString() << QString();
        QTest::newRow("other letter case") << u"qxgray"_s << QString() << QString();
        QTest::newRow("nothing") << QString() << QString() << QString();
    }
    void rosterLookups()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, control);
        QFETCH(QString, label);
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QWidget *view = panel.panelView();
        QVERIFY(view);
        const auto child = [view](const QString &name) {
            return name.isNull() ? nullptr : view->findChild<QWidget *>(name);
        };
        QCOMPARE(panel.determineUI(keyword), child(control));
        QCOMPARE(panel.determineLabel(keyword), child(label));
        if (!control.isNull()) {
            QVERIFY(child(control));
            QCOMPARE(panel.determineKey(child(control)), keyword);
        }
        QVERIFY(panel.determineKey(view).isNull());
        QVERIFY(panel.determineKey(nullptr).isNull());
    }

private:
    TestBundle m_bundle = TestBundle::built();
};

QTEST_MAIN(RulesTest)
#include "rules_test.moc"
