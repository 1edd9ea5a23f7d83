#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

#include <QByteArray>
#include <QString>

#include "dialog/server/CredentialStore.h"
#include "dialog/server/IppMessage.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/server/ServerProblem.h"

class QIODevice;

namespace corvana {

/// How long a server is waited for.
struct ServerPatience
{
    std::chrono::milliseconds connecting{10000};
    std::chrono::milliseconds answering{20000}; ///< without a single byte

    /// The environment variable CORVANA_PRINT_PATIENCE gives both, in seconds.
    static ServerPatience fromEnvironment();
};

/// Which server, and who is asked for passwords.
struct ServerContext
{
    ServerAddress address{};
    std::shared_ptr<CredentialStore> credentials{}; ///< may be null: nobody is asked
    /// Whether the user is waiting for it and may be asked; what runs in the background may not.
    bool mayAsk = false;
    ServerPatience patience = ServerPatience::fromEnvironment();
};

/// Set by one thread, looked at by others.
using CancelFlag = std::atomic<int>;

/// One connection to a print server, with bounded waits, each of which can be canceled. It asks for
/// a password when the server wants one, once; it goes over to TLS when the server wants that; and
/// it tells a certificate that has changed from one that is known before it sends anything secret.
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
    void prepare();
    bool open();
    void close();
    IppMessage exchange(IppMessage message, const QByteArray &resource, QIODevice *document,
                        const std::function<void(qint64)> &progress);
    bool sendDocument(QIODevice &document, const std::function<void(qint64)> &progress);
    bool goOnAfter(http_status_t status);
    bool trustsCertificate();
    bool keepsOnlyTrusted();
    bool reconnect();
    void noteFailure(http_status_t status);
    void fail(ServerProblem::Kind kind, const QString &detail = {});
    bool isCanceled() const { return m_canceled && m_canceled->load() != 0; }
    void startWaiting();
    QString realm() const;
    const char *givePassword(http_t *http);

    static int waitedLong(http_t *http, void *self);
    static const char *passwordWanted(const char *prompt, http_t *http, const char *method,
                                      const char *resource, void *self);

    ServerContext m_context;
    CancelFlag *m_canceled;
    http_t *m_http = nullptr;
    std::chrono::steady_clock::time_point m_deadline;
    ServerProblem m_problem;
    QByteArray m_password; // libcups borrows it while it authenticates
    bool m_passwordGiven = false;
    bool m_timedOut = false;
    bool m_documentSent = false;
    bool m_requestSent = false;
};

} // namespace corvana
