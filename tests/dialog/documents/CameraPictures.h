#pragma once

#include <QByteArray>
#include <QImage>

namespace corvana::test {

/// A picture with another colour in each corner.
QImage corneredPicture(QSize size, QImage::Format format = QImage::Format_RGB32);
/// As a JPEG, with what the picture says of its resolution and its colour space.
QByteArray jpegOf(const QImage &picture);
/// What a camera writes into a JPEG before its picture.
enum class ByteOrder { LittleFirst, BigFirst };
QByteArray withOrientation(const QByteArray &jpeg, int orientation,
                           ByteOrder order = ByteOrder::LittleFirst);
/// A segment of EXIF around such a TIFF, behind the first `at` bytes of the file.
QByteArray withExif(const QByteArray &jpeg, const QByteArray &tiff);
/// A TIFF with one list of entries of 12 bytes each, little-endian.
QByteArray tiffOf(const QByteArray &entries, int count);
/// Such an entry.
QByteArray entryOf(int tag, int type, int count, quint32 value);

} // namespace corvana::test
