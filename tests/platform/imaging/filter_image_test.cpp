#include <QColorSpace>
#include <QPainter>
#include <QtTest>

#include "platform/imaging/FilterImage.h"

using namespace corvana;

class FilterImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAPictureThereIsNothing();
    void extentIsTheSizeInPixels();
    void everyFormatIsRead_data();
    void everyFormatIsRead();
    void theTransparentColorOfAnIndexStaysTransparent();
    void alphaIsKeptAndColorsAreFilteredUnpremultiplied();
    void unusualShapesAreRendered_data();
    void unusualShapesAreRendered();
    void aPartOfALargerPictureIsRendered();
    void unfilteredRenderingIsThePicture();
    void filteringLeavesTheInputAsItWas();
    void aBufferIsUsedAgain();
    void aBufferOfAnotherKindIsReplaced_data();
    void aBufferOfAnotherKindIsReplaced();
    void aBufferThatSomebodyElseHoldsIsLeftToThem();
    void renderingOverItsOwnPictureKeepsThePicture();
    void renderingKeepsTheDevicePixelRatio();
};

namespace {

/// Exchanges red and blue and inverts green, so that no two components can be mistaken.
const ColorTransform kExchange{{{{0, 0, 1, 0}, {0, -1, 0, 1}, {1, 0, 0, 0}}}};

QColor exchanged(QColor color)
{
    return QColor(color.blue(), 255 - color.green(), color.red(), color.alpha());
}

/// A picture whose pixels all differ from their neighbours.
QImage pattern(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x % 256, y % 256, (7 * x + 3 * y) % 256));
    }
    return image;
}

} // namespace

void FilterImageTest::withoutAPictureThereIsNothing()
{
    const FilterImage none;
    QVERIFY(none.isNull());
    QCOMPARE(none.extent(), QSize(0, 0));
    QVERIFY(none.filtered(kExchange).isNull());
    QVERIFY(none.filtered(kExchange).rendered().isNull());
    QVERIFY(FilterImage(QImage()).isNull());
    QImage destination(3, 3, QImage::Format_RGB32);
    none.renderInto(destination);
    QVERIFY(destination.isNull());
}

void FilterImageTest::extentIsTheSizeInPixels()
{
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    QCOMPARE(FilterImage(picture).extent(), QSize(30, 20));
    QCOMPARE(FilterImage(picture).filtered(kExchange).extent(), QSize(30, 20));
    QCOMPARE(FilterImage(picture).filtered(kExchange).rendered().size(), QSize(30, 20));
}

void FilterImageTest::everyFormatIsRead_data()
{
    QTest::addColumn<QImage::Format>("format");
    for (int format = QImage::Format_Invalid + 1; format < QImage::NImageFormats; ++format)
        QTest::addRow("format %d", format) << static_cast<QImage::Format>(format);
}

void FilterImageTest::everyFormatIsRead()
{
    QFETCH(const QImage::Format, format);
    // What the format keeps of a few colours is what a filter gets to see.
    QImage picture(37, 3, QImage::Format_ARGB32);
    for (int x = 0; x < picture.width(); ++x) {
        picture.setPixelColor(x, 0, QColor(255, 255 - 3 * x, 0));
        picture.setPixelColor(x, 1, x % 2 == 0 ? Qt::black : Qt::white);
        picture.setPixelColor(x, 2, QColor(200, 100, 50, 5 * x));
    }
    picture = picture.convertToFormat(format);
    QVERIFY(!picture.isNull());
    const QImage result = FilterImage(picture).filtered(kExchange).rendered();
    QCOMPARE(result.format(), picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                        : QImage::Format_RGB32);
    const QImage straight = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor expected = exchanged(QColor::fromRgba(straight.pixel(x, y)));
            QCOMPARE(result.pixel(x, y),
                     picture.hasAlphaChannel() ? qPremultiply(expected.rgba()) : expected.rgb());
        }
    }
}

void FilterImageTest::theTransparentColorOfAnIndexStaysTransparent()
{
    QImage picture(2, 1, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(10, 20, 30), qRgba(0, 0, 0, 0)});
    picture.setPixel(0, 0, 0);
    picture.setPixel(1, 0, 1);
    const QImage result = FilterImage(picture).filtered(kExchange).rendered();
    QCOMPARE(result.pixel(0, 0), qRgb(30, 235, 10));
    QCOMPARE(result.pixel(1, 0), qRgba(0, 0, 0, 0));
}

void FilterImageTest::alphaIsKeptAndColorsAreFilteredUnpremultiplied()
{
    // Half as transparent white made darker by 51: the white becomes 204, and stays as transparent.
    QImage picture(1, 1, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(255, 255, 255, 100));
    ColorTransform darker;
    for (auto &row : darker.rows)
        row[3] = -0.2;
    const QImage result = FilterImage(picture).filtered(darker).rendered();
    QCOMPARE(result.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(result.pixel(0, 0), qPremultiply(qRgba(204, 204, 204, 100)));
}

void FilterImageTest::unusualShapesAreRendered_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("one pixel wide") << QSize(1, 500);
    QTest::newRow("one pixel high") << QSize(500, 1);
    QTest::newRow("30,000 wide") << QSize(30000, 3);
    QTest::newRow("30,000 high") << QSize(3, 30000);
    QTest::newRow("a megapixel and more") << QSize(1023, 1031);
}

