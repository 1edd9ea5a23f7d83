#include <QTest>

#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kOrder = QLatin1StringView(kSummaryDisplayOrder);

const QString kMatching = u"Color Matching"_s;
const QString kBlack = u"Enhance Black Printing"_s;
const QString kGray = u"Print Gray with Black Toner Only"_s;
const QString kDrying = u"Extra Drying Time"_s;
const QStringList kEffects{u"Brightness"_s, u"Contrast"_s, u"Red"_s,
                           u"Green"_s,      u"Blue"_s,     u"Saturation"_s};

} // namespace

class SummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLinesFollowWhoMatchesColors_data()
    {
        QTest::addColumn<bool>("driver");
        QTest::addColumn<bool>("mono");
        QTest::addColumn<QStringList>("order");
        QTest::newRow("the driver, color")
            << true << false << QStringList{kMatching, kBlack, kGray, kDrying} + kEffects;
        QTest::newRow("the driver, mono")
            << true << true << QStringList{kBlack, kGray, kDrying} + kEffects.first(2);
        QTest::newRow("the application, color") << false << false << QStringList{kGray};
        QTest::newRow("the application, mono") << false << true << QStringList{kGray};
    }
    void theLinesFollowWhoMatchesColors()
    {
        QFETCH(bool, driver);
        QFETCH(bool, mono);
        QFETCH(QStringList, order);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"AP_ColorMatchingMode"_s,
                   driver ? u"AP_VendorColorMatching"_s : u"AP_ApplicationColorMatching"_s);
        host->mark(u"QXMonoColor"_s, mono ? u"Mono"_s : u"Color"_s);
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantMap summary = panel.summaryInfo();
        QCOMPARE(summary.value(kOrder).toStringList(), order);
        QCOMPARE(summary.size(), order.size() + 1);
        QCOMPARE(summary.value(kGray).toString(),
                 m_bundle.bundle()->localizedStringOrKey(u"OFF"_s));
    }

    void anEffectLineShowsTheValueAsItIsStored()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setValue(kNormalEffect, QVariantList{u"5"_s, u"+4"_s, -3, 0, 21, u"0"_s});
        const QVariantMap summary = panel.summaryInfo();
        QCOMPARE(summary.value(u"Brightness"_s), QVariant(u"5"_s));
        QCOMPARE(summary.value(u"Contrast"_s), QVariant(u"+4"_s));
        QCOMPARE(summary.value(u"Red"_s), QVariant(-3));
        QCOMPARE(summary.value(u"Blue"_s), QVariant(u"0"_s));
        QCOMPARE(summary.value(kMatching), QVariant(u"Normal"_s));
    }

    void theEffectLinesComeFromTheSetInForce_data()
    {
        QTest::addColumn<QString>("colorMode");
        QTest::addColumn<QString>("matching");
        QTest::addColumn<QString>("brightness");
        QTest::addColumn<QString>("contrast");
        QTest::newRow("normal") << u"Color"_s << u"Normal"_s << u"1"_s << u"-1"_s;
        QTest::newRow("no matching") << u"Color"_s << u"None"_s << u"1"_s << u"-1"_s;
        QTest::newRow("vivid") << u"Color"_s << u"Vivid"_s << u"2"_s << u"-2"_s;
        QTest::newRow("mono") << u"Mono"_s << u"Vivid"_s << u"3"_s << u"-3"_s;
    }
    void theEffectLinesComeFromTheSetInForce()
    {
        QFETCH(QString, colorMode);
        QFETCH(QString, matching);
        QFETCH(QString, brightness);
        QFETCH(QString, contrast);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXMonoColor"_s, colorMode);
        host->mark(u"QXColorMatching"_s, matching);
        host->settings().setValue(kNormalEffect, QVariantList{1, -1, 0, 0, 0, 0});
        host->settings().setValue(kVividEffect, QVariantList{2, -2, 0, 0, 0, 0});
        host->settings().setValue(kMonoEffect, QVariantList{3, -3, 0, 0, 0, 0});
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantMap summary = panel.summaryInfo();
        QCOMPARE(summary.value(u"Brightness"_s).toString(), brightness);
        QCOMPARE(summary.value(u"Contrast"_s).toString(), contrast);
    }

    void aBadSetShowsZeros()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setValue(kNormalEffect, QVariantList{9, 9, 9, 9, 9});
        const QVariantMap summary = panel.summaryInfo();
        for (const QString &effect : kEffects)
            QCOMPARE(summary.value(effect), QVariant(u"0"_s));
    }

    void aTitleThatIsNotUtf8GetsNoLine()
    {
        PpdBuilder ppd;
        ppd.driverMatchesColors()
            .option("QXRed", "R\xff", "0", {{"0", "0"}})
            .option("QXBlue", "Blue", "0", {{"0", "0"}});
        ColorSettingProbe panel(RecordingHost::forPpd(ppd.text()));
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.summaryInfo().value(kOrder).toStringList(), QStringList{u"Blue"_s});
    }

    void theEffectsAreReadLast()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.tracing = true;
        panel.summaryInfo();
        const QList<HostCall> last = host->calls().last(2);
        // What the restore has saved is read once more, so that lines and job say the same.
        QCOMPARE(last,
                 (QList<HostCall>{{u"saveEffectValues"_s, {}}, {u"restoreEffectValues"_s, {}}}));
    }

    void anEffectThatThePrinterLacksGetsNoLine()
    {
        PpdBuilder ppd;
        ppd.driverMatchesColors().option("QXRed", "Red", "0", {{"0", "0"}}).onOff("QXGray", "Gray");
        ColorSettingProbe panel(RecordingHost::forPpd(ppd.text()));
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.summaryInfo().value(kOrder).toStringList(),
                 (QStringList{u"Gray"_s, u"Red"_s}));
    }

    void theAvailableOptionsNeverNameAnEffect()
    {
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        for (const bool driver : {false, true}) {
            panel.setMode(kModeColorSync, driver);
            const QStringList available = panel.availablePPDOptionKeys().value();
            QVERIFY(available.contains(u"QXGray"_s));
            for (const QLatin1StringView effect : kEffectKeywords)
                QVERIFY(!available.contains(effect));
        }
        QVERIFY2(panel.supportedPPDOptionKeys()->contains(u"QXRed"_s),
                 "the panel owns them all the same");
    }

private:
    TestBundle m_bundle = TestBundle::built();
};

QTEST_MAIN(SummaryTest)
#include "summary_test.moc"
