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
/// And of its own time without a document, so without any sheet to be shown: looking at what it
/// prints, and at what comes out, has to wait until the window is there. What remains is the look
/// into the file by which it is known to be a PDF, its name in the window, and what two medians of
/// one and the same program differ by.
constexpr double kMostOfNoDocument = 1.05;

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

/// Both: what waits costs the user as much as what computes.
double ratioOf(const Program &one, const Program &other)
{
    return std::max(median(one.wall) / median(other.wall),
                    median(one.processor) / median(other.processor));
}

void print(const std::vector<Program> &programs)
{
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
    const std::vector<std::string> withoutDocument{CORVANA_BENCHMARK_PROGRAM, "--bundle-root",
                                                   CORVANA_BENCHMARK_BUNDLE_DIR "/..", "--demo"};
    std::vector<std::string> withDocument = withoutDocument;
    withDocument.emplace_back(CORVANA_BENCHMARK_SOURCE_DIR "/resources/sample/welcome.pdf");
    std::vector<Program> programs{
        {"print dialog", withDocument},
        {"no document", withoutDocument},
        {"empty window", {CORVANA_BENCHMARK_EMPTY_WINDOW}},
#ifdef CORVANA_BENCHMARK_STOCK_DIALOG
        {"stock dialog", {CORVANA_BENCHMARK_STOCK_DIALOG}},
#endif
    };
    if (!takeTurns(*display, programs))
        return false;

    print(programs);
    const Program &dialog = programs.front();
    bool good = ratioOf(dialog, programs.at(1)) <= kMostOfNoDocument;
    if (!good)
        std::printf("The print dialog takes more than %.2f times its own without a document.\n",
                    kMostOfNoDocument);
    const Program &last = programs.back();
    if (std::string("stock dialog") == last.name && ratioOf(dialog, last) > kMostOfStock) {
        std::printf("The print dialog takes more than %.2f times the stock one.\n", kMostOfStock);
        good = false;
    }
    return good;
}

} // namespace corvana::benchmarks
