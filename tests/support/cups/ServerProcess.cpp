#include "tests/support/cups/ServerProcess.h"

#include <csignal>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QStandardPaths>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int startTime = 10000; // milliseconds
constexpr int stopTime = 5000;   // milliseconds

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// The system's calls take one address type for all families.
sockaddr *generic(sockaddr_in *address)
{
    return reinterpret_cast<sockaddr *>(address);
}

} // namespace

LoopbackPort::LoopbackPort() : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    // A server that binds the port besides must set the same option.
    const int on = 1;
    ::setsockopt(m_socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    if (::bind(m_socket, generic(&address), size) != 0 ||
        ::getsockname(m_socket, generic(&address), &size) != 0)
        throw std::runtime_error("no free port on 127.0.0.1");
    m_number = ntohs(address.sin_port);
}

LoopbackPort::~LoopbackPort()
{
    ::close(m_socket);
}

QString LoopbackPort::server() const
{
    return u"127.0.0.1:%1"_s.arg(m_number);
}

bool LoopbackPort::answers() const
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopback(m_number);
    const bool connected = ::connect(socket, generic(&address), sizeof address) == 0;
    ::close(socket);
    return connected;
}

QString systemProgram(const QString &name)
{
    const QString found = QStandardPaths::findExecutable(name);
    if (!found.isEmpty())
        return found;
    return QStandardPaths::findExecutable(
        name, {u"/usr/local/sbin"_s, u"/usr/sbin"_s, u"/sbin"_s, u"/usr/bin"_s, u"/bin"_s});
}

ServerProcess::~ServerProcess()
{
    stop();
}

void ServerProcess::start(const QString &program, const QStringList &arguments,
                          const QString &logFile, const QStringList &environment)
{
    const QString path = systemProgram(program);
    if (path.isEmpty())
        throw std::runtime_error(program.toStdString() + " is not installed");
    m_process.setProgram(path);
    m_process.setArguments(arguments);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(logFile, QIODevice::Append);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &line : environment)
        variables.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    m_process.setProcessEnvironment(variables);
    const pid_t test = ::getpid();
    m_process.setChildProcessModifier([test] {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        // The test may have died before the line above.
        if (::getppid() != test)
            ::_exit(1);
    });
    m_process.start();
    if (!m_process.waitForStarted(startTime))
        throw std::runtime_error(path.toStdString() + " cannot be started");
}

bool ServerProcess::waitUntil(const std::function<bool()> &isReady)
{
    // Nothing tells when a server is ready, but its end is an event.
    for (const QDeadlineTimer deadline(startTime); !deadline.hasExpired();) {
        if (isReady())
            return true;
        if (m_process.waitForFinished(3))
            return false;
    }
    return false;
}

void ServerProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(stopTime))
        kill();
}

void ServerProcess::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(stopTime);
}

bool ServerProcess::isRunning()
{
    // The state changes only when somebody looks, and a test may run no event loop.
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(0);
    return m_process.state() != QProcess::NotRunning;
}

} // namespace corvana::test
