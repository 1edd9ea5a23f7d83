#include "dialog/window/PrintWindow.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextStream>

#include "dialog/session/Summary.h"
#include "dialog/window/CredentialsDialog.h"
#include "dialog/window/DocumentPasswordDialog.h"
#include "dialog/window/JobFooter.h"
#include "dialog/window/PrinterHeader.h"
#include "dialog/window/SettingsPages.h"
#include "dialog/window/TurnSheetsDialog.h"
#include "dialog/window/chooser/PrinterComboBox.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "dialog/window/pages/MessageBar.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcWindow, "corvana.dialog.window", QtWarningMsg)

void PrintWindow::connectTask()
{
    PrintTask *task = m_task.get();
    connect(task, &PrintTask::phaseChanged, this, &PrintWindow::phaseChanged);
    connect(task, &PrintTask::outputProposed, m_header,
            [this] { m_header->showOutput(m_task->output()); });
    connect(task, &PrintTask::documentsChanged, this,
            [this] { m_footer->setCanPrint(m_task->canPrint()); });
    connect(task, &PrintTask::printerClosed, m_pages, &SettingsPages::close);
    connect(task, &PrintTask::printerClosed, this, &PrintWindow::updateSilencedAlerts);
    connect(task, &PrintTask::printerClosed, m_message, &MessageBar::withdrawOffer);
    connect(task, &PrintTask::printerChanged, this, &PrintWindow::showPrinter);
    connect(task, &PrintTask::settingsChanged, m_pages, &SettingsPages::refresh);
    connect(task, &PrintTask::settingsChanged, this, &PrintWindow::updateSilencedAlerts);
    connect(task, &PrintTask::said, this, &PrintWindow::showMessage);
    connect(task, &PrintTask::unsaid, m_message, &MessageBar::dismiss);
    connect(task, &PrintTask::refused, this, &PrintWindow::showRefusal);
    connect(task, &PrintTask::jobEnded, this, &PrintWindow::jobEnded);
    connect(task, &PrintTask::progressed, this, [this](const JobProgress &progress) {
        m_footer->showProgress(progress, m_task->isJobHandedOver());
    });
    connect(&task->printers(), &PrinterSource::listChanged, this, &PrintWindow::showList);
}

// Only what would start a second job is disabled: never an ancestor of a panel.
void PrintWindow::phaseChanged(PrintTask::Phase phase)
{
    using Phase = PrintTask::Phase;
    const bool running = phase == Phase::Printing || phase == Phase::Turning ||
                         phase == Phase::Canceling || phase == Phase::Leaving;
    m_header->setJobRunning(running);
    // First, so that the focus can go to what shows the progress.
    if (phase == Phase::Printing)
        m_footer->showRunning(true);
    // While panels are asked, an alert is in front of the button, or nobody has the time to press.
    m_footer->setCanPrint(m_task->canPrint() || phase == Phase::Asking);
    switch (phase) {
    case Phase::Fetching:
    case Phase::Missing:
        break; // said with the printer, of which there may be several in one phase
    case Phase::Opened:
        printerOpened();
        break;
    case Phase::Ready:
        updateSilencedAlerts(); // an alert may have been silenced before the job was made
        m_footer->showRunning(false);
        if (m_pages->showPanels())
            orderFocus();
        break;
    case Phase::Asking:
    case Phase::Printing:
        break;
    case Phase::Turning:
        m_footer->showTurning();
        break;
    case Phase::Canceling:
        m_footer->showCanceling();
        break;
    case Phase::Leaving:
        if (!m_task->isJobHandedOver())
            m_footer->showCanceling(); // interrupted: the server is being told
        break;
    case Phase::Ended:
        ended();
        break;
    }
}

void PrintWindow::printerOpened()
{
    PanelHost *panels = m_task->opened()->panels.get();
    panels->setWindow(this);
    connect(panels, &PanelHost::settled, this, &PrintWindow::updateSilencedAlerts);
    // Later: a panel is in the midst of its work when it says so.
    connect(panels, &PanelHost::viewResized, this, &PrintWindow::followPage, Qt::QueuedConnection);
    m_pages->open();
    m_footer->setSaves(m_task->savesAsPdf());
    updateSilencedAlerts();
    if (m_painted)
        m_task->bringUp();
}

void PrintWindow::showPrinter()
{
    const Printer &printer = m_task->printer();
    const PrinterProblem &problem = m_task->problem();
    m_footer->setCanPrint(m_task->canPrint());
    m_header->showDestination(printer.origin == PrinterOrigin::File, m_task->printsToFile(),
                              m_task->whyNoFile().isEmpty());
    if (problem.text.isEmpty())
        m_header->status()->setPrinter(printer);
    else if (m_task->opened())
        m_header->status()->setProblem(problem.brief, [this] { m_task->retry(); });
    else
        m_header->status()->setProblem(problem.brief);
    if (m_task->phase() == PrintTask::Phase::Fetching)
        m_pages->showWaiting(
            tr("Asking “%1” for the options of the printer…").arg(m_task->server().address.text()),
            false);
    else if (m_task->phase() == PrintTask::Phase::Missing)
        m_pages->showWaiting(problem.text, printer.origin != PrinterOrigin::File);
    m_header->printers()->setPrinters(m_task->printers().printers());
    m_header->printers()->setCurrentPrinter(idOf(printer));
}

