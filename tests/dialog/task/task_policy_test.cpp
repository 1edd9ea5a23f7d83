#include <QFile>
#include <QTest>

#include "dialog/policy/Policy.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/PresetApplication.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/NumberedPdf.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

/// A task under an administrator's policy: what every face refuses, in the same words.
class TaskPolicyTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    PrintTask &task() { return *m_scene->task; }
    PpdSession &session() { return m_scene->session(); }
    PrintRequest request(const QByteArray &policy)
    {
        PrintRequest request = m_scene->request(smallPrinter());
        request.policy = policyFrom(policy);
        return request;
    }
    PrintRequest sample(const QByteArray &policy)
    {
        PrintRequest request = m_scene->request({{u"cl5"_s, u"cl5"_s, samplePpdPath(), 5}});
        request.policy = policyFrom(policy);
        return request;
    }
    // A document that the chain can count, for a printer that it knows.
    PrintRequest counted(const QByteArray &policy, int copies = 1)
    {
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
        PrintRequest request = sample(policy);
        request.documents = {
            Document{writeFile(m_scene->filter.path(u"page.pdf"_s), numberedPdf("page", 1)),
                     u"application/pdf"_s, u"page.pdf"_s}};
        request.copies = copies;
        request.copiesWereNamed = true;
        return request;
    }
    bool printsWith(const QByteArray &option)
    {
        task().print();
        return m_scene->reaches(Phase::Ended) && m_scene->arguments().contains(option);
    }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup()
    {
        m_filter.reset();
        m_scene.reset();
    }

    void aLockedOptionIsWhatTheJobHas()
    {
        m_scene->open(request("[all]\nlock.Boost=ON\nlock.number-up=2\nlock.copies=3\n"));
        QVERIFY(m_scene->face.messages.isEmpty());
        QCOMPARE(task().settings().copies(), 3);
        QVERIFY(printsWith("Boost=ON"));
        QVERIFY(m_scene->arguments().contains("number-up=2"));
    }

    void aPickAgainstALockIsRefusedAndSaysWhoHasChosen()
    {
        m_scene->open(request("[all]\nlock.Boost=ON\n"));
        task().propose(u"Boost"_s, u"OFF"_s);
        QCOMPARE(session().markedChoice(u"Boost"_s), u"ON"_s);
        QCOMPARE(m_scene->face.message(), u"“Boost” is set by your administrator (1.conf:2)."_s);
        QVERIFY(m_scene->face.messages.constLast().offer.isEmpty());
        QCOMPARE(task().lockedBy(u"Boost"_s), u"Set by your administrator (1.conf:2)."_s);
        QVERIFY(task().lockedBy(u"Media"_s).isNull());
    }

    // A value that panels own, which no mark of the PPD refuses.
    void aPresetAgainstALockSaysWhoHasChosen()
    {
        m_scene->open(sample("[all]\nlock.QXRed=2\n"));
        PresetContent preset;
        preset.options = {{u"QXRed"_s, u"4"_s}, {u"QXGreen"_s, u"3"_s}};
        const PresetOutcome outcome =
            applyPreset(preset, {}, task().documents(), *task().opened(), task().settings());
        QCOMPARE(outcome.missing, QStringList{u"“Red” is set by your administrator (1.conf:2)."_s});
        const JobTicket ticket = makeTicket(*task().opened(), {}, {}, 1);
        QVERIFY(ticket.options.contains(JobOption{u"QXRed"_s, u"2"_s}));
        QVERIFY(ticket.options.contains(JobOption{u"QXGreen"_s, u"3"_s}));
    }

    // Also with a value that nobody had chosen: the printer has it, and it is not told otherwise.
    void aPresetsUsualValueAgainstALockSaysWhoHasChosen()
    {
        m_scene->open(sample("[all]\nlock.Duplex=DuplexNoTumble\nlock.number-up=2\n"));
        PresetContent preset;
        preset.options = {{u"Duplex"_s, u"None"_s}, {u"QXGreen"_s, u"3"_s}};
        preset.attributes = {{u"number-up"_s, u"4"_s}};
        const PresetOutcome outcome =
            applyPreset(preset, {PresetUse::Others::Cleared, {u"QXGreen"_s}}, task().documents(),
                        *task().opened(), task().settings());
        const QStringList expected{
            u"“Two-Sided Printing” is set by your administrator (1.conf:2)."_s,
            u"number-up=4: “Pages per Sheet” is set by your administrator (1.conf:3)."_s};
        QCOMPARE(outcome.missing, expected);
        QCOMPARE(outcome.details, QStringList());
    }

    void noWayOutLeadsThroughALock()
    {
        m_scene->open(request("[all]\nlock.Duplex=DuplexNoTumble\n"));
        task().propose(u"Media"_s, u"Card"_s);
        QCOMPARE(session().markedChoice(u"Media"_s), u"Plain"_s);
        QVERIFY(m_scene->face.messages.constLast().offer.isEmpty());
        QVERIFY2(m_scene->face.message().contains(u"set by your administrator (1.conf:2)"_s),
                 qPrintable(m_scene->face.message()));
    }

    void anAttributeAgainstALockIsRefusedWhereItIsEntered()
    {
        m_scene->open(request("[all]\nlock.number-up=2\n"));
        QCOMPARE(task().setAttribute(u"number-up"_s, u"4"_s),
                 u"Set by your administrator (1.conf:2)."_s);
        QCOMPARE(task().setAttribute(u"number-up"_s, QString()),
                 u"Set by your administrator (1.conf:2)."_s);
        QVERIFY(task().setAttribute(u"number-up"_s, u"2"_s).isEmpty());
        QCOMPARE(task().settings().attribute(u"number-up"_s), u"2"_s);
        bool isSaid = false;
        for (const OfferedAttribute &one : task().attributes())
            isSaid = isSaid || (one.name == u"number-up"_s && !one.lockedBy.isNull());
        QVERIFY(isSaid);
    }

    void copiesAndPagesStayWhatTheyAre()
    {
        m_scene->open(request("[all]\nlock.copies=2\nlock.page-ranges=1-3\n"));
        task().settings().askForCopies(9, JobSettings::By::User);
        task().settings().setPageRanges(u"7"_s);
        QCOMPARE(task().settings().copies(), 2);
        QCOMPARE(task().settings().pageRanges(), u"1-3"_s);
    }

    void copiesOfTheCommandLineAreRefusedByName()
    {
        PrintRequest request = this->request("[all]\nlock.copies=2\n");
        request.copies = 5;
        request.copiesWereNamed = true;
        m_scene->make(request).startUnattended();
        task().print();
        QCOMPARE(m_scene->face.problems(),
                 QStringList{u"“Copies” is set by your administrator (1.conf:2)."_s});
    }

    void optionsOfTheCommandLineAreRefusedByName()
    {
        PrintRequest request = this->request("[all]\nlock.Duplex=DuplexNoTumble\n");
        request.options = parseOptions({u"sides=one-sided"_s});
        m_scene->make(request).startUnattended();
        task().print();
        QCOMPARE(m_scene->face.problems().size(), 1);
        QVERIFY2(m_scene->face.problems().at(0).contains(u"by your administrator (1.conf:2)"_s),
                 qPrintable(m_scene->face.problems().at(0)));
        QVERIFY(!m_scene->filter.hasOutput());
    }

    void whatAPanelProposesAgainstALockIsToldLikeACollision()
    {
        m_scene->open(request("[all]\nlock.Boost=ON\n"));
        session().change(u"Boost"_s, u"OFF"_s, PpdSession::Origin::Panel);
        QTest::qWait(1);
        QCOMPARE(session().markedChoice(u"Boost"_s), u"ON"_s);
        QCOMPARE(m_scene->face.messages.size(), 1);
    }

    void aRestoredStateKeepsToTheLock()
    {
        m_scene->open(request("[all]\nlock.Boost=ON\nlock.PageSize=A4\n"));
        SessionSnapshot former = session().snapshot();
        former.marks.insert(u"Boost"_s, u"OFF"_s);
        former.marks.insert(u"PageSize"_s, u"Postcard"_s);
        former.entries.insert(u"Boost"_s, u"OFF"_s);
        former.pageFormat.paper.name = u"Postcard"_s;
        session().restore(former);
        QCOMPARE(session().markedChoice(u"Boost"_s), u"ON"_s);
        QCOMPARE(session().markedChoice(u"PageSize"_s), u"A4"_s);
        QCOMPARE(session().pageFormat().paper.name, u"A4"_s);
        QCOMPARE(session().printSettings().value(u"Boost"_s).toString(), u"ON"_s);
    }

    void aValueOfThePanelsOwnIsPutBack()
    {
        m_scene->open(sample("[all]\nlock.QXDensityAdjustment=2\n"));
        const QVariantMap locked = session().printSettings().entries();
        // As a panel writes it, without asking anybody.
        const JobValueClaim claim = task().opened()->jobValues->takeJobOption(
            {u"QXDensityAdjustment"_s, u"-3"_s}, session().printSettings(), session().ppd());
        QCOMPARE(claim.outcome, JobValueClaim::Outcome::Accepted);
        QVERIFY(session().printSettings().entries() != locked);
        task().print();
        QVERIFY(m_scene->face.problems().value(0).contains(u"by your administrator (1.conf:2)"_s));
        QVERIFY(!m_scene->filter.hasOutput());
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        const QByteArray all = m_scene->arguments().join(' ');
        QVERIFY2(all.contains("QXDensityAdjustment=+2") || all.contains("QXDensityAdjustment=2") ||
                     all.contains("QXDensityAdjustment=Custom.2"),
                 all.constData());
    }

    void anOptionAgainstAValueOfThePanelsOwnIsRefused()
    {
        PrintRequest request = sample("[all]\nlock.QXSleepTime=Custom.12\n");
        request.options = parseOptions({u"QXSleepTime=Custom.30"_s});
        m_scene->make(request).startUnattended();
        task().print();
        QCOMPARE(m_scene->face.problems().size(), 1);
        QVERIFY2(m_scene->face.problems().at(0).contains(u"by your administrator (1.conf:2)"_s),
                 qPrintable(m_scene->face.problems().at(0)));
        task().propose(u"QXSleepTime"_s, u"Default"_s);
        QCOMPARE(session().markedChoice(u"QXSleepTime"_s), u"Custom"_s);
    }

    void whatIsNotUsedOfAPolicyIsToldOnceAndPrintingGoesOn()
    {
        m_scene->open(request("[all]\nlokc.Boost=ON\nlock.number-up=2\n"));
        QCOMPARE(m_scene->face.ignored.size(), 1);
        QVERIFY(m_scene->face.ignored.at(0).contains(u"--check-policy"_s));
        QVERIFY(printsWith("number-up=2"));
    }

    void aHiddenPrinterIsInNoListAndIsNotOpenedByName()
    {
        PrintRequest request =
            m_scene->request({m_scene->printer(u"one"_s, smallPrinter().text()),
                              m_scene->printer(u"two"_s, smallPrinter().text())});
        request.policy = policyFrom("[printer one]\nhide = yes\n");
        m_scene->make(request).start();
        QCOMPARE(task().printer().name, u"two"_s);
        for (const Printer &printer : task().printers().printers())
            QVERIFY(printer.name != u"one"_s);
        request.wantedPrinter = u"one"_s;
        m_scene->make(request).startUnattended();
        QCOMPARE(task().phase(), Phase::Missing);
        QCOMPARE(task().problem().text,
                 u"The printer “one” is not offered by your administrator (1.conf:2)."_s);
        m_scene->make(request).start();
        QCOMPARE(task().phase(), Phase::Missing);
        task().retry();
        QCOMPARE(task().phase(), Phase::Missing);
    }

    void nothingIsPrintedToAFileWhereThatIsNotOffered()
    {
        PrintRequest request = m_scene->request(smallPrinter());
        request.policy = policyFrom("[all]\nfile-output = no\n");
        m_scene->make(request).start();
        QCOMPARE(task().phase(), Phase::Missing);
        QVERIFY2(task().problem().text.contains(u"to a file is not offered"_s),
                 qPrintable(task().problem().text));
        QVERIFY(task().printers().printers().isEmpty());
        QVERIFY(!task().whyNoFile().isEmpty());
    }

    void aPrinterThatWasAskedForAndIsNotOfferedIsNotReplacedByAnother()
    {
        PrintRequest request = m_scene->request(smallPrinter());
        const QString asked = request.printers.constFirst().name;
        request.policy = policyFrom("[all]\nfile-output = no\n");
        m_scene->make(request).startUnattended();
        QVERIFY(m_scene->reaches(Phase::Missing));
        QCOMPARE(task().printer().name, asked);
        QVERIFY2(task().problem().text.contains(u"to a file is not offered"_s),
                 qPrintable(task().problem().text));
        m_scene->make(request).start();
        QCOMPARE(task().printer().name, asked);
        QCOMPARE(task().phase(), Phase::Missing);
        QVERIFY(task().printers().printers().isEmpty());
    }

    void manySheetsAreAskedFor_data()
    {
        QTest::addColumn<QByteArray>("policy");
        QTest::addColumn<bool>("window");
        QTest::addColumn<int>("copies");
        QTest::addColumn<bool>("asks");
        QTest::newRow("few") << QByteArray("[all]\nconfirm-sheets=5\n") << true << 5 << false;
        QTest::newRow("many") << QByteArray("[all]\nconfirm-sheets=5\n") << true << 6 << true;
        QTest::newRow("many in a terminal")
            << QByteArray("[all]\nconfirm-sheets=5\n") << false << 6 << true;
        QTest::newRow("never") << QByteArray("[all]\nconfirm-sheets=0\n") << true << 900 << false;
        QTest::newRow("usual") << QByteArray() << true << 200 << false;
        QTest::newRow("more than usual") << QByteArray() << true << 201 << true;
        QTest::newRow("more than usual in a script") << QByteArray() << false << 201 << false;
    }
    void manySheetsAreAskedFor()
    {
        QFETCH(QByteArray, policy);
        QFETCH(bool, window);
        QFETCH(int, copies);
        QFETCH(bool, asks);
        m_scene->make(counted(policy, copies));
        if (window)
            task().start();
        else
            task().startUnattended();
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(m_scene->face.confirmations.size(), asks ? 1 : 0);
    }

    void whoDoesNotMeanManySheetsPrintsNothing()
    {
        m_scene->face.printsMany = false;
        PrintRequest request = counted("[all]\nconfirm-sheets=1\n", 2);
        m_scene->open(request);
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ready));
        QVERIFY(!QFile::exists(request.output));
        QVERIFY(m_scene->face.refusals.constLast().answered);
        m_scene->face.printsMany = std::nullopt; // nobody is there
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ready));
        QVERIFY(m_scene->face.problems().value(0).contains(u"--yes"_s));
        request.manySheetsAreMeant = true;
        m_scene->open(request);
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
    }

    void aJobIsNotedWhereAPolicyWantsThat()
    {
        QByteArrayList lines;
        PrintRequest request = counted("[all]\njournal=yes\n", 2);
        request.journal = [&](const QByteArray &line) { lines += line; };
        m_scene->open(request);
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.at(0) == "print user=\"anna\" printer=\"cl5\" pages=1 sheets=2 color=yes "
                                "outcome=printed",
                 lines.at(0).constData());
        request.policy = policyFrom("[all]\njournal=yes\njournal-title=yes\n");
        m_scene->open(request);
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QVERIFY(lines.value(1).contains(" title=\"Job\""));
        request.policy = policyFrom("[all]\njournal-title=yes\n");
        m_scene->open(request);
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(lines.size(), 2);
    }
};

QTEST_MAIN(TaskPolicyTest)
#include "task_policy_test.moc"
