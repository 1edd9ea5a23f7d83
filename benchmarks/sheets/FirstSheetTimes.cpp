// From a document whose job was set otherwise to the picture of its first sheet: the layout, the
// plan, and the drawing. Against pdftoppm, which draws a page of the document itself, and the
// layout step of the chain for the whole document, which has to be run before anything can be
// shown.

#include "benchmarks/sheets/SheetTimes.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <limits>
#include <memory>

#include <QFile>
#include <QProcess>

#include "benchmarks/support/Waiting.h"
#include "dialog/job/CupsFilter.h"
#include "dialog/sheets/LaidOutDocument.h"
#include "dialog/sheets/SheetCounter.h"
#include "dialog/sheets/SheetPlan.h"

namespace corvana::benchmarks {

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::array kLengths{3, 100, 500, 2000};
constexpr QSizeF kA4{595, 842};
/// Fewer where each takes seconds.
constexpr int kFewRepetitions = 8;

struct Names
{
    std::string drawn;
    std::string laidOut;
    std::string opened;
    std::string changed;
};

Names namesOf(int pages)
{
    const std::string what = std::to_string(pages) + " pages: ";
    return {what + "pdftoppm", what + "layout step", what + "first sheet", what + "two on a side"};
}

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// One run of the layout step for the whole document.
std::optional<double> timeOfLayout(const QString &document, const QString &ppd)
{
    QString problem;
    const QString filter = findCupsFilter(&problem);
    if (!problem.isEmpty())
        return std::nullopt;
    const QStringList arguments{u"-p"_s, ppd,
                                u"-i"_s, u"application/pdf"_s,
                                u"-m"_s, u"application/vnd.cups-pdf"_s,
                                u"-o"_s, u"number-up=1"_s,
                                document};
    const Clock::time_point start = Clock::now();
    QProcess program;
    program.setStandardOutputFile(ppd + u".pdf"_s);
    program.setStandardErrorFile(QProcess::nullDevice());
    program.start(filter, arguments);
    if (!program.waitForFinished(kPatience) || program.exitCode() != 0)
        return std::nullopt;
    return secondsSince(start);
}

SheetRequest requestFor(const QString &document, const char *pagesPerSide)
{
    return {{{document, u"application/pdf"_s, u"document"_s}},
            {{u"number-up"_s, QString::fromLatin1(pagesPerSide)}},
            {kA4}};
}

/// Until the first side that is known of a job was drawn. What is laid out behind that goes on.
std::optional<double> timeOfFirstSheet(SheetCounter &counter, PagePictures &pictures,
                                       const SheetRequest &request)
{
    const Clock::time_point start = Clock::now();
    counter.count(request, SheetCounter::When::Now);
    const JobSheets *sheets = nullptr;
    const auto isKnown = [&] {
        sheets = counter.counted(request) ? counter.counted(request) : counter.begun(request);
        return sheets != nullptr;
    };
    if (!watchUntil(isKnown) || !sheets->documents.constFirst().laidOut)
        return std::nullopt;
    const std::shared_ptr<const LaidOutDocument> file = sheets->documents.constFirst().laidOut;
    const SheetPlan plan =
        planSheets(*sheets, sheetArrangement(request.options, request.traits, false));
    const PlannedSide &side = plan.sheets.constFirst().front;
    const QSize size = side.turn % 180 == 0 ? kUsual : kUsual.transposed();
    QImage drawn;
    if (!timeOfPicture(pictures, {file->path(), side.laidOutPage, size}, &drawn))
        return std::nullopt;
    const double seconds = secondsSince(start);
    pictures.forget(file->path());
    return seconds;
}

} // namespace

void addFirstSheets(const QTemporaryDir &folder)
{
    const QString ppd = folder.filePath(u"layout.ppd"_s);
    QFile file(ppd);
    if (file.open(QIODevice::WriteOnly))
        file.write(layoutPpd({kA4}));
    file.close();
    for (const int pages : kLengths) {
        const QString document = documentOf(pages, folder);
        const Names names = namesOf(pages);
        const int times = pages < 500 ? kRepetitions : kFewRepetitions;
        const QString result = folder.filePath(u"first"_s);
        const PageToDraw page{document, 0, kUsual};
        add(
            names.drawn, [page, result] { return timeOfPdftoppm(page, result); }, times);
        add(
            names.laidOut, [document, ppd] { return timeOfLayout(document, ppd); }, times);
        const auto pictures = std::make_shared<PagePictures>();
        pictures->prepare();
        const SheetRequest before = requestFor(document, "1");
        const auto open = [pictures, before] {
            SheetCounter counter;
            return timeOfFirstSheet(counter, *pictures, before);
        };
        add(names.opened, open, times);
        const auto counter = std::make_shared<SheetCounter>();
        const auto change = [document, pictures, counter, before]() -> std::optional<double> {
            counter->count(before, SheetCounter::When::Now);
            if (!watchUntil([&] { return counter->counted(before) != nullptr; }))
                return std::nullopt;
            return timeOfFirstSheet(*counter, *pictures, requestFor(document, "2"));
        };
        add(names.changed, change, times);
    }
}

bool judgeFirstSheets(const BestTimes &times)
{
    constexpr double never = std::numeric_limits<double>::infinity();
    std::printf("\n%-28s %10s %14s %12s %10s\n", "what", "ms", "pdftoppm, ms", "layout, ms",
                "at most, ms");
    bool good = true;
    for (const int pages : kLengths) {
        const Names names = namesOf(pages);
        const double drawn = times.best(names.drawn);
        const double laidOut = times.best(names.laidOut);
        const double most = kMostRatio * drawn + laidOut;
        for (const std::string &name : {names.opened, names.changed}) {
            const double time = times.best(name);
            const bool enough = time < never && most < never && time <= most;
            std::printf("%-28s %10.1f %14.1f %12.1f %10.1f%s\n", name.c_str(), time * 1e3,
                        drawn * 1e3, laidOut * 1e3, most * 1e3, enough ? "" : "  TOO SLOW");
            good = good && enough;
        }
    }
    return good;
}

} // namespace corvana::benchmarks
