#pragma once

#include <functional>
#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/policy/FileTrust.h"
#include "dialog/presets/Preset.h"
#include "dialog/presets/PresetReplacing.h"

namespace corvana {

/// Where presets lie.
struct PresetPlaces
{
    QString own;                ///< the user's; one folder a model below it
    QStringList forEverybody{}; ///< an administrator's, there or in it itself; only read
    TrustedOwners owners = TrustedOwners::Root; ///< of those; what others may write is not read

    bool operator==(const PresetPlaces &) const = default;
    /// Those of this user: $XDG_DATA_HOME/corvana-print/presets.
    static PresetPlaces ofUser();
};

/// A preset and where it lies.
struct StoredPreset
{
    Preset preset;
    QString path;
    bool isOwn = true; ///< else the administrator's, which nobody changes here
    /// What its file says, where it is listed under another name: one of the user's own has that.
    QString nameInFile{};

    bool operator==(const StoredPreset &) const = default;
};

/// "Reports (for everybody)": how a preset of an administrator's is called where one of the user's
/// own has its name.
QString nameForEverybody(const QString &name);

/// What there is, and what cannot be read.
struct PresetListing
{
    QList<StoredPreset> presets{};
    /// One sentence for each file that is damaged, with its path. It stays where it is, as it is.
    /// And one for what is an administrator's and could have been written by others.
    QStringList problems{};

    bool operator==(const PresetListing &) const = default;
    /// The preset of that name; nothing when there is none. One for everybody is also found as
    /// nameForEverybody(), in English too, whether it is listed so or not.
    std::optional<StoredPreset> find(const QString &name) const;
    QStringList names() const;
};

/// The presets of a user and those of an administrator for everybody, one file each. Several
/// programs may use them at once. A value; each operation reads or writes files, and so does not
/// belong on the GUI thread where it can be avoided.
class PresetStore
{
public:
    enum class Replacing { No, Yes };

    explicit PresetStore(PresetPlaces places = PresetPlaces::ofUser()) : m_places(std::move(places))
    {
    }

    /// Those for the printers of a model, then those for all printers; each by name. A name of the
    /// user's own means that; an administrator's of the same name is nameForEverybody(). Of several
    /// of a user's, or of an administrator's, only the first is listed: the model's before those
    /// for all. At most kMostPresets.
    PresetListing list(const QString &model) const;
    /// Those of all models.
    PresetListing listAll() const;

    /// What becomes of other files along with a preset, such as lpoptions. It happens under the
    /// same lock, once the preset is kept, renamed or removed, so that several windows leave the
    /// preset and those files at the same state.
    using Along = std::function<void()>;

    /// Keeps a preset. What a later version of the program has written into the file that is
    /// replaced stays in it. Errors: why it was not kept; a file that is damaged is never replaced.
    QString save(const Preset &preset, Replacing replacing, const Along &along = {}) const;
    /// The same of settings that may replace a preset of that name, by what it says under the lock.
    /// `written`: the preset as it is then.
    QString save(const PresetReplacing &settings, Replacing replacing, Preset *written,
                 const Along &along = {}) const;
    /// Errors: why it was not renamed; then everything is as it was.
    QString rename(const Preset &preset, const QString &name, const Along &along = {}) const;
    /// Does something with a preset of the user's own for as long as it stays what it is. Errors:
    /// why it could not; null where the preset is another one by now, or is gone, and nothing was
    /// done.
    std::optional<QString> whileSame(const Preset &preset, const Along &along) const;
    /// Errors: why it was not removed.
    QString remove(const Preset &preset, const Along &along = {}) const;

private:
    class Lock;

    QString folderOf(const QString &model) const;
    /// The file of a preset, also one that somebody has copied here under another name.
    QString fileOf(const Preset &preset) const;
    QString write(const PresetReplacing &settings, Replacing replacing, Preset *written) const;
    QString renameLocked(const Preset &preset, const QString &name) const;
    QString removeLocked(const Preset &preset) const;

    PresetPlaces m_places;
};

/// The most presets that are read of one folder.
inline constexpr int kMostPresets = 500;

} // namespace corvana
