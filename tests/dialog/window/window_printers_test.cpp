#include <functional>
#include <utility>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include "dialog/printers/PrinterFetching.h"
#include "dialog/window/PrintWindow.h"
#include "dialog/window/chooser/PrinterComboBox.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

class EventWatch : public QObject
{
public:
    using Seen = std::function<void(QObject *watched, QEvent *event)>;

    explicit EventWatch(Seen seen) : m_seen(std::move(seen)) {}
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_seen(watched, event);
        return false;
    }

private:
    Seen m_seen;
};

} // namespace

/// What the window shows while a printer is asked for, is opened, changes, or cannot be opened.
class WindowPrintersTest : public QObject
{
    Q_OBJECT

private:
    const UserPreferences m_preferences;
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<PrintWindow> m_window;

    template <typename Part> Part *part(const QString &name)
    {
        return m_window->findChild<Part *>(name);
    }
    QTabWidget *pages() { return part<QTabWidget>(u"pages"_s); }
    QString waiting()
    {
        const auto *label = part<QLabel>(u"waitingText"_s);
        return label ? label->text() : QString();
    }
    PrintRequest request()
    {
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.output = m_filter->output();
        request.bundleRoots = builtBundleRoots();
        request.printers = {{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}};
        return request;
    }
    // A server that nobody can reach.
    PrintRequest queueRequest()
    {
        PrintRequest request = this->request();
        request.printers.clear();
        request.server = *ServerAddress::parse(u"127.0.0.1:1"_s);
        request.serverWasNamed = true;
        request.wantedPrinter = u"office"_s;
        return request;
    }
    void open(const PrintRequest &request)
    {
        m_window = std::make_unique<PrintWindow>(request);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    bool isReady()
    {
        return QTest::qWaitFor([this] { return m_window->task().canPrint(); }, 10000) &&
               m_window->task().phase() == PrintTask::Phase::Ready;
    }
    void becomes(const QByteArray &ppd)
    {
        QString error;
        Q_EMIT m_window->task().printers().ready(
            {m_window->task().printer(), temporaryPpd(ppd, &error)});
    }
    static QByteArray samplePpd()
    {
        QFile file(samplePpdPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void init() { m_filter = std::make_unique<FakeFilter>("exit 1\n"); }
    void cleanup()
    {
        m_window.reset();
        m_filter.reset();
    }

    void thatAPrinterIsAskedForIsShownFromTheBeginning()
    {
        m_window = std::make_unique<PrintWindow>(queueRequest());
        QVERIFY2(waiting().startsWith(u"Asking “127.0.0.1:1”"_s), qPrintable(waiting()));
        QVERIFY(!part<QPushButton>(u"print"_s)->isEnabled());
        const auto chosen = part<PrinterComboBox>(u"printers"_s)->currentPrinter();
        QCOMPARE(chosen ? chosen->name : QString(), u"office"_s);
        m_window->show();
        QTRY_VERIFY(part<QPushButton>(u"retry"_s));
        QVERIFY(!part<QPushButton>(u"print"_s)->isEnabled());
    }

    void thePageThatWasShownIsShownWithTheNewOptions()
    {
        open(request());
        QTRY_VERIFY(isReady());
        pages()->setCurrentIndex(2);
        const QString title = pages()->tabText(2);
        becomes(samplePpd() + "*% another one\n");
        QTRY_VERIFY(isReady());
        QCOMPARE(pages()->tabText(pages()->currentIndex()), title);
        QCOMPARE(m_window->task().opened()->panels->visiblePanel(), 1);
    }

    void anotherPrinterBeginsAtItsFirstPage()
    {
        PrintRequest two = request();
        two.printers += {u"other"_s, u"Other"_s, samplePpdPath(), 5};
        open(two);
        QTRY_VERIFY(isReady());
        pages()->setCurrentIndex(2);
        m_window->task().choosePrinter(two.printers.at(1));
        QCOMPARE(pages()->currentIndex(), 0);
    }

    // Their settings have gone by then.
    void noPageOfAPrinterThatIsLeftIsShownOnceMore_data()
    {
        QTest::addColumn<int>("page");
        for (int page = 0; page < 5; ++page)
            QTest::addRow("from page %d", page) << page;
    }
    void noPageOfAPrinterThatIsLeftIsShownOnceMore()
    {
        QFETCH(int, page);
        PrintRequest two = request();
        two.printers += {u"other"_s, u"Other"_s, samplePpdPath(), 5};
        open(two);
        QTRY_VERIFY(isReady());
        QCOMPARE(pages()->count(), 5);
        constexpr int kAllOptions = 3;
        pages()->setCurrentIndex(kAllOptions);
        auto *options = part<QTreeView>(u"options"_s);
        QVERIFY(options && options->isVisible());
        pages()->setCurrentIndex(page);
        options->scrollToBottom();
        m_window->resize(m_window->width(),
                         m_window->height() + 200); // which the list does not know
        QCoreApplication::processEvents();
        QStringList shown;
        EventWatch watch([&](QObject *watched, QEvent *event) {
            if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
                shown +=
                    watched->objectName() + QLatin1StringView(watched->metaObject()->className());
        });
        for (int i = 0; i < pages()->count(); ++i)
            pages()->widget(i)->installEventFilter(&watch);
        options->installEventFilter(&watch);
        m_window->task().choosePrinter(two.printers.at(1));
        QCOMPARE(shown, QStringList());
    }

    void keysChooseOnePrinterAfterTheOther()
    {
        PrintRequest three = request();
        three.printers += {u"second"_s, u"Second"_s, samplePpdPath(), 5};
        three.printers += {u"third"_s, u"Third"_s, samplePpdPath(), 5};
        open(three);
        QTRY_VERIFY(isReady());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        const auto *printers = part<PrinterComboBox>(u"printers"_s);
        part<PrinterComboBox>(u"printers"_s)->setFocus();
        for (int row : {1, 2}) {
            QVERIFY(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            QTRY_VERIFY(isReady());
            QCOMPARE(printers->currentIndex(), row);
            QVERIFY(printers->hasFocus());
        }
    }

    void theFocusIsOnThePagesAgainThatAreMadeAnew_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("name");
        QTest::newRow("general") << 0 << u"copies"_s;
        QTest::newRow("a panel") << 1 << u"mediaTypePopup"_s;
    }
    void theFocusIsOnThePagesAgainThatAreMadeAnew()
    {
        QFETCH(int, page);
        QFETCH(QString, name);
        open(request());
        QTRY_VERIFY(isReady());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        pages()->setCurrentIndex(page);
        QTRY_VERIFY(part<QWidget>(name));
        part<QWidget>(name)->setFocus();
        QVERIFY(part<QWidget>(name)->hasFocus());
        becomes(samplePpd() + "*% another one\n");
        QTRY_VERIFY(isReady());
        QTRY_VERIFY(QApplication::focusWidget());
        QVERIFY2(pages()->isAncestorOf(QApplication::focusWidget()),
                 qPrintable(QApplication::focusWidget()->objectName()));
    }

    void theButtonSaysWhetherSomethingIsPrintedOrSaved()
    {
        open(request());
        QTRY_VERIFY(isReady());
        QCOMPARE(part<QPushButton>(u"print"_s)->text(), u"&Print"_s);
        const Printer pdf = m_window->task().printers().printers().constLast();
        m_window->task().choosePrinter(pdf);
        QTRY_VERIFY(isReady());
        QVERIFY(m_window->task().savesAsPdf());
        QCOMPARE(part<QPushButton>(u"print"_s)->text(), u"Sa&ve…"_s);
        m_window->task().choosePrinter(request().printers.constFirst());
        QTRY_VERIFY(isReady());
        QCOMPARE(part<QPushButton>(u"print"_s)->text(), u"&Print"_s);
    }

    void aPrinterWithOptionsThatCannotBeReadSaysSoInPlaceOfItsPages()
    {
        open(request());
        QTRY_VERIFY(isReady());
        becomes("no PPD");
        QVERIFY2(waiting().contains(u"Missing asterisk"_s), qPrintable(waiting()));
        const auto *status = part<PrinterStatusLine>(u"printerStatus"_s);
        QVERIFY2(status->text().contains(u"Missing asterisk"_s), qPrintable(status->text()));
        QVERIFY(!part<QPushButton>(u"print"_s)->isEnabled());
        // The list of printers speaks of it every few seconds.
        QString error;
        Q_EMIT m_window->task().printers().checked(
            {m_window->task().printer(), temporaryPpd("no PPD", &error)});
        QVERIFY2(waiting().contains(u"Missing asterisk"_s), qPrintable(waiting()));
    }

    // An alert that was silenced while the job was made can be brought back behind a failure.
    void whatWasSilencedCanBeBroughtBackAfterAJobThatFailed()
    {
        open(request());
        QTRY_VERIFY(isReady());
        auto *button = part<QToolButton>(u"silencedAlerts"_s);
        QVERIFY(button->isHidden());
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(
            {{u"Envelope"_s, false}}, m_window->task().opened()->bundle->identifier()));
        QSignalSpy ended(&m_window->task(), &PrintTask::jobEnded);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"."_s));
        part<QPushButton>(u"print"_s)->click();
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 10000);
        QVERIFY(m_window->isVisible());
        QVERIFY(button->isVisible());
    }
};

QTEST_MAIN(WindowPrintersTest)

#include "window_printers_test.moc"
