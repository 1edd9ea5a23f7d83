#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/session/PanelHost.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

/// Several options at once: the set is taken as a whole or not at all, and the panels have their
/// say.
class OptionSetsTest : public QObject
{
    Q_OBJECT

private:
    ScriptedAlertPresenter m_presenter;
    FakeJobValues m_values;
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<FakePlugIn> m_plugIn;
    std::unique_ptr<PanelHost> m_panels;

    FakePanel &a() { return *m_plugIn->panels.at(0); }
    FakePanel &b() { return *m_plugIn->panels.at(1); }
    OptionOutcome apply(const QStringList &options)
    {
        return applyOptions(parseOptions(options), *m_session, &m_values, *m_panels);
    }
    CallLog taken() { return std::exchange(m_plugIn->log, {}); }

private Q_SLOTS:
    void init()
    {
        m_session = sessionFor(smallPrinter());
        m_plugIn = std::make_unique<FakePlugIn>(QStringList{u"A"_s, u"B"_s});
        m_panels = std::make_unique<PanelHost>(*m_session, m_plugIn.get(), m_presenter);
    }
    void cleanup()
    {
        m_panels.reset();
        m_plugIn.reset();
        m_session.reset();
    }

    void panelsComeUpFirstThenHearOfEachChangeThenRestore()
    {
        QVERIFY(apply({u"Tray=Lower"_s}).ok());
        const CallLog calls = taken();
        QCOMPARE(calls.mid(0, 6), CallLog({u"A.view"_s, u"A.willShow"_s, u"A.shouldHide"_s,
                                           u"B.view"_s, u"B.willShow"_s, u"B.shouldHide"_s}));
        QCOMPARE(calls.mid(6), CallLog({u"A.changed Tray=Lower"_s, u"B.changed Tray=Lower"_s,
                                        u"A.restore"_s, u"B.restore"_s}));
    }

    // For libcups they are two forms of one choice, whatever a PPD says.
    void aTrayAndFeedingByHandExcludeEachOtherByName()
    {
        cleanup();
        m_session = sessionFor(
            smallPrinter()
                .option("InputSlot", "Tray", "Upper", {{"Upper", "Upper"}, {"Lower", "Lower"}})
                .option("ManualFeed", "By Hand", "False", {{"True", "Yes"}, {"False", "No"}}));
        m_plugIn = std::make_unique<FakePlugIn>(QStringList{u"A"_s});
        m_panels = std::make_unique<PanelHost>(*m_session, m_plugIn.get(), m_presenter);
        QCOMPARE(apply({u"InputSlot=Lower ManualFeed=True"_s}).problems,
                 QStringList{u"InputSlot=Lower: this cannot be combined with ManualFeed=True."_s});
        QVERIFY(apply({u"InputSlot=Lower"_s}).ok());
    }

    void noOptionsLeaveTheSessionAsItIs()
    {
        const SessionSnapshot before = m_session->snapshot();
        QVERIFY(apply({}).ok());
        QCOMPARE(m_session->snapshot(), before);
    }

    void copiesAreNoOptionOfThePrinters()
    {
        const OptionOutcome outcome = apply({u"copies=12 Tray=Lower"_s});
        QVERIFY(outcome.ok());
        QCOMPARE(outcome.copies, std::optional(12));
        QVERIFY(outcome.attributes.isEmpty());
    }

