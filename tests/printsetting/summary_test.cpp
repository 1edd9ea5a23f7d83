#include <QTest>

#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kOrder = QLatin1StringView(kSummaryDisplayOrder);

} // namespace

class SummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theModelComesFirstAndTheOptionsFollow()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(kDensityEntry, u"-2"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantMap summary = panel.summaryInfo();
        const QStringList order{
            u"Model"_s,
            u"Resolution"_s,
            u"Media Type"_s,
            u"Color Mode"_s,
            u"Paper Source"_s,
            u"Toner Save"_s,
            u"Improve Print Output"_s,
            u"Reduce Ghosting"_s,
            u"Density Adjustment"_s,
            u"Sleep Time"_s,
            u"Quiet Mode"_s,
            u"Skip Blank Pages"_s,
        };
        QCOMPARE(summary.value(kOrder).toStringList(), order);
        QCOMPARE(summary.value(u"Model"_s).toString(), u"Corvana CL-550 Color"_s);
        QCOMPARE(summary.value(u"Media Type"_s).toString(), u"Plain Paper"_s);
        QCOMPARE(summary.value(u"Toner Save"_s).toString(), onOff(false));
        QCOMPARE(summary.value(u"Quiet Mode"_s).toString(), u"Use Printer Setting"_s);
        QCOMPARE(summary.value(u"Sleep Time"_s).toString(), u"Automatic"_s);
        QCOMPARE(summary.value(u"Density Adjustment"_s).toString(), u"-2"_s);
        QCOMPARE(summary.size(), order.size() + 1);
    }

    void theMinutesComeLastAndOnlyInManualMode()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXSleepTime"_s, u"Custom"_s);
        host->settings().setValue(kSleepEntry, u"12"_s);
        host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantMap summary = panel.summaryInfo();
        QCOMPARE(summary.value(kOrder).toStringList().last(), u"Minutes (1 to 99)"_s);
        QCOMPARE(summary.value(kOrder).toStringList().size(), 13);
        QCOMPARE(summary.value(u"Minutes (1 to 99)"_s).toString(), u"12"_s);
        QCOMPARE(summary.value(u"Sleep Time"_s).toString(), u"Manual"_s);
    }

    void aManualModeWithoutTheParameterHasNoMinutes()
    {
        PpdBuilder ppd;
        ppd.option("QXSleepTime", "Sleep Time", "True", {{"True", "Manual"}, {"False", "Auto"}});
        PrintSettingProbe panel(RecordingHost::forPpd(ppd.text()));
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.hasMode(kModeManualSleep));
        QCOMPARE(panel.summaryInfo().value(kOrder).toStringList(),
                 (QStringList{u"Model"_s, u"Sleep Time"_s}));
    }

    void aPrinterWithoutDensityHasNoDensityLine()
    {
        PrintSettingProbe panel(RecordingHost::forPpd(
            PpdBuilder().onOff("QXSkipBlank", "Skip").shortNickName("Tiny").text()));
        QVERIFY(panel.initWithHost());
        panel.m_outputBin.insert(QXLaserPrintSetting::densityParamKey(), 4);
        const QVariantMap expected{{u"Model"_s, u"Tiny"_s},
                                   {u"Skip"_s, onOff(false)},
                                   {kOrder, QStringList{u"Model"_s, u"Skip"_s}}};
        QCOMPARE(panel.summaryInfo(), expected);
    }

    void whatTheSummarySaysIsWhatTheHostHolds()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        host->mark(u"QXMediaType"_s, u"Label"_s);
        QCOMPARE(panel.summaryInfo().value(u"Media Type"_s).toString(), u"Labels"_s);
        QCOMPARE(panel.mediaTypePopup->currentText(), u"Labels"_s);
    }

private:
    QString onOff(bool on) const
    {
        return m_bundle.bundle()->localizedStringOrKey(on ? u"ON"_s : u"OFF"_s);
    }

    TestBundle m_bundle = TestBundle::built();
};

QTEST_MAIN(SummaryTest)
#include "summary_test.moc"
