#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

class PpdSession;

/// Everything about one job but its document: a value that is handed to a queue.
struct JobTicket
{
    QString title;
    int copies = 1; ///< Range: 1 and more
    QList<JobOption> options;

    bool operator==(const JobTicket &) const = default;
};

/// The options of a job: every marked choice of the PPD in its order, custom values in the form
/// `Custom.…`, the panels' own values in place of the marks they stand for, then the attributes.
/// `jobValues` may be null.
QList<JobOption> jobOptions(const PpdSession &session, const PDEJobValues *jobValues,
                            const QList<JobOption> &attributes);

/// Options that are marked "Custom" while nobody has given them a value: jobOptions() leaves them
/// out, and such a job must not be printed.
QStringList optionsWithoutValue(const PpdSession &session, const PDEJobValues *jobValues);

} // namespace corvana
