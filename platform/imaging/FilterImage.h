#pragma once

#include <QImage>
#include <QMetaType>
#include <QSize>
#include <QVariant>

#include "platform/PlatformExport.h"
#include "platform/imaging/ColorTransform.h"

namespace corvana {

/// A picture together with what filters still have to do to it: the input and the output of an
/// ImageFilter.
///
/// It is a value and cheap to copy. The pixels are shared and never changed; filters are combined
/// into one colour transform, in double precision. Only rendering touches pixels, once, however
/// many filters there are.
///
///     FilterImage reference(readPicture(file, 1.0));
///     FilterImage preview = reference.filtered(warmer).filtered(darker);
///     QImage shown = preview.rendered();
///
/// Rendering: of each pixel red, green and blue are transformed, clamped to 0..255 and rounded half
/// up, without any rounding or clamping between two filters; a value less than 2^-14 below a half
/// counts as one, because parameters are numbers of single precision and their error would decide
/// otherwise. Alpha is unchanged. Translucent pictures are filtered by their true colours, not the
/// premultiplied ones, in which the same filter would darken edges. Components are taken as they
/// are stored: there is no colour management. Max error: 1 of 255 against exact arithmetic, and in
/// no more than 0.01 % of all values. Thread: reentrant; different threads may render the same
/// image into different destinations.
class CORVANA_PLATFORM_EXPORT FilterImage
{
public:
    /// No image. Filtering it gives no image, rendering it a null one.
    FilterImage() = default;
    /// A picture without filters: any format that QImage knows. 16-bit and wider components become
    /// 8 bits, and the colours of an index are looked up, here and not at each rendering.
    /// Ownership: shares the pixels; a buffer that QImage only borrows must outlive this image.
    /// Errors: no image for a null picture, or (logged) one too large to be converted.
    explicit FilterImage(const QImage &picture);

    bool isNull() const { return m_picture.isNull(); }
    /// The size of the picture, which is that of a rendering; 0 x 0 for no image. Units: pixels.
    QSize extent() const { return m_picture.size(); }
    /// The unfiltered pixels, as RGB32, or ARGB32 for a picture with an alpha channel.
    const QImage &picture() const { return m_picture; }
    /// All filters so far, as one.
    const ColorTransform &transform() const { return m_transform; }
    /// The same picture with one filter more.
    FilterImage filtered(const ColorTransform &next) const;

    /// The filtered picture in its full size, fit for painting: RGB32, or ARGB32_Premultiplied
    /// where the picture has alpha. It has the picture's device pixel ratio.
    QImage rendered() const;
    /// The same into an image that is used again: nothing is allocated when it already has the size
    /// and the format and nobody else holds its pixels. A widget or pixmap that still shows the
    /// former rendering keeps it unchanged, at the price of a new buffer here.
    void renderInto(QImage &destination) const;

    /// Enables storing an image in a QVariant, as a filter's parameter.
    operator QVariant() const { return QVariant::fromValue(*this); }

private:
    QImage m_picture;
    ColorTransform m_transform;
};

} // namespace corvana

Q_DECLARE_METATYPE(corvana::FilterImage)
