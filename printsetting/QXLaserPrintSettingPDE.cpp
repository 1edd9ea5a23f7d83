#include "printsetting/QXLaserPrintSettingPDE.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QHeaderView>
#include <QLoggingCategory>
#include <QStyle>
#include <QtMath>

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

constexpr QLatin1StringView kImproveOutputRow{"ImproveOutput"};
constexpr QLatin1StringView kOtherOptionRow{"OtherOption"};

} // namespace

// The further options, in the order of their table: one row for an option or a group of them.
struct QXLaserPrintSettingPDE::AdvancedRow
{
    enum class Label { OptionText, Localized };

    QLatin1StringView id;
    Label label;
    /// The row is there when the panel handles any of these.
    std::initializer_list<QLatin1StringView> keywords;

    static const AdvancedRow rows[];
};

// The last two keywords of the quiet mode are choices of it, not options, and find nothing; the
// test is kept as every version of the panel has had it. The sleep time is there when it has
// minutes to choose, whatever its keyword.
const QXLaserPrintSettingPDE::AdvancedRow QXLaserPrintSettingPDE::AdvancedRow::rows[] = {
    {kTonerSaveMode, Label::OptionText, {kTonerSaveMode}},
    {kImproveOutputRow, Label::Localized, {kQXImproveOutput, kQXReduceGhost, kQXFixIntensity}},
    {kQXDensityAdjustment, Label::OptionText, {kQXDensityAdjustment}},
    {kQXSleepTime, Label::OptionText, {kQXSleepTime}},
    {kQXQuietMode,
     Label::Localized,
     {kQXQuietMode, QLatin1StringView("UseDeviceSettings"), kChoiceOn}},
    {kOtherOptionRow, Label::Localized, {kQXSkipBlank}},
};

