#pragma once

#include <functional>

#include <QString>

#include "colorsetting/EffectSet.h"
#include "colorsetting/Effects.h"
#include "platform/imaging/ColorTransform.h"

namespace corvana {

/// What a preview makes of colours: the panel's of its reference picture, and the host's of the
/// user's own pages.
enum class PreviewColors {
    AsTheyAre,
    Grey,        ///< nothing else is known
    WithEffects, ///< and in grey where the job is monochrome
};

PreviewColors previewColors(const QString &colorMatching, bool mono, bool fax);

/// The value of an effect: -20 to 20.
using EffectValues = std::function<qint64(const EffectInfo &effect)>;

/// Gives one of the two filters all of its effects.
void setEffects(ImageFilter &filter, EffectFilter which, const EffectValues &values);

/// A picture with all six effects: the colour controls come first, then the matrix, and in
/// monochrome printing the grey of the picture takes the place of what the matrix yields. The
/// filters keep the parameters.
FilterImage withEffects(const FilterImage &image, const EffectValues &values, bool mono,
                        ImageFilter &colorControls, ImageFilter &colorMatrix);

/// The same for the colours of any picture.
ColorTransform effectTransform(const EffectValues &values, bool mono);

} // namespace corvana