    void aNumberOfCopiesThatCannotBeTakenIsToldWithTheRange_data()
    {
        QTest::addColumn<QString>("copies");
        for (const QString &bad : {u"0"_s, u"-1"_s, u"10000"_s, u"two"_s, u"1.5"_s})
            QTest::newRow(qPrintable(bad)) << bad;
    }
    void aNumberOfCopiesThatCannotBeTakenIsToldWithTheRange()
    {
        QFETCH(QString, copies);
        const OptionOutcome outcome = apply({u"Tray=Lower copies=%1"_s.arg(copies)});
        QVERIFY(!outcome.copies);
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().contains(u"1 to 9999"_s),
                 qPrintable(outcome.problems.constFirst()));
        QCOMPARE(m_session->markedChoice(u"Tray"_s), u"Upper"_s);
    }

    void landscapeIsOnOrOff()
    {
        const OptionOutcome outcome = apply({u"landscape=perhaps"_s});
        QCOMPARE(outcome.problems,
                 QStringList{u"landscape=perhaps: this value is not allowed. Allowed: true, "
                             "false."_s});
    }

    void landscapeIsAnOrientation()
    {
        QCOMPARE(apply({u"landscape"_s}).attributes,
                 (QList<JobOption>{{u"orientation-requested"_s, u"4"_s}}));
    }

    void aConflictOnTheWayDoesNotMatter()
    {
        QVERIFY(apply({u"Duplex=DuplexTumble"_s}).ok());
        QVERIFY(apply({u"Media=Card Duplex=None"_s}).ok());
        QCOMPARE(m_session->markedChoice(u"Media"_s), u"Card"_s);
        // And back, through the state that the options exclude.
        QVERIFY(apply({u"Media=Plain Duplex=DuplexTumble"_s}).ok());
        QCOMPARE(m_session->markedChoice(u"Duplex"_s), u"DuplexTumble"_s);
    }

    void aConflictOfTheSetRefusesAllOfIt()
    {
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply(
            {u"Boost=ON"_s, u"Media=Card"_s, u"sides=two-sided-long-edge"_s, u"Strength=7"_s});
        QCOMPARE(outcome.problems.size(), 2);
        QCOMPARE(outcome.problems.at(0),
                 u"Media=Card: this cannot be combined with Duplex=DuplexNoTumble."_s);
        QCOMPARE(outcome.problems.at(1),
                 u"Duplex=DuplexNoTumble: this cannot be combined with Media=Card."_s);
        QCOMPARE(m_session->snapshot(), before);
    }

    void aConflictMessageNamesEveryOptionInTheWay()
    {
        QCOMPARE(conflictMessage({{u"Media"_s, u"Card"_s},
                                  {{u"Duplex"_s, u"DuplexTumble"_s}, {u"Tray"_s, u"Lower"_s}}},
                                 *m_session),
                 u"Media=Card: this cannot be combined with Duplex=DuplexTumble, Tray=Lower."_s);
    }

    void oneRefusedOptionLeavesEverythingAsItWas_data()
    {
        QTest::addColumn<QString>("refused");
        QTest::newRow("unknown option") << u"Stapler=ON"_s;
        QTest::newRow("unknown choice") << u"Media=Gold"_s;
        QTest::newRow("panel's own value out of range") << u"Strength=10"_s;
        QTest::newRow("job attribute") << u"number-up=3"_s;
        QTest::newRow("conflict") << u"Media=Film"_s;
    }
    void oneRefusedOptionLeavesEverythingAsItWas()
    {
        QFETCH(QString, refused);
        m_panels->bringUp();
        const SessionSnapshot before = m_session->snapshot();
        QString all = u"Tray=Lower Strength=7 number-up=2 "_s;
        if (refused.startsWith(u"Strength"_s))
            all.remove(u"Strength=7 "_s);
        const OptionOutcome outcome = apply({all + refused});
        QVERIFY(!outcome.ok());
        QVERIFY2(outcome.problems.join(u'\n').contains(refused),
                 qPrintable(outcome.problems.join(u'\n')));
        QCOMPARE(m_session->snapshot(), before);
        // Nothing of it may slip into a job later.
        QVERIFY(outcome.attributes.isEmpty());
        QVERIFY(m_session->takeRefusals().isEmpty());
    }

    void everyRefusedOptionIsTold()
    {
        const OptionOutcome outcome = apply({u"Stapler=ON Media=Gold number-up=3 Strength=0"_s});
        QCOMPARE(outcome.problems.size(), 4);
    }

    void aPanelsOwnValueIsWrittenWithTheMarkThatItImplies()
    {
        const OptionOutcome outcome = apply({u"Strength=7"_s});
        QVERIFY2(outcome.ok(), qPrintable(outcome.problems.join(u'\n')));
        QCOMPARE(m_session->printSettings().value(u"fake.Strength"_s).toString(), u"7"_s);
        QCOMPARE(m_session->markedChoice(u"Boost"_s), u"ON"_s);
        const CallLog calls = taken();
        QVERIFY(calls.contains(u"A.changed Boost=ON"_s));
        QVERIFY(calls.indexOf(u"A.changed Boost=ON"_s) < calls.indexOf(u"A.restore"_s));
    }

    void aPanelsOwnValueThatIsRefusedNamesItsRange()
    {
        const OptionOutcome outcome = apply({u"Strength=10"_s});
        QCOMPARE(outcome.problems,
                 QStringList{u"Strength=10: this value is not allowed. Allowed: 1 to 9."_s});
        QVERIFY(!m_session->printSettings().contains(u"fake.Strength"_s));
    }

    void aChoiceThatAPanelReplacesIsAnsweredWithWhatItBecame()
    {
        m_panels->bringUp();
        a().inside.insert(u"restore"_s, [&] {
            if (m_session->markedChoice(u"Media"_s) == u"Card"_s)
                a().propose(u"Media"_s, u"Plain"_s);
        });
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({u"Media=Card"_s, u"Tray=Lower"_s, u"number-up=2"_s});
        QVERIFY(outcome.attributes.isEmpty());
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().startsWith(u"Media=Card: "_s) &&
                     outcome.problems.constFirst().contains(u"became Plain"_s),
                 qPrintable(outcome.problems.constFirst()));
        QCOMPARE(m_session->snapshot(), before);
    }

    void aValueThatAPanelReplacesIsAnsweredWithWhatItBecame()
    {
        m_panels->bringUp();
        b().inside.insert(u"restore"_s, [&] {
            if (m_session->printSettings().contains(u"fake.Strength"_s))
                m_session->printSettings().setValue(u"fake.Strength"_s, u"2"_s);
        });
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({u"Strength=4"_s});
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().startsWith(u"Strength=4: "_s) &&
                     outcome.problems.constFirst().contains(u"became 2"_s),
                 qPrintable(outcome.problems.constFirst()));
        QCOMPARE(m_session->snapshot(), before);
    }

    void twoNamesOfOneOptionThatDisagreeAreRefused()
    {
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({u"media=A4 PageSize=Postcard"_s});
        QVERIFY(!outcome.ok());
        QCOMPARE(m_session->snapshot(), before);
        QVERIFY(apply({u"media=Postcard PageSize=Postcard"_s}).ok());
    }

    void aPanelsOwnProposalThatIsRefusedIsAProblem()
    {
        m_panels->bringUp();
        // A rule of the panel: with Boost comes Film, which the Lower tray cannot take.
        a().inside.insert(u"changed"_s, [&] {
            if (m_session->markedChoice(u"Boost"_s) == u"ON"_s)
                a().propose(u"Media"_s, u"Film"_s);
        });
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({u"Tray=Lower Boost=ON"_s});
        QVERIFY(
            outcome.problems.contains(u"Media=Film: this cannot be combined with Tray=Lower."_s));
        QCOMPARE(m_session->snapshot(), before);
    }

    void theHandOverIsTheSameWhetherPagesWereVisitedOrNot()
    {
        QVERIFY(apply({u"Tray=Lower Strength=7"_s}).ok());
        const SessionSnapshot unvisited = m_session->snapshot();
        m_panels->visit(0);
        m_panels->visit(1);
        m_panels->visit(-1);
        QCOMPARE(m_session->snapshot(), unvisited);
    }

    void aPrinterWithoutPanelsTakesOptionsTheSameWay()
    {
        PanelHost none(*m_session, nullptr, m_presenter);
        const OptionOutcome outcome =
            applyOptions(parseOptions({u"Tray=Lower collate=true"_s}), *m_session, nullptr, none);
        QVERIFY(outcome.ok());
        QCOMPARE(m_session->markedChoice(u"Tray"_s), u"Lower"_s);
        QCOMPARE(outcome.attributes, (QList<JobOption>{{u"collate"_s, u"true"_s}}));
        QVERIFY(!applyOptions(parseOptions({u"Strength=4"_s}), *m_session, nullptr, none).ok());
    }
};

QTEST_MAIN(OptionSetsTest)

#include "option_sets_test.moc"
