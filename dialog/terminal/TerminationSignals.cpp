#include "dialog/terminal/TerminationSignals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <QLoggingCategory>
#include <QSocketNotifier>

namespace corvana {

Q_LOGGING_CATEGORY(lcSignals, "corvana.dialog.signals", QtWarningMsg)

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

// All that a handler may touch: the first signal, and a pipe that wakes the event loop. Two
// handlers may run at a time, each in a thread of its own: the mask holds for one thread.
std::atomic<int> firstSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free);
std::array<int, 2> wakeUp{-1, -1};
std::array<struct sigaction, kSignals.size()> former;

void noteSignal(int signal)
{
    const int error = errno;
    int none = 0;
    firstSignal.compare_exchange_strong(none, signal);
    // A full pipe has woken the event loop already.
    [[maybe_unused]] const ssize_t written = ::write(wakeUp[1], "", 1);
    errno = error;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    firstSignal = 0;
    if (::pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(lcSignals) << "signals end the program at once:" << qt_error_string(errno);
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(wakeUp[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(wakeUp[0], &byte, 1) > 0) {
        }
        if (!std::exchange(m_told, true))
            Q_EMIT received();
    });
    struct sigaction note = {};
    note.sa_handler = noteSignal;
    note.sa_flags = SA_RESTART;
    for (const int signal : kSignals)
        sigaddset(&note.sa_mask, signal); // the first to come is noted first
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], nullptr, &former[i]);
        if (former[i].sa_handler != SIG_IGN)
            ::sigaction(kSignals[i], &note, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &former[i], nullptr);
    m_notifier.reset();
    for (int &end : wakeUp)
        ::close(std::exchange(end, -1));
}

int TerminationSignals::caught() const
{
    return firstSignal;
}

} // namespace corvana
