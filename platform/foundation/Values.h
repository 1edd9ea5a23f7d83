#pragma once

#include <QVariant>

#include "platform/PlatformExport.h"

namespace corvana {

/// The integer that a stored value stands for; the one reading used wherever a panel or the dialog
/// takes a number from an entry, a choice keyword or a field.
///
/// Of a string: its leading decimal integer after blanks, with sign, saturating at 64 bits;
/// anything else is 0. Of a number: truncated toward zero, saturating; not-a-number is 0. Of a
/// boolean: 0 or
/// 1. Of nothing or anything else: 0.
CORVANA_PLATFORM_EXPORT qint64 integerValue(const QVariant &value);

/// The boolean that a stored value stands for.
///
/// Of a string: true when it begins, after blanks, an optional sign and zeros, with Y, y, T, t or a
/// digit other than zero. Of a number: not zero. Of nothing or anything else: false.
CORVANA_PLATFORM_EXPORT bool booleanValue(const QVariant &value);

} // namespace corvana
