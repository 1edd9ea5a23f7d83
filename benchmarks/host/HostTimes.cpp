#include "benchmarks/host/HostTimes.h"
#include "dialog/app/RequestFromCommandLine.h"

#include <stdexcept>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace corvana::benchmarks {

namespace {
const QString kSampleDocument =
    QStringLiteral(CORVANA_BENCHMARK_SOURCE_DIR "/resources/sample/welcome.pdf");
}

void measure(const char *name, const std::function<std::optional<double>()> &once, int repetitions)
{
    ::benchmark::RegisterBenchmark(name,
                                   [once](::benchmark::State &state) {
                                       for (auto _ : state) {
                                           if (const std::optional<double> seconds = once())
                                               state.SetIterationTime(*seconds);
                                           else
                                               state.SkipWithError("it does not come to its end");
                                       }
                                   })
        ->Unit(::benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions)
        ->UseManualTime();
}

void settleDown()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

PrintRequest requestFor(const QString &server, const QString &output)
{
    CommandLine line;
    line.documents = {kSampleDocument};
    line.bundleRoots = {QFileInfo(QStringLiteral(CORVANA_BENCHMARK_BUNDLE_DIR)).path()};
    line.server = server;
    line.output = output;
    QString error;
    const std::optional<PrintRequest> request = preparePrintRequest(line, &error);
    if (!request)
        throw std::runtime_error(error.toStdString());
    PrintRequest result = *request;
    result.outputWasNamed = false;
    return result;
}

} // namespace corvana::benchmarks
