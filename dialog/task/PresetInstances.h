#pragma once

#include <memory>
#include <optional>

#include "dialog/task/InstanceDraft.h"

namespace corvana {

/// A preset as its instances are noted, from the printer that is open.
struct InstancePreset
{
    QString name;
    QString model;         ///< of the printer
    bool isForAll = false; ///< the preset is for printers of all models
    QString queue{};       ///< the printer; empty for one that is no queue

    /// Whether an instance that was written here is one of this preset, on whatever queue.
    bool has(const QString &instance, const OwnInstance &own) const;
    bool isOnOpenQueue(const QString &instance) const;
    QStringList among(const QMap<QString, OwnInstance> &instances) const;
    OwnInstance noted() const { return {name, model, isForAll, {}}; }
};

/// What is to become of a preset's instances along with it.
struct InstanceChanges
{
    InstancePreset of{};
    QList<InstanceDraft> drafts{}; ///< to be written, but those with a problem
    QStringList removed{};
    /// On queues that are not open, by their whole names. What is a draft among them is there at
    /// once, and also where their server is away; all are made anew where those queues are opened.
    QStringList others{};
    QString server{};       ///< as printers are cached
    KnownInstances known{}; ///< what this was made of
};

/// What has become of them.
struct InstancesOutcome
{
    QList<InstanceDraft> written{};
    QStringList problems{}; ///< a sentence each, for the user
    QStringList others{};   ///< of the changes, once they are made
    /// What is known by now, where that is something else than what the changes were made of:
    /// nothing was done, and they have to be made anew.
    std::optional<KnownInstances> news{};

    void add(const QString &instance, const QString &problem);
};

/// A problem with an instance, with its name.
QString problemWithInstance(const QString &instance, const QString &problem);
/// What is said of a preset's instances that are as they were, because its settings were changed
/// while they were to be written.
QString changedMeanwhileText(const QString &preset);

// Thread: any; they wait for other programs that write lpoptions.

void changeInstances(const InstanceChanges &changes, InstancesOutcome *outcome);
/// The preset is gone, and nobody prints with it any more.
void removeInstancesOf(const InstancePreset &preset, InstancesOutcome *outcome);
/// Other programs know it by the name that it had: scripts would not find another one.
void renameInstancesOf(const InstancePreset &preset, const QString &name,
                       InstancesOutcome *outcome);

} // namespace corvana
