#pragma once

#include <QLatin1StringView>

namespace corvana {

// Keywords and choices of the PPD that the base panel knows by name; each panel's own stand with
// it.

inline constexpr QLatin1StringView kQXMediaType{"QXMediaType"};
inline constexpr QLatin1StringView kQXBiDir{"QXBiDir"};
inline constexpr QLatin1StringView kQXSlowDrying{"QXSlowDrying"};
inline constexpr QLatin1StringView kQXOutput{"QXOutput"};
inline constexpr QLatin1StringView kMirrorPrint{"MirrorPrint"};

inline constexpr QLatin1StringView kQXMonoColor{"QXMonoColor"};
inline constexpr QLatin1StringView kMono{"Mono"};

inline constexpr QLatin1StringView kChoiceOn{"ON"};
inline constexpr QLatin1StringView kChoiceOff{"OFF"};
inline constexpr QLatin1StringView kChoiceTrue{"True"};
inline constexpr QLatin1StringView kChoiceFalse{"False"};
inline constexpr QLatin1StringView kFax{"FAX"};
inline constexpr QLatin1StringView kPlain{"Plain"};
inline constexpr QLatin1StringView kPlainDuplex{"PlainDuplex"};
inline constexpr QLatin1StringView kGlossy{"Glossy"};
inline constexpr QLatin1StringView kHagakiUra{"HagakiUra"};

/// What a paper is called that the printer cannot take; nothing is printed on it.
inline constexpr QLatin1StringView kUnsupportedPaper{"UnsupportedPaper"};

/// Between the panels: posted whenever the Print Setting panel evaluates the colour mode, with the
/// host callback as its sender and a boolean under kQXMonoColor.
inline constexpr QLatin1StringView kLaserPrintSettingNotification{
    "QXLaserPrintSettingNotification"};

/// List of a panel's option keywords in the bundle's information dictionary.
inline constexpr QLatin1StringView kPPDKeysSupported{"PMPPDKeysSupported"};

/// PPD attribute of printers whose driver can do the colour matching itself.
inline constexpr char kSupportsCustomColorMatching[] = "APSupportsCustomColorMatching";
/// Print settings entry that says who matches colours, and its values; anything else is the driver.
inline constexpr QLatin1StringView kColorMatchingMode{"AP_ColorMatchingMode"};
inline constexpr QLatin1StringView kVendorColorMatching{"AP_VendorColorMatching"};
inline constexpr QLatin1StringView kApplicationColorMatching{"AP_ApplicationColorMatching"};

} // namespace corvana
