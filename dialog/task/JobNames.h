#pragma once

#include <QList>
#include <QString>

#include "dialog/job/Document.h"

namespace corvana {

/// What a job is called that nobody has named: its document, "report.pdf and 2 more" with several.
QString titleOfDocuments(const QList<Document> &documents);

/// The file that a job of these documents is printed to where nobody names one. A name that nothing
/// has yet; a task gives it the ending that suits its printer. Empty without documents.
QString proposedOutput(const QList<Document> &documents);

} // namespace corvana
