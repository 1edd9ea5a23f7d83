#include "dialog/window/SettingsPages.h"

#include <QAbstractButton>
#include <QVBoxLayout>

#include "dialog/task/PrintTask.h"
#include "dialog/task/SettingsIndex.h"
#include "dialog/window/FocusInSight.h"
#include "dialog/window/pages/GeneralPage.h"
#include "dialog/window/pages/OptionsPage.h"
#include "dialog/window/pages/PanelPage.h"
#include "platform/pde/PDEPanel.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

bool canFocus(const QWidget *widget)
{
    return widget->isEnabled() && !widget->isHidden() && widget->focusPolicy() != Qt::NoFocus;
}

// Of a column of buttons, the one that is on.
QWidget *focusIn(QWidget *control)
{
    if (canFocus(control))
        return control;
    QWidget *first = nullptr;
    for (QWidget *child : control->findChildren<QWidget *>()) {
        const auto *button = qobject_cast<QAbstractButton *>(child);
        if (!canFocus(child))
            continue;
        if (button && button->isChecked())
            return child;
        first = first ? first : child;
    }
    return first;
}

} // namespace

// Options that no panel has a control for, and no other page. The list has every option of the
// printer all the same: who looks for one that he knows by its keyword finds it there.
void SettingsPages::addAllOptions()
{
    if (m_panelPages.isEmpty() || optionsBesidePages(*m_task.opened()).isEmpty())
        return;
    m_optionsTab = new QWidget;
    m_optionsTab->setObjectName(u"allOptions"_s);
    auto *layout = new QVBoxLayout(m_optionsTab);
    layout->setContentsMargins(0, 0, 0, 0);
    const QSignalBlocker blocker(this);
    insertTab(indexOf(m_panelPages.constLast()) + 1, m_optionsTab, tr("All Options"));
}

// Few look at all options: they are listed when somebody does.
void SettingsPages::makeOptions()
{
    if (m_options)
        return;
    const OpenedPrinter &printer = *m_task.opened();
    m_options = new OptionsPage(*printer.session, {ListedOptions::Which::All, printer.jobValues});
    m_optionsTab->layout()->addWidget(m_options);
    m_optionsTab->setFocusProxy(m_options);
    // At once, so that a row can be gone to.
    m_options->show();
    m_optionsTab->layout()->activate();
    connect(m_options, &OptionsPage::proposed, &m_task, &PrintTask::propose);
    connect(m_options, &OptionsPage::resetWanted, this, &SettingsPages::reset);
    m_options->showChanges(changesNow());
    Q_EMIT controlsAdded();
}

SettingsPages::Shown SettingsPages::goTo(const Setting &setting)
{
    if (!m_general || !m_showsPanels)
        return {};
    if (setting.place.page == SettingPlace::Page::Options) {
        if (!m_optionsTab)
            return {};
        setCurrentWidget(m_optionsTab);
        makeOptions();
        const OptionsPage::Row row = m_options->goTo(setting.keyword);
        return {row.view, row.place, row.view != nullptr};
    }
    QWidget *control = disclose(setting);
    if (!control)
        return {};
    // What was disclosed is laid out only now.
    currentWidget()->ensurePolished();
    scrollIntoSight(control);
    QWidget *focus = control->isVisible() ? focusIn(control) : nullptr;
    if (focus)
        focus->setFocus(Qt::ShortcutFocusReason);
    return {control, {}, focus != nullptr};
}

QWidget *SettingsPages::disclose(const Setting &setting)
{
    if (setting.place.page == SettingPlace::Page::General) {
        setCurrentWidget(m_general);
        return m_general->disclose(setting.keyword);
    }
    PanelHost &panels = *m_task.opened()->panels;
    const int panel = panels.panelOf(setting.keyword);
    if (panel < 0)
        return nullptr;
    setCurrentWidget(m_panelPages.at(panel));
    if (currentWidget() != m_panelPages.at(panel))
        return nullptr; // the panel that is visible does not let go
    panels.disclose(setting.keyword);
    for (const PanelControl &control : panels.controls(panel)) {
        if (control.keyword == setting.keyword)
            return control.control;
    }
    return nullptr;
}

} // namespace corvana
