#pragma once

#include <algorithm>
#include <utility>

#include <time.h>

#include <QApplication>
#include <QScopedValueRollback>

namespace corvana::benchmarks {

/// What this thread has used of a processor. Units: nanoseconds
inline qint64 processorTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

/// How much the GUI thread works between two chances for anything else.
class WatchedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (m_isInside)
            return QApplication::notify(receiver, event);
        const QScopedValueRollback inside(m_isInside, true);
        const qint64 before = processorTime();
        const bool result = QApplication::notify(receiver, event);
        m_work += processorTime() - before;
        return result;
    }
    /// Others had their turn.
    void beat() { m_most = std::max(m_most, std::exchange(m_work, 0)); }
    /// The most since it was asked for last. Units: milliseconds
    double takeMost()
    {
        m_work = 0;
        return static_cast<double>(std::exchange(m_most, 0)) * 1e-6;
    }

private:
    bool m_isInside = false;
    qint64 m_work = 0; // since others had their turn
    qint64 m_most = 0;
};

} // namespace corvana::benchmarks
