#include "dialog/app/PrintDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"

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
    const bool asked = m_output->text() == m_chosenOutput ||
                       m_output->text() == QDir::toNativeSeparators(m_request.output);
    if (asked || !QFileInfo::exists(file))
        return true;
    return QMessageBox::question(this, tr("Print to File"),
                                 tr("%1 exists already. Replace it?").arg(m_output->text())) ==
           QMessageBox::Yes;
}

void PrintDialog::accept()
{
    // Print may be pressed before the first paint, by an Enter that was typed ahead.
    if (!m_printable || m_job || !bringUpPanels())
        return;
    // A key of the button leaves the focus where it is, and what was typed there untaken.
    m_print->setFocus(Qt::OtherFocusReason);
    const QString output = QDir::fromNativeSeparators(m_output->text());
    if (output.isEmpty()) {
        m_message->showMessage(MessageBar::Kind::Problem, tr("Name the file to print to."));
        m_output->setFocus();
        return;
    }
    if (!readPageRanges() || !confirmOverwriting(output) || !m_printer->panels->shouldPrint())
        return;
    if (m_interrupted)
        return; // while an alert was waiting for its answer
    updateSilencedAlerts();
    if (m_request.summary)
        QTextStream(stdout) << summaryText(
            sessionSummary(*m_printer->session, *m_printer->panels, m_general->copies()));
    const QStringList problems = jobProblems(*m_printer->session, m_printer->jobValues);
    if (problems.isEmpty())
        startJob(output);
    else
        m_message->showMessage(MessageBar::Kind::Problem, problems.join(u'\n'));
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
    QDialog::accept();
}

// Only what would start a second job is disabled: never an ancestor of a panel.
void PrintDialog::showJobRunning(bool running)
{
    updatePrintButton();
    m_printers->setEnabled(!running);
    m_progressText->setText(running ? tr("Printing…") : QString());
    m_progress->setVisible(running);
}

void PrintDialog::interrupt()
{
    m_interrupted = true;
    while (QWidget *modal = QApplication::activeModalWidget()) {
        if (modal == this || !modal->close())
            break;
    }
    reject();
}

void PrintDialog::reject()
{
    if (m_job) {
        m_job->cancel();
        return;
    }
    QDialog::reject();
}

} // namespace corvana
