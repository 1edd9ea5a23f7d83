#include "colorsetting/Effects.h"

#include <algorithm>

#include <QColor>

namespace corvana {

const EffectInfo *effectOfKeyword(const QString &keyword)
{
    const auto *found =
        std::find_if(kEffectTable.begin(), kEffectTable.end(),
                     [&keyword](const EffectInfo &effect) { return effect.keyword == keyword; });
    return found == kEffectTable.end() ? nullptr : found;
}

int effectCode(const EffectInfo &effect)
{
    return effect.filter == EffectFilter::ColorMatrix ? effect.tag - kFirstMatrixTag : effect.tag;
}

QVariant effectParameter(const EffectInfo &effect, qint64 value)
{
    if (effect.filter == EffectFilter::ColorControls)
        return static_cast<float>(value) / effect.divisor + effect.identity;
    const double gain =
        static_cast<double>(value) / static_cast<double>(effect.divisor) + effect.identity;
    FilterVector vector;
    if (effect.effect == Effect::Red)
        vector.red = gain;
    else if (effect.effect == Effect::Green)
        vector.green = gain;
    else
        vector.blue = gain;
    return vector;
}

FilterImage monochrome(const FilterImage &image)
{
    const std::unique_ptr<ImageFilter> filter = ImageFilter::filterWithName(kCIColorMonochrome);
    filter->setDefaults();
    filter->setValue_forKey(image, kCIInputImageKey);
    filter->setValue_forKey(QColor(Qt::white), kCIInputColorKey);
    filter->setValue_forKey(1.0, kCIInputIntensityKey);
    return filter->outputImage();
}

} // namespace corvana
