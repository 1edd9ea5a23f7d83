#include <limits>

#include <QColor>
#include <QtTest>

#include "platform/imaging/ImageFilter.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class ImageFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPixelIsFilteredAsWorkedOutByHand_data();
    void aPixelIsFilteredAsWorkedOutByHand();
    void theOrderOfTwoFiltersMatters();
    void betweenTwoFiltersNothingIsClampedOrRounded();
    void aMatrixMixesComponents();
    void intensityMixesMonochromeWithThePicture();
    void defaultsChangeNothingButForMonochrome_data();
    void defaultsChangeNothingButForMonochrome();
    void setDefaultsForgetsParametersAndKeepsTheImage();
    void aFilterRemembersItsParametersBetweenImages();
    void parametersAreReadAsTheyWereSet();
    void withoutAnImageThereIsNoOutput();
    void anUnknownFilterIsNoneAndLogged();
    void anUnknownKeyIsIgnoredAndLogged();
    void anUnusableValueIsIgnoredAndLogged_data();
    void anUnusableValueIsIgnoredAndLogged();
};

namespace {

using Values = QList<QPair<QLatin1StringView, QVariant>>;

FilterImage picture(QColor color)
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(color);
    return FilterImage(image);
}

FilterImage filtered(const FilterImage &image, QLatin1StringView name, const Values &values)
{
    const auto filter = ImageFilter::filterWithName(name);
    filter->setValue_forKey(image, kCIInputImageKey);
    for (const auto &[key, value] : values)
        filter->setValue_forKey(value, key);
    return filter->outputImage();
}

QColor color(const FilterImage &image)
{
    return image.rendered().pixelColor(0, 0);
}

FilterVector gain(QLatin1StringView key, double value)
{
    return {key == kCIInputRVectorKey ? value : 0, key == kCIInputGVectorKey ? value : 0,
            key == kCIInputBVectorKey ? value : 0};
}

} // namespace

void ImageFilterTest::aPixelIsFilteredAsWorkedOutByHand_data()
{
    QTest::addColumn<QLatin1StringView>("filter");
    QTest::addColumn<Values>("values");
    QTest::addColumn<QColor>("expected");
    const auto controls = [](const char *name, const Values &values, QColor expected) {
        QTest::newRow(name) << kCIColorControls << values << expected;
    };
    const auto matrix = [](const char *name, const Values &values, QColor expected) {
        QTest::newRow(name) << kCIColorMatrix << values << expected;
    };
    // All of the colour (200, 100, 50). Its luma is 42.52 + 71.52 + 3.61 = 117.65.
    controls("nothing", {}, QColor(200, 100, 50));
    // 25.5 more or less of each: halves, which go up.
    controls("brightness 20", {{kCIInputBrightnessKey, 20 / 200.0f}}, QColor(226, 126, 76));
    controls("brightness -20", {{kCIInputBrightnessKey, -20 / 200.0f}}, QColor(175, 75, 25));
    // 127.5 + 72.5 * 0.875 = 190.9375, 127.5 - 27.5 * 0.875 = 103.4375, 127.5 - 77.5 * 0.875
    controls("contrast -20", {{kCIInputContrastKey, 0.875f}}, QColor(191, 103, 60));
    // 127.5 + 72.5 * 1.125 = 209.0625, 127.5 - 27.5 * 1.125 = 96.5625, 127.5 - 77.5 * 1.125
    controls("contrast 20", {{kCIInputContrastKey, 1.125f}}, QColor(209, 97, 40));
    // 117.65 + 82.35 * 1.25 = 220.5875, 117.65 - 17.65 * 1.25 = 95.5875, 117.65 - 67.65 * 1.25
    controls("saturation 20", {{kCIInputSaturationKey, 1.25f}}, QColor(221, 96, 33));
    // 117.65 + 82.35 * 0.75 = 179.4125, 117.65 - 17.65 * 0.75 = 104.4125, 117.65 - 67.65 * 0.75
    controls("saturation -20", {{kCIInputSaturationKey, 0.75f}}, QColor(179, 104, 67));
    controls("no saturation", {{kCIInputSaturationKey, 0}}, QColor(118, 118, 118));
    // Saturated 220.5875, 95.5875, 33.0875; brightened 246.0875, 121.0875, 58.5875; and the
    // distances from 127.5 times 1.125: 260.91, 120.29, 49.97. In any other order the second would
    // be 117 or 118.
    controls("all three, in their order",
             {{kCIInputContrastKey, 1.125f},
              {kCIInputBrightnessKey, 0.1f},
              {kCIInputSaturationKey, 1.25f}},
             QColor(255, 120, 50));
    // 200 * 15 / 35 = 85.71 and so on
    matrix("red -20", {{kCIInputRVectorKey, gain(kCIInputRVectorKey, -20 / 35.0 + 1)}},
           QColor(86, 100, 50));
    matrix("red 20", {{kCIInputRVectorKey, gain(kCIInputRVectorKey, 20 / 35.0 + 1)}},
           QColor(255, 100, 50));
    matrix("green 20", {{kCIInputGVectorKey, gain(kCIInputGVectorKey, 20 / 35.0 + 1)}},
           QColor(200, 157, 50));
    matrix("blue 20", {{kCIInputBVectorKey, gain(kCIInputBVectorKey, 20 / 35.0 + 1)}},
           QColor(200, 100, 79));
    QTest::newRow("monochrome") << kCIColorMonochrome
                                << Values{{kCIInputColorKey, QColor(Qt::white)},
                                          {kCIInputIntensityKey, 1}}
                                << QColor(118, 118, 118);
}

