#pragma once

#include <optional>

#include <QString>

#include <cups/cups.h>

namespace corvana {

/// Where a print server listens: a value.
struct ServerAddress
{
    QString host; ///< a name, an address, or the absolute path of a socket
    int port = 631;
    http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED;

    bool operator==(const ServerAddress &) const = default;

    /// The server that the user's environment names: CUPS_SERVER, client.conf, else this machine's.
    static ServerAddress configured();

    /// Reads "HOST", "HOST:PORT", "[ADDRESS]:PORT" or the path of a socket.
    /// Errors: nothing for anything else.
    static std::optional<ServerAddress> parse(const QString &text);

    /// Whether what is sent stays on this machine.
    bool isLocal() const;
    /// For messages: "print.example.com", with its port where that is not the usual one.
    QString text() const;
    /// For command lines: "HOST:PORT", or the path of the socket.
    QString argument() const;
};

} // namespace corvana
