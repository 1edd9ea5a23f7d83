#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

struct OpenedPrinter;

/// What attributes of a job really do, so that nothing is promised that nobody does: some shape
/// only texts or only pictures, and some are added by a queue although nobody is known to follow
/// them.

/// Whether an attribute does something to at least one of the documents. While there is no
/// document, any attribute does.
bool hasEffectOn(const QList<Document> &documents, const JobOption &attribute);

/// Takes out of a set of options what does nothing to any of the documents. Answers a sentence for
/// each of them. Options of the printer's own are not among them, whatever their names.
QStringList takeWhatHasNoEffect(QList<JobOption> &options, const QList<Document> &documents,
                                const OpenedPrinter &printer);

/// What is done anyway on this printer where nobody asks for a value of an attribute. Empty where
/// the printer or the document decides. `attributes` are those of the job.
QString usualValueOf(const QString &name, const QList<JobOption> &attributes,
                     const OpenedPrinter &printer);

/// Whether it is known that a value is done on this printer, by the filters or by choices of the
/// printer that are marked. Whatever a queue adds to its jobs is part of them, known or not.
bool isKnownToBeDone(const JobOption &attribute, const OpenedPrinter &printer);

/// What the summary has to say beside the values of a job's attributes, by their names.
QHash<QString, QString> remarksOn(const QList<JobOption> &attributes, const OpenedPrinter &printer,
                                  const QList<Document> &documents);

} // namespace corvana
