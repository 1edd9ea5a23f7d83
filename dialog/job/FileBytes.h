#pragma once

#include <QByteArray>
#include <QString>

namespace corvana {

/// The name of a file as text, whatever bytes it has: file systems take any, and names of old are
/// no UTF-8. A byte that is part of no character becomes one of the code units 0xDC80 to 0xDCFF,
/// which no text has by itself, so that the name can be turned back.
QString nameOfBytes(const QByteArray &bytes);

/// The bytes that such a name stands for.
QByteArray bytesOfName(const QString &name);

/// Whether a name has bytes that are no characters. Qt's own functions do not find such a file.
bool hasStrayBytes(const QString &name);

/// A name for a person: what is no character is a replacement character.
QString shownName(const QString &name);

} // namespace corvana
