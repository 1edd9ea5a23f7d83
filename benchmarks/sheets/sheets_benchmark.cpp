// How long the first picture of a page takes to be there, as the preview asks for it, against
// pdftoppm, which draws the same page at the same size with the same library.
//
//   sheets_benchmark           measures and prints the ratios
//   sheets_benchmark --check   the same, and fails when one is higher than it should be
//
// Documents of 3, 100 and 500 pages of text; a large picture; a page without text. The renderer is
// running already ("ready", as it is when the preview has shown anything before or has prepared
// itself) or not ("cold"). The pictures are compared first. Other arguments are those of Google
// Benchmark. Exit status: 0; 1 when something cannot be measured or --check fails; 2 for a wrong
// argument.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <time.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "benchmarks/support/BestTimes.h"
#include "dialog/preview/PagePictures.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRepetitions = 40; // short, and with other processes in between
constexpr int kPatience = 30000; ///< milliseconds
constexpr double kMostRatio = 1.5;
/// Units: seconds
constexpr double kMostOnGuiThread = 0.008;
/// A page that fills half a screen of 1920 x 1080, which is where previews stand; and one that
/// fills a screen of 3840 x 2160. Units: pixels
constexpr QSize kUsual(760, 1075);
constexpr QSize kLarge(2400, 3394);

struct Sample
{
    std::string name;
    PageToDraw page;
    /// pdftoppm does not look for fonts before a page needs one, which is half of what it does on
    /// this machine. The renderer has to do so before it is locked in, once.
    bool isColdJudged = true;
};

/// The sample document again and again.
QString documentOf(int pages, const QTemporaryDir &folder)
{
    const QString sample = test::sourceFile(u"resources/sample/welcome.pdf"_s);
    const QString result = folder.filePath(u"%1.pdf"_s.arg(pages));
    QStringList arguments{u"--empty"_s, u"--pages"_s};
    for (int page = 0; page < pages; ++page)
        arguments << sample << QString::number(page % 3 + 1);
    arguments << u"--"_s << result;
    return QProcess::execute(u"qpdf"_s, arguments) == 0 ? result : QString();
}

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

/// The longest time that the GUI thread worked on one thing. Its own time, because what others do
/// on the machine is not its work. Units: seconds
double longestWork = 0;

double timeOfThread()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

template <typename Work> void worked(const Work &work)
{
    const double start = timeOfThread();
    work();
    longestWork = std::max(longestWork, timeOfThread() - start);
}

bool waitFor(const std::function<bool()> &done)
{
    const QDeadlineTimer deadline(kPatience);
    QTimer waker; // so that the deadline is seen
    waker.start(kPatience);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        worked([] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); });
    }
    return true;
}

/// The time until the picture is there. Units: seconds; nothing when it never is.
std::optional<double> timeOfPicture(PagePictures &pictures, const PageToDraw &page, QImage *drawn)
{
    const Clock::time_point start = Clock::now();
    worked([&] { pictures.want({page}); });
    if (!waitFor([&] { return !pictures.picture(page).isNull(); }))
        return std::nullopt;
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    *drawn = pictures.picture(page);
    return seconds;
}

std::optional<double> timeOfPdftoppm(const PageToDraw &page, const QString &result)
{
    const QString number = QString::number(page.page + 1);
    const QStringList arguments{u"-q"_s,
                                u"-cropbox"_s,
                                u"-f"_s,
                                number,
                                u"-l"_s,
                                number,
                                u"-singlefile"_s,
                                u"-scale-to-x"_s,
                                QString::number(page.size.width()),
                                u"-scale-to-y"_s,
                                QString::number(page.size.height()),
                                page.file,
                                result};
    const Clock::time_point start = Clock::now();
    QProcess program;
    program.start(u"pdftoppm"_s, arguments);
    if (!program.waitForFinished(kPatience) || program.exitCode() != 0)
        return std::nullopt;
    return std::chrono::duration<double>(Clock::now() - start).count();
}

using Measure = std::function<std::optional<double>()>;

void add(const std::string &name, const Measure &measure)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [measure](benchmark::State &state) {
                                     for (auto _ : state) {
                                         if (const std::optional<double> seconds = measure())
                                             state.SetIterationTime(*seconds);
                                         else
                                             state.SkipWithError("no picture");
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(kRepetitions)
        ->UseManualTime();
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
    const bool isFluent = longestWork <= kMostOnGuiThread;
    std::printf("longest on the GUI thread: %.2f ms, at most %.0f%s\n", longestWork * 1e3,
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
    benchmarks::BestTimes times(benchmarks::BestTimes::Clock::Wall);
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::ClearRegisteredBenchmarks(); // and the renderers with them
    return judge(times, samples);
}

} // namespace

int main(int argc, char **argv)
{
    // What is compared must not have been measured at different times: others use the machine too.
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaving);
    bool check = false;
    if (!benchmarks::takeArguments(static_cast<int>(arguments.size()), arguments.data(), &check))
        return 2;
    return measureAll() || !check ? 0 : 1;
}