void PrintWindow::showList()
{
    m_header->printers()->setPrinters(m_task->printers().printers());
    showListState();
}

// What a list that is not there, or is empty, means to somebody who wants to print.
void PrintWindow::showListState()
{
    const QueueList &queues = m_task->printers().queues();
    PrinterComboBox *list = m_header->printers();
    const bool nothingElse = m_task->hasNoPrinterYet();
    switch (queues.state()) {
    case QueueList::State::Looking:
    case QueueList::State::Slow:
        list->setFooter(tr("Looking for printers…"));
        if (nothingElse && queues.state() == QueueList::State::Slow)
            m_header->status()->setProblem(
                tr("No answer from “%1” yet.").arg(queues.context().address.text()),
                [this] { m_task->printers().retryList(); });
        return;
    case QueueList::State::Known:
        if (nothingElse)
            m_header->status()->setPrinter(m_task->printer()); // the server has answered
        if (!queues.printers().isEmpty())
            return list->setFooter({});
        list->setFooter(tr("No printers at “%1”.").arg(queues.context().address.text()));
        if (nothingElse)
            m_message->showMessage(
                MessageBar::Kind::Information,
                tr("%1 %2").arg(
                    tr("There are no printers yet. Add one in the printer settings of the system, "
                       "or with the command lpadmin."),
                    tr("Until then, documents can be printed to a file.")));
        return;
    case QueueList::State::Failed:
        showListFailure();
    }
}

void PrintWindow::showListFailure()
{
    const QueueList &queues = m_task->printers().queues();
    const ServerAddress &server = queues.context().address;
    const ServerProblem &problem = queues.problem();
    const bool wantsPassword = problem.kind == ServerProblem::Kind::PasswordNeeded ||
                               problem.kind == ServerProblem::Kind::PasswordRefused ||
                               problem.kind == ServerProblem::Kind::PasswordCanceled ||
                               problem.anotherUserMay;
    const QString wayOut = wantsPassword ? tr("Log In…") : tr("Try Again");
    const auto retry = [this] { m_task->printers().retryList(); };
    m_header->printers()->setFooter(problem.text(server), wayOut, retry);
    if (!m_task->hasNoPrinterYet())
        return;
    if (problem.kind == ServerProblem::Kind::Unreachable && server.isLocal() &&
        !m_task->request().serverWasNamed)
        // Whole texts, because not every language has a blank between two sentences.
        m_message->showMessage(
            MessageBar::Kind::Information,
            tr("%1 %2").arg(tr("The print service of this computer is not running. Start it, on "
                               "most systems with “systemctl start cups”."),
                            tr("Until then, documents can be printed to a file.")));
    else
        m_header->status()->setProblem(problem.brief(server), retry, wayOut);
}

void PrintWindow::showMessage(const TaskMessage &message)
{
    if (message.canWait && !m_message->text().isEmpty())
        return;
    const auto kind = message.kind == TaskMessage::Kind::Problem ? MessageBar::Kind::Problem
                                                                 : MessageBar::Kind::Information;
    if (message.offer.isEmpty())
        m_message->showMessage(kind, message.text);
    else
        m_message->showMessage(kind, message.text, message.offer, message.take);
    if (message.staysWithoutPrinter)
        m_message->keepOffer();
    m_message->addDetails(message.details);
}

void PrintWindow::showRefusal(const TaskRefusal &refusal)
{
    if (!refusal.answered) {
        m_message->showMessage(MessageBar::Kind::Problem, refusal.problems.join(u'\n'));
        m_message->addDetails(refusal.details);
    }
    switch (refusal.place) {
    case TaskRefusal::Place::Nowhere:
        break;
    case TaskRefusal::Place::Pages:
        m_pages->showPageRanges();
        break;
    case TaskRefusal::Place::Output:
        m_header->focusOutput();
        break;
    }
}

void PrintWindow::jobEnded(const JobOutcome &outcome)
{
    using Kind = JobOutcome::Kind;
    const bool isThere = outcome.isDone() || outcome.kind == Kind::AlreadyThere;
    m_report = isThere ? outcome.text : QString();
    const bool lost = outcome.kind == Kind::Failed || outcome.kind == Kind::Refused ||
                      outcome.kind == Kind::Stopped || outcome.kind == Kind::Unknown ||
                      outcome.kind == Kind::PrinterChanged;
    const bool wasEnded = m_task->phase() == PrintTask::Phase::Ended;
    // The window may be gone when somebody asks what went wrong.
    if (lost || (wasEnded && outcome.kind == Kind::Canceled && outcome.job > 0))
        qCWarning(lcWindow).noquote() << outcome.text;
    if (wasEnded)
        return;
    switch (outcome.kind) {
    case Kind::InQueue:
        // It waits for something, which somebody has to read before the window goes.
        m_message->showMessage(MessageBar::Kind::Information, outcome.text);
        m_footer->showClose();
        break;
    case Kind::AlreadyThere:
        m_message->showMessage(MessageBar::Kind::Information, outcome.text,
                               tr("Print Another Copy"), [this] { accept(); });
        m_footer->showClose();
        break;
    case Kind::Canceled:
        m_message->showMessage(MessageBar::Kind::Information, outcome.text);
        break;
    case Kind::PrinterChanged:
        // Its options are asked for anew, and have to be looked at first.
        m_message->showMessage(MessageBar::Kind::Problem, outcome.text);
        break;
    default:
        offerToPrintAgain(outcome);
    }
}

