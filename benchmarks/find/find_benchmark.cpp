// How long it takes to find a setting among the 1,000 options of a printer, as somebody types,
// against looking through the same texts with nothing but QString::contains(); and to collect what
// can be found, against opening the PPD once more.
//
//   find_benchmark           measures and prints the ratios
//   find_benchmark --check   the same, and fails when one is higher than it should be
//
// The PPD has texts in English and Japanese, and is read in Japanese: each text is there twice. The
// slowest search has to be done within one frame of a screen as well. Other arguments are those of
// Google Benchmark. Exit status: 0; 1 when something cannot be measured or --check fails; 2 for a
// wrong argument.

#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>
#include <stdexcept>
#include <vector>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "benchmarks/support/BestTimes.h"
#include "dialog/printers/PrinterFetching.h"
#include "dialog/session/SearchForm.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/SettingsIndex.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr int kOptions = 1000;
constexpr int kChoices = 6;
constexpr int kRepetitions = 25;
/// Of a screen that shows 60 pictures a second. Units: seconds
constexpr double kFrame = 1.0 / 60;

/// As somebody types, and what is found everywhere, at one place and nowhere.
const QStringList kQueries{u"o"_s,         u"op"_s,      u"option"_s, u"option 77"_s,
                           u"third 500"_s, u"choice"_s,  u"選択肢"_s, u"設定 500"_s,
                           u"option999"_s, u"nothing"_s, u"e"_s,      u"1"_s};

struct Demand
{
    const char *what;
    const char *baseline;
    double most;
};

constexpr auto kScan = "plain scan";
constexpr auto kFind = "searched";
constexpr auto kOpen = "PPD opened";
constexpr auto kCollect = "collected";

// About twice what a good run takes: enough for a busy machine, little enough for a loop in a loop
// to be seen.
constexpr Demand kDemands[] = {{kFind, kScan, 6.0}, {kCollect, kOpen, 3.0}};

QString writeLargePpd(const QString &folder)
{
    static const char *const kWords[] = {"First", "Second", "Third", "Fourth", "Fifth", "Sixth"};
    test::PpdBuilder ppd;
    ppd.line("*cupsLanguages: \"ja\"");
    for (int i = 0; i < kOptions; ++i) {
        const QByteArray number = QByteArray::number(i);
        const QByteArray keyword = "Option" + number;
        QList<test::PpdChoice> choices;
        for (int c = 0; c < kChoices; ++c)
            choices += test::PpdChoice{QByteArray("Choice") + kWords[c],
                                       QByteArray(kWords[c]) + " Choice of " + number};
        ppd.option(keyword, "Option " + number, "ChoiceFirst", choices);
        ppd.line("*ja.Translation " + keyword + "/設定 " + number + ": \"\"");
        for (const test::PpdChoice &choice : std::as_const(choices))
            ppd.line("*ja." + keyword + ' ' + choice.first + "/選択肢 " + choice.first + ": \"\"");
    }
    const QString path = folder + u"/large.ppd"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(ppd.text()) < 0)
        throw std::runtime_error("the large PPD cannot be written");
    return path;
}

/// The queries one after the other, so that no quick one hides a slow one.
void findAll(benchmark::State &state, const SettingsIndex &index)
{
    for ([[maybe_unused]] auto _ : state) {
        for (const QString &query : kQueries)
            benchmark::DoNotOptimize(index.find(query));
    }
}

void scanAll(benchmark::State &state, const QStringList &texts)
{
    for ([[maybe_unused]] auto _ : state) {
        for (const QString &query : kQueries) {
            const QStringList words = searchWords(query);
            const auto found = std::count_if(texts.begin(), texts.end(), [&](const QString &text) {
                return std::all_of(words.begin(), words.end(),
                                   [&](const QString &word) { return text.contains(word); });
            });
            benchmark::DoNotOptimize(found);
        }
    }
}

void openPpd(benchmark::State &state, const QString &path)
{
    for ([[maybe_unused]] auto _ : state) {
        ppd_file_t *ppd = ppdOpenFile(QFile::encodeName(path).constData());
        benchmark::DoNotOptimize(ppd);
        ppdClose(ppd);
    }
}

/// The slowest of the queries, by itself. Units: seconds
double slowestQuery(const SettingsIndex &index)
{
    double slowest = 0;
    for (const QString &query : kQueries) {
        double best = std::numeric_limits<double>::infinity();
        for (int i = 0; i < kRepetitions; ++i) {
            const auto start = std::chrono::steady_clock::now();
            benchmark::DoNotOptimize(index.find(query));
            const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
            best = std::min(best, time.count());
        }
        slowest = std::max(slowest, best);
    }
    return slowest;
}

bool judge(const benchmarks::BestTimes &times, double slowest)
{
    constexpr double missing = std::numeric_limits<double>::infinity();
    std::printf("\nbest of %d\n%-12s %10s   %-12s %10s %8s %8s\n", kRepetitions, "what", "ms",
                "baseline", "ms", "ratio", "at most");
    bool good = true;
    for (const Demand &demand : kDemands) {
        const double time = times.best(demand.what);
        const double baseline = times.best(demand.baseline);
        const double ratio = time / baseline;
        const bool enough = time < missing && baseline < missing && ratio <= demand.most;
        std::printf("%-12s %10.3f   %-12s %10.3f %8.2f %8.1f%s\n", demand.what, time * 1e3,
                    demand.baseline, baseline * 1e3, ratio, demand.most,
                    enough ? "" : "  TOO SLOW");
        good = good && enough;
    }
    std::printf("the slowest search: %.3f ms, at most %.1f%s\n", slowest * 1e3, kFrame * 1e3,
                slowest <= kFrame ? "" : "  TOO SLOW");
    return good && slowest <= kFrame;
}

bool measureAll()
{
    // libcups reads the texts of the process's language.
    qputenv("LC_ALL", "ja_JP.UTF-8");
    qputenv("LANGUAGE", "");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char program[] = "find_benchmark";
    char *argv[] = {program, nullptr};
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = writeLargePpd(folder.path());
    test::ScriptedAlertPresenter presenter;
    QString error;
    const auto printer =
        openPrinter(printerWithItsFile({u"large"_s, u"large"_s, path}), {}, presenter, &error);
    if (!printer)
        throw std::runtime_error(error.toStdString());
    const SettingsIndex index(*printer, {}, true);
    const QStringList texts = index.searchedTexts();
    if (index.find(u"設定 500"_s).isEmpty() || index.find(u"option 500"_s).isEmpty())
        throw std::runtime_error("the large PPD has not got its texts in two languages");

    const auto add = [](const char *name, auto run) {
        benchmark::RegisterBenchmark(name, run)
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(kRepetitions)
            ->MinTime(0.01);
    };
    add(kScan, [&texts](benchmark::State &state) { scanAll(state, texts); });
    add(kFind, [&index](benchmark::State &state) { findAll(state, index); });
    add(kOpen, [&path](benchmark::State &state) { openPpd(state, path); });
    add(kCollect, [&printer](benchmark::State &state) {
        for ([[maybe_unused]] auto _ : state)
            benchmark::DoNotOptimize(SettingsIndex(*printer, {}, true).settings());
    });
    benchmarks::BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::ClearRegisteredBenchmarks();
    return judge(times, slowestQuery(index));
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
    try {
        return measureAll() || !check ? 0 : 1;
    } catch (const std::exception &problem) {
        std::fprintf(stderr, "find_benchmark: %s\n", problem.what());
        return 1;
    }
}
