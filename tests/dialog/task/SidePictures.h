#pragma once

#include <optional>

#include <QImage>
#include <QList>
#include <QPointF>
#include <QString>

namespace corvana::test {

/// Pictures of sides, small enough that many can be compared, and how alike two of them are.

/// Units: pixels per inch.
inline constexpr int kPicturesResolution = 50;

/// The sides that a printer would print of PostScript data, drawn by Ghostscript.
/// Errors: nothing when it cannot read the data.
QList<QImage> picturesOfStream(const QString &path);

/// The pages of a PDF, drawn by Poppler as a preview draws them. Errors: nothing.
QList<QImage> picturesOfPdf(const QString &path);

/// How two pictures of one side differ that different programs have drawn.
struct PictureDifference
{
    /// Of their widths and heights, the larger one. Units: pixels.
    int size = 0;
    /// How far an edge of what is drawn is from where it is in the other one. Units: pixels.
    int edges = 0;
    /// The mean of all points, and the worst of areas of a tenth of an inch. Range: 0 to 255.
    double mean = 0;
    double worst = 0;
};
PictureDifference differenceOf(const QImage &one, const QImage &other);

/// Where the points of a colour lie in the mean. Range: 0 to 1 of width and height. Errors: nothing
/// where there are none.
std::optional<QPointF> middleOf(const QImage &picture, Qt::GlobalColor color);

} // namespace corvana::test
