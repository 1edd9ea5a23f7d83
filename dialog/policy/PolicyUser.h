#pragma once

#include <QString>
#include <QStringList>

namespace corvana {

/// Somebody to whom a policy applies.
struct PolicyUser
{
    QString name{};
    QStringList groups{}; ///< by their names

    bool operator==(const PolicyUser &) const = default;
};

/// The user who runs this program, without the groups: a name service is not asked before somebody
/// needs to know them.
PolicyUser currentUser();

/// A user by that name, or the one who runs this program, with all groups that the system knows of
/// them. It may take as long as the name service takes. Errors: a user without groups.
PolicyUser userWithGroups(const QString &name = {});

/// Whether the system knows a user of that name.
bool isUser(const QString &name);

} // namespace corvana
