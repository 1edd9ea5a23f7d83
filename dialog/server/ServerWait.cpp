#include "dialog/server/ServerWait.h"

#include <array>

#include <sys/socket.h>

#include <QtGlobal>

namespace corvana {

namespace {

// How often a wait is interrupted to see whether it is still wanted. Units: seconds.
constexpr double kLookAround = 0.2;

// Whether an answer that is not an interim one ("HTTP/1.1 100") has begun to come, or the
// connection is at its end. On an encrypted one there may be tickets and new keys, which are no
// answer.
bool hasAnswered(http_t *connection)
{
    constexpr ssize_t kLength = sizeof "HTTP/1.1 1" - 1;
    std::array<char, kLength> head{};
    if (httpIsEncrypted(connection))
        return false;
    const ssize_t length =
        ::recv(httpGetFd(connection), head.data(), head.size(), MSG_PEEK | MSG_DONTWAIT);
    return length == 0 || (length == kLength && head.back() != '1');
}

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
        [](http_t *waiting, void *self) {
            return static_cast<ServerWait *>(self)->isOver(waiting) ? 0 : 1;
        },
        this);
}

void ServerWait::startUntil(Clock::time_point deadline)
{
    m_timedOut = false;
    m_deadline = deadline;
}

bool ServerWait::isOver(http_t *connection)
{
    if (isOver())
        return true;
    return m_endsOnAnswer && hasAnswered(connection);
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
