#pragma once

#include <memory>

#include <QAnyStringView>
#include <QLatin1StringView>
#include <QMetaType>
#include <QVariant>
#include <QVariantMap>

#include "platform/PlatformExport.h"
#include "platform/imaging/FilterImage.h"

namespace corvana {

/// Names of the filters, for ImageFilter::filterWithName.
///
/// "CIColorControls": saturation (factor; 0 is grey), then brightness (added to each component),
/// then contrast (factor about the middle, 0.5).
inline constexpr QLatin1StringView kCIColorControls("CIColorControls");
/// "CIColorMatrix": each component is the dot product of the pixel's (red, green, blue) with that
/// component's vector, plus the component's bias.
inline constexpr QLatin1StringView kCIColorMatrix("CIColorMatrix");
/// "CIColorMonochrome": the pixel's luminance times a colour, mixed with the pixel by the
/// intensity.
inline constexpr QLatin1StringView kCIColorMonochrome("CIColorMonochrome");

/// Parameters of every filter.
inline constexpr QLatin1StringView kCIInputImageKey("inputImage"); ///< FilterImage; default: none
inline constexpr QLatin1StringView
    kCIOutputImageKey("outputImage"); ///< FilterImage; can only be read

/// Parameters of the colour controls. Type: number.
inline constexpr QLatin1StringView kCIInputSaturationKey("inputSaturation"); ///< default: 1
inline constexpr QLatin1StringView kCIInputBrightnessKey("inputBrightness"); ///< default: 0
inline constexpr QLatin1StringView kCIInputContrastKey("inputContrast");     ///< default: 1

/// Parameters of the colour matrix. Type: FilterVector, its alpha 0, since alpha is never filtered.
inline constexpr QLatin1StringView kCIInputRVectorKey("inputRVector");       ///< default: 1, 0, 0
inline constexpr QLatin1StringView kCIInputGVectorKey("inputGVector");       ///< default: 0, 1, 0
inline constexpr QLatin1StringView kCIInputBVectorKey("inputBVector");       ///< default: 0, 0, 1
inline constexpr QLatin1StringView kCIInputBiasVectorKey("inputBiasVector"); ///< default: 0, 0, 0

/// Parameters of the monochrome filter.
inline constexpr QLatin1StringView kCIInputColorKey("inputColor"); ///< QColor; default: a sepia
inline constexpr QLatin1StringView kCIInputIntensityKey("inputIntensity"); ///< number; default: 1

/// Four numbers that belong to red, green, blue and alpha: a parameter of the colour matrix.
/// (QVector4D has single precision only.)
struct FilterVector
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;

    bool operator==(const FilterVector &) const = default;
    /// Enables storing a vector in a QVariant, as a filter's parameter.
    operator QVariant() const { return QVariant::fromValue(*this); }
};

/// A colour filter with named parameters, which it remembers between uses.
///
///     auto controls = ImageFilter::filterWithName(kCIColorControls);
///     controls->setValue_forKey(reference, kCIInputImageKey);
///     controls->setValue_forKey(1.25f, kCIInputSaturationKey);
///     FilterImage output = controls->outputImage();      // no pixel is touched yet
///
/// Filters are chained by making one's output the input of the next; the order matters.
/// Thread: one at a time for each object.
class CORVANA_PLATFORM_EXPORT ImageFilter
{
public:
    /// A new filter with its defaults and without an input image.
    /// Errors: null for a name that is none of the three; it is logged.
    static std::unique_ptr<ImageFilter> filterWithName(QAnyStringView name);

    /// Gives every parameter its default. The input image has none and stays.
    void setDefaults();
    /// Sets a parameter.
    /// Range: finite numbers. Errors: a key that the filter lacks, a value of another type or out
    /// of range is logged and changes nothing. Nothing at all is a valid input image: none.
    void setValue_forKey(const QVariant &value, QAnyStringView key);
    /// A parameter, with the type and value that were set; the output image under its key.
    /// Errors: invalid for a key that the filter lacks; it is logged.
    QVariant valueForKey(QAnyStringView key) const;

    /// The input image with this filter applied; no image when there is no input image.
    FilterImage outputImage() const;

private:
    struct Definition;
    struct Parameter;

    explicit ImageFilter(const Definition &definition);

    const Definition &m_definition;
    FilterImage m_inputImage;
    QVariantMap m_values;
};

} // namespace corvana

Q_DECLARE_METATYPE(corvana::FilterVector)
