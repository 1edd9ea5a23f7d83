#include "dialog/window/SettingsPages.h"

#include <utility>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/session/OptionNames.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/window/PageChoosing.h"
#include "dialog/window/pages/ControlLock.h"
#include "dialog/window/pages/GeneralPage.h"
#include "dialog/window/pages/OptionsPage.h"
#include "dialog/window/pages/PanelPage.h"
#include "dialog/window/pages/SummaryPage.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// What the pages ask for at most, of the height of the screen: one part of so many.
constexpr int kLeastPart = 4;
// On a screen that is lower, they leave all to what stands around them: a message must not push the
// buttons below its edge. Units: heights of the font.
constexpr int kLowScreen = 24;

} // namespace

SettingsPages::SettingsPages(PrintTask &task, QWidget *parent)
    : QTabWidget(parent), m_task(task), m_panelMarks(new ChangeMarks(this))
{
    setObjectName(u"pages"_s);
    setDocumentMode(false);
    makeTabsAccessible(this);
    // The tabs have the focus, what holds them has none.
    setFocusPolicy(Qt::NoFocus);
    tabBar()->setFocusPolicy(Qt::TabFocus);
    connect(this, &QTabWidget::currentChanged, this, &SettingsPages::enter);
    connect(&m_task, &PrintTask::sheetsCounted, this, &SettingsPages::showCountedSheets);
    connect(&m_task.history(), &TaskHistory::changed, this, &SettingsPages::showChanges);
    connect(m_panelMarks, &ChangeMarks::resetWanted, this, &SettingsPages::reset);
}

QSize SettingsPages::minimumSizeHint() const
{
    const QSize least = QTabWidget::minimumSizeHint();
    const int available = screen()->availableSize().height();
    const bool isLow = available < kLowScreen * fontMetrics().height();
    const int bound = isLow ? tabBar()->sizeHint().height() : available / kLeastPart;
    return {least.width(), qMin(least.height(), bound)};
}

void SettingsPages::open()
{
    close();
    const QSignalBlocker blocker(this);
    addPages();
    // The same printer, with other options.
    for (int page = 0; page < count(); ++page) {
        if (tabText(page) == m_former)
            setCurrentIndex(page);
    }
}

void SettingsPages::addPages()
{
    addGeneral();
    const OpenedPrinter &printer = *m_task.opened();
    for (const auto &panel : printer.panels->panels()) {
        auto *page = new PanelPage;
        m_panelPages += page;
        addTab(page, withoutMnemonic(panel->panelName()));
    }
    if (m_panelPages.isEmpty() && OptionsPage::hasOptions(*printer.session)) {
        m_options = new OptionsPage(*printer.session);
        m_optionsTab = m_options;
        addTab(m_options, tr("Options"));
        connect(m_options, &OptionsPage::proposed, &m_task, &PrintTask::propose);
        connect(m_options, &OptionsPage::resetWanted, this, &SettingsPages::reset);
    }
    m_summary = new SummaryPage;
    connect(m_summary, &SummaryPage::settingWanted, this,
            [this](const QString &name) { goTo(name); });
    addTab(m_summary, tr("Summary"));
    takeFocus();
}

// Who chooses a printer by keys, or types elsewhere while one is asked for, goes on doing so.
void SettingsPages::takeFocus()
{
    const QWidget *focus = window()->focusWidget();
    const bool isFirst = !std::exchange(m_tookFocus, true);
    if (!focus || isAncestorOf(focus) || (isFirst && !qobject_cast<const QLineEdit *>(focus)))
        m_general->setFocus();
}

void SettingsPages::addGeneral()
{
    m_general = new GeneralPage(*m_task.opened()->session, m_task.opened()->jobValues);
    m_general->setMostCopies(m_task.settings().mostCopies());
    m_general->setCopies(m_task.settings().copies());
    addTab(m_general, tr("General"));
    connect(m_general, &GeneralPage::proposed, &m_task, &PrintTask::propose);
    connect(m_general, &GeneralPage::copiesEdited, this, [this](int copies) {
        m_task.setCopies(copies);
        showAttributes(); // some of them are about several copies
        Q_EMIT jobEdited();
    });
    connect(m_general, &GeneralPage::pageRangesEdited, this, [this](const QString &ranges) {
        m_task.setPageRanges(ranges);
        Q_EMIT jobEdited();
    });
    connect(m_general, &GeneralPage::attributeProposed, this,
            [this](const QString &name, const QString &value) {
                m_general->showAttributeProblem(name, m_task.setAttribute(name, value));
            });
    connect(m_general, &GeneralPage::choosePagesPressed, this,
            [this] { choosePages(m_task, window()); });
    connect(m_general, &GeneralPage::resetWanted, this, &SettingsPages::reset);
    connect(m_general, &GeneralPage::heightChanged, this, &SettingsPages::heightChanged);
    m_general->setCanChoosePages(!m_task.documents().isEmpty());
    showLocks();
    showAttributes();
}

void SettingsPages::showAttributes()
{
    m_general->setAttributes(m_task.attributes());
}

bool SettingsPages::showPanels()
{
    if (std::exchange(m_showsPanels, true))
        return false;
    showPanelViews();
    addAllOptions();
    m_summary->build();
    enter(currentIndex());
    showChanges();
    return true;
}

