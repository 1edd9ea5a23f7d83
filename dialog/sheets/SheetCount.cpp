#include "dialog/sheets/SheetCount.h"

#include <algorithm>
#include <cmath>

namespace corvana {

namespace {

// What nobody sees: programs round the sizes of papers, and scales with them.
constexpr double kSameScale = 0.005;
constexpr double kSameSize = 3; // points, a millimetre

} // namespace

QList<bool> printedPages(int pages, const PageChoice &choice)
{
    QList<bool> printed(pages, choice.ranges.isEmpty());
    for (const PageRange &range : rangesWithin(rangesOf(choice.ranges), pages))
        std::fill(printed.begin() + range.first - 1, printed.begin() + range.last, true);
    for (int page = 1; page <= pages; ++page) {
        const bool isOdd = page % 2 == 1;
        if (choice.set != PageChoice::Set::All && isOdd != (choice.set == PageChoice::Set::Odd))
            printed[page - 1] = false;
    }
    return printed;
}

int chosenPages(int pages, const PageChoice &choice)
{
    const bool all = choice.set == PageChoice::Set::All;
    const QList<PageRange> ranges =
        choice.ranges.isEmpty() ? QList{PageRange{1, pages}} : rangesOf(choice.ranges);
    int chosen = 0;
    for (const PageRange &range : rangesWithin(ranges, pages)) {
        const int odd = (range.last + 1) / 2 - range.first / 2;
        const int every = range.last - range.first + 1;
        chosen += all ? every : choice.set == PageChoice::Set::Odd ? odd : every - odd;
    }
    return chosen;
}

std::optional<int> sheetsOfOneCopy(const JobSheets &sheets)
{
    int count = 0;
    for (const DocumentSheets &document : sheets.documents) {
        if (!document.sides)
            return std::nullopt;
        count += sheets.isTwoSided ? (*document.sides + 1) / 2 : *document.sides;
    }
    return count;
}

bool isUncounted(const JobSheets &sheets)
{
    return !sheetsOfOneCopy(sheets);
}

std::optional<int> commonOrderTurn(const JobSheets &sheets)
{
    std::optional<int> common;
    for (const DocumentSheets &document : sheets.documents) {
        if (document.sides.value_or(0) == 0)
            continue;
        if (common.value_or(document.orderTurn) != document.orderTurn)
            return std::nullopt;
        common = document.orderTurn;
    }
    return common.value_or(0);
}

bool drawsNoPage(const JobSheets &sheets)
{
    return !sheets.documents.isEmpty() &&
           std::all_of(sheets.documents.cbegin(), sheets.documents.cend(),
                       [](const DocumentSheets &document) { return document.drawsNoPage; });
}

bool isLaidOutOtherwise(const DocumentSheets &document, QSizeF paper)
{
    const auto isAsItIs = [&](const PageScale &page) {
        const QSizeF more = page.size - paper;
        return std::abs(page.scale - 1) < kSameScale && std::abs(more.width()) < kSameSize &&
               std::abs(more.height()) < kSameSize;
    };
    const auto isUpright = [](int turn) { return turn == 0; };
    return document.sides.value_or(0) > 0 &&
           !(!document.scales.isEmpty() &&
             std::all_of(document.scales.cbegin(), document.scales.cend(), isAsItIs) &&
             std::all_of(document.turns.cbegin(), document.turns.cend(), isUpright));
}

bool hasEmptyBacks(const DocumentSheets &document)
{
    return document.sides == 1;
}

} // namespace corvana
