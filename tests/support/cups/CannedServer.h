#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QList>
#include <QString>

#include <cups/cups.h>

#include "tests/support/cups/HttpRequestReader.h"

namespace corvana::test {

using OwnedIpp = std::unique_ptr<ipp_t, void (*)(ipp_t *)>;

/// A complete request, as a CannedServer got it.
struct CannedRequest
{
    HttpHead head{};
    QByteArray content{}; ///< of the body
    int operation = 0;    ///< of IPP; 0 for what is none

    /// An attribute of the IPP request, as text; null without it.
    QString value(const char *attribute) const;
    /// The values of an attribute.
    QStringList values(const char *attribute) const;
    /// How an attribute was sent.
    struct Attribute
    {
        int group = 0;
        int type = 0;
        bool truth = false;
    };
    Attribute find(const char *attribute) const;
    /// What stands behind the IPP attributes.
    QByteArray document() const;
};

/// What a CannedServer says.
struct CannedAnswer
{
    QByteArray bytes{};   ///< as they go over the line; nothing is added
    bool hangsUp = false; ///< behind the bytes
};

/// An HTTP answer with its length.
CannedAnswer httpAnswer(int status, const QByteArray &content = {}, const QByteArray &fields = {});
/// An HTTP answer that carries an IPP message, which it deletes.
CannedAnswer ippAnswer(ipp_t *message);
/// An empty IPP answer to a request, to put attributes into.
ipp_t *newIppAnswer(ipp_status_t status = IPP_STATUS_OK);

/// A print server whose every answer a test writes itself: for what real servers do not say, or
/// only when there are thousands of queues. It listens on a free port of 127.0.0.1 in a thread of
/// its own, so that a test may block in libcups.
class CannedServer
{
public:
    /// Called in the server's thread, for one request at a time.
    using Answerer = std::function<CannedAnswer(const CannedRequest &)>;

    explicit CannedServer(Answerer answerer);
    ~CannedServer();
    CannedServer(const CannedServer &) = delete;
    CannedServer &operator=(const CannedServer &) = delete;

    quint16 port() const;
    /// In the order in which they were complete.
    QList<CannedRequest> requests() const;
    int count(int operation) const;
    /// Connections that the server or its clients have not ended yet.
    int openConnections() const;

private:
    class Connection;
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace corvana::test
