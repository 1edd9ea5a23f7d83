#include "dialog/app/PrintDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>

#include "dialog/chooser/ElidedLabel.h"
#include "dialog/chooser/PrinterComboBox.h"
#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/OptionsPage.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcPrinting, "corvana.dialog.printing", QtWarningMsg)

void PrintDialog::chooseOutput()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Print to File"), m_output->text(),
                                                      tr("PostScript (*.ps);;All files (*)"));
    if (file.isEmpty())
        return;
    m_output->setText(QDir::toNativeSeparators(file));
    m_chosenOutput = m_output->text(); // the file dialog has asked already
}

bool PrintDialog::confirmOverwriting(const QString &file)
{
    // A name that the dialog has found was free then.
    const bool asked = m_output->text() == m_chosenOutput ||
                       (m_request.outputWasNamed &&
                        m_output->text() == QDir::toNativeSeparators(m_request.output));
    if (asked || !QFileInfo::exists(file))
        return true;
    // Both ends of a name tell it from others; the whole of it stands in the field.
    const int room = qMin(36 * fontMetrics().height(), screen()->availableSize().width() / 2);
    const QString name = fontMetrics().elidedText(m_output->text(), Qt::ElideMiddle, room);
    QMessageBox box(QMessageBox::Question, tr("Print to File"),
                    tr("%1 exists already. Replace it?").arg(name),
                    QMessageBox::Yes | QMessageBox::No, this);
    makePlain(&box);
    return box.exec() == QMessageBox::Yes;
}

void PrintDialog::accept()
{
    // Print may be pressed before the first paint, by an Enter that was typed ahead.
    if (!m_printable || isPrinting() || !bringUpPanels())
        return;
    // A key of the button leaves the focus where it is, and what was typed there untaken.
    m_print->setFocus(Qt::OtherFocusReason);
    const QString output = QDir::fromNativeSeparators(m_output->text());
    if (printsToFile() && output.isEmpty()) {
        m_message->showMessage(MessageBar::Kind::Problem, tr("Name the file to print to."));
        m_output->setFocus();
        return;
    }
    if (!finishOptions() || !readPageRanges() || (printsToFile() && !confirmOverwriting(output)) ||
        !m_printer->panels->shouldPrint())
        return;
    if (m_interrupted)
        return; // while an alert was waiting for its answer
    updateSilencedAlerts();
    if (m_request.summary)
        QTextStream(stdout) << summaryText(summary());
    const QStringList problems = jobProblems(*m_printer->session, m_printer->jobValues);
    if (!problems.isEmpty())
        m_message->showMessage(MessageBar::Kind::Problem, problems.join(u'\n'));
    else if (printsToFile())
        startJob(output);
    else
        startServerJob();
}

// Takes the pages into the job. False when they cannot be understood.
bool PrintDialog::readPageRanges()
{
    m_attributes.removeIf(
        [](const JobOption &option) { return option.name == kPageRangesAttribute; });
    const QString ranges = m_general->pageRanges();
    if (ranges.isEmpty())
        return true;
    const JobAttribute *attribute = jobAttribute(kPageRangesAttribute);
    if (!attribute->accepts(ranges)) {
        m_message->showMessage(MessageBar::Kind::Problem,
                               tr("“%1” are no pages. Pages and ranges in ascending order were "
                                  "expected, such as 1-4, 7, 9-.")
                                   .arg(ranges));
        m_pages->setCurrentWidget(m_general);
        m_general->focusPageRanges();
        return false;
    }
    m_attributes += JobOption{kPageRangesAttribute, ranges};
    return true;
}

// False when a value that is being entered cannot be taken; its page says why.
bool PrintDialog::finishOptions()
{
    if (!m_options || m_options->finishEditing())
        return true;
    m_pages->setCurrentWidget(m_options);
    m_options->focusEditor();
    return false;
}

void PrintDialog::startJob(const QString &output)
{
    const JobTicket ticket =
        makeTicket(*m_printer, m_attributes, m_request.title, m_general->copies());
    m_message->dismiss();
    m_jobOutput = output;
    m_job = std::make_unique<FileQueue>();
    connect(m_job.get(), &FileQueue::finished, this, &PrintDialog::jobFinished);
    connect(m_job.get(), &FileQueue::pageReached, this,
            [this](int page) { m_progressText->setText(tr("Printing page %1…").arg(page)); });
    m_job->print(m_request.documents, ticket, m_printer->printer.ppdPath, output);
    showJobRunning(true);
}

void PrintDialog::jobFinished(const QString &problem)
{
    // The window may be gone when somebody asks what went wrong.
    if (!problem.isEmpty() && !m_job->isCanceled())
        qCWarning(lcPrinting).noquote() << problem;
    m_job.release()->deleteLater();
    showJobRunning(false);
    if (!problem.isEmpty() && m_interrupted)
        return QDialog::reject();
    if (!problem.isEmpty()) {
        m_message->showMessage(MessageBar::Kind::Problem, problem);
        return;
    }
    m_printedTo = QFileInfo(m_jobOutput).absoluteFilePath();
    m_report = tr("Printed to %1").arg(m_printedTo);
    QDialog::accept();
}

