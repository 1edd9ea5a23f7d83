#include "dialog/session/CustomValue.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include <QRegularExpression>

#include "dialog/session/OptionNames.h"
#include "dialog/session/PaperSize.h"
#include "dialog/session/SecretNames.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 8);
}

QString number(const ppd_cparam_t *parameter, double value)
{
    // Whole numbers have up to ten digits; fractions are stored with seven.
    return parameter->type == PPD_CUSTOM_INT ? QString::number(static_cast<int>(value))
                                             : number(value);
}

// A number and nothing else: Qt would also read " 5", "5\n", "1e1" and "nan".
std::optional<double> strictNumber(const ppd_cparam_t *parameter, const QString &text)
{
    static const QRegularExpression whole(u"^[+-]?[0-9]+\\z"_s);
    static const QRegularExpression fraction(u"^[+-]?[0-9]+(?:\\.[0-9]+)?\\z"_s);
    const QRegularExpression &form = parameter->type == PPD_CUSTOM_INT ? whole : fraction;
    return form.match(text).hasMatch() ? std::optional(text.toDouble()) : std::nullopt;
}

QString millimetres(double points)
{
    return QString::number(std::round(hundredthsOfPoints(points) / 10.0) / 10.0);
}

QString allowedPageSizes(const ppd_file_t *ppd)
{
    return u"Custom.WIDTHxHEIGHTmm, %1x%2mm … %3x%4mm"_s.arg(
        millimetres(ppd->custom_min[0]), millimetres(ppd->custom_min[1]),
        millimetres(ppd->custom_max[0]), millimetres(ppd->custom_max[1]));
}

CustomValueCheck checkPageSize(const ppd_file_t *ppd, const QString &value)
{
    const CustomValueCheck refused{std::nullopt, allowedPageSizes(ppd)};
    const std::optional<QSizeF> given = customPageSize(value);
    if (!given)
        return refused;
    // Limits are written in points and read in millimetres; a tenth of a point is no difference.
    constexpr double tolerance = 0.1;
    const auto within = [&](double size, int axis) {
        return size >= static_cast<double>(ppd->custom_min[axis]) - tolerance &&
               size <= static_cast<double>(ppd->custom_max[axis]) + tolerance;
    };
    if (!within(given->width(), 0) || !within(given->height(), 1))
        return refused;
    return {u"Custom.%1x%2"_s.arg(number(given->width()), number(given->height())),
            refused.allowed};
}

// The only parameter of a custom option; null when it has several or none. A PPD may describe
// parameters without the choice "Custom", or lose that choice with a line of the option: libcups
// then marks nothing, and the printer would do what it does by default.
ppd_cparam_t *onlyParameter(ppd_file_t *ppd, const QString &keyword)
{
    if (!ppdChoice(ppdOption(ppd, keyword), kCustomChoice))
        return nullptr;
    ppd_coption_t *custom = ppdFindCustomOption(ppd, keyword.toLatin1().constData());
    if (!custom || cupsArrayCount(custom->params) != 1)
        return nullptr;
    return ppdFirstCustomParam(custom);
}

// Range of a parameter whose values are numbers.
std::optional<std::pair<double, double>> range(const ppd_cparam_t *parameter)
{
    switch (parameter->type) {
    case PPD_CUSTOM_INT:
        return std::pair<double, double>(parameter->minimum.custom_int,
                                         parameter->maximum.custom_int);
    case PPD_CUSTOM_REAL:
        return std::pair<double, double>(static_cast<double>(parameter->minimum.custom_real),
                                         static_cast<double>(parameter->maximum.custom_real));
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
        return std::pair<double, double>(static_cast<double>(parameter->minimum.custom_curve),
                                         static_cast<double>(parameter->maximum.custom_curve));
    case PPD_CUSTOM_POINTS:
        return std::pair<double, double>(static_cast<double>(parameter->minimum.custom_points),
                                         static_cast<double>(parameter->maximum.custom_points));
    default:
        return std::nullopt;
    }
}

bool isCalledSecret(ppd_file_t *ppd, const QString &keyword)
{
    const ppd_option_t *option = ppdOption(ppd, keyword);
    return option &&
           (soundsSecret(keyword) || soundsSecret(ppdText(option->text).value_or(QString())));
}

} // namespace

bool takesCustomPageSizes(const ppd_file_t *ppd)
{
    return ppd->variable_sizes && ppd->custom_max[0] > 0 && ppd->custom_max[1] > 0;
}

