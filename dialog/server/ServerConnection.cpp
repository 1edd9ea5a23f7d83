#include "dialog/server/ServerConnection.h"

#include <array>
#include <cerrno>
#include <utility>

#include <poll.h>

#include <QIODevice>
#include <QLoggingCategory>

#include "dialog/server/AnswerReader.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcServer, "corvana.dialog.server", QtWarningMsg)

namespace {

// Authentication, TLS and a broken connection may each ask for the same once more.
constexpr int kMostAttempts = 6;
constexpr qint64 kBlock = 65536;
// How long libcups waits for keys while it connects, whatever it is told, and says of that only
// that a function has failed.
constexpr std::chrono::seconds kHandshakePatience{10};
// No PPD is that large; an endless answer must not fill the memory. Units: bytes.
constexpr qint64 kLargestFile = 32 * 1024 * 1024;
// What CUPS says of 10,000 queues when it says all, 10 KB of each, where a server knows no "limit".
constexpr qint64 kLargestAnswer = 128 * 1024 * 1024;
// What is said beside a refusal is of no use; this much is passed over to keep the connection.
constexpr qint64 kLargestRefusal = 65536;

// Why there is no connection. libcups says "Host is down" of every host that it does not get to.
QString reasonOfLibcups()
{
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    return reason == qt_error_string(EHOSTDOWN) ? QString() : reason;
}

// Whether a request changes nothing at the server, so that it can be sent twice.
bool onlyAsks(ipp_t *message)
{
    return QLatin1StringView(ippOpString(ippGetOperation(message)))
        .contains(QLatin1StringView("Get-"));
}

} // namespace

ServerConnection::ServerConnection(ServerContext context, CancelFlag *canceled)
    : m_context(std::move(context)), m_wait(m_context.patience.answering, canceled)
{
    // A setting of the calling thread alone.
    if (m_context.credentials) {
        if (const auto known = m_context.credentials->known(realm()))
            cupsSetUser(known->user.toUtf8().constData());
    }
}

ServerConnection::~ServerConnection()
{
    close();
    cupsSetPasswordCB2(nullptr, nullptr);
    m_password.fill('\0');
}

// Before a request: whatever was sent on a connection that is gone would be lost, or done unseen.
void ServerConnection::prepare()
{
    m_problem = {};
    m_given.reset();
    // Of the thread, which may have several connections.
    cupsSetPasswordCB2(&ServerConnection::passwordWanted, this);
    if (!m_http)
        return;
    // Servers close what was idle for long.
    pollfd state{httpGetFd(m_http), POLLRDHUP, 0};
    if (::poll(&state, 1, 0) > 0)
        close();
}

bool ServerConnection::open()
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
            fail(ServerProblem::Kind::Canceled);
        else if (error == ETIMEDOUT || error == EINPROGRESS ||
                 std::chrono::steady_clock::now() - begin >= kHandshakePatience)
            fail(ServerProblem::Kind::NoAnswer);
        else
            fail(ServerProblem::Kind::Unreachable, reasonOfLibcups());
        return false;
    }
    m_wait.watch(m_http);
    m_wait.start();
    return keepsOnlyTrusted();
}

// Nothing is said on a connection that is not trusted, neither now nor by the next request.
bool ServerConnection::keepsOnlyTrusted()
{
    if (trustsCertificate())
        return true;
    close();
    return false;
}

void ServerConnection::close()
{
    m_hasAnswered = false;
    m_inUse.reset();
    if (m_http)
        httpClose(std::exchange(m_http, nullptr));
}

bool ServerConnection::reconnect()
{
    m_wait.start();
    if (httpReconnect2(m_http, static_cast<int>(m_context.patience.connecting.count()),
                       m_wait.flag()) == 0)
        return keepsOnlyTrusted();
    noteFailure(HTTP_STATUS_ERROR);
    return false;
}

