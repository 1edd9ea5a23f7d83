#include "dialog/task/TaskPresets.h"

#include <memory>
#include <utility>

#include <QSignalBlocker>

#include "dialog/job/PageChoice.h"
#include "dialog/policy/Policy.h"
#include "dialog/presets/LastUsed.h"
#include "dialog/task/OrderOfPages.h"
#include "dialog/task/PresetApplication.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/StartPresets.h"
#include "dialog/task/TaskHistory.h"

namespace corvana {

using Kind = SelectedPreset::Kind;
using Phase = PrintTask::Phase;

namespace {

// More of them fill a screen and are read by nobody.
constexpr qsizetype kMostSentences = 12;

QString sentences(const QStringList &all)
{
    QString text = all.mid(0, kMostSentences).join(u'\n');
    if (all.size() > kMostSentences)
        text += u'\n' + TaskPresets::tr("and %1 more").arg(all.size() - kMostSentences);
    return text;
}

} // namespace

TaskPresets::TaskPresets(PrintTask &task) : m_task(task)
{
    connect(&m_shelf, &PresetShelf::changed, this, &TaskPresets::listed);
    connect(&m_shelf, &PresetShelf::ended, this, &TaskPresets::changeEnded);
    connect(&m_otherQueues, &OtherQueues::ended, this, &TaskPresets::othersEnded);
}

QString TaskPresets::selectedName() const
{
    switch (m_kept.selected.kind) {
    case Kind::Defaults:
        return tr("Printer Defaults");
    case Kind::LastUsed:
        return tr("Last Used");
    case Kind::Preset:
        break;
    }
    return m_kept.selected.name;
}

bool TaskPresets::isChanged() const
{
    QStringList changed = m_task.history().changedSettings();
    const OpenedPrinter *opened = m_task.opened();
    if (opened && opened->jobValues && !m_kept.selected.device) {
        const QStringList device = opened->jobValues->deviceOptions();
        changed.removeIf([&](const QString &name) { return device.contains(name); });
    }
    return !changed.isEmpty();
}

QString TaskPresets::modelName() const
{
    return m_task.opened() ? modelOf(m_task.opened()->session->ppd()) : QString();
}

QString TaskPresets::deviceSettings() const
{
    const OpenedPrinter *opened = m_task.opened();
    if (!opened || !opened->jobValues)
        return {};
    QStringList texts;
    for (const QString &keyword : opened->jobValues->deviceOptions()) {
        if (const ppd_option_t *option = ppdOption(opened->session->ppd(), keyword))
            texts += ppdText(option->text).value_or(keyword);
    }
    return texts.join(tr(", "));
}

QStringList TaskPresets::namesOf(const PresetContent &content) const
{
    const OpenedPrinter *opened = m_task.opened();
    return opened ? namesIn(content, panelEntries(*opened->session, opened->jobValues))
                  : QStringList();
}

void TaskPresets::start(const StartOutcome &started)
{
    m_kept = {{},
              started.defaults,
              started.lastUsed,
              started.impossible,
              started.kept,
              contentOf(*m_task.opened(), m_task.settings(),
                        started.preset && started.preset->stored.device),
              started.preset};
    if (started.preset)
        m_kept.selected = {Kind::Preset, started.preset->stored.name,
                           started.preset->stored.device};
    else if (!started.lastUsed.isEmpty())
        m_kept.selected = {Kind::LastUsed};
}

SettingsBase TaskPresets::baseNow() const
{
    return {m_task.settingsNow(), selectedName(), m_kept.preset};
}

void TaskPresets::begin()
{
    if (m_task.m_chosen.canBeAnother || !m_task.request().presetToSave.isEmpty())
        m_shelf.setPrinter(presetPlacesOf(m_task.request(), m_task.printer()), modelName());
    Q_EMIT changed();
}

void TaskPresets::useDefaults()
{
    apply(m_kept.defaults, {}, {});
}

void TaskPresets::useLastUsed()
{
    apply(withChanges(m_kept.defaults, m_kept.lastUsed), namesOf(m_kept.lastUsed),
          {Kind::LastUsed});
}

void TaskPresets::use(const QString &name)
{
    const std::optional<StoredPreset> found = listing().find(name);
    if (!found)
        return m_task.say(TaskMessage::Kind::Problem,
                          tr("There is no preset of the name “%1” any more.").arg(name));
    const Preset &preset = found->preset;
    if (!m_task.opened())
        return;
    apply(contentOf(preset, m_kept.defaults, *m_task.opened()), preset.changed,
          {Kind::Preset, preset.name, preset.device});
}

// `chosen`: what of the content was chosen by somebody.
void TaskPresets::apply(const PresetContent &content, const QStringList &chosen,
                        const SelectedPreset &selected, const QList<JobOption> &ofInstance)
{
    if (m_task.phase() != Phase::Ready || !m_task.m_face.finishEditing())
        return;
    Q_EMIT m_task.unsaid();
    m_task.history().recordStep(); // what was typed just now
    const bool isStored = selected.kind == Kind::Preset && ofInstance.isEmpty();
    const std::optional<StoredPreset> stored =
        isStored ? listing().find(selected.name) : std::nullopt;
    PresetOutcome outcome;
    {
        // What happens on the way is a part of it, and is told when it is over.
        const QSignalBlocker blocker(m_task.opened()->panels.get());
        outcome = applyPreset(content, {PresetUse::Others::Cleared, chosen}, m_task.documents(),
                              *m_task.opened(), m_task.settings());
        if (!ofInstance.isEmpty())
            outcome.missing += takeInstance(ofInstance);
        // Printed together they would be refused.
        outcome.missing += problemsOfOrder(m_task.settings(), *m_task.opened()->session);
    }
    if (m_task.phase() != Phase::Ready)
        return; // interrupted, while an alert of a panel was waiting for its answer
    PresetStep step{
        std::exchange(m_kept.selected, selected), m_task.history().base(), selected, {}};
    const bool isStep = m_task.history().recordStep(selectedName());
    SettingsBase base{m_task.settingsNow(), selectedName()};
    if (stored)
        base.preset = std::make_shared<const PresetOrigin>(PresetOrigin{
            stored->preset, contentOf(*m_task.opened(), m_task.settings(), selected.device)});
    m_task.history().setBase(base);
    step.baseAfter = m_task.history().base();
    if (isStep)
        m_task.history().notePreset(step);
    m_task.showSettings();
    Q_EMIT changed();
    say(outcome.missing, outcome.details);
}

void TaskPresets::stepBack(const PresetStep &step)
{
    reselect(step.after, step.before, step.baseBefore);
}

void TaskPresets::stepForward(const PresetStep &step)
{
    reselect(step.before, step.after, step.baseAfter);
}

void TaskPresets::reselect(const SelectedPreset &now, const SelectedPreset &wanted,
                           const SettingsBase &base)
{
    const bool isThere = wanted.kind != Kind::Preset || listing().find(wanted.name) ||
                         instancesOfOthers().contains(wanted.name);
    if (m_kept.selected != now || !isThere)
        return;
    m_kept.selected = wanted;
    m_task.history().setBase(base);
    Q_EMIT changed();
}

void TaskPresets::say(const QStringList &missing, const QStringList &details)
{
    TaskMessage message{
        TaskMessage::Kind::Problem,
        tr("Not everything of “%1” is possible here:\n%2").arg(selectedName(), sentences(missing))};
    if (missing.isEmpty())
        message = {
            TaskMessage::Kind::Information,
            tr("“%1” was kept with settings that this printer does not have.").arg(selectedName())};
    message.details = details.join(u'\n');
    if (!missing.isEmpty() || !details.isEmpty())
        Q_EMIT m_task.said(message);
}

void TaskPresets::save(const PresetToSave &wanted)
{
    if (m_task.phase() == Phase::Opened) {
        // Nobody waits for anything to be shown, and what cannot be set nobody has seen.
        m_task.bringUp();
        const QStringList &unset = m_task.m_chosen.unset;
        if (!unset.isEmpty()) {
            Q_EMIT m_task.refused({unset});
            return;
        }
    }
    if (m_task.phase() != Phase::Ready || !m_task.m_face.finishEditing())
        return;
    keep({wanted, replacing(wanted), m_task.settingsNow()}, m_shelf.instances());
}

PresetReplacing TaskPresets::replacing(const PresetToSave &wanted) const
{
    const OpenedPrinter &opened = *m_task.opened();
    // What a panel shows and has not saved yet, such as a slider that was moved, belongs to it.
    opened.panels->summary();
    const QString name = presetName(wanted.name);
    PresetReplacing replacing;
    const PresetContent &set = replacing.set = contentOf(opened, m_task.settings(), wanted.device);
    replacing.preset = {name, modelName(), wanted.device, set, {}};
    const PresetContent changes = changesIn(set, m_kept.defaults);
    replacing.preset.changed = namesOf(changes);
    // What is usual is another printer's own affair.
    if (wanted.forAllPrinters) {
        replacing.preset.model.clear();
        replacing.preset.content = changes;
    }
    const std::shared_ptr<const PresetOrigin> origin = m_task.history().base().preset;
    const bool isSelected = m_kept.selected.kind == Kind::Preset && m_kept.selected.name == name;
    if (isSelected && origin && origin->stored.model == replacing.preset.model) {
        replacing.origin = origin;
        replacing.touched =
            namesOf(changesIn(set, origin->taken)) + namesOf(changesIn(origin->taken, set));
        replacing.mustBeOrigin = wanted.updates;
    }
    for (const ppd_option_t *option : opened.session->options())
        replacing.options.insert(ppdKeyword(option->keyword));
    const QList<PanelEntry> entries = panelEntries(*opened.session, opened.jobValues);
    for (const PanelEntry &entry : entries)
        replacing.entries.insert(entry.key);
    return replacing;
}

void TaskPresets::update()
{
    const SelectedPreset selected = m_kept.selected;
    const std::optional<StoredPreset> found = listing().find(selected.name);
    if (selected.kind == Kind::Preset)
        save({.name = selected.name,
              .forAllPrinters = found && found->preset.model.isEmpty(),
              .device = selected.device,
              .replaces = true,
              .updates = true});
}

void TaskPresets::rename(const QString &name)
{
    const std::optional<StoredPreset> found = listing().find(m_kept.selected.name);
    if (m_kept.selected.kind != Kind::Preset || !found || !found->isOwn)
        return;
    m_shelf.rename(found->preset, presetName(name),
                   [of = instancePreset(found->preset.name, found->preset.model.isEmpty()),
                    name = presetName(name),
                    outcome = pend()] { renameInstancesOf(of, name, outcome.get()); });
}

void TaskPresets::remove()
{
    const std::optional<StoredPreset> found = listing().find(m_kept.selected.name);
    if (m_kept.selected.kind != Kind::Preset || !found || !found->isOwn)
        return;
    m_shelf.remove(found->preset,
                   [of = instancePreset(found->preset.name, found->preset.model.isEmpty()),
                    outcome = pend()] { removeInstancesOf(of, outcome.get()); });
}

void TaskPresets::listed()
{
    // Each file is spoken of once, however often it is looked at.
    QStringList news = listing().problems;
    news.removeIf([this](const QString &problem) { return m_told.contains(problem); });
    m_told += news;
    if (!news.isEmpty())
        Q_EMIT m_task.said({TaskMessage::Kind::Information, sentences(news), {}, {}, true});
    Q_EMIT changed();
}

// What became of a preset that was kept, renamed or removed; only what can be set can be another.
void TaskPresets::take(PresetShelf::Change change, const QString &name,
                       const std::optional<Saving> &saving)
{
    using Change = PresetShelf::Change;
    if (m_task.phase() != Phase::Ready)
        return;
    if (saving) {
        const PresetReplacing &kept = saving->preset;
        m_kept.selected = {Kind::Preset, kept.preset.name, kept.preset.device};
        m_task.history().setBase(
            {saving->settings, selectedName(),
             std::make_shared<const PresetOrigin>(PresetOrigin{*saving->written, kept.set})});
    } else if (change == Change::Renamed) {
        m_kept.selected.name = name;
        m_task.history().setBase(
            {m_task.history().base().settings, selectedName(), m_task.history().base().preset});
    } else if (change == Change::Removed && m_kept.selected.name == name) {
        m_kept.selected = {};
        m_task.history().setBase({m_task.history().base().settings, selectedName()});
    }
}

void TaskPresets::changeEnded(PresetShelf::Change change, const QString &name,
                              const QString &problem)
{
    if (change == PresetShelf::Change::LastJob) {
        if (!problem.isEmpty()) // it is printed, whatever is remembered of it
            Q_EMIT m_task.noted(problem);
        Q_EMIT changed();
        return;
    }
    Pending pending = std::move(m_pending.front());
    m_pending.pop_front();
    if (problem.isEmpty() && keepAnew(&pending))
        return;
    if (problem.isEmpty())
        take(change, name, pending.saving);
    else
        m_task.say(TaskMessage::Kind::Problem,
                   tr("%1 Your settings are as they were.").arg(problem));
    Q_EMIT changed();
    sayOfInstances(*pending.outcome);
    if (problem.isEmpty() && pending.saving)
        saveOthers(*pending.saving, pending.outcome->others);
    Q_EMIT ended(problem);
}

bool TaskPresets::remembersLastUsed() const
{
    return corvana::remembersLastUsed(m_task.request(), m_task.printer());
}

bool TaskPresets::mayRememberLastUsed() const
{
    return policyOf(m_task.request()).bringsLastUsedBack(m_task.printer());
}

void TaskPresets::setRemembersLastUsed(bool remembers)
{
    m_task.m_request.remembersLastUsed = remembers;
    if (const QString problem = corvana::setRemembersLastUsed(remembers); !problem.isEmpty())
        m_task.say(TaskMessage::Kind::Problem, problem);
    if (!remembers)
        m_kept.lastUsed = m_kept.impossible = {};
    Q_EMIT changed();
}

void TaskPresets::jobBegins()
{
    m_ofJob = contentOf(*m_task.opened(), m_task.settings());
}

// Keeps what the user has changed for a job that was taken.
void TaskPresets::jobEnded(const JobOutcome &outcome)
{
    const bool isTaken = outcome.isDone() || outcome.kind == JobOutcome::Kind::Stopped ||
                         outcome.kind == JobOutcome::Kind::AlreadyThere;
    if (!isTaken || !m_task.opened() || !m_task.m_chosen.canBeAnother || !remembersLastUsed())
        return;
    const PresetContent wished = withoutRequest(m_ofJob, m_kept.before, m_kept.started);
    const PresetContent set = withoutWishesForOneJob(changesIn(wished, m_kept.defaults));
    m_kept.lastUsed = withChanges(m_kept.impossible, set);
    m_shelf.keepLastJob(m_task.printer(), m_task.request().server.text(), m_kept.lastUsed);
}

} // namespace corvana
