#include "printsetting/QXLaserPrintSettingPDE.h"

#include <cmath>

#include <QLoggingCategory>

#include "panel/OptionKeywords.h"
#include "platform/printcore/PageFormat.h"
#include "platform/toolkit/MenuActions.h"
#include "platform/toolkit/PopUpButton.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPaper, "corvana.printsetting.paper", QtWarningMsg)

namespace {

constexpr QLatin1StringView kFrontPaperAlertFormat{"FrontPaper_%1"};

// From this model number on, printers have the front paper feed that the alert shows.
constexpr int kFirstModelWithFrontFeed = 5;
constexpr QLatin1StringView kFrontFeedMedia[] = {kGlossy, kEnv,   kEnvThick, kEnvThin,
                                                 kLabel,  kThick, kThicker,  kBond};

// Printers know sizes in whole points only, so that fractions are rounded before they are compared.
bool isWithin(double size, float least, float most)
{
    const double whole = std::round(size);
    return whole <= static_cast<double>(most) && static_cast<double>(least) <= whole;
}

} // namespace

bool QXLaserPrintSettingPDE::readPageSetup()
{
    QVariant mapped;
    QString name;
    if (PMPrintSettingsGetValue(printSettings(), kPageToPaperMappingEntry, &mapped) == kPMNoError &&
        mapped.isValid()) {
        name = mapped.toString();
    } else {
        // Once a panel has its options, only the host tells it of a new paper.
        if (!PPDKeys) {
            const QLatin1StringView acts(kMenuDidSendActionNotification);
            NotificationCenter::defaultCenter().removeObserver(this, acts, nullptr); // only once
            NotificationCenter::defaultCenter().addObserver(
                this, acts, nullptr,
                [this](const Notification &notification) { checkPageSizeChange(notification); });
        }
        name = pagePaperName();
        if (name.isNull())
            return false;
    }
    if ((name == kLetterPaper || name.contains(kCustom)) && !pagePaperFits())
        name = kUnsupportedPaper;

    if (!paperName.isNull() && paperName == name)
        return false;
    const bool first = paperName.isNull();
    paperName = name;
    // A medium that was chosen before the paper was looked at is kept.
    const QString medium = storedChoice(kQXMediaType);
    if (first && !medium.isNull() && medium != kPlain)
        return false;
    setMode(kModeEnvelopePaper, paperName.startsWith(kEnv));
    const QString imposed = defaultMediaType();
    if (!imposed.isNull() && askHost(kQXMediaType, imposed))
        m_outputBin.insert(kQXMediaType, imposed);
    return true;
}

// The name of the page's paper; null when there is none. A host without print settings has no job
// any more: the panel then ends all its observations.
QString QXLaserPrintSettingPDE::pagePaperName()
{
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(PDECallbackOperation::printSettings))
        return {};
    if (!pdePluginCallbackObject->printSettings()) {
        qCInfo(lcPaper) << "the host has no print settings any more: papers are not followed";
        NotificationCenter::defaultCenter().removeObserver(this);
        return {};
    }
    if (!pdePluginCallbackObject->respondsTo(PDECallbackOperation::pageFormat))
        return {};
    PMPaper paper = nullptr;
    QString name;
    if (PMGetPageFormatPaper(pdePluginCallbackObject->pageFormat(), &paper) != kPMNoError ||
        !paper || PMPaperGetName(paper, &name) != kPMNoError)
        return {};
    return name;
}

// Whether the printer can take the page's paper. It can always take a size that the PPD lists. A
// paper whose size cannot be read is not refused.
bool QXLaserPrintSettingPDE::pagePaperFits()
{
    PMPaper paper = nullptr;
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(PDECallbackOperation::pageFormat) ||
        PMGetPageFormatPaper(pdePluginCallbackObject->pageFormat(), &paper) != kPMNoError || !paper)
        return true;
    QString listed;
    double width = 0;
    double height = 0;
    const bool isListed = PMPaperGetPPDPaperName(paper, &listed) == kPMNoError && !listed.isNull();
    if (PMPaperGetWidth(paper, &width) != kPMNoError ||
        PMPaperGetHeight(paper, &height) != kPMNoError || isListed || !ppd)
        return true;
    return isWithin(width, ppd->custom_min[0], ppd->custom_max[0]) &&
           isWithin(height, ppd->custom_min[1], ppd->custom_max[1]);
}

void QXLaserPrintSettingPDE::checkPageSizeChange(const Notification &notification)
{
    try {
        if (notification.name == QLatin1StringView(kMenuDidSendActionNotification)) {
            // Only the menu with the paper sizes counts.
            const auto *menu = static_cast<const QComboBox *>(notification.sender);
            if (!menu || popup::indexOfItemWithTitle(menu, localized(u"A4"_s)) < 0 ||
                !notification.hasUserInfo || !pluginBundle)
                return;
        }
        if (!readPageSetup())
            return;
        checkConstraints();
        if (popupInited) {
            checkUIConstraints();
            updateUI();
        }
        if (storedChoice(kQXMediaType) != kEnv)
            return;
        panelView();
        const QString alertKey = QString(kFrontPaperAlertFormat).arg(kEnv);
        if (shouldShowAlert(alertKey))
            showAlertWhenSelectMediaKey_withAlertKey(kQXMediaType, alertKey);
    } catch (const std::exception &exception) {
        qCWarning(lcPaper) << "papers are not followed any more:" << exception.what();
        NotificationCenter::defaultCenter().removeObserver(this);
    } catch (...) {
        qCWarning(lcPaper) << "papers are not followed any more: unknown exception";
        NotificationCenter::defaultCenter().removeObserver(this);
    }
}

void QXLaserPrintSettingPDE::requestNewOutputBin(QWidget *control)
{
    if (auto *stepper = qobject_cast<Stepper *>(control))
        takeSteppedSleepTime(stepper);
    checkConstraints();
    QXPrintQualityPDE::requestNewOutputBin(control);
    const QString keyword = determineKey(control);
    if (keyword == kQXInputSlot)
        checkStateWithPaperFeed();
    else if (keyword == kQXMediaType)
        checkChangedMediaType();
    else if (keyword == kQXMonoColor)
        canSelectColorMode();
    else if (keyword == kQXSleepTime)
        canSetManualSleep();
    else if (keyword == kQXDensityAdjustment)
        saveDensityValue();
}

void QXLaserPrintSettingPDE::checkChangedMediaType()
{
    if (!ppd || ppd->model_number < kFirstModelWithFrontFeed)
        return;
    const QString medium = storedChoice(kQXMediaType);
    for (const QLatin1StringView candidate : kFrontFeedMedia) {
        if (medium != candidate)
            continue;
        const QString alertKey = QString(kFrontPaperAlertFormat).arg(medium);
        if (shouldShowAlert(alertKey))
            showAlertWhenSelectMediaKey_withAlertKey(kQXMediaType, alertKey);
        return;
    }
}

} // namespace corvana
