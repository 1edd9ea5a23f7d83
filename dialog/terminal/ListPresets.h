#pragma once

#include "dialog/task/PrintRequest.h"

namespace corvana {

/// Writes the presets of the user and those for everybody to standard output: a line each, its name
/// and the model of printers that it is for. Answers the exit status.
int listPresets(const PrintRequest &request);

} // namespace corvana
