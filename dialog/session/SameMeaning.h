#pragma once

#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

// Attributes of a job that say one thing in several ways, of which CUPS' filters follow one only.
// To a lock they are one.

/// The other names of what an attribute says; empty for one that has none.
QStringList otherNamesOf(const QString &attribute);

/// Whether what is asked for under one of several names leaves what is said under another one as it
/// is: it means the same, or asks for nothing beside it.
bool leavesAsItIs(const JobOption &asked, const JobOption &said);

/// The option of some PPDs for the order of sheets, which CUPS' filters take for the attribute.
inline constexpr QLatin1StringView kOutputOrderOption{"OutputOrder"};

} // namespace corvana
