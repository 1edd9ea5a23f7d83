#include "dialog/job/PageChoice.h"

#include <algorithm>

#include <QCoreApplication>

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kRanges = "page-ranges"_L1;
constexpr auto kSet = "page-set"_L1;
constexpr auto kPagesOnASide = "number-up"_L1;

// The page that a side of a range names; what is left open is the first or the last page.
int pageOr(const QString &text, int otherwise)
{
    bool isNumber = false;
    const int page = text.toInt(&isNumber);
    return isNumber ? page : otherwise;
}

} // namespace

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
    const QStringList ranges =
        choice.ranges.isEmpty() ? QStringList{u"1-"_s} : choice.ranges.split(u',');
    for (const QString &range : ranges) {
        const bool isOne = !range.contains(u'-');
        int first = pageOr(range.section(u'-', 0, 0), 1);
        int last = isOne ? first : pageOr(range.section(u'-', 1), pagesOfDocument);
        first = std::max(first, 1);
        last = std::min(last, pagesOfDocument);
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
