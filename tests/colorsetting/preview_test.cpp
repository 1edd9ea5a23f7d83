// What the preview shows: which filters, in which order, on which picture.

#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/colorsetting/EffectArithmetic.h"
#include "tests/colorsetting/OwnPictures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using LastEffect = QXLaserColorSettingPDE::LastEffect;

LastEffect &last()
{
    return QXLaserColorSettingPDE::EffectVal();
}

// Arithmetic in single and in double precision may round one value to two neighbours.
constexpr int kRounding = 1;

} // namespace

class PreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(bundleWithoutPictures());
        putPicture(*m_bundle, u"Normal"_s, manyColors());
        putPicture(*m_bundle, u"None"_s, unmatched());
        m_panel = shownPanel();
    }
    void cleanup()
    {
        m_panel.reset();
        m_bundle.reset();
    }

    // Which filter comes first

    void withAllEffectsAtZeroThePreviewIsTheReference()
    {
        QCOMPARE(shown(), manyColors());
        for (const QLatin1StringView effect : kEffectKeywords) {
            move(effect, 8);
            QVERIFY(shown() != manyColors());
            move(effect, 0);
            QCOMPARE(shown(), manyColors());
        }
    }

    void theEffectThatMovedIsAppliedFirst()
    {
        const EffectSteps steps{.brightness = 12, .red = 15};
        const QImage controlsFirst = changed(
            manyColors(), [&](const Pixel &p) { return gained(controlled(p, steps), steps); });
        const QImage matrixFirst = changed(
            manyColors(), [&](const Pixel &p) { return controlled(gained(p, steps), steps); });
        QVERIFY2(largestDifference(controlsFirst, matrixFirst) > 3 * kRounding,
                 "the orders can be told apart");

        move(u"QXRed"_s, 15);
        move(u"QXBrightness"_s, 12);
        QVERIFY(largestDifference(shown(), controlsFirst) <= kRounding);
        move(u"QXRed"_s, 14);
        move(u"QXRed"_s, 15);
        QVERIFY(largestDifference(shown(), matrixFirst) <= kRounding);
        m_panel->redrawEffectImage();
        QVERIFY(largestDifference(shown(), controlsFirst) <= kRounding);
    }

    void allSixEffectsActTogether()
    {
        const EffectSteps steps{
            .brightness = 4, .contrast = -9, .red = 5, .green = -7, .blue = 8, .saturation = 16};
        const QMap<QString, int> byEffect{{u"QXBrightness"_s, 4}, {u"QXContrast"_s, -9},
                                          {u"QXRed"_s, 5},        {u"QXGreen"_s, -7},
                                          {u"QXBlue"_s, 8},       {u"QXSaturation"_s, 16}};
        for (auto effect = byEffect.begin(); effect != byEffect.end(); ++effect)
            m_panel->effectContent->setValue(effect.key(), effect.value());
        m_panel->redrawEffectImage();
        QVERIFY(largestDifference(shown(), changed(manyColors(), [&](const Pixel &p) {
                                      return gained(controlled(p, steps), steps);
                                  })) <= kRounding);
    }

    // Monochrome printing

    void inMonochromeTheColorControlsAreShownInGrey()
    {
        m_panel->setMode(kModeMono, true);
        move(u"QXContrast"_s, 18);
        const EffectSteps steps{.contrast = 18};
        QVERIFY(largestDifference(shown(), changed(manyColors(), [&](const Pixel &p) {
                                      return grey(controlled(p, steps));
                                  })) <= kRounding);
    }

    void inMonochromeAGainIsKeptButNotSeen()
    {
        m_panel->setMode(kModeMono, true);
        move(u"QXBrightness"_s, 10);
        move(u"QXRed"_s, -20);
        const EffectSteps steps{.brightness = 10};
        QVERIFY(largestDifference(shown(), changed(manyColors(), [&](const Pixel &p) {
                                      return controlled(grey(p), steps);
                                  })) <= kRounding);
        const auto gain = m_panel->cmFilter->valueForKey(kCIInputRVectorKey).value<FilterVector>();
        QCOMPARE(gain.red, -20 / 35.0 + 1.0);
    }

    void inMonochromeTheGreyIsMadeBeforeTheColorControls()
    {
        m_panel->setMode(kModeMono, true);
        // Saturation shows the order: grey has none to change.
        move(u"QXSaturation"_s, 20);
        move(u"QXBlue"_s, 6);
        QVERIFY(largestDifference(shown(), changed(manyColors(), grey)) <= kRounding);
    }

    // The full redraw

    void theRedrawFollowsTheModes_data()
    {
        QTest::addColumn<bool>("mono");
        QTest::addColumn<bool>("fax");
        QTest::addColumn<QString>("matching");
        QTest::addColumn<QImage>("expected");
        const EffectSteps steps{.brightness = 10, .green = 10};
        const QImage matched = changed(
            manyColors(), [&](const Pixel &p) { return gained(controlled(p, steps), steps); });
        const QImage matchedGrey =
            changed(manyColors(), [&](const Pixel &p) { return grey(controlled(p, steps)); });
        const QImage unmatchedGrey = changed(unmatched(), grey);
        QTest::newRow("color") << false << false << u"Normal"_s << matched;
        QTest::newRow("mono") << true << false << u"Normal"_s << matchedGrey;
        QTest::newRow("no matching, color") << false << false << u"None"_s << unmatched();
        QTest::newRow("no matching, mono") << true << false << u"None"_s << unmatchedGrey;
        QTest::newRow("fax, color") << false << true << u"Normal"_s << unmatchedGrey;
        QTest::newRow("fax, mono") << true << true << u"Normal"_s << unmatchedGrey;
        QTest::newRow("fax, no matching") << false << true << u"None"_s << unmatchedGrey;
    }
    void theRedrawFollowsTheModes()
    {
        QFETCH(bool, mono);
        QFETCH(bool, fax);
        QFETCH(QString, matching);
        QFETCH(QImage, expected);
        m_panel->setMode(kModeMono, mono);
        m_panel->setMode(kModeFaxOutput, fax);
        m_panel->m_outputBin.insert(u"QXColorMatching"_s, matching);
        m_panel->effectContent->setValue(u"QXBrightness"_s, 10);
        m_panel->effectContent->setValue(u"QXGreen"_s, 10);
        m_panel->setRefImageWithName(matching);
        m_panel->redrawEffectImage();
        QVERIFY(largestDifference(shown(), expected) <= kRounding);
        const QImage reference = fax || matching == u"None"_s ? unmatched() : manyColors();
        QCOMPARE(m_panel->refImage().rendered(), reference);
    }

    void whileTheApplicationMatchesColorsTheUnmatchedPictureIsShown()
    {
        m_panel->setMode(kModeColorSync, false);
        m_panel->updateUI();
        QCOMPARE(shown(), unmatched());
    }

    void aFaxDrawsNoPreview()
    {
        m_panel->effectImageView->setImage(FilterImage());
        m_panel->setMode(kModeFaxOutput, true);
        m_panel->updateUI();
        QVERIFY(shown().isNull());
        QCOMPARE(m_panel->refImage().rendered(), manyColors());
    }

    void aHiddenPanelDrawsNoPreview()
    {
        QVERIFY(m_panel->shouldHide());
        m_panel->effectImageView->setImage(FilterImage());
        m_panel->updateUI();
        QVERIFY(shown().isNull());
        m_panel->willShow();
        QCOMPARE(shown(), manyColors());
    }

    void withoutAColorMatchingChoiceTheFormerPreviewStays()
    {
        m_panel->m_outputBin.remove(u"QXColorMatching"_s);
        m_panel->effectContent->setValue(u"QXBrightness"_s, 10);
        m_panel->checkUIConstraints();
        QCOMPARE(shown(), manyColors());
    }

    void withoutAReferenceASliderDrawsNothingAndARedrawDrawsNoImage()
    {
        m_panel->setRefImage(FilterImage());
        move(u"QXBrightness"_s, 5);
        move(u"QXRed"_s, 5);
        QCOMPARE(shown(), manyColors());
        m_panel->redrawEffectImage();
        QVERIFY(shown().isNull());
        QCOMPARE(m_panel->effectImageView->image().extent(), QSize(0, 0));
    }

    void aMoveCopiesNoPixels()
    {
        const uchar *pixels = m_panel->refImage().picture().constBits();
        for (int step = -20; step <= 20; ++step) {
            for (const QLatin1StringView effect : kEffectKeywords) {
                move(effect, step);
                QCOMPARE(m_panel->effectImageView->image().picture().constBits(), pixels);
            }
        }
    }

    // Reports that change nothing

    void theSameReportTwiceIsDrawnOnce()
    {
        QSlider *slider = m_panel->determineSlider(u"QXRed"_s);
        slider->setValue(9);
        QVERIFY(isDrawnBy([&] { slider->setValue(10); }));
        QVERIFY(!isDrawnBy([&] { m_panel->effectValueDidChange(slider); }));
        QVERIFY2(isDrawnBy([&] { move(u"QXBlue"_s, 10); }), "another control");
        QVERIFY2(isDrawnBy([&] { m_panel->effectValueDidChange(slider); }),
                 "it is the last no more");
    }

    void aReportWithAFractionIsNeverADuplicate()
    {
        QLineEdit field;
        field.setProperty("tag", 0);
        field.setText(u"5.5"_s);
        QVERIFY(isDrawnBy([&] { m_panel->effectValueDidChange(&field); }));
        QCOMPARE(last().tag, qint64(0));
        QCOMPARE(last().value, qint64(5));
        QVERIFY(isDrawnBy([&] { m_panel->effectValueDidChange(&field); }));
        field.setText(u"-5.5"_s);
        QVERIFY(isDrawnBy([&] { m_panel->effectValueDidChange(&field); }));
        QCOMPARE(last().value, qint64(-5));
        field.setText(u"-5"_s);
        QVERIFY2(!isDrawnBy([&] { m_panel->effectValueDidChange(&field); }),
                 "its whole number was the last report");
    }

    // Reports are compared in single precision, in which these cannot be told apart.
    void reportsAreComparedInSinglePrecision_data()
    {
        QTest::addColumn<qint64>("last");
        QTest::addColumn<QString>("reported");
        QTest::addColumn<bool>("drawn");
        QTest::newRow("a fraction that is too small") << qint64(5) << u"5.0000001"_s << false;
        QTest::newRow("a fraction that can be told") << qint64(5) << u"5.000001"_s << true;
        QTest::newRow("a large number") << qint64(16777217) << u"16777216"_s << false;
        QTest::newRow("another large number") << qint64(16777215) << u"16777216"_s << true;
    }
    void reportsAreComparedInSinglePrecision()
    {
        QFETCH(qint64, last);
        QFETCH(QString, reported);
        QFETCH(bool, drawn);
        QLineEdit field;
        field.setProperty("tag", 0);
        field.setText(reported);
        QXLaserColorSettingPDE::EffectVal() = {0, last};
        QCOMPARE(isDrawnBy([&] { m_panel->effectValueDidChange(&field); }), drawn);
    }

    void aTagAboveTheLastIsNotedAndIgnored()
    {
        m_panel->effectContent->setValue(u"QXBrightness"_s, 10);
        QSlider slider;
        slider.setProperty("tag", 6);
        slider.setValue(4);
        QVERIFY(!isDrawnBy([&] { m_panel->effectValueDidChange(&slider); }));
        QCOMPARE(last().tag, qint64(6));
        QCOMPARE(last().value, qint64(4));
        QCOMPARE(m_panel->ccFilter->valueForKey(kCIInputBrightnessKey).toFloat(), 0.0f);
    }

    void aNegativeTagTakesAllColorControls()
    {
        const EffectSteps steps{.brightness = 10, .contrast = 10, .red = 10, .saturation = -10};
        move(u"QXRed"_s, 10);
        m_panel->effectContent->setValue(u"QXBrightness"_s, 10);
        m_panel->effectContent->setValue(u"QXContrast"_s, 10);
        m_panel->effectContent->setValue(u"QXSaturation"_s, -10);
        m_panel->effectContent->setValue(u"QXBlue"_s, 20); // not of the color controls
        QSlider slider;
        slider.setProperty("tag", -3);
        slider.setValue(1);
        QVERIFY(isDrawnBy([&] { m_panel->effectValueDidChange(&slider); }));
        QVERIFY(largestDifference(shown(), changed(manyColors(), [&](const Pixel &p) {
                                      return gained(controlled(p, steps), steps);
                                  })) <= kRounding);
    }

    void aReportOfOneDialogCanBeTheDuplicateOfAnothers()
    {
        const auto other = shownPanel();
        QCOMPARE(last().tag, qint64(-1));
        move(u"QXGreen"_s, 7);
        other->effectImageView->setImage(FilterImage());
        other->determineSlider(u"QXGreen"_s)->setValue(7);
        QVERIFY(other->effectImageView->image().isNull());
        other->determineSlider(u"QXGreen"_s)->setValue(8);
        QVERIFY(!other->effectImageView->image().isNull());
    }

    void everyNewPanelForgetsTheLastReport()
    {
        QSlider *slider = m_panel->determineSlider(u"QXGreen"_s);
        slider->setValue(7);
        shownPanel();
        QCOMPARE(last().tag, qint64(-1));
        QCOMPARE(last().value, qint64(0));
        QVERIFY(isDrawnBy([&] { m_panel->effectValueDidChange(slider); }));
    }

private:
    // Another picture than the one of the matched colors.
    static QImage unmatched() { return manyColors().mirrored(true, false); }

    std::unique_ptr<ColorSettingProbe> shownPanel()
    {
        auto panel = std::make_unique<ColorSettingProbe>(RecordingHost::forSamplePrinter());
        if (!panel->initWithHost() || !panel->panelView())
            throw std::runtime_error("no panel");
        panel->willShow();
        return panel;
    }
    QImage shown() const { return m_panel->effectImageView->pixels(); }
    void move(const QString &effect, int step) { m_panel->determineSlider(effect)->setValue(step); }
    template <typename Act> bool isDrawnBy(Act act)
    {
        m_panel->effectImageView->setImage(FilterImage());
        act();
        return !m_panel->effectImageView->image().isNull();
    }

    std::optional<TestBundle> m_bundle;
    std::unique_ptr<ColorSettingProbe> m_panel;
};

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
