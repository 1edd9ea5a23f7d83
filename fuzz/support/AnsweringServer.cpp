#include "fuzz/support/AnsweringServer.h"

#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "fuzz/support/Target.h"

namespace corvana::fuzz {

AnsweringServer::AnsweringServer() : m_listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = socket().toUtf8();
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    require(::bind(m_listener, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0 &&
                ::listen(m_listener, 8) == 0,
            "a server can listen", socket());
    m_thread = std::thread([this] { serve(); });
}

AnsweringServer::~AnsweringServer()
{
    ::shutdown(m_listener, SHUT_RDWR);
    m_thread.join();
    ::close(m_listener);
}

void AnsweringServer::setAnswers(const QList<QByteArray> &answers)
{
    const std::scoped_lock lock(m_mutex);
    m_answers = answers;
}

void AnsweringServer::serve()
{
    while (true) {
        const int connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            return;
        answer(connection);
        ::close(connection);
    }
}

// The request has to be there first, since what comes before it is thrown away. What hangs up with
// something unread makes the other side lose the answer, so the rest is waited for, a moment.
void AnsweringServer::answer(int connection)
{
    QByteArray bytes;
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_answers.isEmpty())
            bytes = m_answers.takeFirst();
    }
    char room[8192];
    if (::recv(connection, room, sizeof room, 0) <= 0)
        return;
    const char *next = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t sent = ::send(connection, next, static_cast<size_t>(left), MSG_NOSIGNAL);
        if (sent <= 0)
            return;
        next += sent;
        left -= sent;
    }
    ::shutdown(connection, SHUT_WR);
    constexpr int kMoment = 20; // milliseconds
    pollfd waiting{connection, POLLIN, 0};
    while (::poll(&waiting, 1, kMoment) > 0 && ::recv(connection, room, sizeof room, 0) > 0)
        continue;
}

} // namespace corvana::fuzz
