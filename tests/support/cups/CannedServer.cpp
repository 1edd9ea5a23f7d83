#include "tests/support/cups/CannedServer.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <utility>

#include <QTcpServer>
#include <QTcpSocket>

#include "tests/support/cups/EventThread.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

/// Reads the attributes of a message; `rest` gets what stands behind them.
OwnedIpp ippOf(const QByteArray &content, QByteArray *rest = nullptr)
{
    OwnedIpp message(ippNew(), ippDelete);
    QByteArray left = content;
    const auto read = [](void *from, ipp_uchar_t *buffer, size_t bytes) -> ssize_t {
        auto &source = *static_cast<QByteArray *>(from);
        const qsizetype size = std::min(source.size(), static_cast<qsizetype>(bytes));
        std::memcpy(buffer, source.constData(), static_cast<size_t>(size));
        source.remove(0, size);
        return size;
    };
    ippReadIO(&left, read, 1, nullptr, message.get());
    if (rest)
        *rest = left;
    return message;
}

} // namespace

QStringList CannedRequest::values(const char *attribute) const
{
    const OwnedIpp message = ippOf(content);
    ipp_attribute_t *found = ippFindAttribute(message.get(), attribute, IPP_TAG_ZERO);
    QStringList texts;
    for (int i = 0; i < ippGetCount(found); ++i) {
        const char *text = ippGetString(found, i, nullptr);
        texts += text ? QString::fromUtf8(text) : QString::number(ippGetInteger(found, i));
    }
    return texts;
}

QString CannedRequest::value(const char *attribute) const
{
    return values(attribute).value(0);
}

CannedRequest::Attribute CannedRequest::find(const char *attribute) const
{
    const OwnedIpp message = ippOf(content);
    ipp_attribute_t *found = ippFindAttribute(message.get(), attribute, IPP_TAG_ZERO);
    const bool isTruth = ippGetValueTag(found) == IPP_TAG_BOOLEAN;
    return {ippGetGroupTag(found), ippGetValueTag(found), isTruth && ippGetBoolean(found, 0) != 0};
}

QByteArray CannedRequest::document() const
{
    QByteArray rest;
    ippOf(content, &rest);
    return rest;
}

CannedAnswer httpAnswer(int status, const QByteArray &content, const QByteArray &fields)
{
    return {"HTTP/1.1 " + QByteArray::number(status) + ' ' +
            httpStatus(static_cast<http_status_t>(status)) + "\r\n" + fields +
            "Content-Length: " + QByteArray::number(content.size()) + "\r\n\r\n" + content};
}

ipp_t *newIppAnswer(ipp_status_t status)
{
    ipp_t *message = ippNew();
    ippSetVersion(message, 2, 0);
    ippSetStatusCode(message, status);
    ippSetRequestId(message, 1);
    ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr,
                 "utf-8");
    ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language",
                 nullptr, "en");
    return message;
}

CannedAnswer ippAnswer(ipp_t *message)
{
    const OwnedIpp owner(message, ippDelete);
    QByteArray content;
    const auto write = [](void *to, ipp_uchar_t *buffer, size_t bytes) -> ssize_t {
        static_cast<QByteArray *>(to)->append(reinterpret_cast<const char *>(buffer),
                                              static_cast<qsizetype>(bytes));
        return static_cast<ssize_t>(bytes);
    };
    ippSetState(message, IPP_STATE_IDLE);
    ippWriteIO(&content, write, 1, nullptr, message);
    return httpAnswer(HTTP_STATUS_OK, content, "Content-Type: application/ipp\r\n");
}

struct CannedServer::State
{
    explicit State(Answerer newAnswerer)
        : answerer(std::move(newAnswerer)), thread(u"canned server"_s)
    {
    }

    const Answerer answerer;
    mutable std::mutex mutex;
    QList<CannedRequest> requests;
    quint16 port = 0;
    std::atomic<int> open{0};
    EventThread thread; // the first to go
};

class CannedServer::Connection : public QObject
{
public:
    Connection(QTcpSocket *socket, State &state) : QObject(socket), m_socket(socket), m_state(state)
    {
        ++m_state.open;
        connect(m_socket, &QTcpSocket::readyRead, this, [this] { read(); });
        connect(m_socket, &QTcpSocket::disconnected, this, [this] {
            --m_state.open;
            m_socket->deleteLater();
        });
    }

private:
    void read()
    {
        m_reader.append(m_socket->readAll());
        for (;;) {
            if (!m_request) {
                const std::optional<HttpHead> head = m_reader.takeHead();
                if (!head)
                    return;
                m_request = CannedRequest{*head};
                m_ipp = {};
                if (head->expectsContinue())
                    m_socket->write("HTTP/1.1 100 Continue\r\n\r\n");
            }
            while (m_reader.isInBody()) {
                const std::optional<HttpRequestReader::Piece> piece = m_reader.takePiece();
                if (!piece)
                    return;
                if (!piece->isContent)
                    continue;
                m_request->content += piece->bytes;
                m_ipp.append(piece->bytes);
            }
            answer();
        }
    }

    void answer()
    {
        m_request->operation = m_request->head.isIpp() ? m_ipp.operation() : 0;
        const CannedRequest request = *std::exchange(m_request, std::nullopt);
        {
            const std::scoped_lock lock(m_state.mutex);
            m_state.requests += request;
        }
        const CannedAnswer answer = m_state.answerer(request);
        m_socket->write(answer.bytes);
        if (answer.hangsUp)
            m_socket->disconnectFromHost();
    }

    QTcpSocket *m_socket;
    State &m_state;
    HttpRequestReader m_reader;
    IppHeadReader m_ipp;
    std::optional<CannedRequest> m_request;
};

CannedServer::CannedServer(Answerer answerer)
    : m_state(std::make_unique<State>(std::move(answerer)))
{
    m_state->thread.run([state = m_state.get()] {
        auto *server = new QTcpServer(state->thread.context());
        if (!server->listen(QHostAddress(QHostAddress::LocalHost)))
            qFatal("no port to listen on");
        state->port = server->serverPort();
        QObject::connect(server, &QTcpServer::newConnection, server, [server, state] {
            while (QTcpSocket *socket = server->nextPendingConnection())
                new Connection(socket, *state);
        });
    });
}

CannedServer::~CannedServer() = default;

quint16 CannedServer::port() const
{
    return m_state->port;
}

QList<CannedRequest> CannedServer::requests() const
{
    const std::scoped_lock lock(m_state->mutex);
    return m_state->requests;
}

int CannedServer::openConnections() const
{
    return m_state->open;
}

int CannedServer::count(int operation) const
{
    const QList<CannedRequest> seen = requests();
    return static_cast<int>(
        std::count_if(seen.cbegin(), seen.cend(), [operation](const CannedRequest &request) {
            return request.operation == operation;
        }));
}

} // namespace corvana::test
