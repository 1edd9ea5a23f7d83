#include "dialog/app/PrintDialog.h"

#include <utility>

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
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
#include "dialog/chooser/ElidedLabel.h"
#include "dialog/chooser/PrinterComboBox.h"
#include "dialog/chooser/PrinterStatusLine.h"
#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/OptionsPage.h"
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

Q_LOGGING_CATEGORY(lcDialog, "corvana.dialog.window", QtWarningMsg)

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

void PrintDialog::buildWindow()
{
    setWindowTitle(tr("Print"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("document-print")));
    m_printers = new PrinterComboBox(this);
    m_printers->setObjectName(QStringLiteral("printers"));
    m_status = new PrinterStatusLine(this);
    m_status->setObjectName(QStringLiteral("printerStatus"));
    m_document = new QLabel(m_request.title, this);
    m_document->setTextFormat(Qt::PlainText);
    m_document->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *header = new QFormLayout;
    header->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    header->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    header->addRow(tr("P&rinter:"), m_printers);
    header->addRow(QString(), m_status);
    header->addRow(tr("Document:"), m_document);
    m_outputRow = buildOutputRow();
    header->addRow(buildOutputLabel(), m_outputRow);

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
    resize(rememberedWindowSize(QSize(36 * em, 31 * em), screen()->availableSize()));

    addPageShortcuts();
    connect(m_pages, &QTabWidget::currentChanged, this, &PrintDialog::pageEntered);
    connectControlAction(m_printers, [this](QWidget *) {
        const std::optional<Printer> picked = m_printers->currentPrinter();
        if (!picked || idOf(*picked) == idOf(m_chosen))
            return; // picked again: nothing that was set so far is lost
        m_chosenByUser = true;
        choosePrinter(*picked);
    });
}

// A queue can be printed to a file instead; what else is there prints nowhere but to a file.
QWidget *PrintDialog::buildOutputLabel()
{
    auto *label = new QWidget(this);
    m_toFile = new QCheckBox(tr("Print to &file:"), label);
    m_toFile->setObjectName(QStringLiteral("toFile"));
    m_toFileLabel = new QLabel(tr("Print to &file:"), label);
    m_toFileLabel->setBuddy(m_output);
    auto *layout = new QHBoxLayout(label);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_toFile);
    layout->addWidget(m_toFileLabel);
    // As wide with either, so that another printer does not move the fields of the header.
    label->setMinimumWidth(m_toFile->sizeHint().width());
    connect(m_toFile, &QCheckBox::clicked, this, [this] {
        updateDestination();
        if (m_toFile->isChecked())
            m_output->setFocus();
    });
    return label;
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
    m_progressText = new ElidedLabel(this);
    m_progressText->setObjectName(QStringLiteral("progressText"));
    m_progressText->hide();
    m_print = new QPushButton(tr("&Print"), this);
    m_print->setObjectName(QStringLiteral("print"));
    m_print->setDefault(true);
    m_leave = new QPushButton(tr("C&lose"), this);
    m_leave->setObjectName(QStringLiteral("leave"));
    m_leave->setAutoDefault(false);
    m_leave->setToolTip(tr("The job goes on without this window."));
    m_leave->hide();
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
    connect(m_leave, &QPushButton::clicked, this, &PrintDialog::leave);
    connect(m_cancel, &QPushButton::clicked, this, &PrintDialog::reject);

    // In a row of its own: beside the buttons it would widen the window while it prints.
    auto *progress = new QHBoxLayout;
    progress->addWidget(m_progressText, 1);
    progress->addWidget(m_progress);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_helpButton);
    buttons->addWidget(m_silenced);
    buttons->addStretch();
    buttons->addWidget(m_print);
    buttons->addWidget(m_leave);
    buttons->addWidget(m_cancel);
    auto *footer = new QVBoxLayout;
    footer->addLayout(progress);
    footer->addLayout(buttons);
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

void PrintDialog::updatePrintButton()
{
    m_print->setEnabled(m_printable && !isPrinting());
}

// The panels delete their views, so they go while the pages still stand.
void PrintDialog::closePrinter()
{
    const QSignalBlocker blocker(m_pages);
    if (m_general) { // both go along to another printer
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
    m_general->setCopies(m_request.copies);
    m_openedCopies = m_request.copies;
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
        QTimer::singleShot(0, this, &PrintDialog::bringUpPanels);
        // After that, so that nothing of it delays what is on the screen already.
        QTimer::singleShot(0, &m_source, &PrinterSource::start);
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
        m_general->setCopies(kept->copies);
        if (!problems.isEmpty())
            m_message->showMessage(
                MessageBar::Kind::Problem,
                tr("Not everything could be set as before:\n%1").arg(problems.join(u'\n')));
        showPageRanges();
        return true;
    }
    if (m_printer->printer.origin == PrinterOrigin::Queue) {
        const FittedOptions fitted =
            applyWhatFits(readUserQueues().options.value(name), *m_printer);
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
    m_openedCopies = *copies;
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

// The footer comes behind the pages, whose controls are younger than it.
void PrintDialog::orderFocus()
{
    for (QWidget *control : {static_cast<QWidget *>(m_helpButton),
                             static_cast<QWidget *>(m_silenced), static_cast<QWidget *>(m_print),
                             static_cast<QWidget *>(m_leave), static_cast<QWidget *>(m_cancel)})
        setTabOrder(previousInFocusChain(), control);
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

// Closing the window is no order to cancel what is being printed; that is what Cancel is for.
void PrintDialog::closeEvent(QCloseEvent *event)
{
    if (!m_serverJob || !m_serverJob->isHandedOver())
        return QDialog::closeEvent(event);
    leave();
    event->ignore(); // the job's end closes it
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
