#pragma once

#include <functional>

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace corvana::test {

/// A TCP port of 127.0.0.1 that is this object's own: it is bound, and nobody listens there, so
/// that the system gives it to no other program, connections to it are refused, and a server that
/// is started on it (SO_REUSEADDR, as all of CUPS does) gets it, also after a restart.
class LoopbackPort
{
public:
    /// Errors: throws std::runtime_error when the system has no free port.
    LoopbackPort();
    ~LoopbackPort();
    LoopbackPort(const LoopbackPort &) = delete;
    LoopbackPort &operator=(const LoopbackPort &) = delete;

    quint16 number() const { return m_number; }
    /// "127.0.0.1:PORT", as CUPS_SERVER and cupsSetServer take it.
    QString server() const;
    /// Whether somebody accepts connections there.
    bool answers() const;

private:
    int m_socket = -1;
    quint16 m_number = 0;
};

/// A server that a test starts: it ends with this object, by its process number, and also when the
/// test dies without running destructors.
/// Thread: start it in a thread that lives as long as the server is needed; the kernel ends the
/// server with the thread that started it.
class ServerProcess
{
public:
    ServerProcess() = default;
    ~ServerProcess();
    ServerProcess(const ServerProcess &) = delete;
    ServerProcess &operator=(const ServerProcess &) = delete;

    /// Looks for `program` on the path and in the folders of system programs as well.
    /// `logFile` gets what it writes to both outputs. `environment` is added to the test's own, as
    /// "NAME=value". Errors: throws std::runtime_error when the program is not there.
    void start(const QString &program, const QStringList &arguments, const QString &logFile,
               const QStringList &environment = {});
    /// Waits until `isReady` is true. Errors: false when the process ended before, or after ten
    /// seconds.
    bool waitUntil(const std::function<bool()> &isReady);
    /// Ends it with SIGTERM and waits; with SIGKILL if it is not gone after five seconds.
    void stop();
    /// Ends it with SIGKILL and waits.
    void kill();
    bool isRunning();
    qint64 processId() const { return m_process.processId(); }

private:
    QProcess m_process;
};

/// Path of a program on the path or in a folder of system programs; empty when it is in none.
QString systemProgram(const QString &name);

} // namespace corvana::test
