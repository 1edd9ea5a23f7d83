// When the preview takes another picture, other values or another size.

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/ViewFrame.h"
#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/colorsetting/EffectArithmetic.h"
#include "tests/colorsetting/OwnPictures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QImage plain(QRgb color)
{
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(color);
    return picture;
}

const QString kFrameHeightKey = QLatin1StringView(kFrameHeight);

} // namespace

class PreviewUpkeepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(bundleWithoutPictures());
        putPicture(*m_bundle, u"Normal"_s, manyColors());
        m_host = RecordingHost::forSamplePrinter();
        m_panel = std::make_unique<ColorSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
        m_window.reset();
        m_bundle.reset();
    }

    // The reference picture

    void theModeChoosesThePicture()
    {
        putPicture(*m_bundle, u"Vivid"_s, plain(qRgb(200, 10, 10)));
        m_panel->setRefImageWithName(u"Vivid"_s);
        QCOMPARE(m_panel->refImage().rendered(), plain(qRgb(200, 10, 10)));
        m_panel->setRefImageWithName(u"Normal"_s);
        QCOMPARE(m_panel->refImage().rendered(), manyColors());
    }

    void aPictureThatTheBundleLacksKeepsTheFormerOne_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("no such file") << u"Sepia"_s;
        QTest::newRow("other letter case") << u"normal"_s;
        QTest::newRow("no name") << QString();
        QTest::newRow("outside the bundle") << u"../pictures/Other"_s;
    }
    void aPictureThatTheBundleLacksKeepsTheFormerOne()
    {
        QFETCH(QString, name);
        putPicture(*m_bundle, u"Other"_s, plain(Qt::black));
        m_panel->setRefImageWithName(name);
        QCOMPARE(m_panel->refImage().rendered(), manyColors());
        m_panel->setRefImage(FilterImage(plain(qRgb(1, 2, 3)))); // one that came from no file
        m_panel->setRefImageWithName(name);
        QCOMPARE(m_panel->refImage().rendered(), plain(qRgb(1, 2, 3)));
    }

    void aPictureIsReadWhenItIsLookedAtAndOnlyOnce()
    {
        putPicture(*m_bundle, u"Vivid"_s, QByteArray("not yet a picture"));
        m_panel->setRefImageWithName(u"Vivid"_s);
        putPicture(*m_bundle, u"Vivid"_s, plain(qRgb(10, 200, 10)));
        QCOMPARE(m_panel->refImage().rendered(), plain(qRgb(10, 200, 10)));
        const uchar *pixels = m_panel->refImage().picture().constBits();
        m_panel->setRefImageWithName(u"Normal"_s);
        m_panel->setRefImageWithName(u"Vivid"_s);
        QCOMPARE(m_panel->refImage().picture().constBits(), pixels);
    }

    void aPanelThatIsNeverShownReadsNoPicture()
    {
        putPicture(*m_bundle, u"Normal"_s, QByteArray("no picture"));
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.updateUI();
        panel.summaryInfo();
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
    }

    void aBrokenPictureIsLoggedAndLeavesThePanelWorking()
    {
        putPicture(*m_bundle, u"Vivid"_s, QByteArray("no picture"));
        m_host->mark(u"QXColorMatching"_s, u"Vivid"_s);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"Vivid\\.tiff\" is no picture"_s)); // and once
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QVERIFY(m_panel->effectImageView->image().isNull());
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QSlider *slider = m_panel->determineSlider(u"QXRed"_s);
        slider->setValue(5);
        QVERIFY(m_panel->saveValuesAndReturnError(nullptr));
        QCOMPARE(m_panel->entry(kVividEffect).toList().at(2), QVariant(qint64(5)));
        m_host->mark(u"QXColorMatching"_s, u"Normal"_s);
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QCOMPARE(m_panel->effectImageView->pixels(), manyColors());
    }

    // Reverting

    void revertingBringsBackWhatWasSavedLast()
    {
        QSlider *red = m_panel->determineSlider(u"QXRed"_s);
        QSlider *contrast = m_panel->determineSlider(u"QXContrast"_s);
        red->setValue(7);
        contrast->setValue(-3);
        m_panel->saveAllValues();
        const QImage saved = previewOf({.contrast = -3, .red = 7});
        red->setValue(-20);
        contrast->setValue(20);
        m_panel->revertEffectDialog(nullptr);
        QCOMPARE(red->value(), 7);
        QCOMPARE(m_panel->determineField(u"QXRed"_s)->text(), u"7"_s);
        QCOMPARE(contrast->value(), -3);
        QVERIFY(largestDifference(m_panel->effectImageView->pixels(), saved) <= 1);
        QCOMPARE(m_panel->effectContent->value(u"Color"_s), QVariant(false));
    }

    void afterRevertingNoReportIsADuplicate()
    {
        QSlider *red = m_panel->determineSlider(u"QXRed"_s);
        red->setValue(4);
        m_panel->saveAllValues();
        m_panel->revertEffectDialog(nullptr);
        QCOMPARE(QXLaserColorSettingPDE::EffectVal().tag, qint64(-1));
        QCOMPARE(QXLaserColorSettingPDE::EffectVal().value, qint64(0));
        m_panel->effectImageView->setImage(FilterImage());
        m_panel->effectValueDidChange(red);
        QVERIFY(!m_panel->effectImageView->image().isNull());
    }

    void revertingForgetsTheFiltersParameters()
    {
        // Without colour matching the redraw sets no parameter, so what was left is seen.
        m_panel->determineSlider(u"QXRed"_s)->setValue(9);
        m_panel->determineSlider(u"QXContrast"_s)->setValue(9);
        m_panel->m_outputBin.insert(u"QXColorMatching"_s, u"None"_s);
        m_panel->revertEffectDialog(nullptr);
        QCOMPARE(m_panel->ccFilter->valueForKey(kCIInputContrastKey).toFloat(), 1.0f);
        QVERIFY(m_panel->cmFilter->valueForKey(kCIInputRVectorKey).value<FilterVector>() ==
                (FilterVector{1, 0, 0}));
    }

    void theRevertButtonLeavesTheControlsUsable()
    {
        auto *button = m_panel->panelView()->findChild<QPushButton *>(u"revertButton"_s);
        QVERIFY(button);
        QVERIFY(!button->text().isEmpty());
        QSlider *blue = m_panel->determineSlider(u"QXBlue"_s);
        blue->setValue(3);
        m_panel->saveAllValues();
        blue->setValue(12);
        button->click();
        QCOMPARE(blue->value(), 3);
        for (const QLatin1StringView effect : kEffectKeywords) {
            QVERIFY2(m_panel->determineSlider(effect)->isEnabledTo(m_panel->panelView()),
                     effect.data());
            QVERIFY2(m_panel->determineField(effect)->isEnabledTo(m_panel->panelView()),
                     effect.data());
            QCOMPARE(textColor(m_panel->determineLabel(effect)), ControlTextColor::Normal);
        }
        QVERIFY(largestDifference(m_panel->effectImageView->pixels(), previewOf({.blue = 3})) <= 1);
    }

    void theRevertButtonNeedsTheDriversColorMatching()
    {
        auto *button = m_panel->panelView()->findChild<QPushButton *>(u"revertButton"_s);
        QVERIFY(button->isEnabledTo(m_panel->panelView()));
        m_panel->setMode(kModeColorSync, false);
        m_panel->updateUI();
        QVERIFY(!button->isEnabledTo(m_panel->panelView()));
    }

    // Reports after a restore

    void aSliderThatARestoreMovedMayReportItsFormerValueAgain()
    {
        QSlider *brightness = m_panel->determineSlider(u"QXBrightness"_s);
        brightness->setValue(5);
        m_panel->saveAllValues();
        changeColorMode(true);
        QCOMPARE(brightness->value(), 0);
        QVERIFY(isDrawnBy([&] { brightness->triggerAction(QSlider::SliderPageStepAdd); }));
        QCOMPARE(brightness->value(), 5);
        m_panel->saveAllValues();
        QVERIFY2(!isDrawnBy([&] { reportAgain(u"QXBrightness"_s); }), "this one is a repetition");
    }

    void aRestoreThatMovesNothingLetsNoValueBeReportedTwice()
    {
        m_panel->determineSlider(u"QXBrightness"_s)->setValue(5);
        m_panel->saveAllValues();
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QVERIFY(!isDrawnBy([&] { reportAgain(u"QXBrightness"_s); }));
    }

    void aRestoreThatMovesAnotherSliderLetsNoValueBeReportedTwice()
    {
        m_panel->determineSlider(u"QXBrightness"_s)->setValue(5);
        m_panel->saveAllValues();
        m_host->settings().setValue(kNormalEffect, QVariantList{5, 0, 7, 0, 0, 0});
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QCOMPARE(m_panel->determineSlider(u"QXRed"_s)->value(), 7);
        QVERIFY(!isDrawnBy([&] { reportAgain(u"QXBrightness"_s); }));
    }

    void aSliderThatARestoreMovedAndAnotherMovedBackReportsNothingNew()
    {
        m_panel->determineSlider(u"QXBrightness"_s)->setValue(5);
        m_panel->saveAllValues();
        changeColorMode(true);
        changeColorMode(false);
        QCOMPARE(m_panel->determineSlider(u"QXBrightness"_s)->value(), 5);
        QVERIFY(!isDrawnBy([&] { reportAgain(u"QXBrightness"_s); }));
    }

    void aRestoreBeforeThereAreControlsMovesNone()
    {
        m_host = RecordingHost::forSamplePrinter();
        m_panel = std::make_unique<ColorSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QXLaserColorSettingPDE::EffectVal() = {0, 5};
        m_host->settings().setValue(kNormalEffect, QVariantList{3, 0, 0, 0, 0, 0});
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_panel->effectContent->setValue(u"QXBrightness"_s, 5);
        QVERIFY(!isDrawnBy([&] { reportAgain(u"QXBrightness"_s); }));
    }

    // The panel itself skips what equals the last report; a restore changes nothing about that.
    void aDirectReportOfTheSameValueIsSkippedAfterARestore()
    {
        QSlider *brightness = m_panel->determineSlider(u"QXBrightness"_s);
        brightness->setValue(5);
        m_panel->saveAllValues();
        changeColorMode(true);
        {
            const QSignalBlocker silent(brightness);
            brightness->setValue(5);
        }
        QVERIFY(!isDrawnBy([&] { m_panel->effectValueDidChange(brightness); }));
    }

    // The window's height

    void aHigherWindowDrawsThePreviewOnce()
    {
        putIntoWindow(roomyHeight());
        QVERIFY(isDrawnBy([&] { m_panel->updateImage(nullptr); }));
        QCOMPARE(storedHeight(), windowHeight());
        QVERIFY2(!isDrawnBy([&] { m_panel->updateImage(nullptr); }), "the height is the same");
        m_window->resize(m_window->width(), m_window->height() + 1);
        QVERIFY(isDrawnBy([&] { m_panel->updateImage(nullptr); }));
        m_window->resize(m_window->width() + 50, m_window->height());
        QVERIFY2(!isDrawnBy([&] { m_panel->updateImage(nullptr); }), "the width does not count");
    }

    void everyShowingDrawsThePreviewAnew()
    {
        putIntoWindow(roomyHeight());
        m_panel->updateImage(nullptr);
        m_panel->willShow();
        QCOMPARE(storedHeight(), 0.0);
        QVERIFY(isDrawnBy([&] { m_panel->updateImage(nullptr); }));
    }

    void aWindowWithoutRoomForThePanelOnlyHasItsHeightNoted()
    {
        putIntoWindow(roomyHeight());
        // The panel and 96 points around it, and not a pixel more.
        const double scale = pixelsPerPoint(m_window.get());
        const int decoration = m_window->frameGeometry().height() - m_window->height();
        const int most =
            static_cast<int>((viewFrame(m_panel->panelView()).height + 96.0) * scale) - decoration;
        m_window->resize(m_window->width(), most);
        QVERIFY(!isDrawnBy([&] { m_panel->updateImage(nullptr); }));
        QCOMPARE(storedHeight(), windowHeight());
        m_window->resize(m_window->width(), most + 1);
        QVERIFY(isDrawnBy([&] { m_panel->updateImage(nullptr); }));
    }

    void aHiddenPanelDoesNotEvenNoteTheHeight()
    {
        putIntoWindow(roomyHeight());
        QVERIFY(m_panel->shouldHide());
        QVERIFY(!isDrawnBy([&] { m_panel->updateImage(nullptr); }));
        QCOMPARE(storedHeight(), 0.0);
    }

    void withoutAWindowTheHeightIsZero()
    {
        QVERIFY(!isDrawnBy([&] { m_panel->updateImage(nullptr); }));
        m_panel->effectContent->setValue(kFrameHeightKey, 500.0);
        QVERIFY(!isDrawnBy([&] { m_panel->updateImage(nullptr); }));
        QCOMPARE(storedHeight(), 0.0);
    }

    void aPreviewThatTakesAnotherSizeAsksForTheUpdate()
    {
        putIntoWindow(roomyHeight());
        QVERIFY(isDrawnBy([&] { Q_EMIT m_panel->effectImageView->resized(); }));
        QCOMPARE(storedHeight(), windowHeight());
    }

