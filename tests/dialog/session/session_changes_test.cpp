#include <QSignalSpy>
#include <QTest>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;
using Outcome = ChangeResult::Outcome;

namespace {

struct PlaceInTheJob
{
    const char *name;
    QByteArray place;
    QByteArray filter;
    QByteArray line;
    Outcome outcome;
};

const PlaceInTheJob kPlacesInTheJob[] = {
    {"usual", "10 AnySetup", "-", "", Outcome::Accepted},
    {"first", "0 AnySetup", "-", "", Outcome::Accepted},
    {"below zero", "-1 AnySetup", "-", "", Outcome::NotMarked},
    {"a little below zero", "-0.5 PageSetup", "-", "", Outcome::NotMarked},
    {"job language without a beginning", "10 JCLSetup", "-", "", Outcome::NotMarked},
    {"job language", "10 JCLSetup", "-", "*JCLBegin: \"<1B>%-12345X@PJL JOB<0A>\"",
     Outcome::Accepted},
    {"a program of the driver's own", "-1 JCLSetup", "rastertofuser", "", Outcome::Accepted},
};

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

    // What CUPS' filters would leave out without a word.
    void aChoiceThatThePrinterWouldNeverHearOfIsRefused_data() { addRows(kPlacesInTheJob); }
    void aChoiceThatThePrinterWouldNeverHearOfIsRefused()
    {
        const auto &row = currentRow(kPlacesInTheJob);
        const auto session =
            sessionFor(PpdBuilder()
                           .line(QByteArray("*cupsFilter2: \"application/vnd.cups-postscript "
                                            "application/postscript 0 ") +
                                 row.filter + '"')
                           .line(row.line)
                           .line("*OpenUI *Fuser/Fuser: PickOne")
                           .line(QByteArray("*OrderDependency: ") + row.place + " *Fuser")
                           .line("*DefaultFuser: Cold")
                           .line("*Fuser Cold/Cold: \"0 fuser\"")
                           .line("*Fuser Hot/Hot: \"1 fuser\"")
                           .line("*Fuser Usual/Usual: \"\"")
                           .line("*Fuser Blank/Blank: \" \"")
                           .line("*Fuser Comment/Comment: \"%% nothing\"")
                           .line("*CloseUI: *Fuser"));
        QCOMPARE(session->change(u"Fuser"_s, u"Hot"_s, Origin::Dialog).outcome, row.outcome);
        QCOMPARE(session->changeTogether({{u"Fuser"_s, u"Hot"_s}}).isEmpty(),
                 row.outcome == Outcome::Accepted);
        if (row.outcome != Outcome::Accepted)
            QCOMPARE(conflictMessage({{u"Fuser"_s, u"Hot"_s}, {}}, *session),
                     notSentText(u"Fuser=Hot"_s));
        const QString kept = row.outcome == Outcome::Accepted ? u"Hot"_s : u"Cold"_s;
        QCOMPARE(session->markedChoice(u"Fuser"_s), kept);
        // Nothing has to be sent for these.
        QVERIFY(session->change(u"Fuser"_s, u"Cold"_s, Origin::Dialog).accepted());
        for (const QString &nothing : {u"Usual"_s, u"Blank"_s, u"Comment"_s})
            QVERIFY(session->change(u"Fuser"_s, nothing, Origin::Dialog).accepted());
        QVERIFY(session->change(u"Fuser"_s, u"Cold"_s, Origin::Dialog).accepted());
    }

    // libcups reads a line up to the zero byte.
    void aChoiceWhoseCodeIsCutOffIsRefused()
    {
        const auto session = sessionFor(PpdBuilder()
                                            .line("*OpenUI *Fuser/Fuser: PickOne")
                                            .line("*DefaultFuser: Cold")
                                            .line("*Fuser Cold/Cold: \"0 fuser\"")
                                            .line("*Fuser Hot/Hot: \"1 fuser\"")
                                            .line(QByteArray("*Fuser Warm/Warm: \"2 fu\0ser\"", 28))
                                            .line("*CloseUI: *Fuser"));
        QVERIFY(session->change(u"Fuser"_s, u"Hot"_s, Origin::Dialog).accepted());
        QCOMPARE(session->change(u"Fuser"_s, u"Warm"_s, Origin::Dialog).outcome,
                 Outcome::NotMarked);
        QCOMPARE(session->markedChoice(u"Fuser"_s), u"Hot"_s);
    }

    void customValuesMayBeSentFromAnotherPlaceThanChoices()
    {
        const auto printer = [](const QByteArray &place) {
            return sessionFor(PpdBuilder()
                                  .line("*OpenUI *Fuser/Fuser: PickOne")
                                  .line("*OrderDependency: -1 AnySetup *Fuser")
                                  .line("*DefaultFuser: Cold")
                                  .line("*Fuser Cold/Cold: \"0 fuser\"")
                                  .line("*CloseUI: *Fuser")
                                  .customInteger("Fuser", "Heat", "Heat", 1, 9)
                                  .line(place));
        };
        const auto inVain = printer("*NonUIOrderDependency: 10 AnySetup *CustomPageSize True");
        QCOMPARE(inVain->change(u"Fuser"_s, u"Custom.5"_s, Origin::Dialog).outcome,
                 Outcome::NotMarked);
        const auto sent = printer("*NonUIOrderDependency: 10 AnySetup *CustomFuser True");
        QVERIFY(sent->change(u"Fuser"_s, u"Custom.5"_s, Origin::Dialog).accepted());
    }

    // To mark the one takes the mark of the other away in libcups.
    void aTrayAndFeedingByHandComeBackWithEachOther()
    {
        const auto session = sessionFor(
            PpdBuilder()
                .option("InputSlot", "Tray", "Upper", {{"Upper", "Upper"}, {"Lower", "Lower"}})
                .option("ManualFeed", "By Hand", "False", {{"True", "Yes"}, {"False", "No"}}));
        const auto choose = [&](const QString &keyword, const QString &choice) {
            QVERIFY(session->change(keyword, choice, Origin::Dialog).accepted());
        };
        const auto stand = [&](const QString &tray, const QString &handFeed) {
            return session->markedChoice(u"InputSlot"_s) == tray &&
                   session->markedChoice(u"ManualFeed"_s) == handFeed &&
                   recorded(*session, u"ManualFeed"_s) == handFeed;
        };
        choose(u"InputSlot"_s, u"Lower"_s);
        choose(u"ManualFeed"_s, u"True"_s);
        QVERIFY(stand({}, u"True"_s));
        choose(u"ManualFeed"_s, u"False"_s);
        QVERIFY(stand(u"Lower"_s, u"False"_s));
        choose(u"ManualFeed"_s, u"True"_s);
        choose(u"InputSlot"_s, u"Upper"_s);
        QVERIFY(stand(u"Upper"_s, u"False"_s));
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
