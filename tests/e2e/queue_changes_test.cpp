#include <optional>

#include <QDateTime>
#include <QFile>
#include <QPointer>
#include <QTabWidget>
#include <QTest>

#include "dialog/window/chooser/PrinterComboBox.h"
#include "tests/e2e/QueueScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using States = QList<int>;

/// How late a change of the queues may show on a busy machine: a server whose answer took three seconds
/// is asked again after a minute. Units: milliseconds.
constexpr int kSeconds = 70000;

} // namespace

/// Queues that change, go or arrive late while the window is open.
class QueueChangesTest : public QueueFixture
{
    Q_OBJECT

private:
    // A server tells the age of its PPDs in whole seconds.
    static void makePpdOlder(const QueueScene &scene)
    {
        QFile ppd(scene.cups.folder() + u"/etc/ppd/office.ppd"_s);
        QVERIFY(ppd.open(QIODevice::ReadWrite));
        QVERIFY(ppd.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                QFileDevice::FileModificationTime));
    }

    // A server tells in whole seconds when a queue was changed last.
    static void waitForTheNextSecond(QueueScene &scene)
    {
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        QVERIFY(
            scene.window->waitUntil([now] { return QDateTime::currentSecsSinceEpoch() > now; }));
    }

    // Of the same printer, in a new version.
    QString otherPpd() const
    {
        QByteArray ppd = contentOf(samplePpdPath(u"corvana-cl5"_s));
        ppd.replace("*NickName: \"", "*NickName: \"New ");
        return m_folders->write(u"other.ppd"_s, ppd);
    }

