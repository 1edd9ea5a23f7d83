#include "dialog/printers/OwnInstances.h"

#include <algorithm>
#include <functional>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QSaveFile>
#include <QStandardPaths>

#include "dialog/printers/SharedFile.h"
#include "dialog/printers/UserQueuesLine.h"
#include "platform/foundation/WholeFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcOwnInstances, "corvana.dialog.printers.instances", QtWarningMsg)

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OwnInstances)
};

constexpr int kVersionOfHere = 1;
constexpr QLatin1StringView kVersion{"version"};
constexpr QLatin1StringView kInstances{"instances"};
constexpr QLatin1StringView kSettings{"settings"};
constexpr QLatin1StringView kModel{"model"};
constexpr QLatin1StringView kForAll{"forAll"};
constexpr QLatin1StringView kWritten{"written"};
// The last one, the one before, which still stands there where the last did not get there, and one
// of which it is not known whether it did.
constexpr qsizetype kMostWritten = 3;
// Files that were damaged, beside the one in use.
constexpr int kMostDamaged = 100;

QJsonObject instancesIn(const QByteArray &content)
{
    return QJsonDocument::fromJson(content).object().value(kInstances).toObject();
}

// What a later version has written beside it stays.
QByteArray withInstances(const QByteArray &content, const QJsonObject &instances)
{
    QJsonObject whole = QJsonDocument::fromJson(content).object();
    if (!whole.contains(kVersion))
        whole[kVersion] = kVersionOfHere;
    whole[kInstances] = instances;
    return QJsonDocument(whole).toJson();
}

// What is not of the form that this program writes is nothing that it may write over.
bool isDamaged(const QByteArray &content)
{
    if (content.trimmed().isEmpty())
        return false;
    const QJsonDocument whole = QJsonDocument::fromJson(content);
    const QJsonValue version = whole.object().value(kVersion);
    const QJsonValue instances = whole.object().value(kInstances);
    const auto isObject = [](const QJsonValue &one) { return one.isObject(); };
    const QJsonObject all = instances.toObject();
    return !whole.isObject() || !(version.isUndefined() || version.isDouble()) ||
           !(instances.isUndefined() || instances.isObject()) ||
           !std::all_of(all.constBegin(), all.constEnd(), isObject);
}

bool isOfLaterVersion(const QByteArray &content)
{
    return QJsonDocument::fromJson(content).object().value(kVersion).toDouble() > kVersionOfHere;
}

// Empty where there is none.
QByteArray contentOf(const QString &path)
{
    QFile file(path);
    // What is no file may keep whoever opens it waiting.
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
               ? file.read(kMostBytesOfSharedFile)
               : QByteArray();
}

// What is damaged is about to be replaced; whoever can mend it finds it beside the new file.
bool keepDamaged(const QString &path, const QByteArray &content)
{
    // Another one may have been kept before.
    QString kept = path + u".damaged"_s;
    for (int number = 2; QFileInfo::exists(kept) && contentOf(kept) != content; ++number) {
        if (number > kMostDamaged)
            return false;
        kept = path + u".damaged.%1"_s.arg(number);
    }
    QSaveFile file(kept);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !commitWhole(file))
        return false;
    qCWarning(lcOwnInstances) << "the damaged file was kept as" << kept;
    return true;
}

QString change(const QString &path, const std::function<void(QJsonObject *)> &edit)
{
    QDir().mkpath(QFileInfo(path).path());
    QString lost;
    const auto changed = [&](const QByteArray &content) {
        lost.clear();
        // Under the lock, so that it is what stands there, and nobody's new file.
        if (isOfLaterVersion(content))
            lost = QCoreApplication::translate("PresetFile",
                                               "it was written by a later version of this program");
        else if (isDamaged(content) && !keepDamaged(path, content))
            lost =
                QCoreApplication::translate("SharedFile", "nothing can be written into its folder");
        if (!lost.isEmpty())
            return content;
        QJsonObject instances = instancesIn(content);
        edit(&instances);
        return withInstances(content, instances);
    };
    // Nobody but this program writes the file, always under the lock.
    const QString problem = SharedFile(path).change({changed, nullptr});
    if (problem.isEmpty() && !lost.isEmpty())
        return QCoreApplication::translate("SharedFile",
                                           "“%1” cannot be written: %2. It was not changed.")
            .arg(path, lost);
    return problem;
}

// As it stands in lpoptions, without a name.
QString asLine(const QList<JobOption> &options)
{
    return QString::fromUtf8(lineOf(false, u"-"_s, options));
}

