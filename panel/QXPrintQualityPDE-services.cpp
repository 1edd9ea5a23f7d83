#include "panel/QXPrintQualityPDE.h"

#include "platform/foundation/Values.h"

namespace corvana {

namespace {

constexpr QLatin1StringView kColorSettingSuffix{"ColorSetting"};
constexpr QLatin1StringView kAdvancedColorItem{"advancedcolorItem"};
constexpr QLatin1StringView kAdvancedItem{"advancedItem"};
constexpr QLatin1StringView kPrintSettingsPrefix{"com.corvana.print.PrintSettings."};
constexpr QLatin1StringView kHelpAnchor{"QxHelpAnchor"};

} // namespace

QString QXPrintQualityPDE::optionName()
{
    return thePDEName().endsWith(kColorSettingSuffix) ? kAdvancedColorItem : kAdvancedItem;
}

void QXPrintQualityPDE::restoreOptionState()
{
    const QString key = optionName();
    QVariant stored;
    const bool found = PMPrintSettingsGetValue(printSettings(), kPrintSettingsPrefix + key, &stored)
        == kPMNoError;
    if (!effectContent)
        return;
    const bool current = booleanValue(effectContent->value(key));
    const bool wanted = found && booleanValue(stored);
    if (wanted == current)
        return;
    effectContent->setValue(key, wanted);
    toggleShowOption(optionButton);
}

void QXPrintQualityPDE::saveOptionState()
{
    const QString key = optionName();
    const bool disclosed = effectContent && booleanValue(effectContent->value(key));
    PMPrintSettingsSetValue(printSettings(), kPrintSettingsPrefix + key, disclosed, false);
}

void QXPrintQualityPDE::toggleShowOption(QWidget *) { }

void QXPrintQualityPDE::setViewFrameSize(double, double) { }

void QXPrintQualityPDE::dialogDidExpand(const Notification &) { }

void QXPrintQualityPDE::adjustUIPosition_forParts(double, const QList<QWidget *> &) { }

void QXPrintQualityPDE::changeImage_ofView(const QString &, QLabel *) { }

bool QXPrintQualityPDE::registerHelp()
{
    return false;
}

QString QXPrintQualityPDE::helpAnchor()
{
    return kHelpAnchor;
}

QString QXPrintQualityPDE::helpBook()
{
    return pluginBundle ? pluginBundle->infoString(kCFBundleHelpBookNameKey) : QString();
}

bool QXPrintQualityPDE::shouldShowHelp()
{
    // Without a registered help book the host shows its own help.
    return true;
}

void QXPrintQualityPDE::showHelpFile(QWidget *)
{
    if (hasMode(kModeHelpRegistered))
        shouldShowHelp();
}

bool QXPrintQualityPDE::shouldShowAlert(const QString &)
{
    return true;
}

void QXPrintQualityPDE::alertDidEnd_returnCode_contextInfo(const AlertAnswer &, int,
                                                           const QString &)
{
}

} // namespace corvana
