#include "dialog/presets/PresetStore.h"

#include <algorithm>
#include <cerrno>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include "dialog/presets/PresetFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetStore)
};

constexpr QLatin1StringView kSuffix = ".json"_L1;
// Every name of a model's folder has a number at its end, so that none is called like this one.
constexpr QLatin1StringView kForAll = "all-printers"_L1;
// Nobody holds the lock for longer than one small file takes. Units: milliseconds.
constexpr int kPatience = 5000;

QString folderName(const QString &model)
{
    return model.isEmpty() ? QString(kForAll) : fileNameFor(model);
}

QString damaged(const QString &path, const QString &why)
{
    return Texts::tr("“%1” is damaged and is left as it is: %2.")
        .arg(QDir::toNativeSeparators(path), why);
}

// Whether what an administrator named is believed; else that is said. Nothing is to be said of what
// is not there: a folder may come from a server that is away.
bool isBelieved(const QString &path, TrustedOwners owners, PresetListing *all)
{
    if (!QFileInfo::exists(path))
        return false;
    const std::optional<PolicyProblem> problem = whyNotTrusted(path, owners);
    if (problem)
        all->problems += problem->text();
    return !problem;
}

// The presets of one folder; `owners`: of an administrator's, nothing for the user's own.
void read(const QString &place, const QString &name, std::optional<TrustedOwners> owners,
          PresetListing *all)
{
    const QString folder = name.isEmpty() ? place : place + u'/' + name;
    if (place.isEmpty() || !QFileInfo(folder).isDir() ||
        (owners && !isBelieved(folder, *owners, all)))
        return;
    const QStringList files =
        QDir(folder).entryList({u"*"_s + kSuffix}, QDir::Files | QDir::System, QDir::Name);
    for (const QString &file : files.mid(0, kMostPresets)) {
        const QString path = folder + u'/' + file;
        // What was opened is looked at, so that nobody puts another file there meanwhile.
        std::optional<PolicyProblem> distrust;
        const auto isTrusted = [&](int descriptor) {
            if (owners)
                distrust = whyNotTrusted(descriptor, path, *owners);
            return !distrust;
        };
        const PresetReading reading = readPresetFile(path, isTrusted);
        if (distrust)
            all->problems += distrust->text();
        if (!reading.problem.isEmpty())
            all->problems += damaged(path, reading.problem);
        if (reading.preset)
            all->presets += StoredPreset{*reading.preset, path, !owners, {}};
    }
}

// Of a model's folder, only what says that it is of this model: two models may be told apart by
// nothing but the number in the folder's name, and anybody can put a file there.
void keepModel(PresetListing *listing, const QString &model)
{
    listing->presets.removeIf(
        [&](const StoredPreset &stored) { return stored.preset.model != model; });
}

// Answers the problem, with which nothing happens along.
QString then(const PresetStore::Along &along, const QString &problem)
{
    if (problem.isEmpty() && along)
        along();
    return problem;
}

// One that a user keeps under the name of an administrator's hides it from nobody.
void nameApart(QList<StoredPreset> *presets)
{
    const auto isTaken = [&](const StoredPreset &other) {
        return std::any_of(presets->cbegin(), presets->cend(), [&](const StoredPreset &own) {
            const bool isForSame = own.preset.model.isEmpty() || other.preset.model.isEmpty() ||
                                   own.preset.model == other.preset.model;
            return own.isOwn && isForSame && own.preset.name == other.preset.name;
        });
    };
    for (StoredPreset &stored : *presets) {
        const QString inFile = stored.preset.name;
        while (!stored.isOwn && isTaken(stored)) {
            stored.preset.name = nameForEverybody(stored.preset.name);
            stored.nameInFile = inFile;
        }
    }
}

void sortByName(QList<StoredPreset> *presets)
{
    std::stable_sort(presets->begin(), presets->end(),
                     [](const StoredPreset &a, const StoredPreset &b) {
                         return QString::localeAwareCompare(a.preset.name, b.preset.name) < 0;
                     });
}

} // namespace

