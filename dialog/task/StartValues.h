#pragma once

#include <optional>

#include "dialog/session/OptionRequest.h"

namespace corvana {

struct OpenedPrinter;

/// What became of options that nobody has asked for just now. `problems` names each one that was
/// not taken.
using FittedOptions = OptionOutcome;

/// Takes what the user has set for a queue with lpoptions: as much as the printer still has.
FittedOptions applyWhatFits(const QList<JobOption> &options, OpenedPrinter &printer);

} // namespace corvana
