#include "dialog/job/PageChoice.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"

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

QString named(const JobOption &option)
{
    const JobAttributeText text = textOfJobAttribute(option);
    return QCoreApplication::translate("PageChoice", "“%1: %2”").arg(text.title, text.value);
}

// Four pages a sheet: the outer side of the outermost one has the last page and the first one, its
// inner side the second one and the last but one, and so on.
QList<int> pagesOfBooklet(QList<int> pages, PageChoice::Booklet booklet)
{
    while (pages.size() % 4 != 0)
        pages += 0;
    QList<int> sides;
    for (qsizetype front = 0, back = pages.size() - 1; front < back; ++front, --back) {
        // The lower number is on the right of an outer side and on the left of an inner one.
        const bool isLowerFirst = (front % 2 == 1) == (booklet == PageChoice::Booklet::Left);
        const int lower = pages.at(front);
        const int higher = pages.at(back);
        sides << (isLowerFirst ? lower : higher) << (isLowerFirst ? higher : lower);
    }
    return sides;
}

// As arguments of qpdf. One of them has no more than a thousand pages: the system bounds its
// length.
QStringList orderedPages(const QList<int> &pages, const QString &file, const QString &blank)
{
    constexpr int kMostPages = 1000;
    QStringList arguments;
    QStringList numbers;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const bool isBlank = pages.at(i) == 0;
        numbers += QString::number(isBlank ? 1 : pages.at(i));
        const bool isLast = i + 1 == pages.size() || (pages.at(i + 1) == 0) != isBlank ||
                            numbers.size() == kMostPages;
        if (!isLast)
            continue;
        arguments << (isBlank ? blank : file) << numbers.join(u',');
        numbers.clear();
    }
    return arguments;
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
        // A PPD may have options of these names, and whatever it likes as their choices.
        if (!isOfPageChoice(option) || !jobAttribute(option.name)->accepts(option.value))
            continue;
        if (option.name == kRanges)
            choice.ranges = option.value;
        else if (option.name == kSet && option.value == "odd"_L1)
            choice.set = PageChoice::Set::Odd;
        else if (option.name == kSet && option.value == "even"_L1)
            choice.set = PageChoice::Set::Even;
        else if (option.name == kBookletAttribute && option.value == "left"_L1)
            choice.booklet = PageChoice::Booklet::Left;
        else if (option.name == kBookletAttribute && option.value == "right"_L1)
            choice.booklet = PageChoice::Booklet::Right;
        else if (option.name == kRepeatAttribute)
            choice.repetitions = numberOr(option.value, 1);
    }
    return choice;
}

bool isOfPageChoice(const JobOption &option)
{
    return option.name == kRanges || option.name == kSet || option.name == kBookletAttribute ||
           option.name == kRepeatAttribute;
}

bool mustPickPages(const QList<JobOption> &options)
{
    const bool several = std::any_of(options.cbegin(), options.cend(), [](const JobOption &option) {
        return option.name == kPagesOnASide && option.value.toInt() > 1;
    });
    const PageChoice choice = pageChoiceOf(options);
    return choice.isOrdered() || (several && !choice.isAll());
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

QList<JobOption> withoutPageOrder(const QList<JobOption> &options)
{
    QList<JobOption> others = options;
    others.removeIf([](const JobOption &option) {
        return option.name == kBookletAttribute || option.name == kRepeatAttribute ||
               option.name == kSidesByHandAttribute || option.name == kPutBackAttribute;
    });
    return others;
}

QString noSuchPages()
{
    return QCoreApplication::translate("PageChoice", "The pages that were asked for are in none of "
                                                     "the documents. Nothing was printed.");
}

QList<JobOption> withPagesOfOrder(const QList<JobOption> &options)
{
    const PageChoice choice = pageChoiceOf(options);
    if (!choice.isOrdered())
        return options;
    const int onASide = choice.booklet == PageChoice::Booklet::No ? choice.repetitions : 2;
    QList<JobOption> ordered = options;
    ordered.removeIf([](const JobOption &option) { return option.name == kPagesOnASide; });
    return ordered << JobOption{QString(kPagesOnASide), QString::number(onASide)};
}

QStringList excludedByOrder(const QList<JobOption> &options)
{
    const PageChoice choice = pageChoiceOf(options);
    const bool isBooklet = choice.booklet != PageChoice::Booklet::No;
    QStringList others;
    for (const JobOption &option : options) {
        const bool isNumber = option.name == kPagesOnASide && option.value != "1"_L1 &&
                              option.value.toInt() != (isBooklet ? 2 : choice.repetitions);
        const bool isOrder =
            isBooklet && option.name == "number-up-layout"_L1 && option.value != "lrtb"_L1;
        const bool isRepeated =
            isBooklet && option.name == kRepeatAttribute && option.value != "1"_L1;
        if (choice.isOrdered() && (isNumber || isOrder || isRepeated))
            others += option.name;
    }
    return others;
}

QStringList problemsOfOrder(const QList<JobOption> &options)
{
    const PageChoice choice = pageChoiceOf(options);
    const bool isBooklet = choice.booklet != PageChoice::Booklet::No;
    const QStringList names = excludedByOrder(options);
    QStringList others;
    for (const JobOption &option : options) {
        if (names.contains(option.name))
            others += named(option);
    }
    if (others.isEmpty())
        return {};
    const QString excluded = others.join(u", "_s);
    return {isBooklet
                ? QCoreApplication::translate("PageChoice", "A booklet has two pages on each side, "
                                                            "in an order of its own: %1 cannot be "
                                                            "done with it.")
                      .arg(excluded)
                : QCoreApplication::translate("PageChoice", "Each page is repeated %1 times on a "
                                                            "side: %2 cannot be done with it.")
                      .arg(QString::number(choice.repetitions), excluded)};
}

QList<int> pagesInOrder(const PageChoice &choice, int pagesOfDocument)
{
    const QList<PageRange> ranges =
        choice.ranges.isEmpty() ? QList{PageRange{1, pagesOfDocument}} : rangesOf(choice.ranges);
    QList<int> chosen;
    for (const auto &[first, last] : rangesWithin(ranges, pagesOfDocument)) {
        for (int page = first; page <= last; ++page) {
            const bool isOdd = page % 2 == 1;
            if (choice.set == PageChoice::Set::All || isOdd == (choice.set == PageChoice::Set::Odd))
                chosen += page;
        }
    }
    if (choice.booklet != PageChoice::Booklet::No)
        return pagesOfBooklet(chosen, choice.booklet);
    QList<int> repeated;
    for (const int page : std::as_const(chosen))
        repeated += QList<int>(choice.repetitions, page);
    return repeated;
}

QStringList pickedPages(const PageChoice &choice, int pagesOfDocument, const QString &file,
                        const QString &blank)
{
    if (choice.isOrdered())
        return orderedPages(pagesInOrder(choice, pagesOfDocument), file, blank);
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
        QString pages = u"%1-%2"_s.arg(QString::number(first), QString::number(last));
        if (choice.set != PageChoice::Set::All)
            pages += ":odd"_L1;
        picked << file << pages;
    }
    return picked;
}

} // namespace corvana
