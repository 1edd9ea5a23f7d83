#pragma once

#include <array>

#include "platform/PlatformExport.h"

namespace corvana {

/// Weights of red, green and blue in a colour's grey, applied to the encoded components as they
/// are. Source: ITU-R BT.709, luma coefficients.
inline constexpr std::array<double, 3> kLumaWeights{0.2126, 0.7152, 0.0722};

/// An affine map of colours: what a filter does to every pixel, alpha apart.
///
/// Row k gives the output component k (red, green, blue) as the dot product of its first three
/// numbers with the input's (red, green, blue), plus its last one.
/// Units: components are encoded values in 0..1. Range: any; nothing is clamped here.
struct CORVANA_PLATFORM_EXPORT ColorTransform
{
    std::array<std::array<double, 4>, 3> rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}};

    /// The map that gives every colour the grey of its own luminance.
    static ColorTransform grey();

    /// The map that applies this one first and then the next one.
    ColorTransform then(const ColorTransform &next) const;

    bool isIdentity() const { return *this == ColorTransform{}; }
    bool operator==(const ColorTransform &) const = default;
};

} // namespace corvana
