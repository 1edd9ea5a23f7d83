#include "tests/support/cups/FaultyConnection.h"

#include <QHostAddress>
#include <QTimer>

namespace corvana::test {

namespace {

/// A complete HTTP answer. The connection stays open, as that of a server that means well.
QByteArray rawAnswer(int status, const QByteArray &fields, const QByteArray &body = {})
{
    return "HTTP/1.1 " + QByteArray::number(status) + ' ' +
           httpStatus(static_cast<http_status_t>(status)) + "\r\n" + fields +
           "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

/// A number of IPP: the highest byte first.
QByteArray ippNumber(int value, int bytes)
{
    QByteArray result;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        result += static_cast<char>(value >> shift & 0xff);
    return result;
}

QByteArray ippAttribute(ipp_tag_t tag, const QByteArray &name, const QByteArray &value)
{
    return ippNumber(tag, 1) + ippNumber(static_cast<int>(name.size()), 2) + name +
           ippNumber(static_cast<int>(value.size()), 2) + value;
}

/// The beginning of every IPP answer.
QByteArray ippBeginning(int status, int requestId)
{
    return ippNumber(0x0200, 2) + ippNumber(status, 2) + ippNumber(requestId, 4) +
           ippNumber(IPP_TAG_OPERATION, 1) +
           ippAttribute(IPP_TAG_CHARSET, "attributes-charset", "utf-8") +
           ippAttribute(IPP_TAG_LANGUAGE, "attributes-natural-language", "en");
}

/// An IPP answer that says its status and nothing else.
QByteArray ippAnswer(int status, int requestId)
{
    return rawAnswer(HTTP_STATUS_OK, "Content-Type: application/ipp\r\n",
                     ippBeginning(status, requestId) + ippNumber(IPP_TAG_END, 1));
}

/// A piece of an answer whose length is not said before.
QByteArray httpChunk(const QByteArray &content)
{
    return QByteArray::number(content.size(), 16) + "\r\n" + content + "\r\n";
}

} // namespace

FaultyConnection::FaultyConnection(QTcpSocket *client, quint16 upstreamPort, FaultScript &script,
                                   QObject *parent)
    : QObject(parent), m_client(client), m_upstream(new QTcpSocket(this)),
      m_upstreamPort(upstreamPort), m_script(script), m_manner(script.manner())
{
    m_client->setParent(this);
    ++m_script.open;
    connect(m_client, &QTcpSocket::readyRead, this, &FaultyConnection::readClient);
    connect(m_client, &QTcpSocket::disconnected, this, [this] {
        --m_script.open;
        // What the client sent until then still goes to the server behind.
        m_upstream->disconnectFromHost();
        endIfBothAreGone();
    });
    connect(m_upstream, &QTcpSocket::readyRead, this, &FaultyConnection::readServer);
    connect(m_upstream, &QTcpSocket::disconnected, this, &FaultyConnection::serverIsGone);
    connect(m_upstream, &QTcpSocket::errorOccurred, this, &FaultyConnection::serverIsGone);
    if (m_manner == FaultyServer::Manner::HangsUp)
        drop();
}

void FaultyConnection::drop()
{
    // Queued bytes go to the server behind first; the client gets nothing more.
    m_upstream->disconnectFromHost();
    m_client->abort();
}

void FaultyConnection::release()
{
    if (m_answers != Answers::Keep)
        return;
    m_answers = Answers::Pass;
    m_client->write(std::exchange(m_kept, {}));
    if (m_serverIsGone)
        m_client->disconnectFromHost();
}

void FaultyConnection::readClient()
{
    if (m_isStalled)
        return;
    const QByteArray bytes = m_client->readAll();
    switch (m_manner) {
    case FaultyServer::Manner::Passes:
        break;
    case FaultyServer::Manner::Babbles:
        m_client->write("Fresh fish today, \x01\x02\xff and cheap!\r\n\r\n");
        return;
    default:
        return;
    }
    if (m_isTunnel) {
        passOn(bytes);
        return;
    }
    m_reader.append(bytes);
    readRequests();
}

void FaultyConnection::readRequests()
{
    while (m_client->state() == QAbstractSocket::ConnectedState && !m_isTunnel &&
           (m_reader.isInBody() ? readPiece() : readHead())) {
    }
}

bool FaultyConnection::readHead()
{
    if (m_reader.beginsWithTls()) {
        tunnel({});
        return false;
    }
    const std::optional<HttpHead> head = m_reader.takeHead();
    if (!head)
        return false;
    m_head = *head;
    m_ipp = {};
    m_request = {.method = m_head.method,
                 .path = m_head.path,
                 .isAuthorized = !m_head.field("Authorization").isNull(),
                 .credentials = m_head.credentials()};
    m_fault.reset();
    m_isCounted = false;
    m_isDecided = false;
    if (m_head.method == "OPTIONS" && m_head.asksForTls()) {
        m_script.record(m_request);
        tunnel(m_head.bytes);
        return false;
    }
    // The client is told here to go on. The server behind would try a password of ours on its own
    // users, and take seconds for the answer.
    m_undecided = m_head.without("Expect");
    if (m_script.knows(m_request.credentials))
        m_undecided = HttpHead{m_undecided}.without("Authorization");
    if (!m_head.isIpp())
        decide(true);
    else if (m_head.expectsContinue())
        decide(false);
    if (!m_reader.isInBody()) {
        endRequest();
    } else if (m_head.expectsContinue()) {
        // A client that is refused before it has sent anything sends nothing more.
        if (m_fault && m_fault->isAnswer()) {
            answer(*m_fault);
            m_client->disconnectFromHost();
            return false;
        }
        m_client->write("HTTP/1.1 100 Continue\r\n\r\n");
    }
    return true;
}

bool FaultyConnection::readPiece()
{
    std::optional<HttpRequestReader::Piece> piece = m_reader.takePiece();
    if (!piece)
        return false;
    if (piece->isContent)
        m_ipp.append(piece->bytes);
    if (!m_isDecided && m_ipp.isKnown()) {
        m_request.operation = m_ipp.operation();
        m_request.requestId = m_ipp.requestId();
        decide(true);
    }
    const bool isInDocument = m_fault && (m_fault->kind == Fault::Kind::CloseInDocument ||
                                          m_fault->kind == Fault::Kind::StallInDocument);
    const bool cuts = isInDocument && m_ipp.documentBytes() >= m_fault->bytes;
    if (cuts && piece->isContent)
        piece->bytes.chop(m_ipp.documentBytes() - m_fault->bytes);
    passOn(piece->bytes);
    if (cuts && m_fault->kind == Fault::Kind::CloseInDocument) {
        countFault();
        drop();
        return false;
    }
    if (cuts) {
        m_isStalled = true;
        m_client->setReadBufferSize(1); // what is not taken waits with the client
        countFault();
        return false;
    }
    if (!m_reader.isInBody())
        endRequest();
    return true;
}

void FaultyConnection::decide(bool operationIsKnown)
{
    m_fault = m_script.take(m_request, operationIsKnown);
    if (!operationIsKnown && !m_fault)
        return;
    m_isDecided = true;
    m_script.record(m_request);
    m_answers = Answers::Pass;
    if (m_fault) {
        switch (m_fault->kind) {
        case Fault::Kind::SwallowResponse:
            m_answers = Answers::Swallow;
            break;
        case Fault::Kind::CloseBeforeResponse:
            m_answers = Answers::Close;
            break;
        case Fault::Kind::DelayResponse:
            m_answers = Answers::Keep;
            break;
        default:
            break;
        }
    }
    passOn(std::exchange(m_undecided, {}));
}

void FaultyConnection::endRequest()
{
    // A request that is too short for its operation is nobody's.
    if (!m_isDecided)
        decide(true);
    if (m_fault && m_fault->isAnswer())
        answer(*m_fault);
}

void FaultyConnection::answer(const Fault &fault)
{
    switch (fault.kind) {
    case Fault::Kind::AskForPassword:
        ++m_script.passwordQuestions;
        m_client->write(
            rawAnswer(HTTP_STATUS_UNAUTHORIZED, "WWW-Authenticate: Basic realm=\"Test\"\r\n"));
        break;
    case Fault::Kind::AskForEncryption:
        m_client->write(rawAnswer(HTTP_STATUS_UPGRADE_REQUIRED,
                                  "Connection: Upgrade\r\nUpgrade: TLS/1.2,HTTP/1.1\r\n"));
        break;
    case Fault::Kind::AnswerIpp:
        m_client->write(ippAnswer(fault.status, m_request.requestId));
        break;
    case Fault::Kind::AnswerInPieces:
        m_client->write("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n"
                        "Transfer-Encoding: chunked\r\n\r\n" +
                        httpChunk(ippBeginning(IPP_STATUS_OK, m_request.requestId) +
                                  ippNumber(IPP_TAG_PRINTER, 1)));
        sendPieces();
        break;
    default:
        m_client->write(rawAnswer(fault.status, {}));
        break;
    }
    countFault();
}

void FaultyConnection::sendPieces()
{
    if (m_client->state() != QAbstractSocket::ConnectedState)
        return;
    if (m_fault->pieces == 0) {
        m_client->write(httpChunk(ippNumber(IPP_TAG_END, 1)) + "0\r\n\r\n");
        return;
    }
    // What is not taken yet is not added to.
    if (m_client->bytesToWrite() <= m_fault->bytes) {
        if (m_fault->pieces > 0)
            --m_fault->pieces;
        m_client->write(httpChunk(ippAttribute(IPP_TAG_TEXT, "printer-info",
                                               QByteArray(static_cast<int>(m_fault->bytes), 'x'))));
    }
    if (m_fault->pause.count() > 0 || m_client->bytesToWrite() == 0)
        QTimer::singleShot(m_fault->pause, this, &FaultyConnection::sendPieces);
    else
        connect(m_client, &QTcpSocket::bytesWritten, this, &FaultyConnection::sendPieces,
                Qt::SingleShotConnection);
}

void FaultyConnection::passOn(const QByteArray &bytes)
{
    if (!m_isTunnel) {
        if (!m_isDecided) {
            m_undecided += bytes;
            return;
        }
        if (m_fault && m_fault->isAnswer())
            return;
    }
    if (m_upstream->state() == QAbstractSocket::UnconnectedState)
        m_upstream->connectToHost(QHostAddress(QHostAddress::LocalHost), m_upstreamPort);
    m_upstream->write(bytes);
}

void FaultyConnection::tunnel(const QByteArray &head)
{
    m_isTunnel = true;
    m_answers = Answers::Pass;
    ++m_script.upgrades;
    passOn(head + m_reader.takeRest());
}

void FaultyConnection::readServer()
{
    const QByteArray bytes = m_upstream->readAll();
    switch (m_answers) {
    case Answers::Pass:
        m_client->write(bytes);
        break;
    case Answers::Keep:
        m_kept += bytes;
        countFault();
        break;
    case Answers::Swallow:
        countFault();
        break;
    case Answers::Close:
        countFault();
        drop();
        break;
    }
}

void FaultyConnection::serverIsGone()
{
    m_serverIsGone = true;
    if (m_answers == Answers::Pass)
        m_client->disconnectFromHost();
    endIfBothAreGone();
}

void FaultyConnection::endIfBothAreGone()
{
    if (m_client->state() == QAbstractSocket::UnconnectedState &&
        m_upstream->state() == QAbstractSocket::UnconnectedState)
        deleteLater();
}

void FaultyConnection::countFault()
{
    if (!std::exchange(m_isCounted, true))
        ++m_script.faultsMade;
}

} // namespace corvana::test
