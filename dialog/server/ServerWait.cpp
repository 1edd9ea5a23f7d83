#include "dialog/server/ServerWait.h"

#include <QtGlobal>

namespace corvana {

namespace {

// How often a wait is interrupted to see whether it is still wanted. Units: seconds.
constexpr double kLookAround = 0.2;

// libcups waits for a connection while an int is 0.
static_assert(sizeof(CancelFlag) == sizeof(int) && CancelFlag::is_always_lock_free);

} // namespace

ServerPatience ServerPatience::fromEnvironment()
{
    ServerPatience patience;
    bool isNumber = false;
    const double seconds = qEnvironmentVariable("CORVANA_PRINT_PATIENCE").toDouble(&isNumber);
    if (isNumber && seconds > 0 && seconds <= 3600) {
        patience.connecting = std::chrono::milliseconds(static_cast<qint64>(seconds * 1000));
        patience.answering = patience.connecting;
    }
    return patience;
}

void ServerWait::watch(http_t *connection)
{
    httpSetTimeout(
        connection, kLookAround,
        [](http_t *, void *self) { return static_cast<ServerWait *>(self)->isOver() ? 0 : 1; },
        this);
}

void ServerWait::startUntil(Clock::time_point deadline)
{
    m_timedOut = false;
    m_deadline = deadline;
}

bool ServerWait::isOver()
{
    if (isCanceled())
        return true;
    if (Clock::now() < m_deadline)
        return false;
    m_timedOut = true;
    return true;
}

} // namespace corvana
