#include "tests/e2e/DeskDay.h"

#include <stdexcept>

#include <QAbstractButton>
#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QToolButton>
#include <QUrl>

#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "dialog/window/HelpWindow.h"
#include "dialog/window/chooser/PrinterComboBox.h"
#include "tests/e2e/Holdings.h"
#include "tests/support/TestPaths.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

constexpr int kPatience = 30000; // milliseconds that anything may take on a busy machine

constexpr int kDrawn = 100; // milliseconds for the pictures of two pages

// The last one has alerts; the others go round.
constexpr const char *kPrinters[] = {"cl2", "cl3", "cl4", "ml3", "mf4", "cl5"};
constexpr int kLast = 5;

template <typename Condition> void expect(const Condition &condition, const char *what)
{
    // Somebody at a desk leaves time for what was posted, whatever is there at once.
    QCoreApplication::processEvents();
    if (!QTest::qWaitFor(condition, kPatience))
        throw std::runtime_error(what);
}

QString titleOf(const char *printer)
{
    return u"Printer "_s + QLatin1StringView(printer);
}

/// Takes the processor time of one act, and lays the yardstick beside it.
class Timer
{
public:
    explicit Timer(QList<double> &times) : m_times(times), m_start(threadTime()) {}
    ~Timer()
    {
        const qint64 time = threadTime() - m_start;
        m_times += double(time) / double(yardstickTime());
    }
    Q_DISABLE_COPY_MOVE(Timer)

private:
    QList<double> &m_times;
    qint64 m_start;
};

PrintRequest requestForPrinters(const QString &output)
{
    CommandLine line = sampleDocument();
    line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
    line.documents = {sourceFile(u"tests/data/pages.pdf"_s)};
    line.output = output;
    PrintRequest request = requestFor(line);
    const Printer sample = request.printers.constFirst();
    request.printers.clear();
    for (const char *name : kPrinters) {
        Printer printer = sample;
        printer.name = QLatin1StringView(name);
        printer.description = titleOf(name);
        printer.ppdPath = sourceFile(u"resources/ppd/corvana-%1.ppd"_s.arg(printer.name));
        request.printers += printer;
    }
    request.wantedPrinter = QLatin1StringView(kPrinters[kLast]);
    return request;
}

template <typename Kind> Kind *inFront(const char *what)
{
    Kind *found = nullptr;
    expect(
        [&found] {
            found = qobject_cast<Kind *>(QApplication::activeModalWidget());
            return found != nullptr;
        },
        what);
    return found;
}

} // namespace

const char *nameOf(DeskAct act)
{
    constexpr const char *kNames[kDeskActs] = {"open",   "switch",    "alert", "help",
                                               "preset", "documents", "undo",  "print"};
    return kNames[static_cast<int>(act)];
}

DeskDay::DeskDay(const QString &folder)
    : m_folder(folder), m_request(requestForPrinters(folder + u"/job.ps"_s))
{
    m_alerts.answer = [](QMessageBox &box) {
        QAbstractButton *wanted = box.buttons().constFirst();
        for (QAbstractButton *button : box.buttons()) {
            if (box.buttonRole(button) == QMessageBox::DestructiveRole) // what was asked for
                wanted = button;
        }
        wanted->click();
    };
}

void DeskDay::waitUntilReady(const QString &printer)
{
    PrintTask &task = m_window->dialog().task();
    expect(
        [&] {
            return task.printer().description == printer &&
                   task.phase() == PrintTask::Phase::Ready && task.knowsDocuments() &&
                   m_window->canPress(u"print"_s);
        },
        "the printer does not get ready");
}

void DeskDay::open()
{
    const Timer timer(m_times[static_cast<size_t>(DeskAct::Open)]);
    m_window = std::make_unique<WindowDriver>(m_request, WindowDriver::Activation::Yes);
    m_next = 0;
    waitUntilReady(titleOf(kPrinters[kLast]));
}

void DeskDay::switchPrinter()
{
    const Timer timer(m_times[static_cast<size_t>(DeskAct::SwitchPrinter)]);
    const QString title = titleOf(kPrinters[m_next]);
    m_next = (m_next + 1) % (kLast + 1);
    auto *printers = m_window->child<PrinterComboBox>(u"printers"_s);
    printers->showPopup();
    auto *field = printers->findChild<QLineEdit *>(u"printerSearch"_s);
    expect([&] { return field && field->isVisible(); }, "the list of printers does not open");
    QTest::keyClicks(field, title);
    QTest::keyClick(field, Qt::Key_Return);
    waitUntilReady(title);
}

