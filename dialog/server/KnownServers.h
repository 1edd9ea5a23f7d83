#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace corvana {

/// The public keys by which print servers are known again, in a file of the user's: a line for each
/// server, "HOST:PORT sha256:HEX". Keys rather than certificates, since a certificate that is
/// renewed keeps its key, while a date says nothing about who made it.
///
/// Thread: any; several programs may use the file at once.
class KnownServers
{
public:
    /// "corvana-print/known-servers" in the user's folder for data.
    KnownServers();
    explicit KnownServers(QString path) : m_path(std::move(path)) {}

    QString path() const { return m_path; }

    /// The key of a server, the SHA-256 of its public key. Errors: nothing for one that is not
    /// known, and when the file cannot be read, which the log says.
    std::optional<QByteArray> key(const QString &server) const;

    enum class Outcome {
        Kept,
        NotKept,        ///< the file cannot be written; the log says why
        KnownOtherwise, ///< somebody else has noted another key meanwhile
    };
    /// Remembers `key` in the place of `former`, which is what key() said.
    Outcome remember(const QString &server, const std::optional<QByteArray> &former,
                     const QByteArray &key) const;

private:
    QString m_path;
};

} // namespace corvana
