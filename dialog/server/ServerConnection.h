#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QString>

#include "dialog/server/CertificateTrust.h"
#include "dialog/server/CredentialStore.h"
#include "dialog/server/IppMessage.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/server/ServerProblem.h"
#include "dialog/server/ServerWait.h"

class QIODevice;

namespace corvana {

class AnswerReader;

/// Which server, and who is asked for passwords.
struct ServerContext
{
    ServerAddress address{};
    std::shared_ptr<CredentialStore> credentials{}; ///< may be null: nobody is asked
    /// Whether the user is waiting for it and may be asked; what runs in the background may not.
    bool mayAsk = false;
    ServerPatience patience = ServerPatience::fromEnvironment();
    CertificateTrust trust{}; ///< which servers are known, and by whom others may be vouched for
};

/// One connection to a print server, with bounded waits, each of which can be canceled. It asks for
/// a password when the server wants one, once; it goes over to TLS when the server wants that; and
/// it sends no document to, and takes no answer from, a server that shows another key than the one
/// that is known. The exception is libcups' own: when it repeats a request with a password, it does
/// so on a new connection that nobody has looked at yet.
///
/// Thread: one worker; never the GUI thread, since every operation waits for a network.
class ServerConnection
{
public:
    /// `canceled` is borrowed and may be null.
    ServerConnection(ServerContext context, CancelFlag *canceled);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    const ServerContext &context() const { return m_context; }

    /// Sends a request and waits for its answer. Connects where there is no connection.
    /// Errors: null, problem() says why; an answer with an IPP status that is an error is one too.
    IppMessage request(IppMessage message, const QByteArray &resource = "/");

    /// The same with a document behind it. `progress` is told how many bytes have been taken.
    IppMessage request(IppMessage message, const QByteArray &resource, QIODevice &document,
                       const std::function<void(qint64 sent)> &progress);

    /// What an HTTP GET brought.
    struct File
    {
        enum class State { Failed, Unchanged, Missing, Read };
        State state = State::Failed;
        QByteArray content;
        qint64 lastModified = 0; ///< seconds since 1970, 0 when the server does not say
    };
    /// Fetches a file of the server's, if it has changed since `modifiedSince` (0: in any case).
    /// Errors: `Failed`; problem() says why.
    File get(const QByteArray &resource, qint64 modifiedSince = 0);

    /// Why the last operation failed.
    const ServerProblem &problem() const { return m_problem; }

    /// Whether the complete document had been sent when the last request failed: then the server
    /// may have done what it was asked for, without its answer getting here.
    bool documentWasSent() const { return m_documentSent; }
    /// Whether the server may have got the last request at all: there was a connection for it.
    bool requestWasSent() const { return m_requestSent; }

private:
    /// Sends a request, and answers CONTINUE when its answer is to be waited for.
    using Sender = std::function<http_status_t()>;

    void prepare();
    bool open();
    void close();
    bool reconnect();
    bool keepsOnlyTrusted();
    bool trustsCertificate();
    std::optional<http_status_t> converse(const char *method, const QByteArray &resource,
                                          bool mayRepeat, const Sender &send);
    IppMessage exchange(IppMessage message, const QByteArray &resource, QIODevice *document,
                        const std::function<void(qint64)> &progress);
    http_status_t sendIpp(ipp_t *message, const QByteArray &resource, QIODevice *document,
                          const std::function<void(qint64)> &progress);
    bool sendDocument(QIODevice &document, const std::function<void(qint64)> &progress);
    http_status_t sendGet(const QByteArray &resource, qint64 modifiedSince);
    http_status_t awaitAnswer();
    bool isLastAnswer() const;
    bool authenticate(const char *method, const QByteArray &resource);
    bool goOverToTls();
    IppMessage readIpp();
    IppMessage unlessRefused(IppMessage response);
    void noteUnread(const AnswerReader &reader);
    void noteFailure(http_status_t status);
    void fail(ServerProblem::Kind kind, const QString &detail = {});
    bool isCanceled() const { return m_wait.isCanceled(); }
    QString realm() const;
    const char *givePassword(http_t *http);

    static const char *passwordWanted(const char *prompt, http_t *http, const char *method,
                                      const char *resource, void *self);

    ServerContext m_context;
    ServerWait m_wait;
    http_t *m_http = nullptr;
    ServerProblem m_problem;
    std::optional<Credentials> m_given; // for this request, right or wrong
    std::optional<Credentials> m_inUse; // on this connection, by libcups
    QByteArray m_password;              // libcups borrows it while it authenticates
    bool m_hasAnswered = false;         // this connection, so that it may have been closed since
    bool m_documentSent = false;
    bool m_requestSent = false;
};

} // namespace corvana
