#pragma once

#include <memory>

#include <QString>
#include <QVariant>

#include "platform/PlatformExport.h"

namespace corvana {

/// Turns a value of a binding dictionary into what a control shows. Registered by name, so that an
/// interface file can refer to it.
class CORVANA_PLATFORM_EXPORT ValueTransformer
{
public:
    ValueTransformer() = default;
    ValueTransformer(const ValueTransformer &) = delete;
    ValueTransformer &operator=(const ValueTransformer &) = delete;
    virtual ~ValueTransformer();

    virtual QVariant transformedValue(const QVariant &value) const = 0;
    /// Invalid for a transformer that works in one direction only.
    virtual QVariant reverseTransformedValue(const QVariant &value) const = 0;

    /// Registers a transformer; a later registration under the same name replaces the earlier.
    static void setValueTransformer(std::shared_ptr<ValueTransformer> transformer,
                                    const QString &name);
    /// The transformer registered under the name, or null; asking for an unknown one is logged.
    static std::shared_ptr<ValueTransformer> valueTransformerForName(const QString &name);
};

} // namespace corvana
