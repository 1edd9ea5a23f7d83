#include "dialog/window/SilencedAlerts.h"

#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/Values.h"

namespace corvana {

namespace {

QVariantMap withoutSilencedAlerts(QVariantMap domain)
{
    domain.removeIf([](const auto &entry) { return !booleanValue(entry.value()); });
    return domain;
}

} // namespace

bool hasSilencedAlerts(const QString &bundleIdentifier)
{
    const QVariantMap domain = UserDefaults::standardUserDefaults()
                                   .persistentDomainForName(bundleIdentifier)
                                   .value_or(QVariantMap());
    return withoutSilencedAlerts(domain).size() != domain.size();
}

bool bringAlertsBack(const QString &bundleIdentifier)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    const std::optional<QVariantMap> domain = defaults.persistentDomainForName(bundleIdentifier);
    return domain &&
           defaults.setPersistentDomain_forName(withoutSilencedAlerts(*domain), bundleIdentifier);
}

} // namespace corvana
