#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QString>

#include "benchmarks/support/Waiting.h"
#include "dialog/app/RequestFromCommandLine.h"
#include "tests/support/cups/PrivateCups.h"

// What host_benchmark measures, a file for each kind of it, and what these share.

namespace corvana::benchmarks {

using namespace Qt::StringLiterals;

constexpr int kRepetitions = 25;
/// Short, and with the network in between, so that the best takes longer to come.
constexpr int kOpenings = 75;

inline const QString kSamplePpd =
    QStringLiteral(CORVANA_BENCHMARK_SOURCE_DIR "/resources/ppd/corvana-cl5.ppd");
inline const QString kQueue = u"office"_s;

using Clock = std::chrono::steady_clock;

// Names of what is measured.
constexpr auto kAbsent = "usable: no printer, server absent";
constexpr auto kHung = "usable: no printer, server silent";
constexpr auto kFirstSight = "usable: default of a healthy server";
constexpr auto kKnown = "usable: last printer, server healthy";
constexpr auto kKnownAbsent = "usable: last printer, server absent";
constexpr auto kKnownHung = "usable: last printer, server silent";
constexpr auto kBareList = "2000 queues: bare request";
constexpr auto kList = "2000 queues: listed";
constexpr auto kLoop = "2000 queues: plain loop";
constexpr auto kSearch = "2000 queues: searched";
constexpr auto kPopup = "2000 queues: searched in the popup";
constexpr auto kConflicts = "1000 options: bare conflicts";
constexpr auto kChange = "1000 options: one change";

/// Registers the openings of the dialog. `healthy` is empty where there is no server.
/// Errors: throws std::runtime_error, as the following do, also later, when it is measured.
void measureOpening(const QString &folder, const QString &healthy, const QString &absent,
                    const QString &silent);

/// Gives a server that does not run yet as many queues as are measured.
void writeQueues(const test::PrivateCups &cups);
/// Registers listing and searching them.
void measureQueues(const QString &server, quint16 port);

/// Registers a change in a printer with very many options.
void measureOptions(const QString &folder, const QString &absent);

/// Registers something that times itself. Units: seconds; nothing is a failure.
void measure(const char *name, const std::function<std::optional<double>()> &once,
             int repetitions = kRepetitions);

/// The time that `work` takes. Units: seconds.
template <typename Work> double timeOf(const Work &work)
{
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Lets what has been posted happen, and go what is to be deleted.
void settleDown();

/// The sample document for the queues of a server.
PrintRequest requestFor(const QString &server, const QString &output);

} // namespace corvana::benchmarks
