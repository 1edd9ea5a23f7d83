#pragma once

#include <QLatin1StringView>

namespace corvana {

// Keywords and choices of the PPD that the base panel knows by name. Those that only one panel
// knows stand in that panel's folder.

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

/// The name that the panel gives to a paper which the printer cannot take. Printing is refused
/// then.
inline constexpr QLatin1StringView kUnsupportedPaper{"UnsupportedPaper"};

/// The notification from one panel to the other. The Print Setting panel posts it whenever it
/// evaluates the colour mode: the host callback is the sender, and kQXMonoColor has a boolean.
inline constexpr QLatin1StringView kLaserPrintSettingNotification{
    "QXLaserPrintSettingNotification"};

/// List of a panel's option keywords in the bundle's information dictionary.
inline constexpr QLatin1StringView kPPDKeysSupported{"PMPPDKeysSupported"};

/// PPD attribute of printers whose driver can do the colour matching itself.
inline constexpr char kSupportsCustomColorMatching[] = "APSupportsCustomColorMatching";
/// Print settings entry that says who matches colours, and its values. Any other value means that
/// the driver does.
inline constexpr QLatin1StringView kColorMatchingMode{"AP_ColorMatchingMode"};
inline constexpr QLatin1StringView kVendorColorMatching{"AP_VendorColorMatching"};
inline constexpr QLatin1StringView kApplicationColorMatching{"AP_ApplicationColorMatching"};

} // namespace corvana