bool ServerConnection::trustsCertificate()
{
    if (!httpIsEncrypted(m_http))
        return true;
    const CertificateVerdict verdict = m_context.trust.judge(m_context.address, m_http);
    switch (verdict.kind) {
    case CertificateVerdict::Kind::Trusted:
        return true;
    case CertificateVerdict::Kind::Changed:
        fail(ServerProblem::Kind::CertificateChanged, verdict.certificate);
        m_problem.file = verdict.knownFrom;
        m_problem.entry = verdict.entry;
        break;
    case CertificateVerdict::Kind::Invalid:
        fail(ServerProblem::Kind::CertificateInvalid, verdict.certificate);
        break;
    }
    return false;
}

IppMessage ServerConnection::request(IppMessage message, const QByteArray &resource)
{
    return exchange(std::move(message), resource, nullptr, {});
}

IppMessage ServerConnection::request(IppMessage message, const QByteArray &resource,
                                     QIODevice &document,
                                     const std::function<void(qint64)> &progress)
{
    return exchange(std::move(message), resource, &document, progress);
}

// Sends until there is an answer that asks neither for a password nor for encryption. Answers its
// status; nothing when there is none, problem() says why.
std::optional<http_status_t> ServerConnection::converse(const char *method,
                                                        const QByteArray &resource, bool mayRepeat,
                                                        const Sender &send)
{
    prepare();
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        if (isCanceled()) {
            fail(ServerProblem::Kind::Canceled);
            return std::nullopt;
        }
        if (!open())
            return std::nullopt;
        m_wait.start();
        const bool isReused = std::exchange(m_hasAnswered, false);
        http_status_t status = send();
        if (!m_problem && status == HTTP_STATUS_CONTINUE)
            status = awaitAnswer();
        if (status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_UPGRADE_REQUIRED)
            m_documentSent = false; // it was, and was refused
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
    fail(ServerProblem::Kind::NotUnderstood);
    return std::nullopt;
}

http_status_t ServerConnection::awaitAnswer()
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

bool ServerConnection::authenticate(const char *method, const QByteArray &resource)
{
    return cupsDoAuthentication(m_http, method, resource.constData()) == 0 && reconnect();
}

bool ServerConnection::goOverToTls()
{
    // A server that asks for it on an encrypted connection asks for what there is not.
    if (m_context.address.encryption == HTTP_ENCRYPTION_NEVER || httpIsEncrypted(m_http) ||
        !reconnect() || httpEncryption(m_http, HTTP_ENCRYPTION_REQUIRED) != 0) {
        if (!m_problem)
            fail(ServerProblem::Kind::EncryptionMissing);
        return false;
    }
    return keepsOnlyTrusted();
}

IppMessage ServerConnection::exchange(IppMessage message, const QByteArray &resource,
                                      QIODevice *document,
                                      const std::function<void(qint64)> &progress)
{
    m_documentSent = false;
    m_requestSent = false;
    qCDebug(lcServer) << ippOpString(ippGetOperation(message.get())) << resource;
    const auto status = converse("POST", resource, onlyAsks(message.get()), [&] {
        return sendIpp(message.get(), resource, document, progress);
    });
    if (!status)
        return nullptr;
    if (*status != HTTP_STATUS_OK) {
        noteFailure(*status);
        close();
        return nullptr;
    }
    return unlessRefused(readIpp());
}

http_status_t ServerConnection::sendIpp(ipp_t *message, const QByteArray &resource,
                                        QIODevice *document,
                                        const std::function<void(qint64)> &progress)
{
    m_documentSent = false;
    if (document && !document->seek(0)) {
        fail(ServerProblem::Kind::DocumentUnreadable, document->errorString());
        return HTTP_STATUS_ERROR;
    }
    size_t length = ippLength(message);
    if (document)
        length += static_cast<size_t>(document->size());
    ippSetState(message, IPP_STATE_IDLE);
    m_requestSent = true;
    const http_status_t status = cupsSendRequest(m_http, message, resource.constData(), length);
    if (status != HTTP_STATUS_CONTINUE && status != HTTP_STATUS_OK)
        return httpGetStatus(m_http);
    // libcups goes over to TLS, and to a new connection, by itself.
    if (!keepsOnlyTrusted())
        return HTTP_STATUS_ERROR;
    if (document && status == HTTP_STATUS_CONTINUE)
        m_documentSent = sendDocument(*document, progress);
    return HTTP_STATUS_CONTINUE;
}