PresetPlaces PresetPlaces::ofUser()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
            u"/corvana-print/presets"_s};
}

std::optional<StoredPreset> PresetListing::find(const QString &name) const
{
    auto found = std::find_if(presets.cbegin(), presets.cend(), [&](const StoredPreset &stored) {
        return stored.preset.name == name;
    });
    if (found == presets.cend())
        found = std::find_if(presets.cbegin(), presets.cend(), [&](const StoredPreset &stored) {
            const QString inFile =
                stored.nameInFile.isNull() ? stored.preset.name : stored.nameInFile;
            return !stored.isOwn &&
                   (name == nameForEverybody(inFile) || name == inFile + u" (for everybody)"_s);
        });
    return found == presets.cend() ? std::nullopt : std::optional(*found);
}

QString nameForEverybody(const QString &name)
{
    return Texts::tr("%1 (for everybody)").arg(name);
}

QStringList PresetListing::names() const
{
    QStringList names;
    for (const StoredPreset &stored : presets)
        names += stored.preset.name;
    return names;
}

// Whoever changes a file holds it, so that a look at what is there and the change are one step.
class PresetStore::Lock
{
public:
    explicit Lock(const QString &folder) : m_file(folder + u"/.lock"_s)
    {
        if (folder.isEmpty()) {
            m_problem = Texts::tr("There is no place to keep presets.");
            return;
        }
        errno = 0;
        if (!QDir().mkpath(folder)) {
            m_problem = notWritable(folder, qt_error_string(errno));
            return;
        }
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (m_file.tryLock(kPatience))
            return;
        m_problem = m_file.error() == QLockFile::LockFailedError
                        ? Texts::tr("Another program is writing presets. Try again.")
                        : notWritable(folder, QFileInfo(folder).isWritable()
                                                  ? Texts::tr("no space left, or no permission")
                                                  : qt_error_string(EACCES));
    }
    const QString &problem() const { return m_problem; }

private:
    static QString notWritable(const QString &folder, const QString &why)
    {
        return Texts::tr("“%1” cannot be written: %2.").arg(QDir::toNativeSeparators(folder), why);
    }

    QLockFile m_file;
    QString m_problem;
};

PresetListing PresetStore::list(const QString &model) const
{
    PresetListing listing;
    QList<StoredPreset> all;
    QStringList models{model};
    if (!model.isEmpty())
        models += QString();
    for (const QString &one : std::as_const(models)) {
        PresetListing part;
        read(m_places.own, folderName(one), {}, &part);
        // An administrator may put files anywhere; each says itself which printers it is for.
        for (const QString &place : m_places.forEverybody) {
            if (!isBelieved(place, m_places.owners, &part))
                continue; // one sentence for all that is in it
            for (const QString &folder : {folderName(one), QString()})
                read(place, folder, m_places.owners, &part);
        }
        keepModel(&part, one);
        all += part.presets;
        for (const QString &problem : std::as_const(part.problems)) {
            if (!listing.problems.contains(problem))
                listing.problems += problem;
        }
    }
    nameApart(&all);
    for (const QString &one : std::as_const(models)) {
        PresetListing part{all, {}};
        keepModel(&part, one);
        sortByName(&part.presets);
        for (const StoredPreset &stored : std::as_const(part.presets)) {
            if (!listing.names().contains(stored.preset.name))
                listing.presets += stored;
        }
    }
    return listing;
}

PresetListing PresetStore::listAll() const
{
    PresetListing listing;
    const auto readBelow = [&](const QString &place, std::optional<TrustedOwners> owners) {
        read(place, {}, owners, &listing);
        const QStringList folders = QDir(place).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &folder : folders.mid(0, kMostPresets))
            read(place, folder, owners, &listing);
    };
    readBelow(m_places.own, {});
    for (const QString &place : m_places.forEverybody) {
        if (isBelieved(place, m_places.owners, &listing))
            readBelow(place, m_places.owners);
    }
    nameApart(&listing.presets);
    sortByName(&listing.presets);
    return listing;
}

