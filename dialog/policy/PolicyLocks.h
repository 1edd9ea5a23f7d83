#pragma once

#include <QList>

#include "dialog/policy/PolicyEntry.h"

namespace corvana {

class PDEJobValues;
class PpdSession;

/// Marks what a policy keeps a printer's options at, and locks it in the session: options of the
/// PPD, values of the panels' own (`jobValues` may be null) and attributes of the job, by whatever
/// name -o takes them. While there is a lock, files are not passed on as they are ("raw"), which
/// would go past it. To be called before panels are built, and before anything else is marked.
///
/// Answers the entries that are void on this printer, each with the reason: it lacks the option or
/// the value, or the value collides with another lock.
QList<PolicyProblem> lockSettings(const QList<PolicyEntry> &locks, PpdSession &session,
                                  const PDEJobValues *jobValues);

/// The same of default values, of which nothing is marked.
QList<PolicyProblem> voidDefaults(const QList<PolicyEntry> &defaults, PpdSession &session,
                                  const PDEJobValues *jobValues);

} // namespace corvana
