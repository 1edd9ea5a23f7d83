#include "dialog/app/PrintDialog.h"

#include <utility>

#include <QLoggingCategory>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include "dialog/app/WindowSize.h"
#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/OptionsPage.h"
#include "dialog/pages/PanelPage.h"
#include "dialog/pages/SummaryPage.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/Mnemonics.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcDialog, "corvana.dialog.window", QtWarningMsg)

PrintDialog::PrintDialog(PrintRequest request, QWidget *parent)
    : QDialog(parent), m_request(std::move(request)), m_credentials(CredentialStore::create()),
      m_source(m_request, ServerContext{m_request.server, m_credentials})
{
    buildWindow();
    HelpManager::sharedHelpManager().setViewer(
        [this](const HelpPage &page) { showHelpPage(page); });
    setUpPrinters();
}

PrintDialog::~PrintDialog()
{
    m_credentials->setQuestioner(nullptr);
    HelpManager::sharedHelpManager().setViewer(nullptr);
    closePrinter();
}

void PrintDialog::updatePrintButton()
{
    m_print->setEnabled(m_printable && !isPrinting());
}

// The panels delete their views, so they go while the pages still stand.
void PrintDialog::closePrinter()
{
    const QSignalBlocker blocker(m_pages);
    if (m_general) { // both go along to another printer
        // What is only as many as this printer prints is no wish.
        if (m_general->copies() != m_openedCopies) {
            m_request.copies = m_general->copies();
            m_copiesSet = true;
        }
        if (m_panelsUp)
            m_pageRanges = m_general->pageRanges();
    }
    m_printer.reset();
    updateSilencedAlerts();
    while (m_pages->count() > 0)
        delete m_pages->widget(0);
    m_panelPages.clear();
    m_general = nullptr;
    m_options = nullptr;
    m_summary = nullptr;
}

void PrintDialog::fillPages()
{
    const QSignalBlocker blocker(m_pages);
    m_general = new GeneralPage(*m_printer->session);
    if (m_printer->capabilities)
        m_general->setMostCopies(m_printer->capabilities->maximumCopies);
    m_general->setCopies(m_request.copies);
    m_openedCopies = m_general->copies();
    if (m_general->copies() < m_request.copies)
        m_message->showMessage(
            MessageBar::Kind::Information,
            tr("This printer prints at most %1 copies at once.").arg(m_general->mostCopies()));
    m_pages->addTab(m_general, tr("General"));
    connect(m_general, &GeneralPage::proposed, this, &PrintDialog::propose);
    for (const auto &panel : m_printer->panels->panels()) {
        auto *page = new PanelPage;
        m_panelPages += page;
        m_pages->addTab(page, withoutMnemonic(panel->panelName()));
    }
    if (m_panelPages.isEmpty() && OptionsPage::hasOptions(*m_printer->session)) {
        m_options = new OptionsPage(*m_printer->session);
        m_pages->addTab(m_options, tr("Options"));
        connect(m_options, &OptionsPage::proposed, this, &PrintDialog::propose);
    }
    m_summary = new SummaryPage;
    m_pages->addTab(m_summary, tr("Summary"));
    m_general->setFocus();
}

void PrintDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    // The panels come up after the first paint, so that the window is there at once.
    if (!std::exchange(m_painted, true)) {
        // Only a window that is there has the frame that its screen gives it.
        QTimer::singleShot(0, this, [this] {
            const bool asOpened = size() == m_given;
            keepOnScreen(this);
            if (asOpened)
                m_given = size();
        });
        QTimer::singleShot(0, this, &PrintDialog::bringUpPanels);
        // After that, so that nothing of it delays what is on the screen already.
        QTimer::singleShot(0, this, &PrintDialog::followList);
    }
}

// Brings the panels up and the requested options in, once for a printer. False when the options
// could not be taken; the message then says why.
bool PrintDialog::bringUpPanels()
{
    if (!m_printer || std::exchange(m_panelsUp, true))
        return true;
    m_printer->panels->bringUp();
    showPanelViews();
    orderFocus();
    const bool applied = applyRequestedOptions();
    m_opened = m_printer->session->snapshot();
    refreshPages();
    pageEntered(m_pages->currentIndex());
    return applied;
}

void PrintDialog::showPanelViews()
{
    const QString problem = takeInterfaceProblems().join(u'\n');
    for (int i = 0; i < m_panelPages.size(); ++i) {
        if (QWidget *view = m_printer->panels->views().at(i)) {
            m_panelPages.at(i)->setPanelView(view);
            continue;
        }
        m_panelPages.at(i)->setProblem(tr("This page cannot be shown: %1").arg(problem));
        // Without its controls a panel would print other choices than with them.
        m_printable = false;
        m_message->showMessage(
            MessageBar::Kind::Problem,
            tr("A page of the printer's settings cannot be shown: %1").arg(problem));
    }
    updatePrintButton();
}

