#pragma once

#include <QImage>
#include <QString>

#include "platform/PlatformExport.h"

class QLabel;

namespace corvana {

/// Reads a picture: any format that Qt reads, or the first page of a PDF file.
///
/// A page is rendered for the device pixel ratio, so that it stays sharp where screens are fine.
/// Any other picture has one pixel a point; one whose resolution is a multiple of 72 dots an inch
/// (144, 216) is drawn for finer screens and has as many pixels more.
/// Range: a page that would be larger than 8000 pixels in either direction is rendered smaller.
/// Errors: a null image for a file that is no picture.
CORVANA_PLATFORM_EXPORT QImage readPicture(const QString &file, double devicePixelRatio);

/// The name of the picture that an image view shows; null when it was given none.
CORVANA_PLATFORM_EXPORT QString imageName(const QLabel *view);
/// Whether the view shows a picture.
CORVANA_PLATFORM_EXPORT bool hasImage(const QLabel *view);
/// Names the picture that the view shows.
CORVANA_PLATFORM_EXPORT void setImageName(QLabel *view, const QString &name);
/// Shows a picture.
CORVANA_PLATFORM_EXPORT void setImage(QLabel *view, const QImage &image);

} // namespace corvana
