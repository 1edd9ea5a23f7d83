#pragma once

#include <chrono>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace corvana::test {

/// The pulse of the thread that it lives in: how long nothing else had its turn there.
///
/// On a machine that others use as well a thread also stands still because no processor is free.
/// That is nothing that the thread does, and is not counted, where the system tells how long it
/// was. Thread: the one that it was made in.
class Heartbeat : public QObject
{
public:
    /// The time between two beats of a thread that has nothing else to do. It is part of each gap.
    explicit Heartbeat(std::chrono::milliseconds beat = std::chrono::milliseconds(10));

    void start();
    /// What the test itself does from here on does not count.
    void stop();
    /// The longest time between two beats since it was asked for last. Units: milliseconds.
    qint64 takeLargestGap();

private:
    void beat();

    QTimer m_timer;
    QElapsedTimer m_last;
    qint64 m_waited = 0;  // for a processor, until the last beat; in nanoseconds
    qint64 m_largest = 0; // in nanoseconds
};

} // namespace corvana::test
