#include "dialog/window/PrintWindow.h"

#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/task/TaskHistory.h"
#include "dialog/window/DocumentDrop.h"
#include "dialog/window/FocusInSight.h"
#include "dialog/window/HelpWindow.h"
#include "dialog/window/JobFooter.h"
#include "dialog/window/KeyboardFocus.h"
#include "dialog/window/PresetRow.h"
#include "dialog/window/PreviewFolding.h"
#include "dialog/window/PrinterHeader.h"
#include "dialog/window/SettingFinder.h"
#include "dialog/window/SettingsColumn.h"
#include "dialog/window/SettingsPages.h"
#include "dialog/window/SilencedAlerts.h"
#include "dialog/window/TaskPreview.h"
#include "dialog/window/UndoKeys.h"
#include "dialog/window/WindowParts.h"
#include "dialog/window/find/FindField.h"
#include "dialog/window/pages/MessageBar.h"
#include "dialog/window/preview/PreviewPane.h"
#include "dialog/window/preview/PreviewRows.h"
#include "dialog/window/preview/ZoomControl.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPanel.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Of a window that nobody has given another size yet. Units: heights of the font.
constexpr int kUsualWidth = 80;
constexpr int kUsualHeight = 54;
// Whatever the font. Units: pixels.
constexpr QSize kLargestAtFirst{1200, 850};

