#pragma once

#include <span>

#include "panel/Outlet.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSettingPDE.h"

namespace corvana {

using namespace Qt::StringLiterals;

/// A row of the table of advanced options: one option, or several that stand on one page.
struct AdvancedRow
{
    /// What the row is called: the PPD's text of the option that it is named after, or a text of
    /// the bundle.
    enum class Label { OptionText, Localized };

    QLatin1StringView id;
    Label label = Label::OptionText;

    bool operator==(const AdvancedRow &) const = default;
};

inline constexpr AdvancedRow kTonerSaveRow{kTonerSaveMode, AdvancedRow::Label::OptionText};
inline constexpr AdvancedRow kImproveOutputRow{"ImproveOutput"_L1, AdvancedRow::Label::Localized};
inline constexpr AdvancedRow kDensityRow{kQXDensityAdjustment, AdvancedRow::Label::OptionText};
inline constexpr AdvancedRow kSleepTimeRow{kQXSleepTime, AdvancedRow::Label::OptionText};
inline constexpr AdvancedRow kQuietModeRow{"QXQuietMode"_L1, AdvancedRow::Label::Localized};
inline constexpr AdvancedRow kOtherOptionRow{"OtherOption"_L1, AdvancedRow::Label::Localized};

/// The panel's options, one row each. Look-ups, outlets and the table of advanced options are all
/// made from these rows: a further option is a row here with its field, its controls in the
/// interface file, its keyword in the bundle's list, and its texts.
struct QXLaserPrintSettingPDE::Roster
{
    using Panel = QXLaserPrintSettingPDE;

    /// What an option means for its row of the advanced options.
    enum class Disclosure {
        MainPart, ///< it has none: it is always on the page
        Opens,    ///< the row is there when the printer has the option
        Joins     ///< it stands on the page of a row that other options bring
    };

    struct Option
    {
        QLatin1StringView keyword; ///< empty: the resolution, whose keyword depends on the PPD
        Outlet<Panel> control;
        Outlet<Panel> label;
        Disclosure disclosure = Disclosure::MainPart;
        AdvancedRow row = {};

        QString keywordIn(const Panel &panel) const
        {
            return keyword.isEmpty() ? panel.PPDResolutionKey : QString(keyword);
        }
    };

    /// The options of an advanced row stand one after the other, in the order of the rows.
    static std::span<const Option> options();
    /// Controls that show no option of their own.
    static std::span<const Outlet<Panel>> furtherOutlets();

    /// Controls that set the same as an option's control: a number beside a slider or a choice.
    static QList<QWidget *> companions(const Panel &panel, const QString &keyword);

    static const Option *find(const Panel &panel, const QString &keyword);
};

} // namespace corvana
