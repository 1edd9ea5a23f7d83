#pragma once

#include <QList>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

struct JobSheets;
struct OpenedPrinter;
struct SheetArrangement;

/// Whether a job on this printer becomes a PDF in a file, with its pages laid out: what a preview
/// of it shows.
bool savesPdf(const OpenedPrinter &printer);

/// Whether an attribute has an effect on that file: what shapes pages has. There is no queue that
/// would hold a job, and no printer that would repeat it or print its colours otherwise.
bool isDoneInPdf(const QString &name);

/// Takes out of a set of options what is not done when a PDF is saved. Answers a sentence where
/// that asks for something.
QStringList takeWhatPdfLacks(QList<JobOption> &options);

/// By how much each page of that file is turned to be read as it is previewed. Units: degrees
/// clockwise. Errors: nothing where nobody knows.
QList<int> turnsOfPdf(const JobSheets &sheets, const SheetArrangement &arrangement);

} // namespace corvana
