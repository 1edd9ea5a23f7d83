#include "printsetting/QXLaserPrintSettingPDE.h"

#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"

namespace corvana {

void QXLaserPrintSettingPDE::canSetManualSleep()
{
    const QString mode = storedChoice(kQXSleepTime);
    setMode(kModeManualSleep, mode.startsWith(kCustom) || mode == kChoiceTrue);
}

void QXLaserPrintSettingPDE::saveSleepTimeValue()
{
    const ValueBounds bounds = sleepBounds();
    QString minutes = m_outputBin.value(PPDSleepTimeKey).toString();
    if (!bounds.contains(integerValue(minutes)))
        minutes = QString::number(bounds.clamped(integerValue(minutes)));
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    PMPrintSettingsSetValue(settings, kSleepEntry, minutes, false);
    const bool manual = hasMode(kModeManualSleep);
    PMPrintSettingsSetValue(settings, kSleepModeEntry, QString(manual ? kCustom : kDefault), false);
    // A job that leaves the sleep time to the printer carries no minutes at all.
    if (!manual)
        PMPrintSettingsSetValue(settings, kSleepEntry, QString(kDefault), false);
}

void QXLaserPrintSettingPDE::restoreSleepTimeValue()
{
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    const ValueBounds bounds = sleepBounds();
    QVariant minutes;
    if (PMPrintSettingsGetValue(settings, kSleepEntry, &minutes) != kPMNoError ||
        !minutes.isValid() || minutes == QVariant(QString(kDefault)))
        minutes = QString::number(kSleepTimeDefault);
    else if (!bounds.contains(integerValue(minutes)))
        minutes = QString::number(bounds.clamped(integerValue(minutes)));
    m_outputBin.insert(PPDSleepTimeKey, minutes);

    QVariant mode;
    if (PMPrintSettingsGetValue(settings, kSleepModeEntry, &mode) != kPMNoError || !mode.isValid())
        mode = QString(kDefault);
    m_outputBin.insert(kQXSleepTime, mode);
}

void QXLaserPrintSettingPDE::saveDensityValue()
{
    const QString key = QXLaserPrintSetting::densityParamKey();
    if (effectContent)
        m_outputBin.insert(key, integerValue(effectContent->value(key)));
    const qint64 density = densityRange().clamped(integerValue(m_outputBin.value(key)));
    const PMPrintSettings settings = printSettings();
    if (settings)
        PMPrintSettingsSetValue(settings, kDensityEntry, QString::number(density), false);
}

void QXLaserPrintSettingPDE::restoreDensityValue()
{
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    const QString key = QXLaserPrintSetting::densityParamKey();
    QVariant stored;
    const bool found =
        PMPrintSettingsGetValue(settings, kDensityEntry, &stored) == kPMNoError && stored.isValid();
    // A job without a density prints as the printer does, whatever the declared bounds are.
    const qint64 density = found ? densityRange().clamped(integerValue(stored)) : 0;
    m_outputBin.insert(key, QString::number(density));
    setEffectContent(key, density);
}

} // namespace corvana
