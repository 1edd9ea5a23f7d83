#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include <QColor>

#include "platform/imaging/PixelKernel.h"

namespace corvana {

/// What is added before the fraction of a component is cut off: a half, and a little for the error
/// of single precision, so that an exact half is never taken for less.
inline constexpr double kRounding = 0.5 + 1.0 / 16384;

/// One component in double precision.
inline std::uint32_t exactComponent(const std::array<double, 4> &row, std::uint32_t pixel)
{
    const double value = (pixel >> 16 & 0xff) * row[0] + (pixel >> 8 & 0xff) * row[1] +
                         (pixel & 0xff) * row[2] + 255 * row[3] + kRounding;
    if (value >= 255)
        return 255;
    return value > 0 ? static_cast<std::uint32_t>(value) : 0;
}

/// transformPixels() one pixel after the other, in double precision: for transforms that numbers of
/// single precision say nothing about.
inline void transformPixelsExactly(const ColorTransform &transform, ConstPixelRows source,
                                   PixelRows destination, QSize size, AlphaForm form)
{
    const auto &rows = transform.rows;
    for (int y = 0; y < size.height(); ++y) {
        const auto *from =
            reinterpret_cast<const std::uint32_t *>(source.bits + y * source.bytesPerLine);
        auto *to =
            reinterpret_cast<std::uint32_t *>(destination.bits + y * destination.bytesPerLine);
        for (int x = 0; x < size.width(); ++x) {
            const std::uint32_t pixel = from[x];
            const std::uint32_t result =
                (pixel & 0xff000000) | exactComponent(rows[0], pixel) << 16 |
                exactComponent(rows[1], pixel) << 8 | exactComponent(rows[2], pixel);
            to[x] = form == AlphaForm::Premultiplied ? qPremultiply(result) : result;
        }
    }
}

} // namespace corvana
