#pragma once

#include <QList>

#include "dialog/session/PpdSession.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

class JobSettings;
struct OpenedPrinter;

/// What goes along with a choice of the order of pages: a booklet is turned over at the short edge,
/// and what excludes it, or pages that are repeated, gives way. All of it goes back when that order
/// is not wanted any more, but for what somebody has chosen since.
///
/// `former` are the attributes before the choice; `settings` has it already, and gets the
/// attributes that go along. Answers the choices of the printer that do, for the task to propose.
QList<OptionChoice> takeOrderAlong(const QList<JobOption> &former, JobSettings &settings,
                                   const OpenedPrinter &printer);

/// What cannot be done together with the order of pages, for the user, and who has set that where
/// it is an administrator.
QStringList problemsOfOrder(const JobSettings &settings, const PpdSession &session);

} // namespace corvana
