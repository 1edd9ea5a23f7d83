#include <QTest>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/OptionRequest.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

/// What panels propose in vain: it is told, and never printed without.
class TaskProposalsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &task() { return *m_scene->task; }
    // Staples are in the way of transparency.
    PrintRequest stapled(const QString &more = {})
    {
        PrintRequest request = m_scene->request(officePrinter());
        request.options = parseOptions({u"Staple=Left "_s + more});
        return request;
    }
    void panelProposes(const QString &keyword, const QString &choice)
    {
        m_scene->session().change(keyword, choice, PpdSession::Origin::Panel);
    }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    // A panel shows a box that cannot be ticked; a list of all options has no such boxes, and a
    // command line refuses it.
    void whatAPanelDoesNotOfferIsRefusedInAListOfAllOptionsAsWell()
    {
        m_scene->open(m_scene->request({Printer{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}}));
        task().propose(u"QXGray"_s, u"ON"_s);
        QCOMPARE(m_scene->session().markedChoice(u"QXGray"_s), u"ON"_s);
        QVERIFY(m_scene->face.messages.isEmpty());
        task().propose(u"QXEnhanceBlkPrt"_s, u"ON"_s);
        QCOMPARE(m_scene->session().markedChoice(u"QXEnhanceBlkPrt"_s), u"OFF"_s);
        QCOMPARE(m_scene->session().markedChoice(u"QXGray"_s), u"ON"_s);
        QCOMPARE(m_scene->face.messages.size(), 1);
        QVERIFY2(m_scene->face.message().contains(u"Enhance Black Printing"_s),
                 qPrintable(m_scene->face.message()));
        // The other way round the panel takes the former choice back.
        task().propose(u"QXGray"_s, u"OFF"_s);
        task().propose(u"QXEnhanceBlkPrt"_s, u"ON"_s);
        QCOMPARE(m_scene->session().markedChoice(u"QXEnhanceBlkPrt"_s), u"ON"_s);
        QCOMPARE(m_scene->face.messages.size(), 1);
    }

    void aChoiceThatCannotBeSentIsRefusedWithThatReason()
    {
        m_scene->open(m_scene->request(PpdBuilder()
                                           .line("*OpenUI *Fuser/Fuser: PickOne")
                                           .line("*OrderDependency: -1 AnySetup *Fuser")
                                           .line("*DefaultFuser: Cold")
                                           .line("*Fuser Cold/Cold: \"0 fuser\"")
                                           .line("*Fuser Hot/Very Hot: \"1 fuser\"")
                                           .line("*CloseUI: *Fuser")));
        task().propose(u"Fuser"_s, u"Hot"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Fuser"_s), u"Cold"_s);
        QVERIFY2(m_scene->face.message().contains(notSentText(u"“Fuser: Very Hot”"_s)),
                 qPrintable(m_scene->face.message()));
    }

    void whatIsProposedWhilePanelsComeUpIsToldOnce()
    {
        PpdBuilder ppd = officePrinter();
        ppd.constraint("Media", "Film", "Duplex", "None");
        m_scene->make(m_scene->request(ppd)).start();
        panelProposes(u"Media"_s, u"Film"_s);
        task().bringUp();
        QTest::qWait(1);
        QCOMPARE(m_scene->face.messages.size(), 1);
        QVERIFY2(m_scene->face.message().contains(u"Transparency"_s),
                 qPrintable(m_scene->face.message()));
        task().print(); // it was seen
        QVERIFY(m_scene->reaches(Phase::Ended));
    }

    void aJobThatNobodyHasSeenIsNotPrintedWithoutIt()
    {
        PpdBuilder ppd = officePrinter();
        ppd.constraint("Media", "Film", "Duplex", "None");
        m_scene->make(m_scene->request(ppd)).startUnattended();
        panelProposes(u"Media"_s, u"Film"_s);
        task().print();
        QCOMPARE(m_scene->face.refusals.size(), 1);
        QVERIFY2(m_scene->face.problems().join(u' ').contains(u"Transparency"_s),
                 qPrintable(m_scene->face.problems().join(u' ')));
        QVERIFY(!m_scene->filter.hasOutput());
    }

    void whatIsProposedWhileTheJobIsMadeHoldsItBack()
    {
        writeFile(m_scene->filter.output(), "former");
        m_scene->open(stapled());
        m_scene->face.meanwhile = [this] { panelProposes(u"Media"_s, u"Film"_s); };
        task().print();
        QCOMPARE(m_scene->face.refusals.size(), 1);
        QVERIFY2(m_scene->face.problems().join(u' ').contains(u"Transparency"_s),
                 qPrintable(m_scene->face.problems().join(u' ')));
        QCOMPARE(task().phase(), Phase::Ready);
        QVERIFY(m_scene->face.messages.isEmpty());
        m_scene->face.meanwhile = {};
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
    }

    void whatIsProposedOtherwiseIsToldWithAWayOut()
    {
        m_scene->open(stapled());
        panelProposes(u"Media"_s, u"Film"_s);
        QTRY_COMPARE(m_scene->face.messages.size(), 1);
        m_scene->face.messages.constFirst().take();
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Film"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Staple"_s), u"OFF"_s);
    }

    // Without the bundle its options are unknown; to name those would name the wrong cause.
    void aMissingBundleIsNamedBeforeOptionsThatItMightKnow()
    {
        PrintRequest request =
            m_scene->request(QList{Printer{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}});
        request.bundleRoots = {m_scene->filter.path(u"none"_s)};
        request.options = parseOptions({u"Sparkle=ON"_s});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"none of the trusted folders"_s));
        m_scene->make(request).startUnattended();
        task().print();
        const QString problems = m_scene->face.problems().join(u' ');
        QVERIFY2(problems.contains(u"trusted folders"_s) && !problems.contains(u"Sparkle"_s),
                 qPrintable(problems));
        QVERIFY(!task().canPrint());
    }
};

QTEST_MAIN(TaskProposalsTest)

#include "task_proposals_test.moc"
