#include "dialog/session/PrinterAttributes.h"

#include <algorithm>

#include <QCoreApplication>
#include <QRegularExpression>

#include "dialog/session/Finishings.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;
using AppliedTo = JobAttribute::AppliedTo;
using Word = AllowedValues::Word;

bool isKeyword(const QString &value)
{
    static const QRegularExpression keyword(u"^[A-Za-z0-9._+-]{1,255}\\z"_s);
    return keyword.match(value).hasMatch();
}

bool isResolution(const QString &value)
{
    static const QRegularExpression resolution(u"^[0-9]{1,5}(x[0-9]{1,5})?dpi\\z"_s);
    return resolution.match(value).hasMatch();
}

bool isFinishings(const QString &value)
{
    static const QRegularExpression number(u"^[0-9]{1,9}\\z"_s);
    const QStringList parts = value.split(u',');
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) {
        return number.match(part).hasMatch() || (isKeyword(part) && !part.at(0).isDigit());
    });
}

constexpr AllowedValues form(const char *text, bool (*accepts)(const QString &))
{
    return {{}, {}, AllowedValues::Form{QLatin1StringView(text), accepts}};
}

constexpr Word kColorModes[] = {
    {"auto"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Automatic")},
    {"color"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Color")},
    {"monochrome"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Black and White")},
};
constexpr Word kQualities[] = {
    {"3"_L1, "draft"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Draft")},
    {"4"_L1, "normal"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Normal")},
    {"5"_L1, "high"_L1, QT_TRANSLATE_NOOP("JobAttributes", "High")},
};

constexpr JobAttribute kAttributes[] = {
    {"job-cancel-after"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Canceled After, in Seconds"),
     {{},
      AllowedValues::Range{1, 999999, true,
                           QLatin1StringView(QT_TRANSLATE_NOOP("JobAttributes", "seconds"))}}},
    {"print-color-mode"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Color Mode"),
     {kColorModes}},
    {"print-quality"_L1,
     AppliedTo::Job,
     "4"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Quality"),
     {kQualities}},
    {"printer-resolution"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Resolution"),
     form(QT_TRANSLATE_NOOP("JobAttributes", "a resolution such as 600dpi or 1200x600dpi"),
          isResolution)},
    {"output-bin"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Output Bin"),
     form(QT_TRANSLATE_NOOP("JobAttributes", "the name of an output bin"), isKeyword)},
    {kFinishingsAttribute,
     AppliedTo::Job,
     "3"_L1,
     QT_TRANSLATE_NOOP("JobAttributes", "Finishing"),
     {kFinishingWords,
      {},
      AllowedValues::Form{
          QLatin1StringView(QT_TRANSLATE_NOOP("JobAttributes", "numbers or names of finishings")),
          isFinishings}}},
    {"media-source"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Paper Source"),
     form(QT_TRANSLATE_NOOP("JobAttributes", "the name of a paper source"), isKeyword)},
    {"media-type"_L1,
     AppliedTo::Job,
     {},
     QT_TRANSLATE_NOOP("JobAttributes", "Media Type"),
     form(QT_TRANSLATE_NOOP("JobAttributes", "the name of a media type"), isKeyword)},
};

} // namespace

std::span<const JobAttribute> printerAttributes()
{
    return kAttributes;
}

} // namespace corvana
