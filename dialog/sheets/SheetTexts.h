#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/session/PanelHost.h"
#include "dialog/sheets/SheetCount.h"

namespace corvana {

/// What comes out of a job, in words. Titles of documents go into them as they are: they are shown
/// as plain text.

/// Why a job is not printed: a sentence for each document of which nothing would come out.
QStringList emptyDocuments(const JobSheets &sheets, const PageChoice &choice);

/// Why documents are not shown in a preview although they may be printed: a sentence or two for
/// each.
QStringList previewProblems(const JobSheets &sheets);

/// Which of the pages that were asked for a document lacks that is printed without them; a sentence
/// each.
QStringList missingPages(const JobSheets &sheets, const PageChoice &choice);

/// Why backs stay empty in a two-sided job; nothing where they do not.
QString oneSidedReason(const JobSheets &sheets);

/// "9 pages × 2 copies = 6 sheets, and 1 cover sheet"; says so where nobody could count them.
/// `covers`: how many sheets the queue adds to the job, whatever the number of copies.
QString countText(const JobSheets &sheets, const PageChoice &choice, int copies, int covers = 0);
/// The same where no title stands before it.
QString countLine(const JobSheets &sheets, const PageChoice &choice, int copies, int covers = 0);

/// "A4 at 96 %, Letter at 93 %"; empty where everything has its actual size.
QString scaleText(const JobSheets &sheets);

/// The lines of the summary about the sheets. Null: they are being counted.
QList<SummaryLine> sheetLines(const JobSheets *sheets, const PageChoice &choice, int copies,
                              int covers = 0);

} // namespace corvana