void ImageFilterTest::aPixelIsFilteredAsWorkedOutByHand()
{
    QFETCH(const QLatin1StringView, filter);
    QFETCH(const Values, values);
    QFETCH(const QColor, expected);
    QCOMPARE(color(filtered(picture(QColor(200, 100, 50)), filter, values)), expected);
}

void ImageFilterTest::theOrderOfTwoFiltersMatters()
{
    const Values controls{{kCIInputBrightnessKey, 0.1f}};
    const Values matrix{{kCIInputRVectorKey, gain(kCIInputRVectorKey, 20 / 35.0 + 1)}};
    const FilterImage reference = picture(QColor(100, 100, 50));
    // (100 + 25.5) * 55 / 35 = 197.21
    QCOMPARE(
        color(filtered(filtered(reference, kCIColorControls, controls), kCIColorMatrix, matrix)),
        QColor(197, 126, 76));
    // 100 * 55 / 35 + 25.5 = 182.64
    QCOMPARE(
        color(filtered(filtered(reference, kCIColorMatrix, matrix), kCIColorControls, controls)),
        QColor(183, 126, 76));
}

void ImageFilterTest::betweenTwoFiltersNothingIsClampedOrRounded()
{
    const Values brighter{{kCIInputBrightnessKey, 0.1f}};
    const Values lessRed{{kCIInputRVectorKey, gain(kCIInputRVectorKey, 15 / 35.0)}};
    const FilterImage reference = picture(QColor(250, 0, 0));
    // (250 + 25.5) * 15 / 35 = 118.07; 255 * 15 / 35 would be 109.
    QCOMPARE(
        color(filtered(filtered(reference, kCIColorControls, brighter), kCIColorMatrix, lessRed)),
        QColor(118, 26, 26));
    const Values darker{{kCIInputBrightnessKey, -0.1f}};
    QCOMPARE(
        color(filtered(filtered(reference, kCIColorControls, darker), kCIColorControls, brighter)),
        QColor(250, 0, 0));
}

void ImageFilterTest::aMatrixMixesComponents()
{
    // Red from green, green from blue, blue from half of red, and 25.5, -25.5 and 51 added.
    QCOMPARE(color(filtered(picture(QColor(200, 100, 50)), kCIColorMatrix,
                            {{kCIInputRVectorKey, FilterVector{0, 1, 0}},
                             {kCIInputGVectorKey, FilterVector{0, 0, 1}},
                             {kCIInputBVectorKey, FilterVector{0.5, 0, 0}},
                             {kCIInputBiasVectorKey, FilterVector{0.1, -0.1, 0.2}}})),
             QColor(126, 25, 151));
}

