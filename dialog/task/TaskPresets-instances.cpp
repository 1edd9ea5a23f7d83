#include "dialog/task/TaskPresets.h"

#include <algorithm>

#include "dialog/printers/PrinterId.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/StartValues.h"
#include "dialog/task/TaskHistory.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Of saving a preset while lpoptions changes all the time.
constexpr int kMostAttempts = 10;

// "NAME" of the queue that a printer is; empty for one that is none.
QString queueOf(const Printer &printer)
{
    return printer.origin == PrinterOrigin::Queue ? queueOfInstance(printer.name) : QString();
}

} // namespace

InstanceDraft TaskPresets::elsewhere(const QString &name) const
{
    if (!m_task.opened())
        return {};
    const KnownInstances &known = m_shelf.instances();
    const QString preset = presetName(name);
    return nameInstance(nameElsewhere(preset, known), *m_task.opened(), m_task.settings(), known,
                        preset);
}

const Printer &TaskPresets::openPrinter() const
{
    return m_task.printer();
}

QString TaskPresets::selectedElsewhere() const
{
    return m_kept.selected.kind == SelectedPreset::Kind::Preset ? instanceOf(m_kept.selected.name)
                                                                : QString();
}

QString TaskPresets::instanceOf(const QString &name) const
{
    const QString queue = queueOf(m_task.printer());
    return queue.isEmpty() ? QString() : m_shelf.instances().ofPreset(name, queue);
}

InstanceDraft TaskPresets::draft(const QString &name, const QString &settings,
                                 const KnownInstances &known, bool withDevice) const
{
    if (!m_task.opened() || m_task.phase() == PrintTask::Phase::Opened)
        return {{}, {}, {}, tr("The printer is not known yet.")};
    // The panels restore and save on the way.
    m_task.summaryOfSettings();
    return draftInstance(name, *m_task.opened(), m_task.settings(), known, withDevice, settings);
}

void TaskPresets::sayOfInstance(const InstanceDraft &draft)
{
    // Whoever runs the program for another queue reads of it what is wrong.
    const bool isRead = m_task.request().followedModel.has_value();
    for (const QString &sentence : draft.leftOut)
        isRead ? Q_EMIT m_task.ignored(sentence) : Q_EMIT m_task.noted(sentence);
    Q_EMIT m_task.noted(tr("Other programs print with these settings to “%1”.").arg(draft.name));
}

// What sets up the device is in no instance, unless somebody asks for it together with that.
bool TaskPresets::asksForDevice() const
{
    const OpenedPrinter *opened = m_task.opened();
    const QStringList device =
        opened && opened->jobValues ? opened->jobValues->deviceOptions() : QStringList();
    const QList<JobOption> &asked = m_task.request().options;
    return std::any_of(asked.cbegin(), asked.cend(), [&](const JobOption &option) {
        return device.contains(nameInOneCase(option.name, opened->session->ppd()));
    });
}

std::optional<TaskRefusal> TaskPresets::saveInstance(const QString &settings)
{
    const QString &name = m_task.request().instance;
    if (name.isEmpty())
        return std::nullopt;
    if (m_task.request().followedModel)
        return followPreset();
    const bool isByItself = settings.isEmpty();
    const InstanceDraft made = draft(name, isByItself ? QString() : settings,
                                     KnownInstances::read(), isByItself && asksForDevice());
    if (!made.problem.isEmpty())
        return TaskRefusal{{made.problem}};
    const OwnInstance noted =
        isByItself ? OwnInstance{name} : instancePreset(settings, false).noted();
    const std::shared_ptr<const PresetOrigin> origin =
        isByItself ? nullptr : m_task.history().base().preset;
    const QString problem =
        origin ? writeWhileSame(origin->stored, made, noted)
               : changeInstances({{made.name, made.options}}, noted).value(made.name);
    if (!problem.isEmpty())
        return TaskRefusal{{problem}};
    sayOfInstance(made);
    return std::nullopt;
}

// Another program may have kept the preset anew: what it has written then is not written over.
QString TaskPresets::writeWhileSame(const Preset &preset, const InstanceDraft &made,
                                    const OwnInstance &noted)
{
    QString problem;
    const PresetStore store(m_task.request().presetPlaces);
    const std::optional<QString> done = store.whileSame(preset, [&] {
        problem = changeInstances({{made.name, made.options}}, noted).value(made.name);
    });
    m_isStale = !done;
    if (!done)
        return changedMeanwhileText(preset.name);
    return problem.isEmpty() ? *done : problem;
}