void SettingsPages::showPanelViews()
{
    const OpenedPrinter &printer = *m_task.opened();
    for (int i = 0; i < m_panelPages.size(); ++i) {
        if (QWidget *view = printer.panels->views().at(i))
            m_panelPages.at(i)->setPanelView(view); // showLocks() looks for what is locked in it
        else
            m_panelPages.at(i)->setProblem(
                tr("This page cannot be shown: %1").arg(printer.panelProblem));
    }
}

void SettingsPages::close()
{
    const QSignalBlocker blocker(this);
    if (m_general)
        m_former = tabText(currentIndex());
    m_panelMarks->show({}, {});
    // What they show has gone: none may come up in the place of another one, nor the list of
    // options, which reads what it shows, get another size.
    delete m_options;
    while (count() > 1)
        delete widget(currentIndex() == 0 ? 1 : 0);
    delete currentWidget();
    m_panelPages.clear();
    m_showsPanels = false;
    m_general = nullptr;
    m_optionsTab = nullptr;
    m_options = nullptr;
    m_summary = nullptr;
}

void SettingsPages::showWaiting(const QString &text, bool canRetry)
{
    // Said again every few seconds, it must not take the focus away.
    const auto *shown = findChild<QLabel *>(u"waitingText"_s);
    if (shown && shown->text() == text)
        return;
    close();
    m_former.clear(); // another printer begins at its first page
    const QSignalBlocker blocker(this);
    auto *page = new QWidget;
    page->setObjectName(u"waiting"_s);
    QLabel *label = plainLabel(text, page);
    label->setObjectName(u"waitingText"_s);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(label);
    if (canRetry) {
        auto *retry = new QPushButton(tr("Try Again"), page);
        retry->setObjectName(u"retry"_s);
        retry->setAutoDefault(false);
        connect(retry, &QPushButton::clicked, this, [this, retry] {
            retry->setEnabled(false); // a second press would take the first try back
            // Later: the button, which the next page replaces, is in the midst of its work.
            QTimer::singleShot(0, this, &SettingsPages::retryPressed);
        });
        layout->addWidget(retry, 0, Qt::AlignHCenter);
    }
    layout->addStretch();
    addTab(page, tr("General"));
    announce(this, text);
}

void SettingsPages::refresh()
{
    if (!m_general)
        return;
    const JobSettings &settings = m_task.settings();
    m_general->setMostCopies(settings.mostCopies());
    m_general->offerPageRanges(!m_task.passesFilesOn());
    m_general->setCanChoosePages(!m_task.documents().isEmpty());
    m_general->setCopies(settings.copies());
    // As it was typed, the text may hold blanks.
    if (m_general->pageRanges() != settings.pageRanges())
        m_general->setPageRanges(settings.pageRanges());
    m_general->refresh();
    showLocks();
    showAttributes();
    if (m_options)
        m_options->refresh();
    showSummary();
}

// Controls that belong to panels are found by what the panels say of them.
void SettingsPages::showLocks()
{
    m_general->setLocks(m_task.lockedBy(kCopiesAttribute), m_task.lockedBy(kPageRangesAttribute));
    if (!m_showsPanels || m_task.opened()->session->locks().isEmpty())
        return;
    for (int i = 0; i < m_panelPages.size(); ++i) {
        const QList<PanelControl> controls = m_task.opened()->panels->controls(i);
        for (const PanelControl &one : controls) {
            const QString why = m_task.lockedBy(one.keyword);
            ControlLock::set(one.control, why, one.label);
            for (QWidget *companion : one.companions)
                ControlLock::set(companion, why);
        }
    }
}

// Counted is only for somebody who looks at it.
void SettingsPages::showSummary()
{
    if (!m_summary || currentWidget() != m_summary)
        return;
    setSummaryLines(m_task.summary());
    m_task.countSheets();
}

void SettingsPages::showCountedSheets()
{
    if (m_summary && currentWidget() == m_summary)
        setSummaryLines(m_task.summary());
}

bool SettingsPages::finishEditing()
{
    if (m_general && !m_general->finishEditing()) {
        setCurrentWidget(m_general);
        m_general->finishEditing(); // the focus goes only where it is seen
        return false;
    }
    if (!m_options || m_options->finishEditing())
        return true;
    setCurrentWidget(m_optionsTab);
    m_options->focusEditor();
    return false;
}

void SettingsPages::showPageRanges()
{
    setCurrentWidget(m_general);
    m_general->focusPageRanges();
}

int SettingsPages::currentPanel() const
{
    return static_cast<int>(m_panelPages.indexOf(currentPanelPage()));
}

PanelPage *SettingsPages::currentPanelPage() const
{
    return qobject_cast<PanelPage *>(currentWidget());
}

std::optional<int> SettingsPages::missingHeight() const
{
    if (PanelPage *page = currentPanelPage())
        return page->followView();
    return currentWidget() == m_general && m_general ? m_general->missingHeight() : std::nullopt;
}

void SettingsPages::turn(int step)
{
    if (count() > 0)
        setCurrentIndex((currentIndex() + step + count()) % count());
}

void SettingsPages::enter(int)
{
    if (!m_general || m_task.phase() == PrintTask::Phase::Opened)
        return;
    if (currentWidget() == m_optionsTab)
        makeOptions();
    PanelHost &panels = *m_task.opened()->panels;
    if (!panels.visit(currentPanel())) {
        const QSignalBlocker blocker(this);
        setCurrentWidget(m_panelPages.at(panels.visiblePanel()));
    }
    m_task.showSettings();
    Q_EMIT entered();
}

} // namespace corvana
