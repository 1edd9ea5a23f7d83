// How long the first picture of a page takes to be there, as the preview asks for it, against
// pdftoppm, which draws the same page at the same size with the same library.
//
//   sheets_benchmark           measures and prints the ratios
//   sheets_benchmark --check   the same, and fails when one is higher than it should be
//
// Then from a job to its first sheet, with the layout (FirstSheetTimes.cpp).
//
// Documents of 3, 100 and 500 pages of text; a large picture; a page without text. The renderer is
// running already ("ready", as it is when the preview has shown anything before or has prepared
// itself) or not ("cold"). The pictures are compared first. Other arguments are those of Google
// Benchmark. Exit status: 0; 1 when something cannot be measured or --check fails; 2 for a wrong
// argument.

#include <cstdio>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "benchmarks/sheets/SheetTimes.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::benchmarks;
using namespace Qt::StringLiterals;

namespace {

/// Units: seconds
constexpr double kMostOnGuiThread = 0.008;

struct Sample
{
    std::string name;
    PageToDraw page;
    /// pdftoppm does not look for fonts before a page needs one, which is half of what it does on
    /// this machine. The renderer has to do so before it is locked in, once.
    bool isColdJudged = true;
};

/// The last pages of long documents, which are farthest from the beginning of the file.
std::vector<Sample> makeSamples(const QTemporaryDir &folder)
{
    const QString longest = documentOf(500, folder);
    return {
        {"3 pages", {documentOf(3, folder), 2, kUsual}},
        {"100 pages", {documentOf(100, folder), 99, kUsual}},
        {"500 pages", {longest, 499, kUsual}},
        {"500 pages, large", {longest, 0, kLarge}},
        {"no text", {test::sourceFile(u"tests/data/pages.pdf"_s), 0, kUsual}, false},
    };
}

std::string measured(const Sample &sample, const char *how)
{
    return sample.name + ", " + how;
}

void addAll(const Sample &sample, const QString &result)
{
    const PageToDraw page = sample.page;
    add(measured(sample, "pdftoppm"), [page, result] { return timeOfPdftoppm(page, result); });
    add(measured(sample, "cold"), [page] {
        PagePictures pictures;
        QImage drawn;
        return timeOfPicture(pictures, page, &drawn);
    });
    // The document is a new one each time; the renderer is not.
    const auto ready = std::make_shared<PagePictures>();
    add(measured(sample, "ready"), [page, ready]() -> std::optional<double> {
        QImage drawn;
        const PageToDraw other{test::sourceFile(u"tests/data/pages.pdf"_s), 1, QSize(10, 10)};
        if (!timeOfPicture(*ready, other, &drawn))
            return std::nullopt;
        ready->forget(page.file);
        return timeOfPicture(*ready, page, &drawn);
    });
}

/// Whether both draw the same; else there is nothing to compare.
bool drawsTheSame(const Sample &sample, const QString &result)
{
    PagePictures pictures;
    const PageToDraw page = sample.page;
    QImage drawn;
    if (!timeOfPicture(pictures, page, &drawn) || !timeOfPdftoppm(page, result))
        return false;
    return QImage(result + u".ppm"_s).convertToFormat(QImage::Format_RGB32) == drawn;
}

bool judge(const benchmarks::BestTimes &times, const std::vector<Sample> &samples)
{
    constexpr double never = std::numeric_limits<double>::infinity();
    std::printf("\nbest of %d\n%-24s %10s %14s %8s %8s\n", kRepetitions, "what", "ms",
                "pdftoppm, ms", "ratio", "at most");
    bool good = true;
    for (const Sample &sample : samples) {
        const double baseline = times.best(measured(sample, "pdftoppm"));
        for (const bool isCold : {true, false}) {
            const std::string name = measured(sample, isCold ? "cold" : "ready");
            const double most = isCold && !sample.isColdJudged ? never : kMostRatio;
            const double time = times.best(name);
            const double ratio = time / baseline;
            const bool enough = time < never && baseline < never && ratio <= most;
            std::printf("%-24s %10.1f %14.1f %8.2f %8.1f%s\n", name.c_str(), time * 1e3,
                        baseline * 1e3, ratio, most, enough ? "" : "  TOO SLOW");
            good = good && enough;
        }
    }
    const bool isFluent = longestWork() <= kMostOnGuiThread;
    std::printf("longest on the GUI thread: %.2f ms, at most %.0f%s\n", longestWork() * 1e3,
                kMostOnGuiThread * 1e3, isFluent ? "" : "  TOO SLOW");
    return good && isFluent;
}

bool measureAll()
{
    int argc = 1;
    char program[] = "sheets_benchmark";
    char *argv[] = {program, nullptr};
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString result = folder.filePath(u"page"_s);
    const std::vector<Sample> samples = makeSamples(folder);
    for (const Sample &sample : samples) {
        if (!drawsTheSame(sample, result)) {
            std::printf("%s: not drawn as pdftoppm draws it\n", sample.name.c_str());
            return false;
        }
        addAll(sample, result);
    }
    addFirstSheets(folder);
    benchmarks::BestTimes times(benchmarks::BestTimes::Clock::Wall);
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::ClearRegisteredBenchmarks(); // and the renderers with them
    const bool good = judge(times, samples);
    return judgeFirstSheets(times) && good;
}

} // namespace

int main(int argc, char **argv)
{
    return benchmarks::compare(argc, argv, measureAll);
}
