#include "dialog/sheets/SheetMarks.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/sheets/SheetTexts.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SheetMarks)
};

// The first and the last sheet of a document; (-1, -1) where it has none.
std::pair<int, int> sheetsOf(const SheetPlan &plan, int document)
{
    std::pair<int, int> sheets{-1, -1};
    for (int i = 0; i < plan.sheets.size(); ++i) {
        if (plan.sheets.at(i).front.document != document)
            continue;
        if (sheets.first < 0)
            sheets.first = i;
        sheets.second = i;
    }
    return sheets;
}

void mark(QList<SheetMark> &marks, int sheet, SheetSide side, const QString &text)
{
    if (sheet < 0 || text.isEmpty())
        return;
    const auto former = std::find_if(marks.begin(), marks.end(), [&](const SheetMark &one) {
        return one.sheet == sheet && one.side == side;
    });
    if (former == marks.end())
        marks += SheetMark{sheet, side, text};
    else
        former->text += u'\n' + text;
}

} // namespace

QList<SheetMark> sheetMarks(const SheetPlan &plan, const JobSheets &sheets,
                            const PageChoice &choice)
{
    QList<SheetMark> marks;
    for (int i = 0; i < sheets.documents.size(); ++i) {
        const auto [first, last] = sheetsOf(plan, i);
        if (sheets.isTwoSided && hasEmptyBacks(sheets.documents.at(i)))
            mark(marks, first, SheetSide::Front,
                 Texts::tr("The back of this sheet stays empty: only one side is printed."));
        JobSheets one = sheets;
        // Named as where there are several, of which the others have all of the pages.
        for (int other = 0; other < one.documents.size(); ++other) {
            if (other != i)
                one.documents[other].pages.reset();
        }
        mark(marks, last, SheetSide::Front, missingPages(one, choice).join(u'\n'));
    }
    return marks;
}

void markDocument(QList<SheetMark> &marks, const SheetPlan &plan, int document, const QString &text)
{
    mark(marks, sheetsOf(plan, document).first, SheetSide::Front, text);
}

QString markOn(const QList<SheetMark> &marks, int sheet, SheetSide side)
{
    const auto found = std::find_if(marks.cbegin(), marks.cend(), [&](const SheetMark &one) {
        return one.sheet == sheet && one.side == side;
    });
    return found == marks.cend() ? QString() : found->text;
}

} // namespace corvana
