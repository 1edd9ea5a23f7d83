#include <QTest>

#include "dialog/job/DocumentCopies.h"
#include "dialog/job/PageChoice.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Set = PageChoice::Set;

namespace {

// What is picked of a document of five pages called "d".
struct Pick
{
    const char *name;
    const char *ranges;
    Set set;
    const char *picked;
};
constexpr Pick kPicks[] = {
    {"all", "", Set::All, "d 1-5"},
    {"a page", "3", Set::All, "d 3-3"},
    {"a range", "2-4", Set::All, "d 2-4"},
    {"some ranges", "1,3-4,5-", Set::All, "d 1-1 d 3-4 d 5-5"},
    {"up to a page", "-2", Set::All, "d 1-2"},
    {"from a page on", "4-", Set::All, "d 4-5"},
    {"beyond the end", "4-99", Set::All, "d 4-5"},
    {"behind the end", "6,8-9", Set::All, ""},
    {"odd pages", "", Set::Odd, "d 1-5:odd"},
    {"even pages", "", Set::Even, "d 2-5:odd"},
    {"odd pages of a range", "2-5", Set::Odd, "d 3-5:odd"},
    {"even pages of a range", "2-5", Set::Even, "d 2-5:odd"},
    {"an even page of odd ones", "3", Set::Even, ""},
    {"the last page, which is odd", "5-", Set::Even, ""},
};

struct Copies
{
    const char *name;
    int copies;
    int documents;
    JobOption option;
    bool arePutTogether;
    int repetitions;
    CopiesOrder order;
};
const Copies kCopies[] = {
    {"one copy", 1, 3, {}, false, 1, CopiesOrder::Plain},
    {"one document", 3, 1, {}, false, 1, CopiesOrder::Plain},
    {"sets", 3, 2, {}, false, 3, CopiesOrder::SetOfAll},
    {"as many as are sent", 50, 2, {}, false, 50, CopiesOrder::SetOfAll},
    {"too many to be sent", 51, 2, {}, false, 1, CopiesOrder::EachDocument},
    {"too many documents", 2, 300, {}, false, 1, CopiesOrder::EachDocument},
    {"not collated", 2, 2, {u"collate"_s, u"false"_s}, false, 1, CopiesOrder::EachDocument},
    {"not collated by the PPD",
     2,
     2,
     {u"Collate"_s, u"False"_s},
     false,
     1,
     CopiesOrder::EachDocument},
    {"not collated in other words of a PPD",
     2,
     2,
     {u"Collate"_s, u"Off"_s},
     false,
     1,
     CopiesOrder::EachDocument},
    {"not collated, and said as a no",
     2,
     2,
     {u"collate"_s, u"no"_s},
     true,
     1,
     CopiesOrder::EachPage},
    {"not collated in words of IPP",
     2,
     2,
     {u"multiple-document-handling"_s, u"separate-documents-uncollated-copies"_s},
     false,
     1,
     CopiesOrder::EachDocument},
    {"collated in words of IPP",
     2,
     2,
     {u"multiple-document-handling"_s, u"separate-documents-collated-copies"_s},
     false,
     2,
     CopiesOrder::SetOfAll},
    {"put together", 200, 2, {}, true, 1, CopiesOrder::SetOfAll},
    {"put together, not collated",
     2,
     2,
     {u"collate"_s, u"false"_s},
     true,
     1,
     CopiesOrder::EachPage},
};

using Booklet = PageChoice::Booklet;

struct OrderedPages
{
    const char *name;
    PageChoice choice;
    int pages;
    QList<int> order;
    QString picked;
};
const QList<OrderedPages> kOrderedPages{
    {"one sheet", {{}, Set::All, Booklet::Left}, 4, {4, 1, 2, 3}, u"d 4,1,2,3"_s},
    {"two sheets",
     {{}, Set::All, Booklet::Left},
     8,
     {8, 1, 2, 7, 6, 3, 4, 5},
     u"d 8,1,2,7,6,3,4,5"_s},
    {"bound at the right",
     {{}, Set::All, Booklet::Right},
     8,
     {1, 8, 7, 2, 3, 6, 5, 4},
     u"d 1,8,7,2,3,6,5,4"_s},
    {"filled up",
     {{}, Set::All, Booklet::Left},
     5,
     {0, 1, 2, 0, 0, 3, 4, 5},
     u"b 1 d 1,2 b 1,1 d 3,4,5"_s},
    {"one page", {{}, Set::All, Booklet::Left}, 1, {0, 1, 0, 0}, u"b 1 d 1 b 1,1"_s},
    {"some pages", {u"2,4-9"_s, Set::All, Booklet::Left}, 5, {0, 2, 4, 5}, u"b 1 d 2,4,5"_s},
    {"odd pages", {{}, Set::Odd, Booklet::Left}, 7, {7, 1, 3, 5}, u"d 7,1,3,5"_s},
    {"none of the pages", {u"9"_s, Set::All, Booklet::Left}, 5, {}, {}},
    {"repeated", {u"2-3"_s, Set::All, Booklet::No, 2}, 5, {2, 2, 3, 3}, u"d 2,2,3,3"_s},
};

struct Excluded
{
    const char *name;
    QList<JobOption> options;
    QString named;
};
const QList<Excluded> kExcluded{
    {"nothing", {{u"number-up"_s, u"4"_s}, {u"repeat"_s, u"1"_s}, {u"booklet"_s, u"no"_s}}, {}},
    {"what it is anyway", {{u"booklet"_s, u"left"_s}, {u"number-up"_s, u"2"_s}}, {}},
    {"pages on a side",
     {{u"booklet"_s, u"left"_s}, {u"number-up"_s, u"4"_s}},
     u"“Pages per Sheet: 4” cannot"_s},
    {"an order on the side",
     {{u"booklet"_s, u"right"_s}, {u"number-up-layout"_s, u"rltb"_s}},
     u"“Order on the Sheet: To the Left, Then Down” cannot"_s},
    {"both",
     {{u"booklet"_s, u"right"_s}, {u"repeat"_s, u"2"_s}},
     u"“Each Page, Times on a Side: 2” cannot"_s},
    {"other pages than the repeated ones",
     {{u"repeat"_s, u"4"_s}, {u"number-up"_s, u"2"_s}},
     u"“Pages per Sheet: 2” cannot"_s},
};

} // namespace

