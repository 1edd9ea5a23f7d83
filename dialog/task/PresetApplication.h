#pragma once

#include <QList>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/presets/PresetContent.h"
#include "dialog/task/JobSettings.h"

namespace corvana {

struct OpenedPrinter;

/// What of a preset a printer has not taken, a sentence each.
struct PresetOutcome
{
    /// Of what whoever kept the preset had chosen.
    QStringList missing{};
    /// Of what was usual where it was kept: of interest to those who ask.
    QStringList details{};
};

/// How settings that were kept come back.
struct PresetUse
{
    enum class Others {
        Kept,    ///< the settings are changes: what they do not name stays as it is
        Cleared, ///< they are everything that was set: attributes that they do not name go
    };

    Others others = Others::Cleared;
    /// Names of what was chosen where they were kept; see Preset::changed. Empty: all of it.
    QStringList changed{};
    JobSettings::By by = JobSettings::By::User;
};

/// Brings settings that were kept into a printer that is open and into its job, as far as it has
/// them: the paper first, then the choices as one set; the panels' own values and the marks that
/// they imply; the panels are told and restore; and the result is compared with what was kept.
PresetOutcome applyPreset(const PresetContent &content, const PresetUse &use,
                          const QList<Document> &documents, OpenedPrinter &printer,
                          JobSettings &settings);

} // namespace corvana
