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

Q_LOGGING_CATEGORY(lcPrintSetting, "corvana.printsetting", QtWarningMsg)

namespace {

// Units: points.
constexpr double kHeight = 160.0;
constexpr double kHeightWithoutPaperSource = 130.0;
constexpr double kPaperSourceRow = 30.0;

// Differs from the name of every listed paper, so that the paper in use is taken for a new one.
constexpr QLatin1StringView kPaperToJudgeAgain{"Custom"};

} // namespace

// One row an option: the one table behind determineUI(), determineLabel() and determineKey().
struct QXLaserPrintSettingPDE::Roster
{
    using Panel = QXLaserPrintSettingPDE;
    using Lookup = QWidget *(*)(const Panel &);

    template <auto Field> static QWidget *field(const Panel &panel)
    {
        return (panel.*Field).data();
    }
    static QWidget *none(const Panel &) { return nullptr; }

    struct Row
    {
        QLatin1StringView keyword; // empty: the resolution, whose keyword depends on the PPD
        Lookup control;
        Lookup label;

        QString keywordIn(const Panel &panel) const
        {
            return keyword.isEmpty() ? panel.PPDResolutionKey : QString(keyword);
        }
    };

    static constexpr Row rows[] = {
        {QLatin1StringView(), field<&Panel::resolutionPopup>, field<&Panel::resolutionLabel>},
        {kQXMediaType, field<&Panel::mediaTypePopup>, field<&Panel::mediaTypeLabel>},
        {kQXMonoColor, field<&Panel::monoColorPopup>, field<&Panel::monoColorLabel>},
        {kQXInputSlot, field<&Panel::paperFeedPopup>, field<&Panel::paperFeedLabel>},
        {kQXSleepTime, field<&Panel::sleepTimeMatrix>, field<&Panel::sleepTimePrefixLabel>},
        {kTonerSaveMode, field<&Panel::tonerSaveButton>, none},
        {kQXSkipBlank, field<&Panel::skipBlankButton>, none},
        {kQXQuietMode, field<&Panel::quietModeMatrix>, none},
        {kQXImproveOutput, field<&Panel::improveMatrix>, field<&Panel::improveLabel>},
        {kQXLessPaperCurl, field<&Panel::reducePaperButton>, none},
        {kQXFixIntensity, field<&Panel::improveTonerfixButton>, none},
        {kQXReduceGhost, field<&Panel::reduceGhostButton>, none},
        {kQXDensityAdjustment, field<&Panel::densitySlider>, field<&Panel::densityLabel>},
    };

    static const Row *rowOf(const QXLaserPrintSettingPDE &panel, const QString &keyword)
    {
        for (const Row &row : rows) {
            if (!keyword.isEmpty() && row.keywordIn(panel) == keyword)
                return &row;
        }
        return nullptr;
    }
};

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
    return localized(QStringLiteral("Print Setting"));
}

void QXLaserPrintSettingPDE::connectInterface(InterfaceConnections &connections)
{
    QXPrintQualityPDE::connectInterface(connections);
    connections.controlClass(QStringLiteral("ExtraAccessoryView"), [](QWidget *parent) {
        auto *view = new ExtraAccessoryView(parent);
        view->awakeFromNib();
        return view;
    });
    connections.arrayController(QStringLiteral("arrayController"), arrayController);
    connections.textFieldDelegate(
        QStringLiteral("panel"),
        {[this](const Notification &notification) { controlTextDidChange(notification); },
         [this](QWidget *control, const QString &editorText) {
             return control_textShouldEndEditing(control, editorText);
         }});
    connections.outlet(QStringLiteral("advancedTabView"), advancedTabView);
    connections.outlet(QStringLiteral("advancedTableView"), advancedTableView);
    connections.outlet(QStringLiteral("tonerSaveButton"), tonerSaveButton);
    connections.outlet(QStringLiteral("improveMatrix"), improveMatrix);
    connections.outlet(QStringLiteral("reducePaperButton"), reducePaperButton);
    connections.outlet(QStringLiteral("improveTonerfixButton"), improveTonerfixButton);
    connections.outlet(QStringLiteral("reduceGhostButton"), reduceGhostButton);
    connections.outlet(QStringLiteral("densityField"), densityField);
    connections.outlet(QStringLiteral("densitySlider"), densitySlider);
    connections.outlet(QStringLiteral("sleepTimeField"), sleepTimeField);
    connections.outlet(QStringLiteral("sleepTimeStepper"), sleepTimeStepper);
    connections.outlet(QStringLiteral("sleepTimeMatrix"), sleepTimeMatrix);
    connections.outlet(QStringLiteral("skipBlankButton"), skipBlankButton);
    connections.outlet(QStringLiteral("quietModeMatrix"), quietModeMatrix);
    connections.outlet(QStringLiteral("optionLabel"), optionLabel);
    connections.outlet(QStringLiteral("densityLabel"), densityLabel);
    connections.outlet(QStringLiteral("improveLabel"), improveLabel);
    connections.outlet(QStringLiteral("sleepTimePrefixLabel"), sleepTimePrefixLabel);
    connections.outlet(QStringLiteral("sleepTimeSuffixLabel"), sleepTimeSuffixLabel);
    connections.outlet(QStringLiteral("accessoryView"), accessoryView);
    connections.outlet(QStringLiteral("mediaTypePopup"), mediaTypePopup);
    connections.outlet(QStringLiteral("resolutionPopup"), resolutionPopup);
    connections.outlet(QStringLiteral("monoColorPopup"), monoColorPopup);
    connections.outlet(QStringLiteral("paperFeedPopup"), paperFeedPopup);
    connections.outlet(QStringLiteral("mediaTypeLabel"), mediaTypeLabel);
    connections.outlet(QStringLiteral("resolutionLabel"), resolutionLabel);
    connections.outlet(QStringLiteral("monoColorLabel"), monoColorLabel);
    connections.outlet(QStringLiteral("paperFeedLabel"), paperFeedLabel);
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
    PPDSleepTimeKey = QStringLiteral("%1_%2").arg(kQXSleepTime, kTimeParameter);
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

// The PPD's default is in force for an option whose value the panel has not taken over yet.
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

QWidget *QXLaserPrintSettingPDE::determineUI(const QString &keyword)
{
    const Roster::Row *row = Roster::rowOf(*this, keyword);
    return row ? row->control(*this) : nullptr;
}

QWidget *QXLaserPrintSettingPDE::determineLabel(const QString &keyword)
{
    const Roster::Row *row = Roster::rowOf(*this, keyword);
    return row ? row->label(*this) : nullptr;
}

QString QXLaserPrintSettingPDE::determineKey(QWidget *control)
{
    for (const Roster::Row &row : Roster::rows) {
        if (control && row.control(*this) == control)
            return row.keywordIn(*this);
    }
    return {};
}

} // namespace corvana
