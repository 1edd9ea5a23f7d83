#pragma once

#include <QLatin1StringView>

namespace corvana::test {

/// The print settings entries of the three sets of colour effects.
inline constexpr QLatin1StringView kNormalEffect{"com.corvana.print.PrintSettings.NormalEffect"};
inline constexpr QLatin1StringView kVividEffect{"com.corvana.print.PrintSettings.VividEffect"};
inline constexpr QLatin1StringView kMonoEffect{"com.corvana.print.PrintSettings.MonoEffect"};

} // namespace corvana::test
