#include "platform/foundation/UserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace corvana {

Q_LOGGING_CATEGORY(lcDefaults, "corvana.foundation.defaults", QtWarningMsg)

namespace {

// What a file holds now; nothing when it cannot be read. QSettings keeps files by name as long as
// the process lives: one that was damaged reads as empty the second time, and changes that could
// not be written pass for written. A copy has a name of its own.
std::optional<QVariantMap> readAnew(const QString &name)
{
    QFile file(name);
    QTemporaryFile copy;
    if (!file.open(QIODevice::ReadOnly) || !copy.open())
        return std::nullopt;
    const QByteArray content = file.readAll();
    if (copy.write(content) != content.size() || !copy.flush())
        return std::nullopt;
    const QSettings settings(copy.fileName(), QSettings::IniFormat);
    if (settings.status() != QSettings::NoError)
        return std::nullopt;
    QVariantMap domain;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        domain.insert(key, settings.value(key));
    return domain;
}

// What cannot be read is about to be replaced; whoever can mend it finds it beside the new file.
void keepDamagedFile(const QString &file)
{
    if (!QFileInfo::exists(file) || readAnew(file))
        return;
    const QString kept = file + QStringLiteral(".damaged");
    QFile::remove(kept);
    if (QFile::rename(file, kept))
        qCWarning(lcDefaults) << "the damaged preferences were kept as" << kept;
}

} // namespace

UserDefaults &UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults;
    return defaults;
}

QString UserDefaults::fileOfDomain(const QString &name)
{
    if (name.isEmpty() || name.contains(u'/') || name.startsWith(u'.'))
        return {};
    return QStringLiteral("%1/corvana-print/%2.ini")
        .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), name);
}

std::optional<QVariantMap> UserDefaults::persistentDomainForName(const QString &name) const
{
    const QString file = fileOfDomain(name);
    if (file.isNull())
        return std::nullopt;
    if (!QFileInfo::exists(file))
        return QVariantMap();
    std::optional<QVariantMap> domain = readAnew(file);
    if (!domain)
        qCWarning(lcDefaults) << file << "cannot be read";
    return domain;
}

bool UserDefaults::setPersistentDomain_forName(const QVariantMap &domain, const QString &name)
{
    const QString file = fileOfDomain(name);
    if (file.isNull())
        return false;
    keepDamagedFile(file);
    QSettings settings(file, QSettings::IniFormat);
    settings.clear();
    for (auto entry = domain.cbegin(); entry != domain.cend(); ++entry)
        settings.setValue(entry.key(), entry.value());
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        qCWarning(lcDefaults) << file << "cannot be written: status" << settings.status();
        return false;
    }
    return true;
}

} // namespace corvana
