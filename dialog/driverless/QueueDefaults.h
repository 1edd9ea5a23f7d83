#pragma once

#include <cups/ipp.h>

#include <QList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// What a print server adds to each job for a queue that does not name it itself, as the queue's
/// administrator has set it ("lpadmin -o number-up-default=2"): as job options, "number-up=2".
///
/// A server names defaults ("sides-default") of three kinds, and only the first is an
/// administrator's: what he has set, which is added to jobs; what any queue has while nobody has
/// set anything; and what mirrors the default choices of the PPD. The last two are left out, since
/// nothing comes of them.
///
/// `attributes`: the response to Get-Printer-Attributes, or null. Whatever is no job option is left
/// out and logged.
QList<JobOption> queueDefaults(ipp_t *attributes);

/// Whether the queue hands documents to its device as they are: no filter makes anything of them,
/// so that all that is left to a job is when and how often it is printed.
bool isRawQueue(ipp_t *attributes);

} // namespace corvana
