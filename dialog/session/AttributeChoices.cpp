#include "dialog/session/AttributeChoices.h"

#include <algorithm>
#include <iterator>

#include <QRegularExpression>

#include "dialog/session/ColorModeNames.h"
#include "dialog/session/MarksByCups.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Outcome = AttributeChoices::Outcome;

constexpr auto kColorMode = "print-color-mode"_L1;
constexpr auto kQuality = "print-quality"_L1;
constexpr auto kResolutionAttribute = "printer-resolution"_L1;
constexpr auto kOutputBin = "output-bin"_L1;
constexpr auto kFinishings = "finishings"_L1;
constexpr auto kMediaSource = "media-source"_L1;
constexpr auto kMediaType = "media-type"_L1;
constexpr QLatin1StringView kAttributes[] = {
    kColorMode, kQuality, kResolutionAttribute, kOutputBin, kFinishings, kMediaSource, kMediaType};

constexpr auto kAuto = "auto"_L1;
constexpr auto kColor = "color"_L1;
constexpr auto kMonochrome = "monochrome"_L1;

struct Quality
{
    QLatin1StringView value;
    QLatin1StringView name;
};
constexpr Quality kQualities[] = {{"3"_L1, "draft"_L1}, {"4"_L1, "normal"_L1}, {"5"_L1, "high"_L1}};
constexpr auto kNormalQuality = "4"_L1;

QString valueOf(const QList<JobOption> &options, const QString &name)
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const JobOption &option) { return option.name == name; });
    return found == options.cend() ? QString() : found->value;
}

AttributeChoices choicesFor(const QList<JobOption> &choices)
{
    return {Outcome::Choices, choices, {}};
}

AttributeChoices asAttribute()
{
    return {Outcome::Attribute, {}, {}};
}

AttributeChoices refused(const QString &allowed)
{
    return {Outcome::Refused, {}, allowed};
}

// libcups knows trays and types of paper by their standard names only ("tray-1"). Who sets up a
// queue knows them by the keywords of its PPD.
QList<JobOption> choicesByKeyword(ppd_file_t *ppd, const JobOption &attribute)
{
    struct Row
    {
        QLatin1StringView attribute;
        QLatin1StringView keyword;
    };
    static constexpr Row kRows[] = {
        {kMediaSource, "InputSlot"_L1},
        {kMediaType, "MediaType"_L1},
        {kOutputBin, "OutputBin"_L1},
    };
    for (const Row &row : kRows) {
        const ppd_option_t *option =
            row.attribute == attribute.name ? ppdOption(ppd, row.keyword) : nullptr;
        for (int i = 0; option && i < option->num_choices; ++i) {
            const QString choice = ppdKeyword(option->choices[i].choice);
            if (choice.compare(attribute.value, Qt::CaseInsensitive) == 0 &&
                choice != kCustomChoice)
                return {{row.keyword, choice}};
        }
    }
    return {};
}

// "600dpi" and "600x600dpi" are the same; a PPD has either.
QStringList spellingsOfResolution(const QString &value)
{
    static const QRegularExpression form(u"^([0-9]+)(?:x([0-9]+))?dpi\\z"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(value);
    const QString across = match.captured(1);
    const QString down = match.captured(2);
    if (!match.hasMatch())
        return {};
    if (!down.isEmpty() && across != down)
        return {value};
    return {across + u"dpi"_s, u"%1x%1dpi"_s.arg(across)};
}

// "staple" and "4" are the same.
int finishing(const QString &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? number : ippEnumValue("finishings", value.toLower().toUtf8().constData());
}

} // namespace

bool getsPostScript(ppd_file_t *ppd)
{
    bool namesFilters = ppd->num_filters > 0;
    const auto isPostScript = [](const char *filter) {
        return QByteArrayView(filter).contains("postscript");
    };
    for (int i = 0; i < ppd->num_filters; ++i) {
        if (isPostScript(ppd->filters[i]))
            return true;
    }
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsFilter2", nullptr); attribute;
         attribute = ppdFindNextAttr(ppd, "cupsFilter2", nullptr)) {
        namesFilters = true;
        if (isPostScript(attribute->value))
            return true;
    }
    return !namesFilters;
}

AttributeReader::AttributeReader(ppd_file_t *ppd, const PDEJobValues *jobValues)
    : m_ppd(ppd), m_jobValues(jobValues)
{
}

bool AttributeReader::isFor(const QString &attribute)
{
    return std::any_of(std::begin(kAttributes), std::end(kAttributes),
                       [&](QLatin1StringView name) { return attribute == name; });
}

