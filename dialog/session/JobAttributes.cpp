#include "dialog/session/JobAttributes.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>
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

bool isNumberBetween(const QString &value, double least, double most)
{
    static const QRegularExpression number(QStringLiteral("^[0-9]{1,5}([.][0-9]{1,3})?\\z"));
    return number.match(value).hasMatch() && value.toDouble() >= least && value.toDouble() <= most;
}

bool isWholeNumberBetween(const QString &value, int least, int most)
{
    return !value.contains(u'.') && isNumberBetween(value, least, most);
}

// Units: points; a margin beyond this leaves nothing of any paper.
bool isMargin(const QString &value)
{
    return isNumberBetween(value, 0, 9999);
}

// What it is charged to; the rest of the world does not look into it.
bool isBilling(const QString &value)
{
    constexpr qsizetype kMostBytes = 255; // of an IPP text that CUPS passes on
    return !value.isEmpty() && value.toUtf8().size() <= kMostBytes &&
           std::all_of(value.cbegin(), value.cend(), [](QChar c) { return c.isPrint(); });
}

constexpr QLatin1StringView kMarginUnits{"0 to 9999 points of 1/72 inch"};
constexpr QLatin1StringView kTrueOrFalse{"true, false"};

using AppliedTo = JobAttribute::AppliedTo;