CustomValueCheck checkCustomValue(ppd_file_t *ppd, const QString &keyword, const QString &value)
{
    if (keyword == kPageSizeOption)
        return takesCustomPageSizes(ppd) ? checkPageSize(ppd, value) : CustomValueCheck{};
    const CustomValueCheck refused{std::nullopt, allowedCustomValues(ppd, keyword)};
    const ppd_cparam_t *parameter = onlyParameter(ppd, keyword);
    if (!parameter || !value.startsWith(kCustomPrefix))
        return refused;
    const QString text = value.mid(kCustomPrefix.size());
    const auto bounds = range(parameter);
    if (!bounds) {
        const int length = static_cast<int>(text.toUtf8().size());
        const bool digits =
            parameter->type != PPD_CUSTOM_PASSCODE ||
            std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
        const bool fits = length >= parameter->minimum.custom_string &&
                          length <= parameter->maximum.custom_string && digits &&
                          !text.contains(u'\n');
        return fits ? CustomValueCheck{value, refused.allowed} : refused;
    }
    const std::optional<double> given = strictNumber(parameter, text);
    if (!given || *given < bounds->first || *given > bounds->second)
        return refused;
    return {value, refused.allowed};
}

QString choiceOfNumber(ppd_file_t *ppd, const QString &keyword, const QString &text)
{
    static const QRegularExpression whole(u"^[+-]?[0-9]{1,9}\\z"_s);
    const ppd_option_t *option = ppdOption(ppd, keyword);
    const bool isWhole = whole.match(text).hasMatch();
    for (int i = 0; option && isWhole && i < option->num_choices; ++i) {
        const QString choice = ppdKeyword(option->choices[i].choice);
        if (whole.match(choice).hasMatch() && choice.toInt() == text.toInt())
            return choice;
    }
    const ppd_cparam_t *parameter = onlyParameter(ppd, keyword);
    const auto bounds = parameter ? range(parameter) : std::nullopt;
    const std::optional<double> given = bounds ? strictNumber(parameter, text) : std::nullopt;
    if (!given)
        return {};
    const bool isAllowed = *given >= bounds->first && *given <= bounds->second;
    return kCustomPrefix + (isAllowed ? number(parameter, *given) : text);
}

std::optional<CustomLimits> customLimits(ppd_file_t *ppd, const QString &keyword)
{
    using Kind = CustomLimits::Kind;
    const ppd_cparam_t *parameter = onlyParameter(ppd, keyword);
    if (!parameter)
        return std::nullopt;
    if (const auto bounds = range(parameter)) {
        return CustomLimits{parameter->type == PPD_CUSTOM_POINTS ? Kind::Points : Kind::Number,
                            number(parameter, bounds->first), number(parameter, bounds->second)};
    }
    return CustomLimits{isSecret(ppd, keyword) ? Kind::HiddenText : Kind::Text,
                        QString::number(parameter->minimum.custom_string),
                        QString::number(parameter->maximum.custom_string)};
}

bool isSecret(ppd_file_t *ppd, const QString &keyword)
{
    const ppd_cparam_t *parameter = onlyParameter(ppd, keyword);
    if (!parameter)
        return false;
    return parameter->type == PPD_CUSTOM_PASSCODE || parameter->type == PPD_CUSTOM_PASSWORD ||
           isCalledSecret(ppd, keyword) || soundsSecret(ppdKeyword(parameter->name)) ||
           soundsSecret(ppdText(parameter->text).value_or(QString()));
}

bool isSecretChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    const bool hasDigit =
        std::any_of(choice.cbegin(), choice.cend(), [](QChar c) { return c.isDigit(); });
    return hasDigit && (isSecret(ppd, keyword) || isCalledSecret(ppd, keyword));
}

QString allowedCustomValues(ppd_file_t *ppd, const QString &keyword)
{
    if (keyword == kPageSizeOption)
        return takesCustomPageSizes(ppd) ? allowedPageSizes(ppd) : QString();
    const ppd_cparam_t *parameter = onlyParameter(ppd, keyword);
    if (!parameter)
        return {};
    if (const auto bounds = range(parameter)) {
        return u"Custom.%1 … Custom.%2"_s.arg(number(parameter, bounds->first),
                                              number(parameter, bounds->second));
    }
    return u"Custom.TEXT"_s;
}

QList<JobOption> customDefaults(ppd_file_t *ppd)
{
    QList<JobOption> defaults;
    for (const ppd_group_t &group : std::span(ppd->groups, static_cast<size_t>(ppd->num_groups))) {
        for (const ppd_option_t &option :
             std::span(group.options, static_cast<size_t>(group.num_options))) {
            const QString keyword = ppdKeyword(option.keyword);
            const QString value = ppdKeyword(option.defchoice);
            if (value.startsWith(kCustomPrefix) && keyword != kPageRegionOption &&
                checkCustomValue(ppd, keyword, value).value)
                defaults += JobOption{keyword, value};
        }
    }
    return defaults;
}

} // namespace corvana
