#include "dialog/app/PrintDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/app/CredentialsDialog.h"
#include "dialog/app/QueueOpening.h"
#include "dialog/chooser/PrinterComboBox.h"
#include "dialog/chooser/PrinterStatusLine.h"
#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/OptionsPage.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

namespace {

// How long what would take a printer away waits for the user to be done with it. Units:
// milliseconds.
constexpr int kPatience = 200;

// An alert of a panel, an open list of one of its controls: its code is running.
bool userIsInTheMidstOfIt()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

} // namespace

void PrintDialog::setUpPrinters()
{
    m_credentials->setQuestioner(
        [this](const CredentialsQuestion &question, const CredentialStore::Answer &answer) {
            askCredentials(question, answer);
        });
    connect(&m_source, &PrinterSource::ready, this, &PrintDialog::printerReady);
    connect(&m_source, &PrinterSource::checked, this, &PrintDialog::printerChecked);
    connect(&m_source, &PrinterSource::failed, this, &PrintDialog::printerFailed);
    connect(&m_source, &PrinterSource::betterQueueFound, this, &PrintDialog::offerQueue);
    connect(&m_source, &PrinterSource::listChanged, this, &PrintDialog::printersListed);
    m_toFile->setChecked(m_request.outputWasNamed);
    choosePrinter(m_source.first());
    m_chosenByUser = !m_source.firstIsProvisional();
    showListState();
}

