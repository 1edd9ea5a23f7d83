#include "dialog/printers/PpdCache.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/session/PpdFile.h"
#include "platform/foundation/WholeFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPpdCache, "corvana.dialog.ppdcache", QtWarningMsg)

namespace {

constexpr QLatin1StringView kDescription = "description"_L1;
constexpr QLatin1StringView kLocation = "location"_L1;
constexpr QLatin1StringView kMakeAndModel = "makeAndModel"_L1;
constexpr QLatin1StringView kUri = "uri"_L1;
constexpr QLatin1StringView kDeviceUri = "deviceUri"_L1;
constexpr QLatin1StringView kIsClass = "isClass"_L1;
// Entries that have another name for it are of times when nobody looked at a PPD before it was
// stored.
constexpr QLatin1StringView kHash = "sha256"_L1;

constexpr QLatin1StringView kDefaults = "defaults"_L1;

constexpr QLatin1StringView kEntrySuffix = ".json"_L1;
// Enough to tell the PPDs of one queue apart. Units: hexadecimal digits.
constexpr qsizetype kHashInName = 16;

// No server sends a longer one. Units: bytes.
constexpr qint64 kLargestPpd = qint64(32) * 1024 * 1024;
constexpr qint64 kLargestDescription = 65536;

// A window is not open for longer without its printer being looked at. Units: days.
constexpr int kDaysAfterUse = 30;

// The date of a file is that of its last use.
void noteUse(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
}

bool isHash(const QByteArray &text)
{
    return text.size() >= kHashInName && QByteArray::fromHex(text).toHex() == text;
}

QString ppdSuffix(const QByteArray &hash)
{
    return u"-%1.ppd"_s.arg(QLatin1StringView(hash.first(qMin(kHashInName, hash.size()))));
}

// In the order in which they apply, each as [name, value].
QJsonArray toJson(const QList<JobOption> &options)
{
    QJsonArray array;
    for (const JobOption &option : options)
        array += QJsonArray{option.name, option.value};
    return array;
}

QList<JobOption> fromJson(const QJsonArray &array)
{
    QList<JobOption> options;
    for (const QJsonValue &value : array) {
        const QJsonArray pair = value.toArray();
        const JobOption option{pair.at(0).toString(), pair.at(1).toString()};
        if (!option.name.isEmpty() && !option.value.isEmpty())
            options += option;
    }
    return options;
}

bool save(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
        commitWhole(file))
        return true;
    qCWarning(lcPpdCache).noquote() << path << "cannot be written:" << file.errorString();
    return false;
}

// Null for a file that is missing, or longer than `most`.
QByteArray contentOf(const QString &path, qint64 most)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > most)
        return {};
    return file.readAll();
}

// Whether this is a PPD. Whatever else a server sends would stand in the way of the right one for
// as long as the server says that nothing has changed.
bool isPpd(const QByteArray &content)
{
    QString error;
    const SharedPpd copy = content.size() <= kLargestPpd ? temporaryPpd(content, &error) : nullptr;
    if (copy && openPpdFile(copy->path, &error))
        return true;
    qCWarning(lcPpdCache).noquote() << "What was fetched is no PPD and is not kept:" << error;
    return false;
}

// Any text as one name of a file, never "." or "..".
QString fileName(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text)).replace(u'.', "%2E"_L1);
}

} // namespace

PpdCache::PpdCache()
    : m_folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
               u"/corvana-print/queues"_s)
{
}

QString PpdCache::pathOf(const QString &server, const QString &queue, const QString &suffix) const
{
    return u"%1/%2/%3%4"_s.arg(m_folder, fileName(server),
                               fileName(foldedQueueName(queueOfInstance(queue))), suffix);
}

std::optional<FetchedPrinter> PpdCache::find(const QString &server, const QString &queue) const
{
    const QString description = pathOf(server, queue, kEntrySuffix);
    const QJsonObject said =
        QJsonDocument::fromJson(contentOf(description, kLargestDescription)).object();
    const QByteArray hash = said.value(kHash).toString().toLatin1();
    if (!said.contains(kUri) || !isHash(hash))
        return std::nullopt;
    const QString path = pathOf(server, queue, ppdSuffix(hash));
    if (hashOfPpd(contentOf(path, kLargestPpd)) != hash) {
        QFile::remove(description);
        return std::nullopt;
    }
    Printer printer;
    printer.name = queue;
    printer.origin = PrinterOrigin::Queue;
    printer.description = said.value(kDescription).toString();
    printer.location = said.value(kLocation).toString();
    printer.makeAndModel = said.value(kMakeAndModel).toString();
    printer.uri = said.value(kUri).toString();
    printer.deviceUri = said.value(kDeviceUri).toString();
    printer.isClass = said.value(kIsClass).toBool();
    noteUse(path);
    return FetchedPrinter{printer, std::make_shared<const PpdCopy>(PpdCopy{path, hash}),
                          fromJson(said.value(kDefaults).toArray())};
}

SharedPpd PpdCache::store(const QString &server, const QueueDetails &details) const
{
    const Printer &printer = details.printer;
    const QByteArray &ppd = details.ppd;
    const QByteArray &hash = details.ppdHash;
    const QString path = pathOf(server, printer.name, ppdSuffix(hash));
    // What lies there already was opened before it was stored.
    const bool isThere = !ppd.isEmpty() && contentOf(path, kLargestPpd) == ppd;
    if (!isThere && !isPpd(ppd))
        return nullptr;
    if (!QDir().mkpath(QFileInfo(path).path()))
        return nullptr;
    // Where a printer stands, and how it is reached, is nobody else's business.
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QJsonObject said{
        {kDescription, printer.description},   {kLocation, printer.location},
        {kMakeAndModel, printer.makeAndModel}, {kUri, printer.uri},
        {kDeviceUri, printer.deviceUri},       {kIsClass, printer.isClass},
        {kHash, QString::fromLatin1(hash)},    {kDefaults, toJson(details.defaults)}};
    if (isThere)
        noteUse(path);
    if (!isThere && !save(path, ppd))
        return nullptr;
    const QString entry = pathOf(server, printer.name, kEntrySuffix);
    const QByteArray text = QJsonDocument(said).toJson();
    if (contentOf(entry, kLargestDescription) != text && !save(entry, text))
        return nullptr;
    removeFormerPpds(server, printer.name, path);
    return std::make_shared<const PpdCopy>(PpdCopy{path, hash});
}

void PpdCache::remove(const QString &server, const QString &queue) const
{
    QFile::remove(pathOf(server, queue, kEntrySuffix));
    removeFormerPpds(server, queue, {});
}

// But for those that an open window may still print with, and `current`.
void PpdCache::removeFormerPpds(const QString &server, const QString &queue,
                                const QString &current) const
{
    const QString pattern = pathOf(server, queue, "-"_L1 + QString(kHashInName, u'?') + ".ppd"_L1);
    const QDateTime oldest = QDateTime::currentDateTime().addDays(-kDaysAfterUse);
    const QFileInfoList ppds =
        QFileInfo(pattern).dir().entryInfoList({QFileInfo(pattern).fileName()}, QDir::Files);
    for (const QFileInfo &ppd : ppds) {
        if (ppd.filePath() != current && ppd.lastModified() < oldest)
            QFile::remove(ppd.filePath());
    }
}

} // namespace corvana
