#pragma once

#include <QImage>
#include <QString>

namespace corvana {

/// Draws the first page of a PDF file; one point is one pixel on an ordinary screen.
///
/// What draws is a library of its own beside this one, which is loaded with the first call: it
/// brings some thirty others along, and hardly any picture is a PDF page. Range: a page that would
/// be larger than 8000 pixels in either direction is drawn smaller. Errors: a null image for a file
/// without a page; also when the library is missing, which is logged.
QImage firstPageOfPdf(const QString &file, double devicePixelRatio);

/// What the library offers, and under which name.
using FirstPageOfPdf = void (*)(const QString &file, double devicePixelRatio, QImage *page);
inline constexpr char kFirstPageOfPdf[] = "corvanaFirstPageOfPdf";

} // namespace corvana
