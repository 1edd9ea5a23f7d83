#include "dialog/session/JobAttributes.h"

#include <algorithm>
#include <array>
#include <iterator>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <cups/ipp.h>

#include "dialog/session/AttributeWords.h"
#include "dialog/session/Finishings.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PrinterAttributes.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;
using AppliedTo = JobAttribute::AppliedTo;
using Shapes = JobAttribute::Shapes;
using Word = AllowedValues::Word;
using namespace attributewords;

// "1-4,7,9-": ascending ranges of pages, each page at least 1.
bool isPageRanges(const QString &value)
{
    static const QRegularExpression range(u"^([0-9]{1,9})?(?:(-)([0-9]{1,9})?)?\\z"_s);
    int last = 0;
    const QStringList parts = value.split(u',');
    for (const QString &part : parts) {
        const QRegularExpressionMatch match = range.match(part);
        if (!match.hasMatch() || part.isEmpty() || part == "-"_L1)
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

bool isTime(const QString &value)
{
    // Hardly any is, and the titles that a window shows do not wait for a pattern to be compiled.
    if (!value.contains(u':'))
        return false;
    static const QRegularExpression time(u"^([01]?[0-9]|2[0-3]):[0-5][0-9](:[0-5][0-9])?\\z"_s);
    return time.match(value).hasMatch();
}

// Banner pages are the server's; their names are checked there. One or two of them.
bool isJobSheets(const QString &value)
{
    static const QRegularExpression names(u"^[A-Za-z0-9._-]+(,[A-Za-z0-9._-]+)?\\z"_s);
    return names.match(value).hasMatch();
}

// What it is charged to; the rest of the world does not look into it.
bool isBilling(const QString &value)
{
    constexpr qsizetype kMostBytes = 255; // of an IPP text that CUPS passes on
    return !value.isEmpty() && value.toUtf8().size() <= kMostBytes &&
           std::all_of(value.cbegin(), value.cend(), [](QChar c) { return c.isPrint(); });
}

constexpr AllowedValues wholeNumbers(int least, int most)
{
    return {{}, AllowedValues::Range{double(least), double(most)}};
}

constexpr AllowedValues numbers(int least, int most, const char *unit = "")
{
    return {{}, AllowedValues::Range{double(least), double(most), false, QLatin1StringView(unit)}};
}

constexpr AllowedValues form(const char *text, bool (*accepts)(const QString &))
{
    return {{}, {}, AllowedValues::Form{QLatin1StringView(text), accepts}};
}

// A margin beyond this leaves nothing of any paper.
constexpr AllowedValues kMargins =
    numbers(0, 9999, QT_TRANSLATE_NOOP("JobAttributes", "points of 1/72 inch"));

constexpr JobAttribute kAttributes[] = {
    {kSidesByHandAttribute,
     AppliedTo::Job,
     "no"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Two-Sided"),
     {kSidesByHand}},
    {kPutBackAttribute,
     AppliedTo::Job,
     "face-down"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Sheets Are Put Back"),
     {kPutBack}},
    {"number-up"_L1,
     AppliedTo::Pages,
     "1"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Pages per Sheet"),
     {kPagesOnASheet}},
    {"number-up-layout"_L1,
     AppliedTo::Pages,
     "lrtb"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Order on the Sheet"),
     {kOrdersOnASheet}},
    {"booklet"_L1,
     AppliedTo::Pages,
     "no"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Booklet"),
     {kBooklets}},
    {"repeat"_L1,
     AppliedTo::Pages,
     "1"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Each Page, Times on a Side"),
     {kPagesOnASheet}},
    {"page-border"_L1,
     AppliedTo::Pages,
     "none"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Border Around Pages"),
     {kBorders}},
    {"page-ranges"_L1,
     AppliedTo::Pages,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Pages"),
     form(QT_TRANSLATE_NOOP("JobAttributes",
                            "pages and ranges in ascending order, such as 1-4,7,9-"),
          isPageRanges)},
    {"page-set"_L1,
     AppliedTo::Pages,
     "all"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Odd and Even Pages"),
     {kPageSets}},
    {"orientation-requested"_L1,
     AppliedTo::Pages,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Orientation"),
     {kOrientations}},
    {"fit-to-page"_L1,
     AppliedTo::Pages,
     "false"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Fit to Page"),
     {kTrueOrFalse}},
    {"print-scaling"_L1,
     AppliedTo::Pages,
     "auto"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Scaling"),
     {kScalings}},
    {"scaling"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Size on the Page, in %"),
     wholeNumbers(1, 800),
     Shapes::Pictures},
    {"natural-scaling"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Size of the Picture, in %"),
     wholeNumbers(1, 800),
     Shapes::Pictures},
    {"ppi"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Pixels per Inch"),
     wholeNumbers(1, 9600),
     Shapes::Pictures},
    {"position"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Position"),
     {kPositions},
     Shapes::Pictures},
    {"mirror"_L1,
     AppliedTo::Pages,
     "false"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Mirrored"),
     {kTrueOrFalse}},
    {"page-left"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Left Margin"),
     kMargins,
     Shapes::ScaledPages},
    {"page-right"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Right Margin"),
     kMargins,
     Shapes::ScaledPages},
    {"page-top"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Top Margin"),
     kMargins,
     Shapes::ScaledPages},
    {"page-bottom"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Bottom Margin"),
     kMargins,
     Shapes::ScaledPages},
    {"cpi"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Characters per Inch"),
     numbers(1, 100),
     Shapes::Texts},
    {"lpi"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Lines per Inch"),
     numbers(1, 100),
     Shapes::Texts},
    {"columns"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Columns of Text"),
     wholeNumbers(1, 100),
     Shapes::Texts},
    {"wrap"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Long Lines Continue"),
     {kTrueOrFalse},
     Shapes::Texts},
    {"prettyprint"_L1,
     AppliedTo::Document,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Headers on Text Pages"),
     {kTrueOrFalse},
     Shapes::Texts},
    {kCollateAttribute,
     AppliedTo::Job,
     "true"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Collate"),
     {kTrueOrFalse}},
    {"outputorder"_L1,
     AppliedTo::Pages,
     "normal"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Output Order"),
     {kOutputOrders}},
    {"job-hold-until"_L1,
     AppliedTo::Job,
     "no-hold"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Hold Until"),
     {kHolds,
      {},
      AllowedValues::Form{
          QLatin1StringView(QT_TRANSLATE_NOOP("JobAttributes", "a time HH:MM in UTC")), isTime}}},
    {"job-priority"_L1, AppliedTo::Job, "50"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Priority"),
     wholeNumbers(1, 100)},
    {"job-sheets"_L1, AppliedTo::Job, "none"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Banner Pages"),
     form(QT_TRANSLATE_NOOP("JobAttributes", "one or two names of banner pages"), isJobSheets)},
    {"job-billing"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Billed To"),
     form(QT_TRANSLATE_NOOP("JobAttributes", "a text of up to 255 bytes"), isBilling)},
};

std::array<std::span<const JobAttribute>, 2> tables()
{
    return {std::span<const JobAttribute>(kAttributes), printerAttributes()};
}

// Servers take a time for UTC, and lp leaves it at that. So does the dialog, and says what it is
// here.
QString timeText(const QString &value)
{
    const QTime time = QTime::fromString(value, value.count(u':') > 1 ? u"H:m:s"_s : u"H:m"_s);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QDateTime until(now.date(), time, Qt::UTC);
    if (until < now)
        until = until.addDays(1);
    const QDateTime here = until.toLocalTime();
    if (here.offsetFromUtc() == 0)
        return QCoreApplication::translate("JobAttributes", "%1 UTC").arg(value);
    return QCoreApplication::translate("JobAttributes", "%1 UTC (%2 here)")
        .arg(value, here.time().toString(u"HH:mm"_s));
}

QString translated(const char *text)
{
    return QCoreApplication::translate("JobAttributes", text);
}

QString shownText(const Word &word)
{
    return QCoreApplication::translate(word.context, word.shown);
}

// What nobody here knows the meaning of may be a number that IPP has a keyword for.
QString keywordOfNumber(const JobOption &attribute)
{
    bool isNumber = false;
    const int number = attribute.value.toInt(&isNumber);
    const QString keyword =
        isNumber ? QString::fromUtf8(ippEnumString(attribute.name.toUtf8().constData(), number))
                 : QString();
    return keyword.isEmpty() || keyword.at(0).isDigit() ? attribute.value : keyword;
}

} // namespace

const JobAttribute *jobAttribute(const QString &name)
{
    for (const std::span<const JobAttribute> table : tables()) {
        for (const JobAttribute &attribute : table) {
            if (attribute.name == name)
                return &attribute;
        }
    }
    return nullptr;
}

bool isAppliedTo(AppliedTo what, const JobOption &option)
{
    const JobAttribute *attribute = jobAttribute(option.name);
    return attribute && attribute->appliedTo == what;
}

bool asksForNothing(const JobOption &option)
{
    const JobAttribute *attribute = jobAttribute(option.name);
    const QStringList values = option.value.split(u','); // before and behind the job
    return attribute && !attribute->usual.isEmpty() &&
           std::all_of(values.cbegin(), values.cend(),
                       [&](const QString &value) { return value == attribute->usual; });
}

QString allowedText(const AllowedValues &allowed)
{
    QStringList parts;
    for (const Word &word : allowed.words)
        parts += word.shown ? shownText(word) : QString(word.value);
    if (const auto &range = allowed.range) {
        const QString limits =
            translated(QT_TRANSLATE_NOOP("JobAttributes", "%1 to %2"))
                .arg(QLocale().toString(int(range->least)), QLocale().toString(int(range->most)));
        parts += range->unit.isEmpty() ? limits : limits + u' ' + translated(range->unit.data());
    }
    if (allowed.form)
        parts += translated(allowed.form->text.data());
    return parts.join(u", "_s);
}

JobAttributeText textOfJobAttribute(const JobOption &attribute)
{
    const JobAttribute *known = jobAttribute(attribute.name);
    if (!known)
        return {attribute.name, keywordOfNumber(attribute)};
    if (attribute.name == kFinishingsAttribute)
        return {translated(known->title), finishingText(attribute.value)};
    if (attribute.name == kJobHoldUntilAttribute && isTime(attribute.value))
        return {translated(known->title), timeText(attribute.value)};
    const Word *word = known->allowed.word(attribute.value);
    return {translated(known->title), word && word->shown ? shownText(*word) : attribute.value};
}

JobOption inOneSpelling(const JobOption &option)
{
    if (option.name == kLandscapeOption) {
        const AllowedValues truths{kTrueOrFalse};
        if (const std::optional<QString> value = truths.inOneSpelling(option.value))
            return {u"orientation-requested"_s, *value == "true"_L1 ? u"4"_s : u"3"_s};
    }
    if (option.name == kHandlingAttribute && option.value == kCollated)
        return {kCollateAttribute, u"true"_s};
    if (option.name == kHandlingAttribute && option.value == kUncollated)
        return {kCollateAttribute, u"false"_s};
    if (option.name == "resolution"_L1)
        return {u"printer-resolution"_s, option.value};
    if (option.name == "fitplot"_L1)
        return {u"fit-to-page"_s, option.value};
    return option;
}

QStringList jobAttributeNames()
{
    QStringList names;
    for (const std::span<const JobAttribute> table : tables()) {
        for (const JobAttribute &attribute : table)
            names += attribute.name;
    }
    return names;
}

} // namespace corvana
