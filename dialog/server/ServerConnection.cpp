#include "dialog/server/ServerConnection.h"

#include <array>
#include <cerrno>
#include <utility>

#include <poll.h>
#include <unistd.h>

#include <QIODevice>
#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcServer, "corvana.dialog.server", QtWarningMsg)

namespace {

// How often a wait is interrupted to see whether it is still wanted. Units: seconds.
constexpr double kLookAround = 0.2;
// Authentication, TLS and a broken connection may each ask for the same once more.
constexpr int kMostAttempts = 6;
constexpr qint64 kBlock = 65536;
// No PPD is that large; an endless answer must not fill the memory. Units: bytes.
constexpr qsizetype kLargestFile = 32 * 1024 * 1024;

// libcups waits for a connection while an int is 0.
static_assert(sizeof(CancelFlag) == sizeof(int) && CancelFlag::is_always_lock_free);

struct CredentialsDeleter
{
    void operator()(cups_array_t *credentials) const { httpFreeCredentials(credentials); }
};
using Certificates = std::unique_ptr<cups_array_t, CredentialsDeleter>;

// Why there is no connection. libcups says "Host is down" of every host that it does not get to.
QString reasonOfLibcups()
{
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    return reason == qt_error_string(EHOSTDOWN) ? QString() : reason;
}

// "a.example.com (issued by …) / 8 hex digits…": what libcups says of a certificate.
QString describe(cups_array_t *certificates)
{
    std::array<char, 1024> text{};
    httpCredentialsString(certificates, text.data(), text.size());
    return shownText(text.data());
}

} // namespace

ServerPatience ServerPatience::fromEnvironment()
{
    ServerPatience patience;
    bool isNumber = false;
    const double seconds = qEnvironmentVariable("CORVANA_PRINT_PATIENCE").toDouble(&isNumber);
    if (isNumber && seconds > 0 && seconds <= 3600) {
        patience.connecting = std::chrono::milliseconds(static_cast<qint64>(seconds * 1000));
        patience.answering = patience.connecting;
    }
    return patience;
}

ServerConnection::ServerConnection(ServerContext context, CancelFlag *canceled)
    : m_context(std::move(context)), m_canceled(canceled)
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
    m_passwordGiven = false;
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
    m_http = httpConnect2(host.constData(), m_context.address.port, nullptr, AF_UNSPEC,
                          m_context.address.encryption, 1,
                          static_cast<int>(m_context.patience.connecting.count()),
                          reinterpret_cast<int *>(m_canceled));
    if (!m_http) {
        const int error = errno;
        if (isCanceled())
            fail(ServerProblem::Kind::Canceled);
        else if (error == ETIMEDOUT || error == EINPROGRESS)
            fail(ServerProblem::Kind::NoAnswer);
        else
            fail(ServerProblem::Kind::Unreachable, reasonOfLibcups());
        return false;
    }
    httpSetTimeout(m_http, kLookAround, &ServerConnection::waitedLong, this);
    startWaiting();
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
    if (m_http)
        httpClose(std::exchange(m_http, nullptr));
}

bool ServerConnection::reconnect()
{
    startWaiting();
    if (httpReconnect2(m_http, static_cast<int>(m_context.patience.connecting.count()),
                       reinterpret_cast<int *>(m_canceled)) == 0)
        return keepsOnlyTrusted();
    noteFailure(HTTP_STATUS_ERROR);
    return false;
}

void ServerConnection::startWaiting()
{
    m_timedOut = false;
    m_deadline = std::chrono::steady_clock::now() + m_context.patience.answering;
}

// libcups asks every moment of a wait whether to go on.
int ServerConnection::waitedLong(http_t *, void *self)
{
    auto *connection = static_cast<ServerConnection *>(self);
    if (connection->isCanceled())
        return 0;
    if (std::chrono::steady_clock::now() < connection->m_deadline)
        return 1;
    connection->m_timedOut = true;
    return 0;
}