QString PresetStore::folderOf(const QString &model) const
{
    return m_places.own + u'/' + folderName(model);
}

QString PresetStore::fileOf(const Preset &preset) const
{
    const QString usual =
        folderOf(preset.model) + u'/' + fileNameFor(preset.name) + QString(kSuffix);
    if (QFileInfo::exists(usual))
        return usual;
    PresetListing there;
    read(m_places.own, folderName(preset.model), {}, &there);
    keepModel(&there, preset.model);
    const std::optional<StoredPreset> found = there.find(preset.name);
    return found ? found->path : usual;
}

// Under the lock.
QString PresetStore::write(const PresetReplacing &settings, Replacing replacing,
                           Preset *written) const
{
    const Preset &preset = settings.preset;
    const QString path = fileOf(preset);
    const PresetReading former = readPresetFile(path);
    if (!former.problem.isEmpty())
        return damaged(path, former.problem);
    if (former.preset && replacing == Replacing::No)
        return Texts::tr("There is a preset of the name “%1” already.").arg(preset.name);
    *written = preset;
    if (former.preset) {
        if (const QString problem = settings.over(*former.preset, written); !problem.isEmpty())
            return problem;
    }
    return writePresetFile(path, *written);
}

QString PresetStore::save(const Preset &preset, Replacing replacing, const Along &along) const
{
    Preset written;
    return save(PresetReplacing{.preset = preset, .isWhole = true}, replacing, &written, along);
}

QString PresetStore::save(const PresetReplacing &settings, Replacing replacing, Preset *written,
                          const Along &along) const
{
    if (const QString problem = problemOfNewPresetName(settings.preset.name); !problem.isEmpty())
        return problem;
    const Lock lock(m_places.own);
    return lock.problem().isEmpty() ? then(along, write(settings, replacing, written))
                                    : lock.problem();
}

QString PresetStore::rename(const Preset &preset, const QString &name, const Along &along) const
{
    if (const QString problem = problemOfNewPresetName(name);
        !problem.isEmpty() || name == preset.name)
        return problem;
    const Lock lock(m_places.own);
    return lock.problem().isEmpty() ? then(along, renameLocked(preset, name)) : lock.problem();
}

QString PresetStore::renameLocked(const Preset &preset, const QString &name) const
{
    // As it is by now: another window may have changed it.
    const QString path = fileOf(preset);
    const PresetReading now = readPresetFile(path);
    if (!now.preset)
        return now.problem.isEmpty()
                   ? Texts::tr("There is no preset of the name “%1” any more.").arg(preset.name)
                   : damaged(path, now.problem);
    Preset renamed = *now.preset;
    renamed.name = name;
    Preset written;
    if (const QString problem = write(PresetReplacing{.preset = renamed}, Replacing::No, &written);
        !problem.isEmpty())
        return problem;
    QFile former(path);
    return former.remove() ? QString()
                           : Texts::tr("“%1” cannot be removed: %2.")
                                 .arg(QDir::toNativeSeparators(path), former.errorString());
}

std::optional<QString> PresetStore::whileSame(const Preset &preset, const Along &along) const
{
    const Lock lock(m_places.own);
    if (!lock.problem().isEmpty())
        return lock.problem();
    if (readPresetFile(fileOf(preset)).preset != preset)
        return std::nullopt;
    along();
    return QString();
}

QString PresetStore::remove(const Preset &preset, const Along &along) const
{
    const Lock lock(m_places.own);
    return lock.problem().isEmpty() ? then(along, removeLocked(preset)) : lock.problem();
}

QString PresetStore::removeLocked(const Preset &preset) const
{
    const QString path = fileOf(preset);
    QFile file(path);
    if (!file.exists() || file.remove())
        return {};
    return Texts::tr("“%1” cannot be removed: %2.")
        .arg(QDir::toNativeSeparators(path), file.errorString());
}

} // namespace corvana
