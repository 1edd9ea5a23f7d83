#include "dialog/server/ServerProblem.h"

#include <QCoreApplication>

#include "dialog/server/ServerAddress.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ServerProblem)
};

QString withDetail(const QString &text, const QString &detail)
{
    return detail.isEmpty() ? text : Texts::tr("%1 (%2)").arg(text, detail);
}

QString certificateChanged(const QString &who, const ServerProblem &problem)
{
    return problem.entry.isEmpty()
               ? Texts::tr("The certificate of the print server “%1” is not the one that it had "
                           "before: somebody has replaced it, or stands in between. If it was "
                           "replaced on purpose, remove the file %2.")
                     .arg(who, problem.file)
               : Texts::tr("The certificate of the print server “%1” is not the one that it had "
                           "before: somebody has replaced it, or stands in between. If it was "
                           "replaced on purpose, remove the line “%2” from the file %3.")
                     .arg(who, problem.entry, problem.file);
}

} // namespace

QString ServerProblem::text(const ServerAddress &server) const
{
    const QString who = server.text();
    switch (kind) {
    case Kind::None:
        break;
    case Kind::Unreachable:
        return withDetail(Texts::tr("The print server “%1” cannot be reached.").arg(who), detail);
    case Kind::NoAnswer:
        return Texts::tr("The print server “%1” does not answer.").arg(who);
    case Kind::ConnectionLost:
        return Texts::tr("The print server “%1” broke the connection.").arg(who);
    case Kind::NotUnderstood:
        return withDetail(Texts::tr("What “%1” answers is not what a print server says.").arg(who),
                          detail);
    case Kind::TooLarge:
        return withDetail(
            Texts::tr("What “%1” answers is larger than anything that a print server has to say.")
                .arg(who),
            detail);
    case Kind::PasswordNeeded:
        return Texts::tr("The print server “%1” wants a user and a password.").arg(who);
    case Kind::PasswordRefused:
        return Texts::tr("The print server “%1” does not accept this user and password.").arg(who);
    case Kind::PasswordCanceled:
        return Texts::tr("The print server “%1” wants a user and a password; none was given.")
            .arg(who);
    case Kind::LogInUnknown:
        return withDetail(
            Texts::tr("The print server “%1” wants to know who prints, in a way that is not "
                      "possible here.")
                .arg(who),
            detail);
    case Kind::Forbidden:
        return withDetail(Texts::tr("The print server “%1” does not allow you this.").arg(who),
                          detail);
    case Kind::CertificateChanged:
        return withDetail(certificateChanged(who, *this), detail);
    case Kind::CertificateInvalid:
        return withDetail(
            Texts::tr("The certificate of the print server “%1” is not to be trusted.").arg(who),
            detail);
    case Kind::EncryptionMissing:
        return Texts::tr("The print server “%1” wants an encrypted connection, which could not be "
                         "made.")
            .arg(who);
    case Kind::NotFound:
        return withDetail(Texts::tr("The print server “%1” knows nothing of it.").arg(who), detail);
    case Kind::Refused:
        return withDetail(Texts::tr("The print server “%1” refuses.").arg(who),
                          detail.isEmpty() ? QString::fromUtf8(ippErrorString(status)) : detail);
    case Kind::DocumentUnreadable:
        return Texts::tr("The document cannot be read: %1").arg(detail);
    case Kind::Canceled:
        return Texts::tr("Canceled.");
    }
    return {};
}

QString ServerProblem::brief(const ServerAddress &server) const
{
    const QString who = server.text();
    switch (kind) {
    case Kind::Unreachable:
        return Texts::tr("“%1” cannot be reached.").arg(who);
    case Kind::NoAnswer:
        return Texts::tr("No answer from “%1”.").arg(who);
    case Kind::ConnectionLost:
        return Texts::tr("“%1” broke the connection.").arg(who);
    case Kind::PasswordNeeded:
    case Kind::PasswordCanceled:
        return Texts::tr("“%1” wants a password.").arg(who);
    case Kind::PasswordRefused:
        return Texts::tr("Wrong user or password.");
    default:
        return text(server);
    }
}

bool ServerProblem::mayPass() const
{
    return kind == Kind::Unreachable || kind == Kind::NoAnswer || kind == Kind::ConnectionLost ||
           kind == Kind::NotUnderstood || kind == Kind::TooLarge;
}

} // namespace corvana
