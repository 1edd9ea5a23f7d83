#include "dialog/printers/DevicePrinter.h"

#include <QUrl>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
constexpr int kIppPort = 631;
constexpr QLatin1StringView kIpp = "ipp"_L1;
constexpr QLatin1StringView kIpps = "ipps"_L1;
} // namespace

bool isDeviceUri(const QString &text)
{
    return text.contains("://"_L1);
}

std::optional<DevicePrinter> deviceOfUri(const QString &uri)
{
    QUrl url(uri, QUrl::StrictMode);
    const bool known = url.scheme() == kIpp || url.scheme() == kIpps;
    if (!url.isValid() || !known || url.host().isEmpty() || !url.userInfo().isEmpty())
        return std::nullopt;
    // Where printers that need no driver are to be found, by the rules of IPP Everywhere.
    if (url.path().isEmpty() || url.path() == "/"_L1)
        url.setPath(u"/ipp/print"_s);
    DevicePrinter device;
    device.printer.origin = PrinterOrigin::Device;
    device.printer.name = uri;
    device.printer.description = url.host();
    device.printer.uri = url.toString(QUrl::FullyEncoded);
    device.address.host = url.host();
    device.address.port = url.port(kIppPort);
    if (url.scheme() == kIpps)
        device.address.encryption = HTTP_ENCRYPTION_ALWAYS;
    return device;
}

} // namespace corvana
