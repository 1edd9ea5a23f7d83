#include "printsetting/QXLaserPrintSettingPDE.h"

#include "panel/OptionKeywords.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

namespace {

constexpr QLatin1StringView kJapaneseLocalization{"Japanese"};
constexpr QLatin1StringView kSimplifiedChineseLocalization{"zh_CN"};
// From this model number on, the thin paper that is sold in China prints well with the normal
// setting, and the Japanese models do not offer bond paper.
constexpr int kFirstModelOfNewerFuser = 3;

} // namespace

void QXLaserPrintSettingPDE::checkLang()
{
    const QStringList preferred =
        pluginBundle ? Bundle::preferredLocalizations(pluginBundle->localizations())
                     : QStringList();
    const QString language = preferred.value(0);
    const bool newerFuser = ppd && ppd->model_number >= kFirstModelOfNewerFuser;
    setMode(kModeJapanese, language == kJapaneseLocalization);
    setMode(kModeThinPaperDefault, language == kJapaneseLocalization ||
                                       (language == kSimplifiedChineseLocalization && !newerFuser));
}

QString QXLaserPrintSettingPDE::inhibitedMediaType()
{
    if (!hasMode(kModeJapanese))
        return kPostCard;
    if (ppd && ppd->model_number >= kFirstModelOfNewerFuser)
        return kBond;
    return {};
}

QString QXLaserPrintSettingPDE::defaultMediaType()
{
    if (hasMode(kModeEnvelopePaper))
        return kEnv;
    if (paperName == kPostcardPaper)
        return hasMode(kModeJapanese) ? kPostCard : kThick;
    return hasMode(kModeThinPaperDefault) ? kThin : kPlain;
}

void QXLaserPrintSettingPDE::checkConstraints()
{
    QXPrintQualityPDE::checkConstraints();
    canSetManualSleep();
}

void QXLaserPrintSettingPDE::checkUIConstraints()
{
    QXPrintQualityPDE::checkUIConstraints();
    const bool fax = hasMode(kModeFaxOutput);
    if (!PPDSleepTimeKey.isNull())
        setSleepTimeUsable(!fax, !fax && hasMode(kModeManualSleep));
    // The base has just enabled the box.
    if (!fax && hasMode(kModeNoTonerSave) && tonerSaveButton)
        tonerSaveButton->setEnabled(false);
}

// `mode`: whether the user can choose who sets the sleep time. `minutes`: whether the user can
// enter the minutes.
void QXLaserPrintSettingPDE::setSleepTimeUsable(bool mode, bool minutes)
{
    const auto show = [](QLabel *label, bool usable) {
        if (label)
            setTextColor(label, usable ? ControlTextColor::Normal : ControlTextColor::Disabled);
    };
    const auto enable = [](QWidget *control, bool usable) {
        if (control)
            control->setEnabled(usable);
    };
    enable(sleepTimeMatrix, mode);
    enable(sleepTimePrefixLabel, mode);
    show(sleepTimePrefixLabel, mode);
    enable(sleepTimeSuffixLabel, minutes);
    show(sleepTimeSuffixLabel, minutes);
    enable(sleepTimeField, minutes);
    enable(sleepTimeStepper, minutes);
}

void QXLaserPrintSettingPDE::canSelectColorMode()
{
    const bool mono = storedChoice(kQXMonoColor) == kMono;
    setMode(kModeMono, mono);
    NotificationCenter::defaultCenter().post(kLaserPrintSettingNotification,
                                             pdePluginCallbackObject.get(), {{kQXMonoColor, mono}});
}

bool QXLaserPrintSettingPDE::isSimplexMode()
{
    const ppd_option_t *duplex = ppdOption(ppd, kDuplex);
    // One-sided is the option's default, whatever its choice is called.
    return !duplex || ppdIsMarked(ppd, duplex->keyword, duplex->defchoice);
}

void QXLaserPrintSettingPDE::checkStateWithPaperFeed() {}

void QXLaserPrintSettingPDE::changeState_forArray_toEnable_toDefault(QComboBox *popUp,
                                                                     const QStringList &choices,
                                                                     bool enable, bool toDefault)
{
    for (const QString &choice : choices)
        popup::setItemEnabled(popUp, popup::indexOfItemWithRepresentedObject(popUp, choice),
                              enable);
    if (!toDefault && popup::isItemEnabled(popUp, popUp->currentIndex()))
        return;
    QString fallback;
    if (popUp == mediaTypePopup)
        fallback = kPlain;
    else if (popUp == paperFeedPopup)
        fallback = kTray1;
    const int item = popup::indexOfItemWithRepresentedObject(popUp, fallback);
    if (item >= 0)
        popup::selectItemAt(popUp, item);
}

} // namespace corvana
