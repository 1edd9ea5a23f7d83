#include <algorithm>
#include <functional>
#include <optional>

#include <QRegularExpression>
#include <QTest>

#include "tests/e2e/QueueScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// What a fault may add to the longest time for which the window does not react. Units:
/// milliseconds.
constexpr qint64 kTolerance = 100 * kSlowdown;
/// Of the document's 600000; so both parts are several blocks. Units: bytes.
constexpr qint64 kPartOfDocument = 200000;

using States = QList<int>;
using Scene = QueueScene;
using Act = std::function<void(Scene &)>;

/// A fault that meets somebody who prints, and what becomes of it.
struct Fault
{
    QByteArray ppd{}; ///< of the queue; empty: the sample printer's
    /// How the device behind the queue behaves.
    std::function<void(CaptureDevice &)> device{};
    Act arrange{}; ///< when the window is ready, before Print is pressed
    /// Then something happens in the midst of it.
    std::function<bool(Scene &)> when{};
    Act strike{};
    QString says{};      ///< expression that the whole message matches, or the report
    bool closes = false; ///< printed: the window is gone
    States jobs{};       ///< at the server
    int documents = 0;   ///< that the printer got
    Act mend = [](Scene &scene) { scene.mend(); };
    QString saysAgain{}; ///< after Print was pressed once more; empty: it is not
    bool closesAgain = true;
    States jobsAgain{};
    int documentsAgain = 0;
    bool severalDocuments = false;
};

const QString kNothingPrinted = u"Nothing was printed\\."_s;
const QString kPrintedAs = u"Printed on “office” as job office-%1\\."_s;

} // namespace

/// What somebody sees and has when the print server, the queue or the printer fails at any point
/// of the way: a message that is true, the settings, no second copy, and a window that reacts.
class QueueFaultsTest : public QObject
{
    Q_OBJECT

private:
    struct Gaps
    {
        qint64 opening = 0;
        qint64 printing = 0;
    };

    std::optional<UserFolders> m_folders;
    QString m_document;
    Gaps m_usual; // without any fault
    Gaps m_gaps;  // of the scene that was played last

