#pragma once

#include <QSize>
#include <QtGlobal>

#include "platform/imaging/ColorTransform.h"

namespace corvana {

/// How a transformed pixel is stored.
enum class AlphaForm {
    Straight,      ///< red, green and blue as they are
    Premultiplied, ///< each multiplied by alpha, as qPremultiply does it
};

/// Pixels to read. Ownership: borrowed.
struct ConstPixelRows
{
    const uchar *bits = nullptr; ///< the first row; aligned to 4 bytes
    qsizetype bytesPerLine = 0;  ///< from one row to the next
};

/// Pixels to write. Ownership: borrowed.
struct PixelRows
{
    uchar *bits = nullptr;
    qsizetype bytesPerLine = 0;
};

/// Transforms a rectangle of pixels; what lies between its rows is neither read nor written.
///
/// Pixels are 32 bits: alpha in the highest byte, then red, green, blue, none premultiplied in the
/// source. Source and destination may be the same rows and must not overlap otherwise. One thread;
/// the vector instructions of the processor at hand are used.
/// Max error: as FilterImage says.
/// Range: any transform. Beyond gains of some thousands, where numbers of single precision say
/// nothing about a single step, pixels are computed one by one in double precision; a result that
/// is no number is 0.
void transformPixels(const ColorTransform &transform, ConstPixelRows source, PixelRows destination,
                     QSize size, AlphaForm form);

/// What the library of the kernel offers, and under which name. It is loaded with the first picture
/// that is transformed: the library below it measures the clock of the processor when it is loaded,
/// which takes longer than all libraries together that a window needs at once.
using TransformPixels = void (*)(const ColorTransform &transform, ConstPixelRows source,
                                 PixelRows destination, QSize size, AlphaForm form);
inline constexpr char kTransformPixels[] = "corvanaTransformPixels";

} // namespace corvana
