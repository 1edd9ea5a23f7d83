#pragma once

#include <atomic>
#include <mutex>
#include <thread>

#include <QByteArray>
#include <QList>
#include <QTemporaryDir>

namespace corvana::fuzz {

/// A server that says what it is told to say, whatever it is asked, and hangs up. It listens on a
/// socket in a folder of its own.
/// Thread: all functions from one thread; the server has one of its own.
class AnsweringServer
{
public:
    AnsweringServer();
    ~AnsweringServer();
    AnsweringServer(const AnsweringServer &) = delete;
    AnsweringServer &operator=(const AnsweringServer &) = delete;

    QString socket() const { return m_folder.filePath(QStringLiteral("sock")); }
    /// What each connection from here on is answered; those behind the last one get nothing.
    void setAnswers(const QList<QByteArray> &answers);

private:
    void serve();
    void answer(int connection);

    QTemporaryDir m_folder;
    int m_listener;
    std::mutex m_mutex;
    QList<QByteArray> m_answers;
    std::thread m_thread;
};

} // namespace corvana::fuzz