void PrintDialog::startServerJob()
{
    const JobTicket ticket =
        makeTicket(*m_printer, m_attributes, m_request.title, m_general->copies());
    ServerJobRequest request =
        serverJobRequest(*m_printer, m_source.serverOf(m_chosen), m_request, ticket);
    request.follow = true;
    request.earlierJob = m_earlierJobs.value(idOf(m_chosen));
    m_message->dismiss();
    m_serverJob = std::make_unique<ServerJob>();
    connect(m_serverJob.get(), &ServerJob::progressed, this, &PrintDialog::showProgress);
    connect(m_serverJob.get(), &ServerJob::finished, this, &PrintDialog::serverJobFinished);
    showJobRunning(true);
    m_serverJob->print(request);
}

// Lets a job that its server has go on without this window.
void PrintDialog::leave()
{
    // What is being canceled is waited for: whether it still was in time has to be known.
    m_leaving = m_serverJob && m_serverJob->isHandedOver() && !m_serverJob->isCanceled();
    if (m_leaving)
        m_serverJob->letGo();
}

void PrintDialog::showProgress(const JobProgress &progress)
{
    if (m_serverJob->isCanceled())
        return;
    m_progressText->setText(progress.text());
    const bool measured = progress.stage == JobProgress::Stage::Sending && progress.total > 0;
    m_progress->setRange(0, measured ? 100 : 0);
    if (measured)
        m_progress->setValue(static_cast<int>(progress.sent * 100 / progress.total));
    // From here on the job needs this window no more.
    m_leave->setVisible(m_serverJob->isHandedOver());
}

void PrintDialog::serverJobFinished(const JobOutcome &outcome)
{
    m_serverJob.release()->deleteLater();
    showJobRunning(false);
    // It may be printed yet, so the same is not sent once more by accident. A try that never got a
    // number has learnt nothing about an earlier one.
    if (outcome.kind == JobOutcome::Kind::Unknown || outcome.kind == JobOutcome::Kind::InQueue ||
        outcome.kind == JobOutcome::Kind::Stopped)
        m_earlierJobs.insert(idOf(m_chosen), outcome.job);
    else if (outcome.job > 0)
        m_earlierJobs.remove(idOf(m_chosen));
    if (outcome.isDone()) {
        m_report = outcome.text;
        m_source.rememberUse(m_chosen);
    }
    const bool leaves = std::exchange(m_leaving, false);
    if (outcome.kind == JobOutcome::Kind::Printed || (outcome.isDone() && leaves))
        return QDialog::accept();
    if (m_interrupted) {
        if (outcome.kind != JobOutcome::Kind::Canceled || outcome.job > 0)
            qCWarning(lcPrinting).noquote() << outcome.text;
        return QDialog::reject();
    }
    switch (outcome.kind) {
    case JobOutcome::Kind::Printed:
        break;
    case JobOutcome::Kind::InQueue:
        // It waits for something, which somebody has to read before the window goes.
        m_message->showMessage(MessageBar::Kind::Information, outcome.text);
        m_cancel->setText(tr("Close"));
        return;
    case JobOutcome::Kind::AlreadyThere:
        m_report = outcome.text;
        m_message->showMessage(MessageBar::Kind::Information, outcome.text,
                               tr("Print Another Copy"), [this] { accept(); });
        m_cancel->setText(tr("Close"));
        return;
    case JobOutcome::Kind::PrinterChanged:
        m_source.retry();
        [[fallthrough]];
    case JobOutcome::Kind::Stopped:
    case JobOutcome::Kind::Failed:
    case JobOutcome::Kind::Unknown:
        // The window may be gone when somebody asks what went wrong.
        qCWarning(lcPrinting).noquote() << outcome.text;
        m_message->showMessage(MessageBar::Kind::Problem, outcome.text);
        return;
    case JobOutcome::Kind::Canceled:
        m_message->showMessage(MessageBar::Kind::Information, outcome.text);
    }
}

// Only what would start a second job is disabled: never an ancestor of a panel.
void PrintDialog::showJobRunning(bool running)
{
    updatePrintButton();
    m_printers->setEnabled(!running);
    m_progressText->setText(running ? tr("Printing…") : QString());
    m_progress->setRange(0, 0);
    m_progress->setVisible(running);
    m_progressText->setVisible(running);
    m_leave->hide();
    m_cancel->setText(tr("Cancel"));
    if (!running && m_comesNext)
        QTimer::singleShot(0, this, [this] {
            if (m_comesNext)
                printerReady(ReadyPrinter(*m_comesNext));
        });
}

void PrintDialog::interrupt()
{
    m_interrupted = true;
    while (QWidget *modal = QApplication::activeModalWidget()) {
        if (modal == this || !modal->close())
            break;
    }
    // A job that its queue has is as little canceled by this as by closing the window.
    leave();
    if (!m_leaving)
        reject();
}

void PrintDialog::reject()
{
    if (m_job)
        return m_job->cancel();
    if (m_serverJob) {
        // A server that does not answer has a few seconds to be told.
        m_serverJob->cancel();
        m_leave->hide();
        m_progressText->setText(tr("Canceling…"));
        m_progress->setRange(0, 0);
        return;
    }
    QDialog::reject();
}

} // namespace corvana
