#pragma once

#include <QByteArray>

namespace corvana {

/// Whether a text that begins so is in UTF-16 without a byte order mark: "UTF-16LE" or "UTF-16BE";
/// empty where it is not. One that has no zero byte, as a line of ideographs alone has none, could
/// be anything, and is none.
QByteArray unmarkedUtf16(const QByteArray &beginning);

} // namespace corvana
