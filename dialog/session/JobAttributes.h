#pragma once

#include <optional>

#include <QString>
#include <QStringList>

namespace corvana {

/// A job attribute that users of `lp` know: it is no option of the PPD and goes to CUPS as it is.
struct JobAttribute
{
    QLatin1StringView name;
    /// The values that are taken, in words for a message.
    QLatin1StringView allowed;
    bool (*accepts)(const QString &value);
};

/// The attribute of that name, or null.
const JobAttribute *jobAttribute(const QString &name);

/// The names of all attributes, for a message.
QStringList jobAttributeNames();

} // namespace corvana
