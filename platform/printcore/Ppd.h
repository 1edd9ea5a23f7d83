#pragma once

// The one place that includes <cups/ppd.h>. libcups marks its PPD functions as deprecated since 1.6
// without a replacement that keeps printer-specific options; the mark is silenced for them alone,
// so that other deprecations of libcups still warn.
#include <cups/cups.h>
#include <cups/raster.h>

#pragma push_macro("_CUPS_DEPRECATED_1_6_MSG")
#pragma push_macro("_CUPS_DEPRECATED_MSG")
#pragma push_macro("_CUPS_DEPRECATED")
#undef _CUPS_DEPRECATED_1_6_MSG
#undef _CUPS_DEPRECATED_MSG
#undef _CUPS_DEPRECATED
#define _CUPS_DEPRECATED_1_6_MSG(m)
#define _CUPS_DEPRECATED_MSG(m)
#define _CUPS_DEPRECATED
#include <cups/ppd.h>
#pragma pop_macro("_CUPS_DEPRECATED")
#pragma pop_macro("_CUPS_DEPRECATED_MSG")
#pragma pop_macro("_CUPS_DEPRECATED_1_6_MSG")

#include <optional>

#include <QString>

#include "platform/PlatformExport.h"

namespace corvana {

/// Keyword and choice lookups with Qt strings. Keywords and choices are ASCII; one that is not
/// finds nothing, since libcups could only misread it.
/// Ownership: everything answered here belongs to the PPD and lives as long as it.
CORVANA_PLATFORM_EXPORT ppd_option_t *ppdOption(ppd_file_t *ppd, const QString &keyword);

/// The marked choice of an option, or null when nothing is marked or the option does not exist.
CORVANA_PLATFORM_EXPORT ppd_choice_t *ppdMarkedChoice(ppd_file_t *ppd, const QString &keyword);

/// The first choice of `option` whose keyword equals `choice` exactly, or null.
CORVANA_PLATFORM_EXPORT ppd_choice_t *ppdChoice(ppd_option_t *option, const QString &choice);

/// The custom parameter `name` of the custom option `keyword`, or null.
CORVANA_PLATFORM_EXPORT ppd_cparam_t *ppdCustomParameter(ppd_file_t *ppd, const QString &keyword,
                                                         const QString &name);

/// Whether the option takes custom values at all.
CORVANA_PLATFORM_EXPORT bool ppdHasCustomOption(ppd_file_t *ppd, const QString &keyword);

/// A display text of the PPD, decoded strictly.
/// Errors: nothing for a text that is not UTF-8; the caller then leaves the item out.
CORVANA_PLATFORM_EXPORT std::optional<QString> ppdText(const char *text);

/// A keyword of the PPD.
CORVANA_PLATFORM_EXPORT QString ppdKeyword(const char *keyword);

} // namespace corvana
