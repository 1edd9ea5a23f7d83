#include "dialog/printers/OwnInstances.h"

#include <functional>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QStandardPaths>

#include "dialog/printers/SharedFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcOwnInstances, "corvana.dialog.printers.instances", QtWarningMsg)

namespace {

constexpr QLatin1StringView kVersion{"version"};
constexpr QLatin1StringView kInstances{"instances"};
constexpr QLatin1StringView kSettings{"settings"};

QJsonObject instancesIn(const QByteArray &content)
{
    return QJsonDocument::fromJson(content).object().value(kInstances).toObject();
}

// What a later version has written beside it stays.
QByteArray withInstances(const QByteArray &content, const QJsonObject &instances)
{
    QJsonObject whole = QJsonDocument::fromJson(content).object();
    if (!whole.contains(kVersion))
        whole[kVersion] = 1;
    whole[kInstances] = instances;
    return QJsonDocument(whole).toJson();
}

// What is damaged is about to be replaced; whoever can mend it finds it beside the new file.
void keepDamagedFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QByteArray content = file.read(kMostBytesOfSharedFile);
    file.close();
    if (content.trimmed().isEmpty() || QJsonDocument::fromJson(content).isObject())
        return;
    const QString kept = path + u".damaged"_s;
    QFile::remove(kept);
    if (QFile::rename(path, kept))
        qCWarning(lcOwnInstances) << "the damaged file was kept as" << kept;
}

QString change(const QString &path, const std::function<void(QJsonObject *)> &edit)
{
    QDir().mkpath(QFileInfo(path).path());
    keepDamagedFile(path);
    const auto changed = [edit](const QByteArray &content) {
        QJsonObject instances = instancesIn(content);
        edit(&instances);
        return withInstances(content, instances);
    };
    // Nobody but this program writes the file, always under the lock.
    return SharedFile(path).change({changed, nullptr});
}

} // namespace

QString OwnInstances::usualPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           u"/corvana-print/instances.json"_s;
}

QMap<QString, QString> OwnInstances::read() const
{
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject instances = instancesIn(file.read(kMostBytesOfSharedFile));
    QMap<QString, QString> names;
    for (auto it = instances.constBegin(); it != instances.constEnd(); ++it)
        names.insert(it.key(), it.value().toObject().value(kSettings).toString());
    return names;
}

QString OwnInstances::note(const QString &name, const QString &settings) const
{
    return change(m_path, [&](QJsonObject *instances) {
        QJsonObject instance = instances->value(name).toObject();
        instance[kSettings] = settings;
        instances->insert(name, instance);
    });
}

QString OwnInstances::forget(const QString &name) const
{
    return change(m_path, [&](QJsonObject *instances) { instances->remove(name); });
}

} // namespace corvana
