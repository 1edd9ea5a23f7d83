#pragma once

#include <QString>

namespace corvana {

/// Whether the user has silenced alerts of a bundle. Panels keep one boolean for each alert in the
/// preferences domain of their bundle's identifier; false is an alert that shall not show again.
bool hasSilencedAlerts(const QString &bundleIdentifier);

/// Brings them all back. Errors: false when the preferences cannot be written.
bool bringAlertsBack(const QString &bundleIdentifier);

} // namespace corvana
