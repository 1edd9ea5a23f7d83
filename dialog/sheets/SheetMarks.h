#pragma once

#include <QList>
#include <QString>

#include "dialog/sheets/SheetPlan.h"

namespace corvana {

/// What is to be said of one side of a sheet: it is marked where the sheets are shown.
struct SheetMark
{
    int sheet = 0; ///< of the plan, from 0
    SheetSide side = SheetSide::Front;
    QString text{}; ///< sentences, one a line

    bool operator==(const SheetMark &) const = default;
};

/// The marks of what the sheets themselves tell: backs that stay empty although two-sided printing
/// was asked for, at the first sheet of a document; pages that a document lacks, at its last one.
QList<SheetMark> sheetMarks(const SheetPlan &plan, const JobSheets &sheets,
                            const PageChoice &choice);

/// Adds something that is to be said of a document as a whole, at its first sheet. Adds nothing
/// where it has none.
void markDocument(QList<SheetMark> &marks, const SheetPlan &plan, int document,
                  const QString &text);

/// What is to be said of a side; empty where nothing is.
QString markOn(const QList<SheetMark> &marks, int sheet, SheetSide side);

} // namespace corvana
