#pragma once

#include <array>

#include "panel/OptionKeywords.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

/// Printers offer the same improvements in one of two forms: as one option with three choices, or
/// as two options that are on or off. Settings move between such printers. Each row is one choice
/// of the single option, with the choices of the two others that mean the same.
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
