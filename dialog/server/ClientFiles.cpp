#include "dialog/server/ClientFiles.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ClientFiles)
};

constexpr qint64 kLargest = 1024 * 1024; // bytes; a usual one has a line or two

} // namespace

QString problemOfClientFiles()
{
    const QString root = qEnvironmentVariable("CUPS_SERVERROOT", u"/etc/cups"_s);
    for (const QString &folder : {root, qEnvironmentVariable("HOME") + u"/.cups"_s}) {
        const QFileInfo info(folder + u"/client.conf"_s);
        if (info.exists() && !info.isDir() && (!info.isFile() || info.size() > kLargest))
            return Texts::tr("%1 cannot be read to its end: a small file with the settings of CUPS "
                             "is expected there.")
                .arg(info.filePath());
    }
    return {};
}

} // namespace corvana
