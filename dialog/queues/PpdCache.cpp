#include "dialog/queues/PpdCache.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include "dialog/queues/PrinterId.h"
#include "dialog/queues/UserQueues.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcPpdCache, "corvana.dialog.ppdcache", QtWarningMsg)

namespace {

constexpr QLatin1StringView kDescription{"description"};
constexpr QLatin1StringView kLocation{"location"};
constexpr QLatin1StringView kMakeAndModel{"makeAndModel"};
constexpr QLatin1StringView kUri{"uri"};
constexpr QLatin1StringView kDeviceUri{"deviceUri"};
constexpr QLatin1StringView kIsClass{"isClass"};
constexpr QLatin1StringView kLastModified{"lastModified"};
constexpr QLatin1StringView kHash{"hash"};

bool save(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    qCWarning(lcPpdCache).noquote() << path << "cannot be written:" << file.errorString();
    return false;
}

// Any text as one name of a file, never "." or "..".
QString fileName(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text)).replace(u'.', QLatin1String("%2E"));
}

} // namespace

QByteArray hashOfPpd(const QByteArray &ppd)
{
    return QCryptographicHash::hash(ppd, QCryptographicHash::Sha256).toHex();
}

PpdCache::PpdCache()
    : m_folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
               QStringLiteral("/corvana-print/queues"))
{
}

QString PpdCache::pathOf(const QString &server, const QString &queue, const char *suffix) const
{
    return QStringLiteral("%1/%2/%3%4")
        .arg(m_folder, fileName(server), fileName(foldedQueueName(queueOfInstance(queue))),
             QLatin1StringView(suffix));
}

std::optional<PpdCache::Entry> PpdCache::find(const QString &server, const QString &queue) const
{
    QFile file(pathOf(server, queue, ".json"));
    const QString ppd = pathOf(server, queue, ".ppd");
    if (!QFileInfo(ppd).isReadable() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject said = QJsonDocument::fromJson(file.readAll()).object();
    if (!said.contains(kUri))
        return std::nullopt;
    Entry entry;
    entry.printer.name = queue;
    entry.printer.origin = PrinterOrigin::Queue;
    entry.printer.ppdPath = ppd;
    entry.printer.description = said.value(kDescription).toString();
    entry.printer.location = said.value(kLocation).toString();
    entry.printer.makeAndModel = said.value(kMakeAndModel).toString();
    entry.printer.uri = said.value(kUri).toString();
    entry.printer.deviceUri = said.value(kDeviceUri).toString();
    entry.printer.isClass = said.value(kIsClass).toBool();
    entry.lastModified = said.value(kLastModified).toInteger();
    entry.hash = said.value(kHash).toString().toLatin1();
    return entry;
}

QString PpdCache::store(const QString &server, const Printer &printer, const QByteArray &ppd,
                        qint64 lastModified) const
{
    const QString path = pathOf(server, printer.name, ".ppd");
    if (!QDir().mkpath(QFileInfo(path).path()))
        return {};
    // Where a printer stands, and how it is reached, is nobody else's business.
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QJsonObject said{
        {kDescription, printer.description},   {kLocation, printer.location},
        {kMakeAndModel, printer.makeAndModel}, {kUri, printer.uri},
        {kDeviceUri, printer.deviceUri},       {kIsClass, printer.isClass},
        {kLastModified, lastModified},         {kHash, QString::fromLatin1(hashOfPpd(ppd))}};
    // The PPD first: an old date with a new PPD is put right by the next look at the server.
    const bool stored = save(path, ppd) &&
                        save(pathOf(server, printer.name, ".json"), QJsonDocument(said).toJson());
    return stored ? path : QString();
}

void PpdCache::remove(const QString &server, const QString &queue) const
{
    QFile::remove(pathOf(server, queue, ".json"));
    QFile::remove(pathOf(server, queue, ".ppd"));
}

} // namespace corvana
