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
    /// Passwords and PINs among the values, which no log may hold.
    QStringList secrets{};
    /// PostScript documents become PDF first: an option is followed, or their pages are laid out,
    /// by a filter that they would not pass.
    bool postScriptAsPdf = false;

    bool operator==(const JobTicket &) const = default;
};

/// The options of a job: every marked choice of the PPD in its order, custom values in the form
/// `Custom.…`, the panels' own values in place of the marks they stand for, then the attributes.
/// `jobValues` may be null.
QList<JobOption> jobOptions(const PpdSession &session, const PDEJobValues *jobValues,
                            const QList<JobOption> &attributes);

/// Whether several copies come out one after the other rather than each page several times: what
/// the PPD's own option says, else what an attribute says, else yes.
bool isCollated(const PpdSession &session, const QList<JobOption> &attributes);

/// The attributes as a job of so many copies carries them. Filters that are told nothing leave the
/// copies to the printer, which makes each page several times; and filters, back ends and printers
/// each know another name of it, so that the job says both.
QList<JobOption> withCollation(QList<JobOption> attributes, int copies, const PpdSession &session);

/// The custom values of a session that are nobody else's business: passwords and PINs (isSecret()).
QStringList secretsOf(const PpdSession &session);

/// A text with dots in the place of each secret, also where a program has quoted it.
QString withoutSecrets(QString text, const QStringList &secrets);

/// Options that are marked "Custom" while nobody has given them a value: jobOptions() leaves them
/// out, and such a job must not be printed.
QStringList optionsWithoutValue(const PpdSession &session, const PDEJobValues *jobValues);

} // namespace corvana
