#include "dialog/app/PrintDialog.h"

#include <QCheckBox>
#include <QCloseEvent>
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
#include <QVBoxLayout>

#include "dialog/app/ElidedToolButton.h"
#include "dialog/app/HelpWindow.h"
#include "dialog/app/Language.h"
#include "dialog/app/SilencedAlerts.h"
#include "dialog/app/WindowSize.h"
#include "dialog/chooser/ElidedLabel.h"
#include "dialog/chooser/PrinterComboBox.h"
#include "dialog/chooser/PrinterStatusLine.h"
#include "dialog/pages/MessageBar.h"
#include "dialog/pages/PanelPage.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PlainText.h"

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

// Its place is kept, so that a window has the same least width with it.
void hideInPlace(QWidget *button)
{
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    button->hide();
}

} // namespace

void PrintDialog::buildWindow()
{
    setWindowTitle(tr("Print"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("document-print")));
    m_printers = new PrinterComboBox(this);
    m_printers->setObjectName(QStringLiteral("printers"));
    m_status = new PrinterStatusLine(this);
    m_status->setObjectName(QStringLiteral("printerStatus"));
    m_document = new ElidedLabel(this);
    m_document->setObjectName(QStringLiteral("document"));
    m_document->setMiddleCut();
    m_document->setLine(m_request.title);

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
    m_given = rememberedWindowSize(QSize(36 * em, 31 * em), screen()->availableSize());
    resize(m_given);

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
    m_toFileLabel = plainLabel(tr("Print to &file:"), label);
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
    m_silenced = new ElidedToolButton(this);
    m_silenced->setObjectName(QStringLiteral("silencedAlerts"));
    m_silenced->setText(tr("Show Silenced Messages Again"));
    m_silenced->setAutoRaise(true);
    m_silenced->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    hideInPlace(m_silenced);
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
    m_leave->setToolTip(plainToolTip(tr("The job goes on without this window.")));
    hideInPlace(m_leave);
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
    buttons->addWidget(m_leave); // next to the stretch, so that its place is no gap
    buttons->addWidget(m_print);
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

// The footer comes behind the pages, whose controls are younger than it.
void PrintDialog::orderFocus()
{
    for (QWidget *control : {static_cast<QWidget *>(m_helpButton),
                             static_cast<QWidget *>(m_silenced), static_cast<QWidget *>(m_leave),
                             static_cast<QWidget *>(m_print), static_cast<QWidget *>(m_cancel)})
        setTabOrder(previousInFocusChain(), control);
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

void PrintDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_painted)
        followList();
}

// Nobody looks at the list of printers in a window that is an icon.
void PrintDialog::followList()
{
    if (isMinimized())
        m_source.pause();
    else
        m_source.start();
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
    rememberWindowSize({own.width(), own.height() - (isMaximized() ? 0 : m_grownBy)}, m_given);
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
