#include <QTest>

#include "tests/printsetting/PrintSettingFixture.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kKey = u"QXDensityAdjustment_Density"_s;

} // namespace

/// The density's slider and field, which show one number.
class DensityTest : public PrintSettingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(TestBundle::built());
        openPanel(RecordingHost::forSamplePrinter());
        showPanel();
    }
    void cleanup() { closeAll(); }

    void aMoveOfTheSliderReachesFieldPanelAndJob()
    {
        QTest::keyClick(m_panel->densitySlider, Qt::Key_Left);
        QTest::keyClick(m_panel->densitySlider, Qt::Key_Left);
        expectDensity(-2);
        QVERIFY2(m_host->asked().isEmpty(), "a density is never marked");
    }

    void aMoveOfTheSliderIsSavedOnceMoreForItself()
    {
        m_panel->tracing = true;
        QTest::keyClick(m_panel->densitySlider, Qt::Key_Right);
        QStringList operations;
        for (const HostCall &call : m_host->calls())
            operations += call.operation;
        const QStringList expected{u"checkConstraints"_s, u"saveAllValues"_s,
                                   u"getUIValues"_s,      u"saveOptionState"_s,
                                   u"saveDensityValue"_s, u"saveSleepTimeValue"_s,
                                   u"saveDensityValue"_s};
        QCOMPARE(operations, expected);
    }

    void typedNumbersAreTakenIntoTheRange_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("density");
        constexpr int kFormer = 3;
        QTest::newRow("inside") << u"-5"_s << -5;
        QTest::newRow("the lowest") << u"-6"_s << -6;
        QTest::newRow("the highest") << u"6"_s << 6;
        QTest::newRow("below") << u"-99"_s << -6;
        QTest::newRow("above") << u"99"_s << 6;
        QTest::newRow("far above") << u"999999999999"_s << 6;
        QTest::newRow("far below") << u"-99999999999"_s << -6;
        QTest::newRow("with its sign") << u"+2"_s << 2;
        QTest::newRow("full-width") << u"\uff0d\uff14"_s << -4;
        QTest::newRow("with a minus sign") << u"\u22124"_s << -4;
        QTest::newRow("of another script") << u"\u0662"_s << 2;
        QTest::newRow("with blanks") << u" 2 "_s << 2;
        QTest::newRow("nothing") << u""_s << kFormer;
        QTest::newRow("a sign alone") << u"-"_s << kFormer;
        QTest::newRow("two signs") << u"--2"_s << kFormer;
        QTest::newRow("a sign behind") << u"2-"_s << kFormer;
        QTest::newRow("a fraction") << u"1.5"_s << 1;
        QTest::newRow("an exponent") << u"1e0"_s << kFormer;
        QTest::newRow("words") << u"dark"_s << kFormer;
        QTest::newRow("a number and words") << u"2x"_s << kFormer;
        QTest::newRow("two numbers") << u"2 1"_s << kFormer;
    }
    void typedNumbersAreTakenIntoTheRange()
    {
        QFETCH(QString, typed);
        QFETCH(int, density);
        enter(u"3"_s);
        expectDensity(3);
        enter(typed);
        expectDensity(density);
        QVERIFY(m_host->asked().isEmpty());
    }

    void aNumberThatIsBeingTypedIsNotTakenYet()
    {
        m_panel->densityField->setText(u"5"_s);
        QCOMPARE(m_panel->densitySlider->value(), 0);
    }

    void whatWasRestoredIsShown()
    {
        m_host->settings().setValue(kDensityEntry, u"-4"_s);
        m_panel->restoreValuesAndReturnError(nullptr);
        expectDensity(-4);
    }

    void anAbsurdRangeIsSurvived_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("saved");
        const auto printer = [](int minimum, int maximum) {
            return PpdBuilder()
                .option("QXDensityAdjustment", "Density", "0", {{"0", "Standard"}})
                .customInteger("QXDensityAdjustment", "Density", "D", minimum, maximum)
                .text();
        };
        // Brought into such a range when it is restored, and once more when it is saved.
        QTest::newRow("the wrong way round") << printer(6, -6) << u"0"_s << u"-6"_s;
        QTest::newRow("the wrong way round, above") << printer(6, -6) << u"9"_s << u"6"_s;
        QTest::newRow("huge") << printer(-2147483647, 2147483647) << u"2000000000"_s
                              << u"2000000000"_s;
        QTest::newRow("huge, beyond all numbers")
            << printer(-2147483647, 2147483647) << u"999999999999999999999"_s << u"2147483647"_s;
    }
    void anAbsurdRangeIsSurvived()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(QString, stored);
        QFETCH(QString, saved);
        m_host = RecordingHost::forPpd(ppd);
        m_host->settings().setValue(kDensityEntry, stored);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QCOMPARE(m_panel->entry(kDensityEntry), QVariant(saved));
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        enter(u"1"_s);
        enter(u"-99999999999"_s);
        m_panel->densitySlider->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        m_panel->saveValuesAndReturnError(nullptr);
        QVERIFY(m_panel->entry(kDensityEntry).isValid());
    }

    void aHugeRangeHasNoMarks()
    {
        // A style draws one line a mark: billions of them would never end.
        m_host = RecordingHost::forPpd(
            PpdBuilder()
                .option("QXDensityAdjustment", "Density", "0", {{"0", "Standard"}})
                .customInteger("QXDensityAdjustment", "Density", "D", -100000000, 100000000)
                .text());
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        QCOMPARE(m_panel->densitySlider->maximum(), 100000000);
        QVERIFY(m_panel->densitySlider->tickPosition() == QSlider::NoTicks);
        QVERIFY(!m_panel->densitySlider->grab().isNull());
    }

private:
    void enter(const QString &text)
    {
        m_panel->densityField->setText(text);
        QTest::keyClick(m_panel->densityField, Qt::Key_Return);
    }
    void expectDensity(int density)
    {
        QCOMPARE(m_panel->densitySlider->value(), density);
        QCOMPARE(m_panel->densityField->text(), QString::number(density));
        QCOMPARE(m_panel->effectContent->value(kKey).toLongLong(), density);
        QCOMPARE(m_panel->outputBin().value(kKey).toLongLong(), density);
        QCOMPARE(m_panel->entry(kDensityEntry), QVariant(QString::number(density)));
    }
};

QTEST_MAIN(DensityTest)
#include "density_test.moc"
