#pragma once

#include <QString>

#include <cups/cups.h>

namespace corvana {

struct ServerAddress;

/// Why a server did not do what it was asked for.
struct ServerProblem
{
    enum class Kind {
        None,
        Unreachable,        ///< no connection: no such host, refused, no route
        NoAnswer,           ///< a connection, and then silence for longer than is bearable
        ConnectionLost,     ///< it hung up in the midst of a request or its answer
        NotUnderstood,      ///< what it answered is no HTTP or no IPP
        TooLarge,           ///< its answer is larger, or nested deeper, than any that is meant
        PasswordNeeded,     ///< nobody was there to be asked for one
        PasswordRefused,    ///< the user and password that were given are wrong
        PasswordCanceled,   ///< the user did not want to give one
        LogInUnknown,       ///< it wants a log-in of no kind that can be given
        Forbidden,          ///< this user may not do this
        CertificateChanged, ///< it is not the server that it was, or someone is in between
        CertificateInvalid, ///< its certificate is not to be trusted
        EncryptionMissing,  ///< it wants encryption and cannot be spoken to with it
        NotFound,           ///< there is no such queue or job
        Refused,            ///< IPP says no, for the reason in `detail`
        DocumentUnreadable, ///< here, not at the server
        Canceled,           ///< from here
    };

    Kind kind = Kind::None;
    QString detail{};                    ///< the server's or the system's own words, if any
    ipp_status_t status = IPP_STATUS_OK; ///< for `Refused`
    QString file{};                      ///< for `CertificateChanged`: what knows the former one
    QString entry{};                     ///< the line of that file; empty where it is all of it

    bool anotherUserMay = false; ///< for `Forbidden`: somebody had logged in

    explicit operator bool() const { return kind != Kind::None; }
    bool operator==(const ServerProblem &) const = default;

    /// For a person: what is wrong, and with whom.
    QString text(const ServerAddress &server) const;
    /// The same in few words, where there is little room.
    QString brief(const ServerAddress &server) const;
    /// Whether asking again later may help without anybody doing anything.
    bool mayPass() const;
};

} // namespace corvana
