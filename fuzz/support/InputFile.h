#pragma once

#include <QByteArray>
#include <QString>

namespace corvana::fuzz {

/// Puts bytes into the place of a file, whose folders are made; nothing of what was there is left.
void writeInput(const QString &path, const QByteArray &content);

QByteArray contentOf(const QString &path);

} // namespace corvana::fuzz
