#pragma once

#include <optional>

#include "dialog/printers/Printer.h"
#include "dialog/server/ServerAddress.h"

namespace corvana {

/// An IPP printer that is spoken to without a queue.
struct DevicePrinter
{
    Printer printer;
    ServerAddress address;
};

/// Whether a printer is named by a URI rather than by a name.
bool isDeviceUri(const QString &text);

/// The printer at "ipp://HOST[:PORT]/PATH" or "ipps://…", always encrypted.
/// Errors: nothing for any other URI.
std::optional<DevicePrinter> deviceOfUri(const QString &uri);

} // namespace corvana