    /// Plays a fault from the opening of the window to the second try.
    void play(const Fault &fault)
    {
        Scene scene;
        if (fault.device)
            fault.device(scene.device);
        scene.addQueue(fault.ppd.isEmpty() ? samplePpdPath(u"corvana-cl5"_s)
                                           : m_folders->write(u"queue.ppd"_s, fault.ppd));
        scene.open(fault.severalDocuments ? QStringList{m_document, m_document}
                                          : QStringList{m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.changeSettings();
        m_gaps.opening = window.heart().takeLargestGap();

        if (fault.arrange)
            fault.arrange(scene);
        const QStringList settings = window.settings();
        window.heart().takeLargestGap();
        QVERIFY(window.press("print"));
        QVERIFY(!fault.strike == !fault.when);
        if (fault.strike) {
            QVERIFY2(window.waitUntil([&] { return fault.when(scene); }),
                     qPrintable(window.message() + window.progress()));
            fault.strike(scene);
        }
        QVERIFY(window.waitForTheEnd());
        verifyEnd(scene, fault.says, fault.closes, fault.jobs, fault.documents);
        if (fault.closes || QTest::currentTestFailed())
            return keepGaps(scene);
        QCOMPARE(window.settings(), settings);

        fault.mend(scene);
        if (fault.saysAgain.isEmpty())
            return keepGaps(scene);
        QVERIFY(window.press("print"));
        QVERIFY(window.waitForTheEnd());
        verifyEnd(scene, fault.saysAgain, fault.closesAgain, fault.jobsAgain, fault.documentsAgain);
        if (!fault.closesAgain)
            QCOMPARE(window.settings(), settings);
        keepGaps(scene);
    }

    void keepGaps(Scene &scene) { m_gaps.printing = scene.window->heart().takeLargestGap(); }

    static void verifyEnd(Scene &scene, const QString &says, bool closes, const States &jobs,
                          int documents)
    {
        PrintDialog &dialog = scene.window->dialog();
        const QString said = dialog.isVisible() ? scene.window->message() : dialog.report();
        QVERIFY2(matches(said, says), qPrintable(said));
        QCOMPARE(dialog.isVisible(), !closes);
        QCOMPARE(dialog.printedTo(), QString());
        if (scene.cups.isRunning())
            QTRY_COMPARE(scene.states(), jobs);
        const auto arrived = [&] {
            const QList<CapturedJob> captured = scene.device.jobs();
            return int(std::count_if(captured.begin(), captured.end(),
                                     [](const CapturedJob &job) { return !job.data.isEmpty(); }));
        };
        QTRY_COMPARE(arrived(), documents);
        static const QRegularExpression printed(u"Printed on|earlier try has been printed"_s);
        const bool claimed = printed.match(said + dialog.report()).hasMatch();
        QVERIFY2(!claimed || scene.states().contains(IPP_JSTATE_COMPLETED), qPrintable(said));
    }

    bool isSmooth() const
    {
        return m_gaps.opening <= m_usual.opening + kTolerance &&
               m_gaps.printing <= m_usual.printing + kTolerance;
    }

    /// On a machine that others use as well, one long gap proves nothing; two do.
    void playSmoothly(const std::function<void()> &scene)
    {
        for (int attempt = 0; attempt < 2; ++attempt) {
            m_gaps = {};
            scene();
            if (QTest::currentTestFailed() || isSmooth())
                return;
            qInfo("gaps of %lld and %lld ms, usually %lld and %lld", m_gaps.opening,
                  m_gaps.printing, m_usual.opening, m_usual.printing);
        }
        QVERIFY2(isSmooth(), "the window did not react for a while");
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_folders.emplace();
        m_document = m_folders->longDocument();
        const Fault none{.says = kPrintedAs.arg(1),
                         .closes = true,
                         .jobs = {IPP_JSTATE_COMPLETED},
                         .documents = 1};
        // The first time everything is read from the disk.
        play(none);
        play(none);
        m_usual = m_gaps;
        QVERIFY(m_usual.opening > 0 && m_usual.printing > 0);
        qInfo("usual gaps: %lld and %lld ms", m_usual.opening, m_usual.printing);
    }

    void aFailedJobLeavesEverythingInPlace_data()
    {
        QTest::addColumn<Fault>("fault");
        const Fault unsent{.says = u".* "_s + kNothingPrinted,
                           .saysAgain = kPrintedAs.arg(1),
                           .jobsAgain = {IPP_JSTATE_COMPLETED},
                           .documentsAgain = 1};
        const auto manner = [&](FaultyServer::Manner way, const QString &says) {
            Fault fault = unsent;
            fault.arrange = [way](Scene &scene) {
                scene.between.setManner(way);
                scene.between.dropConnections();
            };
            fault.says = says + u".* "_s + kNothingPrinted;
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
        fault.says = server + u"does not allow you this\\. "_s + kNothingPrinted;
        QTest::newRow("forbidden") << fault;

        fault.arrange = [](Scene &scene) {
            scene.between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CREATE_JOB);
        };
        fault.says = server + u"refuses\\. \\(.+\\) "_s + kNothingPrinted;
        QTest::newRow("busy") << fault;

        fault = unsent;
        fault.arrange = [](Scene &scene) { scene.cups.rejectJobs(kQueue, u"Moving house"_s); };
        fault.says = u"The queue “office” takes no jobs at the moment\\. "_s + kNothingPrinted;
        fault.mend = [](Scene &scene) { scene.cups.acceptJobs(kQueue); };
        QTest::newRow("takes no jobs") << fault;

        fault = unsent;
        fault.arrange = [](Scene &scene) { scene.cups.removeQueue(kQueue); };
        fault.says = u"The queue “office” is not there any more\\. "_s + kNothingPrinted;
        fault.mend = [](Scene &scene) { scene.addQueue(); };
        fault.saysAgain = {};
        QTest::newRow("queue deleted") << fault;

        // The job was made, but its number never came: it stays without a document.
        fault = unsent;
        fault.arrange = [](Scene &scene) { scene.between.swallowResponse(IPP_OP_CREATE_JOB, 1); };
        fault.says = server + u"does not answer\\. "_s + kNothingPrinted;
        fault.jobs = {IPP_JSTATE_HELD};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_HELD, IPP_JSTATE_COMPLETED};
        QTest::newRow("silent when the job was made") << fault;

        fault = unsent;
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
    void aFailedJobLeavesEverythingInPlace()
    {
        QFETCH(Fault, fault);
        playSmoothly([&] { play(fault); });
    }

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
        gone.when = [](Scene &scene) { return scene.device.hasReached(1, u"end"_s); };
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
    void anAnswerThatIsLostLosesNoJobAndMakesNoSecondOne()
    {
        QFETCH(Fault, fault);
        playSmoothly([&] { play(fault); });
    }

    void anotherCopyIsPrintedOnRequest()
    {
        Scene scene;
        scene.device.waitAtEnd();
        scene.addQueue();
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        scene.between.swallowResponse(IPP_OP_SEND_DOCUMENT);
        QVERIFY(window.press("print"));
        QVERIFY(window.waitUntil([&] { return scene.device.hasReached(1, u"end"_s); }));
        scene.goAway();
        QVERIFY(window.waitForTheEnd());
        scene.device.release(u"all"_s);
        scene.mend();
        QVERIFY(window.press("print"));
        QVERIFY(window.waitForTheEnd());
        QCOMPARE(scene.cups.jobs().size(), 1);
        QVERIFY(window.press("messageAction"));
        QVERIFY(window.waitForTheEnd());
        verifyEnd(scene, kPrintedAs.arg(2), true, {IPP_JSTATE_COMPLETED, IPP_JSTATE_COMPLETED}, 2);
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
        fault.saysAgain = u"Job 1 of the earlier try is in the queue and will be printed\\."_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_HELD};
        fault.documentsAgain = 1;
        QTest::newRow("held by the printer") << fault;

        fault = {.ppd = withFailingFilter(contentOf(samplePpdPath(u"corvana-cl5"_s)))};
        fault.says = u"Job office-1 was stopped\\. It is still in the queue, where it can be "
                     "released or canceled\\..*"_s;
        fault.jobs = {IPP_JSTATE_STOPPED};
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
    void whatThePrinterDoesWithTheJobIsSaid()
    {
        QFETCH(Fault, fault);
        playSmoothly([&] { play(fault); });
    }

    void printingIsCanceledAtEveryStage_data()
    {
        QTest::addColumn<Fault>("fault");
        const auto cancel = [](Scene &scene) { QVERIFY(scene.window->press("cancel")); };
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

        Fault fault{.when = progress(u"Preparing"_s), .strike = cancel};
        fault.severalDocuments = true;
        fault.says = u".*[Cc]ancel.*"_s;
        fault.saysAgain = kPrintedAs.arg(1);
        fault.jobsAgain = {IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        QTest::newRow("preparing") << fault;

        fault.severalDocuments = false;
        fault.arrange = [](Scene &scene) { scene.fallSilent(); };
        fault.when = progress(u"Asking the print server"_s);
        fault.says = u"Printing was canceled\\."_s;
        fault.mend = mend;
        QTest::newRow("while the server is silent") << fault;

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
            QVERIFY(scene.window->press("cancel"));
        };
        fault.says =
            u"Printing was canceled\\. Job office-1 could not be canceled and may still be "
            "printed\\. .+"_s;
        fault.jobs = {IPP_JSTATE_PROCESSING};
        fault.mend = [](Scene &scene) { scene.mend(); };
        fault.saysAgain = u"Job 1 of the earlier try is in the queue and will be printed\\."_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_PROCESSING};
        fault.documentsAgain = 1;
        QTest::newRow("printing, while the server is away") << fault;
    }
    void printingIsCanceledAtEveryStage()
    {
        QFETCH(Fault, fault);
        playSmoothly([&] { play(fault); });
    }

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
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(!window.press("leave"));
        QVERIFY(window.press("print"));
        QVERIFY(window.waitUntil([&] { return window.progress().startsWith(u"Printing page"_s); }));
        if (byTheButton)
            QVERIFY(window.press("leave"));
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

QTEST_MAIN(QueueFaultsTest)

#include "queue_faults_test.moc"