/// Which pages of each document are meant, and in which order several documents are repeated.
class PageChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesAreThoseOfTheDocument_data() { addRows(kPicks); }
    void pagesAreThoseOfTheDocument()
    {
        const auto &[name, ranges, set, picked] = currentRow(kPicks);
        QCOMPARE(pickedPages({QString::fromLatin1(ranges), set}, 5, u"d"_s).join(u' '),
                 QString::fromLatin1(picked));
    }

    void pagesComeInTheOrderOfABooklet_data() { addRows(kOrderedPages); }
    void pagesComeInTheOrderOfABooklet()
    {
        const OrderedPages &row = currentRow(kOrderedPages);
        QCOMPARE(pagesInOrder(row.choice, row.pages), row.order);
        QCOMPARE(pickedPages(row.choice, row.pages, u"d"_s, u"b"_s).join(u' '), row.picked);
    }

    // A line of arguments is bounded.
    void aLongBookletIsToldInParts()
    {
        const PageChoice choice{{}, Set::All, Booklet::Left};
        const QStringList picked = pickedPages(choice, 5000, u"d"_s, u"b"_s);
        QCOMPARE(picked.size(), 10);
        QCOMPARE(picked.at(1).count(u','), 999);
        QVERIFY(picked.at(1).startsWith(u"5000,1,2,4999,"_s));
    }

    void theOrderNamesWhatItExcludes_data() { addRows(kExcluded); }
    void theOrderNamesWhatItExcludes()
    {
        const Excluded &row = currentRow(kExcluded);
        const QString problem = problemsOfOrder(row.options).join(u' ');
        QCOMPARE(problem.isEmpty(), row.named.isEmpty());
        QVERIFY2(problem.contains(row.named), qPrintable(problem));
    }

    void asManyPagesShareASideAsTheOrderNeeds()
    {
        const JobOption four{u"number-up"_s, u"4"_s};
        const JobOption booklet{u"booklet"_s, u"left"_s};
        const JobOption repeat{u"repeat"_s, u"6"_s};
        QCOMPARE(withPagesOfOrder({four}), QList{four});
        QCOMPARE(withPagesOfOrder({booklet}), (QList{booklet, JobOption{u"number-up"_s, u"2"_s}}));
        QCOMPARE(withPagesOfOrder({repeat}), (QList{repeat, JobOption{u"number-up"_s, u"6"_s}}));
        QVERIFY(mustPickPages({booklet}));
        QVERIFY(mustPickPages({repeat}));
        QCOMPARE(withoutPageChoice({booklet, repeat, four}), QList{four});
        QCOMPARE(withoutPageOrder({booklet, four, repeat}), QList{four});
    }

    void theChoiceIsAmongTheOptions()
    {
        const QList<JobOption> options{
            {u"page-ranges"_s, u"2-"_s}, {u"number-up"_s, u"2"_s}, {u"page-set"_s, u"even"_s}};
        QCOMPARE(pageChoiceOf(options), (PageChoice{u"2-"_s, Set::Even}));
        QVERIFY(pageChoiceOf({{u"page-set"_s, u"all"_s}}).isAll());
        // The set stays, so that no default of the queue's takes its place.
        QCOMPARE(withoutPageChoice(options),
                 (QList<JobOption>{{u"number-up"_s, u"2"_s}, {u"page-set"_s, u"all"_s}}));
    }

    // Each page a billion times would take all the memory that there is.
    void whatAPpdCallsTheSameIsNoChoiceOfPages_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::newRow("ranges") << u"page-ranges"_s << u"One"_s;
        QTest::newRow("times") << u"repeat"_s << u"2000000000"_s;
        QTest::newRow("less than once") << u"repeat"_s << u"-1"_s;
        QTest::newRow("set") << u"page-set"_s << u"None"_s;
        QTest::newRow("booklet") << u"booklet"_s << u"On"_s;
    }
    void whatAPpdCallsTheSameIsNoChoiceOfPages()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QVERIFY(pageChoiceOf({{name, value}}).isAll());
        QCOMPARE(pageChoiceOf({{name, value}}).repetitions, 1);
        QCOMPARE(pickedPages(pageChoiceOf({{name, value}}), 5, u"d"_s),
                 (QStringList{u"d"_s, u"1-5"_s}));
    }

    void pagesArePickedWhereSeveralShareASide()
    {
        const JobOption two{u"number-up"_s, u"2"_s};
        QVERIFY(mustPickPages({two, {u"page-ranges"_s, u"3"_s}}));
        QVERIFY(mustPickPages({two, {u"page-set"_s, u"odd"_s}}));
        QVERIFY(!mustPickPages({two}));
        QVERIFY(!mustPickPages({two, {u"page-set"_s, u"all"_s}}));
        QVERIFY(!mustPickPages({{u"number-up"_s, u"1"_s}, {u"page-ranges"_s, u"3"_s}}));
        QVERIFY(!mustPickPages({{u"page-ranges"_s, u"3"_s}}));
    }

    void theOrderOfCopiesIsKnownBefore_data() { addRows(kCopies); }
    void theOrderOfCopiesIsKnownBefore()
    {
        const auto &[name, copies, documents, option, together, repetitions, order] =
            currentRow(kCopies);
        const JobTicket ticket{u"t"_s, copies, {option}};
        QCOMPARE(copiesOrder(ticket, documents, together), order);
        if (!together)
            QCOMPARE(repetitionsOf(ticket, documents), repetitions);
        QCOMPARE(textOf(order).isEmpty(), order == CopiesOrder::Plain);
    }
};

QTEST_GUILESS_MAIN(PageChoiceTest)

#include "page_choice_test.moc"
