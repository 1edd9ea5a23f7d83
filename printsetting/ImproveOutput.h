#pragma once

#include <array>

#include "panel/OptionKeywords.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

/// Printers offer the same improvements as one option with three choices or as two options that are
/// on or off; settings move between such printers. One row a choice of the single option.
struct ImproveOutputForm
{
    QLatin1StringView single;
    QLatin1StringView fixIntensity;
    QLatin1StringView lessPaperCurl;
};
inline constexpr std::array kImproveOutputForms{
    ImproveOutputForm{kChoiceOff, kChoiceOff, kChoiceOff},
    ImproveOutputForm{kQXFixIntensity, kChoiceOn, kChoiceOff},
    ImproveOutputForm{kQXLessPaperCurl, kChoiceOff, kChoiceOn},
};

} // namespace corvana
