#pragma once

#include <memory>

#include <QByteArray>
#include <QString>

#include <cups/cups.h>

namespace corvana::test {

class PrivateCups;

/// A certificate with its key, made in a moment.
/// Errors: throws std::runtime_error where GnuTLS refuses.
class TestCertificate
{
public:
    struct Settings
    {
        QString host = QStringLiteral("print.example.com"); ///< a name or an IPv4 address
        /// Units: days from now.
        int from = -10;
        int until = 100;
        const TestCertificate *key = nullptr;    ///< whose key it has; else a new one
        const TestCertificate *issuer = nullptr; ///< who signs it; else itself
        bool isAuthority = false;
    };
    explicit TestCertificate(const Settings &settings);
    ~TestCertificate();
    TestCertificate(TestCertificate &&) noexcept;
    TestCertificate &operator=(TestCertificate &&) noexcept;

    /// In PEM.
    QByteArray certificate() const;
    QByteArray privateKey() const;
    /// The SHA-256 of its public key.
    QByteArray keyId() const;

    struct ListDeleter
    {
        void operator()(cups_array_t *list) const { httpFreeCredentials(list); }
    };
    using List = std::unique_ptr<cups_array_t, ListDeleter>;
    /// As libcups has the certificates of a connection: this one, then its issuer.
    List list() const;

    /// Makes a server that has a certificate already, and does not run, show this one.
    void giveTo(const PrivateCups &server) const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace corvana::test
