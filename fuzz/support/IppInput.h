#pragma once

#include <QByteArray>

#include "dialog/server/IppMessage.h"

namespace corvana::fuzz {

/// What a connection makes of these bytes: they pass the bounds of memory on their way to libcups.
/// Null where either refuses them.
IppMessage ippMessageOf(const QByteArray &bytes);

} // namespace corvana::fuzz
