#include <QSignalSpy>
#include <QTest>

#include "dialog/task/TaskHistory.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/task/QueueTaskTest.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Kind = JobOutcome::Kind;
using OnInterrupt = PrintTask::OnInterrupt;
using Phase = PrintTask::Phase;

namespace {

// The filter of these tests makes nothing that could be counted, so nobody knows what was on the
// pages.
constexpr auto kTaken = JobOutcome::Kind::Sent;

} // namespace

/// What becomes of the jobs of tasks that print to a queue.
class TaskQueueJobsTest : public QueueTaskTest
{
    Q_OBJECT

private Q_SLOTS:
    void instructionsThatNobodyHasFollowedHoldTheJob()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        open(request());
        face().instructionsAre = TaskFace::Instructions::Wait;
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, Kind::InQueue);
        QVERIFY(task().isHeld());
        QCOMPARE(m_cups->job(task().outcome().job).state, IPP_JSTATE_HELD);
        QCOMPARE(task().phase(), Phase::Ready);
        // They have been followed; what is printed now does not wait.
        m_cups->cancelJob(task().outcome().job);
        face().instructionsAre = TaskFace::Instructions::Followed;
        QVERIFY(printed());
        QVERIFY(!task().isHeld());
        QCOMPARE(task().outcome().kind, kTaken);
    }

    // Else the job would be printed, and be said to wait.
    void instructionsAreNotWaitedForAgainstALock_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("at once") << QByteArray("no-hold");
        QTest::newRow("by itself") << QByteArray("evening");
        QTest::newRow("held anyway") << QByteArray("indefinite");
        QTest::newRow("the user's own choice") << QByteArray();
    }
    void instructionsAreNotWaitedForAgainstALock()
    {
        QFETCH(QByteArray, lock);
        const bool waits = lock.isEmpty() || lock == "indefinite";
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        PrintRequest locked = request();
        locked.policy = policyFrom("[all]\nlock.job-hold-until=" + lock + '\n');
        open(locked);
        task().settings().setAttribute(u"job-hold-until"_s, u"evening"_s);
        face().instructionsAre = TaskFace::Instructions::Wait;
        QCOMPARE(printed(), waits);
        QCOMPARE(m_cups->jobs().size(), waits ? 1 : 0);
        if (waits)
            QCOMPARE(jobValue(task().outcome().job, "job-hold-until"), u"indefinite"_s);
        else
            QCOMPARE(
                face().problems(),
                QStringList{u"“Hold Until” is set by your administrator (1.conf:2). So the job "
                            "cannot wait for these instructions. Follow them and print with "
                            "--on-alert=print."_s});
    }

    void aJobThatMayPrintYetIsLookedUpBeforeItIsSentAgain()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        open(request(u"job-hold-until=indefinite"_s));
        const QList<Kind> kinds{Kind::InQueue, Kind::AlreadyThere, Kind::InQueue};
        const QList<qsizetype> jobs{1, 1, 2}; // the third is another copy, which the user wants
        for (int i = 0; i < kinds.size(); ++i) {
            QVERIFY(printed());
            QVERIFY2(task().outcome().kind == kinds.at(i), qPrintable(task().outcome().text));
            QCOMPARE(m_cups->jobs().size(), jobs.at(i));
            QCOMPARE(task().phase(), Phase::Ready);
        }
    }

    // What is opened here is compared with what its server has at the moment of printing.
    void whatWasOpenedIsNotPrintedWithAnotherPpdWhateverItsDate()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        const QString path = m_cups->folder() + u"/etc/ppd/office.ppd"_s;
        const auto date = QFileInfo(path).lastModified();
        open(request());
        const PpdBuilder other =
            officePrinter().option("Ink", "Ink", "Black", {{"Black", "Black"}});
        writeFile(path, other.text());
        QFile changed(path);
        QVERIFY(changed.open(QIODevice::ReadWrite) &&
                changed.setFileTime(date, QFileDevice::FileModificationTime));
        changed.close();
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, Kind::PrinterChanged);
        QVERIFY(m_cups->jobs().isEmpty());
        // It has been opened anew by then, and prints.
        QTRY_VERIFY_WITH_TIMEOUT(task().phase() == Phase::Opened, kPatience);
        task().bringUp();
        QVERIFY(ppdOption(m_scene->session().ppd(), u"Ink"_s));
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, kTaken);
    }

    // The server would add it to a job that nobody has seen it in.
    void whatAQueueAddsByNowIsSeenBeforeItIsPrinted()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        open(request());
        QueueSettings settings;
        settings.options = {u"number-up-default=2"_s};
        m_cups->addQueue(u"office"_s, ppd(officePrinter()), settings);
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, Kind::PrinterChanged);
        QVERIFY(m_cups->jobs().isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(task().phase() == Phase::Opened, kPatience);
        task().bringUp();
        QCOMPARE(task().settings().attribute(u"number-up"_s), u"2"_s);
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, kTaken);
    }

    // CUPS adds a default that nobody has asked for, and does so each time.
    void whatAServerMakesUpHoldsNoJobUp()
    {
        const JobOption madeUp{u"print-color-mode"_s, u"monochrome"_s};
        m_cups->addQueue(u"office"_s, ppd(officePrinter()
                                              .line("*ColorDevice: True")
                                              .option("ColorModel", "Color", "Gray",
                                                      {{"Gray", "Gray"}, {"RGB", "Color"}})));
        for (const bool isKnown : {false, true}) {
            m_scene = std::make_unique<TaskScene>();
            open(request());
            QSignalSpy changed(&task(), &PrintTask::printerChanged);
            QVERIFY(!isKnown || changed.wait(kPatience)); // the server has been asked again
            QVERIFY(task().opened()->saidDefaults.contains(madeUp));
            QVERIFY(!task().opened()->fetched.defaults.contains(madeUp));
            QVERIFY(printed());
            QVERIFY(task().outcome().isDone());
        }
    }

    // The first printer is there for want of a better one, and what was done with it is not lost.
    void documentsCanBeTakenBackWhenTheServersPrinterHasCome()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        PrintRequest any = request();
        any.wantedPrinter.clear();
        m_scene->make(any).start();
        QVERIFY(m_scene->reaches(Phase::Opened));
        task().bringUp();
        task().addDocuments({corvana::test::sourceFile(u"tests/data/pages.pdf"_s)});
        task().printers().start(); // as a window does
        QTRY_COMPARE_WITH_TIMEOUT(task().phase(), Phase::Opened, kPatience);
        QCOMPARE(task().printer().name, u"office"_s);
        task().bringUp();
        task().history().undo();
        QTRY_COMPARE(task().phase(), Phase::Opened); // the first one again
        task().bringUp();
        task().history().undo();
        QCOMPARE(task().documents().size(), 1);
    }

    void aFaceThatDoesNotWantToWaitIsDoneWhenTheQueueHasTheJob()
    {
        PrintRequest once = request();
        once.noWait = true;
        m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                         {.deviceUri = m_cups->capture(u"office"_s).waitAtStart().uri()});
        open(once);
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, Kind::InQueue);
        QCOMPARE(task().phase(), Phase::Ended);
        m_cups->capture(u"office"_s).release(u"all"_s);
    }

    void whoeverInterruptsSaysWhatBecomesOfTheJob_data()
    {
        QTest::addColumn<int>("meaning");
        QTest::addColumn<int>("kind");
        QTest::newRow("it goes on") << int(OnInterrupt::LeaveJob) << int(Kind::InQueue);
        QTest::newRow("it is canceled") << int(OnInterrupt::CancelJob) << int(Kind::Canceled);
    }
    void whoeverInterruptsSaysWhatBecomesOfTheJob()
    {
        QFETCH(int, meaning);
        QFETCH(int, kind);
        printSlowly(request());
        task().interrupt(OnInterrupt(meaning));
        QCOMPARE(task().phase(), Phase::Leaving);
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(int(task().outcome().kind), kind);
        m_cups->capture(u"office"_s).release(u"all"_s);
        const ipp_jstate_t end =
            kind == int(Kind::InQueue) ? IPP_JSTATE_COMPLETED : IPP_JSTATE_CANCELED;
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->job(task().outcome().job).state, end, kPatience);
    }

    void aJobThatIsLeftEndsTheTaskAndGoesOn()
    {
        printSlowly(request());
        task().leave();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(task().outcome().kind, Kind::InQueue);
        m_cups->capture(u"office"_s).release(u"all"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->job(task().outcome().job).state, IPP_JSTATE_COMPLETED,
                                  kPatience);
    }

    void aJobThatIsBeingCanceledCannotBeLeft()
    {
        printSlowly(request());
        task().cancel();
        task().leave();
        QCOMPARE(task().phase(), Phase::Canceling);
        QVERIFY(m_scene->reaches(Phase::Ready));
        QCOMPARE(task().outcome().kind, Kind::Canceled);
        m_cups->capture(u"office"_s).release(u"all"_s);
    }
};

QTEST_MAIN(TaskQueueJobsTest)

#include "task_queue_jobs_test.moc"
