#pragma once

#include <deque>
#include <memory>
#include <optional>

#include <QObject>

#include "dialog/presets/PresetShelf.h"
#include "dialog/task/OtherQueues.h"
#include "dialog/task/PresetInstances.h"
#include "dialog/task/TaskMessage.h"
#include "dialog/task/TaskSettings.h"

namespace corvana {

class PrintTask;
struct JobOutcome;
struct StartOutcome;

/// By which name the settings of a task go.
struct SelectedPreset
{
    enum class Kind {
        Defaults, ///< where a job starts for everybody
        LastUsed, ///< with what the user changed for the last job
        Preset,   ///< kept under a name
    };

    Kind kind = Kind::Defaults;
    QString name{};      ///< of a preset
    bool device = false; ///< it sets up the device as well

    bool operator==(const SelectedPreset &) const = default;
};

/// A step that has selected another preset, from one with its base to another one with its.
struct PresetStep
{
    SelectedPreset before;
    SettingsBase baseBefore;
    SelectedPreset after;
    SettingsBase baseAfter;
};

/// What a task knows of the settings that were kept for one printer.
struct KeptSettings
{
    SelectedPreset selected{};
    PresetContent defaults{}; ///< where a job on this printer starts for everybody
    PresetContent lastUsed{}; ///< changes of that
    /// What of that could not be set when the printer was opened; it is the user's all the same.
    PresetContent impossible{};
    PresetContent before{};  ///< in force before any option was asked for
    PresetContent started{}; ///< in force before the user changed anything
    /// The preset that a job started with; the base has the one that is selected.
    std::shared_ptr<const PresetOrigin> preset{};
};

/// How the settings of a task are to be kept.
struct PresetToSave
{
    QString name;
    bool forAllPrinters = false; ///< else for those of the model that is open
    bool device = false;         ///< with what sets up the device as well
    bool replaces = false;       ///< a preset of that name may be there
    /// Also as an instance of the queue, by which other programs print with it.
    bool elsewhere = false;
    /// An instance that was made of it goes.
    bool nowhereElse = false;
    /// The same on queues that are not open, by the whole names of the instances. Those that there
    /// are follow unasked.
    QStringList alsoOn{};
    QStringList notOn{};
    /// The preset that is selected; one that was kept elsewhere since then stays.
    bool updates = false;
};

/// The settings of one task that come from before and are kept for later: presets, the defaults of
/// the printer, and what was changed for the last job. Applying them is one step of the task's
/// history, and what "changed" compares with from then on.
///
/// Ownership: the task's, which it borrows. Thread: GUI thread only.
class TaskPresets : public QObject
{
    Q_OBJECT

public:
    explicit TaskPresets(PrintTask &task);

    /// Of the printer that is open, as far as they are known; changed() says when that is more.
    const PresetListing &listing() const { return m_shelf.listing(); }
    /// Looks for those that other windows have kept.
    void look() { m_shelf.look(); }

    const SelectedPreset &selected() const { return m_kept.selected; }
    /// For people: "Printer Defaults", "Last Used", or the preset's own name.
    QString selectedName() const;
    /// Whether something that is kept is set otherwise than selected() has it.
    bool isChanged() const;
    bool hasLastUsed() const { return !m_kept.lastUsed.isEmpty(); }
    /// Which printers a preset is for that is kept now; empty while none is open.
    QString modelName() const;
    /// The options that set up the device, by their texts; empty where this printer has none.
    QString deviceSettings() const;

    const Printer &openPrinter() const;

    // In other programs (TaskPresets-instances.cpp), as lpoptions had it when it was looked at

    /// What a preset of this name would be called by other programs; with a problem where they
    /// cannot have it.
    InstanceDraft elsewhere(const QString &name) const;
    /// The instance that this program has made of the preset that is selected; empty where there is
    /// none of this printer.
    QString selectedElsewhere() const;
    /// The same of a preset of that name.
    QString instanceOf(const QString &name) const;
    /// Writes the instance that the request names, for somebody who waits for nothing else; nothing
    /// where it names none. `settings`: the preset that it is of; empty for none.
    std::optional<TaskRefusal> saveInstance(const QString &settings = {});
    /// Those of other queues that a preset of this name could be an instance on, or is one on:
    /// printers of the model that is open, or of all models, as far as anybody has named theirs.
    QList<OtherQueue> otherQueues(const QString &name, bool forAll) const;
    /// What the preset that was kept last has to be written to where those queues are open, for
    /// somebody who does that himself.
    const QList<OtherInstance> &others() const { return m_others; }
    /// saveInstance() has found the preset changed since it was applied, and has written nothing.
    bool isStale() const { return m_isStale; }
    /// Why instances did not follow the preset that was kept, renamed or removed last.
    const QStringList &problemsElsewhere() const { return m_problemsElsewhere; }
    /// The instances of the queue that is open which others have made, by their whole names.
    QStringList instancesOfOthers() const;

