#include "dialog/server/HttpLine.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <poll.h>

#include <QCoreApplication>
#include <QLoggingCategory>

#include "dialog/server/ConnectionWatch.h"
#include "dialog/server/IppMessage.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcServer, "corvana.dialog.server", QtWarningMsg)

namespace {

// Authentication, TLS and a broken connection may each ask for the same once more.
constexpr int kMostAttempts = 6;
// How long libcups waits for keys by itself; it says of that only that a function has failed.
constexpr std::chrono::seconds kHandshakePatience{10};
// A head may begin when patience is nearly over, and takes a moment then.
constexpr int kPatiencesForHead = 2;
// What a server may say as a status. No value may be read that the enumeration cannot have.
constexpr int kLastStatus = 999;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(HttpLine)
};

http_status_t statusOf(int said)
{
    return said > kLastStatus ? HTTP_STATUS_ERROR : static_cast<http_status_t>(said);
}

// Why there is no connection. libcups says "Host is down" of every host that it does not get to.
QString reasonOfLibcups()
{
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    return reason == qt_error_string(EHOSTDOWN) ? QString() : reason;
}

} // namespace

HttpLine::HttpLine(ServerContext context, CancelFlag *canceled)
    : m_context(std::move(context)), m_wait(m_context.patience.answering, canceled),
      m_encryption(m_context.address.encryption)
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
    // Behind a refusal, or an answer that was not read to its end, libcups would make a connection
    // of its own.
    if (statusOf(httpGetStatus(m_http)) >= HTTP_STATUS_BAD_REQUEST ||
        httpGetState(m_http) != HTTP_STATE_WAITING)
        return close();
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
    // Without a time to connect in, it does not connect yet.
    m_http = httpConnect2(host.constData(), m_context.address.port, nullptr, AF_UNSPEC,
                          m_encryption, 1, 0, nullptr);
    if (!m_http) {
        fail({isCanceled() ? ServerProblem::Kind::Canceled : ServerProblem::Kind::Unreachable,
              reasonOfLibcups()});
        return false;
    }
    if (!connectTo(m_http)) {
        close();
        return false;
    }
    m_wait.watch(m_http);
    m_wait.start();
    // Nothing is said on a connection that is not trusted, neither now nor by the next request.
    if (trustsCertificate())
        return true;
    close();
    return false;
}

bool HttpLine::connectTo(http_t *connection)
{
    const std::chrono::milliseconds patience = m_context.patience.connecting;
    const ConnectionWatch watch(connection, m_wait, patience);
    const auto begin = std::chrono::steady_clock::now();
    errno = 0;
    if (httpReconnect2(connection, static_cast<int>(patience.count()), m_wait.flag()) == 0)
        return true;
    const int error = errno;
    if (isCanceled())
        fail({ServerProblem::Kind::Canceled});
    else if (error == ETIMEDOUT || error == EINPROGRESS || watch.hasTimedOut() ||
             std::chrono::steady_clock::now() - begin >= kHandshakePatience)
        fail({ServerProblem::Kind::NoAnswer});
    else
        fail({ServerProblem::Kind::Unreachable, reasonOfLibcups()});
    return false;
}

void HttpLine::close()
{
    m_hasAnswered = false;
    m_inUse.reset();
    if (m_http)
        httpClose(std::exchange(m_http, nullptr));
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
    http_status_t status = HTTP_STATUS_CONTINUE;
    m_wait.start();
    do
        status = readHead();
    while (status == HTTP_STATUS_CONTINUE && !m_wait.isOver());
    return status;
}

http_status_t HttpLine::readHead()
{
    const ConnectionWatch watch(m_http, m_wait, kPatiencesForHead * m_wait.patience());
    const http_status_t status = statusOf(httpUpdate(m_http));
    if (watch.hasTimedOut() && !isCanceled())
        m_wait.giveUp();
    return status;
}

bool HttpLine::authenticate(const char *method, const QByteArray &resource)
{
    if (cupsDoAuthentication(m_http, method, resource.constData()) != 0) {
        if (!m_problem && !m_given)
            fail({ServerProblem::Kind::LogInUnknown,
                  shownText(httpGetField(m_http, HTTP_FIELD_WWW_AUTHENTICATE))});
        return false;
    }
    const QByteArray authorization = httpGetAuthString(m_http);
    const std::optional<Credentials> inUse = m_inUse;
    close();
    if (!open())
        return false;
    m_inUse = inUse;
    const qsizetype blank = authorization.indexOf(' ');
    httpSetAuthString(m_http, authorization.left(blank).constData(),
                      blank < 0 ? nullptr : authorization.constData() + blank + 1);
    return true;
}

bool HttpLine::goOverToTls()
{
    // A server that asks for it on an encrypted connection asks for what there is not.
    const bool isPossible =
        m_context.address.encryption != HTTP_ENCRYPTION_NEVER && !httpIsEncrypted(m_http);
    close();
    m_encryption = HTTP_ENCRYPTION_REQUIRED;
    const auto begin = std::chrono::steady_clock::now();
    if (isPossible && open())
        return true;
    // What libcups leaves as its reason is that of connecting, which went well.
    using Kind = ServerProblem::Kind;
    const auto took = std::chrono::steady_clock::now() - begin;
    const bool wasSilent = m_problem.kind == Kind::NoAnswer &&
                           took >= std::min<std::chrono::nanoseconds>(m_context.patience.connecting,
                                                                      kHandshakePatience);
    if (!m_problem || m_problem.kind == Kind::Unreachable ||
        (m_problem.kind == Kind::NoAnswer && !wasSilent))
        fail({Kind::EncryptionMissing});
    return false;
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
