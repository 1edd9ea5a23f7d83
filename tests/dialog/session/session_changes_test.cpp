#include <QSignalSpy>
#include <QTest>

#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;
using Outcome = ChangeResult::Outcome;

namespace {

QString recorded(const PpdSession &session, const QString &keyword)
{
    return session.printSettings().value(keyword).toString();
}

} // namespace

/// One change of one option: what is accepted, what is refused, and what each leaves behind.
class SessionChangesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;

private Q_SLOTS:
    void init() { m_session = sessionFor(smallPrinter()); }
    void cleanup() { m_session.reset(); }

    void everyMarkIsRecordedAtTheOpening()
    {
        const auto session = sampleSession();
        QVERIFY(session->options().size() > 20);
        for (const ppd_option_t *option : session->options()) {
            const QString keyword = ppdKeyword(option->keyword);
            QCOMPARE(recorded(*session, keyword), ppdKeyword(option->defchoice));
            QCOMPARE(session->markedChoice(keyword), ppdKeyword(option->defchoice));
        }
    }

    void theMarksAreTheOnlyEntriesAtTheOpening()
    {
        const auto session = sampleSession();
        QCOMPARE(session->printSettings().entries().size(), session->options().size());
    }

    void thePageRegionIsNoOptionOfItsOwn()
    {
        const auto session = sampleSession();
        QVERIFY(ppdOption(session->ppd(), u"PageRegion"_s));
        for (const ppd_option_t *option : session->options())
            QVERIFY(ppdKeyword(option->keyword) != u"PageRegion"_s);
    }

    void anOptionWithoutAUsableDefaultHasNoMarkAndNoEntry()
    {
        const auto session = sessionFor(
            PpdBuilder().option("Fold", "Fold", "Unknown", {{"Once", "Once"}, {"Twice", "Twice"}}));
        QVERIFY(session->markedChoice(u"Fold"_s).isNull());
        QVERIFY(!session->printSettings().contains(u"Fold"_s));
    }

    void theQueuesWishForTwoSidedIsAMarkAndIsRecorded()
    {
        QByteArray text = smallPrinter().text();
        text.replace("*DefaultDuplex: None", "*DefaultDuplex: DuplexTumble");
        const auto session = sessionFor(text);
        QCOMPARE(session->markedChoice(u"Duplex"_s), u"DuplexTumble"_s);
        QCOMPARE(recorded(*session, u"Duplex"_s), u"DuplexTumble"_s);
    }

    void anAcceptedChangeIsMarkedRecordedAndAnnouncedOnce()
    {
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        const ChangeResult result = m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        QVERIFY(result.accepted());
        QVERIFY(result.conflicting.isEmpty());
        QCOMPARE(m_session->markedChoice(u"Tray"_s), u"Lower"_s);
        QVERIFY(ppdIsMarked(m_session->ppd(), "Tray", "Lower"));
        QCOMPARE(recorded(*m_session, u"Tray"_s), u"Lower"_s);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), u"Tray"_s);
        QCOMPARE(changed.at(0).at(1).toString(), u"Lower"_s);
        QCOMPARE(changed.at(0).at(2).value<Origin>(), Origin::Dialog);
    }

    void everythingIsRecordedWhenTheChangeIsAnnounced()
    {
        QString whenAnnounced;
        connect(m_session.get(), &PpdSession::changed, this, [&](const QString &keyword) {
            whenAnnounced = recorded(*m_session, keyword) + m_session->markedChoice(keyword);
        });
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Panel);
        QCOMPARE(whenAnnounced, u"LowerLower"_s);
    }

    void theSameChoiceIsAcceptedInSilence()
    {
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        const SessionSnapshot before = m_session->snapshot();
        QVERIFY(m_session->change(u"Tray"_s, u"Upper"_s, Origin::Panel).accepted());
        QCOMPARE(changed.size(), 0);
        QCOMPARE(m_session->snapshot(), before);
    }

    void theSameChoiceIsRecordedAgainAfterItsEntryWasLost()
    {
        m_session->printSettings().setValue(u"Tray"_s, u"elsewhere"_s);
        QVERIFY(m_session->change(u"Tray"_s, u"Upper"_s, Origin::Panel).accepted());
        QCOMPARE(recorded(*m_session, u"Tray"_s), u"Upper"_s);
    }

    void whatThePrinterLacksIsRefusedAndLogged_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QString>("logged");

        QTest::newRow("unknown option")
            << u"Stapler"_s << u"ON"_s << Outcome::UnknownOption << u"Stapler"_s;
        QTest::newRow("option in other case")
            << u"tray"_s << u"Lower"_s << Outcome::UnknownOption << u"tray"_s;
        QTest::newRow("no option")
            << QString() << u"Lower"_s << Outcome::UnknownOption << QString();
        QTest::newRow("option that is no keyword")
            << u"Träy"_s << u"Lower"_s << Outcome::UnknownOption << QString();
        QTest::newRow("unknown choice")
            << u"Tray"_s << u"Cellar"_s << Outcome::UnknownChoice << u"Cellar"_s;
        QTest::newRow("choice in other case")
            << u"Tray"_s << u"lower"_s << Outcome::UnknownChoice << u"lower"_s;
        QTest::newRow("no choice") << u"Tray"_s << QString() << Outcome::UnknownChoice << QString();
        QTest::newRow("custom value of an option that takes none")
            << u"Tray"_s << u"Custom.3"_s << Outcome::UnknownChoice << u"Custom.3"_s;
        QTest::newRow("the page region, which would take the page size's place")
            << u"PageRegion"_s << u"A4"_s << Outcome::UnknownOption << u"PageRegion"_s;
    }
    void whatThePrinterLacksIsRefusedAndLogged()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(Outcome, outcome);
        QFETCH(QString, logged);
        const auto session = sessionFor(
            smallPrinter().line("*OpenUI *PageRegion/Page Region: PickOne\n*DefaultPageRegion: A4\n"
                                "*PageRegion A4/A4: \"\"\n*PageRegion Postcard/Postcard: \"\"\n"
                                "*CloseUI: *PageRegion"));
        const QSignalSpy changed(session.get(), &PpdSession::changed);
        const SessionSnapshot before = session->snapshot();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^refused: .*"_s +
                                                              QRegularExpression::escape(logged)));
        QCOMPARE(session->change(keyword, choice, Origin::Panel).outcome, outcome);
        QCOMPARE(session->snapshot(), before);
        QCOMPARE(changed.size(), 0);
        QVERIFY(session->takeRefusals().isEmpty());
    }

    void aConflictIsRefusedAndNamesTheOptionsInTheWay()
    {
        QVERIFY(m_session->change(u"Duplex"_s, u"DuplexTumble"_s, Origin::Dialog).accepted());
        const SessionSnapshot before = m_session->snapshot();
        const ChangeResult result = m_session->change(u"Media"_s, u"Card"_s, Origin::Dialog);
        QCOMPARE(result.outcome, Outcome::Conflict);
        QCOMPARE(result.conflicting, (QList<OptionChoice>{{u"Duplex"_s, u"DuplexTumble"_s}}));
        QCOMPARE(m_session->snapshot(), before);
    }

    void aConflictNamesEveryOptionInTheWay()
    {
        const auto session = sessionFor(smallPrinter().constraint("Media", "Card", "Boost", "ON"));
        session->change(u"Duplex"_s, u"DuplexTumble"_s, Origin::Dialog);
        session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        const ChangeResult result = session->change(u"Media"_s, u"Card"_s, Origin::Dialog);
        QCOMPARE(result.conflicting.size(), 2);
        QVERIFY(result.conflicting.contains({u"Duplex"_s, u"DuplexTumble"_s}));
        QVERIFY(result.conflicting.contains({u"Boost"_s, u"ON"_s}));
    }

    void aConflictThatWasThereBeforeIsNotBlamedOnAnotherOption()
    {
        // The defaults of some printers exclude each other.
        QByteArray text = smallPrinter().text();
        text.replace("*DefaultMedia: Plain", "*DefaultMedia: Film");
        text.replace("*DefaultTray: Upper", "*DefaultTray: Lower");
        const auto session = sessionFor(text);
        QVERIFY(session->change(u"Boost"_s, u"ON"_s, Origin::Panel).accepted());
        QVERIFY(session->change(u"Tray"_s, u"Upper"_s, Origin::Dialog).accepted()); // the way out
        QVERIFY(!session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog).accepted());
    }

    void aConstraintOfAllChoicesCountsWhenTheOptionIsOn()
    {
        const auto session =
            sessionFor(PpdBuilder()
                           .option("Fold", "Fold", "None",
                                   {{"None", "No"}, {"Once", "Once"}, {"Twice", "Twice"}})
                           .onOff("Glue", "Glue")
                           .line("*UIConstraints: *Fold *Glue ON")
                           .line("*UIConstraints: *Glue ON *Fold"));
        QVERIFY(session->change(u"Glue"_s, u"ON"_s, Origin::Dialog).accepted());
        const ChangeResult result = session->change(u"Fold"_s, u"Twice"_s, Origin::Dialog);
        QCOMPARE(result.conflicting, (QList<OptionChoice>{{u"Glue"_s, u"ON"_s}}));
        QVERIFY(session->change(u"Fold"_s, u"None"_s, Origin::Dialog).accepted());
    }

    void aConstraintOnAChoiceNamedNoneCounts_data()
    {
        QTest::addColumn<QByteArray>("choice");
        QTest::newRow("None") << QByteArray("None");
        QTest::newRow("False") << QByteArray("False");
        QTest::newRow("Off") << QByteArray("Off");
    }
    void aConstraintOnAChoiceNamedNoneCounts()
    {
        QFETCH(QByteArray, choice);
        const auto session =
            sessionFor(PpdBuilder()
                           .option("Fold", "Fold", "Once", {{choice, "No"}, {"Once", "Once"}})
                           .onOff("Glue", "Glue")
                           .constraint("Fold", choice, "Glue", "ON"));
        QVERIFY(session->change(u"Glue"_s, u"ON"_s, Origin::Dialog).accepted());
        QVERIFY(
            !session->change(u"Fold"_s, QString::fromLatin1(choice), Origin::Dialog).accepted());
    }

    void aRefusedProposalOfAPanelIsRemembered()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        const QSignalSpy refused(m_session.get(), &PpdSession::refused);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Panel);
        QCOMPARE(refused.size(), 1);
        const QList<Refusal> refusals = m_session->takeRefusals();
        QCOMPARE(refusals.size(), 1);
        QCOMPARE(refusals.at(0).proposed, (OptionChoice{u"Media"_s, u"Film"_s}));
        QCOMPARE(refusals.at(0).conflicting, (QList<OptionChoice>{{u"Tray"_s, u"Lower"_s}}));
        QVERIFY(m_session->takeRefusals().isEmpty()); // taken
    }

    void aRefusalOfTheDialogsOwnProposalIsNotRememberedForLater()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Dialog);
        QVERIFY(m_session->takeRefusals().isEmpty());
    }

    void aRefusalIsForgottenWhenThePanelPutsAnotherChoiceInItsPlace()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Panel);
        QVERIFY(m_session->change(u"Media"_s, u"Card"_s, Origin::Panel).accepted());
        QVERIFY(m_session->takeRefusals().isEmpty());
    }

    void aRefusalStaysWhenThePanelChangesAnotherOption()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Panel);
        m_session->change(u"Boost"_s, u"ON"_s, Origin::Panel);
        QCOMPARE(m_session->takeRefusals().size(), 1);
    }

    void onlyTheLastRefusalOfAnOptionIsTold()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Panel);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Panel);
        QCOMPARE(m_session->takeRefusals().size(), 1);
    }

    void aDuplexRequestOfAPanelChangesTheMark_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("marked");
        QTest::newRow("one-sided") << int(kPMDuplexNone) << u"None"_s;
        QTest::newRow("long edge") << int(kPMDuplexNoTumble) << u"DuplexNoTumble"_s;
        QTest::newRow("short edge") << int(kPMDuplexTumble) << u"DuplexTumble"_s;
    }
    void aDuplexRequestOfAPanelChangesTheMark()
    {
        QFETCH(int, mode);
        QFETCH(QString, marked);
        // From a mark that none of the rows asks for twice.
        m_session->change(u"Duplex"_s, mode == kPMDuplexNone ? u"DuplexTumble"_s : u"None"_s,
                          Origin::Dialog);
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        QCOMPARE(PMSetDuplex(&m_session->printSettings(), mode), kPMNoError);
        QCOMPARE(m_session->markedChoice(u"Duplex"_s), marked);
        QCOMPARE(recorded(*m_session, u"Duplex"_s), marked);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.at(0).at(2).value<Origin>(), Origin::Panel);
    }

    void oneSidedMeansOneSidedOnAQueueThatPrintsTwoSided()
    {
        QByteArray text = smallPrinter().text();
        text.replace("*DefaultDuplex: None", "*DefaultDuplex: DuplexTumble");
        const auto session = sessionFor(text);
        QCOMPARE(PMSetDuplex(&session->printSettings(), kPMDuplexNone), kPMNoError);
        QCOMPARE(session->markedChoice(u"Duplex"_s), u"None"_s);
    }

    void aDuplexRequestThatCollidesIsRememberedAsARefusal()
    {
        m_session->change(u"Media"_s, u"Card"_s, Origin::Dialog);
        PMSetDuplex(&m_session->printSettings(), kPMDuplexTumble);
        QCOMPARE(m_session->markedChoice(u"Duplex"_s), u"None"_s);
        QCOMPARE(m_session->takeRefusals().size(), 1);
    }

    void aPrinterWithoutTwoSidedPrintingIgnoresDuplexRequests()
    {
        const auto session = sessionFor(PpdBuilder());
        const SessionSnapshot before = session->snapshot();
        QCOMPARE(PMSetDuplex(&session->printSettings(), kPMDuplexTumble), kPMNoError);
        QCOMPARE(session->snapshot(), before);
    }
};

QTEST_GUILESS_MAIN(SessionChangesTest)

#include "session_changes_test.moc"