bool PrintDialog::applyRequestedOptions()
{
    // What happens on the way is part of the outcome, not an event of the user's.
    const QSignalBlocker blocker(m_printer->panels.get());
    m_attributes.clear();
    const QString &name = m_printer->printer.name;
    QStringList problems;
    if (const auto kept = m_kept.constFind(idOf(m_printer->printer)); kept != m_kept.constEnd()) {
        const FittedOptions fitted = applyWhatFits(kept->options, *m_printer);
        problems = fitted.problems;
        m_attributes = fitted.attributes;
        if (!m_copiesSet) {
            m_general->setCopies(kept->copies);
            m_openedCopies = m_general->copies();
        }
        if (!problems.isEmpty())
            m_message->showMessage(
                MessageBar::Kind::Problem,
                tr("Not everything could be set as before:\n%1").arg(problems.join(u'\n')));
        showPageRanges();
        return true;
    }
    if (m_printer->printer.origin == PrinterOrigin::Queue) {
        const FittedOptions fitted = applyWhatFits(readUserQueues().optionsOf(name), *m_printer);
        m_attributes = fitted.attributes;
        takeCopies(fitted.copies);
        for (const QString &problem : fitted.problems)
            qCWarning(lcDialog).noquote() << "lpoptions:" << problem;
    }
    const OptionOutcome outcome = applyOptions(m_request.options, *m_printer->session,
                                               m_printer->jobValues, *m_printer->panels);
    takeCopies(outcome.copies);
    for (const JobOption &attribute : outcome.attributes) {
        m_attributes.removeIf([&](const JobOption &a) { return a.name == attribute.name; });
        m_attributes += attribute;
    }
    showPageRanges();
    if (!outcome.ok())
        m_message->showMessage(MessageBar::Kind::Problem,
                               tr("None of the options of the command line was set, because of "
                                  "these:\n%1")
                                   .arg(outcome.problems.join(u'\n')));
    return outcome.ok();
}

// A number of copies that an option asks for; what the user has set, or named with -n, counts more.
void PrintDialog::takeCopies(std::optional<int> copies)
{
    if (!copies || m_request.copiesWereNamed || m_copiesSet)
        return;
    m_general->setCopies(*copies);
    m_openedCopies = m_general->copies();
}

void PrintDialog::showPageRanges()
{
    if (m_pageRanges)
        return m_general->setPageRanges(*m_pageRanges);
    for (const JobOption &attribute : std::as_const(m_attributes)) {
        if (attribute.name == kPageRangesAttribute)
            m_general->setPageRanges(attribute.value);
    }
}

int PrintDialog::panelOfPage(int page) const
{
    return m_panelPages.indexOf(qobject_cast<PanelPage *>(m_pages->widget(page)));
}

void PrintDialog::pageEntered(int page)
{
    if (!m_printer || !m_panelsUp)
        return;
    if (!m_printer->panels->visit(panelOfPage(page))) {
        const QSignalBlocker blocker(m_pages);
        m_pages->setCurrentWidget(m_panelPages.at(m_printer->panels->visiblePanel()));
    }
    refreshPages();
    followPanelView();
}

void PrintDialog::refreshPages()
{
    m_general->refresh();
    if (m_options)
        m_options->refresh();
    if (m_pages->currentWidget() == m_summary)
        m_summary->setLines(summary());
    m_shown = m_printer->session->snapshot();
}

QList<SummaryLine> PrintDialog::summary()
{
    QList<JobOption> attributes = m_attributes;
    attributes.removeIf(
        [](const JobOption &attribute) { return attribute.name == kPageRangesAttribute; });
    if (const QString ranges = m_general->pageRanges(); !ranges.isEmpty())
        attributes += JobOption{kPageRangesAttribute, ranges};
    return sessionSummary(*m_printer->session, *m_printer->panels, m_general->copies(), attributes);
}

void PrintDialog::propose(const QString &keyword, const QString &choice)
{
    bringUpPanels();
    m_message->dismiss();
    const ChangeResult result =
        m_printer->session->change(keyword, choice, PpdSession::Origin::Dialog);
    if (!result.accepted()) {
        showRefusal({{keyword, choice}, result.conflicting});
        m_general->refresh();
    }
}

void PrintDialog::settled()
{
    const QList<Refusal> refusals = m_printer->session->takeRefusals();
    for (const Refusal &refusal : refusals)
        showRefusal(refusal);
    // Refreshing asks the panels, which save again: only a state that is really another one counts.
    if (m_printer->session->snapshot() != m_shown || !refusals.isEmpty())
        refreshPages();
    updateSilencedAlerts();
}

QString PrintDialog::textOf(const OptionChoice &choice) const
{
    const PpdSession &session = *m_printer->session;
    ppd_option_t *option = ppdOption(session.ppd(), choice.keyword);
    // A marked choice is "Custom" and nothing else; what is proposed says its value itself.
    const QString marked = session.customValue(choice.keyword);
    const QString custom =
        choice.choice == kCustomChoice && !marked.isNull() ? marked : choice.choice;
    const ppd_choice_t *found = ppdChoice(option, choice.choice);
    QString value = found ? ppdText(found->text).value_or(choice.choice) : choice.choice;
    if (custom.startsWith(kCustomPrefix))
        value = customText(session, choice.keyword, custom);
    return tr("“%1: %2”")
        .arg(option ? ppdText(option->text).value_or(choice.keyword) : choice.keyword, value);
}

void PrintDialog::showRefusal(const Refusal &refusal)
{
    QStringList others;
    for (const OptionChoice &other : refusal.conflicting)
        others += textOf(other);
    const QString text = tr("%1 cannot be combined with %2.")
                             .arg(textOf(refusal.proposed), others.join(tr(" and ")));
    const QList<OptionChoice> wayOut = m_printer->session->wayOut(refusal.proposed);
    if (wayOut.isEmpty())
        return m_message->showMessage(MessageBar::Kind::Problem, text);
    QStringList changes;
    for (const OptionChoice &change : wayOut)
        changes += textOf(change);
    m_message->showMessage(
        MessageBar::Kind::Problem, text, tr("Change to %1").arg(changes.join(tr(" and "))),
        [this, wayOut, refusal] {
            m_printer->session->changeTogether(QList<OptionChoice>(wayOut) << refusal.proposed);
            m_printer->panels->deliverPending();
            refreshPages();
        });
}

} // namespace corvana
