#pragma once

#include <functional>

#include <QString>

#include "dialog/task/TaskPresets.h"

namespace corvana::test {

/// Waits until presets have been looked at again, but not for long: where nothing has changed,
/// nobody says so. Units: milliseconds.
void lookAgain(TaskPresets &presets, int patience = 300);

/// Does something to presets, waits until it is done, and looks at them again. Answers the problem.
QString endOf(TaskPresets &presets, const std::function<void()> &act, int patience = 300);

} // namespace corvana::test
