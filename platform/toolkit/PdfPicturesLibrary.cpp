// The whole of the library that draws PDF pages; see PdfPictures.h.

#include <algorithm>
#include <memory>

#include <poppler-qt6.h>

#include "platform/toolkit/PdfPictures.h"

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kMostPixels = 8000.0;

QImage firstPage(const QString &file, double devicePixelRatio)
{
    const std::unique_ptr<Poppler::Document> document = Poppler::Document::load(file);
    if (!document || document->isLocked() || document->numPages() < 1)
        return {};
    document->setRenderHint(Poppler::Document::Antialiasing);
    document->setRenderHint(Poppler::Document::TextAntialiasing);
    const std::unique_ptr<Poppler::Page> page = document->page(0);
    if (!page)
        return {};
    const QSizeF size = page->pageSizeF(); // points
    const double largest = std::max(size.width(), size.height());
    if (largest <= 0)
        return {};
    const double scale = std::min(devicePixelRatio, kMostPixels / largest);
    QImage image = page->renderToImage(kPointsPerInch * scale, kPointsPerInch * scale);
    image.setDevicePixelRatio(scale);
    return image;
}

} // namespace

// The name is corvana::kFirstPageOfPdf.
extern "C" Q_DECL_EXPORT void corvanaFirstPageOfPdf(const QString &file, double devicePixelRatio,
                                                    QImage *page)
{
    *page = firstPage(file, devicePixelRatio);
}

static_assert(std::is_same_v<decltype(&corvanaFirstPageOfPdf), corvana::FirstPageOfPdf>);