// The instance of a preset that was kept on another queue, with what this one makes of it. The
// preset that it was made of must still be there when it is written.
std::optional<TaskRefusal> TaskPresets::followPreset()
{
    const PrintRequest &request = m_task.request();
    const std::shared_ptr<const PresetOrigin> origin = m_kept.preset;
    if (!origin || origin->stored.model != *request.followedModel)
        return TaskRefusal{
            {tr("The preset “%1” for this printer is another one.").arg(request.preset)}};
    const Preset &preset = origin->stored;
    const InstanceDraft made =
        draft(request.instance, preset.name, KnownInstances::read(), preset.device);
    if (!made.problem.isEmpty())
        return TaskRefusal{{made.problem}};
    const OwnInstance noted = instancePreset(preset.name, preset.model.isEmpty()).noted();
    if (const QString problem = writeWhileSame(preset, made, noted); !problem.isEmpty())
        return TaskRefusal{{problem}};
    sayOfInstance(made);
    return std::nullopt;
}

QList<OtherQueue> TaskPresets::otherQueues(const QString &name, bool forAll) const
{
    const QString preset = presetName(name);
    const KnownInstances &known = m_shelf.instances();
    const Printer &open = m_task.printer();
    const InstancePreset of = instancePreset(preset, forAll);
    const QStringList there = of.among(known.own);
    QList<OtherQueue> others;
    const QList<Printer> printers = m_task.printers().printers();
    for (const Printer &printer : printers) {
        const QString queue = queueOf(printer);
        const bool isInstance = queue != printer.name;
        if (queue.isEmpty() || isInstance || of.isOnOpenQueue(queue))
            continue;
        OtherQueue other{printer};
        for (const QString &instance : there) {
            if (isSameQueue(queueOfInstance(instance), queue))
                other.instance = instance;
        }
        other.isThere = !other.instance.isEmpty();
        const bool mayBeOfModel =
            !open.makeAndModel.isEmpty() && printer.makeAndModel == open.makeAndModel;
        if (!other.isThere && !forAll && !mayBeOfModel)
            continue;
        if (!other.isThere) {
            const InstanceDraft named = nameInstanceOn(queue, preset, known, preset);
            other.instance = named.name;
            other.problem = named.problem;
        }
        others += other;
    }
    return others;
}

// Whoever keeps a preset under the name of an earlier one means its instance, too, which may be
// called by a name that the preset had before.
QString TaskPresets::nameElsewhere(const QString &preset, const KnownInstances &known) const
{
    const QString there = known.ofPreset(preset, queueOf(m_task.printer()));
    return there.isEmpty() ? preset : there.section(u'/', 1);
}

InstancePreset TaskPresets::instancePreset(const QString &name, bool isForAll) const
{
    return {name, modelName(), isForAll, queueOf(m_task.printer())};
}

// Of the queues that somebody names now, those that have it already follow unasked.
QStringList TaskPresets::newOthers(const PresetToSave &wanted, const InstanceChanges &changes) const
{
    QStringList others;
    for (const QString &instance : wanted.alsoOn) {
        const QString queue = queueOfInstance(instance);
        const bool follows =
            std::any_of(changes.others.cbegin(), changes.others.cend(), [&](const QString &other) {
                return isSameQueue(queueOfInstance(other), queue);
            });
        if (!follows && !changes.of.isOnOpenQueue(instance))
            others += instance;
    }
    others.removeDuplicates();
    return others;
}

void TaskPresets::saveOthers(const Saving &saving, const QStringList &instances)
{
    m_others.clear();
    for (const QString &instance : instances)
        m_others += {instance, saving.preset.preset.name, saving.preset.preset.model};
    if (!m_others.isEmpty() && !m_task.request().program.isEmpty())
        m_otherQueues.write(m_others, m_task.request());
}

void TaskPresets::othersEnded(const QStringList &problems, const QStringList &remarks)
{
    // Beside what is still to be read of the queue that is open: one message replaces the other.
    QStringList all = m_saidElsewhere + problems + remarks;
    all.removeDuplicates();
    const bool isInformation = problems.isEmpty() && m_problemsElsewhere.isEmpty();
    if (all.size() > m_saidElsewhere.size())
        m_task.say(isInformation ? TaskMessage::Kind::Information : TaskMessage::Kind::Problem,
                   all.join(u'\n'));
    m_shelf.look();
    Q_EMIT endedElsewhere();
}

