#include "dialog/app/PrintDialog.h"

#include <utility>

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "dialog/app/HelpWindow.h"
#include "dialog/app/Language.h"
#include "dialog/app/SilencedAlerts.h"
#include "dialog/app/WindowSize.h"
#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/PanelPage.h"
#include "dialog/pages/SummaryPage.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/Mnemonics.h"

namespace corvana {

namespace {

// The dialog's own help, in the localisation that suits the user best; null when there is none.
QString dialogHelpPage()
{
    const QString folder =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../share/corvana-print/help");
    const QString page =
        QStringLiteral("%1/%2/index.html")
            .arg(folder, Bundle::preferredLocalizations(dialogLocalizations()).value(0));
    return QFileInfo(page).isFile() ? QFileInfo(page).canonicalFilePath() : QString();
}

} // namespace

PrintDialog::PrintDialog(PrintRequest request, QWidget *parent)
    : QDialog(parent), m_request(std::move(request))
{
    buildWindow();
    HelpManager::sharedHelpManager().setViewer(
        [this](const HelpPage &page) { showHelpPage(page); });
    openChosenPrinter();
}

PrintDialog::~PrintDialog()
{
    HelpManager::sharedHelpManager().setViewer(nullptr);
    closePrinter();
}

void PrintDialog::buildWindow()
{
    setWindowTitle(tr("Print"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("document-print")));
    m_printers = new QComboBox(this);
    m_printers->setObjectName(QStringLiteral("printers"));
    for (const Printer &printer : std::as_const(m_request.printers))
        m_printers->addItem(printer.description, printer.name);
    m_printers->setCurrentIndex(m_request.chosenPrinter);
    ignoreWheelWithoutFocus(m_printers);
    m_document = new QLabel(m_request.title, this);
    m_document->setTextFormat(Qt::PlainText);
    m_document->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *header = new QFormLayout;
    header->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    header->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    header->addRow(tr("P&rinter:"), m_printers);
    header->addRow(tr("Document:"), m_document);
    QWidget *outputRow = buildOutputRow();
    header->addRow(tr("Print to &file:"), outputRow);
    // The row itself takes no focus, so the label's key has to lead to its field.
    qobject_cast<QLabel *>(header->labelForField(outputRow))->setBuddy(m_output);

    m_message = new MessageBar(this);
    m_message->setObjectName(QStringLiteral("message"));
    m_pages = new QTabWidget(this);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->setDocumentMode(false);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_message);
    layout->addWidget(m_pages, 1);
    layout->addLayout(buildFooter());
    const int em = fontMetrics().height();
    resize(rememberedWindowSize(QSize(36 * em, 30 * em), screen()->availableSize()));

    addPageShortcuts();
    connect(m_pages, &QTabWidget::currentChanged, this, &PrintDialog::pageEntered);
    connectControlAction(m_printers, [this](QWidget *) {
        if (m_printers->currentIndex() == m_request.chosenPrinter)
            return; // picked again: nothing that was set so far is lost
        m_request.chosenPrinter = m_printers->currentIndex();
        openChosenPrinter();
        bringUpPanels();
    });
}

QLayout *PrintDialog::buildFooter()
{
    m_helpButton = new QPushButton(tr("Help"), this);
    m_helpButton->setObjectName(QStringLiteral("helpButton"));
    m_helpButton->setAutoDefault(false);
    m_helpButton->setShortcut(QKeySequence::HelpContents);
    m_silenced = new QToolButton(this);
    m_silenced->setObjectName(QStringLiteral("silencedAlerts"));
    m_silenced->setText(tr("Show Silenced Messages Again"));
    m_silenced->setAutoRaise(true);
    m_silenced->hide();
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setRange(0, 0); // how many pages there will be is known to nobody
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Printing"));
    m_progress->setMaximumWidth(8 * fontMetrics().height());
    m_progress->hide();
    m_progressText = new QLabel(this);
    m_progressText->setObjectName(QStringLiteral("progressText"));
    m_print = new QPushButton(tr("&Print"), this);
    m_print->setObjectName(QStringLiteral("print"));
    m_print->setDefault(true);
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("cancel"));
    m_cancel->setAutoDefault(false);

    connect(m_helpButton, &QPushButton::clicked, this, &PrintDialog::showHelp);
    connect(m_silenced, &QToolButton::clicked, this, [this] {
        if (!bringAlertsBack(m_printer->bundle->identifier()))
            m_message->showMessage(MessageBar::Kind::Problem,
                                   tr("Your preferences cannot be written."));
        updateSilencedAlerts();
    });
    connect(m_print, &QPushButton::clicked, this, &PrintDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &PrintDialog::reject);

    auto *footer = new QHBoxLayout;
    footer->addWidget(m_helpButton);
    footer->addWidget(m_silenced);
    footer->addStretch();
    footer->addWidget(m_progressText);
    footer->addWidget(m_progress);
    footer->addWidget(m_print);
    footer->addWidget(m_cancel);
    return footer;
}

