#include "printsetting/QXLaserPrintSettingPDE-roster.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QHeaderView>
#include <QStyle>
#include <QtMath>

#include "panel/OptionControl.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ViewFrame.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Units: points.
constexpr double kAdvancedHeight = 115.0;
constexpr double kImproveLabelDrop = 14.0;
constexpr double kColumnMargin = 12.0;

// A slider shows at most this many tick marks. Drawing millions of them would block the program.
constexpr qint64 kMostTickMarks = 200;

} // namespace

void QXLaserPrintSettingPDE::initializeAdvOption(const QList<QWidget *> &views)
{
    if (arrayController)
        arrayController->setSelectsInsertedObjects(false);
    addAdvancedRows();
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
        optionLabel->setText(localized(u"advancedItem"_s));
    for (QWidget *view : views) {
        if (auto *table = qobject_cast<QTableView *>(view))
            fitAdvancedTable(table);
    }
}

// The options of a row stand one after the other in the roster.
void QXLaserPrintSettingPDE::addAdvancedRows()
{
    AdvancedRow current;
    for (const Roster::Option &option : Roster::options()) {
        if (option.disclosure == Roster::Disclosure::MainPart || option.row == current)
            continue;
        current = option.row;
        addAdvancedRow(current);
    }
}

// The sleep time has a row only if the user can choose its minutes, whatever else the printer
// offers.
bool QXLaserPrintSettingPDE::hasAdvancedRow(const AdvancedRow &row) const
{
    if (row == kSleepTimeRow)
        return !PPDSleepTimeKey.isNull();
    // These two are choices of the quiet mode and no options, so that nothing is found. Every
    // version of the panel has asked for them.
    if (row == kQuietModeRow && (handles("UseDeviceSettings"_L1) || handles(kChoiceOn)))
        return true;
    const auto options = Roster::options();
    return std::any_of(options.begin(), options.end(), [&](const Roster::Option &option) {
        return option.disclosure == Roster::Disclosure::Opens && option.row == row &&
               handles(option.keyword);
    });
}

int QXLaserPrintSettingPDE::indexOfAdvancedRow(const AdvancedRow &row) const
{
    if (!arrayController)
        return -1;
    const QList<QVariantMap> &rows = arrayController->arrangedObjects();
    const auto found = std::find_if(rows.begin(), rows.end(), [&row](const QVariantMap &shown) {
        return shown.value(ArrayController::kId).toString() == row.id;
    });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

QString QXLaserPrintSettingPDE::advancedRowTitle(int index) const
{
    return arrayController->arrangedObjects().at(index).value(ArrayController::kLabel).toString();
}

void QXLaserPrintSettingPDE::addAdvancedRow(const AdvancedRow &row)
{
    QString label;
    if (row.label == AdvancedRow::Label::Localized) {
        setEffectContent(row.id, false);
        label = pluginBundle ? pluginBundle->localizedStringOrKey(row.id) : QString();
    } else if (const ppd_option_t *option = ppdOption(ppd, row.id)) {
        label = ppdText(option->text).value_or(QString());
    }
    if (!hasAdvancedRow(row) || label.isNull())
        return;
    addAdvOption_forKey(label, row.id);
    if (row.label == AdvancedRow::Label::Localized)
        setEffectContent(row.id, true);
    if (row == kDensityRow)
        titleDensityControls(label);
    else if (row == kImproveOutputRow && !handles(kQXImproveOutput))
        titleImproveBoxes(label);
}

void QXLaserPrintSettingPDE::titleDensityControls(const QString &text)
{
    titleLabel(densityLabel, ppdOption(ppd, kQXDensityAdjustment));
    if (densityField)
        densityField->setAccessibleName(text);
}

// Used when the printer has no choice between improvements: the label then titles the check boxes,
// which stand lower.
void QXLaserPrintSettingPDE::titleImproveBoxes(const QString &text)
{
    if (!improveLabel)
        return;
    improveLabel->setText(asTitle(text));
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
        const QString allowed =
            u"%1: %2 – %3"_s.arg(localized(u"AllowedNumbers"_s), QString::number(kSleepTimeMin),
                                 QString::number(kSleepTimeMax));
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

// If a label is wider than the table, its column grows and the table can be scrolled. Otherwise the
// table shows no scroll bar.
void QXLaserPrintSettingPDE::fitAdvancedTable(QTableView *table)
{
    table->setAccessibleName(localized(u"advancedItem"_s));
    if (!table->model())
        return;
    double widest = 0;
    for (const QVariantMap &row : arrayController->arrangedObjects()) {
        const QString label = row.value(ArrayController::kLabel).toString();
        widest = std::max(widest, QFontMetricsF(table->font()).horizontalAdvance(label));
    }
    const double scale = pixelsPerPoint(table);
    // The frame of the table and the margins of an item take this much room from its text.
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
