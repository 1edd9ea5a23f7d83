#include "dialog/job/PageChoice.h"

#include <algorithm>
#include <limits>

#include <QCoreApplication>

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kRanges = "page-ranges"_L1;
constexpr auto kSet = "page-set"_L1;
constexpr auto kPagesOnASide = "number-up"_L1;

constexpr int kOpenEnd = std::numeric_limits<int>::max();

int numberOr(const QString &text, int other)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? number : other;
}

} // namespace

QList<PageRange> rangesOf(const QString &text)
{
    QList<PageRange> ranges;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const qsizetype dash = part.indexOf(u'-');
        PageRange range;
        if (dash < 0)
            range.first = range.last = numberOr(part, 0);
        else
            range = {dash == 0 ? 1 : numberOr(part.first(dash), 0),
                     numberOr(part.mid(dash + 1), kOpenEnd)};
        if (range.first >= 1 && range.last >= range.first)
            ranges += range;
    }
    return ranges;
}

QList<PageRange> rangesWithin(const QList<PageRange> &ranges, int pages)
{
    QList<PageRange> within;
    for (const PageRange &range : ranges) {
        if (range.first <= pages)
            within += PageRange{range.first, std::min(range.last, pages)};
    }
    return within;
}

QList<PageRange> rangesBeyond(const QList<PageRange> &ranges, int pages)
{
    QList<PageRange> beyond;
    for (const PageRange &range : ranges) {
        if (range.first > pages)
            beyond += range;
        else if (range.last > pages && range.last != kOpenEnd)
            beyond += PageRange{pages + 1, range.last};
    }
    return beyond;
}

PageChoice pageChoiceOf(const QList<JobOption> &options)
{
    PageChoice choice;
    for (const JobOption &option : options) {
        if (option.name == kRanges)
            choice.ranges = option.value;
        else if (option.name == kSet && option.value == "odd"_L1)
            choice.set = PageChoice::Set::Odd;
        else if (option.name == kSet && option.value == "even"_L1)
            choice.set = PageChoice::Set::Even;
    }
    return choice;
}

bool isOfPageChoice(const JobOption &option)
{
    return option.name == kRanges || option.name == kSet;
}

bool mustPickPages(const QList<JobOption> &options)
{
    const bool several = std::any_of(options.cbegin(), options.cend(), [](const JobOption &option) {
        return option.name == kPagesOnASide && option.value.toInt() > 1;
    });
    return several && !pageChoiceOf(options).isAll();
}

QList<JobOption> withoutPageChoice(const QList<JobOption> &options)
{
    QList<JobOption> others;
    for (const JobOption &option : options) {
        // Said, so that no default of the queue's takes its place.
        if (option.name == kSet)
            others += {option.name, u"all"_s};
        else if (!isOfPageChoice(option))
            others += option;
    }
    return others;
}

QString noSuchPages()
{
    return QCoreApplication::translate("PageChoice", "The pages that were asked for are in none of "
                                                     "the documents. Nothing was printed.");
}

QStringList pickedPages(const PageChoice &choice, int pagesOfDocument, const QString &file)
{
    QStringList picked;
    const QList<PageRange> ranges =
        choice.ranges.isEmpty() ? QList{PageRange{1, pagesOfDocument}} : rangesOf(choice.ranges);
    for (const auto &[start, last] : rangesWithin(ranges, pagesOfDocument)) {
        int first = start;
        // ":odd" means every other page of a range, beginning with its first.
        const bool isOdd = first % 2 == 1;
        if ((choice.set == PageChoice::Set::Odd && !isOdd) ||
            (choice.set == PageChoice::Set::Even && isOdd))
            ++first;
        if (first > last)
            continue;
        QString pages = u"%1-%2"_s.arg(first).arg(last);
        if (choice.set != PageChoice::Set::All)
            pages += ":odd"_L1;
        picked << file << pages;
    }
    return picked;
}

} // namespace corvana
