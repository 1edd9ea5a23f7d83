#pragma once

#include <optional>

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include "platform/PlatformExport.h"

namespace corvana {

/// The user's preferences, one persistent domain for each bundle identifier. Each domain is an INI
/// file of its own below the user's configuration folder, read at every question and written at
/// once, so that several dialogs see each other's changes. Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT UserDefaults
{
public:
    static UserDefaults &standardUserDefaults();

    /// A copy of a domain; empty when nothing was ever stored in it.
    /// Errors: nothing when the domain cannot be read (no permission, a damaged file); logged.
    std::optional<QVariantMap> persistentDomainForName(const QString &name) const;

    /// Replaces a domain and writes it at once.
    /// Errors: false when it cannot be written; logged.
    bool setPersistentDomain_forName(const QVariantMap &domain, const QString &name);

    /// The file of a domain. Range: a name that could leave the folder of preferences has none.
    static QString fileOfDomain(const QString &name);
};

} // namespace corvana
