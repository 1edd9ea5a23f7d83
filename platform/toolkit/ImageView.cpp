#include "platform/toolkit/ImageView.h"

#include <QImageReader>
#include <QLabel>
#include <QLoggingCategory>
#include <QPixmap>

#include "platform/toolkit/PdfPictures.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcImage, "corvana.toolkit.image", QtWarningMsg)

namespace {

constexpr char kImageName[] = "imageName";
constexpr double kPointsPerInch = 72.0;

// Pictures for finer screens have a multiple of 72 pixels an inch; any other number is no statement
// about screens.
double pixelsPerPointOf(const QImage &image)
{
    constexpr double kMetersPerInch = 0.0254;
    const int dotsPerInch = qRound(image.dotsPerMeterX() * kMetersPerInch);
    // No screen is finer; such a picture would be too small to be seen.
    constexpr int kFinest = 8;
    const int ratio = dotsPerInch / static_cast<int>(kPointsPerInch);
    return ratio > 1 && ratio <= kFinest && dotsPerInch % static_cast<int>(kPointsPerInch) == 0
               ? ratio
               : 1.0;
}

} // namespace

QImage readPicture(const QString &file, double devicePixelRatio)
{
    QImage image;
    if (file.endsWith(u".pdf"_s, Qt::CaseInsensitive)) {
        image = firstPageOfPdf(file, devicePixelRatio);
    } else {
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        image = reader.read();
        image.setDevicePixelRatio(pixelsPerPointOf(image));
    }
    if (image.isNull())
        qCWarning(lcImage) << file << "is no picture";
    return image;
}

QString imageName(const QLabel *view)
{
    return view->property(kImageName).toString();
}

bool hasImage(const QLabel *view)
{
    return !view->pixmap(Qt::ReturnByValue).isNull();
}

void setImageName(QLabel *view, const QString &name)
{
    view->setProperty(kImageName, name);
}

void setImage(QLabel *view, const QImage &image)
{
    view->setPixmap(QPixmap::fromImage(image));
}

} // namespace corvana
