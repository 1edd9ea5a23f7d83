#include "tests/dialog/task/SidePictures.h"

#include <algorithm>
#include <cmath>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int kProgramPatience = 120000;        // milliseconds on a busy machine
constexpr int kArea = kPicturesResolution / 10; // a tenth of an inch
constexpr int kInk = 40; // how much darker than paper a point is that something was drawn on

bool succeeds(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(kProgramPatience) && process.exitCode() == 0;
}

// In the order of their names, in which numbers are filled up with zeros.
QList<QImage> picturesIn(const QString &folder)
{
    QList<QImage> pictures;
    const QStringList names = QDir(folder).entryList({u"*.ppm"_s}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        pictures += QImage(folder + u'/' + name).convertToFormat(QImage::Format_RGB32);
    return pictures;
}

bool isInk(QRgb point)
{
    return std::min({qRed(point), qGreen(point), qBlue(point)}) < 255 - kInk;
}

QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isInk(picture.pixel(x, y)))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

int farthestEdge(const QRect &one, const QRect &other)
{
    if (one.isEmpty() || other.isEmpty())
        return one.isEmpty() == other.isEmpty() ? 0 : 9999;
    return std::max({std::abs(one.left() - other.left()), std::abs(one.right() - other.right()),
                     std::abs(one.top() - other.top()), std::abs(one.bottom() - other.bottom())});
}

double differenceOf(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

// Thin lines that lie half a point apart are alike in this.
QImage blurred(const QImage &picture)
{
    return picture.scaled(picture.width() / kArea, picture.height() / kArea, Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
}

} // namespace

QList<QImage> picturesOfStream(const QString &path)
{
    const QTemporaryDir folder;
    const bool isDrawn =
        succeeds(u"gs"_s, {u"-q"_s, u"-dSAFER"_s, u"-dBATCH"_s, u"-dNOPAUSE"_s,
                           u"-sDEVICE=ppmraw"_s, u"-dTextAlphaBits=4"_s, u"-dGraphicsAlphaBits=4"_s,
                           u"-r%1"_s.arg(kPicturesResolution), u"-o"_s,
                           folder.filePath(u"%05d.ppm"_s), path});
    return isDrawn ? picturesIn(folder.path()) : QList<QImage>();
}

QList<QImage> picturesOfPdf(const QString &path)
{
    const QTemporaryDir folder;
    const bool isDrawn = succeeds(u"pdftoppm"_s, {u"-r"_s, QString::number(kPicturesResolution),
                                                  path, folder.filePath(u"side"_s)});
    return isDrawn ? picturesIn(folder.path()) : QList<QImage>();
}

PictureDifference differenceOf(const QImage &one, const QImage &other)
{
    PictureDifference difference;
    difference.size =
        std::max(std::abs(one.width() - other.width()), std::abs(one.height() - other.height()));
    difference.edges = farthestEdge(inkOf(one), inkOf(other));
    const QRect both = one.rect() & other.rect();
    const QImage blurredOne = blurred(one.copy(both));
    const QImage blurredOther = blurred(other.copy(both));
    for (int y = 0; y < blurredOne.height(); ++y) {
        for (int x = 0; x < blurredOne.width(); ++x) {
            const double here = differenceOf(blurredOne.pixel(x, y), blurredOther.pixel(x, y));
            difference.mean += here / blurredOne.width() / blurredOne.height();
            difference.worst = std::max(difference.worst, here);
        }
    }
    return difference;
}

std::optional<QPointF> middleOf(const QImage &picture, Qt::GlobalColor color)
{
    const QColor wanted(color);
    QPointF sum;
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (differenceOf(picture.pixel(x, y), wanted.rgb()) > 60)
                continue;
            sum += QPointF(x, y);
            ++count;
        }
    }
    if (count == 0)
        return std::nullopt;
    return QPointF(sum.x() / count / picture.width(), sum.y() / count / picture.height());
}

} // namespace corvana::test
