#include "dialog/task/StartPresets.h"

#include <optional>

#include <QCoreApplication>

#include "dialog/policy/Policy.h"
#include "dialog/presets/LastUsed.h"
#include "dialog/presets/PresetStore.h"
#include "dialog/session/OptionNames.h"
#include "dialog/task/OfferedAttributes.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PresetApplication.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using By = JobSettings::By;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StartPresets)
};

// What of a last job's changes nobody could set on this printer as it is now.
PresetContent impossibleOf(const PresetContent &changes, const OpenedPrinter &printer)
{
    const PpdSession &session = *printer.session;
    const auto isLocked = [&](const QString &name) { return !session.lockedBy(name).isNull(); };
    QSet<QString> entries;
    const QList<PanelEntry> known = panelEntries(session, printer.jobValues);
    for (const PanelEntry &entry : known)
        entries += entry.key;
    PresetContent impossible;
    for (const auto &[name, value] : changes.options.asKeyValueRange()) {
        ppd_option_t *option = ppdOption(session.ppd(), name);
        const bool isThere =
            option && (value.startsWith(kCustomPrefix) || ppdChoice(option, value));
        // Or it is excluded, such as by a part that is not installed.
        const bool isTaken = value.startsWith(kCustomPrefix) || session.markedChoice(name) == value;
        if (!isThere || !isTaken || isLocked(name))
            impossible.options.insert(name, value);
    }
    for (const auto &[key, value] : changes.entries.asKeyValueRange()) {
        if (!entries.contains(key) || isLocked(key))
            impossible.entries.insert(key, value);
    }
    for (const auto &[name, value] : changes.attributes.asKeyValueRange()) {
        if (!offersAttribute(name, printer) || isLocked(name))
            impossible.attributes.insert(name, value);
    }
    return impossible;
}

// What the user changed for the last job.
void applyLastUsed(const PrintRequest &request, OpenedPrinter &printer, JobSettings &settings,
                   StartOutcome *outcome)
{
    outcome->defaults = outcome->kept = contentOf(printer, settings);
    if (!remembersLastUsed(request, printer.fetched.printer))
        return;
    const LastUsedReading reading = readLastUsed(printer.fetched.printer, request.server.text());
    if (!reading.problem.isEmpty())
        outcome->ignored += reading.problem;
    if (reading.changes.isEmpty())
        return;
    const PresetUse use{PresetUse::Others::Kept, {}, By::LastUsed};
    const PresetOutcome taken =
        applyPreset(reading.changes, use, request.documents, printer, settings);
    // Of what a preset takes the place of, nobody has to hear.
    const QStringList missing = request.preset.isEmpty() ? taken.missing : QStringList();
    for (const QString &problem : missing)
        outcome->ignored += Texts::tr("Last job: %1").arg(problem);
    outcome->lastUsed = reading.changes;
    outcome->impossible = impossibleOf(reading.changes, printer);
    outcome->kept = contentOf(printer, settings);
}

// The preset that was named for this job.
void applyNamedPreset(const PrintRequest &request, OpenedPrinter &printer, JobSettings &settings,
                      StartOutcome *outcome)
{
    if (request.preset.isEmpty())
        return;
    const PresetListing all = PresetStore(presetPlacesOf(request, printer.fetched.printer))
                                  .list(modelOf(printer.session->ppd()));
    const std::optional<StoredPreset> found = all.find(presetName(request.preset));
    if (!found) {
        outcome->unset += all.problems;
        outcome->unset +=
            all.presets.isEmpty()
                ? Texts::tr("There is no preset “%1”, nor any other for this printer.")
                      .arg(request.preset)
                : Texts::tr("There is no preset “%1” for this printer. Presets: %2.")
                      .arg(request.preset, all.names().join(u", "_s));
        return;
    }
    const Preset &preset = found->preset;
    const PresetUse use{PresetUse::Others::Cleared, preset.changed, By::Preset};
    const PresetOutcome taken = applyPreset(contentOf(preset, outcome->defaults, printer), use,
                                            request.documents, printer, settings);
    for (const QString &problem : taken.missing + taken.details)
        outcome->ignored += Texts::tr("%1: %2").arg(preset.name, problem);
    outcome->kept = contentOf(printer, settings, preset.device);
    outcome->preset = std::make_shared<const PresetOrigin>(PresetOrigin{preset, outcome->kept});
}

} // namespace

bool remembersLastUsed(const PrintRequest &request, const Printer &printer)
{
    return request.remembersLastUsed && policyOf(request).bringsLastUsedBack(printer);
}

PresetPlaces presetPlacesOf(const PrintRequest &request, const Printer &printer)
{
    PresetPlaces places = request.presetPlaces;
    places.owners = policyOf(request).reading().place.owners();
    if (const QString folder = policyOf(request).presetsFolder(printer); !folder.isEmpty())
        places.forEverybody += folder;
    return places;
}

PresetContent contentOf(const OpenedPrinter &printer, const JobSettings &settings, bool withDevice)
{
    return contentOf(*printer.session, printer.jobValues, settings.attributes(), withDevice);
}

PresetContent contentOf(const Preset &preset, const PresetContent &defaults,
                        const OpenedPrinter &printer)
{
    const PresetContent content =
        preset.device ? preset.content
                      : withoutDevice(preset.content, *printer.session, printer.jobValues);
    return withChanges(defaults, content);
}

void applyKeptSettings(JobSettings::By by, const PrintRequest &request, OpenedPrinter &printer,
                       JobSettings &settings, StartOutcome *outcome)
{
    if (by == By::LastUsed)
        applyLastUsed(request, printer, settings, outcome);
    else
        applyNamedPreset(request, printer, settings, outcome);
}

} // namespace corvana
