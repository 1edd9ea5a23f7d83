#pragma once

#include <QLatin1StringView>

namespace corvana {

// Options of the Color Setting panel and the choices that its rules name.

inline constexpr QLatin1StringView kQXColorMatching{"QXColorMatching"};
inline constexpr QLatin1StringView kQXEnhanceBlkPrt{"QXEnhanceBlkPrt"};
inline constexpr QLatin1StringView kQXGray{"QXGray"};
inline constexpr QLatin1StringView kVivid{"Vivid"};

/// Flags in the panel's binding dictionary; "QXColorMatching" is one more.
inline constexpr QLatin1StringView kColorEnhancementFlag{"QXColorEnhancement"};
inline constexpr QLatin1StringView kMonoColorFlag{"QXMonoColor"};
inline constexpr QLatin1StringView kColorFlag{"Color"};

} // namespace corvana