void ImageFilterTest::intensityMixesMonochromeWithThePicture()
{
    // Halfway from 200, 100, 50 to 117.65 * (1, 0, 0)
    QCOMPARE(color(filtered(picture(QColor(200, 100, 50)), kCIColorMonochrome,
                            {{kCIInputColorKey, QColor(Qt::red)}, {kCIInputIntensityKey, 0.5}})),
             QColor(159, 50, 25));
}

void ImageFilterTest::defaultsChangeNothingButForMonochrome_data()
{
    QTest::addColumn<QLatin1StringView>("filter");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("controls") << kCIColorControls << QColor(200, 100, 50);
    QTest::newRow("matrix") << kCIColorMatrix << QColor(200, 100, 50);
    // 117.65 times 0.6, 0.45 and 0.3
    QTest::newRow("monochrome") << kCIColorMonochrome << QColor(71, 53, 35);
}

void ImageFilterTest::defaultsChangeNothingButForMonochrome()
{
    QFETCH(const QLatin1StringView, filter);
    QFETCH(const QColor, expected);
    QCOMPARE(color(filtered(picture(QColor(200, 100, 50)), filter, {})), expected);
}

void ImageFilterTest::setDefaultsForgetsParametersAndKeepsTheImage()
{
    const auto filter = ImageFilter::filterWithName(kCIColorControls);
    filter->setValue_forKey(picture(QColor(200, 100, 50)), kCIInputImageKey);
    filter->setValue_forKey(0.1f, kCIInputBrightnessKey);
    filter->setValue_forKey(0, kCIInputContrastKey);
    filter->setValue_forKey(0, kCIInputSaturationKey);
    filter->setDefaults();
    QCOMPARE(filter->valueForKey(kCIInputBrightnessKey).toDouble(), 0.0);
    QCOMPARE(filter->valueForKey(kCIInputContrastKey).toDouble(), 1.0);
    QCOMPARE(filter->valueForKey(kCIInputSaturationKey).toDouble(), 1.0);
    QCOMPARE(color(filter->outputImage()), QColor(200, 100, 50));
}

void ImageFilterTest::aFilterRemembersItsParametersBetweenImages()
{
    const auto filter = ImageFilter::filterWithName(kCIColorMatrix);
    filter->setValue_forKey(FilterVector{0.5, 0, 0}, kCIInputRVectorKey);
    filter->setValue_forKey(picture(QColor(200, 100, 50)), kCIInputImageKey);
    QCOMPARE(color(filter->outputImage()), QColor(100, 100, 50));
    filter->setValue_forKey(FilterVector{0, 2, 0}, kCIInputGVectorKey);
    filter->setValue_forKey(picture(QColor(100, 10, 7)), kCIInputImageKey);
    QCOMPARE(color(filter->outputImage()), QColor(50, 20, 7));
}

void ImageFilterTest::parametersAreReadAsTheyWereSet()
{
    const auto controls = ImageFilter::filterWithName(kCIColorControls);
    controls->setValue_forKey(20 / 200.0f, kCIInputBrightnessKey);
    QCOMPARE(controls->valueForKey(kCIInputBrightnessKey), QVariant(0.1f));
    QCOMPARE(controls->valueForKey(kCIInputBrightnessKey).typeId(), int(QMetaType::Float));
    QVERIFY(controls->valueForKey(kCIInputImageKey).value<FilterImage>().isNull());

    const auto matrix = ImageFilter::filterWithName(u"CIColorMatrix"_s);
    const FilterVector vector{-20 / 35.0 + 1, 0, 0};
    matrix->setValue_forKey(vector, u"inputRVector"_s);
    QVERIFY(matrix->valueForKey("inputRVector").value<FilterVector>() == vector);
    QVERIFY(matrix->valueForKey("inputBiasVector").value<FilterVector>() == FilterVector{});

    matrix->setValue_forKey(picture(QColor(200, 100, 50)), kCIInputImageKey);
    QCOMPARE(color(matrix->valueForKey(kCIInputImageKey).value<FilterImage>()),
             QColor(200, 100, 50));
    QCOMPARE(color(matrix->valueForKey(kCIOutputImageKey).value<FilterImage>()),
             QColor(86, 100, 50));
}

