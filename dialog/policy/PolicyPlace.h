#pragma once

#include <QString>

#include "dialog/policy/FileTrust.h"

namespace corvana {

/// Where a policy is, and whose it is.
struct PolicyPlace
{
    QString folder{}; ///< its whole path
    /// Whether its files may belong to the user who runs this program: they are of a test, or of
    /// somebody who tries a policy out. Else they are root's.
    bool mayBeUsers = false;

    TrustedOwners owners() const
    {
        return mayBeUsers ? TrustedOwners::RootAndUser : TrustedOwners::Root;
    }

    bool operator==(const PolicyPlace &) const = default;
};

/// The folder of the administrator's policy. The environment variable CORVANA_PRINT_POLICY names
/// another one, where it counts (see ownVariable()).
PolicyPlace policyPlace();

/// The same for a program at that path.
PolicyPlace policyPlaceOf(const QString &program);

} // namespace corvana
