#include "dialog/window/SettingFinder.h"

#include <QShortcut>
#include <QTabBar>
#include <QTimer>
#include <QWidget>

#include "dialog/task/PrintTask.h"
#include "dialog/window/SettingsPages.h"
#include "dialog/window/find/FindField.h"
#include "dialog/window/find/FoundMark.h"
#include "dialog/window/pages/MessageBar.h"

namespace corvana {

using namespace Qt::StringLiterals;

SettingFinder::SettingFinder(PrintTask &task, FindField &field, SettingsPages &pages,
                             MessageBar &message, QObject *parent)
    : QObject(parent), m_task(task), m_field(field), m_pages(pages), m_message(message)
{
    connect(new QShortcut(QKeySequence::Find, field.window()), &QShortcut::activated, &field,
            &FindField::activate);
    connect(&field, &FindField::searched, this, &SettingFinder::search);
    connect(&field, &FindField::picked, this, &SettingFinder::go);
    connect(&task, &PrintTask::printerClosed, this, &SettingFinder::forget);
    connect(&task, &PrintTask::phaseChanged, this, [this](PrintTask::Phase phase) {
        if (phase == PrintTask::Phase::Opened)
            forget(); // its panels come up, and with them their controls
        else if (phase == PrintTask::Phase::Ready)
            m_field.refresh();
    });
}

void SettingFinder::forget()
{
    m_index = {};
    m_collected.clear();
    m_found.clear();
    m_field.refresh();
}

// Attributes come and go with what is printed, and with others that are set.
void SettingFinder::collect()
{
    if (!m_task.opened() || m_task.phase() == PrintTask::Phase::Opened)
        return;
    QStringList now{QString::number(m_task.passesFilesOn())};
    for (const OfferedAttribute &one : m_task.attributes())
        now += one.name;
    if (now == m_collected)
        return;
    m_index = settingsIndexOf(m_task);
    m_collected = now;
}

void SettingFinder::search(const QString &text)
{
    collect();
    m_found = m_index.find(text);
    if (m_found.isEmpty())
        return sayNothingFound(text);
    QList<FindResult> results;
    for (const FoundSetting &found : std::as_const(m_found)) {
        FindResult result{found.setting.name, valueNow(found.setting, m_task),
                          found.setting.place.titles.join(u" › "_s)};
        if (!found.choice.isNull()) {
            result.title = tr("%1: %2").arg(found.setting.name, found.choice);
            // Beside another choice, the one that is in force could be taken for a part of it.
            result.value = result.value.isEmpty() ? QString() : tr("now %1").arg(result.value);
        }
        results += result;
    }
    m_field.setResults(results);
}

void SettingFinder::sayNothingFound(const QString &text)
{
    if (m_collected.isEmpty())
        return m_field.setNothingFound(tr("The settings of the printer are not known yet."));
    const QString suggestion = m_index.suggestionFor(text);
    m_field.setNothingFound(
        suggestion.isEmpty()
            ? tr("No setting is called “%1”. Try a shorter word, or another one for it.").arg(text)
            : tr("No setting is called “%1”. Press Enter to search for “%2” instead.")
                  .arg(text, suggestion),
        suggestion);
}

void SettingFinder::go(int row)
{
    if (row < 0 || row >= m_found.size())
        return;
    const Setting setting = m_found.at(row).setting;
    m_field.finish();
    const SettingsPages::Shown shown = m_pages.goTo(setting);
    if (!shown.canBeSet) {
        m_pages.tabBar()->setFocus(Qt::OtherFocusReason);
        m_message.showMessage(
            MessageBar::Kind::Information,
            tr("“%1” cannot be changed while other settings are as they are. It is on the page "
               "“%2”.")
                .arg(setting.name, setting.place.titles.join(u" › "_s)));
    }
    if (!shown.control)
        return;
    if (!shown.part.isNull())
        return FoundMark::show(shown.control, shown.part);
    // Later: what was disclosed is laid out by then.
    const QPointer<QWidget> control = shown.control;
    QTimer::singleShot(0, this, [control] {
        if (control && control->isVisible())
            FoundMark::show(control);
    });
}

} // namespace corvana
