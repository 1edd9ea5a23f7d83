#include "dialog/sheets/FirstSheets.h"

#include <algorithm>

#include "dialog/job/PageChoice.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// The layout of fewer pages takes no longer than somebody notices.
constexpr int kLongDocument = 50;
// As many as can be seen at a time, and an even number: a last sheet without a back may get one.
constexpr int kFirstSides = 8;

int pagesPerSide(const QList<JobOption> &options)
{
    int number = 1;
    for (const JobOption &option : options) {
        if (option.name == "number-up"_L1)
            number = std::max(1, option.value.toInt());
    }
    return number;
}

} // namespace

int pagesOfFirstSheets(const QList<PdfPage> &pages, int count, const QList<JobOption> &options,
                       const LayoutTraits &traits)
{
    if (count <= kLongDocument || pages.size() != count || traits.isReversed ||
        traits.isTurnedRound)
        return 0;
    // Ranges, odd pages, booklets and repetitions: other pages come first, or none do.
    if (!pageChoiceOf(options).isAll())
        return 0;
    const bool areAlike = std::all_of(pages.cbegin(), pages.cend(), [&](const PdfPage &page) {
        return page == pages.constFirst();
    });
    const int first = kFirstSides * pagesPerSide(options);
    return areAlike && first < count ? first : 0;
}

} // namespace corvana
