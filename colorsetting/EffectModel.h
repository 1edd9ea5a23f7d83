#pragma once

#include <QLatin1StringView>
#include <QVariant>

#include "platform/imaging/FilterImage.h"
#include "platform/imaging/ImageFilter.h"

namespace corvana {

/// The tag of an effect's slider and field in the interface file. The first three act on the colour
/// controls, the others on the colour matrix.
enum EffectTag : int {
    kBrightnessTag = 0,
    kContrastTag = 1,
    kSaturationTag = 2,
    kRedTag = 3,
    kGreenTag = 4,
    kBlueTag = 5,
};

/// How an effect's value becomes a parameter of a filter.
struct EffectParameter
{
    QLatin1StringView keyword;
    QLatin1StringView filterKey;
    /// The parameter for a value of -20 to 20: a number of single precision for the colour
    /// controls, a vector of double precision for the matrix. A value of 0 changes nothing.
    QVariant (*fromValue)(qint64 value);
};

/// By tag: brightness, contrast, saturation.
extern const EffectParameter kColorControlEffects[3];
/// By tag, less kRedTag: red, green, blue.
extern const EffectParameter kColorMatrixEffects[3];

/// The picture in the grey of its own luminance.
FilterImage monochrome(const FilterImage &image);

} // namespace corvana
