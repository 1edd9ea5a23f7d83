#include "platform/foundation/ValueTransformer.h"

#include <QHash>
#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcTransformer, "corvana.foundation.transformer", QtWarningMsg)

namespace {

QHash<QString, std::shared_ptr<ValueTransformer>> &registry()
{
    static QHash<QString, std::shared_ptr<ValueTransformer>> transformers;
    return transformers;
}

} // namespace

ValueTransformer::~ValueTransformer() = default;

void ValueTransformer::setValueTransformer(std::shared_ptr<ValueTransformer> transformer,
                                           const QString &name)
{
    registry().insert(name, std::move(transformer));
}

std::shared_ptr<ValueTransformer> ValueTransformer::valueTransformerForName(const QString &name)
{
    const auto transformer = registry().value(name);
    if (!transformer)
        qCInfo(lcTransformer) << "no value transformer is registered as" << name;
    return transformer;
}

} // namespace corvana
