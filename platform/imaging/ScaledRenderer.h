#pragma once

#include <QImage>
#include <QSize>

#include "platform/PlatformExport.h"
#include "platform/imaging/FilterImage.h"

namespace corvana {

/// Renders filter images in the size of the view that shows them; one for each view.
///
/// It scales the picture once, keeps that copy, and filters only the copy from then on. So a slider
/// that moves costs as much as the view has pixels, whatever size the picture has.
///
///     void paintEvent(QPaintEvent *) override
///     {
///         QPainter(this).drawImage(QPoint(), renderer.render(image, size(), devicePixelRatioF()));
///     }
///
/// Filtering after scaling instead of before differs only where the filter clamps.
/// Thread: one at a time.
class CORVANA_PLATFORM_EXPORT ScaledRenderer
{
public:
    /// The image with all its filters in exactly the given size; for its own proportions pass
    /// image.extent().scaled(size, Qt::KeepAspectRatio).
    ///
    /// The result has the device pixel ratio and so is drawn one pixel to one.
    /// Units: the size is in device-independent pixels. Range: the size is at least 1 x 1, the
    /// ratio above 0; otherwise, and for no image, the result is a null image. Ownership: the
    /// renderer's. It is painted over by the next call; nothing is allocated then, unless the size
    /// or the picture is another one or somebody kept a copy of the result.
    const QImage &render(const FilterImage &image, QSize size, double devicePixelRatio);

private:
    /// What the copy was made from; held, so that its key stands for no other picture.
    QImage m_source;
    /// The scaled copy, unfiltered.
    FilterImage m_copy;
    QImage m_result;
};

} // namespace corvana
