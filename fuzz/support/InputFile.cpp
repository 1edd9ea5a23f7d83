#include "fuzz/support/InputFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "fuzz/support/Target.h"

namespace corvana::fuzz {

void writeInput(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "the input can be written to a file", path);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace corvana::fuzz
