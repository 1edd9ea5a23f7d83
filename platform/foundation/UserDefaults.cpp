#include "platform/foundation/UserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcDefaults, "corvana.foundation.defaults", QtWarningMsg)

namespace {

// Far more than any program here keeps; of what is larger QSettings makes many times its size.
constexpr qint64 kLargest = 4 * 1024 * 1024; // bytes

enum class State {
    Read,
    Damaged,    // nobody can make sense of it
    Unreadable, // it may be sound: no permission, no room for a copy
};
struct Reading
{
    State state;
    QVariantMap domain;
};

// What a file holds now. QSettings keeps files by name as long as the process lives: one that was
// damaged reads as empty the second time, and changes that could not be written pass for written.
// A copy has a name of its own.
Reading readAnew(const QString &name)
{
    QFile file(name);
    if (!file.exists())
        return {State::Read, {}};
    if (QFileInfo(name).isDir())
        return {State::Damaged, {}}; // no file at all
    QTemporaryFile copy;
    if (!file.open(QIODevice::ReadOnly) || !copy.open())
        return {State::Unreadable, {}};
    const QByteArray content = file.read(kLargest + 1);
    if (content.size() > kLargest)
        return {State::Damaged, {}};
    if (copy.write(content) != content.size() || !copy.flush())
        return {State::Unreadable, {}};
    const QSettings settings(copy.fileName(), QSettings::IniFormat);
    Reading reading{State::Read, {}};
    const QStringList keys = settings.allKeys();
    // A section is looked at when its keys are asked for, and damage in it is not known before.
    if (settings.status() != QSettings::NoError)
        return {State::Damaged, {}};
    for (const QString &key : keys)
        reading.domain.insert(key, settings.value(key));
    return reading;
}

// What is damaged is about to be replaced; whoever can mend it finds it beside the new file.
void keepDamagedFile(const QString &file)
{
    const QString kept = file + u".damaged"_s;
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
    return u"%1/corvana-print/%2.ini"_s.arg(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), name);
}

std::optional<QVariantMap> UserDefaults::persistentDomainForName(const QString &name) const
{
    const QString file = fileOfDomain(name);
    if (file.isNull())
        return std::nullopt;
    const Reading reading = readAnew(file);
    if (reading.state == State::Read)
        return reading.domain;
    qCWarning(lcDefaults) << file << "cannot be read";
    return std::nullopt;
}

bool UserDefaults::setPersistentDomain_forName(const QVariantMap &domain, const QString &name)
{
    const QString file = fileOfDomain(name);
    if (file.isNull())
        return false;
    switch (readAnew(file).state) {
    case State::Read:
        break;
    case State::Damaged:
        keepDamagedFile(file);
        break;
    case State::Unreadable: // what was not read must not be replaced
        qCWarning(lcDefaults) << file << "cannot be read and is not written";
        return false;
    }
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