// Whether the server hangs up behind the answer that is being read.
bool ServerConnection::isLastAnswer() const
{
    const QByteArrayView connection = httpGetField(m_http, HTTP_FIELD_CONNECTION);
    return connection.compare("close", Qt::CaseInsensitive) == 0;
}

// The message, or null where there is none.
IppMessage ServerConnection::readIpp()
{
    const bool isLast = isLastAnswer();
    AnswerReader reader(m_http, m_wait, kLargestAnswer);
    IppMessage message = reader.readIpp();
    if (!message)
        noteUnread(reader);
    if (!message || !reader.skipRest() || isLast)
        close();
    return message;
}

// Null for an answer that says no.
IppMessage ServerConnection::unlessRefused(IppMessage response)
{
    // "Redirection" and above are refusals; ignored attributes are not.
    if (!response || ippGetStatusCode(response.get()) < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return response;
    const ipp_status_t said = ippGetStatusCode(response.get());
    fail(said == IPP_STATUS_ERROR_NOT_FOUND ? ServerProblem::Kind::NotFound
                                            : ServerProblem::Kind::Refused,
         ippText(ippFindAttribute(response.get(), "status-message", IPP_TAG_ZERO)));
    m_problem.status = said;
    return nullptr;
}

// True when all of it was taken.
bool ServerConnection::sendDocument(QIODevice &document,
                                    const std::function<void(qint64)> &progress)
{
    qint64 sent = 0;
    std::array<char, kBlock> block{};
    while (!document.atEnd()) {
        const qint64 length = document.read(block.data(), kBlock);
        if (length < 0 || (length == 0 && !document.atEnd())) {
            close();
            fail(ServerProblem::Kind::DocumentUnreadable, document.errorString());
            return false;
        }
        m_wait.start();
        if (isCanceled() ||
            cupsWriteRequestData(m_http, block.data(), static_cast<size_t>(length)) !=
                HTTP_STATUS_CONTINUE)
            return false;
        sent += length;
        if (progress)
            progress(sent);
    }
    return true;
}

void ServerConnection::noteFailure(http_status_t status)
{
    if (m_problem)
        return; // known better, by who was asked for a password
    if (isCanceled())
        return fail(ServerProblem::Kind::Canceled);
    if (m_wait.timedOut())
        return fail(ServerProblem::Kind::NoAnswer);
    switch (status) {
    case HTTP_STATUS_FORBIDDEN:
        fail(ServerProblem::Kind::Forbidden);
        // Another user may be allowed to do it; the next try asks which.
        if (m_inUse && m_context.credentials) {
            m_context.credentials->forget(realm(), *m_inUse);
            m_problem.anotherUserMay = true;
        }
        return;
    case HTTP_STATUS_NOT_FOUND:
        return fail(ServerProblem::Kind::NotFound);
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return fail(ServerProblem::Kind::PasswordRefused);
    case HTTP_STATUS_CUPS_PKI_ERROR:
        return fail(ServerProblem::Kind::EncryptionMissing);
    default:
        break;
    }
    const int error = m_http ? httpError(m_http) : 0;
    if (error == EINVAL || error == 0)
        return fail(ServerProblem::Kind::NotUnderstood,
                    status > HTTP_STATUS_OK ? QString::fromUtf8(httpStatus(status)) : QString());
    fail(ServerProblem::Kind::ConnectionLost, QString::fromLocal8Bit(strerror(error)));
}

void ServerConnection::noteUnread(const AnswerReader &reader)
{
    if (reader.end() == AnswerReader::End::Broken)
        noteFailure(HTTP_STATUS_ERROR);
    else if (reader.end() == AnswerReader::End::TooLarge)
        fail(ServerProblem::Kind::TooLarge);
    else
        fail(ServerProblem::Kind::NotUnderstood);
}

void ServerConnection::fail(ServerProblem::Kind kind, const QString &detail)
{
    m_problem = {kind, detail};
    qCInfo(lcServer).noquote() << m_problem.text(m_context.address);
}

ServerConnection::File ServerConnection::get(const QByteArray &resource, qint64 modifiedSince)
{
    qCDebug(lcServer) << "GET" << resource;
    const auto status =
        converse("GET", resource, true, [&] { return sendGet(resource, modifiedSince); });
    if (!status)
        return {};
    if (*status == HTTP_STATUS_OK) {
        File file{
            File::State::Read, {}, httpGetDateTime(httpGetField(m_http, HTTP_FIELD_LAST_MODIFIED))};
        const bool isLast = isLastAnswer();
        AnswerReader reader(m_http, m_wait, kLargestFile);
        if (auto content = reader.readAll()) {
            file.content = std::move(*content);
            if (isLast)
                close();
            return file;
        }
        noteUnread(reader);
        close();
        return {};
    }
    // Of what nobody has, nothing can be unchanged.
    const bool isUnchanged = *status == HTTP_STATUS_NOT_MODIFIED && modifiedSince > 0;
    if (!isUnchanged && *status != HTTP_STATUS_NOT_FOUND) {
        noteFailure(*status);
        close();
        return {};
    }
    const bool isLast = isLastAnswer();
    if (!AnswerReader(m_http, m_wait, kLargestRefusal).readAll() || isLast)
        close();
    return isUnchanged ? File{File::State::Unchanged, {}, modifiedSince}
                       : File{File::State::Missing, {}, 0};
}

http_status_t ServerConnection::sendGet(const QByteArray &resource, qint64 modifiedSince)
{
    httpClearFields(m_http);
    if (const char *authorization = httpGetAuthString(m_http))
        httpSetField(m_http, HTTP_FIELD_AUTHORIZATION, authorization);
    if (modifiedSince > 0) {
        std::array<char, 64> date{};
        httpSetField(m_http, HTTP_FIELD_IF_MODIFIED_SINCE,
                     httpGetDateString2(modifiedSince, date.data(), static_cast<int>(date.size())));
    }
    // A connection that had been idle for too long is made anew.
    if (httpGet(m_http, resource.constData()) != 0 &&
        (!reconnect() || httpGet(m_http, resource.constData()) != 0))
        return HTTP_STATUS_ERROR;
    // So does libcups, by itself, after a refusal.
    return keepsOnlyTrusted() ? HTTP_STATUS_CONTINUE : HTTP_STATUS_ERROR;
}

QString ServerConnection::realm() const
{
    return m_context.address.argument();
}

const char *ServerConnection::passwordWanted(const char *, http_t *http, const char *, const char *,
                                             void *self)
{
    return static_cast<ServerConnection *>(self)->givePassword(http);
}

// A password is given once for a request: libcups would ask three times for the same.
const char *ServerConnection::givePassword(http_t *http)
{
    if (m_problem)
        return nullptr;
    const auto &store = m_context.credentials;
    if (m_given) {
        if (store)
            store->forget(realm(), *m_given);
        fail(ServerProblem::Kind::PasswordRefused);
        return nullptr;
    }
    if (!trustsCertificate())
        return nullptr;
    m_given = store ? store->known(realm()) : std::nullopt;
    if (!m_given) {
        if (!store || !m_context.mayAsk) {
            fail(ServerProblem::Kind::PasswordNeeded);
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
            fail(outcome.nobodyToAsk ? ServerProblem::Kind::PasswordNeeded
                                     : ServerProblem::Kind::PasswordCanceled);
            return nullptr;
        }
    }
    cupsSetUser(m_given->user.toUtf8().constData());
    m_password = m_given->password.toUtf8();
    m_inUse = m_given;
    return m_password.constData();
}

} // namespace corvana
