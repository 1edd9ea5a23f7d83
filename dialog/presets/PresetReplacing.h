#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QSet>
#include <QString>
#include <QStringList>

#include "dialog/presets/Preset.h"

namespace corvana {

/// A preset as it was when somebody selected it, and what the printer at hand took of it: another
/// printer may have what this one lacks, or what is locked on it.
struct PresetOrigin
{
    Preset stored;
    PresetContent taken;
};

/// Settings that are to be kept as a preset, which may be there already. What nobody has set now is
/// not lost with that. A value that borrows nothing, for whatever thread.
struct PresetReplacing
{
    Preset preset;
    PresetContent set{}; ///< all that is set now, with what is usual on the printer at hand
    /// The preset that is selected, where it is the one that is replaced; null for any other.
    std::shared_ptr<const PresetOrigin> origin{};
    QStringList touched{};     ///< names of what is set otherwise than `origin` was taken
    bool mustBeOrigin = false; ///< one that somebody has kept meanwhile stays
    bool isWhole = false;      ///< nothing of a former one's settings stays
    QSet<QString> options{};   ///< that the printer at hand has
    QSet<QString> entries{};   ///< the values that its panels keep

    /// The preset to be written over one that is there. Of the one that is selected, everything
    /// stays that is set as it was taken, whatever that was; of any other one, what nothing is
    /// known of here. Errors: answers why it stays, and `written` is as it was.
    QString over(const Preset &former, Preset *written) const;
};

/// Whether two presets say the same, whatever they are called.
bool isSamePreset(const Preset &one, const Preset &other);

} // namespace corvana
