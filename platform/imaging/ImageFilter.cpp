#include "platform/imaging/ImageFilter.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QColor>
#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcFilter, "corvana.imaging.filter", QtWarningMsg)

namespace {

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isfinite(value.toDouble());
    default:
        return false;
    }
}

bool isVector(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<FilterVector>())
        return false;
    const auto vector = value.value<FilterVector>();
    return std::isfinite(vector.red) && std::isfinite(vector.green) && std::isfinite(vector.blue) &&
           vector.alpha == 0;
}

bool isColor(const QVariant &value)
{
    return value.typeId() == QMetaType::QColor && value.value<QColor>().isValid();
}

ColorTransform colorControls(const QVariantMap &values)
{
    const double saturation = values[kCIInputSaturationKey].toDouble();
    const double brightness = values[kCIInputBrightnessKey].toDouble();
    const double contrast = values[kCIInputContrastKey].toDouble();

    const double grey = 1 - saturation;
    ColorTransform saturate;
    for (std::size_t row = 0; row < 3; ++row) {
        saturate.rows[row] = {grey * kLumaWeights[0], grey * kLumaWeights[1],
                              grey * kLumaWeights[2], 0};
        saturate.rows[row][row] += saturation;
    }
    ColorTransform brighten;
    ColorTransform stretch;
    for (std::size_t row = 0; row < 3; ++row) {
        brighten.rows[row][3] = brightness;
        stretch.rows[row][row] = contrast;
        stretch.rows[row][3] = 0.5 - 0.5 * contrast;
    }
    return saturate.then(brighten).then(stretch);
}

ColorTransform colorMatrix(const QVariantMap &values)
{
    const auto vector = [&values](QLatin1StringView key) {
        return values[key].value<FilterVector>();
    };
    const FilterVector red = vector(kCIInputRVectorKey);
    const FilterVector green = vector(kCIInputGVectorKey);
    const FilterVector blue = vector(kCIInputBVectorKey);
    const FilterVector bias = vector(kCIInputBiasVectorKey);
    return {{{{red.red, red.green, red.blue, bias.red},
              {green.red, green.green, green.blue, bias.green},
              {blue.red, blue.green, blue.blue, bias.blue}}}};
}

ColorTransform colorMonochrome(const QVariantMap &values)
{
    const QColor color = values[kCIInputColorKey].value<QColor>().toRgb();
    const double intensity = values[kCIInputIntensityKey].toDouble();
    const std::array<double, 3> components{color.redF(), color.greenF(), color.blueF()};
    ColorTransform result;
    for (std::size_t row = 0; row < 3; ++row) {
        const double share = intensity * components[row];
        result.rows[row] = {share * kLumaWeights[0], share * kLumaWeights[1],
                            share * kLumaWeights[2], 0};
        result.rows[row][row] += 1 - intensity;
    }
    return result;
}

} // namespace

struct ImageFilter::Parameter
{
    QLatin1StringView key;
    bool (*accepts)(const QVariant &value);
    QVariant defaultValue;
};

struct ImageFilter::Definition
{
    QLatin1StringView name;
    std::vector<Parameter> parameters;
    ColorTransform (*transform)(const QVariantMap &values);

    static const std::vector<Definition> &all()
    {
        static const std::vector<Definition> definitions{
            {kCIColorControls,
             {{kCIInputSaturationKey, isNumber, 1.0},
              {kCIInputBrightnessKey, isNumber, 0.0},
              {kCIInputContrastKey, isNumber, 1.0}},
             colorControls},
            {kCIColorMatrix,
             {{kCIInputRVectorKey, isVector, FilterVector{1, 0, 0}},
              {kCIInputGVectorKey, isVector, FilterVector{0, 1, 0}},
              {kCIInputBVectorKey, isVector, FilterVector{0, 0, 1}},
              {kCIInputBiasVectorKey, isVector, FilterVector{}}},
             colorMatrix},
            {kCIColorMonochrome,
             {{kCIInputColorKey, isColor, QColor::fromRgbF(0.6f, 0.45f, 0.3f)},
              {kCIInputIntensityKey, isNumber, 1.0}},
             colorMonochrome},
        };
        return definitions;
    }
};

std::unique_ptr<ImageFilter> ImageFilter::filterWithName(QAnyStringView name)
{
    const auto &all = Definition::all();
    const auto found = std::ranges::find(all, name, &Definition::name);
    if (found == all.end()) {
        qCWarning(lcFilter) << "there is no filter named" << name.toString();
        return nullptr;
    }
    return std::unique_ptr<ImageFilter>(new ImageFilter(*found));
}

ImageFilter::ImageFilter(const Definition &definition) : m_definition(definition)
{
    setDefaults();
}

void ImageFilter::setDefaults()
{
    for (const Parameter &parameter : m_definition.parameters)
        m_values[parameter.key] = parameter.defaultValue;
}

void ImageFilter::setValue_forKey(const QVariant &value, QAnyStringView key)
{
    if (key == kCIInputImageKey) {
        if (value.isValid() && value.metaType() != QMetaType::fromType<FilterImage>())
            qCWarning(lcFilter) << m_definition.name << "takes no image from" << value;
        else
            m_inputImage = value.value<FilterImage>();
        return;
    }
    const auto &parameters = m_definition.parameters;
    const auto found = std::ranges::find(parameters, key, &Parameter::key);
    if (found == parameters.end())
        qCWarning(lcFilter) << m_definition.name << "has no parameter" << key.toString();
    else if (!found->accepts(value))
        qCWarning(lcFilter) << m_definition.name << "takes no" << found->key << "of" << value;
    else
        m_values[found->key] = value;
}

QVariant ImageFilter::valueForKey(QAnyStringView key) const
{
    if (key == kCIInputImageKey)
        return m_inputImage;
    if (key == kCIOutputImageKey)
        return outputImage();
    const auto found = m_values.constFind(key.toString());
    if (found == m_values.constEnd()) {
        qCWarning(lcFilter) << m_definition.name << "has no parameter" << key.toString();
        return {};
    }
    return *found;
}

FilterImage ImageFilter::outputImage() const
{
    return m_inputImage.filtered(m_definition.transform(m_values));
}

} // namespace corvana
