#include <QTest>

#include "dialog/session/PanelHost.h"
#include "platform/toolkit/Windows.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Which operations of the panels are called, and in which order.
class PanelHostProtocolTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<FakePlugIn> m_plugIn;
    ScriptedAlertPresenter m_presenter;
    std::unique_ptr<PanelHost> m_host;

    CallLog taken() { return std::exchange(m_plugIn->log, {}); }

private Q_SLOTS:
    void init()
    {
        m_session = sessionFor(smallPrinter());
        m_plugIn = std::make_unique<FakePlugIn>(QStringList{u"A"_s, u"B"_s});
        m_host = std::make_unique<PanelHost>(*m_session, m_plugIn.get(), m_presenter);
    }
    void cleanup()
    {
        m_host.reset();
        m_plugIn.reset();
        m_session.reset();
    }

    void panelsAreAskedForOnceUnderTheTypeOfPrintPanels()
    {
        QCOMPARE(m_plugIn->askedTypes, QStringList{QLatin1StringView(kPrintDialogExtensionType)});
        QCOMPARE(m_host->panels().size(), 2);
        QCOMPARE(m_host->panels().at(0)->panelName(), u"A"_s);
    }

    void nothingIsCalledBeforeThePanelsComeUp()
    {
        QCoreApplication::processEvents();
        QCOMPARE(taken(), CallLog());
    }

    void bringingUpLoadsShowsAndHidesEveryPanel()
    {
        m_host->bringUp();
        QCOMPARE(taken(), CallLog({u"A.view"_s, u"A.willShow"_s, u"A.shouldHide"_s, u"B.view"_s,
                                   u"B.willShow"_s, u"B.shouldHide"_s}));
    }

    void panelsComeUpOnce_data()
    {
        QTest::addColumn<QString>("by");
        QTest::newRow("by bringing them up") << u"bringUp"_s;
        QTest::newRow("by a visit") << u"visit"_s;
        QTest::newRow("by a summary") << u"summary"_s;
        QTest::newRow("by printing") << u"shouldPrint"_s;
    }
    void panelsComeUpOnce()
    {
        QFETCH(QString, by);
        const auto act = [&] {
            if (by == u"bringUp"_s)
                m_host->bringUp();
            else if (by == u"visit"_s)
                m_host->visit(-1);
            else if (by == u"summary"_s)
                m_host->summary();
            else
                m_host->shouldPrint();
        };
        act();
        const CallLog first = taken();
        QCOMPARE(first.mid(0, 3), CallLog({u"A.view"_s, u"A.willShow"_s, u"A.shouldHide"_s}));
        QCOMPARE(first.count(u"B.willShow"_s), 1);
        act();
        m_host->bringUp();
        QVERIFY(!taken().contains(u"A.view"_s));
    }

    void aPanelWithoutAViewComesUpAndIsLogged()
    {
        m_plugIn->panels.at(0)->hasView = false;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"\"A\" has no view"_s));
        m_host->bringUp();
        QVERIFY(taken().contains(u"A.willShow"_s));
    }

    // Panels observe the window that they come up in, and end their rules when it closes.
    void panelsComeUpInsideTheWindowThatWillShowThem()
    {
        QWidget window;
        QWidget active;
        active.show();
        QVERIFY(QTest::qWaitForWindowActive(&active));
        m_host->setWindow(&window);
        QList<const QWidget *> seen;
        for (int i = 0; i < 2; ++i) {
            FakePanel &panel = *m_plugIn->panels.at(i);
            panel.inside[u"willShow"_s] = [this, &seen, i] {
                seen += keyWindow(m_host->views().at(i));
            };
        }
        m_host->bringUp();
        QCOMPARE(seen, (QList<const QWidget *>{&window, &window}));
        QVERIFY(m_host->views().at(0) && !m_host->views().at(0)->isVisible());
        m_host.reset(); // before its window
    }

    void withoutAWindowPanelsComeUpInOneThatNeverCloses()
    {
        QWidget active;
        active.show();
        QVERIFY(QTest::qWaitForWindowActive(&active));
        m_host->bringUp();
        for (const auto &view : m_host->views()) {
            QVERIFY(view);
            const QWidget *window = keyWindow(view);
            QVERIFY(window && window != &active);
            QVERIFY(!window->isVisible());
        }
    }

    void viewsGoToWhoeverShowsThemAndStayWithTheirPanels()
    {
        QWidget page;
        m_host->bringUp();
        QPointer<QWidget> shown = m_host->views().at(0);
        QPointer<QWidget> hidden = m_host->views().at(1);
        shown->setParent(&page);
        m_host.reset();
        QVERIFY(shown && shown->parentWidget() == &page);
        QVERIFY(hidden && !hidden->parentWidget());
        shown->setParent(nullptr); // its panel owns it
    }

    void enteringAPanelRestoresTheHiddenOnesInOrderAndShowsIt()
    {
        m_host->bringUp();
        taken();
        m_host->visit(1);
        QCOMPARE(taken(), CallLog({u"A.restore"_s, u"B.restore"_s, u"B.willShow"_s}));
    }

    void leavingAPanelSavesItFirst()
    {
        m_host->visit(1);
        taken();
        m_host->visit(0);
        QCOMPARE(taken(), CallLog({u"B.save"_s, u"B.shouldHide"_s, u"A.restore"_s, u"B.restore"_s,
                                   u"A.willShow"_s}));
    }

    void goingToAPageOfTheDialogSavesAndHides_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("a page of the dialog") << -1;
        QTest::newRow("an index beyond the panels") << 2;
    }
    void goingToAPageOfTheDialogSavesAndHides()
    {
        QFETCH(int, page);
        m_host->visit(0);
        taken();
        m_host->visit(page);
        QCOMPARE(taken(), CallLog({u"A.save"_s, u"A.shouldHide"_s}));
    }

    void goingWhereOneIsCallsNobody()
    {
        m_host->visit(0);
        taken();
        m_host->visit(0);
        QCOMPARE(taken(), CallLog());
        m_host->visit(-1);
        taken();
        m_host->visit(-1);
        QCOMPARE(taken(), CallLog());
    }

    void aPanelThatRefusesToBeLeftStaysTheVisibleOne_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("for another panel") << 1;
        QTest::newRow("for a page of the dialog") << -1;
    }
    void aPanelThatRefusesToBeLeftStaysTheVisibleOne()
    {
        QFETCH(int, page);
        QVERIFY(m_host->visit(0));
        QCOMPARE(m_host->visiblePanel(), 0);
        taken();
        m_plugIn->panels.at(0)->allowsLeaving = false;
        QVERIFY(!m_host->visit(page));
        QCOMPARE(taken(), CallLog({u"A.save"_s, u"A.shouldHide"_s}));
        QCOMPARE(m_host->visiblePanel(), 0);
        QVERIFY(m_host->visit(0)); // where one is already
        QCOMPARE(taken(), CallLog());

        // It is still the one that is saved, and not restored.
        QVERIFY(m_host->shouldPrint());
        QCOMPARE(taken(),
                 CallLog({u"A.save"_s, u"B.restore"_s, u"A.shouldPrint"_s, u"B.shouldPrint"_s}));

        m_plugIn->panels.at(0)->allowsLeaving = true;
        QVERIFY(m_host->visit(page));
        QCOMPARE(m_host->visiblePanel(), page);
        QVERIFY(taken().contains(u"A.shouldHide"_s));
    }

    // What it saved on the way is known to the others.
    void whatAPanelChangesWhileItRefusesIsTold()
    {
        QVERIFY(m_host->visit(0));
        FakePanel &panel = *m_plugIn->panels.at(0);
        panel.allowsLeaving = false;
        panel.inside[u"shouldHide"_s] = [&] { panel.propose(u"Duplex"_s, u"DuplexTumble"_s); };
        taken();
        QVERIFY(!m_host->visit(1));
        QCOMPARE(taken(),
                 CallLog({u"A.save"_s, u"A.shouldHide"_s, u"B.changed Duplex=DuplexTumble"_s}));
    }

    // The user has not been there, so nobody leaves.
    void aPanelCannotRefuseWhileItIsBroughtUp()
    {
        m_plugIn->panels.at(0)->allowsLeaving = false;
        m_host->bringUp();
        QCOMPARE(m_host->visiblePanel(), -1);
        QVERIFY(m_host->visit(1));
    }

    void restoringAllCallsThemInOrder()
    {
        m_host->visit(1);
        taken();
        m_host->restoreAll();
        QCOMPARE(taken(), CallLog({u"A.restore"_s, u"B.restore"_s}));
    }

    void printingSavesTheVisiblePanelAndRestoresTheHiddenOnes()
    {
        m_host->visit(1);
        taken();
        QVERIFY(m_host->shouldPrint());
        QCOMPARE(taken(),
                 CallLog({u"B.save"_s, u"A.restore"_s, u"A.shouldPrint"_s, u"B.shouldPrint"_s}));
    }

    void printingRestoresAllPanelsWhenNoneIsVisible()
    {
        m_host->bringUp();
        taken();
        QVERIFY(m_host->shouldPrint());
        QCOMPARE(taken(),
                 CallLog({u"A.restore"_s, u"B.restore"_s, u"A.shouldPrint"_s, u"B.shouldPrint"_s}));
    }

    void printingStopsAtTheFirstPanelThatHoldsTheJobBack()
    {
        m_plugIn->panels.at(0)->allowsPrinting = false;
        QVERIFY(!m_host->shouldPrint());
        const CallLog calls = taken();
        QVERIFY(calls.contains(u"A.shouldPrint"_s));
        QVERIFY(!calls.contains(u"B.shouldPrint"_s));
    }

    void theLastPanelCanHoldTheJobBack()
    {
        m_plugIn->panels.at(1)->allowsPrinting = false;
        QVERIFY(!m_host->shouldPrint());
        QVERIFY(taken().contains(u"A.shouldPrint"_s));
    }

    void theSummaryHasTheLinesOfAllPanelsInTheirOrder()
    {
        m_plugIn->panels.at(0)->summaryLines = {{u"Zoom"_s, u"2"_s}, {u"Area"_s, u"all"_s}};
        m_plugIn->panels.at(1)->summaryLines = {{u"Color"_s, u"Vivid"_s}};
        QCOMPARE(m_host->summary(),
                 (QList<SummaryLine>{
                     {u"Zoom"_s, u"2"_s}, {u"Area"_s, u"all"_s}, {u"Color"_s, u"Vivid"_s}}));
    }

    void theVisiblePanelSavesBeforeASummary()
    {
        m_host->visit(1);
        taken();
        m_host->summary();
        QCOMPARE(taken(), CallLog({u"B.save"_s, u"A.summary"_s, u"B.summary"_s}));
    }

    void aPrinterWithoutPanelsHasNothingToDo()
    {
        PanelHost none(*m_session, nullptr, m_presenter);
        none.bringUp();
        none.visit(0);
        none.restoreAll();
        QVERIFY(none.panels().isEmpty());
        QVERIFY(none.summary().isEmpty());
        QVERIFY(none.shouldPrint());
    }

    void aPlugInWithoutPanelsHasNothingToDo()
    {
        FakePlugIn empty{QStringList()};
        PanelHost none(*m_session, &empty, m_presenter);
        QVERIFY(none.shouldPrint());
        QVERIFY(none.summary().isEmpty());
    }

    void panelsLetGoOfTheirHostWhenItDies()
    {
        const std::weak_ptr<FakePanel> panel = m_plugIn->panels.at(0);
        m_plugIn->panels.clear();
        QVERIFY(!panel.expired());
        m_host.reset();
        QVERIFY(panel.expired());
    }

    void onlyTheVisiblePanelSaysWhatItShows()
    {
        m_host->bringUp();
        const QVariantMap saved = m_session->printSettings().entries();
        m_plugIn->panels.at(0)->shown = {{u"shown"_s, 1}};
        m_plugIn->panels.at(1)->shown = {{u"shown"_s, 2}};
        QCOMPARE(m_host->shownEntries(), saved);
        QVERIFY(m_host->visit(1));
        QCOMPARE(m_host->shownEntries().value(u"shown"_s), 2);
        QCOMPARE(m_session->printSettings().entries(), saved);
        QVERIFY(m_host->visit(-1));
        QCOMPARE(m_host->shownEntries(), saved);
    }

    void aPanelAtWorkIsNotAskedWhatItShows()
    {
        QVERIFY(m_host->visit(0));
        m_plugIn->panels.at(0)->shown = {{u"shown"_s, 1}};
        QVariantMap meanwhile;
        m_plugIn->panels.at(0)->inside.insert(u"save"_s,
                                              [&] { meanwhile = m_host->shownEntries(); });
        m_host->summary();
        QVERIFY(!meanwhile.isEmpty() && !meanwhile.contains(u"shown"_s));
    }

    void eachStepOfASliderIsHeard()
    {
        m_host->bringUp();
        int heard = 0;
        connect(m_host.get(), &PanelHost::shownValuesChanged, this, [&] { ++heard; });
        PDEPluginCallback &host = m_plugIn->panels.at(0)->host();
        QVERIFY(host.respondsTo(PDECallbackOperation::shownValuesDidChange));
        host.shownValuesDidChange();
        host.shownValuesDidChange();
        QCOMPARE(heard, 2);
    }
};

QTEST_MAIN(PanelHostProtocolTest)

#include "panel_host_protocol_test.moc"
