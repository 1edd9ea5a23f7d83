#include <QColorSpace>
#include <QFile>
#include <QImageReader>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <turbojpeg.h>

#include "dialog/documents/DocumentChecks.h"
#include "dialog/job/FileBytes.h"
#include "tests/dialog/documents/CameraPictures.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30000;
constexpr int kOrientation = 0x0112;
constexpr int kShort = 3;
// Blocks of a picture of that size are whole, and of the other one they are not.
constexpr QSize kWhole{320, 192};
constexpr QSize kCut{333, 201};

struct UntouchedRow
{
    const char *name;
    QByteArray file;
};

QByteArray upright()
{
    return jpegOf(corneredPicture(kWhole));
}
// With an entry that says less than it seems to.
QByteArray withEntry(int type, int count, quint32 value)
{
    return withExif(upright(), tiffOf(entryOf(kOrientation, type, count, value), 1));
}
QByteArray lying()
{
    return withOrientation(upright(), 6);
}

QList<UntouchedRow> untouchedRows()
{
    QByteArray noTiff = lying();
    noTiff.replace(QByteArray("II*\0", 4), "XX*\0");
    QByteArray otherTiff = lying();
    otherTiff.replace(QByteArray("II*\0", 4), "II+\0");
    QByteArray listBeyond = lying();
    listBeyond.replace(QByteArray("*\0\x08\0\0\0", 6), QByteArray("*\0\xf0\xff\xff\xff", 6));
    QByteArray listInHead = lying();
    listInHead.replace(QByteArray("*\0\x08\0\0\0", 6), QByteArray("*\0\x04\0\0\0", 6));
    QByteArray segmentBeyond = lying();
    segmentBeyond[4] = '\xff';
    segmentBeyond[5] = '\xff';
    QByteArray segmentOfNothing = lying();
    segmentOfNothing[4] = segmentOfNothing[5] = 0;
    return {
        {"nothing noted", upright()},
        {"seen as it lies", withOrientation(upright(), 1)},
        {"no orientation at all", withOrientation(upright(), 0)},
        {"an orientation that is none", withOrientation(upright(), 9)},
        {"a number of another type", withEntry(4, 1, 6)},
        {"two numbers", withEntry(kShort, 2, 6)},
        {"more entries than there are",
         withExif(upright(), tiffOf(entryOf(kOrientation, kShort, 1, 6), 65535))},
        {"half an entry",
         withExif(upright(), tiffOf(entryOf(kOrientation, kShort, 1, 6), 1).first(16))},
        {"no TIFF", noTiff},
        {"a TIFF of another kind", otherTiff},
        {"a list behind the end", listBeyond},
        {"a list in the head", listInHead},
        {"a segment that is longer than the file", segmentBeyond},
        {"a segment without its own length", segmentOfNothing},
        {"nothing but a beginning", "\xff\xd8\xff\xdb"_ba},
        {"an empty EXIF", withExif(upright(), {})},
        {"nothing behind it", lying().first(60)},
        {"nothing of the picture", lying().first(lying().indexOf("\xff\xda") + 4)},
        {"another kind of file", "Exif\0\0 in a text"_ba},
        {"nothing", {}},
    };
}

} // namespace

