#pragma once

#include <atomic>
#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <QByteArray>

namespace corvana::test {

/// Takes one connection after the other on a free port of 127.0.0.1, waits for a request, says a
/// beginning, and then the same without end, for as long as it is listened to.
class EndlessServer
{
public:
    /// Without `beginning` it does not wait for a request.
    EndlessServer(QByteArray beginning, QByteArray piece, std::chrono::milliseconds pause)
        : m_beginning(std::move(beginning)), m_piece(std::move(piece)), m_pause(pause),
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
    ~EndlessServer()
    {
        m_ended = true;
        ::shutdown(m_socket, SHUT_RDWR);
        m_thread.join();
        ::close(m_socket);
    }
    EndlessServer(const EndlessServer &) = delete;
    EndlessServer &operator=(const EndlessServer &) = delete;

    quint16 port() const { return m_port; }
    /// Whether anybody has been spoken to.
    bool hasBegun() const { return m_begun; }

private:
    void serve()
    {
        for (;;) {
            const int client = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0)
                return;
            // Nobody may be there to take it, which is not always told.
            const timeval patience{.tv_sec = 0, .tv_usec = 100'000};
            ::setsockopt(client, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
            char byte = 0;
            const bool isAsked = m_beginning.isEmpty() || ::recv(client, &byte, 1, 0) == 1;
            bool isHeard = isAsked && say(client, m_beginning);
            while (isHeard && !m_ended) {
                isHeard = say(client, m_piece);
                m_begun = true;
                std::this_thread::sleep_for(m_pause);
            }
            ::close(client);
        }
    }

    // False when nobody listens any more.
    static bool say(int client, const QByteArray &bytes)
    {
        return ::send(client, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL) >=
                   0 ||
               errno == EAGAIN;
    }

    const QByteArray m_beginning;
    const QByteArray m_piece;
    const std::chrono::milliseconds m_pause;
    const int m_socket;
    quint16 m_port = 0;
    std::atomic<bool> m_begun{false};
    std::atomic<bool> m_ended{false};
    std::thread m_thread;
};

} // namespace corvana::test
