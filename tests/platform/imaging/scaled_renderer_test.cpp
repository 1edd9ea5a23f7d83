#include <limits>

#include <QtTest>

#include "platform/imaging/ScaledRenderer.h"

using namespace corvana;

class ScaledRendererTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theResultHasTheSizeInDevicePixels_data();
    void theResultHasTheSizeInDevicePixels();
    void theResultIsTheScaledPictureFiltered();
    void reductionAveragesPixels();
    void anotherFilterIsRenderedIntoTheSamePixels();
    void aResultThatSomebodyKeepsStaysAsItIs();
    void anotherPictureIsShown();
    void anotherSizeOrRatioScalesThePictureAgain();
    void translucentPicturesStayTranslucent();
    void thereIsNothingToRender_data();
    void thereIsNothingToRender();
    void afterNothingThePictureComesBack();
};

namespace {

const ColorTransform kInvert{{{{-1, 0, 0, 1}, {0, -1, 0, 1}, {0, 0, -1, 1}}}};

FilterImage plain(QSize size, QColor color)
{
    QImage image(size, color.alpha() == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    image.fill(color);
    return FilterImage(image);
}

FilterImage gradient(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, 128));
    }
    return FilterImage(image);
}

} // namespace

void ScaledRendererTest::theResultHasTheSizeInDevicePixels_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("1") << 1.0 << QSize(33, 21);
    QTest::newRow("2") << 2.0 << QSize(66, 42);
    QTest::newRow("1.25") << 1.25 << QSize(41, 26);
    QTest::newRow("1.5") << 1.5 << QSize(50, 32);
}

void ScaledRendererTest::theResultHasTheSizeInDevicePixels()
{
    QFETCH(const double, ratio);
    QFETCH(const QSize, pixels);
    ScaledRenderer renderer;
    const QImage &result = renderer.render(gradient(QSize(200, 100)), QSize(33, 21), ratio);
    QCOMPARE(result.size(), pixels);
    QCOMPARE(result.devicePixelRatio(), ratio);
    QCOMPARE(result.format(), QImage::Format_RGB32);
}

void ScaledRendererTest::theResultIsTheScaledPictureFiltered()
{
    const FilterImage image = gradient(QSize(200, 100));
    ScaledRenderer renderer;
    const FilterImage scaled(
        image.picture().scaled(80, 40, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    QCOMPARE(renderer.render(image, QSize(80, 40), 1), scaled.rendered());
    QCOMPARE(renderer.render(image.filtered(kInvert), QSize(80, 40), 1),
             scaled.filtered(kInvert).rendered());
}

void ScaledRendererTest::reductionAveragesPixels()
{
    QImage stripes(400, 400, QImage::Format_RGB32);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixel(x, y, x % 2 == 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    }
    ScaledRenderer renderer;
    const int grey = qRed(renderer.render(FilterImage(stripes), QSize(40, 40), 1).pixel(20, 20));
    QVERIFY2(grey > 110 && grey < 145, qPrintable(QString::number(grey)));
}

void ScaledRendererTest::anotherFilterIsRenderedIntoTheSamePixels()
{
    const FilterImage image = gradient(QSize(200, 100));
    ScaledRenderer renderer;
    const uchar *pixels = renderer.render(image, QSize(80, 40), 2).constBits();
    QVERIFY(renderer.render(image.filtered(kInvert), QSize(80, 40), 2).constBits() == pixels);
}

void ScaledRendererTest::aResultThatSomebodyKeepsStaysAsItIs()
{
    const FilterImage image = gradient(QSize(200, 100));
    ScaledRenderer renderer;
    const QImage kept = renderer.render(image, QSize(80, 40), 1);
    const QImage before = kept.copy();
    renderer.render(image.filtered(kInvert), QSize(80, 40), 1);
    QCOMPARE(kept, before);
}

void ScaledRendererTest::anotherPictureIsShown()
{
    ScaledRenderer renderer;
    renderer.render(plain(QSize(20, 20), Qt::red), QSize(10, 10), 1);
    QCOMPARE(renderer.render(plain(QSize(20, 20), Qt::blue), QSize(10, 10), 1).pixelColor(5, 5),
             QColor(Qt::blue));
}

void ScaledRendererTest::anotherSizeOrRatioScalesThePictureAgain()
{
    const FilterImage image = gradient(QSize(200, 100));
    ScaledRenderer renderer;
    renderer.render(image, QSize(80, 40), 1);
    QCOMPARE(renderer.render(image, QSize(20, 50), 1).size(), QSize(20, 50));
    // The same pixels at another ratio
    const QImage &fine = renderer.render(image, QSize(10, 25), 2);
    QCOMPARE(fine.size(), QSize(20, 50));
    QCOMPARE(fine.devicePixelRatio(), 2.0);
}

void ScaledRendererTest::translucentPicturesStayTranslucent()
{
    ScaledRenderer renderer;
    const QImage &result = renderer.render(
        plain(QSize(20, 20), QColor(200, 100, 50, 128)).filtered(kInvert), QSize(10, 10), 1);
    QCOMPARE(result.format(), QImage::Format_ARGB32_Premultiplied);
    const QColor color = result.pixelColor(5, 5);
    QCOMPARE(color.alpha(), 128);
    // Scaling works on premultiplied colours, which costs a step or two.
    QVERIFY(qAbs(color.red() - 55) <= 2 && qAbs(color.green() - 155) <= 2 &&
            qAbs(color.blue() - 205) <= 2);
}

void ScaledRendererTest::thereIsNothingToRender_data()
{
    QTest::addColumn<FilterImage>("image");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    const FilterImage image = plain(QSize(20, 20), Qt::red);
    QTest::newRow("no image") << FilterImage() << QSize(10, 10) << 1.0;
    QTest::newRow("no width") << image << QSize(0, 10) << 1.0;
    QTest::newRow("no size") << image << QSize() << 1.0;
    QTest::newRow("no ratio") << image << QSize(10, 10) << 0.0;
    QTest::newRow("negative size and ratio") << image << QSize(-10, -10) << -1.0;
    QTest::newRow("ratio that is no number")
        << image << QSize(10, 10) << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("less than a pixel") << image << QSize(1, 1) << 0.1;
}

void ScaledRendererTest::thereIsNothingToRender()
{
    QFETCH(const FilterImage, image);
    QFETCH(const QSize, size);
    QFETCH(const double, ratio);
    ScaledRenderer renderer;
    renderer.render(plain(QSize(20, 20), Qt::blue), QSize(10, 10), 1);
    QVERIFY(renderer.render(image, size, ratio).isNull());
}

void ScaledRendererTest::afterNothingThePictureComesBack()
{
    const FilterImage image = plain(QSize(20, 20), Qt::red);
    ScaledRenderer renderer;
    renderer.render(image, QSize(10, 10), 1);
    renderer.render(FilterImage(), QSize(10, 10), 1);
    QCOMPARE(renderer.render(image, QSize(10, 10), 1).pixelColor(5, 5), QColor(Qt::red));
}

QTEST_GUILESS_MAIN(ScaledRendererTest)

#include "scaled_renderer_test.moc"
