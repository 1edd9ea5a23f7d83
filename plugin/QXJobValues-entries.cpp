#include "plugin/QXJobValues.h"

#include <algorithm>

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectSet.h"
#include "platform/foundation/Values.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/ValueBounds.h"

namespace corvana {

namespace {

QList<PanelEntry> sleepEntries(const PrintSettings &settings, ppd_file_t *ppd)
{
    if (!ppdCustomParameter(ppd, kQXSleepTime, kTimeParameter))
        return {};
    const bool manual = settings.value(kSleepModeEntry).toString().startsWith(kCustom);
    const qint64 minutes = sleepTimeBounds(ppd).clamped(integerValue(settings.value(kSleepEntry)));
    const QString mode = manual ? kCustom : kDefault;
    const QString time = manual ? QString::number(minutes) : QString(kDefault);
    return {{kSleepModeEntry, mode, {kQXSleepTime}}, {kSleepEntry, time, {kQXSleepTime}}};
}

QList<PanelEntry> densityEntries(const PrintSettings &settings, ppd_file_t *ppd)
{
    const ppd_option_t *option = ppdOption(ppd, kQXDensityAdjustment);
    if (!option)
        return {};
    const QVariant stored = settings.contains(kDensityEntry)
                                ? settings.value(kDensityEntry)
                                : QVariant(ppdKeyword(option->defchoice));
    const qint64 density = densityBounds(ppd).clamped(integerValue(stored));
    return {{kDensityEntry, QString::number(density), {kQXDensityAdjustment}}};
}

// One set for each way in which colours are printed.
QList<PanelEntry> effectEntries(const PrintSettings &settings, ppd_file_t *ppd)
{
    QStringList options;
    for (const EffectInfo &effect : kEffectTable) {
        if (ppdOption(ppd, effect.keyword))
            options += effect.keyword;
    }
    if (options.isEmpty())
        return {};
    QList<PanelEntry> entries;
    for (const QString &key :
         {effectSetKey(false, kNone), effectSetKey(false, kVivid), effectSetKey(true, kNone)}) {
        const EffectSet set = usableEffectSet(settings.value(key));
        QVariantList values;
        for (const EffectInfo &effect : kEffectTable)
            values += integerValue(set.at(effect.effect));
        entries += {key, values, options};
    }
    return entries;
}

} // namespace

QList<PanelEntry> QXJobValues::entries(const PrintSettings &settings, ppd_file_t *ppd) const
{
    return sleepEntries(settings, ppd) + densityEntries(settings, ppd) +
           effectEntries(settings, ppd);
}

// How soon the device sleeps is the same for everybody who prints.
QStringList QXJobValues::deviceOptions() const
{
    return {kQXSleepTime};
}

} // namespace corvana
