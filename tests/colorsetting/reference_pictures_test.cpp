// Reference pictures of every kind: those that a bundle may hold, and those that it should not.

#include <QBuffer>
#include <QImageWriter>
#include <QSlider>
#include <QTest>
#include <QtEndian>

#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/colorsetting/OwnPictures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A TIFF file of one uncompressed strip, in the byte order of small machines.
class Tiff
{
public:
    enum Photometric : quint16 { Rgb = 2, Palette = 3, Separated = 5 };

    Tiff(int width, int height, Photometric photometric, int samples, int bits, QByteArray pixels)
        : m_pixels(std::move(pixels))
    {
        tag(256, quint32(width));
        tag(257, quint32(height));
        tag(258, QList<quint16>(samples, quint16(bits)));
        tag(259, quint32(1)); // not compressed
        tag(262, quint32(photometric));
        tag(kStripOffsets, quint32(0)); // known at the end
        tag(277, quint32(samples));
        tag(278, quint32(height));
        tag(279, quint32(m_pixels.size()));
    }
    Tiff &tag(quint16 id, quint32 value)
    {
        m_tags.insert(id, {4, 1, number<quint32>(value)});
        return *this;
    }
    Tiff &tag(quint16 id, const QList<quint16> &values)
    {
        QByteArray bytes;
        for (const quint16 value : values)
            bytes += number<quint16>(value);
        m_tags.insert(id, {3, quint32(values.size()), bytes});
        return *this;
    }
    QByteArray bytes() const
    {
        // The pixels come last, so that a file that ends too soon still says what it holds.
        const qsizetype further = kHeader + 2 + 12 * m_tags.size() + 4;
        QByteArray entries;
        QByteArray values;
        qsizetype room = 0;
        for (const Tag &tag : m_tags)
            room += tag.bytes.size() > 4 ? tag.bytes.size() : 0;
        for (auto tag = m_tags.begin(); tag != m_tags.end(); ++tag) {
            entries += number<quint16>(tag.key()) + number<quint16>(tag->type) +
                       number<quint32>(tag->count);
            if (tag.key() == kStripOffsets) {
                entries += number<quint32>(quint32(further + room));
            } else if (tag->bytes.size() <= 4) {
                entries += tag->bytes.leftJustified(4, '\0');
            } else {
                entries += number<quint32>(quint32(further + values.size()));
                values += tag->bytes;
            }
        }
        return "II" + number<quint16>(42) + number<quint32>(kHeader) +
               number<quint16>(quint16(m_tags.size())) + entries + number<quint32>(0) + values +
               m_pixels;
    }

private:
    static constexpr quint32 kHeader = 8;
    static constexpr quint16 kStripOffsets = 273;

    struct Tag
    {
        quint16 type;
        quint32 count;
        QByteArray bytes;
    };
    template <typename Number> static QByteArray number(Number value)
    {
        QByteArray bytes(sizeof value, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    }

    QMap<quint16, Tag> m_tags;
    QByteArray m_pixels;
};

QByteArray tiffOf(const QImage &picture)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "tiff");
    if (!writer.write(picture))
        throw std::runtime_error(writer.errorString().toStdString());
    return buffer.data();
}

QImage plain(QSize size, QImage::Format format, const QColor &color)
{
    QImage picture(size, format);
    picture.fill(color);
    return picture;
}

QByteArray sixteenBits()
{
    // Red 0x8040, green 0x40ff, blue 0xffff: what is beyond eight bits is dropped or rounded.
    const QByteArray pixel = QByteArray::fromHex("4080ff40ffff");
    return Tiff(4, 2, Tiff::Rgb, 3, 16, pixel.repeated(8)).bytes();
}

QByteArray cyan()
{
    return Tiff(4, 2, Tiff::Separated, 4, 8, QByteArray::fromHex("ff000000").repeated(8)).bytes();
}

QByteArray indexed()
{
    QList<quint16> colors(3 * 256, 0);
    colors[7] = 0x8080;       // red of the color 7
    colors[256 + 7] = 0x4040; // its green
    return Tiff(4, 2, Tiff::Palette, 1, 8, QByteArray(8, '\x07')).tag(320, colors).bytes();
}

} // namespace

class ReferencePicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bundle.emplace(bundleWithoutPictures()); }
    void cleanup() { m_bundle.reset(); }

    void everyKindOfPictureIsShownAndFiltered_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QColor>("color");
        const QColor color(120, 80, 160);
        QTest::newRow("true color")
            << tiffOf(plain({5, 4}, QImage::Format_RGB32, color)) << QSize(5, 4) << color;
        QTest::newRow("one pixel")
            << tiffOf(plain({1, 1}, QImage::Format_RGB32, color)) << QSize(1, 1) << color;
        QTest::newRow("one pixel wide")
            << tiffOf(plain({1, 500}, QImage::Format_RGB32, color)) << QSize(1, 500) << color;
        QTest::newRow("30,000 pixels wide")
            << tiffOf(plain({30000, 3}, QImage::Format_RGB32, color)) << QSize(30000, 3) << color;
        QTest::newRow("30,000 pixels high")
            << tiffOf(plain({3, 30000}, QImage::Format_RGB32, color)) << QSize(3, 30000) << color;
        QTest::newRow("16 bits a component")
            << sixteenBits() << QSize(4, 2) << QColor(0x80, 0x41, 0xff);
        QTest::newRow("cyan, magenta, yellow and black")
            << cyan() << QSize(4, 2) << QColor(0, 255, 255);
        QTest::newRow("indexed") << indexed() << QSize(4, 2) << QColor(0x80, 0x40, 0);
        QTest::newRow("gray") << tiffOf(
                                     plain({5, 4}, QImage::Format_Grayscale8, QColor(90, 90, 90)))
                              << QSize(5, 4) << QColor(90, 90, 90);
        QTest::newRow("translucent")
            << tiffOf(plain({5, 4}, QImage::Format_ARGB32, QColor(120, 80, 160, 128)))
            << QSize(5, 4) << QColor(120, 80, 160, 128);
    }
    void everyKindOfPictureIsShownAndFiltered()
    {
        QFETCH(QByteArray, file);
        QFETCH(QSize, size);
        QFETCH(QColor, color);
        putPicture(*m_bundle, u"Normal"_s, file);
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        FilterImageView *view = panel.effectImageView;
        QCOMPARE(view->image().extent(), size);
        compareColors(view->pixels().pixelColor(0, 0), color);

        panel.determineSlider(u"QXRed"_s)->setValue(-20);
        const QColor dimmed(qRound(color.red() * (1 - 20 / 35.0)), color.green(), color.blue(),
                            color.alpha());
        compareColors(view->pixels().pixelColor(size.width() - 1, size.height() - 1), dimmed);
        view->resize(100, 80);
        QVERIFY(!view->grab().isNull()); // paints, whatever the proportions
    }

    void whatIsNoPictureLeavesThePanelWithoutAPreview_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QByteArray whole = tiffOf(plain({50, 40}, QImage::Format_RGB32, Qt::blue));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("II*");
        QTest::newRow("a header alone") << whole.first(8);
        QTest::newRow("the directory is missing") << whole.first(whole.size() - 97);
        const QByteArray pixelsLast =
            Tiff(40, 30, Tiff::Rgb, 3, 8, QByteArray(40 * 30 * 3, '\x55')).bytes();
        QTest::newRow("half of the pixels is missing")
            << pixelsLast.first(pixelsLast.size() - 40 * 30 * 3 / 2);
        QTest::newRow("one byte is missing") << pixelsLast.chopped(1);
        QTest::newRow("no width") << Tiff(0, 2, Tiff::Rgb, 3, 8, QByteArray()).bytes();
        QTest::newRow("a page") << QByteArray("%PDF-1.4\n%%EOF\n");
    }
    void whatIsNoPictureLeavesThePanelWithoutAPreview()
    {
        QFETCH(QByteArray, file);
        putPicture(*m_bundle, u"Normal"_s, file);
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Normal\\.tiff\" is no picture"_s));
        panel.willShow();
        QVERIFY(panel.effectImageView->image().isNull());
        panel.determineSlider(u"QXRed"_s)->setValue(5);
        QVERIFY(panel.saveValuesAndReturnError(nullptr));
        QCOMPARE(panel.entry(kNormalEffect).toList().at(2), QVariant(qint64(5)));
        panel.effectImageView->resize(100, 80);
        QVERIFY(!panel.effectImageView->grab().isNull());
    }

    void withoutAnyPictureThePanelWorks()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        panel.determineSlider(u"QXBrightness"_s)->setValue(5);
        QVERIFY(panel.effectImageView->image().isNull());
        panel.revertEffectDialog(nullptr);
        QCOMPARE(panel.determineSlider(u"QXBrightness"_s)->value(), 0);
    }

private:
    static void compareColors(const QColor &actual, const QColor &expected)
    {
        // Premultiplied components have half the steps where half of the light comes through.
        const int tolerance = expected.alpha() < 255 ? 2 : 1;
        QVERIFY2(qAbs(actual.red() - expected.red()) <= tolerance &&
                     qAbs(actual.green() - expected.green()) <= tolerance &&
                     qAbs(actual.blue() - expected.blue()) <= tolerance &&
                     actual.alpha() == expected.alpha(),
                 qPrintable(u"%1 is not %2"_s.arg(actual.name(QColor::HexArgb),
                                                  expected.name(QColor::HexArgb))));
    }

    std::optional<TestBundle> m_bundle;
};

QTEST_MAIN(ReferencePicturesTest)
#include "reference_pictures_test.moc"
