#include <optional>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "dialog/window/SilencedAlerts.h"
#include "dialog/window/chooser/PrinterComboBox.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/e2e/QueueScene.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/IppEvePrinter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Manner = FaultyServer::Manner;

/// A device that two queues can share; nobody listens there.
const QString kDevice = u"socket://127.0.0.1:9"_s;
/// How late the list of printers may be. Units: milliseconds.
constexpr int kListPatience = 15000;

} // namespace

/// Which printer is chosen, what goes along to another one, and what the window says meanwhile.
class QueueChoosingTest : public QObject
{
    Q_OBJECT

private:
    std::optional<UserFolders> m_folders;
    QString m_document;

    static bool shows(QueueDriver &window, const QStringList &printers)
    {
        return window.waitUntil([&] { return window.printers() == printers; }, kListPatience);
    }

    static bool choose(QueueDriver &window, const QString &printer)
    {
        return pick(window.child<QComboBox>(u"printers"_s), printer);
    }

    static QStringList pages(QueueDriver &window)
    {
        const auto *tabs = window.pages();
        QStringList titles;
        for (int i = 0; i < tabs->count(); ++i)
            titles += tabs->tabText(i);
        return titles;
    }

    /// Opens the window on a queue whose server is away, and waits until it says so.
    void openWithoutServer(QueueScene &scene)
    {
        scene.addQueue();
        // What the list finds out would ask for the printer as well.
        scene.between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CUPS_GET_PRINTERS);
        scene.between.setManner(Manner::Refuses);
        scene.open({m_document});
        QVERIFY(
            scene.window->waitUntil([&] { return scene.window->child<QPushButton>(u"retry"_s); }));
        scene.between.setManner(Manner::Passes);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_folders.emplace();
        m_document = m_folders->longDocument();
    }

    void aPrinterIsListedOnceHoweverItIsNamed_data()
    {
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("found");
        QTest::newRow("class") << u"Floor"_s << u"Floor"_s;
        QTest::newRow("class in another case") << u"fLOOR"_s << u"Floor"_s;
        QTest::newRow("queue in another case") << u"OFFICE"_s << u"office"_s;
    }
    void aPrinterIsListedOnceHoweverItIsNamed()
    {
        QFETCH(QString, named);
        QFETCH(QString, found);
        QueueScene scene;
        scene.addQueue();
        scene.cups.addClass(u"Floor"_s, {kQueue});
        scene.open({m_document}, named);
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings();
        QVERIFY2(shows(window, {u"Floor"_s, kQueue, kFilePrinter}),
                 qPrintable(window.printers().join(u' ')));
        QCOMPARE(window.printer(), found);
        QVERIFY(!window.isPrinterGone());
        QVERIFY(window.settings().contains(u"copies 3"_s)); // it was not opened anew
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QVERIFY2(matches(window.dialog().report(), u"Printed on .* as job %1-1\\."_s.arg(found)),
                 qPrintable(window.dialog().report() + window.message()));
    }

    void copiesAndPagesGoAlongToAnotherPrinter()
    {
        QueueScene scene;
        scene.addQueue();
        scene.cups.addQueue(u"other"_s, samplePpdPath(u"corvana-ml3"_s));
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(shows(window, {kQueue, u"other"_s, kFilePrinter}));
        window.changeSettings();
        for (const QString &printer : {u"other"_s, kFilePrinter, kQueue}) {
            QVERIFY(choose(window, printer));
            QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
            // A file is saved once; the wish is kept for the next printer.
            const QString copies = printer == kFilePrinter ? u"copies 1"_s : u"copies 3"_s;
            QVERIFY2(window.settings().contains(copies), qPrintable(printer));
            QVERIFY2(window.settings().contains(u"pages 1-2"_s), qPrintable(printer));
        }
    }

    // The wish is kept for the next printer, not what this one makes of it.
    void aPrinterThatMakesFewerCopiesSaysSo()
    {
        if (!IppEvePrinter::isAvailable())
            QSKIP("no ippeveprinter here");
        const IppEvePrinter printer;
        QueueScene scene;
        scene.addQueue();
        scene.window = std::make_unique<QueueDriver>(
            QueueDriver::Start{scene.between.server(), printer.uri(), {m_document}, {}, 1500});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        const auto copies = [&] { return window.child<QSpinBox>(u"copies"_s)->value(); };
        QCOMPARE(copies(), 999);
        QCOMPARE(
            window.message(),
            u"What was asked for cannot be set:\nThe printer prints at most 999 copies at once, "
            "not 1500."_s);
        QVERIFY(
            window.waitUntil([&] { return window.printers().contains(kQueue); }, kListPatience));
        QVERIFY(choose(window, kQueue));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QCOMPARE(copies(), 1500);
        QVERIFY(window.message().isNull());
    }

    void aJobIsNotSentTwiceBecauseAnotherPrinterWasLookedAt()
    {
        QueueScene scene;
        scene.device.exitWith(BackendExit::Hold);
        scene.addQueue();
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(shows(window, {kQueue, kFilePrinter}));
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QCOMPARE(scene.states(), QList<int>{IPP_JSTATE_HELD});
        QVERIFY(choose(window, kFilePrinter));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(choose(window, kQueue));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QCOMPARE(window.message(), u"Job 1 of the earlier try is held in the queue."_s);
        QCOMPARE(scene.states(), QList<int>{IPP_JSTATE_HELD});
    }

    void aListThatComesLateTakesThePlaceOfTheFileAlthoughPagesWereSet()
    {
        QueueScene scene;
        scene.addQueue();
        scene.between.delayResponse(IPP_OP_CUPS_GET_PRINTERS, 1);
        scene.open({m_document}, {});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QCOMPARE(window.printer(), u"pdf"_s);
        window.child<QLineEdit>(u"pageRanges"_s)->setText(u"1-2"_s);
        QVERIFY(
            window.waitUntil([&] { return scene.between.count(IPP_OP_CUPS_GET_PRINTERS) > 0; }));
        scene.between.releaseResponses();
        QVERIFY2(window.waitUntil([&] { return window.printer() == kQueue; }, kListPatience),
                 qPrintable(window.printers().join(u'|') + window.printer()));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(window.settings().contains(u"pages 1-2"_s));
    }

    void pagesThatWereClearedStayCleared()
    {
        QueueScene scene;
        scene.addQueue();
        scene.window = std::make_unique<QueueDriver>(QueueDriver::Start{
            scene.between.server(), kQueue, {m_document}, {u"page-ranges=1-2"_s}});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(window.settings().contains(u"pages 1-2"_s));
        QVERIFY(shows(window, {kQueue, kFilePrinter}));
        window.child<QLineEdit>(u"pageRanges"_s)->clear();
        QVERIFY(choose(window, kFilePrinter));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(window.settings().contains(u"pages "_s));
    }

    void messagesAreBroughtBackOnlyForAPrinterThatHasThem()
    {
        const QString bundle = u"com.corvana.print.pde.QXCLQuality13PDE"_s;
        QueueScene scene;
        scene.addQueue();
        scene.cups.addQueue(u"silent"_s, samplePpdPath(u"corvana-cl5"_s));
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(shows(window, {kQueue, u"silent"_s, kFilePrinter}));
        auto *button = window.child<QToolButton>(u"silencedAlerts"_s);
        QVERIFY(!button->isVisible());
        const int width = window.dialog().width();
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(
            {{u"anAlert"_s, false}}, bundle));
        QVERIFY(choose(window, kFilePrinter));
        QVERIFY(!button->isVisible()); // it has no panels
        QVERIFY(choose(window, kQueue));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(button->isVisible());

        scene.fallSilent();
        QVERIFY(choose(window, u"silent"_s));
        QVERIFY(!window.waiting().isNull()); // there is no printer at all now
        QVERIFY(!button->isVisible());

        scene.mend();
        QVERIFY(choose(window, kQueue));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(button->isVisible());
        button->click();
        QVERIFY(!button->isVisible());
        QVERIFY(!hasSilencedAlerts(bundle));
        QCOMPARE(window.dialog().width(), width);
    }

    void tryAgainCannotBePressedTwice()
    {
        QueueScene scene;
        openWithoutServer(scene);
        QueueDriver &window = *scene.window;
        auto *retry = window.child<QPushButton>(u"retry"_s);
        retry->click();
        QVERIFY(!retry->isEnabled());
        retry->click();
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QCOMPARE(scene.between.count(IPP_OP_GET_PRINTER_ATTRIBUTES), 1);
    }

    void aPrinterThatComesBehindTryAgainStays()
    {
        QueueScene scene;
        openWithoutServer(scene);
        QueueDriver &window = *scene.window;
        window.child<QPushButton>(u"retry"_s)->click();
        QVERIFY(choose(window, kFilePrinter)); // needs nobody's answer
        QCoreApplication::processEvents();
        QVERIFY(window.waiting().isNull());
        QVERIFY(window.canPrint());
    }

    void aQueueWithoutPagesOfItsOwnPointsToTheOneThatHasThem()
    {
        QueueScene scene;
        scene.cups.addQueue(u"full"_s, samplePpdPath(u"corvana-cl5"_s),
                            {.description = u"With Everything"_s, .deviceUri = kDevice});
        scene.cups.addQueue(u"elsewhere"_s, samplePpdPath(u"corvana-cl5"_s),
                            {.deviceUri = u"socket://127.0.0.2:9"_s});
        scene.cups.addRawQueue(u"plain"_s, {.deviceUri = kDevice});
        scene.open({m_document}, u"plain"_s);
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return !window.message().isNull(); }));
        QCOMPARE(window.message(),
                 u"The queue “With Everything” leads to the same printer, and has "
                 "pages with all of its settings."_s);
        QCOMPARE(window.printer(), u"plain"_s); // it is an offer
        QVERIFY(!pages(window).contains(u"Print Setting"_s));
        QVERIFY(window.press(u"messageAction"_s));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QCOMPARE(window.printer(), u"full"_s);
        QVERIFY2(pages(window).contains(u"Print Setting"_s), qPrintable(pages(window).join(u' ')));
        QVERIFY(window.message().isNull());
    }

    void aQueueIsPointedToOnlyWhereItHasPages_data()
    {
        QTest::addColumn<QString>("device");
        QTest::addColumn<QString>("ppd");
        QTest::newRow("another device")
            << u"socket://127.0.0.1:10"_s << samplePpdPath(u"corvana-cl5"_s);
        QTest::newRow("no pages either")
            << kDevice << m_folders->write(u"simple.ppd"_s, PpdBuilder().text());
    }
    void aQueueIsPointedToOnlyWhereItHasPages()
    {
        QFETCH(QString, device);
        QFETCH(QString, ppd);
        QueueScene scene;
        scene.cups.addQueue(u"full"_s, ppd, {.deviceUri = device});
        scene.cups.addRawQueue(u"plain"_s, {.deviceUri = kDevice});
        scene.open({m_document}, u"plain"_s);
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(shows(window, {u"full"_s, u"plain"_s, kFilePrinter}));
        // Two more looks at the list: everything that it leads to has been asked by then.
        const int asked = scene.between.count(IPP_OP_CUPS_GET_PRINTERS);
        QVERIFY(window.waitUntil(
            [&] { return scene.between.count(IPP_OP_CUPS_GET_PRINTERS) >= asked + 2; },
            kListPatience));
        QVERIFY2(window.message().isNull(), qPrintable(window.message()));
    }

    void aWindowThatIsAnIconAsksForNoPrintersUntilItIsBack()
    {
        QueueScene scene;
        scene.addQueue();
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(
            window.waitUntil([&] { return scene.between.count(IPP_OP_CUPS_GET_PRINTERS) > 0; }));
        window.dialog().showMinimized();
        QVERIFY(window.dialog().isMinimized());
        QVERIFY(window.waitUntil([&] { return scene.between.openConnections() == 0; }));
        const int asked = scene.between.count(IPP_OP_CUPS_GET_PRINTERS);
        // Another window, of which two looks show that the time of one has passed.
        FaultyServer beside(scene.cups.port());
        {
            QueueDriver other({beside.server(), kQueue, {m_document}});
            QVERIFY(other.waitUntil([&] { return beside.count(IPP_OP_CUPS_GET_PRINTERS) >= 3; },
                                    kListPatience));
        }
        QCOMPARE(scene.between.count(IPP_OP_CUPS_GET_PRINTERS), asked);
        // What changed meanwhile is there at once: sooner than two looks follow each other.
        scene.cups.addRawQueue(u"new"_s);
        window.dialog().showNormal();
        QVERIFY(window.waitUntil([&] { return window.printers().contains(u"new"_s); }, 2500));
    }
};

QTEST_MAIN(QueueChoosingTest)

#include "queue_choosing_test.moc"
