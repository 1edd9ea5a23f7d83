#include "tests/support/cups/FaultyServer.h"

#include <algorithm>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTcpServer>

#include "tests/support/cups/EventThread.h"
#include "tests/support/cups/FaultScript.h"
#include "tests/support/cups/FaultyConnection.h"
#include "tests/support/cups/ServerProcess.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int waitingClients = 64;

/// A listening socket on a port that a LoopbackPort keeps. QTcpServer itself would not share it.
int listeningSocket(quint16 port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 ||
        ::listen(socket, waitingClients) != 0) {
        ::close(socket);
        return -1;
    }
    return socket;
}

} // namespace

class FaultyServer::Worker
{
public:
    Worker(quint16 upstreamPort, Manner manner)
        : script(manner), m_upstreamPort(upstreamPort), m_thread(u"faulty server"_s)
    {
        run([this, manner] { setListening(manner != Manner::Refuses); });
    }

    ~Worker()
    {
        run([this] {
            setListening(false);
            qDeleteAll(connections());
        });
    }

    /// Runs a function in the server's thread and waits for its end.
    void run(const std::function<void()> &function) { m_thread.run(function); }

    /// In the server's thread only.
    QList<FaultyConnection *> connections()
    {
        return m_thread.context()->findChildren<FaultyConnection *>(QString(),
                                                                    Qt::FindDirectChildrenOnly);
    }

    /// In the server's thread only.
    void setListening(bool listening)
    {
        if (listening == (m_server != nullptr))
            return;
        if (!listening) {
            delete std::exchange(m_server, nullptr);
            return;
        }
        m_server = new QTcpServer(m_thread.context());
        if (!m_server->setSocketDescriptor(listeningSocket(port.number())))
            qFatal("cannot listen on port %d", port.number());
        QObject::connect(m_server, &QTcpServer::newConnection, m_server, [this] {
            while (QTcpSocket *client = m_server->nextPendingConnection()) {
                ++script.accepted;
                if (m_connectionsBefore >= 0 && m_connectionsBefore-- == 0)
                    m_upstreamPort = m_nextPort;
                new FaultyConnection(client, m_upstreamPort, script, m_thread.context());
            }
        });
    }

    /// In the server's thread only.
    void setUpstream(quint16 upstreamPort, int connectionsBefore)
    {
        m_nextPort = upstreamPort;
        m_connectionsBefore = connectionsBefore;
    }

    LoopbackPort port;
    FaultScript script;

private:
    quint16 m_upstreamPort; ///< this and what follows: in the server's thread
    quint16 m_nextPort = 0;
    int m_connectionsBefore = -1;   ///< that go to the former one; -1: there is no next one
    QTcpServer *m_server = nullptr; ///< in the server's thread, as its connections are
    EventThread m_thread;
};

FaultyServer::FaultyServer(quint16 upstreamPort, Manner manner)
    : m_worker(std::make_unique<Worker>(upstreamPort, manner))
{
}

FaultyServer::~FaultyServer() = default;

QString FaultyServer::server() const
{
    return m_worker->port.server();
}

quint16 FaultyServer::port() const
{
    return m_worker->port.number();
}

void FaultyServer::setManner(Manner manner)
{
    m_worker->script.setManner(manner);
    m_worker->run([this, manner] { m_worker->setListening(manner != Manner::Refuses); });
}

void FaultyServer::setUpstream(quint16 port, int connectionsBefore)
{
    m_worker->run([=, this] { m_worker->setUpstream(port, connectionsBefore); });
}

void FaultyServer::dropConnections()
{
    m_worker->run([this] {
        for (FaultyConnection *connection : m_worker->connections())
            connection->drop();
    });
}

void FaultyServer::releaseResponses()
{
    m_worker->run([this] {
        for (FaultyConnection *connection : m_worker->connections())
            connection->release();
    });
}

int FaultyServer::openConnections() const
{
    return m_worker->script.open;
}

int FaultyServer::acceptedConnections() const
{
    return m_worker->script.accepted;
}

void FaultyServer::closeAfterDocumentBytes(qint64 bytes, int operation, int times)
{
    m_worker->script.add({Fault::Kind::CloseInDocument, operation, times, bytes});
}

void FaultyServer::stallInDocument(qint64 bytes, int operation, int times)
{
    m_worker->script.add({Fault::Kind::StallInDocument, operation, times, bytes});
}

void FaultyServer::swallowResponse(int operation, int times)
{
    m_worker->script.add({Fault::Kind::SwallowResponse, operation, times});
}

void FaultyServer::closeBeforeResponse(int operation, int times)
{
    m_worker->script.add({Fault::Kind::CloseBeforeResponse, operation, times});
}

void FaultyServer::delayResponse(int operation, int times)
{
    m_worker->script.add({Fault::Kind::DelayResponse, operation, times});
}

void FaultyServer::letPass(int operation, int times)
{
    m_worker->script.add({Fault::Kind::None, operation, times});
}

void FaultyServer::askForPassword(const QString &user, const QString &password, int operation)
{
    m_worker->script.add({.kind = Fault::Kind::AskForPassword,
                          .operation = operation,
                          .credentials = user.toUtf8() + ':' + password.toUtf8()});
}

void FaultyServer::answerHttp(int status, int operation, int times)
{
    m_worker->script.add({Fault::Kind::AnswerHttp, operation, times, 0, status});
}

void FaultyServer::answerIpp(ipp_status_t status, int operation, int times)
{
    m_worker->script.add({Fault::Kind::AnswerIpp, operation, times, 0, status});
}

void FaultyServer::answerInPieces(int operation, int bytes, std::chrono::milliseconds pause,
                                  int pieces)
{
    m_worker->script.add({.kind = Fault::Kind::AnswerInPieces,
                          .operation = operation,
                          .bytes = bytes,
                          .pause = pause,
                          .pieces = pieces});
}

void FaultyServer::askForEncryption(int operation, int times)
{
    m_worker->script.add({Fault::Kind::AskForEncryption, operation, times});
}

void FaultyServer::clearFaults()
{
    m_worker->script.clear();
}

QList<SeenRequest> FaultyServer::requests() const
{
    return m_worker->script.requests();
}

int FaultyServer::count(int operation) const
{
    const QList<SeenRequest> seen = requests();
    return static_cast<int>(
        std::count_if(seen.begin(), seen.end(), [operation](const SeenRequest &request) {
            return operation == anyOperation || request.operation == operation;
        }));
}

int FaultyServer::faultsMade() const
{
    return m_worker->script.faultsMade;
}

int FaultyServer::passwordQuestions() const
{
    return m_worker->script.passwordQuestions;
}

int FaultyServer::upgrades() const
{
    return m_worker->script.upgrades;
}

} // namespace corvana::test
