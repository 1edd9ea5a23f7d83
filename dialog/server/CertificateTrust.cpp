#include "dialog/server/CertificateTrust.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include <gnutls/x509.h>
#include <unistd.h>

#include <QFile>
#include <QLoggingCategory>
#include <QSet>

#include "dialog/server/IppMessage.h"
#include "dialog/server/KnownServers.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_DECLARE_LOGGING_CATEGORY(lcServer)

namespace {

struct ListDeleter
{
    void operator()(cups_array_t *credentials) const { httpFreeCredentials(credentials); }
};
using CertificateList = std::unique_ptr<cups_array_t, ListDeleter>;

struct CertificateDeleter
{
    void operator()(gnutls_x509_crt_t certificate) const { gnutls_x509_crt_deinit(certificate); }
};
using Certificate = std::unique_ptr<gnutls_x509_crt_int, CertificateDeleter>;

struct AuthoritiesDeleter
{
    void operator()(gnutls_x509_trust_list_t list) const { gnutls_x509_trust_list_deinit(list, 1); }
};
using Authorities = std::unique_ptr<gnutls_x509_trust_list_st, AuthoritiesDeleter>;

gnutls_datum_t bytesOf(void *credential)
{
    auto *bytes = static_cast<http_credential_t *>(credential);
    return {static_cast<unsigned char *>(bytes->data), static_cast<unsigned>(bytes->datalen)};
}

// Null for what is no certificate.
Certificate parse(void *credential)
{
    gnutls_x509_crt_t certificate = nullptr;
    if (!credential || gnutls_x509_crt_init(&certificate) != GNUTLS_E_SUCCESS)
        return nullptr;
    Certificate owner(certificate);
    const gnutls_datum_t bytes = bytesOf(credential);
    if (gnutls_x509_crt_import(certificate, &bytes, GNUTLS_X509_FMT_DER) != GNUTLS_E_SUCCESS)
        return nullptr;
    return owner;
}

std::optional<QByteArray> publicKeyOf(gnutls_x509_crt_t certificate)
{
    std::array<unsigned char, 32> id{};
    size_t size = id.size();
    if (!certificate || gnutls_x509_crt_get_key_id(certificate, GNUTLS_KEYID_USE_SHA256, id.data(),
                                                   &size) != GNUTLS_E_SUCCESS)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char *>(id.data()), static_cast<qsizetype>(size));
}

bool isSame(cups_array_t *one, cups_array_t *other)
{
    const gnutls_datum_t first = bytesOf(cupsArrayFirst(one));
    const gnutls_datum_t second = bytesOf(cupsArrayFirst(other));
    return std::equal(first.data, first.data + first.size, second.data, second.data + second.size);
}

bool isInForce(gnutls_x509_crt_t certificate)
{
    const std::time_t now = std::time(nullptr);
    return gnutls_x509_crt_get_activation_time(certificate) <= now &&
           now <= gnutls_x509_crt_get_expiration_time(certificate);
}

// "a.example.com (issued by …) / 8 hex digits…": what libcups says of a certificate.
QString describe(cups_array_t *certificates)
{
    std::array<char, 1024> text{};
    httpCredentialsString(certificates, text.data(), text.size());
    return shownText(text.data());
}

// What libcups remembers of a host, and where.
struct Remembered
{
    CertificateList certificates;
    QString file;
};

// Null where it remembers nothing. Of root it looks among the certificates that this machine's own
// print server shows, which says nothing about other servers of this machine.
Remembered rememberedByLibcups(const ServerAddress &server, const QString &otherFolder)
{
    const bool isRoot = ::getuid() == 0;
    if (otherFolder.isEmpty() && isRoot && server.isLocal())
        return {};
    QString folder = otherFolder;
    if (folder.isEmpty())
        folder = isRoot ? u"/etc/cups/ssl"_s : QFile::decodeName(qgetenv("HOME")) + u"/.cups/ssl"_s;
    const QByteArray host = server.host.toUtf8();
    cups_array_t *loaded = nullptr;
    if (httpLoadCredentials(QFile::encodeName(folder).constData(), &loaded, host.constData()) != 0)
        return {};
    // As libcups makes the name of a file of it.
    QString name;
    for (const char byte : host) {
        const QLatin1Char letter(byte);
        const bool stays = QChar(letter).unicode() < 128 && QChar(letter).isLetterOrNumber();
        name += stays || byte == '-' || byte == '.' ? QChar(letter) : QChar(u'_');
    }
    return {CertificateList(loaded), u"%1/%2.crt"_s.arg(folder, name)};
}

