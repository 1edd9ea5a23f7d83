#pragma once

#include <array>

#include <QLatin1StringView>
#include <QString>
#include <QVariant>

#include "platform/imaging/FilterImage.h"
#include "platform/imaging/ImageFilter.h"

namespace corvana {

using namespace Qt::StringLiterals;

/// The colour effects.
enum class Effect { Brightness, Contrast, Red, Green, Blue, Saturation };

/// The filter of the preview that an effect acts on.
enum class EffectFilter { ColorControls, ColorMatrix };

/// The tags of the matrix's effects begin here; those of the colour controls lie below.
inline constexpr int kFirstMatrixTag = 3;
inline constexpr int kLastEffectTag = 5;

/// What there is to know of an effect.
struct EffectInfo
{
    Effect effect;
    QLatin1StringView keyword;
    EffectFilter filter;
    int tag; ///< of the effect's slider and field in the interface file
    QLatin1StringView filterKey;
    /// The filter's parameter for a value v is v / divisor + identity, so that 0 changes nothing.
    /// The steps are fine enough that the extremes stay plausible prints.
    float divisor;
    float identity;
    bool inMonochrome; ///< whether monochrome printing has the effect as well
};

/// One row an effect, in the order in which a set of them is stored.
inline constexpr std::array<EffectInfo, 6> kEffectTable{{
    {Effect::Brightness, "QXBrightness"_L1, EffectFilter::ColorControls, 0, kCIInputBrightnessKey,
     200, 0, true},
    {Effect::Contrast, "QXContrast"_L1, EffectFilter::ColorControls, 1, kCIInputContrastKey, 160, 1,
     true},
    {Effect::Red, "QXRed"_L1, EffectFilter::ColorMatrix, 3, kCIInputRVectorKey, 35, 1, false},
    {Effect::Green, "QXGreen"_L1, EffectFilter::ColorMatrix, 4, kCIInputGVectorKey, 35, 1, false},
    {Effect::Blue, "QXBlue"_L1, EffectFilter::ColorMatrix, 5, kCIInputBVectorKey, 35, 1, false},
    {Effect::Saturation, "QXSaturation"_L1, EffectFilter::ColorControls, 2, kCIInputSaturationKey,
     80, 1, false},
}};

/// The keywords of the effects alone, in the same order.
inline constexpr std::array<QLatin1StringView, kEffectTable.size()> kEffectKeywords = [] {
    std::array<QLatin1StringView, kEffectTable.size()> keywords;
    for (size_t row = 0; row < kEffectTable.size(); ++row)
        keywords[row] = kEffectTable[row].keyword;
    return keywords;
}();

/// The effect that an option stands for; null for any other option.
const EffectInfo *effectOfKeyword(const QString &keyword);

/// The number by which the operation of the effect's filter is told the effect: 0 and more.
int effectCode(const EffectInfo &effect);

/// The parameter of the effect's filter for a value of -20 to 20: a number of single precision for
/// the colour controls, a vector of double precision for the matrix.
QVariant effectParameter(const EffectInfo &effect, qint64 value);

/// The picture in the grey of its own luminance.
FilterImage monochrome(const FilterImage &image);

} // namespace corvana