void DeskDay::workThrough()
{
    const std::pair<DeskAct, void (DeskDay::*)()> acts[] = {
        {DeskAct::Alert, &DeskDay::raiseAlert},  {DeskAct::Help, &DeskDay::readHelp},
        {DeskAct::Preset, &DeskDay::keepPreset}, {DeskAct::Documents, &DeskDay::changeDocuments},
        {DeskAct::Undo, &DeskDay::undo},
    };
    while (m_window->dialog().task().printer().description != titleOf(kPrinters[kLast]))
        switchPrinter();
    for (const auto &[act, perform] : acts) {
        const Timer timer(m_times[static_cast<size_t>(act)]);
        (this->*perform)();
    }
    // With its preview, in whose pictures a round would differ from the next otherwise.
    const PrintTask &task = m_window->dialog().task();
    expect([&task] { return !task.sheetPreview().counts.isEmpty(); }, "no sheets are counted");
    QTest::qWait(kDrawn);
}

void DeskDay::raiseAlert()
{
    const QWidget *panel = m_window->waitForPanel(1);
    m_window->showPage(1);
    auto *media = panel ? panel->findChild<QComboBox *>(u"mediaTypePopup"_s) : nullptr;
    const qsizetype before = m_alerts.seen.size();
    if (!media || !DialogDriver::choose(media, u"Plain"_s) ||
        !DialogDriver::choose(media, u"Thick"_s) || m_alerts.seen.size() != before + 1)
        throw std::runtime_error("no alert comes");
    m_alerts.seen.clear();
}

// That of the panel, and that of the dialog, which is another book.
void DeskDay::readHelp()
{
    for (const int page : {1, 0}) {
        m_window->showPage(page);
        if (!m_window->press(u"helpButton"_s))
            throw std::runtime_error("there is no button for help");
        auto *help = m_window->dialog().findChild<HelpWindow *>();
        expect([&] { return help && help->isVisible(); }, "no help comes");
        help->close();
        m_window->dialog().activateWindow();
    }
}

void DeskDay::pickPreset(const QString &text)
{
    QMenu *menu = m_window->child<QToolButton>(u"preset"_s)->menu();
    Q_EMIT menu->aboutToShow();
    for (QAction *action : menu->actions()) {
        if (QString(action->text()).remove(u'&') == text && action->isEnabled())
            return action->trigger();
    }
    throw std::runtime_error("the menu of presets lacks " + text.toStdString());
}

void DeskDay::keepPreset()
{
    const TaskPresets &presets = m_window->dialog().task().presets();
    const auto isSelected = [&] { return presets.selectedName() == "Desk"_L1; };
    pickPreset(u"Save Preset…"_s);
    auto *dialog = inFront<QDialog>("nobody asks for the name of a preset");
    auto *name = dialog->findChild<QLineEdit *>(u"presetName"_s);
    name->clear();
    QTest::keyClicks(name, u"Desk"_s);
    QTest::keyClick(name, Qt::Key_Return);
    expect([&] { return isSelected() && presets.listing().find(u"Desk"_s); }, "no preset is saved");
    pickPreset(u"Printer Defaults"_s);
    pickPreset(u"Desk"_s);
    expect(isSelected, "the preset is not taken");
    pickPreset(u"Delete “Desk”…"_s);
    expect([&] { return !presets.listing().find(u"Desk"_s); }, "the preset is not deleted");
    m_alerts.seen.clear();
}

void DeskDay::changeDocuments()
{
    PrintTask &task = m_window->dialog().task();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(sourceFile(u"resources/sample/welcome.pdf"_s))});
    QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window->dialog(), &enter);
    QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window->dialog(), &drop);
    expect([&] { return task.documents().size() == 2 && task.knowsDocuments(); },
           "the document is not taken");
    task.moveDocument(1, 0);
    task.removeDocument(0);
    waitUntilReady(titleOf(kPrinters[kLast]));
}

void DeskDay::undo()
{
    PrintTask &task = m_window->dialog().task();
    task.setCopies(3);
    expect([&] { return task.history().canUndo(); }, "nothing can be undone");
    task.history().undo();
    task.history().redo();
    task.history().undo();
}

void DeskDay::print()
{
    const Timer timer(m_times[static_cast<size_t>(DeskAct::Print)]);
    if (!m_window->pressPrint())
        throw std::runtime_error("Print cannot be pressed");
    expect([&] { return !m_window->dialog().printedTo().isEmpty(); }, "nothing is printed");
    QFile result(m_window->dialog().printedTo());
    close();
    if (result.size() < 1000 || !result.remove())
        throw std::runtime_error("what was printed is not there");
}

} // namespace corvana::test
