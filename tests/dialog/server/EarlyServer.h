#pragma once

#include <thread>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArray>

namespace corvana::test {

/// Answers each connection on a free port of 127.0.0.1 when it has taken so many bytes of a
/// request, whatever is still to come, and takes nothing more.
class EarlyServer
{
public:
    enum class Then { Waits, HangsUp };

    /// Units of `after`: bytes.
    EarlyServer(QByteArray answer, qint64 after, Then then)
        : m_answer(std::move(answer)), m_after(after), m_then(then),
          m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto *where = reinterpret_cast<sockaddr *>(&address);
        if (::bind(m_socket, where, length) == 0 && ::listen(m_socket, 5) == 0 &&
            ::getsockname(m_socket, where, &length) == 0)
            m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { serve(); });
    }
    ~EarlyServer()
    {
        ::shutdown(m_socket, SHUT_RDWR);
        m_thread.join();
        ::close(m_socket);
    }
    EarlyServer(const EarlyServer &) = delete;
    EarlyServer &operator=(const EarlyServer &) = delete;

    quint16 port() const { return m_port; }

private:
    void serve()
    {
        int last = -1;
        for (;;) {
            const int client = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
            if (last >= 0)
                ::close(last);
            if (client < 0)
                return;
            last = client;
            char bytes[4096];
            qint64 taken = 0;
            while (taken < m_after) {
                const ssize_t length = ::recv(client, bytes, sizeof bytes, 0);
                if (length <= 0)
                    break;
                taken += length;
            }
            ::send(client, m_answer.constData(), static_cast<size_t>(m_answer.size()),
                   MSG_NOSIGNAL);
            if (m_then == Then::HangsUp)
                ::close(std::exchange(last, -1));
        }
    }

    const QByteArray m_answer;
    const qint64 m_after;
    const Then m_then;
    const int m_socket;
    quint16 m_port = 0;
    std::thread m_thread;
};

} // namespace corvana::test
