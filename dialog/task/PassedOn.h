#pragma once

#include <QList>
#include <QStringList>

#include "dialog/policy/PolicyEntry.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

struct OpenedPrinter;
struct SummaryLine;

/// "-o raw": the documents reach the printer as they are, past all filters. Kept among the
/// attributes of a job; no server gets it.
extern const JobOption kRaw;

/// Whether the queue of a printer does nothing to documents: so everything that is done to pages,
/// or is said to the printer in front of them, is left out there.
bool passesFilesOn(const OpenedPrinter &printer);
/// The same of a job with these attributes.
bool passesFilesOn(const OpenedPrinter &printer, const QList<JobOption> &attributes);

/// Whether an attribute has an effect on documents that are passed on as they are: what a server
/// does with a job, whatever is in it.
bool isDoneWhenPassedOn(const QString &name, const OpenedPrinter &printer);

/// Whether options ask for that.
bool asksForRaw(const QList<JobOption> &options);

/// Takes the wish out of options where files may not be passed on as they are, because something is
/// locked. Answers who says so.
QStringList takeLockedRaw(QList<JobOption> &options, const OpenedPrinter &printer);

/// Takes "raw" out of several sets of options, of which a later one counts more, where it can be
/// had; where it is locked, the wish stays in for takeLockedRaw(). Answers whether the documents
/// are passed on as they are.
bool takeRaw(QList<QList<JobOption>> &sets, const OpenedPrinter &printer);

/// Takes out of a set of options what is not done to documents that are passed on as they are.
/// Answers a sentence for each option that asks for something.
QStringList takeWhatCannotBeDone(QList<JobOption> &options, const OpenedPrinter &printer);

/// The same of what an administrator has decided about a queue that passes files on: each entry
/// that decides nothing there is taken out, and those that were meant to are answered.
QList<PolicyProblem> takeWhatCannotBeDone(QList<PolicyEntry> &entries,
                                          const OpenedPrinter &printer);

/// The job of documents that are passed on: nothing of the printer's own settings is in it.
JobTicket ticketOfPassedOn(const QList<JobOption> &attributes, const QString &title, int copies);
/// What its summary says.
QList<SummaryLine> summaryOfPassedOn(const QList<JobOption> &attributes, int copies);

} // namespace corvana
