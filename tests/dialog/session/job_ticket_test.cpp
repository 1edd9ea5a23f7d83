#include <QTest>

#include "dialog/session/JobTicket.h"
#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

namespace {

struct QuotedSecret
{
    const char *name;
    const char *secret;
    const char *quoted;
    const char *left;
};
constexpr QuotedSecret kQuotedSecrets[] = {
    {"as it is", "a 1", "a 1", "••••••"},
    {"in single quotes", "a 1", "'a 1'", "'••••••'"},
    {"in double quotes", "a 1", "\"a 1\"", "\"••••••\""},
    {"a blank behind a backslash", "a 1", "a\\ 1", "••••••"},
    {"quoted twice", "a 1", "a\\\\\\ 1", "••••••"},
    {"every character behind a backslash", "a 1", "\\a\\ \\1", "••••••"},
    {"a tab behind a backslash", "a\t1", "a\\\t1", "••••••"},
    {"a single quote in single quotes", "a'1", "'a'\\''1'", "'••••••'"},
    {"a single quote in double quotes in single ones", "a'1", "'a'\"'\"'1'", "'••••••'"},
    {"a single quote behind a backslash", "a'1", "a\\'1", "••••••"},
    {"a double quote behind a backslash", "a\"1", "\"a\\\"1\"", "\"••••••\""},
    {"a backslash behind another", "a\\1", "a\\\\1", "••••••"},
    {"a backslash, quoted twice", "a\\1", "a\\\\\\\\1", "••••••"},
    {"signs with a meaning in patterns", "a.1+(", "a.1+(", "••••••"},
    {"and nothing but it", "a.1", "ab1", "ab1"},
    {"beyond the basic plane", "a😀1", "a😀1", "••••••"},
};

} // namespace

class JobTicketTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMarkIsAnOptionInThePpdsOrder()
    {
        const auto session = sessionFor(smallPrinter());
        session->change(u"Media"_s, u"Card"_s, Origin::Dialog);
        QCOMPARE(jobOptions(*session, nullptr, {}),
                 (QList<JobOption>{{u"PageSize"_s, u"A4"_s},
                                   {u"Duplex"_s, u"None"_s},
                                   {u"Tray"_s, u"Upper"_s},
                                   {u"Media"_s, u"Card"_s},
                                   {u"Boost"_s, u"OFF"_s},
                                   {u"QXOutput"_s, u"Printer"_s},
                                   {u"AP_ColorMatchingMode"_s, u"AP_VendorColorMatching"_s}}));
    }

    void severalCopiesAreCollatedUnlessSomebodyWantsThemOtherwise_data()
    {
        QTest::addColumn<bool>("hasOption");
        QTest::addColumn<int>("copies");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("job");
        const auto row = [](const char *name, bool hasOption, int copies, const QString &asked,
                            const QString &job) {
            QTest::newRow(name) << hasOption << copies << asked << job;
        };
        const QString on =
            u"collate=true multiple-document-handling=separate-documents-collated-copies"_s;
        const QString off =
            u"collate=false multiple-document-handling=separate-documents-uncollated-copies"_s;
        row("one copy says nothing", false, 1, {}, {});
        row("one copy, asked for", false, 1, u"false"_s, off);
        row("several", false, 3, {}, on);
        row("several, asked for", false, 3, u"true"_s, on);
        row("several, not collated", false, 3, u"false"_s, off);
        row("the printer's own option says it", true, 3, {}, {});
    }
    void severalCopiesAreCollatedUnlessSomebodyWantsThemOtherwise()
    {
        QFETCH(bool, hasOption);
        QFETCH(int, copies);
        QFETCH(QString, asked);
        PpdBuilder ppd;
        if (hasOption)
            ppd.option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}});
        const auto session = sessionFor(ppd);
        QList<JobOption> attributes;
        if (!asked.isEmpty())
            attributes += JobOption{u"collate"_s, asked};
        QStringList job;
        for (const JobOption &option : withCollation(attributes, copies, *session))
            job += option.name + u'=' + option.value;
        QTEST(job.join(u' '), "job");
        QCOMPARE(isCollated(*session, attributes), asked != u"false"_s);
    }

    // To the chain it is a printer without an option, whose filters collate.
    void whereThePrinterCannotCollateTheFiltersAreTold()
    {
        PpdBuilder ppd =
            PpdBuilder()
                .option("Disk", "Disk", "None", {{"None", "None"}, {"Hard", "Hard"}})
                .option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}});
        ppd.constraint("Collate", "True", "Disk", "None");
        const auto session = sessionFor(ppd);
        QList<JobOption> job = jobOptions(*session, nullptr, withCollation({}, 2, *session));
        job.removeIf([](const JobOption &option) { return option.name == "PageSize"_L1; });
        QCOMPARE(job, (QList<JobOption>{{u"Disk"_s, u"None"_s},
                                        {u"collate"_s, u"true"_s},
                                        {u"multiple-document-handling"_s,
                                         u"separate-documents-collated-copies"_s}}));
    }

    void otherChoicesThanTrueAreAlsoTold()
    {
        const auto session = sessionFor(PpdBuilder().option(
            "Collate", "Collate", "Off", {{"Off", "Off"}, {"On", "On"}, {"True", "Staggered"}}));
        QVERIFY(!isCollated(*session, {}));
        session->change(u"Collate"_s, u"On"_s, Origin::Dialog);
        QVERIFY(isCollated(*session, {}));
    }

    void anOptionWithoutAMarkIsLeftToThePrinter()
    {
        const auto session = sessionFor(
            PpdBuilder().option("Fold", "Fold", "Unknown", {{"Once", "Once"}, {"Twice", "Twice"}}));
        QCOMPARE(jobOptions(*session, nullptr, {}), (QList<JobOption>{{u"PageSize"_s, u"A4"_s}}));
    }

    void aCustomValueTakesThePlaceOfItsMark()
    {
        const auto session = sampleSession();
        session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        const QList<JobOption> options = jobOptions(*session, nullptr, {});
        QVERIFY(options.contains({u"PageSize"_s, u"Custom.300x400"_s}));
        QVERIFY(!options.contains({u"PageSize"_s, u"Custom"_s}));
    }

    void customWithoutANumberIsLeftOutAndLogged()
    {
        const auto session = sampleSession();
        session->change(u"QXSleepTime"_s, u"Custom"_s, Origin::Dialog);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"\"QXSleepTime\" is custom"_s));
        for (const JobOption &option : jobOptions(*session, nullptr, {}))
            QVERIFY(option.name != u"QXSleepTime"_s);
    }

    void thePasswordsOfASessionAreItsSecrets()
    {
        const auto session = sessionFor(officePrinter());
        QVERIFY(secretsOf(*session).isEmpty());
        session->change(u"Pin"_s, u"Custom.4711"_s, Origin::Dialog);
        session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        QCOMPARE(secretsOf(*session), QStringList(u"4711"_s));
        QCOMPARE(withoutSecrets(u"-o Pin=Custom.4711 4711"_s, secretsOf(*session)),
                 u"-o Pin=Custom.•••••• ••••••"_s);
    }

    void aSecretIsHiddenHoweverItIsQuoted_data() { addRows(kQuotedSecrets); }
    void aSecretIsHiddenHoweverItIsQuoted()
    {
        const QuotedSecret &row = currentRow(kQuotedSecrets);
        const QString text = u"-o Pin="_s + QString::fromUtf8(row.quoted) + u" next"_s;
        QCOMPARE(withoutSecrets(text, {QString::fromUtf8(row.secret)}),
                 u"-o Pin="_s + QString::fromUtf8(row.left) + u" next"_s);
    }

    void aPanelsOwnValueTakesThePlaceOfTheMarkItStandsFor()
    {
        const auto session = sessionFor(
            PpdBuilder()
                .option("Strength", "Strength", "Medium", {{"Medium", "Medium"}, {"High", "High"}})
                .onOff("Boost", "Boost"));
        FakeJobValues values;
        JobOption strength{u"Strength"_s, u"4"_s};
        QCOMPARE(values.takeJobOption(strength, session->printSettings(), session->ppd()).outcome,
                 JobValueClaim::Outcome::Accepted);
        QCOMPARE(jobOptions(*session, &values, {}),
                 (QList<JobOption>{
                     {u"PageSize"_s, u"A4"_s}, {u"Boost"_s, u"OFF"_s}, {u"Strength"_s, u"4"_s}}));
    }

    void attributesComeLast()
    {
        const auto session = sessionFor(PpdBuilder());
        QCOMPARE(jobOptions(*session, nullptr, {{u"number-up"_s, u"2"_s}}),
                 (QList<JobOption>{{u"PageSize"_s, u"A4"_s}, {u"number-up"_s, u"2"_s}}));
    }

    void ticketsAreEqualWhenTheyPrintTheSame()
    {
        const JobTicket one{u"Report"_s, 2, {{u"Tray"_s, u"Lower"_s}}};
        JobTicket other = one;
        QCOMPARE(other, one);
        other.copies = 3;
        QVERIFY(!(other == one));
    }
};

QTEST_GUILESS_MAIN(JobTicketTest)

#include "job_ticket_test.moc"