// Whether an authority says that these certificates are those of the host.
bool isVouchedFor(cups_array_t *certificates, const QString &host, const QString &authorities)
{
    gnutls_x509_trust_list_t list = nullptr;
    if (gnutls_x509_trust_list_init(&list, 0) != GNUTLS_E_SUCCESS)
        return false;
    const Authorities owner(list);
    const QByteArray file = QFile::encodeName(authorities);
    const int trusted = file.isEmpty()
                            ? gnutls_x509_trust_list_add_system_trust(list, 0, 0)
                            : gnutls_x509_trust_list_add_trust_file(list, file.constData(), nullptr,
                                                                    GNUTLS_X509_FMT_PEM, 0, 0);
    if (trusted <= 0)
        return false;
    std::vector<Certificate> chain;
    for (void *credential = cupsArrayFirst(certificates); credential;
         credential = cupsArrayNext(certificates)) {
        chain.push_back(parse(credential));
        if (!chain.back())
            return false;
    }
    std::vector<gnutls_x509_crt_t> borrowed;
    for (const Certificate &certificate : chain)
        borrowed.push_back(certificate.get());
    QByteArray name = host.toUtf8();
    QByteArray purpose = GNUTLS_KP_TLS_WWW_SERVER;
    std::array<gnutls_typed_vdata_st, 2> wanted{};
    wanted[0] = {GNUTLS_DT_DNS_HOSTNAME, reinterpret_cast<unsigned char *>(name.data()), 0};
    wanted[1] = {GNUTLS_DT_KEY_PURPOSE_OID, reinterpret_cast<unsigned char *>(purpose.data()), 0};
    unsigned status = 0;
    return gnutls_x509_trust_list_verify_crt2(
               list, borrowed.data(), static_cast<unsigned>(borrowed.size()), wanted.data(),
               wanted.size(), 0, &status, nullptr) == GNUTLS_E_SUCCESS &&
           status == 0;
}

} // namespace

struct CertificateTrust::Allowed
{
    std::mutex mutex;
    QSet<QByteArray> certificates; // by server and content
};

std::shared_ptr<CertificateTrust::Allowed> CertificateTrust::newAllowed()
{
    return std::make_shared<Allowed>();
}

// Whether client.conf allows a certificate. libcups compares it with what it remembers itself, by
// dates and names, and may write there, all of which the keys have settled already. So it is not
// asked where it has another one at hand; what is left then is whether this one is in force. It
// leaks some kilobytes with each answer, so the same is not asked at every connection.
bool CertificateTrust::isAllowed(const ServerAddress &server, cups_array_t *certificates,
                                 cups_array_t *remembered) const
{
    const Certificate certificate = parse(cupsArrayFirst(certificates));
    if ((::getuid() == 0 && server.isLocal()) || (remembered && !isSame(certificates, remembered)))
        return isInForce(certificate.get());
    const gnutls_datum_t bytes = bytesOf(cupsArrayFirst(certificates));
    const QByteArray name =
        server.argument().toUtf8() + '\n' +
        QByteArray(reinterpret_cast<const char *>(bytes.data), static_cast<qsizetype>(bytes.size));
    const std::lock_guard lock(m_allowed->mutex);
    if (m_allowed->certificates.contains(name))
        return true;
    switch (httpCredentialsGetTrust(certificates, server.host.toUtf8().constData())) {
    case HTTP_TRUST_INVALID:
    case HTTP_TRUST_EXPIRED:
        return false;
    default:
        m_allowed->certificates.insert(name);
        return true;
    }
}

CertificateVerdict CertificateTrust::judge(const ServerAddress &server, http_t *connection) const
{
    cups_array_t *copied = nullptr;
    if (httpCopyCredentials(connection, &copied) != 0)
        return {};
    return judge(server, CertificateList(copied).get());
}

CertificateVerdict CertificateTrust::judge(const ServerAddress &server,
                                           cups_array_t *certificates) const
{
    using Kind = CertificateVerdict::Kind;
    const Certificate certificate = parse(cupsArrayFirst(certificates));
    const std::optional<QByteArray> key = publicKeyOf(certificate.get());
    if (!key)
        return {};
    const QString text = describe(certificates);
    qCDebug(lcServer) << "certificate:" << text << "key" << key->toHex();

    const KnownServers servers =
        m_files.known.isEmpty() ? KnownServers() : KnownServers(m_files.known);
    const QString name = server.argument();
    const Remembered remembered = rememberedByLibcups(server, m_files.libcups);
    const std::optional<QByteArray> noted = servers.key(name);
    const std::optional<QByteArray> known =
        noted ? noted : publicKeyOf(parse(cupsArrayFirst(remembered.certificates.get())).get());
    if (known && known != key && !isVouchedFor(certificates, server.host, m_files.authorities))
        return noted ? CertificateVerdict{Kind::Changed, text, servers.path(), name}
                     : CertificateVerdict{Kind::Changed, text, remembered.file};
    if (!isAllowed(server, certificates, remembered.certificates.get()))
        return {Kind::Invalid, text};
    // Another connection, or another program, may have met somebody else there meanwhile.
    if (noted != key &&
        servers.remember(name, noted, *key) == KnownServers::Outcome::KnownOtherwise)
        return {Kind::Changed, text, servers.path(), name};
    return {Kind::Trusted, text};
}

} // namespace corvana
