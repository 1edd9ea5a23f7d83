#pragma once

#include "dialog/presets/PresetContent.h"
#include "dialog/task/JobSettings.h"
#include "dialog/task/StartValues.h"

namespace corvana {

struct OpenedPrinter;
struct PrintRequest;

/// What is set now that can be kept for a later job.
PresetContent contentOf(const OpenedPrinter &printer, const JobSettings &settings,
                        bool withDevice = false);

/// Brings what the user has kept from before into a printer that was just opened: of the last job
/// (By::LastUsed), or as a preset (By::Preset).
void applyKeptSettings(JobSettings::By by, const PrintRequest &request, OpenedPrinter &printer,
                       JobSettings &settings, StartOutcome *outcome);

} // namespace corvana
