#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include "dialog/session/PanelHost.h"
#include "platform/pde/PDEPluginCallback.h"
#include "platform/toolkit/Alert.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

namespace {

// An alert as a window shows it: the event loop turns until it is answered.
class TurningPresenter : public AlertPresenter
{
public:
    std::function<void()> whileOpen;

    AlertAnswer runModal(const Alert &, QWidget *) override
    {
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
        if (whileOpen)
            whileOpen();
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
        return {};
    }
};

} // namespace

/// When the panels hear of changes, and who does.
class PanelHostDeliveryTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<FakePlugIn> m_plugIn;
    TurningPresenter m_presenter;
    std::unique_ptr<PanelHost> m_host;

    FakePanel &a() { return *m_plugIn->panels.at(0); }
    FakePanel &b() { return *m_plugIn->panels.at(1); }
    CallLog taken() { return std::exchange(m_plugIn->log, {}); }
    void turn() { QCoreApplication::processEvents(); }
    void toggleTray(FakePanel &panel)
    {
        const bool upper = m_session->markedChoice(u"Tray"_s) == u"Upper"_s;
        panel.propose(u"Tray"_s, upper ? u"Lower"_s : u"Upper"_s);
    }

private Q_SLOTS:
    void init()
    {
        m_session = sessionFor(smallPrinter());
        m_plugIn = std::make_unique<FakePlugIn>(QStringList{u"A"_s, u"B"_s});
        m_host = std::make_unique<PanelHost>(*m_session, m_plugIn.get(), m_presenter);
        m_host->visit(0); // A is visible, so its user can act on its controls
        turn();
        taken();
    }
    void cleanup()
    {
        m_presenter.whileOpen = nullptr;
        m_host.reset();
        m_plugIn.reset();
        m_session.reset();
    }

    void theOtherPanelHearsOfAUsersChangeAfterItHasReturned()
    {
        QVERIFY(a().propose(u"Tray"_s, u"Lower"_s));
        QCOMPARE(taken(), CallLog()); // the action is still on its way
        turn();
        QCOMPARE(taken(), CallLog{u"B.changed Tray=Lower"_s});
        turn();
        QCOMPARE(taken(), CallLog());
    }

    void aRefusedChangeIsToldToNobody()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^refused: "_s));
        QVERIFY(!a().propose(u"Tray"_s, u"Cellar"_s));
        turn();
        QCOMPARE(taken(), CallLog());
    }

    void changesOfOneOptionAreToldAsOne()
    {
        a().propose(u"Tray"_s, u"Lower"_s);
        a().propose(u"Boost"_s, u"ON"_s);
        a().propose(u"Tray"_s, u"Upper"_s);
        a().propose(u"Tray"_s, u"Lower"_s);
        turn();
        QCOMPARE(taken(), CallLog({u"B.changed Boost=ON"_s, u"B.changed Tray=Lower"_s}));
    }

    void aChangeThatWasTakenBackIsToldToNobody()
    {
        a().propose(u"Tray"_s, u"Lower"_s);
        a().propose(u"Tray"_s, u"Upper"_s);
        turn();
        QCOMPARE(taken(), CallLog());
    }

    void aChangeFromOneCustomValueToAnotherIsTold()
    {
        const auto session = sessionFor(smallPrinter().customInteger("Tray", "N", "N", 1, 9));
        FakePlugIn plugIn({u"A"_s, u"B"_s});
        PanelHost host(*session, &plugIn, m_presenter);
        host.visit(0);
        turn();
        QSignalSpy settled(&host, &PanelHost::settled);
        const auto heardOf = [&](std::initializer_list<const char *> values) {
            plugIn.log.clear();
            for (const char *value : values)
                session->change(u"Tray"_s, QString::fromLatin1(value), Origin::Dialog);
            turn();
            return plugIn.log == CallLog({u"A.changed Tray=Custom"_s, u"B.changed Tray=Custom"_s});
        };
        QVERIFY(heardOf({"Custom.1"}));
        QVERIFY(heardOf({"Custom.2"}));
        QCOMPARE(settled.size(), 2);
        QVERIFY(!heardOf({"Custom.3", "Custom.2"})); // taken back
        QCOMPARE(settled.size(), 2);
        host.restoreAll(); // which reads the value as well
        turn();
        QVERIFY(!heardOf({"Custom.3", "Custom.2"}));
        QVERIFY(heardOf({"Custom.3"}));
    }

    void allPanelsHearOfTheDialogsOwnChange()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        turn();
        QCOMPARE(taken(), CallLog({u"A.changed Tray=Lower"_s, u"B.changed Tray=Lower"_s}));
    }

    void aPanelThatProposesWhileItIsCalledIsTheSourceThoughItIsHidden()
    {
        b().inside.insert(u"restore"_s, [&] { b().propose(u"Tray"_s, u"Lower"_s); });
        m_host->restoreAll();
        QCOMPARE(taken(), CallLog({u"A.restore"_s, u"B.restore"_s, u"A.changed Tray=Lower"_s}));
    }

    void nobodyIsToldInTheMidstOfAPanelsCall()
    {
        a().inside.insert(u"restore"_s, [&] {
            a().propose(u"Tray"_s, u"Lower"_s);
            m_host->deliverPending();
            turn();
            m_plugIn->log += u"A returns"_s;
        });
        m_host->restoreAll();
        QCOMPARE(taken(), CallLog({u"A.restore"_s, u"A returns"_s, u"B.restore"_s,
                                   u"B.changed Tray=Lower"_s}));
    }

    void nobodyIsAskedBeforeAllPanelsWereShown()
    {
        m_host.reset();
        m_plugIn->whileBuilding = [](FakePanel &panel) {
            panel.inside.insert(u"willShow"_s, [&panel] { panel.propose(u"Boost"_s, u"ON"_s); });
            panel.propose(u"Tray"_s, u"Lower"_s);
        };
        m_host = std::make_unique<PanelHost>(*m_session, m_plugIn.get(), m_presenter);
        m_session->change(u"Media"_s, u"Card"_s, Origin::Dialog);
        m_host->deliverPending();
        turn();
        QCOMPARE(taken(), CallLog());
        m_host->bringUp();
        const CallLog calls = taken();
        QCOMPARE(calls.mid(0, 6), CallLog({u"A.view"_s, u"A.willShow"_s, u"A.shouldHide"_s,
                                           u"B.view"_s, u"B.willShow"_s, u"B.shouldHide"_s}));
        // Nothing that was proposed meanwhile is lost.
        QVERIFY(calls.contains(u"A.changed Tray=Lower"_s));
        QVERIFY(calls.contains(u"B.changed Tray=Lower"_s));
        QVERIFY(calls.contains(u"B.changed Boost=ON"_s));
        QVERIFY(calls.contains(u"A.changed Media=Card"_s));
    }

    void nothingIsDeliveredWhileAnAlertIsOpen()
    {
        // The user acts on a control of A, whose action runs an alert in its own event loop.
        a().propose(u"Tray"_s, u"Lower"_s);
        m_presenter.whileOpen = [&] {
            m_host->deliverPending();
            m_session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        };
        a().host().alertPresenter()->runModal(Alert{}, nullptr);
        QCOMPARE(taken(), CallLog());
        turn();
        QCOMPARE(taken(), CallLog({u"A.changed Boost=ON"_s, u"B.changed Boost=ON"_s,
                                   u"B.changed Tray=Lower"_s}));
    }

    void theInnerOfTwoAlertsReleasesNothing()
    {
        a().propose(u"Tray"_s, u"Lower"_s);
        bool inner = false;
        m_presenter.whileOpen = [&] {
            if (std::exchange(inner, true))
                return;
            a().host().alertPresenter()->runModal(Alert{}, nullptr);
            turn();
            m_plugIn->log += u"the outer alert closes"_s;
        };
        a().host().alertPresenter()->runModal(Alert{}, nullptr);
        turn();
        QCOMPARE(taken(), CallLog({u"the outer alert closes"_s, u"B.changed Tray=Lower"_s}));
    }

    void panelsRestoreAfterOptionsThatTheirRulesRead_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("restores");
        QTest::newRow("output destination") << u"QXOutput"_s << u"FAX"_s << true;
        QTest::newRow("who matches colors")
            << u"AP_ColorMatchingMode"_s << u"AP_ApplicationColorMatching"_s << true;
        QTest::newRow("any other") << u"Tray"_s << u"Lower"_s << false;
    }
    void panelsRestoreAfterOptionsThatTheirRulesRead()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(bool, restores);
        m_session->change(keyword, choice, Origin::Dialog);
        turn();
        CallLog expected{u"A.changed %1=%2"_s.arg(keyword, choice),
                         u"B.changed %1=%2"_s.arg(keyword, choice)};
        if (restores)
            expected += {u"A.save"_s, u"A.restore"_s, u"B.restore"_s}; // A is the visible one
        QCOMPARE(taken(), expected);
    }

    void aRuleThatFollowsAnotherPanelsChangeIsToldBack()
    {
        b().inside.insert(u"changed"_s, [&] { b().propose(u"Boost"_s, u"ON"_s); });
        a().propose(u"Tray"_s, u"Lower"_s);
        turn();
        QCOMPARE(taken(), CallLog({u"B.changed Tray=Lower"_s, u"A.changed Boost=ON"_s}));
    }

    void twoPanelsThatKeepAnsweringEachOtherComeToRest()
    {
        a().inside.insert(u"changed"_s, [&] { toggleTray(a()); });
        b().inside.insert(u"changed"_s, [&] { toggleTray(b()); });
        const QSignalSpy settled(m_host.get(), &PanelHost::settled);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"keep changing \"Tray\""_s));
        toggleTray(a());
        turn();
        const qsizetype rounds = taken().size();
        QVERIFY2(rounds > 2 && rounds <= 10, qPrintable(QString::number(rounds)));
        QCOMPARE(settled.size(), 1);
        for (int i = 0; i < 5; ++i)
            turn();
        QCOMPARE(taken(), CallLog());
    }

    void itSettlesOnceAfterChangesAndNotWithoutAny()
    {
        const QSignalSpy settled(m_host.get(), &PanelHost::settled);
        m_host->deliverPending();
        QCOMPARE(settled.size(), 0);
        a().propose(u"Tray"_s, u"Lower"_s);
        a().propose(u"Boost"_s, u"ON"_s);
        QCOMPARE(settled.size(), 0);
        turn();
        QCOMPARE(settled.size(), 1);
    }

    void itSettlesAfterARefusalSoThatTheUserIsTold()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        turn();
        taken();
        const QSignalSpy settled(m_host.get(), &PanelHost::settled);
        QVERIFY(!a().propose(u"Media"_s, u"Film"_s));
        QCOMPARE(settled.size(), 0); // not in the midst of the action
        turn();
        QCOMPARE(settled.size(), 1);
        QCOMPARE(m_session->takeRefusals().size(), 1);
        QCOMPARE(taken(), CallLog());
    }

    void aRefusalWhileAnAlertIsOpenSettlesAfterIt()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        turn();
        const QSignalSpy settled(m_host.get(), &PanelHost::settled);
        m_presenter.whileOpen = [&] { a().propose(u"Media"_s, u"Film"_s); };
        a().host().alertPresenter()->runModal(Alert{}, nullptr);
        QCOMPARE(settled.size(), 0);
        turn();
        QCOMPARE(settled.size(), 1);
    }

    void everythingIsToldWhenItSettles()
    {
        CallLog told;
        connect(m_host.get(), &PanelHost::settled, this, [&] { told = m_plugIn->log; });
        a().propose(u"Tray"_s, u"Lower"_s);
        turn();
        QCOMPARE(told, CallLog{u"B.changed Tray=Lower"_s});
    }

    void whatIsPendingIsToldBeforeAPageIsEntered()
    {
        a().propose(u"Tray"_s, u"Lower"_s);
        m_host->summary();
        const CallLog calls = taken();
        QVERIFY(calls.indexOf(u"B.changed Tray=Lower"_s) < calls.indexOf(u"B.summary"_s));
        QVERIFY(calls.contains(u"B.changed Tray=Lower"_s));
    }

    void aHostThatDiesWithChangesPendingTellsNobody()
    {
        a().propose(u"Tray"_s, u"Lower"_s);
        m_host.reset();
        turn();
        QCOMPARE(taken(), CallLog());
    }

    void aSessionThatChangesAfterItsPanelsTellsNobody()
    {
        m_host.reset();
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        turn();
        QCOMPARE(taken(), CallLog());
    }
};

QTEST_MAIN(PanelHostDeliveryTest)

#include "panel_host_delivery_test.moc"
