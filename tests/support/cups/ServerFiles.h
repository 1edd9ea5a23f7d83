#pragma once

#include <stdexcept>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace corvana::test {

/// A file in the folder of a test's server; empty when it cannot be read.
inline QByteArray serverFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Errors: throws std::runtime_error.
inline void writeServerFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

} // namespace corvana::test
