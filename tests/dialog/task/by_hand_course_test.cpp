#include <QTest>

#include "dialog/session/OptionNames.h"
#include "tests/dialog/task/ByHandScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using JobKind = JobOutcome::Kind;
using Phase = PrintTask::Phase;

namespace {

struct Refused
{
    const char *name;
    QString options;
    bool toFile;
    bool canAsk;
    QStringList says;
};
const Refused kRefused[] = {
    {"into a file", u"sides-by-hand=long-edge"_s, true, true, {u"sides-by-hand=long-edge"_s}},
    {"with cover pages",
     u"sides-by-hand=short-edge job-sheets=standard"_s,
     false,
     true,
     {u"sides-by-hand=short-edge"_s, u"job-sheets=standard"_s}},
    {"where nobody is",
     u"sides-by-hand=long-edge"_s,
     false,
     false,
     {u"sides-by-hand=long-edge"_s, u"sides-by-hand=no"_s}},
    {"a booklet where nobody is", u"booklet=left"_s, false, false, {u"sides-by-hand=no"_s}},
};

} // namespace

/// How a job goes that is printed on both sides by hand: two passes, what is asked between them,
/// what ends it, and what is said of it.
class ByHandCourseTest : public ByHandScene
{
    Q_OBJECT

private Q_SLOTS:
    void oneSideNeedsNoHands()
    {
        addQueue();
        open(request(Kind::Portrait, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Printed);
        QVERIFY(face().turns.isEmpty());
        QCOMPARE(jobs().size(), 1);
        QVERIFY(!jobs().constFirst().title.contains(u"sides"_s));
    }

    void eachHalfIsAJobAndTheLastSentenceNamesBoth()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        face().turnAnswers = {true};
        task().print();
        QVERIFY(waitForTheEnd());
        const QString text = task().outcome().text;
        QVERIFY2(text.contains(u"First sides: Printed on “office” as job office-1."_s) &&
                     text.contains(u"Other sides: Printed on “office” as job office-2."_s),
                 qPrintable(text));
        QCOMPARE(task().phase(), Phase::Ended);
        QCOMPARE(jobs().at(0).title, u"Job (first sides)"_s);
        QCOMPARE(jobs().at(1).title, u"Job (other sides)"_s);
        const TurnQuestion &question = face().turns.constFirst();
        QVERIFY2(question.done.startsWith(u"First sides: Printed on"_s), qPrintable(question.done));
        QCOMPARE(
            question.steps,
            QStringList({u"Take the 2 printed sheets out of the printer, as one stack."_s,
                         u"Put them back into the tray with the printed side down, so that the "
                         "top edge of the pages goes into the printer first."_s,
                         u"The last sheet, with page 3, lies uppermost."_s}));
    }

    void oneSheetIsSpokenOfAsOne()
    {
        addQueue();
        PrintRequest two = request(Kind::A4, u"sides-by-hand=long-edge page-ranges=1-2"_s);
        open(two);
        task().print();
        QVERIFY(waitForTheQuestion());
        QCOMPARE(face().turns.constFirst().steps,
                 QStringList({u"Take the printed sheet out of the printer."_s,
                              u"Put it back into the tray with the printed side down, so that the "
                              "top edge of the page goes into the printer first."_s}));
        face().turnAnswer(false);
    }

