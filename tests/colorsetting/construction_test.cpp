#include <QTest>

#include "colorsetting/ColorTransformer.h"
#include "platform/toolkit/LabelColor.h"
#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Answers nothing; stands where the panel's own is expected.
class OtherTransformer : public ValueTransformer
{
public:
    QVariant transformedValue(const QVariant &) const override { return {}; }
    QVariant reverseTransformedValue(const QVariant &) const override { return {}; }
};

void post(RecordingHost &host, const QVariantMap &userInfo)
{
    NotificationCenter::defaultCenter().post(kLaserPrintSettingNotification,
                                             static_cast<PDEPluginCallback *>(&host), userInfo);
}

} // namespace

class ConstructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bundle.emplace(TestBundle::built()); }
    void cleanup() { m_bundle.reset(); }

    void constructionRunsItsStepsInOrder()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        panel.tracing = true;
        QVERIFY(panel.initWithHost());
        const QStringList expected{
            u"restoreValuesAndReturnError"_s,
            u"checkConstraints"_s,
            u"restoreEffectValues"_s,
            u"setEffectDefaults"_s, // the first time only
            u"saveAllValues"_s,
            u"saveEffectValues"_s,
            u"checkConstraints"_s,
            u"restoreEffectValues"_s,
            u"setEffectDefaults"_s,
            u"restoreEffectValues"_s,
            u"saveEffectValues"_s,
            u"printSettingsNotified"_s, // by its own notification
        };
        QStringList steps;
        for (const HostCall &call : host->calls())
            steps += call.operation;
        QCOMPARE(steps, expected);
    }

    void thePanelHasANameOfItsOwn_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("name");
        QTest::newRow("English") << u"en"_s << u"Color Setting"_s;
        QTest::newRow("Japanese") << u"ja"_s << u"カラー設定"_s;
    }
    void thePanelHasANameOfItsOwn()
    {
        QFETCH(QString, language);
        QFETCH(QString, name);
        const UserLanguage user(language);
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.panelName(), name);
        QCOMPARE(panel.thePDEName(), u"QXLaserColorSetting"_s);
        QCOMPARE(panel.panelKind(), u"com.corvana.print.pde.CocoaQXLaserColorSetting"_s);
        QCOMPARE(panel.helpBook(), u"Corvana Color Settings Help (Laser)"_s);
        QCOMPARE(panel.optionName(), u"advancedcolorItem"_s);
    }

    void aBundleWithoutInformationStillNamesThePanel()
    {
        m_bundle.emplace(TestBundle::Information::Absent);
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.thePDEName(), u"QXLaserColorSetting"_s);
        QCOMPARE(panel.PPDKeys, std::optional<QStringList>());
        QCOMPARE(panel.availablePPDOptionKeys(), std::optional(QStringList()));
    }

    void theOptionsComeFromTheBundle()
    {
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        const auto listed = m_bundle->bundle()->infoStringList(u"PMPPDKeysSupportedColor"_s);
        QVERIFY(listed && listed->contains(u"QXGray"_s));
        QCOMPARE(panel.PPDKeys, listed); // the sample printer has them all
    }

    void aHostThatCannotBeAskedGetsNoPanel()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->lack(PDECallbackOperation::willChangePPDOptionKeyValue_ppdChoice);
        ColorSettingProbe panel(host);
        panel.tracing = true;
        QVERIFY(!panel.initWithHost());
        QVERIFY(host->calls().isEmpty());
        QVERIFY2(panel.thePDEName() != u"QXLaserColorSetting"_s, "nothing further happens");
        panel.setMode(kModeMono, false);
        post(*host, {{u"QXMonoColor"_s, true}});
        QVERIFY(!panel.hasMode(kModeMono));
    }

    void theTextColorsTransformerIsRegistered()
    {
        ValueTransformer::setValueTransformer(std::make_shared<OtherTransformer>(),
                                              QLatin1StringView(kColorTransformerName));
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        const auto transformer = ValueTransformer::valueTransformerForName(u"QXColorTransformer"_s);
        QVERIFY(transformer);
        QCOMPARE(transformer->transformedValue(true).value<ControlTextColor>(),
                 ControlTextColor::Normal);
        QVERIFY(transformer->transformedValue(true).isValid());
        QCOMPARE(transformer->transformedValue(false).value<ControlTextColor>(),
                 ControlTextColor::Disabled);
        QCOMPARE(transformer->transformedValue({}).value<ControlTextColor>(),
                 ControlTextColor::Disabled);
        QVERIFY(!transformer->reverseTransformedValue(true).isValid());
    }

    void aFlagBecomesATextColor_data()
    {
        QTest::addColumn<QVariant>("flag");
        QTest::addColumn<ControlTextColor>("color");
        const auto normal = ControlTextColor::Normal;
        const auto disabled = ControlTextColor::Disabled;
        QTest::newRow("yes") << QVariant(true) << normal;
        QTest::newRow("no") << QVariant(false) << disabled;
        QTest::newRow("one") << QVariant(1) << normal;
        QTest::newRow("zero") << QVariant(0) << disabled;
        QTest::newRow("a half") << QVariant(0.5) << normal;
        QTest::newRow("the text YES") << QVariant(u"YES"_s) << normal;
        QTest::newRow("the text NO") << QVariant(u"NO"_s) << disabled;
        QTest::newRow("a list") << QVariant(QVariantList{true}) << disabled;
        QTest::newRow("nothing") << QVariant() << disabled;
    }
    void aFlagBecomesATextColor()
    {
        QFETCH(QVariant, flag);
        QFETCH(ControlTextColor, color);
        const ColorTransformer transformer;
        const QVariant transformed = transformer.transformedValue(flag);
        QVERIFY(transformed.metaType() == QMetaType::fromType<ControlTextColor>());
        QCOMPARE(transformed.value<ControlTextColor>(), color);
        QVERIFY(transformed.metaType() == ColorTransformer::transformedValueClass());
        QVERIFY(!ColorTransformer::allowsReverseTransformation());
        QVERIFY(!transformer.reverseTransformedValue(transformed).isValid());
    }

    // The colour mode of the other panel

    void constructionReadsTheColorModeFromTheJob_data()
    {
        QTest::addColumn<QVariant>("entry");
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("mono");
        QTest::newRow("Mono") << QVariant(u"Mono"_s) << false << true;
        QTest::newRow("Color") << QVariant(u"Color"_s) << true << false;
        QTest::newRow("other letter case") << QVariant(u"mono"_s) << true << false;
        QTest::newRow("no entry keeps what was") << QVariant() << true << true;
    }
    void constructionReadsTheColorModeFromTheJob()
    {
        QFETCH(QVariant, entry);
        QFETCH(bool, before);
        QFETCH(bool, mono);
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVariantMap entries = host->settings().entries();
        entries.remove(u"QXMonoColor"_s);
        host->settings().setEntries(entries);
        if (entry.isValid())
            host->settings().setValue(u"QXMonoColor"_s, entry);
        panel.setMode(kModeMono, before);
        NotificationCenter::defaultCenter().post(kLaserPrintSettingNotification,
                                                 static_cast<PDEPluginCallback *>(host.get()));
        QCOMPARE(panel.hasMode(kModeMono), mono);
    }

    void aJobInMonoIsMonoFromTheStart()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXMonoColor"_s, u"Mono"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.hasMode(kModeMono));
    }

    void theOtherPanelsWordCountsMoreThanTheJob_data()
    {
        QTest::addColumn<QVariantMap>("userInfo");
        QTest::addColumn<bool>("mono");
        QTest::newRow("mono") << QVariantMap{{u"QXMonoColor"_s, true}} << true;
        QTest::newRow("color") << QVariantMap{{u"QXMonoColor"_s, false}} << false;
        QTest::newRow("no word") << QVariantMap{} << false;
    }
    void theOtherPanelsWordCountsMoreThanTheJob()
    {
        QFETCH(QVariantMap, userInfo);
        QFETCH(bool, mono);
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setValue(u"QXMonoColor"_s, mono ? u"Color"_s : u"Mono"_s);
        panel.setMode(kModeMono, !mono);
        post(*host, userInfo);
        QCOMPARE(panel.hasMode(kModeMono), mono);
    }

    void anotherDialogsColorModeIsNotHeard()
    {
        const auto host = RecordingHost::forSamplePrinter();
        const auto otherHost = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        post(*otherHost, {{u"QXMonoColor"_s, true}});
        QVERIFY(!panel.hasMode(kModeMono));
    }

    void theColorModeIsOnlyNotedNotDrawn()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.colorMatchingMatrix->isEnabled());
        post(*host, {{u"QXMonoColor"_s, true}});
        QVERIFY(panel.colorMatchingMatrix->isEnabled());
        panel.willShow();
        QVERIFY(!panel.colorMatchingMatrix->isEnabled());
    }

private:
    std::optional<TestBundle> m_bundle;
};

QTEST_MAIN(ConstructionTest)
#include "construction_test.moc"
