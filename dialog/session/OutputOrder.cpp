#include "dialog/session/OutputOrder.h"

#include <algorithm>
#include <limits>

#include <QByteArray>
#include <QString>

#include "dialog/session/OptionNames.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kReverse = "reverse"_L1;

bool isOrder(const JobOption &option)
{
    return option.name.compare(kOutputOrderAttribute, Qt::CaseInsensitive) == 0;
}

// What the PPD says of the bin that the sheets go to. Empty where it says nothing.
QByteArray stackOrder(ppd_file_t *ppd, const QList<JobOption> &options)
{
    const auto bin = std::find_if(options.crbegin(), options.crend(), [](const JobOption &option) {
        return option.name.compare("OutputBin"_L1, Qt::CaseInsensitive) == 0;
    });
    const ppd_attr_t *order = nullptr;
    if (bin != options.crend())
        order = ppdFindAttr(ppd, "PageStackOrder", bin->value.toUtf8().constData());
    if (!order || !order->value)
        order = ppdFindAttr(ppd, "DefaultOutputOrder", nullptr);
    return order ? QByteArray(order->value) : QByteArray();
}

// What the layout step takes for it.
bool saysReverse(const QByteArray &order)
{
    return qstricmp(order.constData(), "Reverse") == 0 ||
           qstricmp(order.constData(), "reverse-order") == 0;
}

// What it costs to get from the laid-out pages to what a printer takes, as CUPS reckons (version
// 2.4, with the conversions of cups-filters). It goes the cheapest way.
struct Way
{
    const char *format;
    int cost;
};
constexpr Way kWays[] = {
    {"application/pdf", -66}, // which is not laid out at all
    {"application/vnd.cups-pdf", 0}, {"application/vnd.cups-raster", 99},
    {"image/pwg-raster", 99},        {"image/urf", 199},
    {"application/PCLm", 131},
};
constexpr Way kWayOfPostScript{"application/vnd.cups-postscript", 100};
constexpr int kNoWay = std::numeric_limits<int>::max();

// The least cost of a filter line that takes one of these formats.
class FilterCosts
{
public:
    // SOURCE [DESTINATION] COST PROGRAM.
    void add(const QByteArray &line)
    {
        const QByteArrayList words = line.simplified().split(' ');
        const qsizetype place = words.size() > 1 && words.at(1).contains('/') ? 2 : 1;
        if (place >= words.size())
            return;
        const int own = words.at(place).toInt();
        for (const Way &way : kWays)
            take(m_others, way, words.constFirst(), own);
        take(m_postScript, kWayOfPostScript, words.constFirst(), own);
    }
    bool isPostScriptCheapest() const { return m_postScript < m_others; }

private:
    static void take(int &least, const Way &way, const QByteArray &format, int own)
    {
        if (qstricmp(format.constData(), way.format) == 0)
            least = std::min(least, way.cost + own);
    }

    int m_postScript = kNoWay;
    int m_others = kNoWay;
};

} // namespace

bool becomesPostScript(ppd_file_t *ppd)
{
    FilterCosts costs;
    bool namesFilters = false;
    for (const ppd_attr_t *line = ppdFindAttr(ppd, "cupsFilter2", nullptr); line;
         line = ppdFindNextAttr(ppd, "cupsFilter2", nullptr)) {
        namesFilters = true;
        costs.add(line->value);
    }
    // The newer lines hide the older ones.
    for (int i = 0; !namesFilters && i < ppd->num_filters; ++i)
        costs.add(ppd->filters[i]);
    return (!namesFilters && ppd->num_filters == 0) || costs.isPostScriptCheapest();
}

bool stacksFaceUp(ppd_file_t *ppd, const QList<JobOption> &options)
{
    return saysReverse(stackOrder(ppd, options));
}

bool printsLastPageFirst(ppd_file_t *ppd, const QList<JobOption> &options)
{
    const auto asked = std::find_if(options.crbegin(), options.crend(), isOrder);
    return asked == options.crend() ? stacksFaceUp(ppd, options)
                                    : saysReverse(asked->value.toLatin1());
}

// The layout step does what outputorder says, or what the PPD does. The filter that makes
// PostScript then calls pstops, which it does not tell any more what was asked for, so that pstops
// does what the PPD says: for a second time, or against what was asked for (cups-filters 1 and 2,
// with CUPS 2). A printer with an option for the order is left to turn it round itself.
bool isTurnedRoundOnTheWay(ppd_file_t *ppd, const QList<JobOption> &options)
{
    return qstricmp(stackOrder(ppd, options).constData(), "Reverse") == 0 &&
           becomesPostScript(ppd) && !ppdOption(ppd, u"OutputOrder"_s);
}

QList<JobOption> withOrderForFilters(QList<JobOption> options, ppd_file_t *ppd)
{
    if (!isTurnedRoundOnTheWay(ppd, options))
        return options;
    const bool isLastFirst = printsLastPageFirst(ppd, options);
    options.removeIf(isOrder);
    return options << JobOption{kOutputOrderAttribute,
                                isLastFirst ? u"normal"_s : QString(kReverse)};
}

} // namespace corvana