bool isEnter(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

PrintWindow::PrintWindow(PrintRequest request, QWidget *parent)
    : QDialog(parent),
      m_task(std::make_unique<PrintTask>(std::move(request), static_cast<TaskFace &>(*this))),
      m_growth(*this)
{
    m_task->printers().readAhead(); // while the window is built
    buildWindow();
    connectParts();
    connectTask();
    HelpManager::sharedHelpManager().setViewer(
        [this](const HelpPage &page) { showHelpPage(page); });
    m_task->start();
    showListState();
}

PrintWindow::~PrintWindow()
{
    HelpManager::sharedHelpManager().setViewer(nullptr);
    // A field proposes what was typed when it loses the focus: while there is a task to hear it.
    if (QWidget *focus = focusWidget())
        focus->clearFocus();
    // What the task says while it goes is heard by nobody: the window is half gone.
    m_task->disconnect(this);
    delete m_taskPreview;
    delete findChild<UndoKeys *>(); // a panel's control may have the focus while it goes
    m_task.reset();
}

void PrintWindow::buildWindow()
{
    setWindowTitle(tr("Print"));
    auto *layout = new QVBoxLayout(this);
    auto *settings = new SettingsColumn(this);
    buildColumns(settings);
    m_footer = new JobFooter(this);
    layout->addWidget(m_footer);
    auto *parts = new WindowParts(this);
    parts->add(settings, [this] { return m_pages->tabBar(); });
    parts->add(m_preview, [this] { return m_preview->focusTarget(); });
    parts->add(m_footer, [this] { return m_footer->buttons().constLast(); });
    const int em = fontMetrics().height();
    QSize usual = QSize(kUsualWidth * em, kUsualHeight * em).boundedTo(kLargestAtFirst);
    usual.setWidth(m_folding->openingWidth(usual.width()));
    m_growth.open(usual);
    m_folding->follow();
}

// What comes out, and beside it what is set for it.
void PrintWindow::buildColumns(SettingsColumn *settings)
{
    m_header = new PrinterHeader(m_task->output(), settings);
    auto *presets = new PresetRow(*m_task, m_header);
    m_header->addRow(presets->label(), presets);
    m_message = new MessageBar(settings);
    m_message->setObjectName(u"message"_s);
    m_pages = new SettingsPages(*m_task, settings);
    presets->setPages(m_pages);
    settings->layout()->addWidget(m_header);
    settings->layout()->addWidget(m_message);
    static_cast<QBoxLayout *>(settings->layout())->addWidget(m_pages, 1);
    m_preview = new PreviewPane(this); // behind the settings for Tab
    auto *columns = new QBoxLayout(QBoxLayout::LeftToRight);
    columns->setSpacing(fontMetrics().height());
    columns->addWidget(m_preview, 1);
    columns->addWidget(settings);
    static_cast<QBoxLayout *>(layout())->addLayout(columns, 1);
    m_folding = std::make_unique<PreviewFolding>(*this, *columns, *m_preview, *settings);
}

void PrintWindow::connectParts()
{
    addPageShortcuts();
    new UndoKeys(m_task->history(), this);
    new KeyboardFocus(this);
    new DocumentDrop(*m_task, *m_preview, this);
    new FocusInSight(this);
    nameListsOfPopUps(this);
    m_preview->sheetsRow()->zoom()->addShortcuts(this);
    connect(m_preview, &PreviewPane::foldPressed, this,
            [this](bool fold) { m_folding->fold(fold); });
    m_taskPreview = new TaskPreview(*m_task, *m_preview, this);
    new SettingFinder(*m_task, *m_footer->finder(), *m_pages, *m_message, this);
    connect(m_taskPreview, &TaskPreview::markPressed, this, [this](const QString &text) {
        m_message->showMessage(MessageBar::Kind::Information, text);
    });
    connect(m_pages, &SettingsPages::jobEdited, m_taskPreview, &TaskPreview::update);
    connect(m_header, &PrinterHeader::picked, this, [this](const Printer &printer) {
        // Picked again: nothing that was set so far is lost.
        if (idOf(printer) != idOf(m_task->printer()))
            m_task->choosePrinter(printer);
    });
    connect(m_header, &PrinterHeader::toFileChanged, this, [this](bool toFile) {
        m_task->setPrintsToFile(toFile);
        showPrinter();
    });
    connect(m_header, &PrinterHeader::outputChanged, m_task.get(), &PrintTask::setOutput);
    connect(m_pages, &SettingsPages::entered, this, &PrintWindow::followPage);
    connect(m_pages, &SettingsPages::heightChanged, this, &PrintWindow::followPage);
    connect(m_pages, &SettingsPages::controlsAdded, this, &PrintWindow::orderFocus);
    connect(m_pages, &SettingsPages::retryPressed, m_task.get(), &PrintTask::retry);
    connect(m_footer, &JobFooter::helpPressed, this, &PrintWindow::showHelp);
    connect(m_footer, &JobFooter::printPressed, this, &PrintWindow::accept);
    connect(m_footer, &JobFooter::leavePressed, m_task.get(), &PrintTask::leave);
    connect(m_footer, &JobFooter::cancelPressed, this, &PrintWindow::reject);
    connect(m_footer, &JobFooter::alertsWanted, this, [this] {
        if (!bringAlertsBack(m_task->opened()->bundle->identifier()))
            m_message->showMessage(MessageBar::Kind::Problem,
                                   tr("Your preferences cannot be written."));
        updateSilencedAlerts();
    });
}

// The pages turn by keyboard wherever the focus is, not only inside them.
void PrintWindow::addPageShortcuts()
{
    const std::pair<QKeyCombination, int> keys[] = {
        {Qt::CTRL | Qt::Key_PageDown, 1},
        {Qt::CTRL | Qt::Key_Tab, 1},
        {Qt::CTRL | Qt::Key_PageUp, -1},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1},
    };
    for (const auto &[key, step] : keys)
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [this, step = step] { m_pages->turn(step); });
}

// In the order of reading: the controls of the pages are younger than all that comes behind them.
void PrintWindow::orderFocus()
{
    QList<QWidget *> behind = m_preview->focusOrder();
    behind += m_message->focusOrder();
    behind += m_footer->buttons();
    QWidget *before = previousInFocusChain();
    // What never has the focus is left where it is, and so is what is put behind it.
    while (before != this && (before->focusPolicy() == Qt::NoFocus || behind.contains(before)))
        before = before->previousInFocusChain();
    for (QWidget *widget : std::as_const(behind)) {
        setTabOrder(before, widget);
        before = widget;
    }
}

PrintWindow::Taken PrintWindow::taken() const
{
    if (!m_task->opened())
        return {};
    return {m_task->opened()->session->snapshot(), m_task->settings().attributes(),
            m_task->settings().copies()};
}

bool PrintWindow::event(QEvent *event)
{
    // Asked before the field that has the focus gets the key.
    if (event->type() == QEvent::ShortcutOverride && isEnter(static_cast<QKeyEvent *>(event)))
        m_beforeEnter = taken();
    return QDialog::event(event);
}

