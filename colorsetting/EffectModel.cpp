#include "colorsetting/EffectModel.h"

#include <QColor>

namespace corvana {

namespace {

// The steps are fine enough that the extremes stay plausible prints: a tenth of brightness, an
// eighth of contrast, a quarter of saturation.
QVariant brightness(qint64 value)
{
    return static_cast<float>(value) / 200.0f;
}

QVariant contrast(qint64 value)
{
    return static_cast<float>(value) / 160.0f + 1.0f;
}

QVariant saturation(qint64 value)
{
    return static_cast<float>(value) / 80.0f + 1.0f;
}

double gain(qint64 value)
{
    return static_cast<double>(value) / 35.0 + 1.0;
}

QVariant red(qint64 value)
{
    return FilterVector{gain(value), 0, 0, 0};
}

QVariant green(qint64 value)
{
    return FilterVector{0, gain(value), 0, 0};
}

QVariant blue(qint64 value)
{
    return FilterVector{0, 0, gain(value), 0};
}

} // namespace

const EffectParameter kColorControlEffects[3] = {
    {QLatin1StringView("QXBrightness"), kCIInputBrightnessKey, brightness},
    {QLatin1StringView("QXContrast"), kCIInputContrastKey, contrast},
    {QLatin1StringView("QXSaturation"), kCIInputSaturationKey, saturation},
};

const EffectParameter kColorMatrixEffects[3] = {
    {QLatin1StringView("QXRed"), kCIInputRVectorKey, red},
    {QLatin1StringView("QXGreen"), kCIInputGVectorKey, green},
    {QLatin1StringView("QXBlue"), kCIInputBVectorKey, blue},
};

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
