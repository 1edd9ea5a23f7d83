#pragma once

#include "dialog/presets/PresetStore.h"
#include "dialog/task/JobSettings.h"
#include "dialog/task/StartValues.h"

namespace corvana {

struct OpenedPrinter;
struct PrintRequest;
struct Printer;

/// Whether jobs of a printer start with what was changed for the last one: the user and the
/// administrator want it.
bool remembersLastUsed(const PrintRequest &request, const Printer &printer);

/// Where presets for a printer lie: the user's, and the administrator's for everybody.
PresetPlaces presetPlacesOf(const PrintRequest &request, const Printer &printer);

/// What is set now that can be kept for a later job.
PresetContent contentOf(const OpenedPrinter &printer, const JobSettings &settings,
                        bool withDevice = false);

/// A preset as it is to be set: on top of where a job starts for everybody, and with what sets up
/// the device only where the preset says so.
PresetContent contentOf(const Preset &preset, const PresetContent &defaults,
                        const OpenedPrinter &printer);

/// Brings what the user has kept from before into a printer that was just opened: of the last job
/// (By::LastUsed), or as a preset (By::Preset).
void applyKeptSettings(JobSettings::By by, const PrintRequest &request, OpenedPrinter &printer,
                       JobSettings &settings, StartOutcome *outcome);

} // namespace corvana
