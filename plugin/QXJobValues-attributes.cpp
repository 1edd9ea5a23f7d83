#include "plugin/QXJobValues.h"

#include "panel/OptionKeywords.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// An attribute of IPP and the option that these printers have for it.
struct OptionForAttribute
{
    QLatin1StringView attribute;
    QLatin1StringView keyword;
};
constexpr OptionForAttribute kOptions[] = {
    {"print-color-mode"_L1, kQXMonoColor},
    {"media-source"_L1, kQXInputSlot},
    {"media-type"_L1, kQXMediaType},
    {"printer-resolution"_L1, kQXResolution},
};

// A value of IPP's and the choice that stands for it. Where one value has two rows, the first
// choice that a PPD has counts.
struct ChoiceForValue
{
    QLatin1StringView keyword;
    QLatin1StringView value;
    QLatin1StringView choice;
};
constexpr ChoiceForValue kChoices[] = {
    {kQXMonoColor, "monochrome"_L1, kMono},
    {kQXMonoColor, "color"_L1, "Color"_L1},
    {kQXMonoColor, "auto"_L1, "Auto"_L1},
    {kQXMonoColor, "auto"_L1, "Color"_L1},
    {kQXInputSlot, "auto"_L1, "AutoSelect"_L1},
    {kQXInputSlot, "tray-1"_L1, kTray1},
    {kQXInputSlot, "tray-2"_L1, "Tray2"_L1},
    {kQXInputSlot, "tray-3"_L1, "Tray3"_L1},
    {kQXInputSlot, "tray-4"_L1, "Tray4"_L1},
    {kQXInputSlot, "by-pass-tray"_L1, "MPTray"_L1},
    {kQXInputSlot, "manual"_L1, "Manual"_L1},
    {kQXMediaType, "stationery"_L1, kPlain},
    {kQXMediaType, "stationery-lightweight"_L1, kThin},
    {kQXMediaType, "stationery-heavyweight"_L1, kThick},
    {kQXMediaType, "stationery-bond"_L1, kBond},
    {kQXMediaType, "labels"_L1, kLabel},
    {kQXMediaType, "envelope"_L1, kEnv},
    {kQXResolution, "600x600dpi"_L1, "600dpi"_L1},
    {kQXResolution, "1200x1200dpi"_L1, "1200dpi"_L1},
};

bool isSame(const QString &value, QLatin1StringView other)
{
    return value.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

QList<JobOption> QXJobValues::choicesFor(const JobOption &attribute, ppd_file_t *ppd) const
{
    for (const OptionForAttribute &row : kOptions) {
        ppd_option_t *option =
            attribute.name == row.attribute ? ppdOption(ppd, row.keyword) : nullptr;
        if (!option)
            continue;
        for (const ChoiceForValue &choice : kChoices) {
            if (choice.keyword == row.keyword && isSame(attribute.value, choice.value) &&
                ppdChoice(option, choice.choice))
                return {{row.keyword, choice.choice}};
        }
        for (int i = 0; i < option->num_choices; ++i) {
            const QString keyword = ppdKeyword(option->choices[i].choice);
            if (keyword.compare(attribute.value, Qt::CaseInsensitive) == 0 && keyword != kCustom)
                return {{row.keyword, keyword}};
        }
    }
    return {};
}

QString QXJobValues::colorOption(ppd_file_t *ppd) const
{
    return ppdOption(ppd, kQXMonoColor) ? QString(kQXMonoColor) : QString();
}

} // namespace corvana
