#include "platform/imaging/PixelKernel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include <QColor>

#include "platform/imaging/ExactPixels.h"

// This file is compiled once for each kind of vector instructions: foreach_target.h includes it
// again and again. What is in PixelKernel-inl.h is made anew each time, the rest only the last time
// (HWY_ONCE).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "platform/imaging/PixelKernel.cpp"
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef CORVANA_PIXEL_KERNEL_ONCE
#define CORVANA_PIXEL_KERNEL_ONCE

namespace corvana {
namespace {

/// The transform in the units of pixels: components 0..255, the rounding already in the last
/// column.
struct Coefficients
{
    float rows[3][4];
};

/// A run this long does not fit in the second-level cache of a processor, so that nothing would be
/// won by leaving it there for whoever paints it. Units: pixels.
constexpr std::size_t kLongRun = std::size_t{1} << 20;
/// A run this long fits in no cache.
constexpr std::size_t kVeryLongRun = std::size_t{1} << 24;

/// A run of pixels through a transform. Source and destination are the same or disjoint.
using RunFunction = void (*)(const Coefficients &coefficients, const std::uint32_t *source,
                             std::uint32_t *destination, std::size_t count);

} // namespace
} // namespace corvana
#endif

#include "platform/imaging/PixelKernel-inl.h"

#if HWY_ONCE

// The name is corvana::kTransformPixels.
extern "C" Q_DECL_EXPORT void corvanaTransformPixels(const corvana::ColorTransform &transform,
                                                     corvana::ConstPixelRows source,
                                                     corvana::PixelRows destination, QSize size,
                                                     corvana::AlphaForm form)
{
    corvana::transformPixels(transform, source, destination, size, form);
}

static_assert(std::is_same_v<decltype(&corvanaTransformPixels), corvana::TransformPixels>);

namespace corvana {

HWY_EXPORT(transformStraight);
HWY_EXPORT(transformPremultiplied);

namespace {

/// Up to here single precision is good to a sixteenth of a step, and far inside what the conversion
/// to integers can represent.
constexpr double kSinglePrecisionLimit = 1 << 20;

/// Whether no pixel can give a value beyond the limit; false for coefficients that are no numbers.
bool fitsSinglePrecision(const ColorTransform &transform)
{
    for (const auto &row : transform.rows) {
        const double largest =
            255 * (std::abs(row[0]) + std::abs(row[1]) + std::abs(row[2]) + std::abs(row[3]));
        if (!(largest <= kSinglePrecisionLimit))
            return false;
    }
    return true;
}

Coefficients coefficientsOf(const ColorTransform &transform)
{
    Coefficients result;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            result.rows[row][column] = static_cast<float>(transform.rows[row][column]);
        result.rows[row][3] = static_cast<float>(255 * transform.rows[row][3] + kRounding);
    }
    return result;
}

} // namespace

void transformPixels(const ColorTransform &transform, ConstPixelRows source, PixelRows destination,
                     QSize size, AlphaForm form)
{
    if (size.isEmpty())
        return;
    if (!fitsSinglePrecision(transform))
        return transformPixelsExactly(transform, source, destination, size, form);
    auto width = static_cast<std::size_t>(size.width());
    int height = size.height();
    // Rows without gaps are one long row.
    const auto rowBytes = static_cast<qsizetype>(width * sizeof(std::uint32_t));
    if (source.bytesPerLine == rowBytes && destination.bytesPerLine == rowBytes) {
        width *= static_cast<std::size_t>(height);
        height = 1;
    }

    const Coefficients coefficients = coefficientsOf(transform);
    const RunFunction run = form == AlphaForm::Premultiplied
                                ? HWY_DYNAMIC_DISPATCH(transformPremultiplied)
                                : HWY_DYNAMIC_DISPATCH(transformStraight);
    for (int y = 0; y < height; ++y) {
        const auto *from =
            reinterpret_cast<const std::uint32_t *>(source.bits + y * source.bytesPerLine);
        auto *to =
            reinterpret_cast<std::uint32_t *>(destination.bits + y * destination.bytesPerLine);
        run(coefficients, from, to, width);
    }
}

} // namespace corvana

#endif
