#pragma once

#include <QList>

#include "dialog/session/OptionRequest.h"

namespace corvana {

struct OpenedPrinter;

/// Takes as many options as the printer has, together: papers and media that are named beside each
/// other belong to each other. Of two that exclude each other the first one counts, of a list of a
/// paper, its source and its type each part by itself. `problems` names each option that was not
/// taken.
OptionOutcome applyWhatFits(const QList<JobOption> &options, OpenedPrinter &printer);

} // namespace corvana
