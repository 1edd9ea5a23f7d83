#pragma once

#include "platform/foundation/ValueTransformer.h"

namespace corvana {

/// The name under which the transformer is registered and interface files refer to it.
inline constexpr char kColorTransformerName[] = "QXColorTransformer";

/// Turns a boolean into the text colour of a label: normal for true, disabled for false or nothing.
class ColorTransformer : public ValueTransformer
{
public:
    /// Answers a ControlTextColor.
    QVariant transformedValue(const QVariant &value) const override;
    /// Answers nothing: a colour says no more what it was made from.
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

} // namespace corvana
