#include "dialog/server/HttpLine.h"

#include <cerrno>
#include <utility>

#include <poll.h>

#include <QCoreApplication>
#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcServer, "corvana.dialog.server", QtWarningMsg)

namespace {

// Authentication, TLS and a broken connection may each ask for the same once more.
constexpr int kMostAttempts = 6;
// How long libcups waits for keys while it connects, whatever it is told, and says of that only
// that a function has failed.
constexpr std::chrono::seconds kHandshakePatience{10};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HttpLine)
};

// Why there is no connection. libcups says "Host is down" of every host that it does not get to.
QString reasonOfLibcups()
{
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    return reason == qt_error_string(EHOSTDOWN) ? QString() : reason;
}

} // namespace

HttpLine::HttpLine(ServerContext context, CancelFlag *canceled)
    : m_context(std::move(context)), m_wait(m_context.patience.answering, canceled)
{
    // A setting of the calling thread alone.
    if (m_context.credentials) {
        if (const auto known = m_context.credentials->known(realm()))
            cupsSetUser(known->user.toUtf8().constData());
    }
}

HttpLine::~HttpLine()
{
    close();
    cupsSetPasswordCB2(nullptr, nullptr);
    m_password.fill('\0');
}

// Before a request: whatever was sent on a connection that is gone would be lost, or done unseen.
void HttpLine::prepare()
{
    m_problem = {};
    m_given.reset();
    // Of the thread, which may have several connections.
    cupsSetPasswordCB2(&HttpLine::passwordWanted, this);
    if (!m_http)
        return;
    // Servers close what was idle for long.
    pollfd state{httpGetFd(m_http), POLLRDHUP, 0};
    if (::poll(&state, 1, 0) > 0)
        close();
}

bool HttpLine::open()
{
    if (m_http)
        return true;
    const QByteArray host = m_context.address.host.toUtf8();
    const auto begin = std::chrono::steady_clock::now();
    m_http = httpConnect2(host.constData(), m_context.address.port, nullptr, AF_UNSPEC,
                          m_context.address.encryption, 1,
                          static_cast<int>(m_context.patience.connecting.count()), m_wait.flag());
    if (!m_http) {
        const int error = errno;
        if (isCanceled())
            fail({ServerProblem::Kind::Canceled});
        else if (error == ETIMEDOUT || error == EINPROGRESS ||
                 std::chrono::steady_clock::now() - begin >= kHandshakePatience)
            fail({ServerProblem::Kind::NoAnswer});
        else
            fail({ServerProblem::Kind::Unreachable, reasonOfLibcups()});
        return false;
    }
    m_wait.watch(m_http);
    m_wait.start();
    return keepsOnlyTrusted();
}

// Nothing is said on a connection that is not trusted, neither now nor by the next request.
bool HttpLine::keepsOnlyTrusted()
{
    if (trustsCertificate())
        return true;
    close();
    return false;
}

void HttpLine::close()
{
    m_hasAnswered = false;
    m_inUse.reset();
    if (m_http)
        httpClose(std::exchange(m_http, nullptr));
}

bool HttpLine::reconnect()
{
    m_wait.start();
    if (httpReconnect2(m_http, static_cast<int>(m_context.patience.connecting.count()),
                       m_wait.flag()) == 0)
        return keepsOnlyTrusted();
    noteFailure(HTTP_STATUS_ERROR);
    return false;
}

bool HttpLine::trustsCertificate()
{
    if (!httpIsEncrypted(m_http))
        return true;
    const CertificateVerdict verdict = m_context.trust.judge(m_context.address, m_http);
    switch (verdict.kind) {
    case CertificateVerdict::Kind::Trusted:
        return true;
    case CertificateVerdict::Kind::Changed: {
        ServerProblem problem{ServerProblem::Kind::CertificateChanged, verdict.certificate};
        problem.file = verdict.knownFrom;
        problem.entry = verdict.entry;
        fail(problem);
        break;
    }
    case CertificateVerdict::Kind::Invalid:
        fail({ServerProblem::Kind::CertificateInvalid, verdict.certificate});
        break;
    }
    return false;
}

// Sends until there is an answer that asks neither for a password nor for encryption. Answers its
// status; nothing when there is none, problem() says why.
std::optional<http_status_t> HttpLine::converse(const char *method, const QByteArray &resource,
                                                bool mayRepeat, const Sender &send)
{
    prepare();
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        if (isCanceled()) {
            fail({ServerProblem::Kind::Canceled});
            return std::nullopt;
        }
        if (!open())
            return std::nullopt;
        m_wait.start();
        const bool isReused = std::exchange(m_hasAnswered, false);
        m_wasTurnedAway = false;
        http_status_t status = send();
        if (!m_problem && status == HTTP_STATUS_CONTINUE)
            status = awaitAnswer();
        m_wasTurnedAway =
            status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_UPGRADE_REQUIRED;
        // The server may have closed what it has answered on while the request was on its way.
        const bool wasClosed = status <= HTTP_STATUS_CONTINUE && !m_wait.isOver();
        if (!m_problem && isReused && mayRepeat && wasClosed) {
            close();
            continue;
        }
        if (!m_problem && status == HTTP_STATUS_UNAUTHORIZED) {
            if (authenticate(method, resource))
                continue;
            status = HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
        } else if (!m_problem && status == HTTP_STATUS_UPGRADE_REQUIRED) {
            if (goOverToTls())
                continue;
        } else if (!m_problem && status > HTTP_STATUS_CONTINUE) {
            m_hasAnswered = true;
            return status;
        }
        noteFailure(status);
        close();
        return std::nullopt;
    }
    fail({ServerProblem::Kind::NotUnderstood});
    return std::nullopt;
}