void FilterImageTest::unusualShapesAreRendered()
{
    QFETCH(const QSize, size);
    const QImage picture = pattern(size);
    const QImage result = FilterImage(picture).filtered(kExchange).rendered();
    QCOMPARE(result.size(), size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const QRgb expected = qRgb(qBlue(pixel), 255 - qGreen(pixel), qRed(pixel));
            if (result.pixel(x, y) != expected)
                QCOMPARE(result.pixel(x, y), expected);
        }
    }
}

void FilterImageTest::aPartOfALargerPictureIsRendered()
{
    const QImage whole = pattern(QSize(50, 40));
    const uchar *corner = whole.constScanLine(5) + 4 * 7;
    const QImage part(corner, 21, 13, whole.bytesPerLine(), QImage::Format_RGB32);
    const QImage result = FilterImage(part).filtered(kExchange).rendered();
    QCOMPARE(result, FilterImage(whole.copy(7, 5, 21, 13)).filtered(kExchange).rendered());
    QCOMPARE(result.pixelColor(20, 12), exchanged(whole.pixelColor(27, 17)));
}

void FilterImageTest::unfilteredRenderingIsThePicture()
{
    const QImage opaque = pattern(QSize(40, 30));
    const QImage rendered = FilterImage(opaque).rendered();
    QCOMPARE(rendered, opaque);
    QVERIFY(rendered.constBits() == opaque.constBits());

    QImage translucent(2, 2, QImage::Format_ARGB32);
    translucent.fill(QColor(200, 100, 50, 60));
    QCOMPARE(FilterImage(translucent).rendered(),
             translucent.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void FilterImageTest::filteringLeavesTheInputAsItWas()
{
    const QImage picture = pattern(QSize(10, 10));
    const FilterImage input(picture);
    const FilterImage output = input.filtered(kExchange);
    QVERIFY(output.picture().constBits() == picture.constBits());
    QVERIFY(output.rendered() != picture);
    QVERIFY(input.transform().isIdentity());
    QCOMPARE(input.rendered(), pattern(QSize(10, 10)));
}

void FilterImageTest::aBufferIsUsedAgain()
{
    const FilterImage image(pattern(QSize(64, 48)));
    QImage destination;
    image.renderInto(destination);
    QCOMPARE(destination, image.picture());
    const uchar *pixels = destination.constBits();
    image.filtered(kExchange).renderInto(destination);
    QVERIFY(destination.constBits() == pixels);
    QCOMPARE(destination, image.filtered(kExchange).rendered());
}

void FilterImageTest::aBufferOfAnotherKindIsReplaced_data()
{
    QTest::addColumn<QImage>("destination");
    QTest::newRow("none") << QImage();
    QTest::newRow("smaller") << QImage(63, 48, QImage::Format_RGB32);
    QTest::newRow("turned") << QImage(48, 64, QImage::Format_RGB32);
    QTest::newRow("with alpha") << QImage(64, 48, QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("16 bit") << QImage(64, 48, QImage::Format_RGB16);
}

void FilterImageTest::aBufferOfAnotherKindIsReplaced()
{
    QFETCH(QImage, destination);
    const FilterImage image = FilterImage(pattern(QSize(64, 48))).filtered(kExchange);
    image.renderInto(destination);
    QCOMPARE(destination, image.rendered());
}

void FilterImageTest::aBufferThatSomebodyElseHoldsIsLeftToThem()
{
    const FilterImage image(pattern(QSize(64, 48)));
    QImage destination;
    image.filtered(kExchange).renderInto(destination);
    const QImage shown = destination;
    const QImage asShown = destination.copy();
    image.renderInto(destination);
    QCOMPARE(destination, image.picture());
    QCOMPARE(shown, asShown);
}

void FilterImageTest::renderingOverItsOwnPictureKeepsThePicture()
{
    const FilterImage image(pattern(QSize(64, 48)));
    QImage destination = image.picture();
    image.filtered(kExchange).renderInto(destination);
    QCOMPARE(image.picture(), pattern(QSize(64, 48)));
    QCOMPARE(destination, image.filtered(kExchange).rendered());
}

void FilterImageTest::renderingKeepsTheDevicePixelRatio()
{
    QImage picture = pattern(QSize(20, 10));
    picture.setDevicePixelRatio(2);
    QCOMPARE(FilterImage(picture).filtered(kExchange).rendered().devicePixelRatio(), 2.0);
    QImage destination;
    FilterImage(picture).renderInto(destination);
    QCOMPARE(destination.devicePixelRatio(), 2.0);
    FilterImage(pattern(QSize(20, 10))).renderInto(destination);
    QCOMPARE(destination.devicePixelRatio(), 1.0);
}

QTEST_GUILESS_MAIN(FilterImageTest)

#include "filter_image_test.moc"
