#pragma once

#include <functional>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace corvana::benchmarks {

constexpr int kPatience = 30000; ///< milliseconds

/// Lets events happen until `done`. False when it takes too long.
inline bool waitFor(const std::function<bool()> &done)
{
    const QDeadlineTimer deadline(kPatience);
    QTimer waker; // so that the deadline is seen
    waker.start(kPatience);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace corvana::benchmarks
