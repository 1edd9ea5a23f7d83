#include <QSignalSpy>
#include <QTest>

#include "dialog/printers/LastPrinter.h"
#include "dialog/task/OpenedPrinter.h"
#include "tests/dialog/task/QueueTaskTest.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Kind = JobOutcome::Kind;
using Phase = PrintTask::Phase;

namespace {

// The filter of these tests makes nothing that could be counted, so nobody knows what was on the
// pages.
constexpr auto kTaken = JobOutcome::Kind::Sent;

} // namespace

/// Where tasks start that print to a queue, and what is remembered of them.
class TaskQueuesTest : public QueueTaskTest
{
    Q_OBJECT

private Q_SLOTS:
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
