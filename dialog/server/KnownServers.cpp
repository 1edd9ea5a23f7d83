#include "dialog/server/KnownServers.h"

#include <chrono>
#include <map>
#include <mutex>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QLoggingCategory>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include "platform/foundation/WholeFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_DECLARE_LOGGING_CATEGORY(lcServer)

namespace {

using namespace std::chrono_literals;

// A file of a few lines is written in no time; a lock that lasts is one that was left behind.
constexpr auto kLockPatience = 2s;
constexpr auto kAbandonedLock = 10s;
constexpr char kKind[] = "sha256:";
constexpr qsizetype kKeyLength = 32; // bytes

// Lines that are not understood are somebody's, and stay.
struct Lines
{
    std::map<QByteArray, QByteArray> keys; // by server
    QByteArray others;
};

// One word, whatever the name of a host or the path of a socket contains.
QByteArray nameOf(const QString &server)
{
    return QUrl::toPercentEncoding(server, ":/[]");
}

std::optional<QByteArray> readKey(const QByteArray &word)
{
    const QByteArray digits = word.mid(static_cast<qsizetype>(qstrlen(kKind)));
    const QByteArray key = QByteArray::fromHex(digits);
    if (!word.startsWith(kKind) || key.size() != kKeyLength || key.toHex() != digits)
        return std::nullopt;
    return key;
}

// Errors: nothing when there is a file that cannot be read.
std::optional<Lines> readLines(const QString &path)
{
    Lines lines;
    QFile file(path);
    if (!file.exists())
        return lines;
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcServer).noquote() << path << "cannot be read:" << file.errorString();
        return std::nullopt;
    }
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const QList<QByteArray> words = line.split(' ');
        const auto key = words.size() == 2 ? readKey(words.at(1)) : std::nullopt;
        if (key)
            lines.keys[words.at(0)] = *key;
        else if (!line.isEmpty())
            lines.others += line + '\n';
    }
    return lines;
}

bool writeLines(const QString &path, const Lines &lines)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(lines.others);
    for (const auto &[server, key] : lines.keys)
        file.write(server + ' ' + kKind + key.toHex() + '\n');
    return commitWhole(file);
}

std::optional<QByteArray> keyIn(const Lines &lines, const QString &server)
{
    const auto found = lines.keys.find(nameOf(server));
    return found == lines.keys.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

KnownServers::KnownServers()
    : m_path(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
             u"/corvana-print/known-servers"_s)
{
}

std::optional<QByteArray> KnownServers::key(const QString &server) const
{
    const std::optional<Lines> lines = readLines(m_path);
    return lines ? keyIn(*lines, server) : std::nullopt;
}

KnownServers::Outcome KnownServers::remember(const QString &server,
                                             const std::optional<QByteArray> &former,
                                             const QByteArray &key) const
{
    // Connections of this program wait for each other here; the file is for other programs, and
    // whoever waits for it does so in ever longer steps.
    static std::mutex ownConnections;
    const std::scoped_lock ownLock(ownConnections);
    QDir().mkpath(QFileInfo(m_path).path());
    QLockFile lock(m_path + u".lock"_s);
    lock.setStaleLockTime(kAbandonedLock);
    if (!lock.tryLock(kLockPatience)) {
        qCWarning(lcServer).noquote() << m_path << "cannot be locked";
        return Outcome::NotKept;
    }
    std::optional<Lines> lines = readLines(m_path);
    if (!lines)
        return Outcome::NotKept;
    const std::optional<QByteArray> noted = keyIn(*lines, server);
    if (noted == key)
        return Outcome::Kept;
    if (noted && noted != former)
        return Outcome::KnownOtherwise;
    lines->keys[nameOf(server)] = key;
    if (writeLines(m_path, *lines))
        return Outcome::Kept;
    qCWarning(lcServer).noquote() << m_path << "cannot be written";
    return Outcome::NotKept;
}

} // namespace corvana
