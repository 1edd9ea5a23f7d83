#include <limits>

#include <QTest>

#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kMinutes = u"QXSleepTime_Time"_s;

} // namespace

/// The two settings that are numbers: the sleep time and the density.
class NumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDensityHasAKeyOfItsOwn()
    {
        QCOMPARE(QXLaserPrintSetting::densityParamKey(), u"QXDensityAdjustment_Density"_s);
    }

    void valuesAreBroughtIntoTheirBounds_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<qint64>("minimum");
        QTest::addColumn<qint64>("maximum");
        QTest::addColumn<qint64>("result");
        QTest::newRow("above") << qint64(5) << qint64(1) << qint64(3) << qint64(3);
        QTest::newRow("below") << qint64(0) << qint64(1) << qint64(3) << qint64(1);
        QTest::newRow("inside") << qint64(2) << qint64(1) << qint64(3) << qint64(2);
        QTest::newRow("at the ends") << qint64(3) << qint64(3) << qint64(3) << qint64(3);
        QTest::newRow("bounds the wrong way round")
            << qint64(2) << qint64(3) << qint64(1) << qint64(3);
        QTest::newRow("above bounds the wrong way round")
            << qint64(7) << qint64(3) << qint64(1) << qint64(1);
    }
    void valuesAreBroughtIntoTheirBounds()
    {
        QFETCH(qint64, value);
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        QFETCH(qint64, result);
        const ValueBounds bounds{minimum, maximum};
        QCOMPARE(bounds.clamped(value), result);
        QCOMPARE(bounds.contains(value), minimum <= value && value <= maximum);
    }

    void aNumberIsWrittenInsideItsRange_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<qint64>("low");
        QTest::addColumn<qint64>("high");
        QTest::addColumn<QString>("text"); // null: none
        constexpr qint64 kLeast = std::numeric_limits<qint64>::min();
        constexpr qint64 kMost = std::numeric_limits<qint64>::max();
        QTest::newRow("above") << qint64(5) << qint64(1) << qint64(3) << u"3"_s;
        QTest::newRow("below") << qint64(0) << qint64(1) << qint64(3) << u"1"_s;
        QTest::newRow("inside") << qint64(2) << qint64(1) << qint64(3) << u"2"_s;
        QTest::newRow("one value only") << qint64(9) << qint64(3) << qint64(3) << u"3"_s;
        QTest::newRow("negative") << qint64(-9) << qint64(-6) << qint64(6) << u"-6"_s;
        QTest::newRow("the wrong way round") << qint64(2) << qint64(3) << qint64(1) << QString();
        QTest::newRow("the largest") << kMost << kLeast << kMost << u"9223372036854775807"_s;
        QTest::newRow("the smallest") << kLeast << kLeast << kMost << u"-9223372036854775808"_s;
    }
    void aNumberIsWrittenInsideItsRange()
    {
        QFETCH(qint64, value);
        QFETCH(qint64, low);
        QFETCH(qint64, high);
        QFETCH(QString, text);
        const QString written =
            QXLaserPrintSetting::stringWithInteger_fromInteger_toInteger(value, low, high);
        QCOMPARE(written, text);
        QCOMPARE(written.isNull(), text.isNull());
    }

    void controlsTakeTheNearestValueThatFits()
    {
        QCOMPARE(controlValue(7), 7);
        QCOMPARE(controlValue(std::numeric_limits<qint64>::max()), std::numeric_limits<int>::max());
        QCOMPARE(controlValue(std::numeric_limits<qint64>::min()), std::numeric_limits<int>::min());
    }

    // Sleep time

    void aStoredSleepTimeIsRestored_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("minutes");
        const auto text = [](const QString &value) { return QVariant(value); };
        QTest::newRow("inside") << 5 << text(u"12"_s) << text(u"12"_s);
        QTest::newRow("the lowest") << 5 << text(u"1"_s) << text(u"1"_s);
        QTest::newRow("the highest") << 5 << text(u"99"_s) << text(u"99"_s);
        QTest::newRow("below") << 5 << text(u"0"_s) << text(u"1"_s);
        QTest::newRow("above") << 5 << text(u"250"_s) << text(u"99"_s);
        QTest::newRow("no number") << 5 << text(u"soon"_s) << text(u"1"_s);
        QTest::newRow("kept as it is written") << 5 << text(u" 012"_s) << text(u" 012"_s);
        QTest::newRow("kept as a number") << 5 << QVariant(12) << QVariant(12);
        QTest::newRow("Default") << 5 << text(u"Default"_s) << text(u"3"_s);
        QTest::newRow("Default, an older model") << 3 << text(u"Default"_s) << text(u"5"_s);
        QTest::newRow("no entry") << 5 << QVariant() << text(u"3"_s);
        QTest::newRow("no entry, an older model") << 3 << QVariant() << text(u"5"_s);
    }
    void aStoredSleepTimeIsRestored()
    {
        QFETCH(int, model);
        QFETCH(QVariant, stored);
        QFETCH(QVariant, minutes);
        const auto host = RecordingHost::forPpd(samplePpd(model));
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setEntries({});
        if (stored.isValid())
            host->settings().setValue(kSleepEntry, stored);
        panel.restoreSleepTimeValue();
        QCOMPARE(panel.outputBin().value(kMinutes), minutes);
        QCOMPARE(panel.outputBin().value(kMinutes).typeId(), minutes.typeId());
    }

    void aStoredSleepModeIsRestored_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("mode");
        QTest::newRow("Custom") << QVariant(u"Custom"_s) << u"Custom"_s;
        QTest::newRow("Default") << QVariant(u"Default"_s) << u"Default"_s;
        QTest::newRow("any other") << QVariant(u"True"_s) << u"True"_s;
        QTest::newRow("no entry") << QVariant() << u"Default"_s;
    }
    void aStoredSleepModeIsRestored()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, mode);
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setEntries({});
        if (stored.isValid())
            host->settings().setValue(kSleepModeEntry, stored);
        panel.restoreSleepTimeValue();
        QCOMPARE(panel.stored(u"QXSleepTime"_s), mode);
    }

    void theSleepTimeIsSaved_data()
    {
        QTest::addColumn<QVariant>("minutes");
        QTest::addColumn<bool>("manual");
        QTest::addColumn<QString>("sleep");
        QTest::addColumn<QString>("mode");
        const auto text = [](const QString &value) { return QVariant(value); };
        QTest::newRow("manual") << text(u"12"_s) << true << u"12"_s << u"Custom"_s;
        QTest::newRow("manual, below") << text(u"0"_s) << true << u"1"_s << u"Custom"_s;
        QTest::newRow("manual, above") << text(u"150"_s) << true << u"99"_s << u"Custom"_s;
        QTest::newRow("manual, as it is written")
            << text(u"012"_s) << true << u"012"_s << u"Custom"_s;
        QTest::newRow("manual, nothing") << QVariant() << true << u"1"_s << u"Custom"_s;
        QTest::newRow("automatic") << text(u"12"_s) << false << u"Default"_s << u"Default"_s;
    }
    void theSleepTimeIsSaved()
    {
        QFETCH(QVariant, minutes);
        QFETCH(bool, manual);
        QFETCH(QString, sleep);
        QFETCH(QString, mode);
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.m_outputBin.insert(kMinutes, minutes);
        panel.setMode(kModeManualSleep, manual);
        panel.saveSleepTimeValue();
        QCOMPARE(panel.entry(kSleepEntry), QVariant(sleep));
        QCOMPARE(panel.entry(kSleepModeEntry), QVariant(mode));
        QCOMPARE(panel.outputBin().value(kMinutes), minutes);
    }

    void beforeTheFirstShowTheMarkDecidesWhetherTheSleepTimeIsManual()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(kSleepEntry, u"12"_s);
        host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.entry(kSleepEntry), QVariant(u"Default"_s));
        QCOMPARE(panel.entry(kSleepModeEntry), QVariant(u"Default"_s));
        QCOMPARE(panel.stored(kMinutes), u"12"_s);
    }

    void aMarkedManualSleepTimeSurvivesConstruction()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXSleepTime"_s, u"Custom"_s);
        host->settings().setValue(kSleepEntry, u"12"_s);
        host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.entry(kSleepEntry), QVariant(u"12"_s));
        QCOMPARE(panel.entry(kSleepModeEntry), QVariant(u"Custom"_s));
    }

    void onceShownTheStoredModeDecides()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        host->settings().setValue(kSleepEntry, u"12"_s);
        host->settings().setValue(kSleepModeEntry, u"Custom"_s);
        panel.restoreValuesAndReturnError(nullptr);
        QCOMPARE(panel.entry(kSleepEntry), QVariant(u"12"_s));
        QCOMPARE(panel.entry(kSleepModeEntry), QVariant(u"Custom"_s));
        QVERIFY(panel.hasMode(kModeManualSleep));
    }

    // Density

    void aStoredDensityIsRestored_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<qint64>("minimum");
        QTest::addColumn<qint64>("maximum");
        QTest::addColumn<qint64>("density");
        const auto text = [](const QString &value) { return QVariant(value); };
        QTest::newRow("inside") << text(u"-2"_s) << qint64(-6) << qint64(6) << qint64(-2);
        QTest::newRow("below") << text(u"-9"_s) << qint64(-6) << qint64(6) << qint64(-6);
        QTest::newRow("above") << text(u"9"_s) << qint64(-6) << qint64(6) << qint64(6);
        QTest::newRow("a number") << QVariant(4) << qint64(-6) << qint64(6) << qint64(4);
        QTest::newRow("no number") << text(u"dark"_s) << qint64(2) << qint64(6) << qint64(2);
        QTest::newRow("no entry") << QVariant() << qint64(-6) << qint64(6) << qint64(0);
        QTest::newRow("no entry, zero out of bounds")
            << QVariant() << qint64(2) << qint64(6) << qint64(0);
    }
    void aStoredDensityIsRestored()
    {
        QFETCH(QVariant, stored);
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        QFETCH(qint64, density);
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.kDensityMin = minimum;
        panel.kDensityMax = maximum;
        host->settings().setEntries({});
        if (stored.isValid())
            host->settings().setValue(kDensityEntry, stored);
        panel.restoreDensityValue();
        const QString key = QXLaserPrintSetting::densityParamKey();
        QCOMPARE(panel.outputBin().value(key), QVariant(QString::number(density)));
        QCOMPARE(panel.outputBin().value(key).typeId(), int(QMetaType::QString));
        QCOMPARE(panel.effectContent->value(key), QVariant(density));
        QCOMPARE(panel.effectContent->value(key).typeId(), int(QMetaType::LongLong));
    }

    void theDensityOfTheControlsIsSavedInBounds()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        const QString key = QXLaserPrintSetting::densityParamKey();
        panel.m_outputBin.insert(key, u"3"_s);
        panel.effectContent->setValue(key, u"-9"_s);
        panel.saveDensityValue();
        QCOMPARE(panel.entry(kDensityEntry), QVariant(u"-6"_s));
        // What the panel holds stays as it was entered.
        QCOMPARE(panel.outputBin().value(key), QVariant(qint64(-9)));
        QCOMPARE(panel.outputBin().value(key).typeId(), int(QMetaType::LongLong));
    }

    void withoutAViewTheDensityThatIsHeldIsSaved()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.m_outputBin.insert(QXLaserPrintSetting::densityParamKey(), u"3"_s);
        panel.saveDensityValue();
        QCOMPARE(panel.entry(kDensityEntry), QVariant(u"3"_s));
    }

    void filledControlsShowTheDensityThatIsHeld()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.m_outputBin.insert(QXLaserPrintSetting::densityParamKey(), u"-4"_s);
        panel.initializePopup();
        QCOMPARE(panel.effectContent->value(QXLaserPrintSetting::densityParamKey()),
                 QVariant(qint64(-4)));
    }

    void withoutPrintSettingsTheNumbersStay()
    {
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantMap entries = host->settings().entries();
        host->answerNoPrintSettings();
        panel.m_outputBin.insert(kMinutes, u"42"_s);
        panel.m_outputBin.insert(QXLaserPrintSetting::densityParamKey(), u"5"_s);
        panel.m_outputBin.insert(u"QXSleepTime"_s, u"Custom"_s);
        panel.saveSleepTimeValue();
        panel.saveDensityValue();
        panel.restoreSleepTimeValue();
        panel.restoreDensityValue();
        QCOMPARE(panel.stored(kMinutes), u"42"_s);
        QCOMPARE(panel.stored(QXLaserPrintSetting::densityParamKey()), u"5"_s);
        QCOMPARE(panel.stored(u"QXSleepTime"_s), u"Custom"_s);
        QCOMPARE(host->settings().entries(), entries);
    }

private:
    TestBundle m_bundle = TestBundle::built();
};

QTEST_MAIN(NumbersTest)
#include "numbers_test.moc"
