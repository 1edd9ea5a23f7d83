#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include <QString>
#include <QThread>

namespace corvana::test {

/// A thread with an event loop, in which the sockets of a fixture live, so that a test may block.
/// What is handed over is guarded by the standard library's means: a race detector sees those,
/// while it knows nothing of what happens within Qt's libraries.
class EventThread
{
public:
    explicit EventThread(const QString &name);
    /// Deletes the context and all that it owns, and waits for the thread.
    ~EventThread();
    EventThread(const EventThread &) = delete;
    EventThread &operator=(const EventThread &) = delete;

    /// Parent of everything that lives in the thread.
    QObject *context();

    /// Runs a function in the thread and waits for its end. From any other thread.
    void run(std::function<void()> function);

private:
    class Runner;

    void runHanded();

    std::mutex m_callers; // one function at a time
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::function<void()> m_function;
    QThread m_thread;
    std::unique_ptr<Runner> m_runner;
    QObject *m_context = nullptr;
};

} // namespace corvana::test