void PrintDialog::askCredentials(const CredentialsQuestion &question,
                                 const CredentialStore::Answer &answer)
{
    auto *dialog = new CredentialsDialog(question, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_source.questionPut();
    connect(dialog, &QDialog::finished, this, [this, dialog, answer](int result) {
        m_source.questionAnswered();
        answer(result == QDialog::Accepted ? std::optional(dialog->credentials()) : std::nullopt);
    });
    dialog->open();
}

void PrintDialog::choosePrinter(const Printer &printer)
{
    keepSettings();
    closePrinter();
    m_message->dismiss(); // and with it an action that was meant for the other printer
    m_chosen = printer;
    m_comesNext.reset();
    m_printable = false;
    m_status->setPrinter(printer);
    updateDestination();
    if (printer.origin != PrinterOrigin::PpdFile)
        showAsking();
    updatePrintButton();
    m_source.open(printer);
    m_printers->setPrinters(m_source.printers());
    m_printers->setCurrentPrinter(idOf(printer));
}

void PrintDialog::printerReady(const FetchedPrinter &ready)
{
    // A printer is not taken away while it prints or one of its panels is at work.
    if (m_printer && (isPrinting() || userIsInTheMidstOfIt())) {
        m_comesNext = ready;
        QTimer::singleShot(kPatience, this, [this] {
            if (m_comesNext && !isPrinting())
                printerReady(FetchedPrinter(*m_comesNext));
        });
        return;
    }
    m_comesNext.reset();
    const bool again = m_printer != nullptr;
    keepSettings();
    const QString page = again ? m_pages->tabText(m_pages->currentIndex()) : QString();
    openPrinter(ready);
    if (!again)
        return;
    for (int i = 0; i < m_pages->count(); ++i) {
        if (m_pages->tabText(i) == page)
            m_pages->setCurrentIndex(i);
    }
    if (m_message->text().isEmpty())
        m_message->showMessage(MessageBar::Kind::Information,
                               tr("The options of the printer have changed at its server; yours "
                                  "were kept."));
}

void PrintDialog::openPrinter(const FetchedPrinter &ready)
{
    closePrinter();
    m_chosen = ready.printer;
    m_status->setPrinter(m_chosen);
    QString error;
    m_printer = corvana::openPrinter(ready, m_request.bundleRoots, m_presenter, &error);
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
    updateDestination();
    if (m_painted)
        bringUpPanels();
}

void PrintDialog::printerChecked(const FetchedPrinter &checked)
{
    m_chosen = checked.printer;
    m_status->setPrinter(m_chosen);
    if (!m_printer)
        return;
    if (m_comesNext)
        return; // it speaks of the one that takes its place
    m_printer->fetched = checked;
}

void PrintDialog::printerFailed(const QString &problem, const QString &brief)
{
    if (m_printer)
        return m_status->setProblem(brief, [this] { m_source.retry(); });
    m_status->setProblem(brief);
    // The same again, every few seconds, must not take the focus away.
    const auto *shown = m_pages->findChild<QLabel *>(QStringLiteral("waitingText"));
    if (!shown || shown->text() != problem)
        showWaiting(problem, true);
}

void PrintDialog::offerQueue(const Printer &printer)
{
    if (isPrinting() || !m_message->text().isEmpty())
        return; // something that matters more is being said
    m_message->showMessage(
        MessageBar::Kind::Information,
        tr("The queue “%1” leads to the same printer, and has pages with all of its settings.")
            .arg(printer.description),
        tr("Use “%1”").arg(printer.description), [this, printer] {
            m_chosenByUser = true;
            choosePrinter(printer);
        });
}

void PrintDialog::showAsking()
{
    showWaiting(tr("Asking “%1” for the options of the printer…")
                    .arg(m_source.serverOf(m_chosen).address.text()),
                false);
}

// In the place of the pages, while there are none.
void PrintDialog::showWaiting(const QString &text, bool canRetry)
{
    const QSignalBlocker blocker(m_pages);
    while (m_pages->count() > 0)
        delete m_pages->widget(0);
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("waiting"));
    auto *label = new QLabel(text, page);
    label->setObjectName(QStringLiteral("waitingText"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(label);
    if (canRetry) {
        auto *retry = new QPushButton(tr("Try Again"), page);
        retry->setObjectName(QStringLiteral("retry"));
        retry->setAutoDefault(false);
        connect(retry, &QPushButton::clicked, this, [this, retry] {
            retry->setEnabled(false); // a second press would take the first try back
            m_status->setPrinter(m_chosen);
            // Later: the button is in the midst of its work.
            QTimer::singleShot(0, this, [this] {
                if (m_printer)
                    return; // it came meanwhile
                showAsking();
                m_source.retry();
            });
        });
        layout->addWidget(retry, 0, Qt::AlignHCenter);
    }
    layout->addStretch();
    m_pages->addTab(page, tr("General"));
}

void PrintDialog::printersListed()
{
    m_printers->setPrinters(m_source.printers());
    showListState();
    takeExpectedPrinter();
}

void PrintDialog::takeExpectedPrinter()
{
    if (m_chosenByUser || isPrinting() || !isUntouched())
        return;
    if (userIsInTheMidstOfIt()) { // the list may have nothing more to say afterwards
        QTimer::singleShot(kPatience, this, &PrintDialog::takeExpectedPrinter);
        return;
    }
    // The first printer was there for want of a better one.
    const std::optional<Printer> expected = m_source.expected();
    const bool complete = m_source.queues().state() == QueueList::State::Known;
    if (expected && (complete || expected->isDefault)) {
        m_chosenByUser = true;
        choosePrinter(*expected);
    }
}

// What a list that is not there, or is empty, means to somebody who wants to print.
void PrintDialog::showListState()
{
    const QueueList &queues = m_source.queues();
    const ServerAddress &server = queues.context().address;
    const auto retry = [this] { m_source.retryList(); };
    const bool nothingElse = !m_chosenByUser && m_chosen.origin == PrinterOrigin::PpdFile &&
                             m_request.printers.isEmpty();
    const auto withAdvice = [](const QString &problem) {
        // Not every language has a blank between two sentences.
        return tr("%1 %2").arg(problem, tr("Until then, documents can be printed to a file."));
    };
    switch (queues.state()) {
    case QueueList::State::Looking:
    case QueueList::State::Slow:
        m_printers->setFooter(tr("Looking for printers…"));
        if (nothingElse && queues.state() == QueueList::State::Slow)
            m_status->setProblem(tr("No answer from “%1” yet.").arg(server.text()), retry);
        return;
    case QueueList::State::Known:
        if (nothingElse)
            m_status->setPrinter(m_chosen); // the server has answered
        if (!queues.printers().isEmpty())
            return m_printers->setFooter({});
        m_printers->setFooter(tr("No printers at “%1”.").arg(server.text()));
        if (nothingElse)
            m_message->showMessage(
                MessageBar::Kind::Information,
                withAdvice(tr("There are no printers yet. Add one in the printer settings of the "
                              "system, or with the command lpadmin.")));
        return;
    case QueueList::State::Failed:
        break;
    }
    const ServerProblem &problem = queues.problem();
    const bool wantsPassword = problem.kind == ServerProblem::Kind::PasswordNeeded ||
                               problem.kind == ServerProblem::Kind::PasswordRefused ||
                               problem.kind == ServerProblem::Kind::PasswordCanceled ||
                               problem.anotherUserMay;
    const QString wayOut = wantsPassword ? tr("Log In…") : tr("Try Again");
    m_printers->setFooter(problem.text(server), wayOut, retry);
    if (!nothingElse)
        return;
    if (problem.kind == ServerProblem::Kind::Unreachable && server.isLocal() &&
        !m_request.serverWasNamed)
        m_message->showMessage(
            MessageBar::Kind::Information,
            withAdvice(tr("The print service of this computer is not running. Start it, on "
                          "most systems with “systemctl start cups”.")));
    else
        m_status->setProblem(problem.brief(server), retry, wayOut);
}

// Whether nothing would be lost if another printer took the place of this one.
bool PrintDialog::isUntouched() const
{
    if (!m_printer || !m_panelsUp)
        return true;
    return m_printer->session->snapshot() == m_opened; // copies and pages go along
}

// Keeps what the user has set, to set it again when the same printer is opened anew.
void PrintDialog::keepSettings()
{
    if (m_options)
        m_options->finishEditing(); // what is being typed counts as well
    // What was asked for on the command line is the user's as well.
    if (!m_printer || !m_panelsUp || (isUntouched() && m_request.options.isEmpty()))
        return;
    m_printer->panels->visit(-1); // a panel that is left saves
    KeptSettings kept{jobOptions(*m_printer->session, m_printer->jobValues, m_attributes),
                      m_general->copies()};
    kept.options.removeIf(
        [](const JobOption &option) { return option.name == kPageRangesAttribute; });
    m_kept.insert(idOf(m_printer->fetched.printer), kept);
}

bool PrintDialog::printsToFile() const
{
    return m_chosen.origin == PrinterOrigin::PpdFile || m_toFile->isChecked();
}

void PrintDialog::updateDestination()
{
    const bool fileOnly = m_chosen.origin == PrinterOrigin::PpdFile;
    m_toFile->setVisible(!fileOnly);
    m_toFileLabel->setVisible(fileOnly);
    m_outputRow->setEnabled(printsToFile());
}

} // namespace corvana
