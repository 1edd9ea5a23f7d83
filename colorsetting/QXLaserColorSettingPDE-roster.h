#pragma once

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/Effects.h"
#include "colorsetting/QXLaserColorSettingPDE.h"
#include "panel/Outlet.h"

namespace corvana {

/// The panel's options and effects, one row each. Look-ups and outlets are made from these rows.
struct QXLaserColorSettingPDE::Roster
{
    using Panel = QXLaserColorSettingPDE;

    struct Option
    {
        QLatin1StringView keyword;
        Outlet<Panel> control;
        Outlet<Panel> label; ///< none: the control has its title itself
    };
    struct EffectControls
    {
        Effect effect;
        Outlet<Panel> label;
        Outlet<Panel> field;
        Outlet<Panel> slider;
    };

    static const Option options[];
    static const EffectControls effects[];
    /// Controls that show neither an option nor an effect.
    static const Outlet<Panel> furtherOutlets[];

    static const Option *find(const QString &keyword);
    static const EffectControls *findEffect(const QString &keyword);
};

} // namespace corvana