namespace {

// Units: points.
constexpr double kHeight = 160.0;
constexpr double kHeightWithoutPaperSource = 130.0;
constexpr double kPaperSourceRow = 30.0;
constexpr double kAdvancedHeight = 115.0;
constexpr double kImproveLabelDrop = 14.0;
constexpr double kColumnMargin = 12.0;

// Differs from the name of every listed paper, so that the paper in use is taken for a new one.
constexpr QLatin1StringView kPaperToJudgeAgain{"Custom"};

// More tick marks than this are no help, and drawing millions of them hangs.
constexpr qint64 kMostTickMarks = 200;

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

void QXLaserPrintSettingPDE::initializeAdvOption(const QList<QWidget *> &views)
{
    if (arrayController)
        arrayController->setSelectsInsertedObjects(false);
    for (const AdvancedRow &row : AdvancedRow::rows)
        addAdvancedRow(row);
    if (handles(kQXDensityAdjustment))
        prepareDensityControls();
    if (!PPDSleepTimeKey.isNull())
        prepareSleepTimeControls();
    if (!arrayController) {
        for (QWidget *view : views) {
            if (view)
                view->hide();
        }
        return;
    }
    arrayController->setSelectionIndex(0);
    if (optionLabel)
        optionLabel->setText(localized(QStringLiteral("advancedItem")));
    for (QWidget *view : views) {
        if (auto *table = qobject_cast<QTableView *>(view))
            fitAdvancedTable(table);
    }
}

void QXLaserPrintSettingPDE::addAdvancedRow(const AdvancedRow &row)
{
    const auto *found =
        std::find_if(row.keywords.begin(), row.keywords.end(),
                     [this](QLatin1StringView keyword) { return handles(keyword); });
    bool wanted = found != row.keywords.end();
    if (row.id == kQXSleepTime)
        wanted = !PPDSleepTimeKey.isNull(); // a sleep time without its minutes is not offered
    QString label;
    if (row.label == AdvancedRow::Label::Localized) {
        setEffectContent(row.id, false);
        label = pluginBundle ? pluginBundle->localizedStringOrKey(row.id) : QString();
    } else if (const ppd_option_t *option = ppdOption(ppd, row.id)) {
        label = ppdText(option->text).value_or(QString());
    }
    if (!wanted || label.isNull())
        return;
    addAdvOption_forKey(label, row.id);
    if (row.label == AdvancedRow::Label::Localized)
        setEffectContent(row.id, true);
    if (row.id == kQXDensityAdjustment)
        titleLabel(densityLabel, ppdOption(ppd, kQXDensityAdjustment));
    if (row.id == kQXDensityAdjustment && densityField)
        densityField->setAccessibleName(label);
    if (row.id != kImproveOutputRow || *found == kQXImproveOutput || !improveLabel)
        return;
    // Without the choice between improvements the label titles the boxes, which stand lower.
    improveLabel->setText(label + u':');
    ViewFrame frame = viewFrame(improveLabel);
    frame.y -= kImproveLabelDrop;
    setViewFrame(improveLabel, frame);
}

void QXLaserPrintSettingPDE::addAdvOption_forKey(const QString &label, const QString &identifier)
{
    if (arrayController)
        arrayController->addObject(
            {{ArrayController::kLabel, label}, {ArrayController::kId, identifier}});
}

void QXLaserPrintSettingPDE::prepareDensityControls()
{
    const QString key = QXLaserPrintSetting::densityParamKey();
    setEffectContent(key, integerValue(m_outputBin.value(key)));
    if (!densitySlider)
        return;
    densitySlider->setMaximum(controlValue(kDensityMax));
    densitySlider->setMinimum(controlValue(kDensityMin));
    const bool few = kDensityMax + 1 - kDensityMin <= kMostTickMarks;
    densitySlider->setTickPosition(few ? QSlider::TicksBelow : QSlider::NoTicks);
    densitySlider->setTickInterval(1);
}

void QXLaserPrintSettingPDE::prepareSleepTimeControls()
{
    const ppd_cparam_t *time = ppdCustomParameter(ppd, kQXSleepTime, kTimeParameter);
    const std::optional<QString> text = time ? ppdText(time->text) : std::nullopt;
    if (text && sleepTimeSuffixLabel)
        sleepTimeSuffixLabel->setText(*text);
    if (!sleepTimeStepper)
        return;
    sleepTimeStepper->setAccessibleName(text.value_or(QString()));
    const ProgrammaticChange change; // a stepper moves its value into a new range by itself
    sleepTimeStepper->setMinimum(controlValue(kSleepTimeMin));
    sleepTimeStepper->setMaximum(controlValue(kSleepTimeMax));
}

// Labels that are wider than the table can be scrolled to; else the table needs no scroll bar.
void QXLaserPrintSettingPDE::fitAdvancedTable(QTableView *table)
{
    table->setAccessibleName(localized(QStringLiteral("advancedItem")));
    if (!table->model())
        return;
    double widest = 0;
    for (const QVariantMap &row : arrayController->arrangedObjects()) {
        const QString label = row.value(ArrayController::kLabel).toString();
        widest = std::max(widest, QFontMetricsF(table->font()).horizontalAdvance(label));
    }
    const double scale = pixelsPerPoint(table);
    // What the frame and the margins of an item leave for its text.
    const int margins =
        2 * (table->frameWidth() + table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    if (widest > viewFrame(table).width * scale - margins) {
        table->horizontalHeader()->setStretchLastSection(false);
        table->setColumnWidth(table->model()->columnCount() - 1,
                              qCeil(widest + kColumnMargin * scale));
    } else {
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        table->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    }
}

void QXLaserPrintSettingPDE::toggleShowOption(QWidget *button)
{
    const ViewFrame frame = viewFrame(m_panelView);
    const auto *disclosure = qobject_cast<const QAbstractButton *>(button);
    const bool discloses = disclosure && disclosure->isChecked();
    setViewFrameSize(frame.width, frame.height + (discloses ? kAdvancedHeight : -kAdvancedHeight));
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
