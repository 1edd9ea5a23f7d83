#include "colorsetting/EffectPreview.h"

#include "colorsetting/ColorSettingKeys.h"

namespace corvana {

PreviewColors previewColors(const QString &colorMatching, bool mono, bool fax)
{
    const bool unmatched = colorMatching == kNone;
    if (fax || (unmatched && mono))
        return PreviewColors::Grey;
    return unmatched ? PreviewColors::AsTheyAre : PreviewColors::WithEffects;
}

void setEffects(ImageFilter &filter, EffectFilter which, const EffectValues &values)
{
    for (const EffectInfo &effect : kEffectTable) {
        if (effect.filter == which)
            filter.setValue_forKey(effectParameter(effect, values(effect)), effect.filterKey);
    }
}

FilterImage withEffects(const FilterImage &image, const EffectValues &values, bool mono,
                        ImageFilter &colorControls, ImageFilter &colorMatrix)
{
    colorControls.setValue_forKey(image, kCIInputImageKey);
    setEffects(colorControls, EffectFilter::ColorControls, values);
    const FilterImage controlled = colorControls.outputImage();
    colorMatrix.setValue_forKey(controlled, kCIInputImageKey);
    setEffects(colorMatrix, EffectFilter::ColorMatrix, values);
    return mono ? monochrome(controlled) : colorMatrix.outputImage();
}

ColorTransform effectTransform(const EffectValues &values, bool mono)
{
    // A transform is the same for every picture, and no picture has none.
    static const FilterImage any(QImage(1, 1, QImage::Format_RGB32));
    const std::unique_ptr<ImageFilter> controls = ImageFilter::filterWithName(kCIColorControls);
    const std::unique_ptr<ImageFilter> matrix = ImageFilter::filterWithName(kCIColorMatrix);
    return withEffects(any, values, mono, *controls, *matrix).transform();
}

} // namespace corvana
