#include <QTest>

#include "tests/e2e/QueueFaults.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What becomes of a job when whoever prints it cancels it, or leaves the window, at any point of
/// the way.
class QueueCancelTest : public QueueFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    void printingIsCanceledAtEveryStage_data()
    {
        QTest::addColumn<Fault>("fault");
        const auto cancel = [](Scene &scene) { QVERIFY(scene.window->press(u"cancel"_s)); };
        const auto progress = [](const QString &text) {
            return [text](Scene &scene) { return scene.window->progress().startsWith(text); };
        };
        const auto waitAtPages = [](CaptureDevice &device) { device.pages(2).waitAtPages(); };
        const auto mend = [](Scene &scene) {
            scene.device.release(u"all"_s);
            scene.mend();
        };
        const QString mayComeOut =
            u"Printing was canceled\\. Job office-1 was canceled; pages that "
            "the printer has already may still come out\\."_s;

        Fault fault{.strike = cancel};
        fault.arrange = [](Scene &scene) { scene.fallSilent(); };
        fault.when = progress(u"Asking the print server"_s);
        fault.says = u"Printing was canceled\\."_s;
        fault.mend = mend;
        fault.saysAgain = kPrintedAs.arg(1);
        fault.jobsAgain = {IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        QTest::newRow("while the server is silent") << fault;

        fault = {.strike = cancel};
        fault.arrange = [](Scene &scene) { scene.between.delayResponse(IPP_OP_CREATE_JOB, 1); };
        fault.when = [](Scene &scene) { return scene.between.faultsMade() > 0; };
        fault.says =
            u"Printing was canceled\\. Job office-1 was canceled; nothing was printed\\."_s;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        QTest::newRow("while the job is made") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.swallowResponse(IPP_OP_GET_JOBS);
            scene.between.delayResponse(IPP_OP_CREATE_JOB, 1);
        };
        fault.says =
            u"Printing was canceled\\. Nothing was printed, but a job without a document may "
            "be at the print server\\. It could not be looked for: .+ does not answer\\."_s;
        fault.jobs = {IPP_JSTATE_HELD};
        fault.jobsAgain = {IPP_JSTATE_HELD, IPP_JSTATE_COMPLETED};
        QTest::newRow("while the job is made, and then the server falls silent") << fault;

        fault = {.device = waitAtPages, .strike = cancel};
        fault.arrange = [](Scene &scene) { scene.between.delayResponse(IPP_OP_SEND_DOCUMENT, 1); };
        fault.when = [](Scene &scene) { return scene.device.hasReached(1, u"page-1"_s); };
        fault.says = mayComeOut;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.documents = 1;
        fault.mend = mend;
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 2;
        QTest::newRow("sent, and printing before the server has said so") << fault;

        fault.says =
            u"Printing was canceled\\. Job office-1 was canceled; nothing was printed\\."_s;
        fault.documents = 0;
        fault.documentsAgain = 1;
        fault.arrange = [](Scene &scene) { scene.cups.stopQueue(kQueue); };
        fault.when = progress(u"The printer is stopped"_s);
        fault.mend = [](Scene &scene) {
            scene.device.release(u"all"_s);
            scene.cups.startQueue(kQueue);
        };
        QTest::newRow("waiting") << fault;

        fault = {.device = waitAtPages};
        fault.when = progress(u"Printing page"_s);
        fault.strike = cancel;
        fault.says = mayComeOut;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.documents = 1;
        fault.mend = mend;
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 2;
        QTest::newRow("printing") << fault;

        // Nobody can take it back then, and it will be printed.
        fault.strike = [](Scene &scene) {
            scene.goAway();
            QVERIFY(scene.window->press(u"cancel"_s));
        };
        fault.says = u"Job office-1 could not be canceled and may still be "
                     "printed\\. .+"_s;
        fault.jobs = {IPP_JSTATE_PROCESSING};
        fault.mend = [](Scene &scene) { scene.mend(); };
        fault.saysAgain = u"Job 1 of the earlier try is in the queue and will be printed\\."_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_PROCESSING};
        fault.documentsAgain = 1;
        QTest::newRow("printing, while the server is away") << fault;
    }
    void printingIsCanceledAtEveryStage() { playRow(); }

    void aJobGoesOnWhenTheWindowIsLeft_data()
    {
        QTest::addColumn<bool>("byTheButton");
        QTest::newRow("Close") << true;
        QTest::newRow("the window's own button") << false;
    }
    void aJobGoesOnWhenTheWindowIsLeft()
    {
        QFETCH(bool, byTheButton);
        Scene scene;
        scene.device.pages(1).waitAtPages();
        scene.addQueue();
        scene.open({player().document()});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(!window.press(u"leave"_s));
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitUntil([&] { return window.progress().startsWith(u"Printing page"_s); }));
        if (byTheButton)
            QVERIFY(window.press(u"leave"_s));
        else
            window.dialog().close();
        QTRY_VERIFY(!window.dialog().isVisible());
        QCOMPARE(window.dialog().report(),
                 u"Job office-1 is in the queue; it was not followed to its end."_s);
        QCOMPARE(window.dialog().printedTo(), QString());
        QCOMPARE(scene.states(), States{IPP_JSTATE_PROCESSING});
        scene.device.release(u"all"_s);
        QTRY_COMPARE(scene.states(), States{IPP_JSTATE_COMPLETED});
    }
};

QTEST_MAIN(QueueCancelTest)

#include "queue_cancel_test.moc"
