#include "dialog/window/SettingsPages.h"

#include "dialog/session/OptionNames.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/SettingsIndex.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/window/pages/GeneralPage.h"
#include "dialog/window/pages/OptionsPage.h"
#include "dialog/window/pages/PanelPage.h"
#include "dialog/window/pages/SummaryPage.h"

namespace corvana {

namespace {

QString formerly(const QString &name, const PrintTask &task)
{
    const QString text = task.history().baseText(name);
    return SettingsPages::tr("%1: %2").arg(task.history().base().name,
                                           text.isEmpty() ? SettingsPages::tr("None") : text);
}

// Copies and pages belong to this job alone, so that only the summary of it tells of them.
ShownChanges ofTheJob(ShownChanges changes, const PrintTask &task)
{
    const JobSettings &now = task.settingsNow().job;
    const JobSettings &base = task.history().base().settings.job;
    if (now.copies() != base.copies())
        changes.settings.insert(kCopiesSetting, formerly(kCopiesSetting, task));
    if (now.pageRanges() != base.pageRanges())
        changes.settings.insert(kPageRangesAttribute, formerly(kPageRangesAttribute, task));
    return changes;
}

} // namespace

ShownChanges SettingsPages::changesNow() const
{
    ShownChanges changes{m_task.history().backText(), {}};
    const QStringList changed = m_task.history().changedSettings();
    for (const QString &name : changed)
        changes.settings.insert(name, formerly(name, m_task));
    return changes;
}

void SettingsPages::showChanges()
{
    if (!m_general || !m_showsPanels || m_task.phase() != PrintTask::Phase::Ready)
        return;
    const ShownChanges changes = changesNow();
    m_general->showChanges(changes);
    m_panelMarks->show(controlsOfPanels(), changes);
    if (m_options)
        m_options->showChanges(changes);
}

void SettingsPages::setSummaryLines(const QList<SummaryLine> &lines)
{
    m_summary->setLines(lines, ofTheJob(changesNow(), m_task));
}

QList<MarkedControl> SettingsPages::controlsOfPanels() const
{
    QList<MarkedControl> controls;
    for (int panel = 0; panel < m_panelPages.size(); ++panel) {
        const QList<PanelControl> shown = m_task.opened()->panels->controls(panel);
        for (const PanelControl &control : shown)
            controls += MarkedControl{control.keyword, control.control, control.label};
    }
    return controls;
}

QStringList SettingsPages::settingsOfPage() const
{
    if (currentWidget() == m_general && m_general)
        return m_general->settings();
    QStringList names;
    if (const int panel = currentPanel(); panel >= 0) {
        const QList<PanelControl> shown = m_task.opened()->panels->controls(panel);
        for (const PanelControl &control : shown)
            names += control.keyword;
    } else if (m_optionsTab && currentWidget() == m_optionsTab) {
        const QList<ppd_option_t *> options = m_task.opened()->session->options();
        for (const ppd_option_t *option : options)
            names += ppdKeyword(option->keyword);
    }
    return names;
}

QStringList SettingsPages::changedOnPage() const
{
    if (!m_general)
        return {};
    QStringList changed = m_task.history().changedSettings();
    const QStringList shown = settingsOfPage();
    changed.removeIf([&](const QString &name) { return !shown.contains(name); });
    return changed;
}

void SettingsPages::resetPage()
{
    m_task.history().resetSettings(changedOnPage());
}

void SettingsPages::reset(const QString &name)
{
    if (m_task.history().changedSettings().contains(name))
        m_task.history().resetSettings({name});
}

SettingsPages::Shown SettingsPages::goTo(const QString &name)
{
    const QList<Setting> settings = settingsIndexOf(m_task).settings();
    for (const Setting &setting : settings) {
        if (setting.keyword == name)
            return goTo(setting);
    }
    return {};
}

} // namespace corvana
