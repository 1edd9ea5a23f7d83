#include "dialog/task/SavedAsPdf.h"

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"
#include "dialog/sheets/SheetPlan.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

using namespace Qt::StringLiterals;

bool savesPdf(const OpenedPrinter &printer)
{
    return savesPdf(printer.fetched.printer);
}

bool isDoneInPdf(const QString &name)
{
    const JobAttribute *attribute = jobAttribute(name);
    return attribute && attribute->appliedTo != JobAttribute::AppliedTo::Job;
}

QStringList takeWhatPdfLacks(QList<JobOption> &options)
{
    QStringList named;
    options.removeIf([&](const JobOption &given) {
        const JobOption option = inOneSpelling(given);
        // What is no attribute may be an option of the file's paper.
        if (!jobAttribute(option.name) || isDoneInPdf(option.name))
            return false;
        if (!asksForNothing(option))
            named += u"%1=%2"_s.arg(given.name, given.value);
        return true;
    });
    if (named.isEmpty())
        return {};
    return {QCoreApplication::translate(
                "SavedAsPdf", "A PDF file is neither held nor printed: %1 cannot be done.")
                .arg(named.join(u", "_s))};
}

QList<int> turnsOfPdf(const JobSheets &sheets, const SheetArrangement &arrangement)
{
    QList<int> before; // of each document, the pages of those that stand in front of it
    int count = 0;
    for (const DocumentSheets &document : sheets.documents) {
        if (!document.sides)
            return {};
        before += count;
        count += *document.sides;
    }
    QList<int> turns(count, 0);
    const SheetPlan plan = planSheets(sheets, arrangement);
    for (const PlannedSheet &sheet : plan.sheets) {
        const PlannedSide &side = sheet.front; // a file has no backs
        if (sheet.back || side.document < 0)
            return {};
        if (side.laidOutPage >= 0)
            turns[before.at(side.document) + side.laidOutPage] = side.turn;
    }
    return turns;
}

} // namespace corvana
