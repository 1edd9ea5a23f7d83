#pragma once

#include <array>
#include <chrono>
#include <thread>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArray>

namespace corvana::test {

/// What a server that takes the rest of a request says then.
struct RestOfRequest
{
    qint64 size = 0; ///< units: bytes
    QByteArray answer;
};

/// Answers each connection on a free port of 127.0.0.1 when it has taken so many bytes of a
/// request, whatever is still to come, and takes nothing more, or pauses until sockets are full.
class EarlyServer
{
public:
    enum class Then { Waits, HangsUp, TakesTheRest };

    /// Units of `after`: bytes.
    EarlyServer(QByteArray answer, qint64 after, Then then, RestOfRequest rest = {})
        : m_answer(std::move(answer)), m_after(after), m_then(then), m_rest(std::move(rest)),
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
    // Longer than a connection waits before it looks around.
    static constexpr std::chrono::milliseconds kPause{700};

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
            take(client, m_after);
            say(client, m_answer);
            if (m_then == Then::TakesTheRest) {
                std::this_thread::sleep_for(kPause);
                take(client, m_rest.size);
                say(client, m_rest.answer);
            }
            if (m_then == Then::HangsUp)
                ::close(std::exchange(last, -1));
        }
    }

    static void take(int client, qint64 most)
    {
        std::array<char, 4096> bytes{};
        qint64 taken = 0;
        while (taken < most) {
            const ssize_t length = ::recv(client, bytes.data(), bytes.size(), 0);
            if (length <= 0)
                return;
            taken += length;
        }
    }
    static void say(int client, const QByteArray &text)
    {
        ::send(client, text.constData(), static_cast<size_t>(text.size()), MSG_NOSIGNAL);
    }

    const QByteArray m_answer;
    const qint64 m_after;
    const Then m_then;
    const RestOfRequest m_rest;
    const int m_socket;
    quint16 m_port = 0;
    std::thread m_thread;
};

} // namespace corvana::test
