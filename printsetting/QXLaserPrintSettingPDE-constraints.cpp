#include "printsetting/QXLaserPrintSettingPDE.h"

#include "panel/OptionKeywords.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

namespace {

constexpr QLatin1StringView kJapaneseLocalization{"Japanese"};
constexpr QLatin1StringView kSimplifiedChineseLocalization{"zh_CN"};
// From this model number on, paper sold in Japan and China prints well with the normal setting.
constexpr int kFirstModelForHeavierPaper = 3;

} // namespace

void QXLaserPrintSettingPDE::checkLang()
{
    const QStringList preferred =
        pluginBundle ? Bundle::preferredLocalizations(pluginBundle->localizations())
                     : QStringList();
    const QString language = preferred.value(0);
    const bool heavierPaper = ppd && ppd->model_number >= kFirstModelForHeavierPaper;
    setMode(kModeJapanese, language == kJapaneseLocalization);
    setMode(kModeThinPaperDefault,
            language == kJapaneseLocalization ||
                (language == kSimplifiedChineseLocalization && !heavierPaper));
}

QString QXLaserPrintSettingPDE::inhibitedMediaType()
{
    if (!hasMode(kModeJapanese))
        return kPostCard;
    if (ppd && ppd->model_number >= kFirstModelForHeavierPaper)
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

void QXLaserPrintSettingPDE::requestNewOutputBin(QWidget *control)
{
    checkConstraints();
    QXPrintQualityPDE::requestNewOutputBin(control);
    const QString keyword = determineKey(control);
    if (keyword == kQXInputSlot)
        checkStateWithPaperFeed();
    else if (keyword == kQXMonoColor)
        canSelectColorMode();
}

} // namespace corvana