// The first certificate of a server is taken and remembered, as libcups is configured; one that
// takes its place without being its renewal is not.
bool ServerConnection::trustsCertificate()
{
    if (!httpIsEncrypted(m_http))
        return true;
    // What root has seen libcups keeps among the certificates of this machine's own print server.
    if (m_context.address.isLocal() && ::geteuid() == 0)
        return true;
    cups_array_t *taken = nullptr;
    const bool copied = httpCopyCredentials(m_http, &taken) == 0;
    const Certificates certificates(taken);
    if (!copied || !certificates) {
        fail(ServerProblem::Kind::CertificateInvalid);
        return false;
    }
    const QByteArray host = m_context.address.host.toUtf8();
    cups_array_t *loaded = nullptr;
    const bool isKnown = httpLoadCredentials(nullptr, &loaded, host.constData()) == 0 && loaded;
    const Certificates known(loaded);
    const http_trust_t trust = httpCredentialsGetTrust(certificates.get(), host.constData());
    qCDebug(lcServer) << "certificate:" << describe(certificates.get()) << "trust" << trust;
    switch (trust) {
    case HTTP_TRUST_OK:
    case HTTP_TRUST_RENEWED:
        if (!isKnown)
            httpSaveCredentials(nullptr, certificates.get(), host.constData());
        return true;
    case HTTP_TRUST_UNKNOWN:
        if (!isKnown) {
            httpSaveCredentials(nullptr, certificates.get(), host.constData());
            return true;
        }
        break;
    case HTTP_TRUST_CHANGED:
        fail(ServerProblem::Kind::CertificateChanged, describe(certificates.get()));
        return false;
    case HTTP_TRUST_INVALID:
    case HTTP_TRUST_EXPIRED:
        break;
    }
    fail(ServerProblem::Kind::CertificateInvalid, describe(certificates.get()));
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

IppMessage ServerConnection::exchange(IppMessage message, const QByteArray &resource,
                                      QIODevice *document,
                                      const std::function<void(qint64)> &progress)
{
    prepare();
    m_documentSent = false;
    m_requestSent = false;
    qCDebug(lcServer) << ippOpString(ippGetOperation(message.get())) << resource;
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        if (isCanceled()) {
            fail(ServerProblem::Kind::Canceled);
            return nullptr;
        }
        if (!open())
            return nullptr;
        startWaiting();
        if (document && !document->seek(0)) {
            fail(ServerProblem::Kind::DocumentUnreadable, document->errorString());
            return nullptr;
        }
        size_t length = ippLength(message.get());
        if (document)
            length += static_cast<size_t>(document->size());
        ippSetState(message.get(), IPP_STATE_IDLE);
        m_requestSent = true;
        http_status_t status = cupsSendRequest(m_http, message.get(), resource.constData(), length);
        // libcups goes over to TLS, and to a new connection, by itself.
        if ((status == HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK) && !keepsOnlyTrusted())
            return nullptr;
        m_documentSent = false;
        if (document && status == HTTP_STATUS_CONTINUE)
            m_documentSent = sendDocument(*document, progress);
        if (document && m_problem)
            return nullptr; // the document could not be read
        startWaiting();
        IppMessage response;
        if (status == HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK)
            response.reset(cupsGetResponse(m_http, resource.constData()));
        status = response ? HTTP_STATUS_OK : httpGetStatus(m_http);
        if (response) {
            if (ippGetState(response.get()) != IPP_STATE_DATA &&
                ippGetState(response.get()) != IPP_STATE_IDLE) {
                close();
                fail(ServerProblem::Kind::NotUnderstood);
                return nullptr;
            }
            const ipp_status_t said = ippGetStatusCode(response.get());
            // "Redirection" and above are refusals; ignored attributes are not.
            if (said < IPP_STATUS_REDIRECTION_OTHER_SITE)
                return response;
            fail(said == IPP_STATUS_ERROR_NOT_FOUND ? ServerProblem::Kind::NotFound
                                                    : ServerProblem::Kind::Refused,
                 ippText(ippFindAttribute(response.get(), "status-message", IPP_TAG_ZERO)));
            m_problem.status = said;
            return nullptr;
        }
        if (!goOnAfter(status))
            return nullptr;
    }
    fail(ServerProblem::Kind::NotUnderstood);
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
        startWaiting();
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

// Whether the same request may be sent again after an answer that was none.
bool ServerConnection::goOnAfter(http_status_t status)
{
    if (!m_problem && status == HTTP_STATUS_UNAUTHORIZED)
        return keepsOnlyTrusted(); // libcups has the password and a new connection
    if (!m_problem && status == HTTP_STATUS_UPGRADE_REQUIRED) {
        if (m_context.address.encryption != HTTP_ENCRYPTION_NEVER && httpIsEncrypted(m_http))
            return keepsOnlyTrusted();
        fail(ServerProblem::Kind::EncryptionMissing);
        close();
        return false;
    }
    noteFailure(status);
    close();
    return false;
}

void ServerConnection::noteFailure(http_status_t status)
{
    if (m_problem)
        return; // known better, by who was asked for a password
    if (isCanceled())
        return fail(ServerProblem::Kind::Canceled);
    if (m_timedOut)
        return fail(ServerProblem::Kind::NoAnswer);
    switch (status) {
    case HTTP_STATUS_FORBIDDEN:
        return fail(ServerProblem::Kind::Forbidden);
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

void ServerConnection::fail(ServerProblem::Kind kind, const QString &detail)
{
    m_problem = {kind, detail};
    qCInfo(lcServer).noquote() << m_problem.text(m_context.address);
}

ServerConnection::File ServerConnection::get(const QByteArray &resource, qint64 modifiedSince)
{
    prepare();
    qCDebug(lcServer) << "GET" << resource;
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        if (isCanceled()) {
            fail(ServerProblem::Kind::Canceled);
            return {};
        }
        if (!open())
            return {};
        startWaiting();
        httpClearFields(m_http);
        if (const char *authorization = httpGetAuthString(m_http))
            httpSetField(m_http, HTTP_FIELD_AUTHORIZATION, authorization);
        if (modifiedSince > 0) {
            std::array<char, 64> date{};
            httpSetField(
                m_http, HTTP_FIELD_IF_MODIFIED_SINCE,
                httpGetDateString2(modifiedSince, date.data(), static_cast<int>(date.size())));
        }
        http_status_t status = HTTP_STATUS_ERROR;
        if (httpGet(m_http, resource.constData()) == 0) {
            do
                status = httpUpdate(m_http);
            while (status == HTTP_STATUS_CONTINUE && !isCanceled() &&
                   std::chrono::steady_clock::now() < m_deadline);
        } else if (attempt == 0) {
            // A connection that had been idle for too long.
            if (!reconnect())
                return {};
            continue;
        }
        if (status == HTTP_STATUS_OK) {
            File file{File::State::Read,
                      {},
                      httpGetDateTime(httpGetField(m_http, HTTP_FIELD_LAST_MODIFIED))};
            std::array<char, kBlock> block{};
            for (;;) {
                startWaiting();
                const ssize_t length = httpRead2(m_http, block.data(), block.size());
                if (length < 0 || file.content.size() > kLargestFile || isCanceled()) {
                    noteFailure(HTTP_STATUS_ERROR);
                    close();
                    return {};
                }
                if (length == 0)
                    break;
                file.content.append(block.data(), length);
            }
            if (httpError(m_http) != 0 || m_timedOut) {
                noteFailure(HTTP_STATUS_ERROR);
                close();
                return {};
            }
            return file;
        }
        // Behind what is no answer, nothing can be expected to end.
        if (status != HTTP_STATUS_ERROR)
            httpFlush(m_http);
        if (status == HTTP_STATUS_NOT_MODIFIED)
            return {File::State::Unchanged, {}, modifiedSince};
        if (status == HTTP_STATUS_NOT_FOUND)
            return {File::State::Missing, {}, 0};
        if (status == HTTP_STATUS_UNAUTHORIZED) {
            if (cupsDoAuthentication(m_http, "GET", resource.constData()) != 0)
                status = HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
            else if (!reconnect())
                return {};
        } else if (status == HTTP_STATUS_UPGRADE_REQUIRED) {
            if (!reconnect())
                return {};
            httpEncryption(m_http, HTTP_ENCRYPTION_REQUIRED);
        }
        if (!goOnAfter(status))
            return {};
    }
    fail(ServerProblem::Kind::NotUnderstood);
    return {};
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
    const auto &store = m_context.credentials;
    if (std::exchange(m_passwordGiven, true)) {
        if (store)
            store->forget(realm());
        fail(ServerProblem::Kind::PasswordRefused);
        return nullptr;
    }
    if (!trustsCertificate())
        return nullptr;
    std::optional<Credentials> credentials = store ? store->known(realm()) : std::nullopt;
    if (!credentials) {
        if (!store || !m_context.mayAsk) {
            fail(ServerProblem::Kind::PasswordNeeded);
            return nullptr;
        }
        const CredentialStore::Outcome outcome =
            store->ask(realm(),
                       {m_context.address, QString::fromUtf8(cupsUser()),
                        httpIsEncrypted(http) != 0 || m_context.address.isLocal(), false},
                       [this] { return isCanceled(); });
        startWaiting(); // a person takes the time that a person takes
        credentials = outcome.credentials;
        if (!credentials) {
            fail(outcome.nobodyToAsk ? ServerProblem::Kind::PasswordNeeded
                                     : ServerProblem::Kind::PasswordCanceled);
            return nullptr;
        }
    }
    cupsSetUser(credentials->user.toUtf8().constData());
    m_password = credentials->password.toUtf8();
    return m_password.constData();
}

} // namespace corvana
