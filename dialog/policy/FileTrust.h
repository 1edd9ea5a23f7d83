#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "dialog/policy/PolicyEntry.h"

struct stat;

namespace corvana {

/// Who may own what an administrator has decided for everybody.
enum class TrustedOwners {
    Root,
    /// Also the user who runs this program: the files are of a test, or of somebody who tries a
    /// policy out.
    RootAndUser,
};

/// Why somebody else could have written a file or a folder; empty when nobody could. Access lists
/// show among the permissions of the group.
QString whoElseMayWrite(const struct stat &status, TrustedOwners owners);

/// The same of the folders above a path that has no links in it, up to the root: the first that is
/// not believed, and why; nothing where all of them are.
std::optional<PolicyProblem> whoElseMayWriteAbove(const QByteArray &path, TrustedOwners owners);

/// The same of a file or a folder, wherever links lead to, and of what is above it. Errors: a
/// problem as well, for what is not there or cannot be looked at.
///
/// What is opened by that path afterwards may be something else: somebody may own a link on the
/// way.
std::optional<PolicyProblem> whyNotTrusted(const QString &path, TrustedOwners owners);

/// The same of what was opened, and of what is above the place where that really lies. `path` is
/// how it is called.
std::optional<PolicyProblem> whyNotTrusted(int descriptor, const QString &path,
                                           TrustedOwners owners);

} // namespace corvana
