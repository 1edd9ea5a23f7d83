#pragma once

#include <algorithm>
#include <cstdio>
#include <exception>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

namespace corvana::benchmarks {

/// Remembers the best time of each benchmark; the single ones say little on a busy machine.
class BestTimes : public benchmark::ConsoleReporter
{
public:
    enum class Clock {
        Processor, ///< what others do on the machine in between does not count
        Wall,      ///< waiting counts, as it does for a user
    };

    explicit BestTimes(Clock clock = Clock::Processor) : m_clock(clock) {}

    void ReportRuns(const std::vector<Run> &reports) override
    {
        for (const Run &run : reports) {
            if (run.run_type != Run::RT_Iteration || run.iterations == 0)
                continue;
            const double seconds = (m_clock == Clock::Processor ? run.cpu_accumulated_time
                                                                : run.real_accumulated_time) /
                                   static_cast<double>(run.iterations);
            const std::string &name = run.run_name.function_name;
            m_first.try_emplace(name, seconds);
            const auto [entry, isNew] = m_best.try_emplace(name, seconds);
            if (!isNew)
                entry->second = std::min(entry->second, seconds);
        }
    }

    /// Units: seconds. Infinite for one that was not run.
    double best(const std::string &name) const { return find(m_best, name); }
    /// The time of the first repetition, which finds nothing prepared. Units and errors: as best().
    double first(const std::string &name) const { return find(m_first, name); }

private:
    static double find(const std::map<std::string, double> &times, const std::string &name)
    {
        const auto found = times.find(name);
        return found == times.end() ? std::numeric_limits<double>::infinity() : found->second;
    }

    Clock m_clock;
    std::map<std::string, double> m_best;
    std::map<std::string, double> m_first;
};

/// Takes the arguments of Google Benchmark, and --check. False after a wrong one, about which the
/// user has been told.
inline bool takeArguments(int argc, char **argv, bool *check)
{
    std::vector<char *> arguments;
    for (int i = 0; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--check")
            *check = true;
        else
            arguments.push_back(argv[i]);
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

/// The main() of a program that compares: takes its arguments, and calls `measure`, which answers
/// whether all is as it should be. What is compared is not measured at different times, since
/// others use the machine, too.
/// Errors: an exception of `measure` is said, and nothing was measured.
template <typename Measure> int compare(int argc, char **argv, const Measure &measure)
{
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaving);
    bool check = false;
    if (!takeArguments(static_cast<int>(arguments.size()), arguments.data(), &check))
        return 2;
    try {
        return measure() || !check ? 0 : 1;
    } catch (const std::exception &problem) {
        std::fprintf(stderr, "%s: %s\n", argv[0], problem.what());
        return 1;
    }
}

/// Runs `run` in a process of its own and answers its exit status: an application's platform and
/// scale are settled once a process. To be called while there is no application yet.
/// Errors: 1 when the process could not be started or died.
template <typename Run> int inOwnProcess(Run run)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const int status = run();
        std::fflush(nullptr);
        _exit(status);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return 1;
    return WEXITSTATUS(status);
}

} // namespace corvana::benchmarks
