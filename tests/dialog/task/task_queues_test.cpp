#include <optional>

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include "dialog/printers/LastPrinter.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/OpenedPrinter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

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
constexpr int kPatience = 20000; // milliseconds that a queue may take on a busy machine
} // namespace

/// Tasks that print to the queue "office" of a server, without any face.
class TaskQueuesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    std::vector<std::unique_ptr<Variable>> m_variables;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_between;
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &task() { return *m_scene->task; }
    ScriptedFace &face() { return m_scene->face; }

    void setUserOptions(const QByteArray &lines)
    {
        QDir(m_home->path()).mkpath(u".cups"_s);
        writeFile(m_home->filePath(u".cups/lpoptions"_s), lines);
    }
    QString ppd(const PpdBuilder &ppd)
    {
        return writeFile(m_home->filePath(u"office.ppd"_s), ppd.text());
    }
    PrintRequest request(const QString &options = {})
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.documents.first().path = corvana::test::sourceFile(u"tests/data/page.txt"_s);
        request.documents.first().format = u"text/plain"_s;
        request.server = *ServerAddress::parse(m_between->server());
        request.serverWasNamed = true;
        request.wantedPrinter = u"office"_s;
        request.options = parseOptions({options});
        return request;
    }
    // As a window: with panels up, and nothing printed yet.
    void open(const PrintRequest &request)
    {
        m_scene->make(request).start();
        QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
        task().bringUp();
    }
    bool printed()
    {
        const qsizetype before = face().outcomes.size();
        const qsizetype refused = face().refusals.size();
        task().print();
        return QTest::qWaitFor(
                   [&] {
                       return face().outcomes.size() > before || face().refusals.size() > refused;
                   },
                   kPatience) &&
               face().outcomes.size() > before;
    }
    QString attribute(const QString &name) { return task().settings().attribute(name); }
    QString jobValue(int job, const char *attribute)
    {
        return Client(m_cups->server()).jobValue(job, attribute);
    }
    // A job that its queue has, and whose printer does not come to its end.
    void printSlowly(const PrintRequest &request)
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                         {.deviceUri = m_cups->capture(u"office"_s).waitAtStart().uri()});
        open(request);
        task().print();
        QTRY_VERIFY_WITH_TIMEOUT(task().isJobHandedOver(), kPatience);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
    }
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            m_variables.push_back(std::make_unique<Variable>(name, m_home->path().toUtf8()));
        m_variables.push_back(std::make_unique<Variable>("CUPS_SERVERROOT", "/nonexistent"));
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_between = std::make_unique<FaultyServer>(m_cups->port());
        m_scene = std::make_unique<TaskScene>();
    }
    void cleanup()
    {
        m_scene.reset();
        m_between.reset();
        m_cups.reset();
        m_variables.clear();
        m_home.reset();
    }

    // What the user has set with lpoptions

    void whatCannotBeTakenOfTheUsersOptionsIsIgnored()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        setUserOptions("Dest office Tray=Lower Media=Silk Sparkle=ON number-up=2\n");
        open(request());
        QCOMPARE(face().ignored.size(), 2);
        QVERIFY2(face().ignored.at(0).contains(u"Sparkle"_s), qPrintable(face().ignored.at(0)));
        QVERIFY2(face().ignored.at(1).startsWith(u"lpoptions: Media=Silk"_s),
                 qPrintable(face().ignored.at(1)));
        // In front of a person as well, with the value and with what is allowed.
        QCOMPARE(face().messages.size(), 1);
        QVERIFY2(face().message().contains(u"Sparkle=ON"_s), qPrintable(face().message()));
        QVERIFY2(face().message().contains(u"Plain, Card"_s), qPrintable(face().message()));
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, kTaken);
        QCOMPARE(jobValue(task().outcome().job, "number-up"), u"2"_s);
    }

    void whatIsAskedForNowCountsMoreThanTheUsersOptions()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        setUserOptions("Dest office Tray=Lower Media=Card copies=3\n");
        open(request(u"Tray=Upper"_s));
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Upper"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Card"_s);
        QCOMPARE(task().settings().copies(), 3);
    }

    void copiesOfTheUsersOptionsOutlastAChangeOfThePrintersOptions()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        setUserOptions("Dest office copies=3\n");
        open(request());
        task().propose(u"Tray"_s, u"Lower"_s);
        QCOMPARE(task().settings().copies(), 3);
        m_cups->addQueue(u"office"_s,
                         ppd(officePrinter().option("Ink", "Ink", "Black", {{"Black", "Black"}})));
        task().retry();
        QVERIFY(m_scene->reaches(Phase::Opened));
        task().bringUp();
        QVERIFY(ppdOption(m_scene->session().ppd(), u"Ink"_s));
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
        QCOMPARE(task().settings().copies(), 3);
    }

    void copiesOfTheUsersOptionsComeBackWithTheirPrinter()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        setUserOptions("Dest office copies=3\n");
        PrintRequest two = request();
        two.copies = 2; // which is no wish of the user's
        open(two);
        task().propose(u"Tray"_s, u"Lower"_s);
        const Printer office = task().printer();
        const QList<Printer> printers = task().printers().printers();
        task().choosePrinter(printers.constLast()); // saves one PDF, whatever is asked for
        task().bringUp();
        QCOMPARE(task().settings().copiesAskedFor(), 2);
        QCOMPARE(task().settings().copies(), 1);
        task().choosePrinter(office);
        QVERIFY(m_scene->reaches(Phase::Opened));
        task().bringUp();
        QCOMPARE(task().settings().copies(), 3);
    }

    // What the queue itself starts with

    void whatTheQueueAddsIsWhereATaskStarts()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                         {.options = {u"number-up-default=2"_s, u"copies-default=3"_s}});
        open(request());
        QCOMPARE(attribute(u"number-up"_s), u"2"_s);
        QCOMPARE(task().settings().copies(), 3);
        QVERIFY2(face().messages.isEmpty(), qPrintable(face().message()));
    }

    void whatTheQueueAddedLastTimeIsThereAtOnceAndThenCorrected_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("nothing was asked for") << QString();
        QTest::newRow("something was asked for") << u"Media=Card"_s;
    }
    void whatTheQueueAddedLastTimeIsThereAtOnceAndThenCorrected()
    {
        QFETCH(QString, options);
        m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                         {.options = {u"number-up-default=2"_s}});
        open(request());
        m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                         {.options = {u"number-up-default=4"_s}});
        m_scene->make(request(options)).start();
        QCOMPARE(task().phase(), Phase::Opened); // nobody has answered yet
        task().bringUp();
        QCOMPARE(attribute(u"number-up"_s), u"2"_s);
        QVERIFY(m_scene->reaches(Phase::Opened));
        task().bringUp();
        QCOMPARE(attribute(u"number-up"_s), u"4"_s);
        QVERIFY(printed());
        QCOMPARE(jobValue(task().outcome().job, "number-up"), u"4"_s);
    }

    // A window builds its pages for each, and has let go of the pages of the one before.
    void optionsThatArriveBeforeThePanelsCameUpAreOpenedOnceMoreForTheFace()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        open(request());
        m_cups->addQueue(u"office"_s,
                         ppd(officePrinter().option("Ink", "Ink", "Black", {{"Black", "Black"}})));
        PrintTask &again = m_scene->make(request());
        QSignalSpy closed(&again, &PrintTask::printerClosed);
        QList<Phase> heard;
        connect(&again, &PrintTask::phaseChanged, this, [&](Phase phase) { heard.append(phase); });
        again.start();
        QCOMPARE(heard, (QList{Phase::Fetching, Phase::Opened}));
        QVERIFY(closed.wait(kPatience));
        QCOMPARE(heard, (QList{Phase::Fetching, Phase::Opened, Phase::Opened}));
        again.bringUp();
        QVERIFY(ppdOption(m_scene->session().ppd(), u"Ink"_s));
    }

    void whatTheUserHasSetOutlastsAnotherDefaultOfTheQueue()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        open(request());
        m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                         {.options = {u"number-up-default=4"_s}});
        m_scene->make(request()).start();
        task().bringUp();
        task().propose(u"Tray"_s, u"Lower"_s);
        QVERIFY(m_scene->reaches(Phase::Opened));
        task().bringUp();
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
        // One page on a sheet was in front of the user, so it is what is printed.
        QVERIFY(printed());
        QCOMPARE(jobValue(task().outcome().job, "number-up"), u"1"_s);
    }

    void aRawQueueSaysWhatItCannotDoBeforeAnythingIsSent()
    {
        m_cups->addRawQueue(u"office"_s);
        open(request());
        QVERIFY(task().passesFilesOn());
        QVERIFY(m_scene->session().options().isEmpty());
        task().settings().setPageRanges(u"1-2"_s);
        task().print();
        QCOMPARE(face().refusals.size(), 1);
        QVERIFY2(face().problems().constFirst().contains(u"page-ranges=1-2"_s),
                 qPrintable(face().problems().constFirst()));
        QCOMPARE(face().refusals.constFirst().place, TaskRefusal::Place::Pages);
        QVERIFY(m_cups->jobs().isEmpty());
        task().settings().setPageRanges({});
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, Kind::Sent);
    }

    // What becomes of a job

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
        task().undo();
        QTRY_COMPARE(task().phase(), Phase::Opened); // the first one again
        task().bringUp();
        task().undo();
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

    // Who is asked, and what is remembered

    void whereNobodyCanBeAskedNobodyIs_data()
    {
        QTest::addColumn<bool>("canBeAsked");
        QTest::newRow("somebody") << true;
        QTest::newRow("nobody") << false;
    }
    void whereNobodyCanBeAskedNobodyIs()
    {
        QFETCH(bool, canBeAsked);
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        face().canBeAsked = canBeAsked;
        open(request());
        m_between->askForPassword(u"lisa"_s, u"right"_s, IPP_OP_CREATE_JOB);
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, Kind::Refused);
        QCOMPARE(face().passwords, canBeAsked ? 1 : 0);
        QCOMPARE(task().outcome().text.contains(u"none was given"_s), canBeAsked);
    }

    void onlyAPrinterThatSomebodyChoseIsTheOneUsedLast()
    {
        m_cups->addQueue(u"office"_s, ppd(officePrinter()));
        m_scene->make(request()).startUnattended();
        QVERIFY(m_scene->reaches(Phase::Opened));
        QVERIFY(printed());
        QCOMPARE(task().outcome().kind, kTaken);
        const QString server = request().server.argument();
        QCOMPARE(lastPrinter(server), QString());
        open(request());
        QVERIFY(printed());
        QCOMPARE(lastPrinter(server), u"office"_s);
    }
};

QTEST_MAIN(TaskQueuesTest)

#include "task_queues_test.moc"
