#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>

#include "dialog/server/ServerContext.h"
#include "dialog/server/ServerProblem.h"

namespace corvana {

Q_DECLARE_LOGGING_CATEGORY(lcServer)

/// The HTTP connection below a ServerConnection: it connects, goes over to TLS, looks at keys,
/// gives a password once a request, and repeats what may be repeated, until there is an answer.
///
/// libcups writes, reads and encrypts, but decides nothing: its comfortable calls repeat a request
/// with a password on a new connection before anybody has seen that one's key. Here every
/// connection is made, and looked at, before anything is said on it.
///
/// Thread: one worker; every operation waits for a network.
class HttpLine
{
public:
    /// Sends a request, and answers CONTINUE when its answer is to be waited for, or the status of
    /// an answer whose head has been read.
    using Sender = std::function<http_status_t()>;

    /// `canceled` is borrowed and may be null.
    HttpLine(ServerContext context, CancelFlag *canceled);
    ~HttpLine();
    HttpLine(const HttpLine &) = delete;
    HttpLine &operator=(const HttpLine &) = delete;

    const ServerContext &context() const { return m_context; }
    ServerWait &wait() { return m_wait; }
    /// Null while there is no connection.
    http_t *http() const { return m_http; }

    /// Sends until there is an answer that asks neither for a password nor for encryption. Answers
    /// its status. Errors: nothing; problem() says why.
    std::optional<http_status_t> converse(const char *method, const QByteArray &resource,
                                          bool mayRepeat, const Sender &send);
    /// Whether the last request was answered by a wish for a password or for encryption, so that
    /// the server has taken nothing of it.
    bool wasTurnedAway() const { return m_wasTurnedAway; }
    /// Whether the server hangs up behind the answer that is being read.
    bool isLastAnswer() const;

    /// For a sender: reads the head of an answer, in bearable time. CONTINUE where that is only an
    /// interim one. Errors: ERROR.
    http_status_t readHead();
    void close();

    /// Why the last operation failed.
    const ServerProblem &problem() const { return m_problem; }
    void fail(const ServerProblem &problem);
    /// Goes back to a problem that was noted before.
    void restore(const ServerProblem &problem) { m_problem = problem; }
    /// The same, from what HTTP says, where nobody knows it better.
    void noteFailure(http_status_t status);
    bool isCanceled() const { return m_wait.isCanceled(); }

    /// Whether what is sent from now on is of no importance to the user: nobody is asked for a
    /// password for it, and a refusal says nothing about those that are known.
    void setAside(bool aside) { m_isAside = aside; }

private:
    void prepare();
    bool open();
    bool connectTo(http_t *connection);
    bool trustsCertificate();
    http_status_t awaitAnswer();
    bool authenticate(const char *method, const QByteArray &resource);
    bool goOverToTls();
    QString realm() const;
    const char *givePassword(http_t *http);
    void warnOfPlainPassword();

    static const char *passwordWanted(const char *prompt, http_t *http, const char *method,
                                      const char *resource, void *self);

    ServerContext m_context;
    ServerWait m_wait;
    http_t *m_http = nullptr;
    http_encryption_t m_encryption; // of the connections to come
    ServerProblem m_problem;
    std::optional<Credentials> m_given; // for this request, right or wrong
    std::optional<Credentials> m_inUse; // on this connection, by libcups
    QByteArray m_password;              // libcups borrows it while it authenticates
    bool m_hasAnswered = false;         // this connection, so that it may have been closed since
    bool m_wasTurnedAway = false;
    bool m_isAside = false;
};

} // namespace corvana
