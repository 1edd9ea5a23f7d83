#include "printsetting/QXLaserPrintSettingPDE.h"

#include <algorithm>

#include <QToolTip>

#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"

namespace corvana {

namespace {

constexpr QChar kFullWidthZero = u'\uff10';
constexpr QChar kFullWidthNine = u'\uff19';

} // namespace

void QXLaserPrintSettingPDE::canSetManualSleep()
{
    const QString mode = storedChoice(kQXSleepTime);
    setMode(kModeManualSleep, mode.startsWith(kCustom) || mode == kChoiceTrue);
}

void QXLaserPrintSettingPDE::updateSleepTimeUI()
{
    showSleepTime(sleepBounds().clamped(integerValue(m_outputBin.value(PPDSleepTimeKey))));
}

void QXLaserPrintSettingPDE::showSleepTime(qint64 minutes)
{
    const ProgrammaticChange change;
    if (sleepTimeField)
        sleepTimeField->setText(QString::number(minutes));
    if (sleepTimeStepper)
        sleepTimeStepper->setValue(controlValue(minutes));
}

void QXLaserPrintSettingPDE::controlTextDidChange(const Notification &notification)
{
    auto *field = static_cast<QLineEdit *>(notification.sender);
    const QString text = field->text();
    const qsizetype behindCursor = text.size() - field->cursorPosition();
    QString digits;
    for (const QChar unit : text) {
        if (unit >= u'0' && unit <= u'9')
            digits += unit;
        else if (unit >= kFullWidthZero && unit <= kFullWidthNine)
            digits += QChar((unit.unicode() & 0x1F) | 0x20);
    }
    const qint64 minutes = integerValue(digits);
    const bool accepted = sleepBounds().contains(minutes);
    QString shown = m_outputBin.value(PPDSleepTimeKey).toString();
    if (accepted) {
        shown = QString::number(minutes);
        m_outputBin.insert(PPDSleepTimeKey, shown);
    }
    const ProgrammaticChange change;
    if (shown != text)
        field->setText(shown); // which leaves the caret behind the number
    if (accepted && shown != text)
        field->setCursorPosition(
            static_cast<int>(std::max<qsizetype>(0, shown.size() - behindCursor)));
    if (!accepted)
        sayAllowedSleepTimes(field);
    if (sleepTimeStepper)
        sleepTimeStepper->setValue(controlValue(integerValue(shown)));
}

// The number that the user entered gave way to the former one: the field says why.
void QXLaserPrintSettingPDE::sayAllowedSleepTimes(QLineEdit *field)
{
    if (field->isVisible())
        QToolTip::showText(field->mapToGlobal(QPoint(0, field->height())), field->toolTip(), field);
}

bool QXLaserPrintSettingPDE::control_textShouldEndEditing(QWidget *, const QString &editorText)
{
    return !editorText.isNull() && sleepBounds().contains(integerValue(editorText));
}

// A step of the user stays inside the stepper's range. A value that a program set may lie outside.
void QXLaserPrintSettingPDE::takeSteppedSleepTime(Stepper *stepper)
{
    const qint64 minutes = sleepBounds().clamped(stepper->value());
    const ProgrammaticChange change;
    stepper->setValue(controlValue(minutes));
    if (!sleepTimeField)
        return;
    sleepTimeField->setText(QString::number(minutes));
    m_outputBin.insert(PPDSleepTimeKey, sleepTimeField->text());
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
    // A job without a density prints with the printer's own, even if 0 lies outside the bounds.
    const qint64 density = found ? densityRange().clamped(integerValue(stored)) : 0;
    m_outputBin.insert(key, QString::number(density));
    setEffectContent(key, density);
}

} // namespace corvana
