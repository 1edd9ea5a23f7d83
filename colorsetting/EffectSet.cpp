#include "colorsetting/EffectSet.h"

#include "colorsetting/ColorSettingKeys.h"
#include "platform/foundation/Values.h"

namespace corvana {

QString effectSetKey(bool mono, const QString &colorMatching)
{
    if (mono)
        return QStringLiteral("com.corvana.print.PrintSettings.MonoEffect");
    if (colorMatching == kVivid)
        return QStringLiteral("com.corvana.print.PrintSettings.VividEffect");
    return QStringLiteral("com.corvana.print.PrintSettings.NormalEffect");
}

QVariant usableEffectValue(const QVariant &stored)
{
    const qint64 value = integerValue(stored);
    const bool inRange = kEffectMinimum <= value && value <= kEffectMaximum;
    return stored.isValid() && inRange ? stored : QVariant(QString::number(0));
}

std::optional<QVariantList> usableEffectSet(const QVariant &stored)
{
    if (stored.typeId() != QMetaType::QVariantList && stored.typeId() != QMetaType::QStringList)
        return std::nullopt;
    QVariantList values = stored.toList();
    if (values.size() != static_cast<qsizetype>(kEffectKeywords.size()))
        return std::nullopt;
    for (QVariant &value : values)
        value = usableEffectValue(value);
    return values;
}

} // namespace corvana
