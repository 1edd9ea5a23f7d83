// Prints with many PPDs, in both faces and with the filter chain alone, and compares. See MassRun.

#include <cstdio>
#include <stdexcept>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>

#include "tests/mass/MassRun.h"
#include "tests/support/TestPaths.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// PPDs that nobody here wrote, where this Debian has them.
const QString kForeignDriver = u"/usr/lib/cups/driver/postscript-hp"_s;

// How many of a collection are tried, and which share of these.
struct Extent
{
    int most = 100; // 0: all
    int share = 0;
    int shares = 1;
};

QString usualPlace()
{
    return QFileInfo(kForeignDriver).isExecutable() ? kForeignDriver
                                                    : sourceFile("resources/ppd"_L1);
}

MassCount run(const PpdCollection &ppds, unsigned seed, const Extent &extent)
{
    MassRun mass(seed);
    const qsizetype tried =
        extent.most > 0 ? std::min<qsizetype>(extent.most, ppds.size()) : ppds.size();
    qsizetype reported = 0;
    for (qsizetype i = extent.share; i < tried; i += extent.shares) {
        // As many as are tried are spread over the whole collection, whose neighbours are alike.
        mass.tryPpd(ppds.at(i * ppds.size() / tried));
        for (; reported < mass.count().faults.size(); ++reported)
            std::printf("%s\n", qPrintable(mass.count().faults.at(reported)));
        std::fflush(stdout);
    }
    return mass.count();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Prints with many PPDs, and compares what comes out."_s);
    parser.addHelpOption();
    const QCommandLineOption all(u"all"_s, u"Try every PPD, not only a hundred."_s);
    const QCommandLineOption seed(u"seed"_s, u"Choose other choices of chance."_s, u"N"_s, u"1"_s);
    const QCommandLineOption share(u"share"_s, u"Try every M-th PPD, beginning with the N-th."_s,
                                   u"N/M"_s, u"1/1"_s);
    parser.addOptions({all, seed, share});
    parser.addPositionalArgument(u"PLACE"_s, u"A folder of PPDs, or a driver of CUPS."_s);
    parser.process(application);

    Extent extent;
    if (parser.isSet(all))
        extent.most = 0;
    extent.shares = std::max(1, parser.value(share).section(u'/', 1).toInt());
    extent.share =
        qBound(0, parser.value(share).section(u'/', 0, 0).toInt() - 1, extent.shares - 1);
    try {
        const QString place = parser.positionalArguments().value(0, usualPlace());
        const MassCount count = run(PpdCollection(place), parser.value(seed).toUInt(), extent);
        std::printf("%s: %d PPDs (%d broken), printed %d, refused %d, faults %d\n",
                    qPrintable(place), count.ppds, count.broken, count.printed, count.refused,
                    static_cast<int>(count.faults.size()));
        return count.faults.isEmpty() && count.printed > 0 ? 0 : 1;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
