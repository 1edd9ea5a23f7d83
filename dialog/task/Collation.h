#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "dialog/documents/DocumentTexts.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

struct OpenedPrinter;
class PpdSession;

// In which order several copies come out, where others have a say in it.

/// Whether a name is one of those under which filters, libcups and servers each know that order.
bool isNameOfCollation(const QString &name);

/// What a job says under the name of such a default of its queue: the same as it says otherwise, by
/// the printer's own option where it has one.
JobOption collationUnderNameOf(const JobOption &byQueue, const QList<JobOption> &attributes,
                               const PpdSession &session);

/// Whether copies come out collated whatever is asked for. CUPS' filters do that with jobs on both
/// sides where they make the copies themselves: else a copy would stand on the back of another.
/// Printers that make copies do as they are told, and so does every queue whose server converts.
bool areCopiesAlwaysCollated(const OpenedPrinter &printer, PrintsTo to);

/// The attributes as copies come out on the printer as it is set now.
QList<JobOption> asCopiesComeOut(QList<JobOption> attributes, const OpenedPrinter &printer,
                                 PrintsTo to);

/// What a summary has to say beside the order of copies, by the name of its attribute. `asked` are
/// the attributes as they are set.
QHash<QString, QString> remarksOnCopies(const QList<JobOption> &asked, const OpenedPrinter &printer,
                                        PrintsTo to);

} // namespace corvana
