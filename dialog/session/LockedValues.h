#pragma once

#include <QStringList>

#include "dialog/session/OptionLocks.h"

namespace corvana {

class PpdSession;

// What locks are to values that no mark of the PPD holds: those that panels keep in entries of
// their own, which they write without asking anybody. Only the plug-in knows these entries.

/// Puts values of the panels' own back to what they are locked at. Answers the options whose values
/// were others; the panels have to restore then. `jobValues` may be null.
QStringList putBackLockedValues(PpdSession &session, const PDEJobValues *jobValues);

/// The options and attributes of which a job says something else than they are locked at. None,
/// unless something is wrong.
QStringList brokenLocks(const OptionLocks &locks, const QList<JobOption> &job, int copies);

} // namespace corvana