// The pages turn by keyboard wherever the focus is, not only inside them.
void PrintDialog::addPageShortcuts()
{
    const auto turn = [this](int step) {
        const int pages = m_pages->count();
        if (pages > 0)
            m_pages->setCurrentIndex((m_pages->currentIndex() + step + pages) % pages);
    };
    for (const auto key : {Qt::CTRL | Qt::Key_PageDown, Qt::CTRL | Qt::Key_Tab})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [turn] { turn(1); });
    for (const auto key : {Qt::CTRL | Qt::Key_PageUp, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [turn] { turn(-1); });
}

QWidget *PrintDialog::buildOutputRow()
{
    auto *row = new QWidget(this);
    m_output = new QLineEdit(QDir::toNativeSeparators(m_request.output), row);
    m_output->setObjectName(QStringLiteral("output"));
    m_output->setAccessibleName(tr("Print to file"));
    auto *choose = new QPushButton(tr("C&hoose…"), row);
    choose->setAutoDefault(false);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_output, 1);
    layout->addWidget(choose);
    row->setFocusProxy(m_output);
    connect(choose, &QPushButton::clicked, this, &PrintDialog::chooseOutput);
    return row;
}

void PrintDialog::openChosenPrinter()
{
    closePrinter();
    m_message->dismiss(); // and with it an action that was meant for the other printer
    const Printer &printer = m_request.printers.at(m_request.chosenPrinter);
    QString error;
    m_printer = openPrinter(printer, m_request.bundleRoots, m_presenter, &error);
    m_panelsUp = false;
    m_printable = m_printer && m_printer->panelProblem.isEmpty();
    updatePrintButton();
    if (!m_printer) {
        m_message->showMessage(MessageBar::Kind::Problem, error);
        return;
    }
    if (!m_printable)
        m_message->showMessage(
            MessageBar::Kind::Problem,
            tr("The printer's own settings are missing: %1").arg(m_printer->panelProblem));
    connect(m_printer->panels.get(), &PanelHost::settled, this, &PrintDialog::settled);
    // Later: a panel is in the midst of its work when it says so.
    connect(m_printer->panels.get(), &PanelHost::viewResized, this, &PrintDialog::followPanelView,
            Qt::QueuedConnection);
    updateSilencedAlerts();
    fillPages();
}

void PrintDialog::updatePrintButton()
{
    m_print->setEnabled(m_printable && !m_job);
}

// The panels delete their views, so they go while the pages still stand.
void PrintDialog::closePrinter()
{
    const QSignalBlocker blocker(m_pages);
    if (m_general)
        m_request.copies = m_general->copies(); // goes along to another printer
    m_printer.reset();
    while (m_pages->count() > 0)
        delete m_pages->widget(0);
    m_panelPages.clear();
    m_general = nullptr;
    m_summary = nullptr;
}

void PrintDialog::fillPages()
{
    const QSignalBlocker blocker(m_pages);
    m_general = new GeneralPage(*m_printer->session);
    m_general->setCopies(m_request.copies);
    m_pages->addTab(m_general, tr("General"));
    connect(m_general, &GeneralPage::proposed, this, &PrintDialog::propose);
    for (const auto &panel : m_printer->panels->panels()) {
        auto *page = new PanelPage;
        m_panelPages += page;
        m_pages->addTab(page, withoutMnemonic(panel->panelName()));
    }
    m_summary = new SummaryPage;
    m_pages->addTab(m_summary, tr("Summary"));
    m_general->setFocus();
}

void PrintDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    // The panels come up after the first paint, so that the window is there at once.
    if (!std::exchange(m_painted, true))
        QTimer::singleShot(0, this, &PrintDialog::bringUpPanels);
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
    m_printer->panels->blockSignals(true);
    const OptionOutcome outcome = applyOptions(m_request.options, *m_printer->session,
                                               m_printer->jobValues, *m_printer->panels);
    m_printer->panels->blockSignals(false);
    m_attributes = outcome.attributes;
    for (const JobOption &attribute : std::as_const(m_attributes)) {
        if (attribute.name == kPageRangesAttribute)
            m_general->setPageRanges(attribute.value);
    }
    if (!outcome.ok())
        m_message->showMessage(MessageBar::Kind::Problem,
                               tr("None of the options of the command line was set, because of "
                                  "these:\n%1")
                                   .arg(outcome.problems.join(u'\n')));
    return outcome.ok();
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

// The footer comes behind the pages, whose controls are younger than it.
void PrintDialog::orderFocus()
{
    for (QWidget *control :
         {static_cast<QWidget *>(m_helpButton), static_cast<QWidget *>(m_silenced),
          static_cast<QWidget *>(m_print), static_cast<QWidget *>(m_cancel)})
        setTabOrder(previousInFocusChain(), control);
}

void PrintDialog::refreshPages()
{
    m_general->refresh();
    if (m_pages->currentWidget() == m_summary)
        m_summary->setLines(
            sessionSummary(*m_printer->session, *m_printer->panels, m_general->copies()));
    m_shown = m_printer->session->snapshot();
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
    ppd_option_t *option = ppdOption(m_printer->session->ppd(), choice.keyword);
    const ppd_choice_t *found = ppdChoice(option, choice.choice);
    if (!found)
        return QStringLiteral("%1=%2").arg(choice.keyword, choice.choice);
    return tr("“%1: %2”")
        .arg(ppdText(option->text).value_or(choice.keyword),
             ppdText(found->text).value_or(choice.choice));
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

void PrintDialog::followPanelView()
{
    auto *page = qobject_cast<PanelPage *>(m_pages->currentWidget());
    if (!page)
        return giveHeightBack(m_grownBy);
    const int missing = page->followView();
    if (missing < 0)
        return giveHeightBack(-missing);
    // The window grows with a panel that discloses more, as far as the screen reaches; beyond that
    // the page scrolls.
    const int room = screen()->availableGeometry().bottom() - frameGeometry().bottom();
    growBy(qBound(0, missing, qMax(0, room)));
}

// What a panel needed and needs no more; the height that the user gave the window is the user's.
void PrintDialog::giveHeightBack(int surplus)
{
    growBy(-qMin(surplus, m_grownBy));
}

void PrintDialog::growBy(int pixels)
{
    if (pixels == 0)
        return;
    m_grownBy += pixels;
    m_followed = size() + QSize(0, pixels);
    resize(m_followed);
}

void PrintDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (event->size() != m_followed)
        m_grownBy = 0; // this size is the user's
}

void PrintDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return; // minimised
    const QSize own = isMaximized() ? normalGeometry().size() : size();
    rememberWindowSize({own.width(), own.height() - (isMaximized() ? 0 : m_grownBy)});
}

void PrintDialog::showHelp()
{
    const int panel = panelOfPage(m_pages->currentIndex());
    const bool panelHasNoHelp =
        panel < 0 || m_printer->panels->panels().at(panel)->shouldShowHelp();
    if (!panelHasNoHelp)
        return;
    const QString page = dialogHelpPage();
    if (page.isNull())
        m_message->showMessage(MessageBar::Kind::Problem, tr("The help is not installed."));
    else
        showHelpPage({tr("Help on Printing"), page, QString()});
}

void PrintDialog::showHelpPage(const HelpPage &page)
{
    if (!m_help)
        m_help = new HelpWindow(this);
    m_help->open(page);
}

void PrintDialog::updateSilencedAlerts()
{
    m_silenced->setVisible(m_printer && m_printer->bundle &&
                           hasSilencedAlerts(m_printer->bundle->identifier()));
}

} // namespace corvana
