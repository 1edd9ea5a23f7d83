#include "benchmarks/opening/WholeProcesses.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include <QByteArray>
#include <QTemporaryDir>

#include "benchmarks/opening/OwnDisplay.h"

namespace corvana::benchmarks {

namespace {

constexpr int kRounds = 25;

/// What the print dialog may take of the time of the stock one, by the clock and of the processor.
constexpr double kMostOfStock = 1.15;

struct Program
{
    const char *name;
    std::vector<std::string> command;
    std::vector<double> wall{};      ///< seconds
    std::vector<double> processor{}; ///< seconds
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// No file of the user's and no service of the machine has a say in what is measured.
void cutOff(const QTemporaryDir &home, const OwnDisplay &display)
{
    const QByteArray folder = home.path().toLocal8Bit();
    for (const char *name :
         {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qputenv(name, folder);
    for (const char *name : {"WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM",
                             "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "LANGUAGE"})
        qunsetenv(name);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("CUPS_SERVER", folder + "/none.sock");
    qputenv("DISPLAY", QByteArray::fromStdString(display.name()));
}

bool takeTurns(OwnDisplay &display, std::vector<Program> &programs)
{
    // The first round finds nothing in the caches of the system.
    for (int round = -1; round < kRounds; ++round) {
        for (Program &program : programs) {
            const std::optional<Opening> opening = display.open(program.command);
            if (!opening) {
                std::printf("The %s shows no window.\n", program.name);
                return false;
            }
            if (round < 0)
                continue;
            program.wall.push_back(opening->wall.count());
            program.processor.push_back(opening->processor.count());
        }
    }
    return true;
}

} // namespace

bool measureWholeProcesses()
{
    const std::unique_ptr<OwnDisplay> display = OwnDisplay::start();
    if (!display) {
        std::printf("\nWithout Xvfb no whole process is measured.\n");
        return true;
    }
    const QTemporaryDir home;
    cutOff(home, *display);
    std::vector<Program> programs{
        {"print dialog",
         {CORVANA_BENCHMARK_PROGRAM, "--bundle-root", CORVANA_BENCHMARK_BUNDLE_DIR "/..", "--demo",
          CORVANA_BENCHMARK_SOURCE_DIR "/resources/sample/welcome.pdf"}},
        {"empty window", {CORVANA_BENCHMARK_EMPTY_WINDOW}},
#ifdef CORVANA_BENCHMARK_STOCK_DIALOG
        {"stock dialog", {CORVANA_BENCHMARK_STOCK_DIALOG}},
#endif
    };
    if (!takeTurns(*display, programs))
        return false;

    std::printf("\nwhole processes, from exec to the first window, medians of %d in turns\n",
                kRounds);
    std::printf("%-14s %10s %14s %22s %14s\n", "program", "ms", "processor, ms",
                "print dialog takes", "of processor");
    const Program &dialog = programs.front();
    for (const Program &program : programs) {
        std::printf("%-14s %10.1f %14.1f %21.2fx %13.2fx\n", program.name,
                    median(program.wall) * 1e3, median(program.processor) * 1e3,
                    median(dialog.wall) / median(program.wall),
                    median(dialog.processor) / median(program.processor));
    }
    const Program &last = programs.back();
    if (std::string("stock dialog") != last.name)
        return true;
    // Both: what waits costs the user as much as what computes.
    const double ratio = std::max(median(dialog.wall) / median(last.wall),
                                  median(dialog.processor) / median(last.processor));
    if (ratio <= kMostOfStock)
        return true;
    std::printf("The print dialog takes more than %.2f times the stock one.\n", kMostOfStock);
    return false;
}

} // namespace corvana::benchmarks