QList<JobOption> optionsOf(const QString &line)
{
    const QByteArray bytes = line.toUtf8();
    const std::optional<UserQueuesLine> read = userQueuesLine(bytes);
    return read ? optionsOfLine(*read) : QList<JobOption>();
}

OwnInstance instanceOf(const QJsonObject &object)
{
    OwnInstance instance;
    instance.settings = object.value(kSettings).toString();
    if (object.value(kModel).isString())
        instance.model = object.value(kModel).toString();
    instance.isForAll = object.value(kForAll).toBool();
    const QJsonArray written = object.value(kWritten).toArray();
    for (const QJsonValue &line : written) {
        if (line.isString() && instance.written.size() < kMostWritten)
            instance.written += optionsOf(line.toString());
    }
    return instance;
}

const JobOption *find(const QString &name, const QList<JobOption> &options)
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const JobOption &option) { return option.name == name; });
    return found == options.cend() ? nullptr : &*found;
}

// Servers have defaults of IPP's attributes, whose names are in small letters.
bool mayBeLeftOut(const JobOption &option)
{
    return option.name == option.name.toLower();
}

bool isSame(const QList<JobOption> &found, const QList<JobOption> &written,
            const QList<JobOption> &ofQueue)
{
    const auto isThere = [&](const JobOption &option) {
        const JobOption *same = find(option.name, found);
        return same ? same->value == option.value : mayBeLeftOut(option);
    };
    const auto isKnown = [&](const JobOption &option) {
        return find(option.name, written) || ofQueue.contains(option);
    };
    return std::all_of(written.cbegin(), written.cend(), isThere) &&
           std::all_of(found.cbegin(), found.cend(), isKnown);
}

} // namespace

bool OwnInstance::isAsWritten(const QList<JobOption> &found, const QList<JobOption> &ofQueue) const
{
    // Earlier versions have noted the name only.
    return written.isEmpty() ||
           std::any_of(written.cbegin(), written.cend(),
                       [&](const QList<JobOption> &one) { return isSame(found, one, ofQueue); });
}

QString OwnInstances::usualPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           u"/corvana-print/instances.json"_s;
}

QMap<QString, OwnInstance> OwnInstances::read() const
{
    const QByteArray content = contentOf(m_path);
    QMap<QString, OwnInstance> all;
    if (isDamaged(content) || isOfLaterVersion(content))
        return all;
    const QJsonObject instances = instancesIn(content);
    for (auto it = instances.constBegin(); it != instances.constEnd(); ++it)
        all.insert(it.key(), instanceOf(it.value().toObject()));
    return all;
}

QString OwnInstances::damage() const
{
    const QByteArray content = contentOf(m_path);
    return isDamaged(content) && !isOfLaterVersion(content)
               ? Texts::tr("“%1” is damaged. What was written for other programs before does not "
                           "follow its presets any more.")
                     .arg(m_path)
               : QString();
}

QString OwnInstances::note(const QMap<QString, QList<JobOption>> &options,
                           const OwnInstance &instance) const
{
    return change(m_path, [&](QJsonObject *instances) {
        for (auto it = options.cbegin(); it != options.cend(); ++it) {
            QJsonObject object = instances->value(it.key()).toObject();
            object[kSettings] = instance.settings;
            object.remove(kModel);
            if (instance.model)
                object[kModel] = *instance.model;
            object[kForAll] = instance.isForAll;
            QJsonArray written = object.value(kWritten).toArray();
            written.prepend(asLine(*it));
            while (written.size() > kMostWritten)
                written.removeLast();
            object[kWritten] = written;
            instances->insert(it.key(), object);
        }
    });
}

QString OwnInstances::noteFailure(const QStringList &names) const
{
    return change(m_path, [&](QJsonObject *instances) {
        for (const QString &name : names) {
            QJsonObject object = instances->value(name).toObject();
            QJsonArray written = object.value(kWritten).toArray();
            if (written.size() < 2)
                continue;
            written.insert(1, written.takeAt(0));
            object[kWritten] = written;
            instances->insert(name, object);
        }
    });
}

QString OwnInstances::rename(const QStringList &names, const QString &settings) const
{
    return change(m_path, [&](QJsonObject *instances) {
        for (const QString &name : names) {
            QJsonObject object = instances->value(name).toObject();
            object[kSettings] = settings;
            instances->insert(name, object);
        }
    });
}

QString OwnInstances::forget(const QStringList &names) const
{
    return change(m_path, [&](QJsonObject *instances) {
        for (const QString &name : names)
            instances->remove(name);
    });
}

} // namespace corvana