QStringList AttributeReader::attributes()
{
    return {std::begin(kAttributes), std::end(kAttributes)};
}

AttributeChoices AttributeReader::read(const JobOption &attribute,
                                       const QList<JobOption> &others) const
{
    if (attribute.name == kColorMode)
        return readColorMode(attribute.value.toLower());
    if (attribute.name == kQuality)
        return readQuality(attribute.value.toLower(), others);
    if (attribute.name == kFinishings)
        return readFinishings(attribute.value);
    const QList<JobOption> choices = choicesOf(attribute);
    return choices.isEmpty() ? refused(choicesAllowedFor(attribute.name)) : choicesFor(choices);
}

QList<JobOption> AttributeReader::sourceOrType(const QString &media) const
{
    return choicesOf({kMediaSource, media}) + choicesOf({kMediaType, media});
}

// The choices of an attribute whose values are the choices of one option.
QList<JobOption> AttributeReader::choicesOf(const JobOption &attribute) const
{
    if (m_jobValues) {
        const QList<JobOption> own = m_jobValues->choicesFor(attribute, m_ppd);
        if (!own.isEmpty())
            return own;
    }
    if (attribute.name == kResolutionAttribute) {
        for (const QString &spelling : spellingsOfResolution(attribute.value)) {
            const QList<JobOption> choices = choicesByCups(m_ppd, {{attribute.name, spelling}});
            if (!choices.isEmpty())
                return choices;
        }
        return {};
    }
    // To libcups a source and a type of paper are parts of "media".
    const bool isPaper = attribute.name == kMediaSource || attribute.name == kMediaType;
    QList<JobOption> choices =
        choicesByCups(m_ppd, {{isPaper ? QString(u"media"_s) : attribute.name, attribute.value}});
    if (isPaper) {
        choices.removeIf([&](const JobOption &choice) {
            const bool isType = choice.name == "MediaType"_L1;
            return choice.name == kPageSizeOption || choice.name == kPageRegionOption ||
                   isType != (attribute.name == kMediaType);
        });
    }
    return choices.isEmpty() ? choicesByKeyword(m_ppd, attribute) : choices;
}

// Every choice of the PPD that, as the attribute's value, would be marked.
QString AttributeReader::choicesAllowedFor(const QString &attribute) const
{
    QStringList allowed;
    for (int g = 0; g < m_ppd->num_groups; ++g) {
        const ppd_group_t &group = m_ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) {
            const ppd_option_t &option = group.options[o];
            for (int c = 0; c < option.num_choices; ++c) {
                const JobOption choice{ppdKeyword(option.keyword),
                                       ppdKeyword(option.choices[c].choice)};
                if (choicesOf({attribute, choice.value}).contains(choice))
                    allowed += choice.value;
            }
        }
    }
    allowed.removeDuplicates();
    return allowed.join(u", "_s);
}

// What a choice becomes when it must not stay: the option's default, or the other one of two.
JobOption AttributeReader::otherThan(const JobOption &choice) const
{
    const ppd_option_t *option = ppdOption(m_ppd, choice.name);
    if (!option)
        return {};
    if (const QString byDefault = ppdKeyword(option->defchoice); byDefault != choice.value)
        return {choice.name, byDefault};
    for (int i = 0; option->num_choices == 2 && i < 2; ++i) {
        if (const QString other = ppdKeyword(option->choices[i].choice); other != choice.value)
            return {choice.name, other};
    }
    return {};
}

bool AttributeReader::isMarked(const QList<JobOption> &choices) const
{
    return !choices.isEmpty() &&
           std::all_of(choices.cbegin(), choices.cend(), [&](const JobOption &choice) {
               const ppd_choice_t *marked = ppdMarkedChoice(m_ppd, choice.name);
               return marked && ppdKeyword(marked->choice) == choice.value;
           });
}

bool AttributeReader::isMonochromeMarked() const
{
    return isMarked(colorModeChoices(kMonochrome));
}

// What a colour mode stands for and another one does not: libcups marks a quality along with it.
QList<JobOption> AttributeReader::colorModeChoices(const QString &mode) const
{
    if (m_jobValues) {
        const QList<JobOption> own = m_jobValues->choicesFor({kColorMode, mode}, m_ppd);
        if (!own.isEmpty())
            return own;
    }
    const auto byCups = [&](const QString &one) {
        return choicesByCups(m_ppd, {{kColorMode, one}});
    };
    if (byCups(kMonochrome) == byCups(kColor))
        return colorModeByName(m_ppd, mode);
    const QString opposite = mode == kMonochrome ? kColor : kMonochrome;
    const QList<JobOption> others = byCups(opposite);
    QList<JobOption> choices = byCups(mode);
    choices.removeIf([&](const JobOption &choice) { return others.contains(choice); });
    if (mode == kMonochrome)
        return choices;
    // Some PPDs have a choice for black and white only.
    for (const JobOption &grey : others) {
        if (valueOf(byCups(mode), grey.name).isNull()) {
            const JobOption other = otherThan(grey);
            if (!other.name.isEmpty())
                choices += other;
        }
    }
    return choices;
}

