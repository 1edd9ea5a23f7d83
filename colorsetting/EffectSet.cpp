#include "colorsetting/EffectSet.h"

#include "colorsetting/ColorSettingKeys.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"

namespace corvana {

using namespace Qt::StringLiterals;

QString effectSetKey(bool mono, const QString &colorMatching)
{
    if (mono)
        return u"com.corvana.print.PrintSettings.MonoEffect"_s;
    if (colorMatching == kVivid)
        return u"com.corvana.print.PrintSettings.VividEffect"_s;
    return u"com.corvana.print.PrintSettings.NormalEffect"_s;
}

QVariant usableEffectValue(const QVariant &stored)
{
    const qint64 value = integerValue(stored);
    const bool inRange = kEffectMinimum <= value && value <= kEffectMaximum;
    return stored.isValid() && inRange ? stored : QVariant(QString::number(0));
}

EffectSet usableEffectSet(const QVariant &stored)
{
    const bool isList =
        stored.typeId() == QMetaType::QVariantList || stored.typeId() == QMetaType::QStringList;
    QVariantList values = isList ? stored.toList() : QVariantList();
    if (values.size() != static_cast<qsizetype>(kEffectTable.size()))
        values.clear();
    EffectSet set;
    auto value = values.cbegin();
    for (const EffectInfo &effect : kEffectTable)
        set[effect.effect] = usableEffectValue(value == values.cend() ? QVariant() : *value++);
    return set;
}

QVariantList storedEffectSet(const EffectSet &set)
{
    QVariantList values;
    for (const EffectInfo &effect : kEffectTable) {
        const auto value = set.find(effect.effect);
        // Appended as one value, not joined as a list.
        values.append(usableEffectValue(value == set.end() ? QVariant() : value->second));
    }
    return values;
}

bool printsInMonochrome(const PrintSettings &settings)
{
    return settings.value(kQXMonoColor).toString() == kMono;
}

bool driverMatchesColors(const PrintSettings &settings, ppd_file_t *ppd)
{
    return ppdFindAttr(ppd, kSupportsCustomColorMatching, nullptr) &&
           settings.value(kColorMatchingMode).toString() != kApplicationColorMatching;
}

QString effectSetKey(const PrintSettings &settings)
{
    return effectSetKey(printsInMonochrome(settings), settings.value(kQXColorMatching).toString());
}

EffectSet effectSetOf(const PrintSettings &settings)
{
    return usableEffectSet(settings.value(effectSetKey(settings)));
}

bool isInForce(const EffectInfo &effect, const PrintSettings &settings, ppd_file_t *ppd)
{
    return driverMatchesColors(settings, ppd) &&
           (effect.inMonochrome || !printsInMonochrome(settings));
}

} // namespace corvana