    // Each is one step, and says what of it the printer has not.

    void useDefaults();
    void useLastUsed();
    void use(const QString &name);
    void useInstance(const QString &name);

    /// The step was undone, or done again: the preset is selected that was then. Not where another
    /// one has been selected meanwhile, such as by saving, nor one that is gone.
    void stepBack(const PresetStep &step);
    void stepForward(const PresetStep &step);

    // Beside the GUI thread: ended() follows. What cannot be done is said; the settings of the task
    // are the same then.

    void save(const PresetToSave &wanted);
    /// Keeps the settings under the name that is selected.
    void update();
    void rename(const QString &name);
    void remove();

    /// Whether jobs start with what was changed for the last one.
    bool remembersLastUsed() const;
    /// Whether the administrator leaves that to the user.
    bool mayRememberLastUsed() const;
    /// The user's preference, for all windows from now on. Switched off, what is remembered goes.
    void setRemembersLastUsed(bool remembers);

    // What the task tells.

    /// A job starts with this.
    void start(const StartOutcome &started);
    /// The settings are the user's from here on.
    void begin();
    const KeptSettings &kept() const { return m_kept; }
    /// What "changed" compares with where nobody has changed anything yet.
    SettingsBase baseNow() const;
    /// A printer that was left has come back.
    void comeBack(const KeptSettings &kept) { m_kept = kept; }
    void jobBegins();
    void jobEnded(const JobOutcome &outcome);

Q_SIGNALS:
    /// listing(), selected() or hasLastUsed() are others. Of isChanged() the task's history tells.
    void changed();
    /// `problem`: why a preset was not kept, renamed or removed; empty when it was.
    void ended(const QString &problem);
    /// The instances on queues that are not open are written, too, or not; that was said.
    void endedElsewhere();

private:
    struct Saving
    {
        PresetToSave wanted;
        PresetReplacing preset;
        TaskSettings settings;
        int attempt = 1;
        std::shared_ptr<Preset> written = std::make_shared<Preset>(); // the thread's until it ended
    };

    // What is being done on another thread.
    struct Pending
    {
        std::shared_ptr<InstancesOutcome> outcome; // the thread's until it ended
        std::optional<Saving> saving{};
    };

    void apply(const PresetContent &content, const QStringList &chosen,
               const SelectedPreset &selected, const QList<JobOption> &ofInstance = {});
    QStringList takeInstance(const QList<JobOption> &options);
    void reselect(const SelectedPreset &now, const SelectedPreset &wanted,
                  const SettingsBase &base);
    void say(const QStringList &missing, const QStringList &details);
    void listed();
    void changeEnded(PresetShelf::Change change, const QString &name, const QString &problem);
    InstanceDraft draft(const QString &name, const QString &settings, const KnownInstances &known,
                        bool withDevice) const;
    bool asksForDevice() const;
    QString nameElsewhere(const QString &preset, const KnownInstances &known) const;
    std::optional<TaskRefusal> followPreset();
    QString writeWhileSame(const Preset &preset, const InstanceDraft &made,
                           const OwnInstance &noted);
    QStringList newOthers(const PresetToSave &wanted, const InstanceChanges &changes) const;
    void saveOthers(const Saving &saving, const QStringList &instances);
    void othersEnded(const QStringList &problems, const QStringList &remarks);
    InstancePreset instancePreset(const QString &name, bool isForAll) const;
    std::shared_ptr<InstancesOutcome> pend(const std::optional<Saving> &saving = {});
    InstanceChanges changesElsewhere(const PresetToSave &wanted, const KnownInstances &known) const;
    void keep(const Saving &saving, const KnownInstances &known);
    bool keepAnew(Pending *pending);
    void take(PresetShelf::Change change, const QString &name, const std::optional<Saving> &saving);
    void sayOfInstance(const InstanceDraft &draft);
    void sayOfInstances(const InstancesOutcome &outcome);
    PresetReplacing replacing(const PresetToSave &wanted) const;
    QStringList namesOf(const PresetContent &content) const;

    PrintTask &m_task;
    PresetShelf m_shelf;
    KeptSettings m_kept;
    PresetContent m_ofJob;         // that is printed
    std::deque<Pending> m_pending; // in the order in which it is done
    QStringList m_problemsElsewhere;
    QStringList m_saidElsewhere; // of the queue that is open, and of others as far as known then
    QStringList m_told; // files that were spoken of
    QList<OtherInstance> m_others;
    OtherQueues m_otherQueues;
    bool m_isStale = false;
};

} // namespace corvana
