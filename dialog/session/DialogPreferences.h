#pragma once

#include <QLatin1StringView>

namespace corvana {

/// The preferences of the dialog itself.
inline constexpr QLatin1StringView kDialogDomain{"com.corvana.print.dialog"};

} // namespace corvana
