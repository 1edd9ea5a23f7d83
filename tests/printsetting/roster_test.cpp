#include <QTest>

#include "panel/OptionKeywords.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct SleepTimeCase
{
    const char *name;
    PpdBuilder ppd;
    QString key;
    qint64 minimum;
    qint64 maximum;
};

PpdBuilder printerWithSleepTime()
{
    PpdBuilder ppd;
    ppd.option("QXSleepTime", "Sleep Time", "Default", {{"Default", "Automatic"}});
    return ppd;
}

QList<SleepTimeCase> sleepTimeCases()
{
    return {
        {"no custom option", printerWithSleepTime(), QString(), 1, 99},
        {"no parameter Time",
         printerWithSleepTime().customInteger("QXSleepTime", "Span", "Span", 5, 50), QString(), 1,
         99},
        {"declared bounds",
         printerWithSleepTime().customInteger("QXSleepTime", "Time", "Minutes", 5, 50),
         u"QXSleepTime_Time"_s, 5, 50},
        {"a parameter that is no whole number",
         printerWithSleepTime().customOfType("QXSleepTime", "Time", "real"), u"QXSleepTime_Time"_s,
         1, 99},
    };
}

} // namespace

class RosterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bundle.emplace(TestBundle::built()); }
    void cleanup() { m_bundle.reset(); }

    void eachOptionHasItsControlAndLabel_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("label");
        QTest::newRow("resolution")
            << u"QXResolution"_s << u"resolutionPopup"_s << u"resolutionLabel"_s;
        QTest::newRow("media type")
            << u"QXMediaType"_s << u"mediaTypePopup"_s << u"mediaTypeLabel"_s;
        QTest::newRow("color mode")
            << u"QXMonoColor"_s << u"monoColorPopup"_s << u"monoColorLabel"_s;
        QTest::newRow("paper source")
            << u"QXInputSlot"_s << u"paperFeedPopup"_s << u"paperFeedLabel"_s;
        QTest::newRow("sleep time")
            << u"QXSleepTime"_s << u"sleepTimeMatrix"_s << u"sleepTimePrefixLabel"_s;
        QTest::newRow("toner save") << u"TonerSaveMode"_s << u"tonerSaveButton"_s << QString();
        QTest::newRow("blank pages") << u"QXSkipBlank"_s << u"skipBlankButton"_s << QString();
        QTest::newRow("quiet mode") << u"QXQuietMode"_s << u"quietModeMatrix"_s << QString();
        QTest::newRow("improvement")
            << u"QXImproveOutput"_s << u"improveMatrix"_s << u"improveLabel"_s;
        QTest::newRow("paper curl") << u"QXLessPaperCurl"_s << u"reducePaperButton"_s << QString();
        QTest::newRow("fixing") << u"QXFixIntensity"_s << u"improveTonerfixButton"_s << QString();
        QTest::newRow("ghosting") << u"QXReduceGhost"_s << u"reduceGhostButton"_s << QString();
        QTest::newRow("density") << u"QXDensityAdjustment"_s << u"densitySlider"_s
                                 << u"densityLabel"_s;
    }
    void eachOptionHasItsControlAndLabel()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, control);
        QFETCH(QString, label);
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(!panel.determineUI(keyword)); // there is no view yet
        QWidget *view = panel.panelView();
        QVERIFY(view);
        QWidget *found = panel.determineUI(keyword);
        QVERIFY(found);
        QCOMPARE(found, view->findChild<QWidget *>(control));
        QCOMPARE(panel.determineLabel(keyword),
                 label.isNull() ? nullptr : view->findChild<QWidget *>(label));
        QVERIFY(label.isNull() || panel.determineLabel(keyword));
        QCOMPARE(panel.determineKey(found), keyword);
    }

    void everyOptionOfTheBundlesListHasItsControl()
    {
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        const auto listed = m_bundle->bundle()->infoStringList(u"PMPPDKeysSupported"_s);
        QVERIFY(listed && !listed->isEmpty());
        QStringList without;
        for (const QString &keyword : *listed) {
            if (!panel.determineUI(keyword))
                without += keyword;
        }
        QCOMPARE(without, QStringList{u"Resolution"_s}); // the printer has the other form of it
    }

    void whatIsNotInTheRosterIsNotFound()
    {
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        for (const QString &keyword :
             {u"NoOption"_s, u"qxmediatype"_s, u"Resolution"_s, u""_s, QString()}) {
            QVERIFY2(!panel.determineUI(keyword), qUtf8Printable(keyword));
            QVERIFY2(!panel.determineLabel(keyword), qUtf8Printable(keyword));
        }
        QWidget foreign;
        QVERIFY(panel.determineKey(&foreign).isNull());
        QVERIFY(panel.determineKey(nullptr).isNull());
        QVERIFY2(panel.determineKey(panel.mediaTypeLabel).isNull(), "a label is no control");
    }

    void theResolutionIsEitherOfTwoOptions_data()
    {
        QTest::addColumn<QList<QByteArray>>("options");
        QTest::addColumn<QString>("key");
        QTest::newRow("its own") << QList<QByteArray>{"QXResolution"} << u"QXResolution"_s;
        QTest::newRow("the common one") << QList<QByteArray>{"Resolution"} << u"Resolution"_s;
        QTest::newRow("both") << QList<QByteArray>{"Resolution", "QXResolution"}
                              << u"QXResolution"_s;
        QTest::newRow("none") << QList<QByteArray>{} << u"Resolution"_s;
    }
    void theResolutionIsEitherOfTwoOptions()
    {
        QFETCH(QList<QByteArray>, options);
        QFETCH(QString, key);
        PpdBuilder ppd;
        for (const QByteArray &option : options)
            ppd.option(option, "Resolution", "600dpi", {{"600dpi", "600 dpi"}});
        PrintSettingProbe panel(RecordingHost::forPpd(ppd.text()));
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.PPDResolutionKey, key);
        QVERIFY(panel.panelView());
        QCOMPARE(panel.determineUI(key), panel.resolutionPopup.data());
        QCOMPARE(panel.determineKey(panel.resolutionPopup), key);
        panel.setPPDKeys(QStringList{});
        QCOMPARE(panel.PPDResolutionKey, u"Resolution"_s);
    }

    void theSleepTimeNeedsItsParameter_data()
    {
        QTest::addColumn<int>("index");
        const QList<SleepTimeCase> cases = sleepTimeCases();
        for (int i = 0; i < cases.size(); ++i)
            QTest::newRow(cases.at(i).name) << i;
    }
    void theSleepTimeNeedsItsParameter()
    {
        QFETCH(int, index);
        const SleepTimeCase wanted = sleepTimeCases().at(index);
        const auto host = RecordingHost::forPpd(wanted.ppd.text());
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.PPDSleepTimeKey, wanted.key);
        QCOMPARE(panel.PPDSleepTimeKey.isNull(), wanted.key.isNull());
        QCOMPARE(panel.kSleepTimeMin, wanted.minimum);
        QCOMPARE(panel.kSleepTimeMax, wanted.maximum);
        QStringList supported{u"QXSleepTime"_s};
        if (!wanted.key.isNull())
            supported += wanted.key;
        QCOMPARE(panel.supportedPPDOptionKeys(), std::optional(supported));
        QCOMPARE(panel.availablePPDOptionKeys(), std::optional(supported));
        QCOMPARE(host->settings().contains(kSleepEntry), !wanted.key.isNull());
        QVERIFY2(!panel.outputBin().contains(QString()), "no value without a key");
    }

    void theDefaultSleepTimeDependsOnTheModel_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<qint64>("minutes");
        QTest::newRow("1") << 1 << qint64(5);
        QTest::newRow("3") << 3 << qint64(5);
        QTest::newRow("4") << 4 << qint64(3);
        QTest::newRow("5") << 5 << qint64(3);
    }
    void theDefaultSleepTimeDependsOnTheModel()
    {
        QFETCH(int, model);
        QFETCH(qint64, minutes);
        const auto host = RecordingHost::forPpd(samplePpd(model));
        host->answerNoPrintSettings(); // nothing is restored over the default
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.kSleepTimeDefault, minutes);
        QCOMPARE(panel.stored(u"QXSleepTime_Time"_s), QString::number(minutes));
    }

    void theSleepTimeIsPreparedOnce()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.m_outputBin.insert(u"QXSleepTime_Time"_s, u"42"_s);
        panel.setPPDKeys(panel.PPDKeys);
        QCOMPARE(panel.stored(u"QXSleepTime_Time"_s), u"42"_s);
    }

    void theOptionsComeFromTheBundle()
    {
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QStringList expected = m_bundle->bundle()->infoStringList(kPPDKeysSupported).value();
        // The sample printer has the other form of these two.
        for (const QString &absent : {u"Resolution"_s, u"QXFixIntensity"_s, u"QXLessPaperCurl"_s})
            QCOMPARE(expected.removeAll(absent), 1);
        QCOMPARE(panel.PPDKeys, std::optional(expected));
        QVERIFY(expected.size() > 8);
    }

    void aBundleWithoutTheListLeavesNoOptions()
    {
        m_bundle.emplace(TestBundle::Information::Absent);
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.PPDKeys, std::optional<QStringList>());
    }

    void thePanelIsNamedInTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("name");
        QTest::newRow("English") << u"en"_s << u"Print Setting"_s;
        QTest::newRow("Japanese") << u"ja"_s << u"印刷設定"_s;
    }
    void thePanelIsNamedInTheUsersLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, name);
        const UserLanguage user(language);
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.panelName(), name);
        QCOMPARE(panel.panelKind(), u"com.corvana.print.pde.CocoaQXLaserPrintSetting"_s);
    }

    void aHostThatCannotBeAskedGetsNoPanel()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->lack(PDECallbackOperation::willChangePPDOptionKeyValue_ppdChoice);
        PrintSettingProbe panel(host);
        panel.tracing = true;
        QVERIFY(!panel.initWithHost());
        QVERIFY(host->calls().isEmpty());
    }

private:
    std::optional<TestBundle> m_bundle;
};

QTEST_MAIN(RosterTest)
#include "roster_test.moc"
