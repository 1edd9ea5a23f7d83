#pragma once

#include <memory>
#include <utility>

#include <QString>

#include <cups/cups.h>

#include "dialog/server/ServerAddress.h"

namespace corvana {

/// What is to be thought of the certificate that a server shows.
struct CertificateVerdict
{
    enum class Kind {
        Trusted,
        Changed, ///< another key than the one that is known, and no authority vouches for it
        Invalid, ///< expired, not to be read, or not what client.conf allows
    };
    Kind kind = Kind::Invalid;
    QString certificate{}; ///< what it says of itself, for a person
    QString knownFrom{};   ///< for `Changed`: the file that says otherwise
    QString entry{}; ///< for `Changed`: the beginning of the line in that file; empty: all of it
};

/// Tells a server that is known by its public key from one that stands in its place. The first key
/// of a server is taken and remembered, as far as client.conf allows it; a renewed certificate with
/// the same key is the same server's; another key is another server's, unless an authority that the
/// system trusts vouches for it by the server's name. libcups alone would take any certificate that
/// runs out later for a renewal. What it has remembered itself is looked at, and never written.
///
/// Thread: any, waits for files.
class CertificateTrust
{
public:
    /// Files that stand in for the usual ones; those that are left empty are the usual ones.
    struct Files
    {
        QString known{};       ///< for KnownServers
        QString authorities{}; ///< in PEM; else those that the system trusts
        QString libcups{}; ///< the folder of "HOST.crt"; else ~/.cups/ssl, /etc/cups/ssl for root
    };

    CertificateTrust() = default;
    explicit CertificateTrust(Files files) : m_files(std::move(files)) {}

    /// Looks at the certificates of an encrypted connection to `server`.
    CertificateVerdict judge(const ServerAddress &server, http_t *connection) const;
    /// The same for certificates that are at hand, the server's own first.
    CertificateVerdict judge(const ServerAddress &server, cups_array_t *certificates) const;

private:
    // The certificates that client.conf has been found to allow, for all copies of this object.
    struct Allowed;

    Files m_files;
    std::shared_ptr<Allowed> m_allowed = newAllowed();

    static std::shared_ptr<Allowed> newAllowed();
    bool isAllowed(const ServerAddress &server, cups_array_t *certificates,
                   cups_array_t *remembered) const;
};

} // namespace corvana
