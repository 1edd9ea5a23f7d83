#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "dialog/presets/PresetContent.h"

namespace corvana {

/// Settings that are kept under a name, for the printers of one model or for all printers.
struct Preset
{
    QString name;
    QString model;       ///< as modelOf() has it; empty: for all printers
    bool device = false; ///< with what sets up the device as well
    PresetContent content;
    /// What of that was not the printer's usual setting when it was kept: what a user misses where
    /// a printer lacks it. Keywords of options and names of attributes.
    QStringList changed;
    /// What a later version of the program has written into its file; kept as it is.
    QJsonObject further{};

    bool operator==(const Preset &) const = default;
};

/// The most characters of a name.
inline constexpr qsizetype kLongestPresetName = 100;

/// A name as it is kept: without blanks around it, each other blank once.
QString presetName(const QString &typed);

/// Why a name cannot be that of a preset, for the person who has typed it; empty when it can.
QString problemOfPresetName(const QString &name);
/// The same for one that is about to be given: it is not that of settings which are always there,
/// as the user or English has it, either. Files may have such a name from before.
QString problemOfNewPresetName(const QString &name);

} // namespace corvana
