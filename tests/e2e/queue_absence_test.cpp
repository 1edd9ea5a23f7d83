#include <QTest>

#include "tests/e2e/QueueScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Manner = FaultyServer::Manner;

/// Before this time, also on a busy machine, a server that is away is asked again by itself. Units:
/// milliseconds.
constexpr int kNextTry = 60000;

} // namespace

/// A server that is away, in each of the ways to be so, and comes back while the window is open.
class QueueAbsenceTest : public QueueFixture
{
    Q_OBJECT

private:
    static void manners()
    {
        QTest::addColumn<Manner>("manner");
        QTest::addColumn<QString>("says");
        // The same in the line below the printer, where there is little room.
        QTest::addColumn<QString>("brief");
        const QString server = u"“127\\.0\\.0\\.1:[0-9]+”"_s;
        QTest::newRow("refused") << Manner::Refuses << kServer + u"cannot be reached\\."_s
                                 << server + u" cannot be reached\\."_s;
        QTest::newRow("never answers") << Manner::NeverAnswers << kServer + u"does not answer\\."_s
                                       << u"No answer from "_s + server + u"\\."_s;
        QTest::newRow("hangs up") << Manner::HangsUp << kServer + u"broke the connection\\."_s
                                  << server + u" broke the connection\\."_s;
        const QString garbage =
            u"What "_s + server + u" answers is not what a print server says\\..*"_s;
        QTest::newRow("garbage") << Manner::Babbles << garbage << garbage;
    }

private Q_SLOTS:
    void initTestCase() { makeFolders(); }

    void aPrinterThatWasNamedIsThereWhenItsServerIs_data() { manners(); }
    void aPrinterThatWasNamedIsThereWhenItsServerIs()
    {
        QFETCH(Manner, manner);
        QFETCH(QString, says);
        QueueScene scene;
        scene.addQueue();
        scene.between.setManner(manner);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QCOMPARE(window.printer(), kQueue);
        QVERIFY(!window.press(u"print"_s));
        QVERIFY2(window.waitUntil([&] { return matches(window.waiting(), says); }),
                 qPrintable(window.waiting()));
        QVERIFY(!window.canPrint());
        scene.mend();
        QVERIFY(window.press(u"retry"_s));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        printAndVerify(scene, 1);
        QCOMPARE_LT(window.heart().takeLargestGap(), kLongestGap);
    }

    void withoutAServerThereIsTheFileUntilTheServerComesBack_data() { manners(); }
    void withoutAServerThereIsTheFileUntilTheServerComesBack()
    {
        QFETCH(Manner, manner);
        QFETCH(QString, says);
        QFETCH(QString, brief);
        QueueScene scene;
        scene.addQueue();
        scene.between.setManner(manner);
        scene.open({m_document}, {});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QCOMPARE(window.printers(), QStringList{kFilePrinter});
        QVERIFY2(window.waitUntil([&] { return matches(window.status(), brief); }),
                 qPrintable(window.status()));
        QVERIFY2(matches(window.footer(), says), qPrintable(window.footer()));
        QVERIFY(window.canPrint());
        scene.mend();
        QVERIFY(window.press(u"printerStatusRetry"_s));
        QVERIFY(window.waitUntil([&] { return window.printer() == kQueue && window.canPrint(); }));
        QCOMPARE(window.footer(), QString());
        printAndVerify(scene, 1);
        QCOMPARE_LT(window.heart().takeLargestGap(), kLongestGap);
    }

    void thePrinterUsedLastIsThereWithoutItsServer()
    {
        QueueScene scene;
        open(scene);
        printAndVerify(scene, 1);
        scene.fallSilent();
        scene.open({m_document}, {});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QCOMPARE(window.printer(), kQueue);
        window.changeSettings();
        const QStringList settings = window.settings();
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QVERIFY2(matches(window.message(), kServer + u"does not answer\\."_s + kNothingPrinted),
                 qPrintable(window.message()));
        QCOMPARE(window.settings(), settings);
        scene.mend();
        printAndVerify(scene, 2);
        QCOMPARE_LT(window.heart().takeLargestGap(), kLongestGap);
    }

    void aServerThatComesBackIsNoticed()
    {
        QueueScene scene;
        open(scene);
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.printers().size() == 2; }));
        scene.goAway();
        scene.cups.addRawQueue(u"attic"_s);
        QVERIFY(window.waitUntil([&] { return scene.between.openConnections() == 0; }));
        QCOMPARE(window.printers().size(), 2);
        QVERIFY(window.canPrint());
        scene.mend();
        QVERIFY(window.waitUntil([&] { return window.printers().size() == 3; }, kNextTry));
        printAndVerify(scene, 1);
    }
};

QTEST_MAIN(QueueAbsenceTest)

#include "queue_absence_test.moc"
