#include "tests/e2e/Heartbeat.h"

#include <algorithm>
#include <utility>

#include <QFile>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

constexpr int kBeat = 10; // milliseconds
constexpr qint64 kNanosecondsInOne = 1000 * 1000;

// How long this thread has been ready to run without getting a processor, since it began. 0 where
// the system does not tell. Units: milliseconds.
qint64 waitedForProcessor()
{
    // Time on a processor, time ready to run, turns; the first two in nanoseconds.
    QFile file(u"/proc/thread-self/schedstat"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() / kNanosecondsInOne;
}

} // namespace

Heartbeat::Heartbeat()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kBeat);
    connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
}

void Heartbeat::start()
{
    if (m_timer.isActive())
        return;
    m_waited = waitedForProcessor();
    m_last.start();
    m_timer.start();
}

void Heartbeat::stop()
{
    if (!m_timer.isActive())
        return;
    beat();
    m_timer.stop();
}

qint64 Heartbeat::takeLargestGap()
{
    return std::exchange(m_largest, 0);
}

void Heartbeat::beat()
{
    const qint64 waited = waitedForProcessor();
    const qint64 inVain = waited - std::exchange(m_waited, waited);
    m_largest = std::max(m_largest, m_last.restart() - inVain);
}

} // namespace corvana::test
