#pragma once

#include <QString>

#include "dialog/documents/DocumentState.h"
#include "dialog/job/Document.h"

namespace corvana {

// What the state of a document means to a person, in sentences that begin with its name.

/// Why it is not printed; empty when it is.
QString documentProblem(const QString &title, const DocumentState &state);
/// What will be missing on paper; empty when nothing will.
QString documentLoss(const QString &title, const DocumentState &state);
/// What somebody who prints it has to know all the same; empty when there is nothing.
enum class PrintsTo { Server, File };
QString documentNote(const QString &title, const DocumentState &state, PrintsTo to);
/// The same of commands to a printer that stand around a document and do not get there; empty where
/// none sets anything.
QString commandsNote(const Document &document);

} // namespace corvana