void PrintWindow::offerToPrintAgain(const JobOutcome &outcome)
{
    // Whole texts, because not every language has a blank between two sentences.
    const QString text =
        mayStillPrint(outcome)
            ? tr("%1 %2").arg(outcome.text,
                              tr("If you print it again, it may come out of the printer twice."))
            : outcome.text;
    m_message->showMessage(MessageBar::Kind::Problem, text, tr("Print Again"),
                           [this] { accept(); });
}

// The task has nothing more to do; whether with a job shows in what it reports.
void PrintWindow::ended()
{
    if (m_task->outcome().isDone())
        QDialog::accept();
    else
        QDialog::reject();
}

void PrintWindow::askCredentials(const CredentialsQuestion &question,
                                 const CredentialStore::Answer &answer)
{
    auto *dialog = new CredentialsDialog(question, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [dialog, answer](int result) {
        answer(result == QDialog::Accepted ? std::optional(dialog->credentials()) : std::nullopt);
    });
    dialog->open();
}

void PrintWindow::askDocumentPassword(const DocumentPasswordQuestion &question,
                                      const PasswordAnswer &answer)
{
    auto *dialog = new DocumentPasswordDialog(question, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [dialog, answer](int result) {
        answer(result == QDialog::Accepted ? std::optional(dialog->password()) : std::nullopt);
    });
    dialog->open();
}

void PrintWindow::askToTurn(const TurnQuestion &question, const TurnAnswer &answer)
{
    auto *dialog = new TurnSheetsDialog(
        question, [this] { return mayLeaveHalf(); }, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this,
            [answer](int result) { answer(result == QDialog::Accepted); });
    dialog->open();
}

// Sheets with one side are nothing that anybody wants to have by accident.
bool PrintWindow::mayLeaveHalf()
{
    if (!m_task->isBetweenPasses())
        return true;
    QWidget *modal = QApplication::activeModalWidget();
    const bool isPrinted = m_task->phase() == PrintTask::Phase::Turning;
    QMessageBox box(QMessageBox::Question, tr("Two-Sided by Hand"),
                    isPrinted ? tr("Only the first sides of the sheets are printed. Leave the "
                                   "other sides unprinted?")
                              : tr("The first sides of the sheets are being printed. Stop that, "
                                   "and leave the other sides unprinted?"),
                    QMessageBox::NoButton, modal ? modal : this);
    QPushButton *leave = box.addButton(tr("Leave Unprinted"), QMessageBox::DestructiveRole);
    QPushButton *back = box.addButton(tr("Go Back"), QMessageBox::RejectRole);
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    makePlain(&box);
    box.exec();
    // Nobody has to answer any more once the task went on without the answer.
    return box.clickedButton() == leave || !m_task->isBetweenPasses();
}

bool PrintWindow::finishEditing()
{
    return m_pages->finishEditing();
}

// An alert of a panel, an open list of one of its controls: its code is running.
bool PrintWindow::userIsBusy() const
{
    const QWidget *modal = QApplication::activeModalWidget();
    return (modal && modal != this) || QApplication::activePopupWidget();
}

bool PrintWindow::mayOverwrite(const QString &file)
{
    // Both ends of a name tell it from others; the whole of it stands in the field.
    const int room = qMin(36 * fontMetrics().height(), screen()->availableSize().width() / 2);
    const QString name =
        fontMetrics().elidedText(QDir::toNativeSeparators(file), Qt::ElideMiddle, room);
    QMessageBox box(QMessageBox::Question, tr("Print to File"),
                    tr("%1 exists already. Replace it?").arg(name),
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setDefaultButton(QMessageBox::No);
    makePlain(&box);
    return box.exec() == QMessageBox::Yes;
}

bool PrintWindow::mayPrintWithout(const QString &what)
{
    return confirm(what, tr("Print Anyway"));
}

std::optional<bool> PrintWindow::mayPrintMany(const QString &what)
{
    return confirm(what, tr("Print"));
}

bool PrintWindow::confirm(const QString &what, const QString &button)
{
    QMessageBox box(QMessageBox::Warning, tr("Print"), what, QMessageBox::Cancel, this);
    QPushButton *print = box.addButton(button, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    makePlain(&box);
    box.exec();
    return box.clickedButton() == print;
}

void PrintWindow::writeSummary(const QList<SummaryLine> &lines)
{
    QTextStream(stdout) << summaryText(lines);
}

} // namespace corvana