private:
    static QImage previewOf(const EffectSteps &steps)
    {
        return changed(manyColors(),
                       [&](const Pixel &p) { return gained(controlled(p, steps), steps); });
    }
    int roomyHeight() const
    {
        return static_cast<int>((viewFrame(m_panel->panelView()).height + 300) *
                                pixelsPerPoint(m_panel->panelView()));
    }
    void putIntoWindow(int height)
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(600, height);
        m_panel->panelView()->setParent(m_window.get());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    // Units: points, as the panel notes it.
    double windowHeight() const
    {
        return m_window->frameGeometry().height() / pixelsPerPoint(m_window.get());
    }
    double storedHeight() const
    {
        return m_panel->effectContent->value(kFrameHeightKey).toDouble();
    }
    // As the other panel does it, while this one is on screen.
    void changeColorMode(bool mono)
    {
        m_host->mark(u"QXMonoColor"_s, mono ? u"Mono"_s : u"Color"_s);
        m_panel->printSettingsNotified(
            {kLaserPrintSettingNotification, m_host.get(), {{u"QXMonoColor"_s, mono}}, true});
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
    }
    // The user confirms the number that stands in an effect's field.
    void reportAgain(const QString &effect)
    {
        QTest::keyClick(m_panel->determineField(effect), Qt::Key_Return);
    }
    template <typename Act> bool isDrawnBy(Act act)
    {
        m_panel->effectImageView->setImage(FilterImage());
        act();
        return !m_panel->effectImageView->image().isNull();
    }

    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ColorSettingProbe> m_panel;
};

QTEST_MAIN(PreviewUpkeepTest)
#include "preview_upkeep_test.moc"
