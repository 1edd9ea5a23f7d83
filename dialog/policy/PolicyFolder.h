#pragma once

#include <QList>
#include <QStringList>

#include "dialog/policy/PolicyEntry.h"
#include "dialog/policy/PolicyPlace.h"

namespace corvana {

/// The most files that a folder may have.
inline constexpr int kMostPolicyFiles = 256;

/// What an administrator's files say, and which of them are not believed.
struct PolicyReading
{
    PolicyPlace place{};
    QStringList files{}; ///< that were read, in the order in which they count
    QList<PolicyEntry> entries{};
    QList<PolicyProblem> problems{};
};

/// Reads the files "*.conf" of a folder in the order of the bytes of their names; those whose names
/// begin with a dot are left alone. A folder that is not there is a policy without a word.
///
/// Nothing is believed that anybody but root (or the user, where the place may be theirs) could
/// have written: the folder, what is above it, and each file must belong to them and be writable
/// for nobody else; a symbolic link leads to a file of the same folder or is refused. What is
/// looked at is what is read: files are opened first.
PolicyReading readPolicyFolder(const PolicyPlace &place);

} // namespace corvana
