#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include "dialog/window/HelpWindow.h"
#include "dialog/window/WindowGrowth.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// The window on a real compositor, worked with a real mouse and real keys: lists, alerts and the
// help are surfaces of their own there, which the compositor puts in their places and gives the
// keys to. under_weston.sh starts the compositor; the window fills the screen, so that its places
// are those of the screen.
//
// With CORVANA_SCREENSHOTS=FOLDER each step is kept there as a picture of the whole screen.

namespace {

constexpr int kPatience = 30000;
constexpr int kSettled = 300; // milliseconds after which the compositor has shown what is new

void xdotool(const QStringList &arguments)
{
    QProcess tool;
    tool.start(u"xdotool"_s, arguments);
    // The window has to go on meanwhile: the compositor asks it whether it is alive.
    QVERIFY(QTest::qWaitFor([&tool] { return tool.state() == QProcess::NotRunning; }, kPatience));
    QCOMPARE(tool.exitCode(), 0);
}

void pressKey(const QString &key)
{
    xdotool({u"key"_s, key});
    QTest::qWait(kSettled);
}

void clickAt(const QPoint &place)
{
    xdotool({u"mousemove"_s, QString::number(place.x()), QString::number(place.y()), u"click"_s,
             u"1"_s});
    // Longer than two clicks of a double click are apart.
    QTest::qWait(QApplication::doubleClickInterval() + kSettled);
}

void clickOn(const QWidget *widget)
{
    QVERIFY(widget && widget->isVisible());
    clickAt(widget->mapToGlobal(widget->rect().center()));
}

void keepPicture(const QString &name)
{
    const QString folder = qEnvironmentVariable("CORVANA_SCREENSHOTS");
    if (!folder.isEmpty())
        QProcess::execute(u"import"_s, {u"-window"_s, u"root"_s, folder + u'/' + name + u".png"_s});
}

bool isOnScreen(const QWidget *widget)
{
    const QWindow *window = widget ? widget->window()->windowHandle() : nullptr;
    return widget && widget->isVisible() && window && window->isExposed();
}

} // namespace

class WaylandTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<WindowDriver> m_window;

    void open()
    {
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        line.documents = {sourceFile(u"tests/data/pages.pdf"_s)};
        line.output = m_folder.filePath(u"job.ps"_s);
        PrintRequest request = requestFor(line);
        Printer other = request.printers.constFirst();
        other.name = u"other"_s;
        other.description = u"Other Printer"_s;
        other.ppdPath = sourceFile(u"resources/ppd/corvana-cl2.ppd"_s);
        request.printers += other;
        m_window = std::make_unique<WindowDriver>(request);
        QTRY_COMPARE_WITH_TIMEOUT(m_window->dialog().task().phase(), PrintTask::Phase::Ready,
                                  kPatience);
        QVERIFY(m_window->waitForPanel(1));
        QTest::qWait(kSettled);
    }
    template <typename Kind> Kind *child(const QString &name) const
    {
        return m_window->child<Kind>(name);
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            qputenv(variable, QFile::encodeName(m_folder.path()));
        QDir::setCurrent(m_folder.path());
        QVERIFY(QGuiApplication::platformName().startsWith("wayland"_L1));
    }
    void cleanup() { m_window.reset(); }

    void aPrinterIsPickedWhereItIsShown()
    {
        open();
        clickOn(child<QWidget>(u"printers"_s));
        auto *list = child<QAbstractItemView>(u"printerList"_s);
        QTRY_VERIFY(isOnScreen(list));
        keepPicture(u"printers"_s);
        QVERIFY(m_window->dialog().frameGeometry().contains(list->window()->frameGeometry()));
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (index.data().toString().contains(u"Other Printer"_s))
                clickAt(list->viewport()->mapToGlobal(list->visualRect(index).center()));
        }
        QTRY_COMPARE(m_window->dialog().task().printer().name, u"other"_s);
        QVERIFY(!list->isVisible());
    }

    void thePrintersAreSearchedByTyping()
    {
        open();
        clickOn(child<QWidget>(u"printers"_s));
        QTRY_VERIFY(isOnScreen(child<QWidget>(u"printerSearch"_s)));
        xdotool({u"type"_s, u"Other"_s});
        QTRY_COMPARE(child<QLineEdit>(u"printerSearch"_s)->text(), u"Other"_s);
        pressKey(u"Return"_s);
        QTRY_COMPARE(m_window->dialog().task().printer().name, u"other"_s);
    }

    // The whole list lies on the screen although its button is near the lower edge of it.
    void aChoiceIsPickedInAPopUp()
    {
        open();
        auto *sizes = child<QComboBox>(u"PageSize"_s);
        const QString before = sizes->currentText();
        clickOn(sizes);
        QTRY_VERIFY(isOnScreen(sizes->view()));
        keepPicture(u"choices"_s);
        pressKey(u"Down"_s);
        pressKey(u"Return"_s);
        QTRY_VERIFY(sizes->currentText() != before);
        QTRY_VERIFY(!sizes->view()->isVisible());
        QCOMPARE(m_window->dialog().task().opened()->session->markedChoice(u"PageSize"_s),
                 sizes->currentData(Qt::UserRole).toString());
    }

    void anAlertComesInFrontAndTakesTheKeys()
    {
        open();
        QTabBar *tabs = m_window->pages()->tabBar();
        clickAt(tabs->mapToGlobal(tabs->tabRect(1).center()));
        QTRY_COMPARE(m_window->pages()->currentIndex(), 1);
        auto *media = m_window->waitForPanel(1)->findChild<QComboBox *>(u"mediaTypePopup"_s);
        bool wasShown = false;
        QTimer answer;
        answer.setInterval(2 * kSettled);
        connect(&answer, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!isOnScreen(box) || wasShown)
                return;
            wasShown = true;
            keepPicture(u"alert"_s);
            pressKey(u"Return"_s);
        });
        answer.start();
        QVERIFY(DialogDriver::choose(media, u"Thick"_s)); // returns when the alert is answered
        QVERIFY(wasShown);
        QVERIFY(!QApplication::activeModalWidget());
        // The window has the keys again, once it is clicked: who gets them is the compositor's.
        clickOn(media);
        QTRY_VERIFY(isOnScreen(media->view()));
        pressKey(u"Home"_s);
        pressKey(u"Return"_s);
        QTRY_VERIFY(DialogDriver::chosen(media) != "Thick"_L1);
    }

    void theHelpComesInFrontAndGoes()
    {
        open();
        clickOn(child<QPushButton>(u"helpButton"_s));
        auto *help = m_window->dialog().findChild<HelpWindow *>();
        QTRY_VERIFY(isOnScreen(help));
        QTRY_VERIFY(help->isActiveWindow());
        keepPicture(u"help"_s);
        pressKey(u"Escape"_s);
        QTRY_VERIFY(!help->isVisible());
        QTRY_VERIFY(m_window->canPress(u"helpButton"_s));
        clickOn(child<QWidget>(u"helpButton"_s));
        QTRY_VERIFY(isOnScreen(help)); // and it comes again
    }

    void aDroppedDocumentIsPrintedAsWell()
    {
        open();
        PrintTask &task = m_window->dialog().task();
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(sourceFile(u"resources/sample/welcome.pdf"_s))});
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&m_window->dialog(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({20, 20}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&m_window->dialog(), &drop);
        QTRY_COMPARE(task.documents().size(), 2);
        QTRY_VERIFY_WITH_TIMEOUT(m_window->canPress(u"print"_s), kPatience);
        keepPicture(u"documents"_s);
        clickOn(child<QPushButton>(u"print"_s));
        QTRY_VERIFY_WITH_TIMEOUT(!m_window->dialog().printedTo().isEmpty(), kPatience);
        QVERIFY(QFile(m_window->dialog().printedTo()).size() > 1000);
    }

    // Nobody is told where it is: what it takes must be there wherever that is in the middle.
    void aWindowGrowsByHalfOfWhatTheScreenHasLeft()
    {
        QWidget window;
        WindowGrowth growth(window);
        growth.open({600, 400});
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        if (window.windowState().testFlag(Qt::WindowFullScreen))
            QSKIP("windows fill the screen here"); // the other shell has those that do not
        const int frame = window.frameGeometry().height() - window.height();
        const int left = window.screen()->availableGeometry().height() - 400 - frame;
        growth.follow(5000);
        QCOMPARE(window.height(), 400 + left / 2);
    }
};

QTEST_MAIN(WaylandTest)

#include "wayland_test.moc"
