#include "printsetting/QXLaserPrintSettingPDE.h"

#include <QLoggingCategory>

#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ViewFrame.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPrintSetting, "corvana.printsetting", QtWarningMsg)

namespace {

// Units: points.
constexpr double kHeight = 160.0;
constexpr double kHeightWithoutPaperSource = 130.0;
constexpr double kPaperSourceRow = 30.0;

// No listed paper has this name. With it as the former name, the paper in use counts as a new one.
constexpr QLatin1StringView kPaperToJudgeAgain{"Custom"};

} // namespace

QXLaserPrintSettingPDE::~QXLaserPrintSettingPDE()
{
    dealloc();
}

bool QXLaserPrintSettingPDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    if (!QXPrintQualityPDE::initWithCallback(callback))
        return false;
    paperName = QString();
    checkLang();
    readPageSetup();
    setDefaults();
    NotificationCenter::defaultCenter().addObserver(
        this, QLatin1StringView(kPrintDestinationPaperDidChangeNotification), nullptr,
        [this](const Notification &notification) { checkPageSizeChange(notification); });
    return true;
}

QString QXLaserPrintSettingPDE::panelName()
{
    return localized(u"Print Setting"_s);
}

void QXLaserPrintSettingPDE::connectInterface(InterfaceConnections &connections)
{
    QXPrintQualityPDE::connectInterface(connections);
    connections.controlClass(u"ExtraAccessoryView"_s, [](QWidget *parent) {
        auto *view = new ExtraAccessoryView(parent);
        view->awakeFromNib();
        return view;
    });
    connections.arrayController(u"arrayController"_s, arrayController);
    connections.textFieldDelegate(
        u"panel"_s,
        {[this](const Notification &notification) { controlTextDidChange(notification); },
         [this](QWidget *control, const QString &editorText) {
             return control_textShouldEndEditing(control, editorText);
         }});
    connectOutlets(connections);
}

std::optional<QStringList> QXLaserPrintSettingPDE::supportedPPDOptionKeys()
{
    std::optional<QStringList> keywords = QXPrintQualityPDE::supportedPPDOptionKeys();
    if (!PPDSleepTimeKey.isNull())
        keywords = keywords.value_or(QStringList()) << PPDSleepTimeKey;
    return keywords;
}

std::optional<QStringList> QXLaserPrintSettingPDE::availablePPDOptionKeys()
{
    return QXPrintQualityPDE::availablePPDOptionKeys();
}

void QXLaserPrintSettingPDE::willShow()
{
    QXPrintQualityPDE::willShow();
    updateUI();
}

void QXLaserPrintSettingPDE::setPPDKeys(const std::optional<QStringList> &keywords)
{
    QXPrintQualityPDE::setPPDKeys(keywords);
    if (PPDSleepTimeKey.isNull())
        prepareSleepTime();
    PPDResolutionKey = handles(kQXResolution) ? kQXResolution : kResolution;
}

void QXLaserPrintSettingPDE::prepareSleepTime()
{
    // The longer default suits the fusers of the older models.
    constexpr int kFirstModelWithShortSleepTime = 4;
    const bool olderModel = ppd && ppd->model_number < kFirstModelWithShortSleepTime;
    kSleepTimeDefault = olderModel ? 5 : 3;
    const ValueBounds bounds = sleepTimeBounds(ppd);
    kSleepTimeMin = bounds.minimum;
    kSleepTimeMax = bounds.maximum;
    if (!ppdHasCustomOption(ppd, kQXSleepTime))
        return;
    if (!ppdCustomParameter(ppd, kQXSleepTime, kTimeParameter)) {
        qCWarning(lcPrintSetting) << "the PPD's custom option" << kQXSleepTime
                                  << "lacks the parameter" << kTimeParameter;
        return;
    }
    PPDSleepTimeKey = u"%1_%2"_s.arg(kQXSleepTime, kTimeParameter);
    m_outputBin.insert(PPDSleepTimeKey, QString::number(kSleepTimeDefault));
}

void QXLaserPrintSettingPDE::setDefaults()
{
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        const ppd_option_t *option = ppdOption(ppd, keyword);
        if (!option)
            continue;
        const QString defaultChoice = ppdKeyword(option->defchoice);
        bool mustSet = false;
        if (m_outputBin.value(keyword) != QVariant(defaultChoice)) {
            if (ppdIsMarked(ppd, option->keyword, option->defchoice))
                resetDefaultedOption(keyword);
            else
                mustSet = !ppdMarkedChoice(ppd, keyword);
        }
        QString value = defaultChoice;
        if (keyword == kQXMediaType) {
            value = defaultMediaType();
            const ppd_choice_t *marked = ppdMarkedChoice(ppd, keyword);
            mustSet = mustSet || (marked && ppdKeyword(marked->choice) == inhibitedMediaType());
        }
        if (mustSet && askHost(keyword, value))
            m_outputBin.insert(keyword, value);
    }
}

// Called for an option whose default choice is marked while the panel still holds another one.
void QXLaserPrintSettingPDE::resetDefaultedOption(const QString &keyword)
{
    if (keyword == kQXMediaType) {
        paperName = kPaperToJudgeAgain;
        readPageSetup();
    } else if (keyword == kQXDensityAdjustment) {
        const ValueBounds bounds = densityBounds(ppd);
        kDensityMin = bounds.minimum;
        kDensityMax = bounds.maximum;
        m_outputBin.insert(QXLaserPrintSetting::densityParamKey(), qint64(0));
        setEffectContent(QXLaserPrintSetting::densityParamKey(), qint64(0));
    }
}

void QXLaserPrintSettingPDE::initializePopup()
{
    if (popupInited)
        return;
    QXPrintQualityPDE::initializePopup();
    auto *mediaTypes = qobject_cast<QComboBox *>(determineUI(kQXMediaType));
    const QString inhibited = inhibitedMediaType();
    if (mediaTypes && !inhibited.isNull())
        popup::removeItemAt(mediaTypes,
                            popup::indexOfItemWithRepresentedObject(mediaTypes, inhibited));
    const QList<QWidget *> advanced{optionLabel, optionButton, advancedTabView, advancedTableView};
    initializeAdvOption(advanced);
    double height = kHeight;
    if (!handles(kQXInputSlot)) {
        adjustUIPosition_forParts(kPaperSourceRow, advanced);
        height = kHeightWithoutPaperSource;
    }
    ViewFrame frame = viewFrame(m_panelView);
    frame.height = height;
    setViewFrame(m_panelView, frame);
    restoreOptionState();
}

} // namespace corvana
