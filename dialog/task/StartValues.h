#pragma once

#include <memory>
#include <optional>
#include <span>

#include <QList>
#include <QStringList>

#include "dialog/presets/PresetReplacing.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PpdSession.h"
#include "dialog/task/JobSettings.h"

namespace corvana {

struct OpenedPrinter;
struct PrintRequest;

/// Where the values of a job start. The PPD's own default choices are what a session begins with;
/// the rows of startLayers() come on top of them, each over the ones before; a number of copies
/// that has an option of its own (-n) and the user come last.
struct StartLayer
{
    enum class Taking {
        AsFarAsItGoes, ///< set long ago, for whatever jobs: what cannot be had stops none of them
        AsAWhole,      ///< asked for just now: all of it, or nothing is printed
    };

    JobSettings::By by;
    Taking taking;
    /// What is set there as options; null for a place that keeps presets.
    QList<JobOption> (*options)(const OpenedPrinter &printer, const PrintRequest &request);
};

/// In the order in which they are taken: a later one counts more.
std::span<const StartLayer> startLayers();

/// What became of the values that a job starts with.
struct StartOutcome
{
    QStringList ignored; ///< of what was set long ago; each with its origin, name and value
    QStringList unset;   ///< what was asked for just now and cannot be had
    /// Where a job on this printer starts for everybody: "Default Settings".
    PresetContent defaults{};
    /// What the user has kept from before: of the last job, or as a preset.
    PresetContent lastUsed{}; ///< changes of `defaults`; empty when there are none
    /// What of `lastUsed` this printer lacks now, or somebody has locked.
    PresetContent impossible{};
    PresetContent kept{}; ///< in force before any option was asked for
    /// The preset that was applied, as it is listed, with what the printer took of it.
    std::shared_ptr<const PresetOrigin> preset{};
    /// In force before any option was asked for, where some were.
    std::optional<SessionSnapshot> before{};
    JobSettings settingsBefore{}; ///< the same of the job
};

/// Brings a printer that was just opened, and the settings of its job, to where a job starts.
StartOutcome applyStartValues(const PrintRequest &request, OpenedPrinter &printer,
                              JobSettings &settings);

/// Brings options that somebody has set for another program, such as those of an instance, into a
/// printer, as far as they go. Answers the attributes among them; `problems` names the rest.
OptionOutcome applyUsersOptions(QList<JobOption> options, OpenedPrinter &printer);

/// The attributes of a job, and an answer to each default of its queue that they do not name: the
/// server would add that otherwise, although the user has chosen something else meanwhile.
QList<JobOption> withAnswersToDefaults(const QList<JobOption> &attributes,
                                       const OpenedPrinter &printer);

/// The same for whatever else adds options to a job that does not name them.
QList<JobOption> withAnswersTo(const QList<JobOption> &defaults, const QList<JobOption> &attributes,
                               const OpenedPrinter &printer);

/// The defaults of the queue that no job can do without: the server adds them to each job that
/// names none, and no value asks for nothing, as there is none for a page that lies as it is.
QList<JobOption> inevitableDefaults(const OpenedPrinter &printer);

/// Whether a job can do without any value of an attribute.
bool canBeNone(const QString &name, const OpenedPrinter &printer);

} // namespace corvana