AttributeChoices AttributeReader::readColorMode(const QString &mode) const
{
    const bool hasModes = !colorModeChoices(kMonochrome).isEmpty();
    const bool isColor = m_ppd->color_device;
    const bool takesMonochrome = hasModes || !isColor || getsPostScript(m_ppd);
    QStringList allowed;
    if (isColor)
        allowed << kAuto << kColor;
    if (takesMonochrome)
        allowed << kMonochrome;
    if (!allowed.contains(mode))
        return refused(allowed.join(u", "_s));
    const QList<JobOption> choices = hasModes ? colorModeChoices(mode) : QList<JobOption>();
    return choices.isEmpty() ? asAttribute() : choicesFor(choices);
}

// What one quality stands for and another one does not: libcups marks a colour mode along with it.
QList<JobOption> AttributeReader::qualityChoices(const QString &mode, const QString &quality) const
{
    QList<QList<JobOption>> all;
    for (const Quality &one : kQualities)
        all += choicesByCups(m_ppd, {{kColorMode, mode}, {kQuality, one.value}});
    QStringList names;
    for (const QList<JobOption> &choices : std::as_const(all)) {
        for (const JobOption &choice : choices) {
            const bool varies =
                std::any_of(all.cbegin(), all.cend(), [&](const QList<JobOption> &other) {
                    return valueOf(other, choice.name) != choice.value;
                });
            if (varies && !names.contains(choice.name))
                names += choice.name;
        }
    }
    const QList<JobOption> own = choicesByCups(m_ppd, {{kColorMode, mode}, {kQuality, quality}});
    QList<JobOption> choices;
    for (const QString &name : std::as_const(names)) {
        const QString value = valueOf(own, name);
        const ppd_option_t *option = ppdOption(m_ppd, name);
        choices +=
            JobOption{name, value.isNull() && option ? ppdKeyword(option->defchoice) : value};
    }
    return choices;
}

AttributeChoices AttributeReader::readQuality(const QString &asked,
                                              const QList<JobOption> &others) const
{
    QString mode = valueOf(others, kColorMode).toLower();
    if (mode.isEmpty())
        mode = isMonochromeMarked() ? kMonochrome : kColor;
    const QList<JobOption> normal = qualityChoices(mode, kNormalQuality);
    QStringList allowed;
    AttributeChoices result;
    for (const Quality &quality : kQualities) {
        const bool isNormal = quality.value == kNormalQuality;
        const QList<JobOption> choices = qualityChoices(mode, quality.value);
        // A quality that libcups replaces by the normal one is none of this printer's.
        if (!isNormal && choices == normal)
            continue;
        allowed += u"%1 (%2)"_s.arg(quality.value, quality.name);
        if (asked == quality.value || asked == quality.name)
            result = choices.isEmpty() ? asAttribute() : choicesFor(choices);
    }
    return result.outcome == Outcome::Refused ? refused(allowed.join(u", "_s)) : result;
}

AttributeChoices AttributeReader::readFinishings(const QString &finishings) const
{
    constexpr int kNone = 3;
    QStringList allowed{u"3 (none)"_s};
    for (const ppd_attr_t *attribute = ppdFindAttr(m_ppd, "cupsIPPFinishings", nullptr); attribute;
         attribute = ppdFindNextAttr(m_ppd, "cupsIPPFinishings", nullptr)) {
        const int number = QByteArray(attribute->spec).toInt();
        if (number > kNone)
            allowed += u"%1 (%2)"_s.arg(QString::number(number),
                                        QLatin1StringView(ippEnumString("finishings", number)));
    }
    QList<JobOption> choices;
    const QStringList values = finishings.split(u',');
    for (const QString &value : values) {
        const int number = finishing(value);
        const QList<JobOption> marked =
            choicesByCups(m_ppd, {{kFinishings, QString::number(number)}});
        if (number < kNone || (number > kNone && marked.isEmpty()))
            return refused(allowed.join(u", "_s));
        choices += marked;
    }
    return choices.isEmpty() ? asAttribute() : choicesFor(choices);
}

} // namespace corvana
