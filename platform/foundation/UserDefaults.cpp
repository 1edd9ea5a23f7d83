#include "platform/foundation/UserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>

namespace corvana {

Q_LOGGING_CATEGORY(lcDefaults, "corvana.foundation.defaults", QtWarningMsg)

namespace {

// What cannot be read is about to be replaced; whoever can mend it finds it beside the new file.
void keepDamagedFile(const QString &file)
{
    if (!QFileInfo::exists(file) ||
        QSettings(file, QSettings::IniFormat).status() == QSettings::NoError)
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
    // QSettings would answer an unreadable file as an empty one.
    if (QFileInfo::exists(file) && !QFileInfo(file).isReadable()) {
        qCWarning(lcDefaults) << file << "cannot be read";
        return std::nullopt;
    }
    const QSettings settings(file, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError) {
        qCWarning(lcDefaults) << file << "cannot be read: status" << settings.status();
        return std::nullopt;
    }
    QVariantMap domain;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        domain.insert(key, settings.value(key));
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
