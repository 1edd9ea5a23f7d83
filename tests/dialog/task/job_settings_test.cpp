#include <QTest>

#include "dialog/task/JobSettings.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using By = JobSettings::By;

namespace {

struct Wish
{
    int copies;
    By by;
};

struct CopiesCase
{
    const char *name;
    QList<Wish> wishes;
    int mostCopies; // 0: as many as anybody can ask for
    int copies;
    bool tooMany;
};

const QList<CopiesCase> kCopies{
    {"nobody asks", {}, 0, 1, false},
    {"the program", {{2, By::Program}}, 0, 2, false},
    {"an option before the user's queues", {{3, By::Options}, {2, By::UserQueues}}, 0, 3, false},
    {"an option after the user's queues", {{2, By::UserQueues}, {3, By::Options}}, 0, 3, false},
    {"-n before an option", {{4, By::CommandLine}, {3, By::Options}}, 0, 4, false},
    {"the user after -n", {{4, By::CommandLine}, {1, By::User}}, 0, 1, false},
    {"nobody after the user", {{5, By::User}, {4, By::CommandLine}}, 0, 5, false},
    {"the user thinks again", {{5, By::User}, {6, By::User}}, 0, 6, false},
    {"as many as the printer makes", {{5, By::Options}}, 5, 5, false},
    {"more than the printer makes", {{6, By::Options}}, 5, 5, true},
    {"what the field shows is no wish", {{6, By::Options}, {5, By::User}}, 5, 5, true},
    {"less than what the field shows", {{6, By::Options}, {4, By::User}}, 5, 4, false},
};

struct LeavingCase
{
    const char *name;
    QList<JobOption> attributes;
    QList<QString> typed; // pages, one after the other
    Wish copies;
    QList<JobOption> attributesAfter; // of a printer that adds the pages 7-9
    int copiesAfter;
};

const QList<LeavingCase> kLeaving{
    {"nothing", {}, {}, {1, By::Program}, {{u"page-ranges"_s, u"7-9"_s}}, 1},
    {"pages of an option",
     {{u"page-ranges"_s, u"1-2"_s}},
     {},
     {1, By::Program},
     {{u"page-ranges"_s, u"1-2"_s}},
     1},
    {"pages that were typed", {}, {u"1, 3"_s}, {1, By::Program}, {{u"page-ranges"_s, u"1,3"_s}}, 1},
    {"pages that were cleared",
     {{u"page-ranges"_s, u"1-2"_s}},
     {QString()},
     {1, By::Program},
     {},
     1},
    {"other attributes",
     {{u"number-up"_s, u"2"_s}},
     {},
     {1, By::Program},
     {{u"page-ranges"_s, u"7-9"_s}},
     1},
    {"copies of the user's queues", {}, {}, {3, By::UserQueues}, {{u"page-ranges"_s, u"7-9"_s}}, 1},
    {"copies of an option", {}, {}, {3, By::Options}, {{u"page-ranges"_s, u"7-9"_s}}, 3},
    {"copies of the user's", {}, {}, {3, By::User}, {{u"page-ranges"_s, u"7-9"_s}}, 3},
};

struct ChoosingCase
{
    const char *name;
    QList<JobOption> others; // by options and defaults
    QList<JobOption> chosen; // by the user, one after the other
    QList<JobOption> attributes;
};

const QList<ChoosingCase> kChoosing{
    {"nothing", {{u"number-up"_s, u"2"_s}}, {}, {{u"number-up"_s, u"2"_s}}},
    {"where nobody asked", {}, {{u"number-up"_s, u"4"_s}}, {{u"number-up"_s, u"4"_s}}},
    {"what is done anyway", {}, {{u"number-up"_s, u"1"_s}}, {}},
    {"there and back", {}, {{u"number-up"_s, u"4"_s}, {u"number-up"_s, u"1"_s}}, {}},
    {"the usual value over another one",
     {{u"number-up"_s, u"2"_s}},
     {{u"number-up"_s, u"1"_s}},
     {{u"number-up"_s, u"1"_s}}},
    {"in the place of what was asked for",
     {{u"number-up"_s, u"2"_s}, {u"mirror"_s, u"true"_s}},
     {{u"number-up"_s, u"4"_s}},
     {{u"number-up"_s, u"4"_s}, {u"mirror"_s, u"true"_s}}},
    {"none",
     {{u"orientation-requested"_s, u"4"_s}, {u"mirror"_s, u"true"_s}},
     {{u"orientation-requested"_s, QString()}},
     {{u"mirror"_s, u"true"_s}}},
    {"none, and again what was asked for",
     {{u"ppi"_s, u"300"_s}},
     {{u"ppi"_s, QString()}, {u"ppi"_s, u"300"_s}},
     {{u"ppi"_s, u"300"_s}}},
    {"pages", {}, {{u"page-ranges"_s, u"2-3"_s}}, {{u"page-ranges"_s, u"2-3"_s}}},
};

struct PagesCase
{
    const char *name;
    QString typed;
    QString pages;
    bool valid;
};

const QList<PagesCase> kPages{
    {"all", {}, {}, true},
    {"blanks only", u"  "_s, {}, true},
    {"one", u"4"_s, u"4"_s, true},
    {"blanks between", u"1 - 4, 7"_s, u"1-4,7"_s, true},
    {"to the end", u"9-"_s, u"9-"_s, true},
    {"backwards", u"5-1"_s, u"5-1"_s, false},
    {"not ascending", u"7,1"_s, u"7,1"_s, false},
    {"no number", u"x"_s, u"x"_s, false},
    {"page nought", u"0"_s, u"0"_s, false},
};

} // namespace

class JobSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whoCountsMoreIsHeard_data() { addRows(kCopies); }
    void whoCountsMoreIsHeard()
    {
        const CopiesCase &row = currentRow(kCopies);
        JobSettings settings;
        settings.setMostCopies(row.mostCopies);
        for (const Wish &wish : row.wishes)
            settings.askForCopies(wish.copies, wish.by);
        QCOMPARE(settings.copies(), row.copies);
        QCOMPARE(settings.asksForTooMany(), row.tooMany);
    }

    void aPrinterThatIsLeftKeepsItsOwn_data() { addRows(kLeaving); }
    void aPrinterThatIsLeftKeepsItsOwn()
    {
        const LeavingCase &row = currentRow(kLeaving);
        JobSettings settings;
        settings.setMostCopies(2);
        settings.addAttributes(row.attributes);
        for (const QString &pages : row.typed)
            settings.setPageRanges(pages);
        settings.askForCopies(row.copies.copies, row.copies.by);
        settings.leavePrinter();
        settings.addAttributes({{u"page-ranges"_s, u"7-9"_s}});
        QCOMPARE(settings.attributes(), row.attributesAfter);
        QCOMPARE(settings.copies(), row.copiesAfter);
        QCOMPARE(settings.mostCopies(), 0);
    }

    void pagesAreTakenAsTheyAreTyped_data() { addRows(kPages); }
    void pagesAreTakenAsTheyAreTyped()
    {
        const PagesCase &row = currentRow(kPages);
        JobSettings settings;
        settings.setPageRanges(row.typed);
        QCOMPARE(settings.pageRanges(), row.pages);
        QCOMPARE(settings.hasValidPageRanges(), row.valid);
    }

    void theUsersOwnChoiceCountsMost_data() { addRows(kChoosing); }
    void theUsersOwnChoiceCountsMost()
    {
        const ChoosingCase &row = currentRow(kChoosing);
        JobSettings settings;
        settings.addAttributes(row.others);
        for (const JobOption &choice : row.chosen)
            settings.setAttribute(choice.name, choice.value);
        QCOMPARE(settings.attributes(), row.attributes);
        for (const JobOption &option : row.attributes)
            QCOMPARE(settings.attribute(option.name), option.value);
        QVERIFY(settings.attribute(u"job-billing"_s).isNull());
    }

    // A default that comes late, of a queue whose server has just answered, is no wish.
    void aDefaultThatComesLaterDoesNotCountMore()
    {
        JobSettings settings;
        settings.setAttribute(u"number-up"_s, u"4"_s);
        settings.addAttributes({{u"number-up"_s, u"2"_s}});
        QCOMPARE(settings.attribute(u"number-up"_s), u"4"_s);
    }

    void whatWasChosenStaysWithItsPrinter()
    {
        JobSettings settings;
        settings.addAttributes({{u"number-up"_s, u"2"_s}});
        settings.setAttribute(u"number-up"_s, u"1"_s);
        const QList<JobOption> chosen = settings.chosenAttributes();
        settings.leavePrinter();
        QVERIFY(settings.attributes().isEmpty());
        settings.addAttributes({{u"number-up"_s, u"2"_s}});
        settings.restoreChosenAttributes(chosen);
        QCOMPARE(settings.attribute(u"number-up"_s), u"1"_s);
    }

    void anAttributeTakesThePlaceOfItsNamesake()
    {
        JobSettings settings;
        settings.addAttributes({{u"number-up"_s, u"2"_s}, {u"fit-to-page"_s, u"true"_s}});
        settings.addAttributes({{u"number-up"_s, u"4"_s}});
        QCOMPARE(settings.attributes(),
                 (QList<JobOption>{{u"fit-to-page"_s, u"true"_s}, {u"number-up"_s, u"4"_s}}));
    }
};

QTEST_GUILESS_MAIN(JobSettingsTest)

#include "job_settings_test.moc"