    void cancelBetweenThePassesSaysWhatIsPrinted()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        face().turnAnswers = {false};
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Canceled);
        QCOMPARE(task().outcome().text,
                 u"First sides: Printed on “office” as job office-1. Other sides: Not printed."_s);
        QCOMPARE(task().phase(), Phase::Ready);
        QCOMPARE(jobs().size(), 1);
    }

    void anInterruptionBetweenThePassesSaysTheSame()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheQuestion());
        QCOMPARE(task().phase(), Phase::Turning);
        QVERIFY(task().isBetweenPasses());
        QVERIFY(!task().canChangeDocuments());
        task().interrupt(PrintTask::OnInterrupt::LeaveJob);
        QCOMPARE(task().phase(), Phase::Ended);
        QCOMPARE(task().outcome().kind, JobKind::Canceled);
        QVERIFY(task().outcome().text.contains(u"Other sides: Not printed."_s));
        // The answer comes too late.
        face().turnAnswer(true);
        QTest::qWait(200);
        QCOMPARE(jobs().size(), 1);
    }

    void aFailedSecondPassIsRepeatedWithoutTheFirst()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheQuestion());
        QVERIFY(face().turns.constFirst().problem.isEmpty());
        m_cups->rejectJobs(u"office"_s, u"Toner is being changed"_s);
        face().turnAnswer(true);
        QVERIFY(waitForTheQuestion(2));
        QVERIFY(face().outcomes.isEmpty());
        QVERIFY2(face().turns.at(1).problem.startsWith(u"Other sides: "_s),
                 qPrintable(face().turns.at(1).problem));
        QCOMPARE(face().turns.at(1).done, face().turns.at(0).done);
        m_cups->acceptJobs(u"office"_s);
        face().turnAnswer(true);
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Printed);
        QCOMPARE(jobs().size(), 2);
        QCOMPARE(jobs().at(1).title, u"Job (other sides)"_s);
    }

    // The sheets lie in the tray: they are not lost, and nothing is printed otherwise in silence.
    void aPrinterThatChangesBetweenThePassesGoesOnAsItBegan_data()
    {
        QTest::addColumn<bool>("isPpd");
        QTest::newRow("what the queue adds to jobs") << false;
        QTest::newRow("its options") << true;
    }
    void aPrinterThatChangesBetweenThePassesGoesOnAsItBegan()
    {
        QFETCH(bool, isPpd);
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheQuestion());
        addQueue(isPpd ? "*% changed\n" : "",
                 {.options = {isPpd ? u"printer-is-shared=false"_s : u"page-border-default=double"_s}});
        face().turnAnswer(true);
        QVERIFY(waitForTheQuestion(2));
        QVERIFY(face().outcomes.isEmpty());
        const QString problem = face().turns.at(1).problem;
        QVERIFY2(problem.contains(u"have changed at its server"_s) &&
                     problem.contains(u"can stay in the tray"_s),
                 qPrintable(problem));
        QCOMPARE(face().turns.at(1).steps, face().turns.at(0).steps);
        face().turnAnswer(true);
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Printed);
        QCOMPARE(jobs().size(), 2);
        const QString options = u' ' + jobs().at(1).options + u' ';
        QVERIFY2(!options.contains(u"page-border=double"_s), qPrintable(options));
        QVERIFY2(isPpd || options.contains(u" page-border=none "_s), qPrintable(options));
    }

    void aFailedFirstPassIsNoReasonToTurnAnything()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        m_cups->rejectJobs(u"office"_s);
        task().print();
        QVERIFY(waitForTheEnd());
        QVERIFY(face().turns.isEmpty());
        QCOMPARE(task().outcome().kind, JobKind::Refused);
        QVERIFY(task().outcome().text.startsWith(u"First sides: "_s));
        QCOMPARE(task().phase(), Phase::Ready);
    }

    void whatCannotBeDoneIsRefusedByItsName_data() { addRows(kRefused); }
    void whatCannotBeDoneIsRefusedByItsName()
    {
        const Refused &row = currentRow(kRefused);
        addQueue();
        face().canBeAsked = row.canAsk;
        open(request(Kind::A4, row.options));
        task().setPrintsToFile(row.toFile);
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(face().refusals.size(), 1);
        const QString said = face().problems().join(u' ');
        for (const QString &part : row.says)
            QVERIFY2(said.contains(part), qPrintable(said));
        QVERIFY(m_cups->jobs().isEmpty());
    }

    void twoSidesOfThePrintersOwnNameTheWayByHand()
    {
        addQueue();
        open(request(Kind::A4, u"sides=two-sided-long-edge"_s));
        QVERIFY2(face().message().contains(u"sides-by-hand=long-edge"_s),
                 qPrintable(face().message()));
    }

    void aPrinterThatTurnsSheetsOverIsNotTurnedByHand()
    {
        m_cups->addQueue(u"office"_s, samplePpdPath());
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        QVERIFY2(face().message().contains(u"turns sheets over itself"_s),
                 qPrintable(face().message()));
        const QList<OfferedAttribute> offered = task().attributes();
        for (const OfferedAttribute &one : offered)
            QVERIFY(one.name != kSidesByHandAttribute && one.name != kPutBackAttribute);
    }

    void whatIsChosenIsSaidInTheSummary()
    {
        addQueue();
        open(request(Kind::A4, {}));
        QCOMPARE(task().setAttribute(kSidesByHandAttribute, kByHandLongEdge), QString());
        QCOMPARE(preview().counts, u"3 pages = 2 sheets, two-sided by hand"_s);
        QCOMPARE(preview().plan.binding, SheetPlan::Binding::LongEdge);
        const QList<SummaryLine> lines = task().summary();
        QVERIFY(std::any_of(lines.cbegin(), lines.cend(), [](const SummaryLine &line) {
            return line.title == u"Two-Sided"_s && line.value == u"Long Edge (by Hand)"_s;
        }));
    }

    void aBookletIsTurnedOverAtTheShortEdge()
    {
        addQueue();
        open(request(Kind::A4, {}));
        QCOMPARE(task().setAttribute(u"booklet"_s, u"left"_s), QString());
        QCOMPARE(task().settings().attribute(kSidesByHandAttribute), kByHandShortEdge);
        QCOMPARE(task().setAttribute(u"booklet"_s, u"no"_s), QString());
        QVERIFY(task().settings().attribute(kSidesByHandAttribute) != kByHandShortEdge);
        QCOMPARE(task().setAttribute(u"booklet"_s, u"left"_s), QString());
        QCOMPARE(task().setAttribute(kSidesByHandAttribute, u"no"_s), QString());
        QVERIFY(!preview().plan.sheets.constFirst().back);
    }
};

QTEST_MAIN(ByHandCourseTest)
#include "by_hand_course_test.moc"