/// What a camera notes of how a picture is held is followed before anything is made of it.
class TurnedPicturesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    // What is printed of a file. Errors: fails, where nobody finds that out.
    Document printed(const QByteArray &file, const QString &format = u"image/jpeg"_s)
    {
        const QString path = writeFile(m_folder.filePath(u"a.jpg"_s), file);
        const Document document{path, format, u"a.jpg"_s};
        DocumentChecks checks;
        QSignalSpy changed(&checks, &DocumentChecks::changed);
        checks.check({document});
        [&] { QVERIFY(checks.isDone() || changed.wait(kPatience)); }();
        if (checks.stateOf(document).kind != DocumentState::Kind::Fine && !checks.isDone())
            return {};
        return checks.printed(document);
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QImage read(const QString &path, bool isTurned)
    {
        QImageReader reader(path, "jpeg");
        reader.setAutoTransform(isTurned);
        return reader.read();
    }
    // Per channel and pixel; -1 for pictures of different sizes.
    static double difference(const QImage &one, const QImage &other)
    {
        if (one.size() != other.size() || one.isNull())
            return -1;
        const QImage first = one.convertToFormat(QImage::Format_RGB888);
        const QImage second = other.convertToFormat(QImage::Format_RGB888);
        qint64 sum = 0;
        for (int y = 0; y < first.height(); ++y) {
            for (int x = 0; x < 3 * first.width(); ++x)
                sum += qAbs(first.constScanLine(y)[x] - second.constScanLine(y)[x]);
        }
        return double(sum) / (3.0 * first.width() * first.height());
    }

private Q_SLOTS:
    // Qt's own reader, which turns pictures itself, says how they have to be seen.
    void whatIsPrintedIsSeenAsItLies_data()
    {
        QTest::addColumn<int>("orientation");
        for (int orientation = 2; orientation <= 8; ++orientation)
            QTest::addRow("%d", orientation) << orientation;
    }
    void whatIsPrintedIsSeenAsItLies()
    {
        QFETCH(int, orientation);
        for (const QSize size : {kWhole, kCut, QSize(1, 40), QSize(1, 1)}) {
            for (const auto format : {QImage::Format_RGB32, QImage::Format_Grayscale8}) {
                for (const ByteOrder order : {ByteOrder::LittleFirst, ByteOrder::BigFirst}) {
                    const QByteArray file =
                        withOrientation(jpegOf(corneredPicture(size, format)), orientation, order);
                    const Document document = printed(file);
                    QVERIFY(document.path != m_folder.filePath(u"a.jpg"_s));
                    QCOMPARE(document.format, u"image/jpeg"_s);
                    QCOMPARE(document.title, u"a.jpg"_s);
                    const QImage seen = read(m_folder.filePath(u"a.jpg"_s), true);
                    const QImage turned = read(document.path, false);
                    // Of the compressed picture only rounding differs.
                    const double apart = difference(seen, turned);
                    QVERIFY2(apart >= 0 && apart < 2, qPrintable(QString::number(apart)));
                    QCOMPARE(turned.isGrayscale(), format == QImage::Format_Grayscale8);
                    // Whoever follows notes does not turn it once more.
                    QCOMPARE(QImageReader(document.path).transformation(),
                             QImageIOHandler::TransformationNone);
                    QCOMPARE(bytesOf(m_folder.filePath(u"a.jpg"_s)), file);
                }
            }
        }
    }

    // Blocks are put elsewhere; turned back, they are what they were.
    void whereItsEdgesAllowThePictureIsTheVerySame()
    {
        const auto pixels = [](const QByteArray &file) { return QImage::fromData(file, "jpeg"); };
        const QByteArray stored = upright();
        const QByteArray turned = bytesOf(printed(withOrientation(stored, 3)).path);
        const QByteArray back = bytesOf(printed(withOrientation(turned, 3)).path);
        QVERIFY(turned != stored);
        QCOMPARE(pixels(back), pixels(stored));
    }

    void theResolutionTurnsWithIt()
    {
        for (const QSize size : {kWhole, kCut}) {
            QImage picture = corneredPicture(size);
            picture.setDotsPerMeterX(3937);
            picture.setDotsPerMeterY(7874);
            const QImage lying = read(printed(withOrientation(jpegOf(picture), 6)).path, false);
            QCOMPARE(qRound(lying.dotsPerMeterX() * 0.0254), 200);
            QCOMPARE(qRound(lying.dotsPerMeterY() * 0.0254), 100);
            const QImage down = read(printed(withOrientation(jpegOf(picture), 3)).path, false);
            QCOMPARE(qRound(down.dotsPerMeterX() * 0.0254), 100);
            QCOMPARE(qRound(down.dotsPerMeterY() * 0.0254), 200);
        }
    }

    // The numbers themselves stand behind the list, and their places change.
    void soDoesThatOfTheNotes()
    {
        const QByteArray entries = entryOf(kOrientation, kShort, 1, 8) + entryOf(0x011a, 5, 1, 50) +
                                   entryOf(0x011b, 5, 1, 58);
        const QByteArray file = bytesOf(printed(withExif(upright(), tiffOf(entries, 3))).path);
        QVERIFY(file.contains(entryOf(kOrientation, kShort, 1, 1) + entryOf(0x011a, 5, 1, 58) +
                              entryOf(0x011b, 5, 1, 50)));
    }

    void theProfileOfItsColorsStays()
    {
        for (const QSize size : {kWhole, kCut}) {
            QImage picture = corneredPicture(size);
            picture.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
            const QImage turned = read(printed(withOrientation(jpegOf(picture), 6)).path, false);
            QCOMPARE(turned.colorSpace(), picture.colorSpace());
        }
    }

    void fourColorsStayFour_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("whole") << kWhole;
        QTest::newRow("cut") << kCut;
    }
    void fourColorsStayFour()
    {
        QFETCH(QSize, size);
        const auto count = size_t(size.width()) * size_t(size.height()) * 4;
        std::vector<unsigned char> pixels(count);
        for (size_t i = 0; i < count; ++i)
            pixels[i] = i % 4 == 3 ? 255 : (i / 4) % 64;
        const tjhandle library = tjInitTransform();
        unsigned char *data = nullptr;
        unsigned long length = 0; // NOLINT(google-runtime-int)
        QCOMPARE(tjCompress2(library, pixels.data(), size.width(), 0, size.height(), TJPF_CMYK,
                             &data, &length, TJSAMP_444, 95, 0),
                 0);
        const QByteArray stored(reinterpret_cast<const char *>(data), qsizetype(length));
        tjFree(data);
        const QByteArray turned = bytesOf(printed(withOrientation(stored, 6)).path);
        QVERIFY(turned.contains("Adobe"));
        int width = 0, height = 0, sampling = 0, colors = 0;
        QCOMPARE(tjDecompressHeader3(library,
                                     reinterpret_cast<const unsigned char *>(turned.constData()),
                                     static_cast<unsigned long>(turned.size()), &width, &height,
                                     &sampling, &colors),
                 0);
        QCOMPARE(QSize(width, height), size.transposed());
        QCOMPARE(colors, int(TJCS_YCCK));
        QVERIFY(difference(read(m_folder.filePath(u"a.jpg"_s), true),
                           QImage::fromData(turned, "jpeg")) < 2);
        // Nobody knows which way round four colours are that do not say it.
        QByteArray unsaid = withOrientation(stored, 6);
        unsaid.replace("Adobe", "Nobod");
        QCOMPARE(printed(unsaid).path, m_folder.filePath(u"a.jpg"_s));
        // It is printed all the same where CUPS would not know it.
        const QByteArray mark("\xff\xfe\0\x04no", 6);
        QCOMPARE(bytesOf(printed(QByteArray(unsaid).insert(2, mark)).path),
                 QByteArray(unsaid).insert(2, QByteArray("\xff\xef\0\x02", 4) + mark));
        tjDestroy(library);
    }

    // CUPS' filters go by the first four bytes, which programs that make pictures small for the web
    // leave as they come.
    void aPictureThatBeginsAtOnceIsMadeOneThatCupsKnows()
    {
        const QByteArray whole = upright();
        QCOMPARE(whole.mid(2, 2), QByteArray("\xff\xe0"));
        const QByteArray tables = whole.mid(whole.indexOf("\xff\xdb"));
        for (const QByteArray &before : {QByteArray(), QByteArray("\xff\xfe\0\x04no", 6)}) {
            const QByteArray bare = "\xff\xd8" + before + tables;
            const Document document = printed(bare);
            QVERIFY(document.path != m_folder.filePath(u"a.jpg"_s));
            QCOMPARE(bytesOf(document.path),
                     QByteArray("\xff\xd8\xff\xef\0\x02", 6) + before + tables);
            QCOMPARE(read(document.path, false), read(m_folder.filePath(u"a.jpg"_s), false));
            QVERIFY(!read(document.path, false).isNull());
            QCOMPARE(bytesOf(m_folder.filePath(u"a.jpg"_s)), bare);
        }
    }

    void everythingElseStaysWhatItIs()
    {
        for (const UntouchedRow &row : untouchedRows()) {
            const Document document = printed(row.file);
            QVERIFY2(document.path == m_folder.filePath(u"a.jpg"_s), row.name);
            QVERIFY2(bytesOf(document.path) == row.file, row.name);
        }
    }

    // Of a picture that is not whole what there is of it is turned.
    void aDamagedPictureIsTurnedAsFarAsItGoes()
    {
        for (const QSize size : {kWhole, kCut}) {
            const QByteArray whole = withOrientation(jpegOf(corneredPicture(size)), 6);
            const Document document = printed(whole.first(whole.size() * 2 / 3));
            QVERIFY(document.path != m_folder.filePath(u"a.jpg"_s));
            QCOMPARE(read(document.path, false).size(), size.transposed());
        }
    }

    // A file may be several things; what is not called a picture is none.
    void whatIsNoPictureIsNotTurned()
    {
        const Document document = printed(lying(), u"text/plain"_s);
        QCOMPARE(document.path, m_folder.filePath(u"a.jpg"_s));
    }
};

QTEST_MAIN(TurnedPicturesTest)
#include "turned_pictures_test.moc"