// A preset that is kept brings all of its instances along, whoever asked for them when they were
// made.
InstanceChanges TaskPresets::changesElsewhere(const PresetToSave &wanted,
                                              const KnownInstances &known) const
{
    InstanceChanges changes;
    changes.of = instancePreset(presetName(wanted.name), wanted.forAllPrinters);
    changes.server = m_task.request().server.argument();
    changes.known = known;
    const QString &name = changes.of.name;
    const QStringList there = changes.of.among(known.own);
    bool isHere = wanted.elsewhere;
    for (const QString &instance : there) {
        if (!known.queues.hasInstance(instance))
            continue; // it was taken away by other means
        if (changes.of.isOnOpenQueue(instance)) {
            if (wanted.nowhereElse)
                changes.removed += instance;
            isHere = isHere || !wanted.nowhereElse;
            continue;
        }
        if (wanted.notOn.contains(instance)) {
            changes.removed += instance;
            continue;
        }
        changes.others += instance;
        if (known.own.value(instance).model == changes.of.model)
            changes.drafts +=
                draftForOther(instance, *m_task.opened(), m_task.settings(), known, wanted.device);
    }
    changes.others += newOthers(wanted, changes);
    if (isHere)
        changes.drafts.prepend(draft(nameElsewhere(name, known), name, known, wanted.device));
    return changes;
}

std::shared_ptr<InstancesOutcome> TaskPresets::pend(const std::optional<Saving> &saving)
{
    m_pending.push_back({std::make_shared<InstancesOutcome>(), saving});
    return m_pending.back().outcome;
}

void TaskPresets::sayOfInstances(const InstancesOutcome &outcome)
{
    m_problemsElsewhere = outcome.problems;
    QStringList leftOut;
    for (const InstanceDraft &written : outcome.written) {
        sayOfInstance(written);
        for (const QString &sentence : written.leftOut)
            leftOut += problemWithInstance(written.name, sentence);
    }
    m_saidElsewhere = outcome.problems + leftOut;
    if (!m_saidElsewhere.isEmpty())
        m_task.say(outcome.problems.isEmpty() ? TaskMessage::Kind::Information
                                              : TaskMessage::Kind::Problem,
                   m_saidElsewhere.join(u'\n'));
}

void TaskPresets::keep(const Saving &saving, const KnownInstances &known)
{
    const bool replaces = saving.wanted.replaces || saving.attempt > 1;
    m_shelf.save(saving.preset, replaces ? PresetStore::Replacing::Yes : PresetStore::Replacing::No,
                 saving.written,
                 [changes = changesElsewhere(saving.wanted, known), outcome = pend(saving)] {
                     changeInstances(changes, outcome.get());
                 });
}

// The instances are made of what lpoptions said when it was looked at last. Where it says something
// else by now they are made anew, of the settings that the preset has.
bool TaskPresets::keepAnew(Pending *pending)
{
    if (!pending->saving || !pending->outcome->news)
        return false;
    Saving again = *pending->saving;
    if (again.attempt < kMostAttempts && m_task.phase() == PrintTask::Phase::Ready &&
        m_task.settingsNow() == again.settings) {
        ++again.attempt;
        // It is kept by now, and what it has kept of the former one as well.
        again.preset.origin =
            std::make_shared<const PresetOrigin>(PresetOrigin{*again.written, again.preset.set});
        again.preset.touched.clear();
        again.written = std::make_shared<Preset>();
        keep(again, *pending->outcome->news);
        return true;
    }
    pending->outcome->problems += changedMeanwhileText(again.preset.preset.name);
    return false;
}

QStringList TaskPresets::instancesOfOthers() const
{
    const QString queue = queueOf(m_task.printer());
    if (queue.isEmpty())
        return {};
    const KnownInstances &known = m_shelf.instances();
    QStringList names = known.queues.instancesOf(queue);
    names.removeIf([&](const QString &name) { return known.own.contains(name); });
    return names;
}

void TaskPresets::useInstance(const QString &name)
{
    const QList<JobOption> options = m_shelf.instances().queues.optionsOf(name);
    if (options.isEmpty())
        return m_task.say(TaskMessage::Kind::Problem,
                          tr("“%1” is not there any more, or has no settings.").arg(name));
    apply(m_kept.defaults, {}, {SelectedPreset::Kind::Preset, name}, options);
}

// Pages and copies are of one job, whoever has set them. Answers what this printer does not take.
QStringList TaskPresets::takeInstance(const QList<JobOption> &options)
{
    QList<JobOption> kept = options;
    kept.removeIf([](const JobOption &option) {
        const QString name = inOneSpelling(option).name;
        return name == "copies"_L1 || (jobAttribute(name) && !isKept(name));
    });
    const OptionOutcome outcome = applyUsersOptions(kept, *m_task.opened());
    for (const JobOption &attribute : outcome.attributes)
        m_task.settings().setAttribute(
            attribute.name, attribute.value,
            usualValueOf(attribute.name, outcome.attributes, *m_task.opened()));
    return outcome.problems;
}

} // namespace corvana
