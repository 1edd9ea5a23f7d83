// The table behind determineUI(), determineLabel(), determineKey() and the outlets.

#include "printsetting/QXLaserPrintSettingPDE-roster.h"

#include <algorithm>

#include "panel/OptionKeywords.h"

namespace corvana {

using namespace Qt::StringLiterals;

using Panel = QXLaserPrintSettingPDE;

std::span<const QXLaserPrintSettingPDE::Roster::Option> QXLaserPrintSettingPDE::Roster::options()
{
    constexpr Outlet<Panel> noLabel;
    static constexpr Option rows[] = {
        {kQXMediaType, outlet<&Panel::mediaTypePopup>("mediaTypePopup"_L1),
         outlet<&Panel::mediaTypeLabel>("mediaTypeLabel"_L1)},
        {""_L1, outlet<&Panel::resolutionPopup>("resolutionPopup"_L1),
         outlet<&Panel::resolutionLabel>("resolutionLabel"_L1)},
        {kQXMonoColor, outlet<&Panel::monoColorPopup>("monoColorPopup"_L1),
         outlet<&Panel::monoColorLabel>("monoColorLabel"_L1)},
        {kQXInputSlot, outlet<&Panel::paperFeedPopup>("paperFeedPopup"_L1),
         outlet<&Panel::paperFeedLabel>("paperFeedLabel"_L1)},
        {kTonerSaveMode, outlet<&Panel::tonerSaveButton>("tonerSaveButton"_L1), noLabel,
         Disclosure::Opens, kTonerSaveRow},
        {kQXImproveOutput, outlet<&Panel::improveMatrix>("improveMatrix"_L1),
         outlet<&Panel::improveLabel>("improveLabel"_L1), Disclosure::Opens, kImproveOutputRow},
        {"QXReduceGhost"_L1, outlet<&Panel::reduceGhostButton>("reduceGhostButton"_L1), noLabel,
         Disclosure::Opens, kImproveOutputRow},
        {kQXFixIntensity, outlet<&Panel::improveTonerfixButton>("improveTonerfixButton"_L1),
         noLabel, Disclosure::Opens, kImproveOutputRow},
        {kQXLessPaperCurl, outlet<&Panel::reducePaperButton>("reducePaperButton"_L1), noLabel,
         Disclosure::Joins, kImproveOutputRow},
        {kQXDensityAdjustment, outlet<&Panel::densitySlider>("densitySlider"_L1),
         outlet<&Panel::densityLabel>("densityLabel"_L1), Disclosure::Opens, kDensityRow},
        {kQXSleepTime, outlet<&Panel::sleepTimeMatrix>("sleepTimeMatrix"_L1),
         outlet<&Panel::sleepTimePrefixLabel>("sleepTimePrefixLabel"_L1), Disclosure::Opens,
         kSleepTimeRow},
        {"QXQuietMode"_L1, outlet<&Panel::quietModeMatrix>("quietModeMatrix"_L1), noLabel,
         Disclosure::Opens, kQuietModeRow},
        {"QXSkipBlank"_L1, outlet<&Panel::skipBlankButton>("skipBlankButton"_L1), noLabel,
         Disclosure::Opens, kOtherOptionRow},
    };
    return rows;
}

std::span<const Outlet<Panel>> QXLaserPrintSettingPDE::Roster::furtherOutlets()
{
    static constexpr Outlet<Panel> outlets[] = {
        outlet<&Panel::advancedTabView>("advancedTabView"_L1),
        outlet<&Panel::advancedTableView>("advancedTableView"_L1),
        outlet<&Panel::optionLabel>("optionLabel"_L1),
        outlet<&Panel::densityField>("densityField"_L1),
        outlet<&Panel::sleepTimeField>("sleepTimeField"_L1),
        outlet<&Panel::sleepTimeStepper>("sleepTimeStepper"_L1),
        outlet<&Panel::sleepTimeSuffixLabel>("sleepTimeSuffixLabel"_L1),
        outlet<&Panel::accessoryView>("accessoryView"_L1),
    };
    return outlets;
}

QList<QWidget *> QXLaserPrintSettingPDE::Roster::companions(const Panel &panel,
                                                            const QString &keyword)
{
    if (keyword == kQXDensityAdjustment)
        return {panel.densityField};
    if (keyword == kQXSleepTime)
        return {panel.sleepTimeField, panel.sleepTimeStepper};
    return {};
}

const QXLaserPrintSettingPDE::Roster::Option *
QXLaserPrintSettingPDE::Roster::find(const Panel &panel, const QString &keyword)
{
    const auto rows = options();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const Option &option) {
        return !keyword.isEmpty() && option.keywordIn(panel) == keyword;
    });
    return found == rows.end() ? nullptr : &*found;
}

// A setting whose row the panel has not is found nowhere, though it has a control in the interface
// file.
QList<PanelControl> QXLaserPrintSettingPDE::controls()
{
    QList<PanelControl> found;
    for (const Roster::Option &option : Roster::options()) {
        std::optional<PanelControl> control = boundControl(option.keywordIn(*this));
        if (!control)
            continue;
        if (option.disclosure != Roster::Disclosure::MainPart) {
            const int row = indexOfAdvancedRow(option.row);
            if (row < 0)
                continue;
            control->sections = {advancedTitle(), advancedRowTitle(row)};
        }
        control->companions = Roster::companions(*this, control->keyword);
        found += *control;
    }
    return found;
}

void QXLaserPrintSettingPDE::disclose(const QString &keyword)
{
    const Roster::Option *option = Roster::find(*this, keyword);
    const int row = option && option->disclosure != Roster::Disclosure::MainPart
                        ? indexOfAdvancedRow(option->row)
                        : -1;
    if (row < 0)
        return;
    openAdvancedPart();
    arrayController->setSelectionIndex(row);
}

void QXLaserPrintSettingPDE::connectOutlets(InterfaceConnections &connections)
{
    for (const Roster::Option &option : Roster::options()) {
        option.control.connect(*this, connections);
        option.label.connect(*this, connections);
    }
    for (const Outlet<Panel> &outlet : Roster::furtherOutlets())
        outlet.connect(*this, connections);
}

QWidget *QXLaserPrintSettingPDE::determineUI(const QString &keyword)
{
    const Roster::Option *option = Roster::find(*this, keyword);
    return option ? option->control.widget(*this) : nullptr;
}

QWidget *QXLaserPrintSettingPDE::determineLabel(const QString &keyword)
{
    const Roster::Option *option = Roster::find(*this, keyword);
    return option ? option->label.widget(*this) : nullptr;
}

QString QXLaserPrintSettingPDE::determineKey(QWidget *control)
{
    for (const Roster::Option &option : Roster::options()) {
        if (control && option.control.widget(*this) == control)
            return option.keywordIn(*this);
    }
    return {};
}

} // namespace corvana
