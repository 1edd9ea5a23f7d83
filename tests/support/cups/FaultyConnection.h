#pragma once

#include <optional>

#include <QObject>
#include <QTcpSocket>

#include "tests/support/cups/FaultScript.h"
#include "tests/support/cups/HttpRequestReader.h"

namespace corvana::test {

/// One client of a FaultyServer and its connection to the server behind. Deletes itself when the
/// client is gone.
class FaultyConnection : public QObject
{
    Q_OBJECT

public:
    /// Takes `client` over. The script outlives the connection.
    FaultyConnection(QTcpSocket *client, quint16 upstreamPort, FaultScript &script,
                     QObject *parent);

    /// Passes the answers that are kept.
    void release();
    void drop();

private:
    /// What becomes of the bytes that come from the server behind.
    enum class Answers { Pass, Keep, Swallow, Close };

    void readClient();
    void readRequests();
    bool readHead();
    bool readPiece();
    /// What becomes of a request, as soon as enough of it is known.
    void decide(bool operationIsKnown);
    void endRequest();
    void answer(const Fault &fault);
    void sendPieces();
    void passOn(const QByteArray &bytes);
    void readServer();
    void serverIsGone();
    void endIfBothAreGone();
    void countFault();
    /// From here on nothing of the connection is looked at.
    void tunnel(const QByteArray &head);

    QTcpSocket *m_client;
    QTcpSocket *m_upstream;
    quint16 m_upstreamPort;
    FaultScript &m_script;
    FaultyServer::Manner m_manner;

    HttpRequestReader m_reader;
    IppHeadReader m_ipp;
    HttpHead m_head;
    SeenRequest m_request;
    bool m_isDecided = true;
    bool m_isTunnel = false;
    bool m_isStalled = false;
    QByteArray m_undecided; ///< what waits to be passed on until it is decided
    std::optional<Fault> m_fault;
    bool m_isCounted = false;
    Answers m_answers = Answers::Pass;
    QByteArray m_kept;
    bool m_serverIsGone = false;
};

} // namespace corvana::test
