#include "dialog/driverless/AttributeReading.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <type_traits>

#include <QStringDecoder>

namespace corvana::attribute {

using namespace Qt::StringLiterals;

namespace {

// More of them could neither be shown nor be chosen from.
constexpr int kMaximumValues = 1000;

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

// Null for what is no string, is not UTF-8, or is longer than IPP allows.
QString stringAt(ipp_attribute_t *attribute, int index)
{
    constexpr qsizetype kLongest = 1023;
    const QByteArray bytes = ippGetString(attribute, index, nullptr);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() || bytes.size() > kLongest ? QString() : text;
}

// A value that comes back as a job option: there, these characters end it or begin something else.
bool isKeyword(const QString &value)
{
    constexpr qsizetype kLongestKeyword = 255;
    constexpr QLatin1StringView kMeaningful{"{}\"'\\,=;"};
    return !value.trimmed().isEmpty() && value == value.simplified() &&
           value.toUtf8().size() <= kLongestKeyword && !hasControlCharacter(value) &&
           std::none_of(value.cbegin(), value.cend(),
                        [&](QChar c) { return kMeaningful.contains(c); });
}

// Null for what is no keyword.
QString keywordAt(ipp_attribute_t *attribute, int index)
{
    const QString value = stringAt(attribute, index);
    return isKeyword(value) ? value : QString();
}

// A resolution and its unit, which is one byte of the network's: a value of the enumeration that it
// cannot have must not be read as one. Null for a unit that nobody knows.
struct Resolution
{
    QSize size;
    bool isPerCentimetre = false;
};
std::optional<Resolution> resolutionAt(ipp_attribute_t *attribute, int index)
{
    ipp_res_t unit = IPP_RES_PER_INCH;
    int y = 0;
    const int x = ippGetResolution(attribute, index, &y, &unit);
    std::underlying_type_t<ipp_res_t> number = 0;
    static_assert(sizeof number == sizeof unit);
    std::memcpy(&number, &unit, sizeof number);
    if (number != IPP_RES_PER_INCH && number != IPP_RES_PER_CM)
        return std::nullopt;
    return Resolution{{x, y}, number == IPP_RES_PER_CM};
}

// What a server adds to a job as it is ("page-ranges=1,3"), with all that it may mean. Null for
// what nobody could see.
QString textOfOptionAt(ipp_attribute_t *attribute, int index)
{
    const QString value = stringAt(attribute, index);
    return value.trimmed().isEmpty() || hasControlCharacter(value) ? QString() : value;
}

// As a job option has it. Null where there is no such form.
QString optionValueAt(ipp_attribute_t *attribute, int index)
{
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
        return QString::number(ippGetInteger(attribute, index));
    case IPP_TAG_BOOLEAN:
        return ippGetBoolean(attribute, index) ? u"true"_s : u"false"_s;
    case IPP_TAG_RANGE: {
        int upper = 0;
        const int lower = ippGetRange(attribute, index, &upper);
        return u"%1-%2"_s.arg(QString::number(lower), QString::number(upper));
    }
    case IPP_TAG_RESOLUTION: {
        const auto resolution = resolutionAt(attribute, index);
        if (!resolution)
            return {};
        const QString name = resolution->isPerCentimetre ? u"dpcm"_s : u"dpi"_s;
        const QString x = QString::number(resolution->size.width());
        const QString y = QString::number(resolution->size.height());
        return (x == y ? x : x + u'x' + y) + name;
    }
    default:
        // Of several, a comma would make more.
        return valueCount(attribute) == 1 ? textOfOptionAt(attribute, index)
                                          : keywordAt(attribute, index);
    }
}

} // namespace

QStringList optionValuesOf(ipp_attribute_t *attribute)
{
    QStringList values;
    for (int i = 0; i < valueCount(attribute); ++i) {
        const QString value = optionValueAt(attribute, i);
        if (value.isNull())
            return {};
        values += value;
    }
    return values;
}

ipp_attribute_t *find(ipp_t *attributes, const char *name)
{
    return ippFindAttribute(attributes, name, IPP_TAG_ZERO);
}

int valueCount(ipp_attribute_t *attribute)
{
    return attribute ? std::min(ippGetCount(attribute), kMaximumValues) : 0;
}

QString textOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    QString text = attribute ? stringAt(attribute, 0) : QString();
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text.simplified();
}

QStringList keywordsOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    QStringList values;
    for (int i = 0; i < valueCount(attribute); ++i) {
        if (const QString value = stringAt(attribute, i); isKeyword(value))
            values += value;
    }
    values.removeDuplicates();
    return values;
}

bool isNumber(ipp_attribute_t *attribute)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    return tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM;
}

QList<int> numbersOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    QList<int> values;
    for (int i = 0; isNumber(attribute) && i < valueCount(attribute); ++i) {
        if (const int value = ippGetInteger(attribute, i); !values.contains(value))
            values += value;
    }
    return values;
}

QList<QSize> resolutionsOf(ipp_t *attributes, const char *name)
{
    constexpr int kHighest = 100'000;
    ipp_attribute_t *attribute = find(attributes, name);
    QList<QSize> values;
    if (ippGetValueTag(attribute) != IPP_TAG_RESOLUTION)
        return values;
    for (int i = 0; i < valueCount(attribute); ++i) {
        const auto resolution = resolutionAt(attribute, i);
        if (!resolution || resolution->size.isEmpty() || resolution->size.width() > kHighest ||
            resolution->size.height() > kHighest)
            continue;
        const auto perInch = [&](int value) {
            return resolution->isPerCentimetre ? qRound(value * 2.54) : value;
        };
        const QSize value(perInch(resolution->size.width()), perInch(resolution->size.height()));
        if (!values.contains(value))
            values += value;
    }
    return values;
}

ipp_t *collectionAt(ipp_attribute_t *attribute, int index)
{
    return ippGetValueTag(attribute) == IPP_TAG_BEGIN_COLLECTION
               ? ippGetCollection(attribute, index)
               : nullptr;
}

std::pair<int, int> rangeOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    if (ippGetValueTag(attribute) == IPP_TAG_RANGE) {
        int upper = 0;
        const int lower = ippGetRange(attribute, 0, &upper);
        return {lower, upper};
    }
    const int number = isNumber(attribute) ? ippGetInteger(attribute, 0) : 0;
    return {number, number};
}

} // namespace corvana::attribute
