#include "dialog/task/PresetInstances.h"

#include <utility>

#include <QCoreApplication>

#include "dialog/presets/PresetContent.h"
#include "dialog/printers/PpdCache.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/session/PpdFile.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetInstances)
};

// Whether a queue that is not open can have what was set on another one of its model, as far as is
// known here: its own options may not be installed, or its driver may be another one by now.
bool isPossibleOnQueue(const InstanceDraft &draft, const InstanceChanges &changes)
{
    const QString queue = queueOfInstance(draft.name);
    const std::optional<FetchedPrinter> found = PpdCache().find(changes.server, queue);
    QString error;
    const PpdFile ppd = found && found->ppd ? openPpdFile(found->ppd->path, &error) : PpdFile();
    if (!ppd)
        return true;
    if (modelOf(ppd.get()) != changes.of.model)
        return false;
    const int before = ppdConflicts(ppd.get());
    for (const JobOption &option : draft.options) {
        if (ppdOption(ppd.get(), option.name))
            ppdMarkOption(ppd.get(), option.name.toUtf8().constData(),
                          option.value.toUtf8().constData());
    }
    return ppdConflicts(ppd.get()) <= before;
}

QStringList removeInstances(const QStringList &instances)
{
    QList<InstanceLine> lines;
    for (const QString &instance : instances)
        lines += {instance, std::nullopt};
    return changeInstances(lines, {}).values();
}

// Once: the list begins anew, beside the damaged one.
void sayDamage(InstancesOutcome *outcome)
{
    const OwnInstances own;
    if (const QString damage = own.damage(); !damage.isEmpty()) {
        outcome->problems += damage;
        own.forget({});
    }
}

// Once: they are nobody's of ours from now on. Twice looked at: before, another window or lpoptions
// may have been writing.
void sayChangedByOthers(const InstancePreset &preset, const KnownInstances &before,
                        InstancesOutcome *outcome)
{
    QStringList changed = preset.among(before.changedByOthers);
    if (changed.isEmpty())
        return;
    const KnownInstances now = KnownInstances::read();
    changed.removeIf([&](const QString &name) { return !now.changedByOthers.contains(name); });
    if (changed.isEmpty())
        return;
    for (const QString &instance : std::as_const(changed))
        outcome->add({}, Texts::tr("“%1” was changed by another program, and is left as it is from "
                                   "now on.")
                             .arg(instance));
    if (const QString problem = OwnInstances().forget(changed); !problem.isEmpty())
        outcome->problems += problem;
}

} // namespace

QString changedMeanwhileText(const QString &preset)
{
    return Texts::tr("Settings were changed while “%1” was saved: other programs have it as it was "
                     "before. Save it again.")
        .arg(preset);
}

bool InstancePreset::isOnOpenQueue(const QString &instance) const
{
    return !queue.isEmpty() && isSameQueue(queueOfInstance(instance), queue);
}

bool InstancePreset::has(const QString &instance, const OwnInstance &own) const
{
    if (own.settings != name || own.isByItself() || (own.model && own.isForAll != isForAll))
        return false;
    return isOnOpenQueue(instance) || (own.model && (isForAll || *own.model == model));
}

QStringList InstancePreset::among(const QMap<QString, OwnInstance> &instances) const
{
    QStringList names;
    for (auto it = instances.cbegin(); it != instances.cend(); ++it) {
        if (has(it.key(), *it))
            names += it.key();
    }
    return names;
}

void InstancesOutcome::add(const QString &instance, const QString &problem)
{
    problems += instance.isEmpty() ? problem : problemWithInstance(instance, problem);
}

QString problemWithInstance(const QString &instance, const QString &problem)
{
    return Texts::tr("“%1” in other programs: %2").arg(instance, problem);
}

void changeInstances(const InstanceChanges &changes, InstancesOutcome *outcome)
{
    const KnownInstances before = KnownInstances::read();
    const bool hasSome =
        !changes.drafts.isEmpty() || !changes.removed.isEmpty() ||
        !(changes.of.among(before.own) + changes.of.among(before.changedByOthers)).isEmpty();
    if (hasSome && before != changes.known) {
        outcome->news = before;
        return;
    }
    sayDamage(outcome);
    outcome->others = changes.others;
    QList<InstanceDraft> drafts;
    QList<InstanceLine> lines;
    for (const InstanceDraft &draft : changes.drafts) {
        const bool isHere = changes.of.isOnOpenQueue(draft.name);
        if (!draft.problem.isEmpty()) {
            outcome->add(draft.name, draft.problem);
            continue;
        }
        // What cannot be said from here is said where that queue is opened.
        if (!isHere && !isPossibleOnQueue(draft, changes))
            continue;
        drafts += draft;
        lines += {draft.name, draft.options};
    }
    for (const QString &removed : changes.removed)
        lines += {removed, std::nullopt};
    QMap<QString, QString> problems = changeInstances(lines, changes.of.noted());
    for (const InstanceDraft &draft : std::as_const(drafts)) {
        if (problems.contains(draft.name))
            outcome->add(draft.name, problems.take(draft.name));
        else
            outcome->written += draft;
    }
    outcome->problems += problems.values();
    sayChangedByOthers(changes.of, before, outcome);
}

void removeInstancesOf(const InstancePreset &preset, InstancesOutcome *outcome)
{
    sayDamage(outcome);
    const KnownInstances known = KnownInstances::read();
    outcome->problems += removeInstances(preset.among(known.own));
    // What others have made of them stays, and is theirs.
    if (const QStringList others = preset.among(known.changedByOthers); !others.isEmpty())
        OwnInstances().forget(others);
}

void renameInstancesOf(const InstancePreset &preset, const QString &name, InstancesOutcome *outcome)
{
    sayDamage(outcome);
    const QStringList names = preset.among(KnownInstances::read().own);
    if (names.isEmpty())
        return;
    if (const QString problem = OwnInstances().rename(names, name); !problem.isEmpty())
        outcome->problems += problem;
}

} // namespace corvana
