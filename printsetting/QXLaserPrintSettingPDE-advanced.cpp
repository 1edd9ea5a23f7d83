#include "printsetting/QXLaserPrintSettingPDE.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QHeaderView>
#include <QStyle>
#include <QtMath>

#include "panel/OptionControl.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ViewFrame.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"

namespace corvana {

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
constexpr double kAdvancedHeight = 115.0;
constexpr double kImproveLabelDrop = 14.0;
constexpr double kColumnMargin = 12.0;

// More tick marks than this are no help, and drawing millions of them hangs.
constexpr qint64 kMostTickMarks = 200;

} // namespace

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
    if (sleepTimeField) {
        const QString allowed = QStringLiteral("%1: %2 – %3")
                                    .arg(localized(QStringLiteral("AllowedNumbers")))
                                    .arg(kSleepTimeMin)
                                    .arg(kSleepTimeMax);
        sleepTimeField->setToolTip(allowed);
        sleepTimeField->setAccessibleDescription(allowed);
    }
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
    resizeForDisclosure(button, kAdvancedHeight);
}

} // namespace corvana
