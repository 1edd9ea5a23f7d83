#include "tests/support/cups/TestCertificate.h"

#include <array>
#include <ctime>
#include <stdexcept>

#include <gnutls/x509.h>

#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QtEndian>

#include "tests/support/cups/PrivateCups.h"
#include "tests/support/cups/ServerFiles.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr std::time_t kDay = 24 * 60 * 60;

void check(int result)
{
    if (result < 0)
        throw std::runtime_error(gnutls_strerror(result));
}

template <typename Export> QByteArray exported(Export exportTo)
{
    std::array<char, 8192> bytes{};
    size_t size = bytes.size();
    check(exportTo(bytes.data(), &size));
    return {bytes.data(), static_cast<qsizetype>(size)};
}

} // namespace

struct TestCertificate::Data
{
    Data()
    {
        check(gnutls_x509_privkey_init(&key));
        check(gnutls_x509_crt_init(&certificate));
    }
    ~Data()
    {
        gnutls_x509_crt_deinit(certificate);
        gnutls_x509_privkey_deinit(key);
    }
    Data(const Data &) = delete;
    Data &operator=(const Data &) = delete;

    QByteArray bytes() const
    {
        return exported([this](char *to, size_t *size) {
            return gnutls_x509_crt_export(certificate, GNUTLS_X509_FMT_DER, to, size);
        });
    }

    gnutls_x509_privkey_t key = nullptr;
    gnutls_x509_crt_t certificate = nullptr;
    QByteArray issuer{}; // its certificate, for a chain
};

TestCertificate::TestCertificate(const Settings &settings) : m_data(std::make_unique<Data>())
{
    gnutls_x509_privkey_t key = m_data->key;
    gnutls_x509_crt_t certificate = m_data->certificate;
    if (settings.key)
        check(gnutls_x509_privkey_cpy(key, settings.key->m_data->key));
    else
        check(gnutls_x509_privkey_generate(key, GNUTLS_PK_ECDSA,
                                           GNUTLS_CURVE_TO_BITS(GNUTLS_ECC_CURVE_SECP256R1), 0));
    const QByteArray name = settings.host.toUtf8();
    const std::time_t now = std::time(nullptr);
    const std::array<unsigned char, 1> serial{1};
    check(gnutls_x509_crt_set_version(certificate, 3));
    check(gnutls_x509_crt_set_serial(certificate, serial.data(), serial.size()));
    check(gnutls_x509_crt_set_dn_by_oid(certificate, GNUTLS_OID_X520_COMMON_NAME, 0,
                                        name.constData(), static_cast<unsigned>(name.size())));
    check(gnutls_x509_crt_set_key(certificate, key));
    check(gnutls_x509_crt_set_activation_time(certificate, now + settings.from * kDay));
    check(gnutls_x509_crt_set_expiration_time(certificate, now + settings.until * kDay));
    check(gnutls_x509_crt_set_ca_status(certificate, settings.isAuthority ? 1 : 0));
    const quint32 address = qToBigEndian(QHostAddress(settings.host).toIPv4Address());
    if (address != 0)
        check(gnutls_x509_crt_set_subject_alt_name(certificate, GNUTLS_SAN_IPADDRESS, &address,
                                                   sizeof address, GNUTLS_FSAN_SET));
    else
        check(gnutls_x509_crt_set_subject_alt_name(
            certificate, GNUTLS_SAN_DNSNAME, name.constData(), static_cast<unsigned>(name.size()),
            GNUTLS_FSAN_SET));
    if (!settings.isAuthority)
        check(gnutls_x509_crt_set_key_purpose_oid(certificate, GNUTLS_KP_TLS_WWW_SERVER, 0));
    const Data &issuer = settings.issuer ? *settings.issuer->m_data : *m_data;
    check(gnutls_x509_crt_sign2(certificate, issuer.certificate, issuer.key, GNUTLS_DIG_SHA256, 0));
    if (settings.issuer)
        m_data->issuer = issuer.bytes();
}

TestCertificate::~TestCertificate() = default;
TestCertificate::TestCertificate(TestCertificate &&) noexcept = default;
TestCertificate &TestCertificate::operator=(TestCertificate &&) noexcept = default;

QByteArray TestCertificate::certificate() const
{
    return exported([this](char *to, size_t *size) {
        return gnutls_x509_crt_export(m_data->certificate, GNUTLS_X509_FMT_PEM, to, size);
    });
}

QByteArray TestCertificate::privateKey() const
{
    return exported([this](char *to, size_t *size) {
        return gnutls_x509_privkey_export(m_data->key, GNUTLS_X509_FMT_PEM, to, size);
    });
}

QByteArray TestCertificate::keyId() const
{
    return exported([this](char *to, size_t *size) {
        return gnutls_x509_crt_get_key_id(m_data->certificate, GNUTLS_KEYID_USE_SHA256,
                                          reinterpret_cast<unsigned char *>(to), size);
    });
}

TestCertificate::List TestCertificate::list() const
{
    List list(cupsArrayNew(nullptr, nullptr));
    for (const QByteArray &bytes : {m_data->bytes(), m_data->issuer}) {
        if (!bytes.isEmpty())
            httpAddCredential(list.get(), bytes.constData(), static_cast<size_t>(bytes.size()));
    }
    return list;
}

void TestCertificate::giveTo(const PrivateCups &server) const
{
    const QDir folder(server.folder() + u"/ssl"_s);
    const QStringList names = folder.entryList({u"*.crt"_s});
    if (names.isEmpty())
        throw std::runtime_error("the server has no certificate yet");
    for (const QString &name : names) {
        writeServerFile(folder.filePath(name), certificate());
        writeServerFile(folder.filePath(name.chopped(3) + u"key"_s), privateKey());
    }
}

} // namespace corvana::test
