#include "tests/support/PrintedSides.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace corvana::test {

using namespace Qt::StringLiterals;

QStringList printedSides(const QByteArray &data)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"data"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
        return {};
    file.close();
    QProcess reader;
    reader.start(u"gs"_s,
                 {u"-q"_s, u"-dSAFER"_s, u"-dBATCH"_s, u"-dNOPAUSE"_s, u"-sDEVICE=txtwrite"_s,
                  u"-o"_s, folder.filePath(u"%d.txt"_s), file.fileName()});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        return {};
    QStringList sides;
    for (int i = 1;; ++i) {
        QFile side(folder.filePath(u"%1.txt"_s.arg(i)));
        if (!side.open(QIODevice::ReadOnly))
            return sides;
        sides += QString::fromUtf8(side.readAll()).simplified();
    }
}

QStringList printedFeatures(const QByteArray &data)
{
    QStringList features;
    const QList<QByteArray> lines = data.split('\n');
    for (const QByteArray &line : lines) {
        constexpr QByteArrayView kBegin("%%BeginFeature: *");
        if (!line.startsWith(kBegin))
            continue;
        const QString feature =
            QString::fromLatin1(line.mid(kBegin.size())).simplified().replace(u' ', u'=');
        if (!features.contains(feature))
            features += feature;
    }
    return features;
}

QByteArray withoutDates(const QByteArray &data)
{
    QByteArrayList lines = data.split('\n');
    lines.removeIf([](const QByteArray &line) {
        return line.startsWith("%%CreationDate: ") || line.startsWith("@PJL JOB") ||
               line.startsWith("%%For: ");
    });
    return lines.join('\n');
}

} // namespace corvana::test
