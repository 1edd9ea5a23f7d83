#include "dialog/session/ColorModeNames.h"

#include <algorithm>
#include <span>

#include <QStringList>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kAuto = "auto"_L1;

bool beginsWithOneOf(const QString &text, std::span<const QLatin1StringView> words)
{
    return std::any_of(words.begin(), words.end(), [&](QLatin1StringView word) {
        return text.startsWith(word, Qt::CaseInsensitive);
    });
}

bool isGrey(const QString &choice)
{
    static constexpr QLatin1StringView kWords[] = {"gray"_L1, "grey"_L1, "mono"_L1, "black"_L1,
                                                   "bw"_L1};
    return beginsWithOneOf(choice, kWords);
}

bool isColored(const QString &choice)
{
    static constexpr QLatin1StringView kWords[] = {"color"_L1, "colour"_L1, "rgb"_L1,  "cmy"_L1,
                                                   "full"_L1,  "srgb"_L1,   "auto"_L1, "icc"_L1};
    return beginsWithOneOf(choice, kWords);
}

// The choice of one option that a colour mode stands for, by the names of its choices. libcups
// knows few of them: "ColorModel=Gray" and not "ColorModel=grayscale". An option with something
// else beside grey and colours is about another thing.
QString choiceByName(const ppd_option_t &option, const QString &mode)
{
    QStringList grey;
    QStringList colored;
    for (int i = 0; i < option.num_choices; ++i) {
        const QString choice = ppdKeyword(option.choices[i].choice);
        if (isGrey(choice))
            grey += choice;
        else if (isColored(choice))
            colored += choice;
    }
    if (grey.isEmpty() || colored.isEmpty())
        return {};
    const QStringList &candidates = mode == "monochrome"_L1 ? grey : colored;
    const QString byDefault = ppdKeyword(option.defchoice);
    for (const QString &choice : candidates) {
        if (mode == kAuto && choice.startsWith(kAuto, Qt::CaseInsensitive))
            return choice;
    }
    return candidates.contains(byDefault) ? byDefault : candidates.constFirst();
}

} // namespace

QList<JobOption> colorModeByName(ppd_file_t *ppd, const QString &mode)
{
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) {
            const QString keyword = ppdKeyword(group.options[o].keyword);
            const bool isAboutColor = keyword.contains("color"_L1, Qt::CaseInsensitive) ||
                                      keyword.contains("colour"_L1, Qt::CaseInsensitive);
            const QString choice = isAboutColor ? choiceByName(group.options[o], mode) : QString();
            if (!choice.isEmpty())
                return {{keyword, choice}};
        }
    }
    return {};
}

} // namespace corvana
