// How long the print dialog takes from its construction until its window is painted, against two
// baselines in the same run: an empty window, which no dialog can be expected to beat, and the
// print dialog that Qt brings, where its module is installed.
//
//   opening_benchmark           measures and prints the ratios
//   opening_benchmark --check   the same, and fails when the dialog takes longer than it should
//
// It measures without a display and, where there is one, with it. Every window is a fresh one. What
// follows the first paint, as the panels do, does not count. Then it measures whole programs, from
// exec to the first window, with an X server of its own (see WholeProcesses.h).
//
// Other arguments are those of Google Benchmark. Exit status: 0; 1 when a window does not come up
// or
// --check fails; 2 for a wrong argument.

#include <chrono>
#include <cstdio>
#include <limits>
#include <memory>
#include <optional>
#include <string>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#ifdef QT_PRINTSUPPORT_LIB
#include <QPrintDialog>
#include <QPrinter>
#endif

#include "benchmarks/opening/WholeProcesses.h"
#include "benchmarks/support/BestTimes.h"
#include "dialog/app/RequestFromCommandLine.h"
#include "dialog/window/PrintWindow.h"

using namespace corvana;

using namespace Qt::StringLiterals;

namespace {

constexpr int kRepetitions = 25;
constexpr int kPatience = 20000; // milliseconds

/// What the dialog may take of the time of the stock one. It takes three times as long and more
/// once the panels come up before the first paint.
constexpr double kMostOfStock = 2.5;

const std::string kEmpty = "empty window";
const std::string kStock = "stock dialog";
const std::string kDialog = "print dialog";

using Clock = std::chrono::steady_clock;

/// Waits for the first paint of a window to be over.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget *window) : m_window(window) { window->installEventFilter(this); }

    /// When it was over; nothing when the window is not painted at all.
    std::optional<Clock::time_point> wait()
    {
        QTimer::singleShot(kPatience, &m_loop, &QEventLoop::quit);
        m_loop.exec();
        return m_over;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The children are painted in the same go; then this comes, before whatever the window
        // puts off until it is painted.
        if (watched == m_window && event->type() == QEvent::Paint) {
            m_window->removeEventFilter(this);
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
        return QObject::eventFilter(watched, event);
    }

protected:
    // Noted here, because the loop delivers what else was posted before it ends.
    void customEvent(QEvent *) override
    {
        m_over = Clock::now();
        m_loop.quit();
    }

private:
    QWidget *m_window;
    QEventLoop m_loop;
    std::optional<Clock::time_point> m_over;
};

/// One opening of what `make` makes.
template <typename Make> void open(benchmark::State &state, const Make &make)
{
    const Clock::time_point start = Clock::now();
    const std::unique_ptr<QWidget> window = make();
    FirstPaint paint(window.get());
    window->show();
    if (const std::optional<Clock::time_point> over = paint.wait())
        state.SetIterationTime(std::chrono::duration<double>(*over - start).count());
    else
        state.SkipWithError("the window is not painted");
}

/// Measures what `make` makes, a new one each time.
template <typename Make> void measureOpening(const std::string &name, const Make &make)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [make](benchmark::State &state) {
                                     for (auto _ : state)
                                         open(state, make);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(kRepetitions)
        ->UseManualTime();
}

/// Prints the ratios; false when one is too high.
bool judge(const benchmarks::BestTimes &times)
{
    const double dialog = times.best(kDialog);
    std::printf("\nopening on %s, best of %d\n", qPrintable(QGuiApplication::platformName()),
                kRepetitions);
    std::printf("%-14s %10s %10s %22s\n", "window", "ms", "first, ms", "print dialog takes");
    for (const std::string &name : {kEmpty, kStock, kDialog}) {
        if (times.best(name) < std::numeric_limits<double>::infinity())
            std::printf("%-14s %10.2f %10.2f %21.2fx\n", name.c_str(), times.best(name) * 1e3,
                        times.first(name) * 1e3, dialog / times.best(name));
    }
    if (times.best(kStock) == std::numeric_limits<double>::infinity()) {
        std::printf("Without the stock dialog no ratio is demanded.\n");
        return dialog < std::numeric_limits<double>::infinity();
    }
    const bool enough = dialog <= kMostOfStock * times.best(kStock);
    if (!enough)
        std::printf("The print dialog takes more than %.1f times the stock one.\n", kMostOfStock);
    return enough;
}

int measure(const char *platform, bool check)
{
    if (platform)
        qputenv("QT_QPA_PLATFORM", platform);
    const QTemporaryDir folder; // the user's own window sizes stay what they are
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    int argc = 1;
    char program[] = "opening_benchmark";
    char *argv[] = {program, nullptr};
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    CommandLine line;
    line.documents = {QStringLiteral(CORVANA_BENCHMARK_SOURCE_DIR "/resources/sample/welcome.pdf")};
    line.ppd = QStringLiteral(CORVANA_BENCHMARK_SOURCE_DIR "/resources/ppd/corvana-cl5.ppd");
    line.bundleRoots = {QStringLiteral(CORVANA_BENCHMARK_BUNDLE_DIR "/..")};
    line.output = folder.filePath(u"job.ps"_s);
    QString error;
    const PrintRequest request = preparePrintRequest(line, &error).value_or(PrintRequest());
    if (request.printers.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }

    measureOpening(kEmpty, [] { return std::make_unique<QWidget>(); });
#ifdef QT_PRINTSUPPORT_LIB
    measureOpening(kStock, [] { return std::make_unique<QPrintDialog>(); });
#endif
    measureOpening(kDialog, [&request] { return std::make_unique<PrintWindow>(request); });
    benchmarks::BestTimes times(benchmarks::BestTimes::Clock::Wall);
    benchmark::RunSpecifiedBenchmarks(&times);
    return judge(times) || !check ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    bool check = false;
    if (!benchmarks::takeArguments(argc, argv, &check))
        return 2;
    bool good = benchmarks::inOwnProcess([&] { return measure("offscreen", check); }) == 0;
    if (qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        good = benchmarks::inOwnProcess([&] { return measure(nullptr, check); }) == 0 && good;
#ifdef CORVANA_BENCHMARK_PROGRAM
    const int whole =
        benchmarks::inOwnProcess([] { return benchmarks::measureWholeProcesses() ? 0 : 1; });
    good = (whole == 0 || !check) && good;
#endif
    return good ? 0 : 1;
}
