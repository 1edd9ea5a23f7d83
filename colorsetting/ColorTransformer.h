#pragma once

#include <QMetaType>

#include "platform/foundation/ValueTransformer.h"

namespace corvana {

/// The name under which the transformer is registered and interface files refer to it.
inline constexpr char kColorTransformerName[] = "QXColorTransformer";

/// Turns a boolean into the text colour of a label: normal for true, disabled for false or nothing.
class ColorTransformer : public ValueTransformer
{
public:
    /// What transformedValue() answers: a ControlTextColor.
    static QMetaType transformedValueClass();
    /// False: a colour does not say what it was made from.
    static bool allowsReverseTransformation() { return false; }

    /// Answers a ControlTextColor.
    QVariant transformedValue(const QVariant &value) const override;
    /// Answers nothing.
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

} // namespace corvana
