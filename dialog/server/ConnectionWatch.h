#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <cups/cups.h>

#include "dialog/server/ServerWait.h"

namespace corvana {

/// Ends what libcups would do without end. Its own time-out counts silence only: a server that says
/// one line of a head after the other, or one byte of its keys every few seconds, keeps it for
/// days, and while keys are exchanged it asks nobody for ten seconds at a time. While this object
/// lives, another thread looks at the clock, and shuts the socket down when it is time, or when the
/// wait was canceled; libcups then finds the connection at its end.
///
/// A connection of our own below libcups would have to bring TLS, passwords and Kerberos along.
///
/// Thread: that of the connection.
class ConnectionWatch
{
public:
    /// `connection` may still have to connect: time counts from when it has a socket. Both are
    /// borrowed. Units: of `patience`, the longest time that is borne from there.
    ConnectionWatch(http_t *connection, const ServerWait &wait, std::chrono::milliseconds patience);
    ~ConnectionWatch();
    ConnectionWatch(const ConnectionWatch &) = delete;
    ConnectionWatch &operator=(const ConnectionWatch &) = delete;

    /// Whether the time was over.
    bool hasTimedOut() const;

private:
    void look();

    http_t *m_connection;
    const ServerWait &m_wait;
    std::chrono::milliseconds m_patience;
    mutable std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_ended = false;
    bool m_timedOut = false;
    std::thread m_thread; // the last to come: it uses the others
};

} // namespace corvana
