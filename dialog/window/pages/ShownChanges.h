#pragma once

#include <QMap>
#include <QString>

namespace corvana {

/// What a page tells of the settings that were changed, and where they can go back to.
struct ShownChanges
{
    /// "Back to Printer Defaults".
    QString back{};
    /// The settings that differ from that, each with what it would be: "Printer Defaults: Plain".
    QMap<QString, QString> settings{};

    bool operator==(const ShownChanges &) const = default;
};

} // namespace corvana