// Enter prints, unless it has just taken what was typed into a field: nobody has seen yet what came
// of that.
void PrintWindow::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(event) && !qobject_cast<QAbstractButton *>(focusWidget()) &&
        taken() != m_beforeEnter)
        return;
    QDialog::keyPressEvent(event);
}

void PrintWindow::accept()
{
    // A key of the button leaves the focus where it is, and what was typed there untaken.
    if (m_task->canPrint())
        m_footer->focusPrint();
    m_task->print();
}

void PrintWindow::reject()
{
    using Phase = PrintTask::Phase;
    const Phase phase = m_task->phase();
    if (phase == Phase::Canceling || phase == Phase::Leaving)
        return;
    if (phase == Phase::Printing)
        return m_task->cancel();
    QDialog::reject();
}

void PrintWindow::interrupt()
{
    // First, so that an alert which is closed is not taken for one that was answered.
    m_task->interrupt(PrintTask::OnInterrupt::LeaveJob);
    // A menu turns an event loop of its own, within that of the window or the box that it is of.
    while (QWidget *popup = QApplication::activePopupWidget()) {
        if (!popup->close() || QApplication::activePopupWidget() == popup)
            break;
    }
    while (QWidget *modal = QApplication::activeModalWidget()) {
        if (modal == this || !modal->close())
            break;
    }
}

void PrintWindow::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    // The panels come up after the first paint, so that the window is there at once.
    if (!std::exchange(m_painted, true)) {
        // Only a window that is there has the frame that its screen gives it.
        QTimer::singleShot(0, this, [this] { m_growth.keepOnScreen(); });
        QTimer::singleShot(0, m_preview, &PreviewPane::complete);
        QTimer::singleShot(0, this, &PrintWindow::takeIconsFromTheme);
        QTimer::singleShot(0, m_task.get(), &PrintTask::bringUp);
        // After that, so that nothing of it delays what is on the screen already.
        QTimer::singleShot(0, this, &PrintWindow::followList);
    }
}

// Only now, because looking through the folders of themes takes as long as the first paint itself.
void PrintWindow::takeIconsFromTheme()
{
    setWindowIcon(QIcon::fromTheme(u"document-print"_s));
    m_header->takeIconsFromTheme();
    m_footer->finder()->takeIconFromTheme();
}

void PrintWindow::followPage()
{
    if (const std::optional<int> missing = m_pages->missingHeight())
        m_growth.follow(*missing);
    else
        m_growth.giveBack();
}

void PrintWindow::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_growth.resized(event->size());
    m_folding->follow();
}

void PrintWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_painted)
        followList();
}

// Nobody looks at the list of printers in a window that is an icon.
void PrintWindow::followList()
{
    if (isMinimized())
        m_task->printers().pause();
    else
        m_task->printers().start();
}

// Closing the window is no order to cancel what is being printed; that is what Cancel is for.
void PrintWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLeaveHalf())
        return event->ignore();
    if (!m_task->isJobHandedOver())
        return QDialog::closeEvent(event);
    m_task->leave();
    event->ignore(); // the job's end closes it
}

void PrintWindow::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return; // minimised
    m_growth.remember();
}

void PrintWindow::showHelp()
{
    const int panel = m_pages->currentPanel();
    const bool panelHasNoHelp =
        panel < 0 || m_task->opened()->panels->panels().at(panel)->shouldShowHelp();
    if (!panelHasNoHelp)
        return;
    const QString page = m_task->request().helpPage;
    if (page.isEmpty())
        m_message->showMessage(MessageBar::Kind::Problem, tr("The help is not installed."));
    else
        showHelpPage({tr("Help on Printing"), page, QString()});
}

void PrintWindow::showHelpPage(const HelpPage &page)
{
    if (!m_help)
        m_help = new HelpWindow(this);
    m_help->open(page);
}

void PrintWindow::updateSilencedAlerts()
{
    const OpenedPrinter *printer = m_task->opened();
    m_footer->showSilencedAlerts(printer && printer->bundle &&
                                 hasSilencedAlerts(printer->bundle->identifier()));
}

} // namespace corvana
