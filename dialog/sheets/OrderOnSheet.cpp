#include "dialog/sheets/OrderOnSheet.h"

#include <algorithm>
#include <array>

#include "dialog/job/PageChoice.h"
#include "dialog/sheets/ScaleProbe.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kOrder = "number-up-layout"_L1;
constexpr auto kUsualOrder = "lrtb"_L1;
constexpr int kQuarter = 90;

// Clockwise, so that turning a side is going on in the list.
constexpr std::array kDirections{"lr"_L1, "tb"_L1, "rl"_L1, "bt"_L1};

QString lastValue(const QList<JobOption> &options, QLatin1StringView name)
{
    const auto last = std::find_if(options.crbegin(), options.crend(),
                                   [&](const JobOption &option) { return option.name == name; });
    return last == options.crend() ? QString() : last->value;
}

bool liesOnItsSide(QSizeF size)
{
    return size.width() > size.height();
}

// Landscape and reverse landscape.
bool asksForLandscape(const QList<JobOption> &options)
{
    const QString orientation = lastValue(options, "orientation-requested"_L1);
    return orientation == "4"_L1 || orientation == "5"_L1;
}

// The direction that, on a side which is turned so, becomes this one. Null for what is none.
QString turnedBack(const QString &direction, int turn)
{
    const auto found = std::find(kDirections.begin(), kDirections.end(), direction);
    if (found == kDirections.end())
        return {};
    const size_t quarters = kDirections.size() - static_cast<size_t>(turn / kQuarter);
    const size_t place = static_cast<size_t>(found - kDirections.begin()) + quarters;
    return kDirections.at(place % kDirections.size());
}

} // namespace

int turnOfOrder(const QList<PdfPage> &printed, int pictureTurn, const QList<JobOption> &options,
                const LayoutTraits &traits)
{
    if (printed.isEmpty() || lastValue(withPagesOfOrder(options), "number-up"_L1).toInt() < 2)
        return 0;
    const bool areOnTheirSides = liesOnItsSide(sizeOfPage(printed.constFirst()));
    const bool areAlike = std::all_of(printed.cbegin(), printed.cend(), [&](const PdfPage &page) {
        return liesOnItsSide(sizeOfPage(page)) == areOnTheirSides;
    });
    if (!areAlike)
        return 0;
    // The layout step turns pages that do not lie as the paper does; asked for landscape, it takes
    // the paper for turned already, and turns the others.
    const bool isPaperOnItsSide = liesOnItsSide(traits.paper) != asksForLandscape(options);
    const int turn = traits.turnsRight ? 3 * kQuarter : kQuarter;
    return ((areOnTheirSides == isPaperOnItsSide ? 0 : turn) + pictureTurn) % (4 * kQuarter);
}

QList<JobOption> withOrderForReader(QList<JobOption> options, int turn)
{
    if (turn == 0)
        return options;
    const QString asked = lastValue(options, kOrder);
    const QString wanted = asked.isEmpty() ? QString(kUsualOrder) : asked;
    const QString first = turnedBack(wanted.first(wanted.size() / 2), turn);
    const QString then = turnedBack(wanted.sliced(wanted.size() / 2), turn);
    // A PPD may have an option of that name, and whatever it likes as its choices.
    if (first.isEmpty() || then.isEmpty())
        return options;
    options.removeIf([](const JobOption &option) { return option.name == kOrder; });
    return options << JobOption{QString(kOrder), first + then};
}

JobTicket withOrderForReader(JobTicket ticket, int turn)
{
    ticket.options = withOrderForReader(ticket.options, turn);
    return ticket;
}

} // namespace corvana
