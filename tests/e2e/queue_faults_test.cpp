#include <ctime>

#include <QTest>
#include <QThread>

#include "tests/e2e/QueueFaults.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What somebody sees and has when the print server, the queue or the printer fails at any point
/// of the way: a message that is true, the settings, no second copy, and a window that reacts.
class QueueFaultsTest : public QueueFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    // Or nothing below would say that a window reacts.
    void theHeartNoticesWhatStopsIt_data()
    {
        QTest::addColumn<bool>("computes");
        QTest::newRow("waiting") << false;
        QTest::newRow("computing") << true;
    }
    void theHeartNoticesWhatStopsIt()
    {
        QFETCH(bool, computes);
        constexpr int kStop = 300; // milliseconds
        Heartbeat heart;
        heart.start();
        QTest::qWait(50);
        heart.takeLargestGap();
        const std::clock_t computed = std::clock();
        if (computes) {
            while (std::clock() - computed < kStop * (CLOCKS_PER_SEC / 1000)) {
            }
        } else {
            QThread::msleep(kStop);
        }
        QTest::qWait(50);
        const qint64 gap = heart.takeLargestGap();
        QVERIFY2(gap >= kStop - 50, qPrintable(QString::number(gap)));
    }

    void aFailedJobLeavesEverythingInPlace_data()
    {
        QTest::addColumn<Fault>("fault");
        const Fault unsent{.says = u".*"_s + kNothingPrinted,
                           .saysAgain = kPrintedAs.arg(1),
                           .jobsAgain = {IPP_JSTATE_COMPLETED},
                           .documentsAgain = 1};
        const auto manner = [&](FaultyServer::Manner way, const QString &says) {
            Fault fault = unsent;
            fault.arrange = [way](Scene &scene) {
                scene.between.setManner(way);
                scene.between.dropConnections();
            };
            fault.says = says + u".*"_s + kNothingPrinted;
            return fault;
        };
        const QString server = u"The print server “127\\.0\\.0\\.1:[0-9]+” "_s;
        QTest::newRow("refused") << manner(FaultyServer::Manner::Refuses,
                                           server + u"cannot be reached"_s);
        QTest::newRow("never answers")
            << manner(FaultyServer::Manner::NeverAnswers, server + u"does not answer"_s);
        QTest::newRow("hangs up") << manner(FaultyServer::Manner::HangsUp,
                                            server + u"broke the connection"_s);
        QTest::newRow("answers garbage")
            << manner(FaultyServer::Manner::Babbles,
                      u"What “127\\.0\\.0\\.1:[0-9]+” answers is not what a print server says"_s);

        Fault fault = unsent;
        fault.arrange = [](Scene &scene) {
            scene.between.answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_CREATE_JOB);
        };
        fault.says = server + u"does not allow you this\\."_s + kNothingPrinted;
        QTest::newRow("forbidden") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CREATE_JOB);
        };
        fault.says = server + u"refuses\\. \\(.+\\)"_s + kNothingPrinted;
        QTest::newRow("busy") << fault;

        fault = unsent;
        fault.arrange = [](Scene &scene) { scene.cups.rejectJobs(kQueue, u"Moving house"_s); };
        fault.says =
            u"The queue “office” takes no jobs at the moment: Moving house\\."_s + kNothingPrinted;
        fault.mend = [](Scene &scene) { scene.cups.acceptJobs(kQueue); };
        QTest::newRow("takes no jobs") << fault;

        fault = unsent;
        fault.arrange = [](Scene &scene) { scene.cups.removeQueue(kQueue); };
        fault.says = u"The queue “office” is not there any more\\."_s + kNothingPrinted;
        fault.mend = [](Scene &scene) { scene.addQueue(); };
        fault.saysAgain = {};
        QTest::newRow("queue deleted") << fault;

        // The job was made, but its number never came.
        const QString takenBack = u"Job office-1 was canceled; nothing was printed\\."_s;
        fault = unsent;
        fault.arrange = [](Scene &scene) { scene.between.swallowResponse(IPP_OP_CREATE_JOB, 1); };
        fault.says = server + u"does not answer\\. "_s + takenBack;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        QTest::newRow("silent when the job was made") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.closeBeforeResponse(IPP_OP_CREATE_JOB, 1);
        };
        fault.says = server + u"broke the connection\\. "_s + takenBack;
        QTest::newRow("hangs up when the job was made") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.closeBeforeResponse(IPP_OP_CREATE_JOB, 1);
            scene.between.answerHttp(HTTP_STATUS_SERVICE_UNAVAILABLE, IPP_OP_GET_JOBS);
        };
        fault.says = server + u"broke the connection\\. Nothing was printed, but a job without a "
                              "document may be at the print server\\. It could not be looked for: "
                              ".+"_s;
        fault.jobs = {IPP_JSTATE_HELD};
        fault.jobsAgain = {IPP_JSTATE_HELD, IPP_JSTATE_COMPLETED};
        QTest::newRow("gone when the job was made") << fault;

        fault = unsent;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.arrange = [](Scene &scene) {
            scene.between.closeAfterDocumentBytes(kPartOfDocument, IPP_OP_SEND_DOCUMENT, 1);
        };
        fault.says = u".*Job office-1 was canceled; nothing was printed\\."_s;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        QTest::newRow("hangs up in the middle of the document") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_SEND_DOCUMENT);
        };
        QTest::newRow("forbidden to send the document") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.closeAfterDocumentBytes(kPartOfDocument, IPP_OP_SEND_DOCUMENT, 1);
            scene.between.answerHttp(HTTP_STATUS_SERVICE_UNAVAILABLE, IPP_OP_CANCEL_JOB);
        };
        fault.says = u".*Job office-1 may still be at the print server, without its whole "
                     "document\\. It could not be canceled: .+"_s;
        fault.jobs = {IPP_JSTATE_HELD};
        fault.jobsAgain = {IPP_JSTATE_HELD, IPP_JSTATE_COMPLETED};
        QTest::newRow("gone in the middle of the document") << fault;
    }
    void aFailedJobLeavesEverythingInPlace() { playRow(); }

    void anAnswerThatIsLostLosesNoJobAndMakesNoSecondOne_data()
    {
        QTest::addColumn<Fault>("fault");
        Fault found{.says = kPrintedAs.arg(1),
                    .closes = true,
                    .jobs = {IPP_JSTATE_COMPLETED},
                    .documents = 1};
        found.arrange = [](Scene &scene) {
            scene.between.swallowResponse(IPP_OP_SEND_DOCUMENT, 1);
        };
        QTest::newRow("silent after the document") << found;
        found.arrange = [](Scene &scene) {
            scene.between.closeBeforeResponse(IPP_OP_SEND_DOCUMENT, 1);
        };
        QTest::newRow("hangs up after the document") << found;

        Fault gone{.device = [](CaptureDevice &device) { device.waitAtEnd(); }};
        gone.arrange = [](Scene &scene) { scene.between.swallowResponse(IPP_OP_SEND_DOCUMENT); };
        // Before the window loses patience with the answer and looks for the job.
        gone.when = [](Scene &scene) { return scene.between.faultsMade() > 0; };
        gone.strike = [](Scene &scene) { scene.goAway(); };
        gone.says = u".*The document had been sent, so job office-1 may be printed or not\\. "
                    "Printing again looks for it first\\."_s;
        gone.jobs = {IPP_JSTATE_PROCESSING};
        gone.documents = 1;
        gone.saysAgain = u"Job 1 of the earlier try is in the queue and will be printed\\."_s;
        gone.closesAgain = false;
        gone.jobsAgain = {IPP_JSTATE_PROCESSING};
        gone.documentsAgain = 1;
        QTest::newRow("gone after the document, still printing") << gone;
        gone.mend = [](Scene &scene) {
            scene.device.release(u"all"_s);
            QTRY_COMPARE(scene.states(), States{IPP_JSTATE_COMPLETED});
            scene.mend();
        };
        gone.saysAgain = u"Job 1 of the earlier try has been printed\\."_s;
        gone.jobsAgain = {IPP_JSTATE_COMPLETED};
        QTest::newRow("gone after the document, printed meanwhile") << gone;
        gone.mend = [](Scene &scene) {
            scene.cups.cancelJob(1);
            QTRY_COMPARE(scene.states(), States{IPP_JSTATE_CANCELED});
            scene.device.release(u"all"_s);
            scene.mend();
        };
        gone.saysAgain = kPrintedAs.arg(2);
        gone.closesAgain = true;
        gone.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        gone.documentsAgain = 2;
        QTest::newRow("gone after the document, canceled meanwhile") << gone;

        Fault printing{.device = [](CaptureDevice &device) { device.pages(2).waitAtPages(); }};
        printing.when = [](Scene &scene) {
            return scene.device.hasReached(1, u"page-1"_s) &&
                   scene.window->progress().startsWith(u"Printing"_s);
        };
        printing.strike = [](Scene &scene) { scene.goAway(); };
        printing.says = u"Job office-1 was handed over completely\\. .+ So whether it has been "
                        "printed is not known\\."_s;
        printing.jobs = {IPP_JSTATE_PROCESSING};
        printing.documents = 1;
        printing.saysAgain = u"Job 1 of the earlier try is in the queue and will be printed\\."_s;
        printing.closesAgain = false;
        printing.jobsAgain = {IPP_JSTATE_PROCESSING};
        printing.documentsAgain = 1;
        QTest::newRow("gone while printing") << printing;
        printing.strike = [](Scene &scene) { scene.cups.kill(); };
        printing.mend = [](Scene &scene) {
            scene.device.release(u"all"_s);
            scene.cups.start();
            QTRY_COMPARE_WITH_TIMEOUT(scene.states(), States{IPP_JSTATE_COMPLETED}, 20000);
        };
        printing.saysAgain = u"Job 1 of the earlier try has been printed\\."_s;
        printing.jobsAgain = {IPP_JSTATE_COMPLETED};
        printing.documentsAgain = 2; // the server begins anew by itself
        QTest::newRow("killed while printing") << printing;
    }
    void anAnswerThatIsLostLosesNoJobAndMakesNoSecondOne() { playRow(); }

    void aServerThatCrashesInTheMidstOfTheDocumentPrintsItOnce_data()
    {
        QTest::addColumn<Fault>("fault");
        Fault killed;
        killed.arrange = [](Scene &scene) {
            scene.between.stallInDocument(kPartOfDocument, IPP_OP_SEND_DOCUMENT, 1);
        };
        killed.when = [](Scene &scene) { return scene.between.faultsMade() > 0; };
        killed.strike = [](Scene &scene) { scene.cups.kill(); };
        killed.mend = [](Scene &scene) { scene.cups.start(); };
        const QString broke =
            u"The print server “127\\.0\\.0\\.1:[0-9]+” broke the connection\\. "_s;
        killed.says = broke +
                      u"The document had been sent, so job office-1 may be printed or not\\. "
                      "Printing again looks for it first\\."_s;
        killed.saysAgain = kPrintedAs.arg(2);
        killed.jobsAgain = {IPP_JSTATE_HELD, IPP_JSTATE_COMPLETED};
        killed.documentsAgain = 1;
        QTest::newRow("while all of it is on its way") << killed;
        killed.sends = Fault::Sends::LargeDocument;
        killed.says = broke + u"Job office-1 may still be at the print server, without its whole "
                              "document\\. It could not be canceled: .+"_s;
        QTest::newRow("before all of it is on its way") << killed;
    }
    void aServerThatCrashesInTheMidstOfTheDocumentPrintsItOnce() { playRow(); }

    void anotherCopyIsPrintedOnRequest()
    {
        Scene scene;
        scene.device.waitAtEnd();
        scene.addQueue();
        scene.open({player().document()});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        scene.between.swallowResponse(IPP_OP_SEND_DOCUMENT);
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitUntil([&] { return scene.device.hasReached(1, u"end"_s); }));
        scene.goAway();
        QVERIFY(window.waitForTheEnd());
        scene.device.release(u"all"_s);
        scene.mend();
        QVERIFY(window.press(u"print"_s));
        QVERIFY(window.waitForTheEnd());
        QCOMPARE(scene.cups.jobs().size(), 1);
        QVERIFY(window.press(u"messageAction"_s));
        QVERIFY(window.waitForTheEnd());
        FaultPlayer::verifyEnd(scene, kPrintedAs.arg(2), true,
                               {IPP_JSTATE_COMPLETED, IPP_JSTATE_COMPLETED}, 2);
    }

    void whatThePrinterDoesWithTheJobIsSaid_data()
    {
        QTest::addColumn<Fault>("fault");
        const auto exits = [](BackendExit status) {
            return [status](CaptureDevice &device) { device.exitWith(status); };
        };
        Fault fault{.device = exits(BackendExit::Failed)};
        fault.says = u"Job office-1 failed: the printer or its server gave it up\\..*"_s;
        fault.jobs = {IPP_JSTATE_ABORTED};
        fault.documents = 1;
        fault.saysAgain = u"Job office-2 failed: the printer or its server gave it up\\..*"_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_ABORTED, IPP_JSTATE_ABORTED};
        fault.documentsAgain = 2;
        QTest::newRow("backend fails") << fault;

        fault.device = exits(BackendExit::Cancel);
        fault.says = u"Job office-1 was canceled at the printer or its server\\."_s;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.saysAgain = u"Job office-2 was canceled at the printer or its server\\."_s;
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_CANCELED};
        QTest::newRow("canceled by the printer") << fault;

        fault = {.device = exits(BackendExit::Hold)};
        fault.says = u"Job office-1 is held in the queue “office”\\..*"_s;
        fault.jobs = {IPP_JSTATE_HELD};
        fault.documents = 1;
        fault.saysAgain = u"Job 1 of the earlier try is held in the queue\\."_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_HELD};
        fault.documentsAgain = 1;
        QTest::newRow("held by the printer") << fault;

        fault = {.ppd = withFailingFilter(contentOf(samplePpdPath(u"corvana-cl5"_s)))};
        fault.says = u"Job office-1 was stopped\\. It is still in the queue, where it can be "
                     "released or canceled\\..*"_s;
        fault.jobs = {IPP_JSTATE_STOPPED};
        // Whoever releases it must not find a second copy.
        fault.saysAgain = u"Job 1 of the earlier try is stopped in the queue\\."_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_STOPPED};
        QTest::newRow("filter fails") << fault;

        fault = {.device = [](CaptureDevice &device) { device.pages(2).waitAtPages(); }};
        fault.when = [](Scene &scene) {
            return scene.device.hasReached(1, u"page-1"_s) &&
                   scene.window->progress().startsWith(u"Printing"_s);
        };
        fault.strike = [](Scene &scene) { scene.cups.cancelJob(1); };
        fault.says = u"Job office-1 was canceled at the printer or its server\\."_s;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.documents = 1;
        fault.mend = [](Scene &scene) { scene.device.release(u"all"_s); };
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 2;
        QTest::newRow("canceled at the server while printing") << fault;

        fault.strike = [](Scene &scene) { scene.cups.removeQueue(kQueue); };
        fault.says = u"Job office-1 (was canceled at the printer or its server\\.|has left the "
                     "queue “office”, whose server keeps no record of it\\.)"_s;
        fault.saysAgain = {};
        fault.jobs = {IPP_JSTATE_CANCELED};
        QTest::newRow("queue deleted while printing") << fault;

        fault = {};
        fault.arrange = [](Scene &scene) { scene.cups.stopQueue(kQueue, u"Being repaired"_s); };
        fault.when = [](Scene &scene) {
            return scene.window->progress() == u"The printer is stopped: Being repaired"_s;
        };
        fault.strike = [](Scene &scene) { scene.cups.startQueue(kQueue); };
        fault.says = kPrintedAs.arg(1);
        fault.closes = true;
        fault.jobs = {IPP_JSTATE_COMPLETED};
        fault.documents = 1;
        QTest::newRow("queue stopped for a while") << fault;
    }
    void whatThePrinterDoesWithTheJobIsSaid() { playRow(); }
};

QTEST_MAIN(QueueFaultsTest)

#include "queue_faults_test.moc"
