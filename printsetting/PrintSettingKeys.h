#pragma once

#include <QLatin1StringView>

namespace corvana {

// Options of the Print Setting panel and the choices that its rules name.

inline constexpr QLatin1StringView kQXResolution{"QXResolution"};
inline constexpr QLatin1StringView kResolution{"Resolution"};
inline constexpr QLatin1StringView kQXInputSlot{"QXInputSlot"};
inline constexpr QLatin1StringView kTonerSaveMode{"TonerSaveMode"};
inline constexpr QLatin1StringView kQXImproveOutput{"QXImproveOutput"};
inline constexpr QLatin1StringView kQXFixIntensity{"QXFixIntensity"};
inline constexpr QLatin1StringView kQXLessPaperCurl{"QXLessPaperCurl"};
inline constexpr QLatin1StringView kQXDensityAdjustment{"QXDensityAdjustment"};
inline constexpr QLatin1StringView kQXSleepTime{"QXSleepTime"};
inline constexpr QLatin1StringView kDuplex{"Duplex"};

inline constexpr QLatin1StringView kThin{"Thin"};
inline constexpr QLatin1StringView kThick{"Thick"};
inline constexpr QLatin1StringView kPostCard{"PostCard"};
inline constexpr QLatin1StringView kBond{"BOND"};
/// The plain envelope. The keywords of the other envelopes begin with this one.
inline constexpr QLatin1StringView kEnv{"Env"};
inline constexpr QLatin1StringView kEnvThick{"EnvThick"};
inline constexpr QLatin1StringView kEnvThin{"EnvThin"};
inline constexpr QLatin1StringView kLabel{"Label"};
inline constexpr QLatin1StringView kThicker{"Thicker"};
inline constexpr QLatin1StringView kTray1{"Tray1"};
/// The name of the paper size. The medium of the same name is written with a capital C.
inline constexpr QLatin1StringView kPostcardPaper{"Postcard"};
inline constexpr QLatin1StringView kLetterPaper{"Letter"};
inline constexpr QLatin1StringView kCustom{"Custom"};
inline constexpr QLatin1StringView kDefault{"Default"};

/// Custom parameters of the options whose values are numbers.
inline constexpr QLatin1StringView kTimeParameter{"Time"};
inline constexpr QLatin1StringView kDensityParameter{"Density"};

/// The panel's own entries in the print settings.
inline constexpr QLatin1StringView kSleepEntry{"com.corvana.print.PrintSettings.sleep"};
inline constexpr QLatin1StringView kSleepModeEntry{"com.corvana.print.PrintSettings.sleepmode"};
inline constexpr QLatin1StringView kDensityEntry{"com.corvana.print.PrintSettings.densitymode"};

/// Read only: the paper that pages are scaled to, where the job has one.
inline constexpr QLatin1StringView kPageToPaperMappingEntry{
    "com.apple.print.PageToPaperMappingMediaName"};

/// Illustrations of the bundle.
inline constexpr QLatin1StringView kBackCoverLeverImage{"Backcover_env"};
inline constexpr QLatin1StringView kBackCoverWithoutLeverImage{"Backcover_label"};
inline constexpr QLatin1StringView kFrontCoverImage{"front_paper"};
inline constexpr QLatin1StringView kImageExtension{"tiff"};

} // namespace corvana
