#include "dialog/app/PrintDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/pages/GeneralPage.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/PanelPage.h"
#include "dialog/pages/SummaryPage.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

PrintDialog::PrintDialog(PrintRequest request, QWidget *parent)
    : QDialog(parent), m_request(std::move(request))
{
    buildWindow();
    openChosenPrinter();
}

PrintDialog::~PrintDialog()
{
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

    auto *buttons = new QDialogButtonBox(this);
    m_print = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_print->setObjectName(QStringLiteral("print"));
    m_print->setDefault(true);
    auto *cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PrintDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_message);
    layout->addWidget(m_pages, 1);
    layout->addWidget(buttons);
    const int em = fontMetrics().height();
    resize(36 * em, 30 * em);

    addPageShortcuts();
    connect(m_pages, &QTabWidget::currentChanged, this, &PrintDialog::pageEntered);
    connectControlAction(m_printers, [this](QWidget *) {
        m_request.chosenPrinter = m_printers->currentIndex();
        openChosenPrinter();
        bringUpPanels();
    });
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
    const Printer &printer = m_request.printers.at(m_request.chosenPrinter);
    QString error;
    m_printer = openPrinter(printer, m_request.bundleRoots, m_presenter, &error);
    m_print->setEnabled(m_printer != nullptr);
    if (!m_printer) {
        m_message->showMessage(MessageBar::Kind::Problem, error);
        return;
    }
    if (!m_printer->panelProblem.isEmpty())
        m_message->showMessage(MessageBar::Kind::Problem,
                               tr("The printer's own settings are missing: %1")
                                   .arg(m_printer->panelProblem));
    connect(m_printer->panels.get(), &PanelHost::settled, this, &PrintDialog::settled);
    fillPages();
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
        m_pages->addTab(page, panel->panelName());
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

void PrintDialog::bringUpPanels()
{
    if (!m_printer)
        return;
    m_printer->panels->bringUp();
    QStringList problems = takeInterfaceProblems();
    for (int i = 0; i < m_panelPages.size(); ++i) {
        if (QWidget *view = m_printer->panels->panels().at(i)->panelView())
            m_panelPages.at(i)->setPanelView(view);
        else
            m_panelPages.at(i)->setProblem(
                tr("This page cannot be shown: %1").arg(problems.join(u'\n')));
    }
    if (!problems.isEmpty())
        m_message->showMessage(MessageBar::Kind::Problem,
                               tr("A page of the printer's settings cannot be shown: %1")
                                   .arg(problems.join(u'\n')));
    applyRequestedOptions();
    m_general->refresh();
    pageEntered(m_pages->currentIndex());
}

void PrintDialog::applyRequestedOptions()
{
    const OptionOutcome outcome = applyOptions(m_request.options, *m_printer->session,
                                               m_printer->jobValues, *m_printer->panels);
    m_attributes = outcome.attributes;
    if (!outcome.ok())
        m_message->showMessage(MessageBar::Kind::Problem,
                               tr("These options were not set:\n%1")
                                   .arg(outcome.problems.join(u'\n')));
}

int PrintDialog::panelOfPage(int page) const
{
    return m_panelPages.indexOf(qobject_cast<PanelPage *>(m_pages->widget(page)));
}

void PrintDialog::pageEntered(int page)
{
    if (!m_printer)
        return;
    m_printer->panels->visit(panelOfPage(page));
    if (m_pages->widget(page) == m_summary)
        m_summary->setLines(
            sessionSummary(*m_printer->session, *m_printer->panels, m_general->copies()));
}

void PrintDialog::propose(const QString &keyword, const QString &choice)
{
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
    m_general->refresh();
    const QList<Refusal> refusals = m_printer->session->takeRefusals();
    for (const Refusal &refusal : refusals)
        showRefusal(refusal);
}

QString PrintDialog::textOf(const OptionChoice &choice) const
{
    ppd_option_t *option = ppdOption(m_printer->session->ppd(), choice.keyword);
    const ppd_choice_t *found = ppdChoice(option, choice.choice);
    if (!found)
        return QStringLiteral("%1=%2").arg(choice.keyword, choice.choice);
    return tr("“%1: %2”").arg(ppdText(option->text).value_or(choice.keyword),
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
            m_general->refresh();
        });
}

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
    const bool asked = m_output->text() == m_chosenOutput
        || m_output->text() == QDir::toNativeSeparators(m_request.output);
    if (asked || !QFileInfo::exists(file))
        return true;
    return QMessageBox::question(this, tr("Print to File"),
                                 tr("%1 exists already. Replace it?").arg(m_output->text()))
        == QMessageBox::Yes;
}

void PrintDialog::accept()
{
    if (!m_printer || m_job)
        return;
    const QString output = QDir::fromNativeSeparators(m_output->text());
    if (output.isEmpty()) {
        m_message->showMessage(MessageBar::Kind::Problem, tr("Name the file to print to."));
        m_output->setFocus();
        return;
    }
    if (!confirmOverwriting(output) || !m_printer->panels->shouldPrint())
        return;
    const JobTicket ticket =
        makeTicket(*m_printer, m_attributes, m_request.title, m_general->copies());
    if (m_request.summary)
        QTextStream(stdout) << summaryText(
            sessionSummary(*m_printer->session, *m_printer->panels, m_general->copies()));
    m_message->showMessage(MessageBar::Kind::Information, tr("Printing…"));
    m_print->setEnabled(false);
    m_job = std::make_unique<FileQueue>();
    connect(m_job.get(), &FileQueue::finished, this, &PrintDialog::jobFinished);
    m_job->print(m_request.document, ticket, m_printer->printer.ppdPath, output);
}

void PrintDialog::jobFinished(const QString &problem)
{
    m_job.release()->deleteLater();
    m_print->setEnabled(true);
    if (!problem.isEmpty()) {
        m_message->showMessage(MessageBar::Kind::Problem, problem);
        return;
    }
    m_printedTo = QFileInfo(QDir::fromNativeSeparators(m_output->text())).absoluteFilePath();
    QDialog::accept();
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
