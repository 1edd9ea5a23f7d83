#include "tests/support/Heartbeat.h"

#include <algorithm>
#include <utility>

#include <QFile>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

constexpr qint64 kInMillisecond = 1000 * 1000; // nanoseconds

// How long this thread has been ready to run without getting a processor, since it began. 0 where
// the system does not tell. Units: nanoseconds.
qint64 waitedForProcessor()
{
    // Time on a processor, time ready to run, turns.
    QFile file(u"/proc/thread-self/schedstat"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong();
}

} // namespace

Heartbeat::Heartbeat(std::chrono::milliseconds beat)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(beat);
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
    return std::exchange(m_largest, 0) / kInMillisecond;
}

void Heartbeat::beat()
{
    const qint64 waited = waitedForProcessor();
    const qint64 inVain = waited - std::exchange(m_waited, waited);
    m_largest = std::max(m_largest, m_last.nsecsElapsed() - inVain);
    m_last.start();
}

} // namespace corvana::test