private Q_SLOTS:
    void initTestCase() { makeFolders(); }

    void changesOfQueuesShow()
    {
        QueueScene scene;
        open(scene);
        QueueDriver &window = *scene.window;
        const QStringList settings = window.settings();
        const auto shows = [&](const QStringList &printers) {
            return window.waitUntil([&] { return window.printers() == printers; }, kSeconds);
        };
        QVERIFY(shows({kQueue, kFilePrinter}));
        scene.cups.addRawQueue(u"attic"_s, {u"Attic"_s, u"Under the roof"_s, {}, {}, {}});
        QVERIFY(shows({u"Attic"_s, kQueue, kFilePrinter}));
        scene.cups.addRawQueue(u"attic"_s, {u"Wine Cellar"_s, {}, {}, {}, {}});
        QVERIFY(shows({kQueue, u"Wine Cellar"_s, kFilePrinter}));
        scene.cups.stopQueue(kQueue, u"Being repaired"_s);
        QVERIFY(window.waitUntil([&] { return window.status() == u"Stopped: Being repaired"_s; },
                                 kSeconds));
        scene.cups.startQueue(kQueue);
        scene.cups.rejectJobs(kQueue);
        QVERIFY(window.waitUntil([&] { return window.status().startsWith(u"Takes no jobs"_s); },
                                 kSeconds));
        scene.cups.acceptJobs(kQueue);
        scene.cups.removeQueue(u"attic"_s);
        QVERIFY(shows({kQueue, kFilePrinter}));
        QCOMPARE(window.settings(), settings);
        QCOMPARE_LT(window.heart().takeLargestGap(), kLongestGap);
    }

    void aQueueThatIsDeletedUnderTheWindowIsSaidAndMayComeBack()
    {
        QueueScene scene;
        open(scene);
        QueueDriver &window = *scene.window;
        const QStringList settings = window.settings();
        scene.cups.removeQueue(kQueue);
        QVERIFY(window.waitUntil(
            [&] {
                return matches(
                    window.status(),
                    u"There is no printer “office” at “127\\.0\\.0\\.1:[0-9]+” any more\\."_s);
            },
            kSeconds));
        QVERIFY(window.isPrinterGone());
        QCOMPARE(window.settings(), settings);
        scene.addQueue();
        QVERIFY(window.waitUntil([&] { return !window.isPrinterGone(); }, kSeconds));
        QCOMPARE(window.settings(), settings);
        printAndVerify(scene, 1);
    }

    void optionsThatChangeAtTheServerAreTakenOver()
    {
        QueueScene scene;
        scene.addQueue();
        makePpdOlder(scene);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings();
        const QStringList settings = window.settings();
        waitForTheNextSecond(scene);
        scene.cups.setPpd(kQueue, otherPpd());
        QVERIFY2(
            window.waitUntil(
                [&] {
                    return window.message() ==
                           u"The options of the printer have changed at its server; yours were kept."_s;
                },
                kSeconds),
            qPrintable(window.message()));
        QCOMPARE(window.settings(), settings);
        printAndVerify(scene, 1);
    }

    void theSameOptionsInstalledOnceMoreChangeNothing()
    {
        QueueScene scene;
        scene.addQueue();
        makePpdOlder(scene);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings();
        const QStringList settings = window.settings();
        scene.cups.setPpd(kQueue, samplePpdPath(u"corvana-cl5"_s));
        QCOMPARE(window.settings(), settings);
        printAndVerify(scene, 1);
    }

    void optionsThatAreGoneAreSaid()
    {
        QueueScene scene;
        scene.addQueue();
        makePpdOlder(scene);
        scene.window = std::make_unique<QueueDriver>(QueueDriver::Start{
            scene.between.server(), kQueue, {m_document}, {u"QXMediaType=Glossy"_s}});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings(false); // glossy paper is printed on one side only
        waitForTheNextSecond(scene);
        scene.cups.setPpd(kQueue, samplePpdPath(u"corvana-ml3"_s));
        QVERIFY(window.waitUntil([&] { return !window.message().isNull(); }, kSeconds));
        QVERIFY2(matches(window.message(), u"Not everything could be set as before:.*Glossy.*"_s),
                 qPrintable(window.message()));
        QVERIFY(window.settings().contains(u"copies 3"_s));
        QVERIFY(window.settings().contains(u"pages 1-2"_s));
        printAndVerify(scene, 1);
    }

    // The list, which tells of changes as well, is not answered here: printing finds out itself.
    void nothingIsPrintedWithOptionsThatHaveChangedMeanwhile()
    {
        QueueScene scene;
        scene.addQueue();
        makePpdOlder(scene);
        scene.between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CUPS_GET_PRINTERS);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings();
        const QStringList settings = window.settings();
        scene.cups.setPpd(kQueue, otherPpd());
        const QPointer<QObject> opened = window.child<QObject>(u"copies"_s);
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QVERIFY2(matches(window.message(),
                         u"The options of the printer “office” have changed at its server\\."_s +
                             kNothingPrinted),
                 qPrintable(window.message()));
        QCOMPARE(scene.states(), States());
        // It is opened anew, and then there is nothing to complain about any more.
        QVERIFY(window.waitUntil([&] { return opened.isNull(); }));
        QTRY_VERIFY(window.canPrint());
        QCOMPARE(window.settings(), settings);
        printAndVerify(scene, 1);
    }

    // Another window has put the new PPD into the cache that both share.
    void nothingIsPrintedWithOptionsThatAnotherWindowKnowsToHaveChanged()
    {
        QueueScene scene;
        scene.addQueue();
        makePpdOlder(scene);
        scene.between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CUPS_GET_PRINTERS);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings();
        scene.cups.setPpd(kQueue, otherPpd());
        {
            QueueDriver other({scene.between.server(), kQueue, {m_document}});
            QVERIFY(other.waitUntil([&] { return !other.message().isNull(); }));
            QVERIFY2(other.message().contains(u"have changed at its server"_s),
                     qPrintable(other.message()));
        }
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QVERIFY2(matches(window.message(),
                         u"The options of the printer “office” have changed at its server\\."_s +
                             kNothingPrinted),
                 qPrintable(window.message()));
        QCOMPARE(scene.states(), States());
    }

    void aQueueThatHasGotAPpdIsNotPrintedToWithoutIt()
    {
        QueueScene scene;
        scene.cups.addRawQueue(kQueue, {.deviceUri = scene.device.uri()});
        scene.between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CUPS_GET_PRINTERS);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        const auto hasPanels = [&] {
            const auto *pages = window.pages();
            return pages->count() > 1 && pages->tabText(1) == u"Print Setting"_s;
        };
        QVERIFY(!hasPanels());
        scene.cups.setPpd(kQueue, samplePpdPath(u"corvana-cl5"_s));
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QVERIFY2(matches(window.message(),
                         u"The options of the printer “office” have changed at its server\\."_s +
                             kNothingPrinted),
                 qPrintable(window.message()));
        QVERIFY(window.waitUntil(hasPanels));
        printAndVerify(scene, 1);
    }

    void hundredsOfQueuesArriveWhileTheListIsOpen()
    {
        constexpr int many = 300;
        QByteArray queues;
        for (int i = 0; i < many; ++i)
            queues += "<Printer queue" + QByteArray::number(i) + ">\nInfo Room " +
                      QByteArray::number(i) +
                      "\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</Printer>\n";
        QueueScene scene;
        scene.cups.stop();
        QFile file(scene.cups.folder() + u"/etc/printers.conf"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(queues), queues.size());
        file.close();
        scene.cups.start();
        scene.between.delayResponse(IPP_OP_CUPS_GET_PRINTERS);
        scene.open({m_document}, {});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return scene.between.faultsMade() > 0; }));
        auto *box = window.child<PrinterComboBox>(u"printers"_s);
        box->showPopup();
        auto *popup = window.child<QWidget>(u"printerPopup"_s);
        QVERIFY(popup && popup->isVisible());
        window.heart().takeLargestGap();
        scene.mend();
        QVERIFY(window.waitUntil([&] { return window.printers().size() == many + 1; }));
        QVERIFY(popup->isVisible());
        QCOMPARE(window.printers().value(2), u"Room 2"_s);
        QCOMPARE(window.printer(), u"pdf"_s); // nobody's choice is changed under the open list
        box->hidePopup();
        const qint64 gap = window.heart().takeLargestGap();
        QVERIFY2(gap < kLongestGap, qPrintable(QString::number(gap)));
    }
};

QTEST_MAIN(QueueChangesTest)

#include "queue_changes_test.moc"
