#include "printsetting/QXLaserPrintSettingPDE.h"

#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ControlActions.h"
#include "printsetting/ImproveOutput.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"

namespace corvana {

using namespace Qt::StringLiterals;

QString QXLaserPrintSettingPDE::storedChoice(QLatin1StringView keyword) const
{
    return m_outputBin.value(keyword).toString();
}

void QXLaserPrintSettingPDE::PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                                                  const QString &choice)
{
    QXPrintQualityPDE::PPDOptionKeyValueDidChange_ppdChoice(keyword, choice);
}

void QXLaserPrintSettingPDE::updateUIforKey(const QString &keyword)
{
    QXPrintQualityPDE::updateUIforKey(keyword);
    if (keyword == kQXInputSlot) {
        checkStateWithPaperFeed();
    } else if (keyword == kQXMonoColor) {
        canSelectColorMode();
    } else if (keyword == PPDResolutionKey) {
        const QString resolution = m_outputBin.value(PPDResolutionKey).toString();
        setMode(kModeNoTonerSave, !QXLaserPrintSetting::allowTonerSaveResolution(resolution));
    } else if (keyword == kQXSleepTime) {
        canSetManualSleep();
        updateSleepTimeUI();
    }
}

void QXLaserPrintSettingPDE::getUIValues()
{
    QXPrintQualityPDE::getUIValues();
    if (PPDSleepTimeKey.isNull() || !sleepTimeField)
        return;
    const qint64 minutes = sleepBounds().clamped(integerValue(sleepTimeField->text()));
    m_outputBin.insert(PPDSleepTimeKey, QString::number(minutes));
    showSleepTime(minutes);
}

void QXLaserPrintSettingPDE::revertUI_forKey(QWidget *control, const QString &keyword)
{
    QXPrintQualityPDE::revertUI_forKey(control, keyword);
    if (keyword == kQXMonoColor)
        canSelectColorMode();
}

void QXLaserPrintSettingPDE::saveAllValues()
{
    QXPrintQualityPDE::saveAllValues();
    if (handles(kQXDensityAdjustment))
        saveDensityValue();
    // Only the mark of the job is changed. The panel keeps its own choice and shows it, until it is
    // restored from the marks.
    if (hasMode(kModeNoTonerSave))
        askHost(kTonerSaveMode, kChoiceOff);
    if (!PPDSleepTimeKey.isNull())
        saveSleepTimeValue();
}

bool QXLaserPrintSettingPDE::saveValuesAndReturnError(QString *error)
{
    QXPrintQualityPDE::saveValuesAndReturnError(error);
    saveAllValues();
    return true;
}

bool QXLaserPrintSettingPDE::restoreValuesAndReturnError(QString *)
{
    loadPPDKeys(kPPDKeysSupported);
    checkFax();
    checkLang();
    setDefaults();
    restoreMarkedChoices();
    reconcileImproveOutput();
    restoreOptionState();
    checkConstraints();
    if (handles(kQXDensityAdjustment))
        restoreDensityValue();
    if (!PPDSleepTimeKey.isNull())
        restoreSleepTimeValue();
    if (popupInited)
        updateUI();
    saveAllValues();
    canSelectColorMode();
    return true;
}

// The job may have been stored for a printer that has the improve-output options in their other
// form. Its settings are carried over.
void QXLaserPrintSettingPDE::reconcileImproveOutput()
{
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    const auto stored = [settings](QLatin1StringView keyword) {
        QVariant value;
        PMPrintSettingsGetValue(settings, keyword, &value);
        return value.toString();
    };
    if (handles(kQXImproveOutput)) {
        // When both are on, the paper curl counts.
        for (const QLatin1StringView keyword : {kQXFixIntensity, kQXLessPaperCurl}) {
            if (stored(keyword) == kChoiceOn)
                m_outputBin.insert(kQXImproveOutput, QString(keyword));
        }
        return;
    }
    const QString single = stored(kQXImproveOutput);
    for (const ImproveOutputForm &form : kImproveOutputForms) {
        if (single != form.single)
            continue;
        m_outputBin.insert(kQXFixIntensity, QString(form.fixIntensity));
        m_outputBin.insert(kQXLessPaperCurl, QString(form.lessPaperCurl));
    }
}

QVariantMap QXLaserPrintSettingPDE::summaryInfo()
{
    QVariantMap summary = QXPrintQualityPDE::summaryInfo();
    const QString orderKey = QLatin1StringView(kSummaryDisplayOrder);
    QStringList order;
    const QString model = localized(u"Model"_s);
    if (!model.isNull() && ppd) {
        summary.insert(model, ppdText(ppd->shortnickname).value_or(QString()));
        order += model;
    }
    order += summary.value(orderKey).toStringList();
    const ppd_cparam_t *time = ppdCustomParameter(ppd, kQXSleepTime, kTimeParameter);
    if (hasMode(kModeManualSleep) && time) {
        if (const std::optional<QString> title = ppdText(time->text)) {
            summary.insert(*title, m_outputBin.value(PPDSleepTimeKey).toString());
            order += *title;
        }
    }
    const QVariant density = m_outputBin.value(QXLaserPrintSetting::densityParamKey());
    const ppd_option_t *option = ppdOption(ppd, kQXDensityAdjustment);
    if (handles(kQXDensityAdjustment) && density.isValid() && option) {
        if (const std::optional<QString> title = ppdText(option->text))
            summary.insert(*title, density);
    }
    summary.insert(orderKey, order);
    return summary;
}

QString QXLaserPrintSettingPDE::addOnOffSuffix_ToString(const QAbstractButton *control,
                                                        const QString &string)
{
    const bool on = control && isControlEnabled(control) && control->isChecked();
    return string + (on ? u"_on"_s : u"_off"_s);
}

} // namespace corvana
