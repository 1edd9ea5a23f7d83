#include <QTest>

#include "dialog/task/LeftSession.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

PpdBuilder former()
{
    return officePrinter();
}

// The same printer after its administrator has been at it.
PpdBuilder withoutFinishing()
{
    return PpdBuilder()
        .option("Duplex", "Two-Sided", "DuplexNoTumble",
                {{"None", "Off"}, {"DuplexNoTumble", "Long Edge"}})
        .option("Tray", "Paper Source", "Upper", {{"Auto", "Automatic"}, {"Upper", "Upper Tray"}})
        .option("Media", "Paper Type", "Plain",
                {{"Plain", "Plain Paper"}, {"Film", "Transparency"}})
        .option("Sleep", "Sleep Time", "Printer", {{"Printer", "Printer's Setting"}})
        .customInteger("Sleep", "Time", "Minutes", 1, 9);
}

// The user's choices exclude each other by now.
PpdBuilder withMoreConstraints()
{
    return officePrinter().constraint("Media", "Card", "Tray", "Lower");
}

struct LeavingCase
{
    const char *name;
    PpdBuilder (*now)();
    QList<OptionChoice> set;    // by the user
    QList<OptionChoice> marked; // afterwards
    QStringList problems;
};

const QList<LeavingCase> kCases{
    {"nothing was set", withoutFinishing, {}, {{u"Duplex"_s, u"DuplexNoTumble"_s}}, {}},
    {"a choice that is still there",
     withoutFinishing,
     {{u"Media"_s, u"Film"_s}},
     {{u"Media"_s, u"Film"_s}},
     {}},
    // What is the printer's default by now is not what the user has chosen.
    {"a default that is another one now",
     withoutFinishing,
     {{u"Media"_s, u"Film"_s}},
     {{u"Tray"_s, u"Upper"_s}, {u"Duplex"_s, u"DuplexNoTumble"_s}},
     {}},
    {"an option that is gone",
     withoutFinishing,
     {{u"Punch"_s, u"ON"_s}, {u"Media"_s, u"Film"_s}},
     {{u"Media"_s, u"Film"_s}},
     {u"This printer has no option of the name Punch any more."_s}},
    {"a choice that is gone",
     withoutFinishing,
     {{u"Tray"_s, u"Lower"_s}},
     {{u"Tray"_s, u"Upper"_s}},
     {u"The option Tray has no choice Lower any more."_s}},
    {"a custom value",
     withoutFinishing,
     {{u"Sleep"_s, u"Custom.7"_s}},
     {{u"Sleep"_s, u"Custom"_s}},
     {}},
    {"a custom value out of range by now",
     withoutFinishing,
     {{u"Sleep"_s, u"Custom.12"_s}},
     {{u"Sleep"_s, u"Printer"_s}},
     {u"The option Sleep has no choice Custom.12 any more."_s}},
    {"choices that exclude each other by now",
     withMoreConstraints,
     {{u"Media"_s, u"Card"_s}, {u"Punch"_s, u"ON"_s}, {u"Tray"_s, u"Lower"_s}},
     {{u"Punch"_s, u"ON"_s}, {u"Media"_s, u"Card"_s}, {u"Tray"_s, u"Auto"_s}},
     {u"Tray=Lower: this cannot be combined with Media=Card."_s}},
    {"the same options", former, {{u"Tray"_s, u"Lower"_s}}, {{u"Tray"_s, u"Lower"_s}}, {}},
};

} // namespace

/// A printer that was left for another one, or whose options were changed at its server.
class LeftSessionTest : public QObject
{
    Q_OBJECT

private:
    static void set(PpdSession &session, const QList<OptionChoice> &choices)
    {
        for (const OptionChoice &choice : choices)
            QVERIFY(session.change(choice.keyword, choice.choice, PpdSession::Origin::Dialog)
                        .accepted());
    }

private Q_SLOTS:
    void whatIsStillThereIsSetAgain_data() { addRows(kCases); }
    void whatIsStillThereIsSetAgain()
    {
        const LeavingCase &row = currentRow(kCases);
        const auto session = sessionFor(former());
        LeftSession left{session->snapshot(), {}, "former", {}};
        set(*session, row.set);
        left.left = session->snapshot();
        const auto now = sessionFor(row.now());
        QCOMPARE(restoreLeft(left, "now", *now), row.problems);
        for (const OptionChoice &choice : row.marked)
            QCOMPARE(choice.keyword + u'=' + now->markedChoice(choice.keyword),
                     choice.keyword + u'=' + choice.choice);
        for (const OptionChoice &choice : row.set) {
            if (row.problems.isEmpty() && choice.choice.startsWith(u"Custom."_s))
                QCOMPARE(now->customValue(choice.keyword), choice.choice);
        }
    }

    // What is not in force belongs to it, and no job would carry it.
    void withTheSameOptionsEverythingIsAsItWas()
    {
        const auto session = sessionFor(former());
        LeftSession left{session->snapshot(), {}, "former", {}};
        set(*session, {{u"Tray"_s, u"Lower"_s}, {u"Sleep"_s, u"Custom.12"_s}});
        session->printSettings().setValue(u"hidden"_s, 5);
        left.left = session->snapshot();
        const auto now = sessionFor(former());
        QCOMPARE(restoreLeft(left, "former", *now), QStringList());
        QCOMPARE(now->snapshot(), left.left);
    }

    void withOtherOptionsOnlyEntriesThatChangedAreTaken()
    {
        const auto session = sessionFor(former());
        session->printSettings().setValue(u"changed"_s, 1);
        session->printSettings().setValue(u"unchanged"_s, 1);
        LeftSession left{session->snapshot(), {}, "former", {}};
        session->printSettings().setValue(u"changed"_s, 2);
        set(*session, {{u"Punch"_s, u"ON"_s}});
        left.left = session->snapshot();
        const auto now = sessionFor(withoutFinishing());
        QCOMPARE(restoreLeft(left, "now", *now).size(), 1);
        QCOMPARE(now->printSettings().entries().value(u"changed"_s), QVariant(2));
        QVERIFY(!now->printSettings().contains(u"unchanged"_s));
        // Marks are recorded as entries; those of options that are gone stay away.
        QVERIFY(!now->printSettings().contains(u"Punch"_s));
    }
};

QTEST_MAIN(LeftSessionTest)

#include "left_session_test.moc"
