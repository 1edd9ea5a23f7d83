#include "dialog/session/SameMeaning.h"

#include <algorithm>
#include <iterator>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// How large pages come out. The layout step looks at the first of these that is there.
constexpr QLatin1StringView kSizes[] = {"print-scaling"_L1, "fit-to-page"_L1, "scaling"_L1,
                                        "natural-scaling"_L1, "ppi"_L1};

bool fits(const JobOption &option)
{
    return option == JobOption{u"print-scaling"_s, u"fit"_s} ||
           option == JobOption{u"fit-to-page"_s, u"true"_s};
}

bool isUsual(const JobOption &option)
{
    return option == JobOption{u"print-scaling"_s, u"auto"_s} ||
           option == JobOption{u"fit-to-page"_s, u"false"_s};
}

} // namespace

QStringList otherNamesOf(const QString &attribute)
{
    if (std::find(std::begin(kSizes), std::end(kSizes), attribute) == std::end(kSizes))
        return {};
    QStringList others{std::begin(kSizes), std::end(kSizes)};
    others.removeAll(attribute);
    return others;
}

bool leavesAsItIs(const JobOption &asked, const JobOption &said)
{
    return otherNamesOf(asked.name).contains(said.name) &&
           (fits(asked) ? fits(said) : isUsual(asked) && !fits(said));
}

} // namespace corvana
