#pragma once

#include <QLatin1StringView>

namespace corvana {

// Options of the Color Setting panel and the choices that its rules name.

inline constexpr QLatin1StringView kQXColorMatching{"QXColorMatching"};
inline constexpr QLatin1StringView kQXEnhanceBlkPrt{"QXEnhanceBlkPrt"};
inline constexpr QLatin1StringView kQXGray{"QXGray"};
inline constexpr QLatin1StringView kVivid{"Vivid"};
/// No colour matching. The reference picture without colour matching has this name as well.
inline constexpr QLatin1StringView kNone{"None"};

/// Flags in the panel's binding dictionary. The keyword "QXColorMatching" is a flag there, too.
inline constexpr QLatin1StringView kColorEnhancementFlag{"QXColorEnhancement"};
inline constexpr QLatin1StringView kMonoColorFlag{"QXMonoColor"};
inline constexpr QLatin1StringView kColorFlag{"Color"};
/// Whether the printer's driver takes colour effects, and whether it takes none.
inline constexpr QLatin1StringView kEffectsFlag{"ColorEffects"};
inline constexpr QLatin1StringView kNoEffectsFlag{"NoColorEffects"};
/// The height that the window had when the preview was drawn last. Units: points.
inline constexpr QLatin1StringView kFrameHeight{"frameHeight"};

} // namespace corvana
