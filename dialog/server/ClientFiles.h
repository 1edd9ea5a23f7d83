#pragma once

#include <QString>

namespace corvana {

/// What libcups reads in every thread, before anything else, and would never be done with: a
/// client.conf that is a pipe, a device or too large. Empty where nothing is wrong with it, or
/// nothing there. To be asked before libcups is used.
QString problemOfClientFiles();

} // namespace corvana
