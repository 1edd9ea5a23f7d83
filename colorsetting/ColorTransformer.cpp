#include "colorsetting/ColorTransformer.h"

#include "platform/foundation/Values.h"
#include "platform/toolkit/LabelColor.h"

namespace corvana {

QMetaType ColorTransformer::transformedValueClass()
{
    return QMetaType::fromType<ControlTextColor>();
}

QVariant ColorTransformer::transformedValue(const QVariant &value) const
{
    return QVariant::fromValue(booleanValue(value) ? ControlTextColor::Normal
                                                   : ControlTextColor::Disabled);
}

QVariant ColorTransformer::reverseTransformedValue(const QVariant &) const
{
    return {};
}

} // namespace corvana