void ImageFilterTest::withoutAnImageThereIsNoOutput()
{
    const auto filter = ImageFilter::filterWithName(kCIColorControls);
    QVERIFY(filter->outputImage().isNull());
    filter->setValue_forKey(picture(Qt::red), kCIInputImageKey);
    QVERIFY(!filter->outputImage().isNull());
    filter->setValue_forKey(FilterImage(), kCIInputImageKey);
    QVERIFY(filter->outputImage().isNull());
    filter->setValue_forKey(picture(Qt::red), kCIInputImageKey);
    filter->setValue_forKey(QVariant(), kCIInputImageKey);
    QVERIFY(filter->outputImage().isNull());
}

void ImageFilterTest::anUnknownFilterIsNoneAndLogged()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"CIUnheardOf"_s));
    QVERIFY(!ImageFilter::filterWithName("CIUnheardOf"));
}

void ImageFilterTest::anUnknownKeyIsIgnoredAndLogged()
{
    const auto filter = ImageFilter::filterWithName(kCIColorControls);
    filter->setValue_forKey(picture(QColor(200, 100, 50)), kCIInputImageKey);
    const QRegularExpression message(u"CIColorControls.*inputRVector"_s);
    QTest::ignoreMessage(QtWarningMsg, message);
    filter->setValue_forKey(FilterVector{0.5, 0, 0}, kCIInputRVectorKey);
    QTest::ignoreMessage(QtWarningMsg, message);
    QVERIFY(!filter->valueForKey(kCIInputRVectorKey).isValid());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"outputImage"_s));
    filter->setValue_forKey(picture(Qt::black), kCIOutputImageKey);
    QCOMPARE(color(filter->outputImage()), QColor(200, 100, 50));
}

void ImageFilterTest::anUnusableValueIsIgnoredAndLogged_data()
{
    QTest::addColumn<QLatin1StringView>("filter");
    QTest::addColumn<QLatin1StringView>("key");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, QLatin1StringView filter, QLatin1StringView key,
                        const QVariant &value) { QTest::newRow(name) << filter << key << value; };
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    row("nothing", kCIColorControls, kCIInputContrastKey, QVariant());
    row("text", kCIColorControls, kCIInputContrastKey, u"2"_s);
    row("vector for a number", kCIColorControls, kCIInputContrastKey, FilterVector{2, 2, 2});
    row("endless number", kCIColorControls, kCIInputContrastKey, kInfinity);
    row("no number", kCIColorControls, kCIInputBrightnessKey, kNone);
    row("number for a vector", kCIColorMatrix, kCIInputRVectorKey, 0.5);
    row("endless vector", kCIColorMatrix, kCIInputRVectorKey, FilterVector{1, kInfinity, 0});
    row("red from alpha", kCIColorMatrix, kCIInputRVectorKey, FilterVector{0.5, 0, 0, 1});
    row("more alpha", kCIColorMatrix, kCIInputBiasVectorKey, FilterVector{0, 0, 0, 1});
    row("invalid colour", kCIColorMonochrome, kCIInputColorKey, QColor());
    row("text for a colour", kCIColorMonochrome, kCIInputColorKey, u"white"_s);
    row("picture without filters", kCIColorMatrix, kCIInputImageKey,
        QImage(2, 2, QImage::Format_RGB32));
}

void ImageFilterTest::anUnusableValueIsIgnoredAndLogged()
{
    QFETCH(const QLatin1StringView, filter);
    QFETCH(const QLatin1StringView, key);
    QFETCH(const QVariant, value);
    const auto object = ImageFilter::filterWithName(filter);
    object->setValue_forKey(picture(QColor(200, 100, 50)), kCIInputImageKey);
    const QColor before = color(object->outputImage());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(filter));
    object->setValue_forKey(value, key);
    QCOMPARE(color(object->outputImage()), before);
}

QTEST_GUILESS_MAIN(ImageFilterTest)

#include "image_filter_test.moc"
