#include "dialog/server/ServerAddress.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
constexpr int kUsualPort = 631;
constexpr int kHighestPort = 65535;
} // namespace

ServerAddress ServerAddress::configured()
{
    return {QString::fromLocal8Bit(cupsServer()), ippPort(), cupsEncryption()};
}

std::optional<ServerAddress> ServerAddress::parse(const QString &text)
{
    static const QRegularExpression form(
        uR"(^(?:\[([0-9A-Fa-f:.%]+(?:%[A-Za-z0-9]+)?)\]|([^\s:/\[\]@\x00-\x1f\x7f]+))(?::([0-9]{1,5}))?\z)"_s);
    if (text.startsWith(u'/'))
        return ServerAddress{text, kUsualPort, HTTP_ENCRYPTION_IF_REQUESTED};
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString host = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
    const int port = match.captured(3).isEmpty() ? kUsualPort : match.captured(3).toInt();
    if (port < 1 || port > kHighestPort)
        return std::nullopt;
    return ServerAddress{host, port, cupsEncryption()};
}

bool ServerAddress::isLocal() const
{
    // A name may begin with the same digits, and lead anywhere.
    static const QRegularExpression loopback(uR"(^127(?:\.[0-9]{1,3}){3}\z)"_s);
    return host.startsWith(u'/') || host == "localhost"_L1 || host == "::1"_L1 ||
           loopback.match(host).hasMatch();
}

QString ServerAddress::text() const
{
    if (host.startsWith(u'/'))
        return QCoreApplication::translate("ServerAddress", "this computer");
    return port == kUsualPort ? host : argument();
}

QString ServerAddress::argument() const
{
    if (host.startsWith(u'/'))
        return host;
    return (host.contains(u':') ? u"[%1]:%2"_s : u"%1:%2"_s).arg(host, QString::number(port));
}

} // namespace corvana