http_status_t HttpLine::awaitAnswer()
{
    // A request that could not be sent to its end: libcups has read what came instead, if anything.
    const http_state_t state = httpGetState(m_http);
    if (state == HTTP_STATE_WAITING || state == HTTP_STATE_ERROR || state == HTTP_STATE_POST)
        return httpGetStatus(m_http);
    m_wait.start();
    http_status_t status = HTTP_STATUS_CONTINUE;
    do
        status = httpUpdate(m_http);
    while (status == HTTP_STATUS_CONTINUE && !m_wait.isOver());
    return status;
}

bool HttpLine::authenticate(const char *method, const QByteArray &resource)
{
    return cupsDoAuthentication(m_http, method, resource.constData()) == 0 && reconnect();
}

bool HttpLine::goOverToTls()
{
    // A server that asks for it on an encrypted connection asks for what there is not.
    if (m_context.address.encryption == HTTP_ENCRYPTION_NEVER || httpIsEncrypted(m_http) ||
        !reconnect() || httpEncryption(m_http, HTTP_ENCRYPTION_REQUIRED) != 0) {
        if (!m_problem)
            fail({ServerProblem::Kind::EncryptionMissing});
        return false;
    }
    return keepsOnlyTrusted();
}

// Whether the server hangs up behind the answer that is being read.
bool HttpLine::isLastAnswer() const
{
    const QByteArrayView connection = httpGetField(m_http, HTTP_FIELD_CONNECTION);
    return connection.compare("close", Qt::CaseInsensitive) == 0;
}

void HttpLine::noteFailure(http_status_t status)
{
    if (m_problem)
        return; // known better, by who was asked for a password
    if (isCanceled())
        return fail({ServerProblem::Kind::Canceled});
    if (m_wait.timedOut())
        return fail({ServerProblem::Kind::NoAnswer});
    switch (status) {
    case HTTP_STATUS_FORBIDDEN:
        fail({ServerProblem::Kind::Forbidden});
        // Another user may be allowed to do it; the next try asks which.
        if (m_inUse && m_context.credentials && !m_isAside) {
            m_context.credentials->forget(realm(), *m_inUse);
            m_problem.anotherUserMay = true;
        }
        return;
    case HTTP_STATUS_NOT_FOUND:
        return fail({ServerProblem::Kind::NotFound});
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return fail({ServerProblem::Kind::PasswordRefused});
    case HTTP_STATUS_CUPS_PKI_ERROR:
        return fail({ServerProblem::Kind::EncryptionMissing});
    default:
        break;
    }
    const int error = m_http ? httpError(m_http) : 0;
    if (error == EINVAL || error == 0)
        return fail({ServerProblem::Kind::NotUnderstood,
                     status > HTTP_STATUS_OK ? QString::fromUtf8(httpStatus(status)) : QString()});
    fail({ServerProblem::Kind::ConnectionLost, QString::fromLocal8Bit(strerror(error))});
}

void HttpLine::fail(const ServerProblem &problem)
{
    m_problem = problem;
    qCInfo(lcServer).noquote() << m_problem.text(m_context.address);
}

QString HttpLine::realm() const
{
    return m_context.address.argument();
}

const char *HttpLine::passwordWanted(const char *, http_t *http, const char *, const char *,
                                     void *self)
{
    return static_cast<HttpLine *>(self)->givePassword(http);
}

// A password is given once for a request: libcups would ask three times for the same.
const char *HttpLine::givePassword(http_t *http)
{
    if (m_problem)
        return nullptr;
    const auto &store = m_context.credentials;
    if (m_given) {
        const bool wasGuess = store && store->isGuess(realm());
        if (store && !m_isAside)
            store->forget(realm(), *m_given);
        if (!wasGuess || m_isAside) {
            fail({ServerProblem::Kind::PasswordRefused});
            return nullptr;
        }
    }
    if (!trustsCertificate())
        return nullptr;
    m_given = store ? store->known(realm()) : std::nullopt;
    if (!m_given) {
        if (!store || !m_context.mayAsk || m_isAside) {
            fail({ServerProblem::Kind::PasswordNeeded});
            return nullptr;
        }
        const CredentialStore::Outcome outcome =
            store->ask(realm(),
                       {m_context.address, QString::fromUtf8(cupsUser()),
                        httpIsEncrypted(http) != 0 || m_context.address.isLocal(), false},
                       [this] { return isCanceled(); });
        m_wait.start(); // a person takes the time that a person takes
        m_given = outcome.credentials;
        if (!m_given) {
            fail({outcome.nobodyToAsk ? ServerProblem::Kind::PasswordNeeded
                                      : ServerProblem::Kind::PasswordCanceled});
            return nullptr;
        }
    }
    warnOfPlainPassword();
    cupsSetUser(m_given->user.toUtf8().constData());
    m_password = m_given->password.toUtf8();
    m_inUse = m_given;
    return m_password.constData();
}

// Who is asked for a password is told so beside the question; a password from a file goes unasked.
void HttpLine::warnOfPlainPassword()
{
    const QByteArrayView wanted = httpGetField(m_http, HTTP_FIELD_WWW_AUTHENTICATE);
    const bool isRead =
        httpIsEncrypted(m_http) == 0 && !m_context.address.isLocal() && wanted.startsWith("Basic");
    if (isRead && m_context.credentials && m_context.credentials->isFirstInPlain(realm(), *m_given))
        qCWarning(lcServer).noquote()
            << Texts::tr(
                   "The password is sent to “%1” without encryption: others in the network can "
                   "read it. “-E” encrypts.")
                   .arg(m_context.address.text());
}

} // namespace corvana