constexpr JobAttribute kAttributes[] = {
    {QLatin1StringView("number-up"), AppliedTo::Pages, QLatin1StringView("1"),
     QT_TRANSLATE_NOOP("JobAttributes", "Pages per Sheet"), QLatin1StringView("1, 2, 4, 6, 9, 16"),
     [](const QString &v) {
         return isOneOf(v,
                        {QLatin1StringView("1"), QLatin1StringView("2"), QLatin1StringView("4"),
                         QLatin1StringView("6"), QLatin1StringView("9"), QLatin1StringView("16")});
     }},
    {QLatin1StringView("number-up-layout"),
     AppliedTo::Pages,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Order on the Sheet"),
     QLatin1StringView("btlr, btrl, lrbt, lrtb, rlbt, rltb, tblr, tbrl"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("btlr"), QLatin1StringView("btrl"),
                            QLatin1StringView("lrbt"), QLatin1StringView("lrtb"),
                            QLatin1StringView("rlbt"), QLatin1StringView("rltb"),
                            QLatin1StringView("tblr"), QLatin1StringView("tbrl")});
     }},
    {QLatin1StringView("page-border"), AppliedTo::Pages, QLatin1StringView("none"),
     QT_TRANSLATE_NOOP("JobAttributes", "Border Around Pages"),
     QLatin1StringView("none, single, single-thick, double, double-thick"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("none"), QLatin1StringView("single"),
                            QLatin1StringView("single-thick"), QLatin1StringView("double"),
                            QLatin1StringView("double-thick")});
     }},
    {QLatin1StringView("page-ranges"),
     AppliedTo::Pages,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Pages"),
     QLatin1StringView("pages and ranges in ascending order, such as 1-4,7,9-"),
     isPageRanges},
    {QLatin1StringView("page-set"), AppliedTo::Pages, QLatin1StringView("all"),
     QT_TRANSLATE_NOOP("JobAttributes", "Odd and Even Pages"), QLatin1StringView("all, even, odd"),
     [](const QString &v) {
         return isOneOf(
             v, {QLatin1StringView("all"), QLatin1StringView("even"), QLatin1StringView("odd")});
     }},
    {QLatin1StringView("orientation-requested"),
     AppliedTo::Pages,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Orientation"),
     QLatin1StringView("3 (portrait), 4 (landscape), 5 (reverse landscape), 6 (reverse portrait)"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("3"), QLatin1StringView("4"), QLatin1StringView("5"),
                            QLatin1StringView("6")});
     }},
    {QLatin1StringView("fit-to-page"), AppliedTo::Pages, QLatin1StringView("false"),
     QT_TRANSLATE_NOOP("JobAttributes", "Fit to Page"), kTrueOrFalse, isBoolean},
    {QLatin1StringView("print-scaling"), AppliedTo::Pages, QLatin1StringView("auto"),
     QT_TRANSLATE_NOOP("JobAttributes", "Scaling"),
     QLatin1StringView("auto, auto-fit, fill, fit, none"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("auto"), QLatin1StringView("auto-fit"),
                            QLatin1StringView("fill"), QLatin1StringView("fit"),
                            QLatin1StringView("none")});
     }},
    {QLatin1StringView("scaling"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Size on the Page, in %"),
     QLatin1StringView("1 to 800"),
     [](const QString &v) { return isWholeNumberBetween(v, 1, 800); }},
    {QLatin1StringView("natural-scaling"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Size of the Picture, in %"),
     QLatin1StringView("1 to 800"),
     [](const QString &v) { return isWholeNumberBetween(v, 1, 800); }},
    {QLatin1StringView("ppi"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Pixels per Inch"),
     QLatin1StringView("1 to 9600"),
     [](const QString &v) { return isWholeNumberBetween(v, 1, 9600); }},
    {QLatin1StringView("position"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Position"),
     QLatin1StringView("center, top, left, right, top-left, top-right, bottom, bottom-left, "
                       "bottom-right"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("center"), QLatin1StringView("top"),
                            QLatin1StringView("left"), QLatin1StringView("right"),
                            QLatin1StringView("top-left"), QLatin1StringView("top-right"),
                            QLatin1StringView("bottom"), QLatin1StringView("bottom-left"),
                            QLatin1StringView("bottom-right")});
     }},
    {QLatin1StringView("mirror"), AppliedTo::Pages, QLatin1StringView("false"),
     QT_TRANSLATE_NOOP("JobAttributes", "Mirrored"), kTrueOrFalse, isBoolean},
    {QLatin1StringView("page-left"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Left Margin"),
     kMarginUnits,
     isMargin},
    {QLatin1StringView("page-right"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Right Margin"),
     kMarginUnits,
     isMargin},
    {QLatin1StringView("page-top"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Top Margin"),
     kMarginUnits,
     isMargin},
    {QLatin1StringView("page-bottom"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Bottom Margin"),
     kMarginUnits,
     isMargin},
    {QLatin1StringView("cpi"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Characters per Inch"),
     QLatin1StringView("1 to 100"),
     [](const QString &v) { return isNumberBetween(v, 1, 100); }},
    {QLatin1StringView("lpi"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Lines per Inch"),
     QLatin1StringView("1 to 100"),
     [](const QString &v) { return isNumberBetween(v, 1, 100); }},
    {QLatin1StringView("columns"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Columns of Text"),
     QLatin1StringView("1 to 100"),
     [](const QString &v) { return isWholeNumberBetween(v, 1, 100); }},
    {QLatin1StringView("wrap"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Long Lines Continue"),
     kTrueOrFalse,
     isBoolean},
    {QLatin1StringView("prettyprint"),
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Headers on Text Pages"),
     kTrueOrFalse,
     isBoolean},
    {QLatin1StringView("collate"), AppliedTo::Job, QLatin1StringView("true"),
     QT_TRANSLATE_NOOP("JobAttributes", "Collate"), kTrueOrFalse, isBoolean},
    {QLatin1StringView("outputorder"), AppliedTo::Pages, QLatin1StringView("normal"),
     QT_TRANSLATE_NOOP("JobAttributes", "Output Order"), QLatin1StringView("normal, reverse"),
     [](const QString &v) {
         return isOneOf(v, {QLatin1StringView("normal"), QLatin1StringView("reverse")});
     }},
    {QLatin1StringView("job-hold-until"), AppliedTo::Job, QLatin1StringView("no-hold"),
     QT_TRANSLATE_NOOP("JobAttributes", "Hold Until"),
     QLatin1StringView("no-hold, indefinite, day-time, evening, night, second-shift, third-shift, "
                       "weekend, or a time HH:MM"),
     isHoldUntil},
    {QLatin1StringView("job-priority"), AppliedTo::Job, QLatin1StringView("50"),
     QT_TRANSLATE_NOOP("JobAttributes", "Priority"), QLatin1StringView("1 to 100"), isPriority},
    {QLatin1StringView("job-sheets"), AppliedTo::Job, QLatin1StringView("none"),
     QT_TRANSLATE_NOOP("JobAttributes", "Banner Pages"),
     QLatin1StringView("one or two names of banner pages"), isJobSheets},
    {QLatin1StringView("job-billing"),
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Billed To"),
     QLatin1StringView("a text of up to 255 bytes"),
     isBilling},
};

// The values that say nothing to somebody who knows no IPP.
struct ValueText
{
    QLatin1StringView attribute; // empty: of every attribute
    QLatin1StringView value;
    const char *text;
};
constexpr ValueText kValueTexts[] = {
    {{}, QLatin1StringView("true"), QT_TRANSLATE_NOOP("JobAttributes", "On")},
    {{}, QLatin1StringView("false"), QT_TRANSLATE_NOOP("JobAttributes", "Off")},
    {QLatin1StringView("orientation-requested"), QLatin1StringView("3"),
     QT_TRANSLATE_NOOP("JobAttributes", "Portrait")},
    {QLatin1StringView("orientation-requested"), QLatin1StringView("4"),
     QT_TRANSLATE_NOOP("JobAttributes", "Landscape")},
    {QLatin1StringView("orientation-requested"), QLatin1StringView("5"),
     QT_TRANSLATE_NOOP("JobAttributes", "Reverse Landscape")},
    {QLatin1StringView("orientation-requested"), QLatin1StringView("6"),
     QT_TRANSLATE_NOOP("JobAttributes", "Reverse Portrait")},
    {QLatin1StringView("page-set"), QLatin1StringView("all"),
     QT_TRANSLATE_NOOP("JobAttributes", "All")},
    {QLatin1StringView("page-set"), QLatin1StringView("odd"),
     QT_TRANSLATE_NOOP("JobAttributes", "Odd Pages Only")},
    {QLatin1StringView("page-set"), QLatin1StringView("even"),
     QT_TRANSLATE_NOOP("JobAttributes", "Even Pages Only")},
    {QLatin1StringView("outputorder"), QLatin1StringView("normal"),
     QT_TRANSLATE_NOOP("JobAttributes", "First Page First")},
    {QLatin1StringView("outputorder"), QLatin1StringView("reverse"),
     QT_TRANSLATE_NOOP("JobAttributes", "Last Page First")},
    {QLatin1StringView("job-hold-until"), QLatin1StringView("indefinite"),
     QT_TRANSLATE_NOOP("JobAttributes", "Until It Is Released")},
};

} // namespace

const JobAttribute *jobAttribute(const QString &name)
{
    const auto found = std::find_if(std::begin(kAttributes), std::end(kAttributes),
                                    [&](const JobAttribute &a) { return a.name == name; });
    return found == std::end(kAttributes) ? nullptr : found;
}

bool isAppliedTo(AppliedTo what, const JobOption &option)
{
    const JobAttribute *attribute = jobAttribute(option.name);
    return attribute && attribute->appliedTo == what;
}

JobAttributeText textOfJobAttribute(const JobOption &attribute)
{
    const JobAttribute *known = jobAttribute(attribute.name);
    if (!known)
        return {attribute.name, attribute.value};
    const auto translated = [](const char *text) {
        return QCoreApplication::translate("JobAttributes", text);
    };
    const auto text = std::find_if(
        std::begin(kValueTexts), std::end(kValueTexts), [&](const ValueText &candidate) {
            return candidate.value == attribute.value &&
                   (candidate.attribute.isEmpty() || candidate.attribute == attribute.name);
        });
    return {translated(known->title),
            text == std::end(kValueTexts) ? attribute.value : translated(text->text)};
}

JobOption inOneSpelling(const JobOption &option)
{
    const auto is = [&](const char *name, const char *value) {
        return option.name == QLatin1StringView(name) && option.value == QLatin1StringView(value);
    };
    if (is("landscape", "true"))
        return {QStringLiteral("orientation-requested"), QStringLiteral("4")};
    if (is("landscape", "false"))
        return {QStringLiteral("orientation-requested"), QStringLiteral("3")};
    if (option.name == QLatin1StringView("fitplot"))
        return {QStringLiteral("fit-to-page"), option.value};
    return option;
}

QStringList jobAttributeNames()
{
    QStringList names;
    for (const JobAttribute &attribute : kAttributes)
        names += attribute.name;
    return names;
}

} // namespace corvana
