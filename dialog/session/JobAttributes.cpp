#include "dialog/session/JobAttributes.h"

#include <algorithm>
#include <iterator>

#include <QRegularExpression>

namespace corvana {

namespace {

bool isOneOf(const QString &value, std::initializer_list<QLatin1StringView> allowed)
{
    return std::any_of(allowed.begin(), allowed.end(),
                       [&](QLatin1StringView one) { return value == one; });
}

bool isBoolean(const QString &value)
{
    return isOneOf(value, {QLatin1StringView("true"), QLatin1StringView("false")});
}

// "1-4,7,9-": ascending ranges of pages, each page at least 1.
bool isPageRanges(const QString &value)
{
    static const QRegularExpression range(QStringLiteral("^([0-9]{1,9})?(?:(-)([0-9]{1,9})?)?\\z"));
    int last = 0;
    const QStringList parts = value.split(u',');
    for (const QString &part : parts) {
        const QRegularExpressionMatch match = range.match(part);
        if (!match.hasMatch() || part.isEmpty() || part == QLatin1StringView("-"))
            return false;
        const bool open = !match.captured(2).isEmpty();
        const int first = match.captured(1).isEmpty() ? 1 : match.captured(1).toInt();
        int end = first;
        if (open)
            end = match.captured(3).isEmpty() ? 999999999 : match.captured(3).toInt();
        if (first <= last || end < first)
            return false;
        last = end;
    }
    return true;
}

bool isHoldUntil(const QString &value)
{
    static const QRegularExpression time(
        QStringLiteral("^([01]?[0-9]|2[0-3]):[0-5][0-9](:[0-5][0-9])?\\z"));
    return isOneOf(value, {QLatin1StringView("no-hold"), QLatin1StringView("indefinite"),
                           QLatin1StringView("day-time"), QLatin1StringView("evening"),
                           QLatin1StringView("night"), QLatin1StringView("second-shift"),
                           QLatin1StringView("third-shift"), QLatin1StringView("weekend")}) ||
           time.match(value).hasMatch();
}

bool isPriority(const QString &value)
{
    static const QRegularExpression number(QStringLiteral("^[0-9]{1,3}\\z"));
    return number.match(value).hasMatch() && value.toInt() >= 1 && value.toInt() <= 100;
}

// Banner pages are the server's; their names are checked there. One or two of them.
bool isJobSheets(const QString &value)
{
    static const QRegularExpression names(QStringLiteral("^[A-Za-z0-9._-]+(,[A-Za-z0-9._-]+)?\\z"));
    return names.match(value).hasMatch();
}

constexpr JobAttribute kAttributes[] = {
    {QLatin1StringView("number-up"), QLatin1StringView("1, 2, 4, 6, 9, 16"),
     [](const QString &v) {
         return isOneOf(v,
                        {QLatin1StringView("1"), QLatin1StringView("2"), QLatin1StringView("4"),
                         QLatin1StringView("6"), QLatin1StringView("9"), QLatin1StringView("16")});
     }},
    {QLatin1StringView("page-ranges"),
     QLatin1StringView("pages and ranges in ascending order, such as 1-4,7,9-"), isPageRanges},
    {QLatin1StringView("orientation-requested"),
     QLatin1StringView("3 (portrait), 4 (landscape), 5 (reverse landscape), 6 (reverse portrait)"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("3"), QLatin1StringView("4"), QLatin1StringView("5"),
                            QLatin1StringView("6")});
     }},
    {QLatin1StringView("fit-to-page"), QLatin1StringView("true, false"), isBoolean},
    {QLatin1StringView("print-scaling"), QLatin1StringView("auto, auto-fit, fill, fit, none"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("auto"), QLatin1StringView("auto-fit"),
                            QLatin1StringView("fill"), QLatin1StringView("fit"),
                            QLatin1StringView("none")});
     }},
    {QLatin1StringView("collate"), QLatin1StringView("true, false"), isBoolean},
    {QLatin1StringView("outputorder"), QLatin1StringView("normal, reverse"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("normal"), QLatin1StringView("reverse")});
     }},
    {QLatin1StringView("page-set"), QLatin1StringView("all, even, odd"),
     [](const QString &v) {
         return isOneOf(
             v, {QLatin1StringView("all"), QLatin1StringView("even"), QLatin1StringView("odd")});
     }},
    {QLatin1StringView("job-hold-until"),
     QLatin1StringView("no-hold, indefinite, day-time, evening, night, second-shift, third-shift, "
                       "weekend, or a time HH:MM"),
     isHoldUntil},
    {QLatin1StringView("job-priority"), QLatin1StringView("1 to 100"), isPriority},
    {QLatin1StringView("job-sheets"), QLatin1StringView("one or two names of banner pages"),
     isJobSheets},
};

} // namespace

const JobAttribute *jobAttribute(const QString &name)
{
    const auto found = std::find_if(std::begin(kAttributes), std::end(kAttributes),
                                    [&](const JobAttribute &a) { return a.name == name; });
    return found == std::end(kAttributes) ? nullptr : found;
}

QStringList jobAttributeNames()
{
    QStringList names;
    for (const JobAttribute &attribute : kAttributes)
        names += attribute.name;
    return names;
}

} // namespace corvana
