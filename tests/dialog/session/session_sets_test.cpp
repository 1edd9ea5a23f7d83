#include <QSignalSpy>
#include <QTest>

#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

namespace {

// Every pair that excludes each other in a PPD's own list.
QList<std::pair<OptionChoice, OptionChoice>> constrainedPairs(const ppd_file_t *ppd)
{
    QList<std::pair<OptionChoice, OptionChoice>> pairs;
    for (int i = 0; i < ppd->num_consts; ++i) {
        const ppd_const_t &rule = ppd->consts[i];
        pairs += {{ppdKeyword(rule.option1), ppdKeyword(rule.choice1)},
                  {ppdKeyword(rule.option2), ppdKeyword(rule.choice2)}};
    }
    return pairs;
}

} // namespace

/// Several changes as one, going back, and the way out of a conflict.
class SessionSetsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;

private Q_SLOTS:
    void init() { m_session = sessionFor(smallPrinter()); }
    void cleanup() { m_session.reset(); }

    void onlyTheFinalSetMustBeFreeOfConflicts()
    {
        m_session->change(u"Duplex"_s, u"DuplexTumble"_s, Origin::Dialog);
        // Card alone is refused on both sides; together with one-sided it is not, in either order.
        QVERIFY(!m_session->change(u"Media"_s, u"Card"_s, Origin::Dialog).accepted());
        QVERIFY(m_session->changeTogether({{u"Media"_s, u"Card"_s}, {u"Duplex"_s, u"None"_s}})
                    .isEmpty());
        QCOMPARE(m_session->markedChoice(u"Media"_s), u"Card"_s);
        QCOMPARE(m_session->markedChoice(u"Duplex"_s), u"None"_s);
    }

    void aSetIsRecordedAndEachOfItsChangesAnnounced()
    {
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        QVERIFY(m_session
                    ->changeTogether({{u"Tray"_s, u"Lower"_s},
                                      {u"Boost"_s, u"OFF"_s}, // as it is already
                                      {u"Media"_s, u"Card"_s}})
                    .isEmpty());
        QCOMPARE(m_session->printSettings().value(u"Tray"_s).toString(), u"Lower"_s);
        QCOMPARE(m_session->printSettings().value(u"Media"_s).toString(), u"Card"_s);
        QStringList announced;
        for (const QList<QVariant> &signal : changed) {
            announced += signal.at(0).toString() + u'=' + signal.at(1).toString();
            QCOMPARE(signal.at(2).value<Origin>(), Origin::Dialog);
        }
        QCOMPARE(announced, QStringList({u"Tray=Lower"_s, u"Media=Card"_s}));
    }

    void theFirstAnnouncementFindsTheWholeSet()
    {
        QStringList found;
        connect(m_session.get(), &PpdSession::changed, this, [&] {
            found += m_session->markedChoice(u"Tray"_s) + m_session->markedChoice(u"Boost"_s) +
                     m_session->pageFormat().paper.name;
        });
        m_session->changeTogether(
            {{u"Boost"_s, u"ON"_s}, {u"Tray"_s, u"Upper"_s}, {u"PageSize"_s, u"Postcard"_s}});
        QCOMPARE(found, QStringList({u"UpperONPostcard"_s, u"UpperONPostcard"_s}));
    }

    void thePaperComesFirst()
    {
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        m_session->changeTogether({{u"Boost"_s, u"ON"_s}, {u"PageSize"_s, u"Postcard"_s}});
        QCOMPARE(changed.at(0).at(0).toString(), u"PageSize"_s);
        QCOMPARE(changed.at(1).at(0).toString(), u"Boost"_s);
    }

    void aSetWithAConflictChangesNothing()
    {
        m_session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        const SessionSnapshot before = m_session->snapshot();
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        const QSignalSpy paper(m_session.get(), &PpdSession::paperChanged);
        const QList<Refusal> refusals = m_session->changeTogether(
            {{u"Boost"_s, u"OFF"_s}, {u"Tray"_s, u"Lower"_s}, {u"PageSize"_s, u"Postcard"_s}});
        QCOMPARE(m_session->snapshot(), before);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(paper.size(), 0);
        // Both sides of the conflict were asked for, so both are told.
        QCOMPARE(refusals.size(), 2);
        QCOMPARE(refusals.at(0).proposed, (OptionChoice{u"PageSize"_s, u"Postcard"_s}));
        QCOMPARE(refusals.at(0).conflicting, (QList<OptionChoice>{{u"Tray"_s, u"Lower"_s}}));
        QCOMPARE(refusals.at(1).proposed, (OptionChoice{u"Tray"_s, u"Lower"_s}));
    }

    void aSetThatCollidesWithAnEarlierMarkNamesThatMark()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        const QList<Refusal> refusals = m_session->changeTogether({{u"Media"_s, u"Film"_s}});
        QCOMPARE(refusals.size(), 1);
        QCOMPARE(refusals.at(0).conflicting, (QList<OptionChoice>{{u"Tray"_s, u"Lower"_s}}));
    }

    // Of three that exclude each other already none is to blame for what was there before.
    void whatWasInTheWayBeforeIsNoReason()
    {
        const auto session = sessionFor(smallPrinter()
                                            .constraint("Media", "Plain", "Tray", "Upper")
                                            .constraint("Media", "Plain", "Boost", "OFF")
                                            .constraint("Tray", "Upper", "Boost", "OFF"));
        QVERIFY(ppdConflicts(session->ppd()) > 0);
        QCOMPARE(session->changeTogether({{u"Media"_s, u"Plain"_s}}), QList<Refusal>());
    }

    // It is what keeps the set from being taken, whatever else may be in the way.
    void aLockInTheWayIsAllThatIsSaid()
    {
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->setLocks(
            {{u"Boost"_s, {.kind = OptionLock::Kind::Choice, .choice = u"OFF"_s, .by = u"1"_s}}});
        const QList<Refusal> refusals =
            m_session->changeTogether({{u"Boost"_s, u"ON"_s}, {u"Media"_s, u"Film"_s}});
        QCOMPARE(refusals.size(), 1);
        QCOMPARE(refusals.constFirst().locked.keyword, u"Boost"_s);
    }

    // The paper is meant, whichever of its two options a PPD names.
    void aConstraintOfThePageRegionAloneCounts()
    {
        const auto session = sessionFor(
            smallPrinter()
                .line("*OpenUI *PageRegion/Page Region: PickOne\n*DefaultPageRegion: A4\n"
                      "*PageRegion A4/A4: \"\"\n*PageRegion Postcard/Postcard: \"\"\n"
                      "*CloseUI: *PageRegion")
                .constraint("PageRegion", "Postcard", "Boost", "ON"));
        QVERIFY(session->change(u"Boost"_s, u"ON"_s, Origin::Dialog).accepted());
        QVERIFY(!session->changeTogether({{u"PageSize"_s, u"Postcard"_s}}).isEmpty());
        QVERIFY(session->changeTogether({{u"PageSize"_s, u"Postcard"_s}, {u"Boost"_s, u"OFF"_s}})
                    .isEmpty());
    }

    // Without any one of them the other two collide still.
    void threeThatExcludeEachOtherAreRefused()
    {
        const auto session = sessionFor(smallPrinter()
                                            .constraint("Media", "Film", "Boost", "ON")
                                            .constraint("Tray", "Lower", "Boost", "ON"));
        const QList<Refusal> refusals = session->changeTogether(
            {{u"Media"_s, u"Film"_s}, {u"Tray"_s, u"Lower"_s}, {u"Boost"_s, u"ON"_s}});
        QCOMPARE(refusals.size(), 3);
        QCOMPARE(refusals.at(0).conflicting.size(), 2);
        QCOMPARE(ppdConflicts(session->ppd()), 0);
    }

    void anEmptySetChangesNothing()
    {
        const SessionSnapshot before = m_session->snapshot();
        QVERIFY(m_session->changeTogether({}).isEmpty());
        QCOMPARE(m_session->snapshot(), before);
    }

    // Going back

    void restoringGivesBackMarksEntriesAndPaper()
    {
        const SessionSnapshot before = m_session->snapshot();
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        QVERIFY(m_session->snapshot() != before);
        m_session->restore(before);
        m_session->change(u"PageSize"_s, u"Postcard"_s, Origin::Dialog);
        m_session->printSettings().setValue(u"com.example.own"_s, 7);
        QVERIFY(m_session->snapshot() != before);
        m_session->restore(before);
        QCOMPARE(m_session->snapshot(), before);
        QVERIFY(ppdIsMarked(m_session->ppd(), "Tray", "Upper"));
        QVERIFY(ppdIsMarked(m_session->ppd(), "PageSize", "A4"));
        QVERIFY(!m_session->printSettings().contains(u"com.example.own"_s));
        QCOMPARE(m_session->pageFormat().paper.name, u"A4"_s);
    }

    void restoringGivesBackCustomValues()
    {
        const auto session = sampleSession();
        session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        const SessionSnapshot small = session->snapshot();
        session->change(u"PageSize"_s, u"Custom.400x500"_s, Origin::Dialog);
        const SessionSnapshot large = session->snapshot();
        QVERIFY(small != large); // the mark is "Custom" in both
        session->restore(small);
        QCOMPARE(session->snapshot(), small);
        QCOMPARE(session->customValue(u"PageSize"_s), u"Custom.300x400"_s);
        session->change(u"PageSize"_s, u"A4"_s, Origin::Dialog);
        QVERIFY(session->customValue(u"PageSize"_s).isNull());
        session->restore(large);
        QCOMPARE(session->snapshot(), large);
    }

    void restoringUnmarksWhatHadNoMark()
    {
        const auto session = sessionFor(
            PpdBuilder().option("Fold", "Fold", "Unknown", {{"Once", "Once"}, {"Twice", "Twice"}}));
        const SessionSnapshot before = session->snapshot();
        QVERIFY(session->change(u"Fold"_s, u"Twice"_s, Origin::Dialog).accepted());
        session->restore(before);
        QVERIFY(session->markedChoice(u"Fold"_s).isNull());
        QVERIFY(!ppdIsMarked(session->ppd(), "Fold", "Twice"));
        QCOMPARE(session->snapshot(), before);
        // The option can be marked again.
        QVERIFY(session->change(u"Fold"_s, u"Once"_s, Origin::Dialog).accepted());
        QCOMPARE(session->markedChoice(u"Fold"_s), u"Once"_s);
    }

    void everyPartOfASnapshotCounts_data()
    {
        QTest::addColumn<int>("part");
        QTest::newRow("marks") << 0;
        QTest::newRow("custom values") << 1;
        QTest::newRow("entries") << 2;
        QTest::newRow("page format") << 3;
    }
    void everyPartOfASnapshotCounts()
    {
        QFETCH(int, part);
        const SessionSnapshot one = m_session->snapshot();
        SessionSnapshot other = one;
        QCOMPARE(other, one);
        switch (part) {
        case 0:
            other.marks.insert(u"Tray"_s, u"Lower"_s);
            break;
        case 1:
            other.customValues.insert(u"PageSize"_s, u"Custom.1x1"_s);
            break;
        case 2:
            other.entries.insert(u"Tray"_s, u"Lower"_s);
            break;
        default:
            other.pageFormat.paper.width += 1;
        }
        QVERIFY(other != one);
    }

    void refusalsOfAnAbandonedStateAreForgotten()
    {
        const SessionSnapshot before = m_session->snapshot();
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Media"_s, u"Film"_s, Origin::Panel);
        m_session->restore(before);
        QVERIFY(m_session->takeRefusals().isEmpty());
    }

    // The way out

    void theWayOutChangesWhatStandsInTheWay()
    {
        m_session->change(u"Duplex"_s, u"DuplexTumble"_s, Origin::Dialog);
        const SessionSnapshot before = m_session->snapshot();
        QCOMPARE(m_session->wayOut({u"Media"_s, u"Card"_s}),
                 (QList<OptionChoice>{{u"Duplex"_s, u"None"_s}}));
        QCOMPARE(m_session->snapshot(), before); // it only proposes
    }

    void whatCollidesWithNothingNeedsNoWayOut()
    {
        QVERIFY(m_session->wayOut({u"Media"_s, u"Card"_s}).isEmpty());
    }

    void theWayOutLeavesNoConflictWhenFollowed_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QString>("otherKeyword");
        QTest::addColumn<QString>("otherChoice");
        const auto session = sampleSession();
        for (const auto &[first, second] : constrainedPairs(session->ppd())) {
            QTest::newRow(qUtf8Printable(u"%1=%2 while %3=%4"_s.arg(first.keyword, first.choice,
                                                                    second.keyword, second.choice)))
                << first.keyword << first.choice << second.keyword << second.choice;
        }
    }
    void theWayOutLeavesNoConflictWhenFollowed()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(QString, otherKeyword);
        QFETCH(QString, otherChoice);
        const auto session = sampleSession();
        QVERIFY(session->change(otherKeyword, otherChoice, Origin::Dialog).accepted());
        QVERIFY(!session->change(keyword, choice, Origin::Dialog).accepted());
        QList<OptionChoice> way = session->wayOut({keyword, choice});
        QVERIFY(!way.isEmpty());
        way += OptionChoice{keyword, choice};
        QVERIFY(session->changeTogether(way).isEmpty());
        QCOMPARE(session->markedChoice(keyword), choice);
        QVERIFY(session->markedChoice(otherKeyword) != otherChoice);
        QCOMPARE(ppdConflicts(session->ppd()), 0);
    }
};

QTEST_GUILESS_MAIN(SessionSetsTest)

#include "session_sets_test.moc"
