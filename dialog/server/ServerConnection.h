#pragma once

#include <functional>
#include <utility>

#include <QByteArray>
#include <QString>

#include "dialog/server/HttpLine.h"
#include "dialog/server/IppMessage.h"

class QIODevice;

namespace corvana {

class AnswerReader;

/// One connection to a print server, with bounded waits, each of which can be canceled. It asks for
/// a password when the server wants one, once; it goes over to TLS when the server wants that; and
/// it sends no document to, and takes no answer from, a server that shows another key than the one
/// that is known.
///
/// Thread: one worker; never the GUI thread, since every operation waits for a network.
class ServerConnection
{
public:
    /// `canceled` is borrowed and may be null.
    ServerConnection(ServerContext context, CancelFlag *canceled)
        : m_line(std::move(context), canceled)
    {
    }

    const ServerContext &context() const { return m_line.context(); }

    /// Sends a request and waits for its answer. Connects where there is no connection.
    /// Errors: null, problem() says why; an answer with an IPP status that is an error is one too.
    IppMessage request(IppMessage message, const QByteArray &resource = "/");

    /// The same with a document behind it. `progress` is told how many bytes have been taken.
    IppMessage request(IppMessage message, const QByteArray &resource, QIODevice &document,
                       const std::function<void(qint64 sent)> &progress);

    /// What an HTTP GET brought.
    struct File
    {
        enum class State { Failed, Missing, Read };
        State state = State::Failed;
        QByteArray content;
    };
    /// Fetches a file of the server's. Errors: `Failed`; problem() says why.
    File get(const QByteArray &resource);

    /// Why the last operation failed.
    const ServerProblem &problem() const { return m_line.problem(); }

    /// Goes back to the problem of an earlier operation, where a later one was only to find out
    /// more about it.
    void restore(const ServerProblem &problem) { m_line.restore(problem); }

    /// Whether the complete document had been sent when the last request failed: then the server
    /// may have done what it was asked for, without its answer getting here.
    bool documentWasSent() const { return m_documentSent && !m_line.wasTurnedAway(); }
    /// Whether the server may have got the last request at all: there was a connection for it.
    bool requestWasSent() const { return m_requestSent; }

    /// While it lives, nothing that is asked is of any importance to the user; see HttpLine.
    class Aside
    {
    public:
        explicit Aside(ServerConnection &connection) : m_line(connection.m_line)
        {
            m_line.setAside(true);
        }
        ~Aside() { m_line.setAside(false); }
        Aside(const Aside &) = delete;
        Aside &operator=(const Aside &) = delete;

    private:
        HttpLine &m_line;
    };

private:
    IppMessage exchange(IppMessage message, const QByteArray &resource, QIODevice *document,
                        const std::function<void(qint64)> &progress);
    http_status_t sendIpp(ipp_t *message, const QByteArray &resource, QIODevice *document,
                          const std::function<void(qint64)> &progress);
    http_status_t sendDocument(QIODevice &document, const std::function<void(qint64)> &progress);
    void beginRequest();
    http_status_t earlyAnswer();
    http_status_t answerInstead();
    http_status_t sendGet(const QByteArray &resource);
    IppMessage readIpp();
    IppMessage unlessRefused(IppMessage response);
    File readFile();
    File takeRefusal(http_status_t status);
    void noteEarly(http_status_t status);
    void noteUnread(const AnswerReader &reader);

    HttpLine m_line;
    bool m_documentSent = false;
    bool m_requestSent = false;
    bool m_isEarly = false; ///< the answer came before the whole document had been sent
};

} // namespace corvana
