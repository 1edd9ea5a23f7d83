#include "tests/dialog/documents/CameraPictures.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

namespace corvana::test {

namespace {

template <typename Number> QByteArray littleFirst(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

QImage corneredPicture(QSize size, QImage::Format format)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    const QSize mark(size.width() / 3, size.height() / 3);
    const QPoint right(size.width() - mark.width(), 0);
    const QPoint bottom(0, size.height() - mark.height());
    painter.fillRect(QRect(QPoint(), mark), Qt::red);
    painter.fillRect(QRect(right, mark), Qt::yellow);
    painter.fillRect(QRect(bottom, mark), Qt::blue);
    painter.fillRect(QRect(right + bottom, mark), Qt::white);
    painter.end();
    return picture.convertToFormat(format);
}

QByteArray jpegOf(const QImage &picture)
{
    QBuffer file;
    QImageWriter writer(&file, "jpeg");
    writer.setQuality(95);
    return writer.write(picture) ? file.data() : QByteArray();
}

QByteArray entryOf(int tag, int type, int count, quint32 value)
{
    return littleFirst(quint16(tag)) + littleFirst(quint16(type)) + littleFirst(quint32(count)) +
           littleFirst(value);
}

QByteArray tiffOf(const QByteArray &entries, int count)
{
    return QByteArray("II*\0\x08\0\0\0", 8) + littleFirst(quint16(count)) + entries +
           QByteArray(4, '\0');
}

QByteArray withExif(const QByteArray &jpeg, const QByteArray &tiff)
{
    const QByteArray segment = QByteArray("Exif\0\0", 6) + tiff;
    const qsizetype length = segment.size() + 2;
    QByteArray file = jpeg;
    return file.insert(2,
                       QByteArray("\xff\xe1") + char(length >> 8) + char(length & 0xff) + segment);
}

QByteArray withOrientation(const QByteArray &jpeg, int orientation, ByteOrder order)
{
    constexpr int kOrientation = 0x0112;
    constexpr int kShort = 3;
    if (order == ByteOrder::LittleFirst)
        return withExif(jpeg, tiffOf(entryOf(kOrientation, kShort, 1, quint32(orientation)), 1));
    return withExif(jpeg, QByteArray("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 19) +
                              char(orientation) + QByteArray(6, '\0'));
}

} // namespace corvana::test
