#include "dialog/session/TwoSided.h"

#include <algorithm>
#include <iterator>

#include "dialog/session/MarksByCups.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kOptions[] = {kDuplexOption, "JCLDuplex"_L1, "EFDuplex"_L1,
                                          "KD03Duplex"_L1};
constexpr QLatin1StringView kChoices[] = {kDuplexLongEdge, kDuplexShortEdge, "LongEdge"_L1,
                                          "ShortEdge"_L1,  "Top"_L1,         "Bottom"_L1};

template <size_t N> bool isOneOf(const QString &text, const QLatin1StringView (&list)[N])
{
    return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

bool hasTwoSidedChoice(ppd_file_t *ppd, const QString &keyword)
{
    ppd_option_t *option = ppdOption(ppd, keyword);
    return std::any_of(std::begin(kChoices), std::end(kChoices), [&](QLatin1StringView choice) {
        return ppdChoice(option, choice) != nullptr;
    });
}

} // namespace

bool isTwoSidedChoice(const JobOption &option)
{
    return isOneOf(option.name, kOptions) && isOneOf(option.value, kChoices);
}

bool turnsSheetsOver(ppd_file_t *ppd)
{
    const auto isTwoSided = [&](QLatin1StringView name) { return hasTwoSidedChoice(ppd, name); };
    // Some PPDs have another name for it, which libcups knows.
    return std::any_of(std::begin(kOptions), std::end(kOptions), isTwoSided) ||
           !choicesByCups(ppd, {{u"sides"_s, u"two-sided-long-edge"_s}}).isEmpty();
}

bool isTwoSidedByHand(const QList<JobOption> &options)
{
    return std::any_of(options.cbegin(), options.cend(), [](const JobOption &option) {
        return option.name == kSidesByHandAttribute &&
               (option.value == kByHandLongEdge || option.value == kByHandShortEdge);
    });
}

} // namespace corvana
