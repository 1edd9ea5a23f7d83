#include <QTest>

#include "tests/dialog/policy/TestPolicy.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Fit
{
    const char *name;
    const char *section;
    const char *printer;
    const char *group; ///< of the user; empty: in none
    bool fits;
};

constexpr Fit kFits[] = {
    {"everybody everywhere", "[all]", "lobby", "", true},
    {"the name", "[printer lobby]", "lobby", "", true},
    {"another name", "[printer lobby]", "lobby-2", "", false},
    {"capital letters", "[printer LOBBY]", "lobby", "", true},
    {"capital letters of the queue", "[printer lobby-*]", "Lobby-2", "", true},
    {"any characters", "[printer lobby-*]", "lobby-2-colour", "", true},
    {"one character", "[printer lobby-?]", "lobby-2", "", true},
    {"one character of a set", "[printer lobby-[12]]", "lobby-2", "", true},
    {"one of two patterns", "[printer hall lobby]", "lobby", "", true},
    {"an instance of the queue", "[printer lobby]", "lobby/reports", "", true},
    {"one instance only", "[printer lobby/reports]", "lobby", "", false},
    {"that instance", "[printer lobby/reports]", "LOBBY/reports", "", true},
    {"the queue as a device", "[printer lobby]", "ipp://server/printers/lobby", "", true},
    {"the queue as a device, in capitals", "[printer lobby]", "ipp://server/Printers/LOBBY", "",
     true},
    {"a class as a device", "[printer lobby]", "ipp://server/classes/lobby", "", true},
    {"a device by its address", "[printer ipp://10.0.0.*]", "ipp://10.0.0.7/ipp/print", "", true},
    {"another device", "[printer lobby]", "ipp://server/ipp/print", "", false},
    {"the group", "[group students]", "lobby", "students", true},
    {"another group", "[group students]", "lobby", "staff", false},
    {"no group", "[group students]", "lobby", "", false},
    {"one of two groups", "[group staff students]", "lobby", "students", true},
    {"groups have no patterns", "[group stud*]", "lobby", "students", false},
    {"both", "[printer lobby, group students]", "lobby", "students", true},
    {"both, and not the printer", "[printer hall, group students]", "lobby", "students", false},
    {"both, and not the group", "[printer lobby, group students]", "lobby", "staff", false},
};

struct Order
{
    const char *name;
    QList<QByteArray> files;
    const char *value; ///< of lock.A
};

const Order kOrders[] = {
    {"the later line of a section", {"[all]\nlock.A=1\nlock.A=2\n"}, "2"},
    {"the later section of a kind", {"[printer *]\nlock.A=1\n[printer lobby]\nlock.A=2\n"}, "2"},
    {"a group before all", {"[group students]\nlock.A=1\n[all]\nlock.A=2\n"}, "1"},
    {"a printer before a group", {"[printer lobby]\nlock.A=1\n[group students]\nlock.A=2\n"}, "1"},
    {"both before a printer",
     {"[printer lobby, group students]\nlock.A=1\n[printer lobby]\nlock.A=2\n"},
     "1"},
    {"the later file before anything closer",
     {"[printer lobby, group students]\nlock.A=1\n", "[all]\nlock.A=2\n"},
     "2"},
    {"a later file that does not fit", {"[all]\nlock.A=1\n", "[printer hall]\nlock.A=2\n"}, "1"},
    {"a later file takes it back", {"[all]\nlock.A=1\n", "[printer lobby]\nlock.A=\n"}, ""},
    {"and gives it again", {"[all]\nlock.A=1\n", "[all]\nlock.A=\n", "[all]\nlock.A=3\n"}, "3"},
    {"whatever the letters", {"[all]\nlock.a=1\n", "[all]\nlock.A=2\n"}, "2"},
};

Printer printerNamed(const QString &name)
{
    Printer printer = queue(name);
    if (name.contains(u"://"_s)) {
        printer.origin = PrinterOrigin::Device;
        printer.uri = name;
    }
    return printer;
}

} // namespace

/// To whom a policy applies, and which of its entries counts.
class PolicyScopesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSectionFitsPrintersAndGroups_data() { addRows(kFits); }
    void aSectionFitsPrintersAndGroups()
    {
        const Fit &row = currentRow(kFits);
        const QString group = QString::fromUtf8(row.group);
        const auto policy = policyFrom(QByteArray(row.section) + "\nhide = yes\n",
                                       group.isEmpty() ? QStringList() : QStringList{group});
        QVERIFY(policy->reading().problems.isEmpty());
        QCOMPARE(policy->whatHides(printerNamed(QString::fromUtf8(row.printer))).has_value(),
                 row.fits);
    }

    void oneEntryOfAKeywordCounts_data() { addRows(kOrders); }
    void oneEntryOfAKeywordCounts()
    {
        const Order &row = currentRow(kOrders);
        const auto policy = policyFrom(row.files, {u"students"_s});
        QVERIFY(policy->reading().problems.isEmpty());
        const QList<PolicyEntry> locks = policy->locksOf(queue(u"lobby"_s));
        QCOMPARE(locks.size(), *row.value ? 1 : 0);
        if (*row.value)
            QCOMPARE(locks.at(0).value, QString::fromUtf8(row.value));
    }

    void everyPlaceInTheTableOfRanksIsThereOnce()
    {
        QSet<int> ranks;
        for (const bool printers : {false, true}) {
            for (const bool groups : {false, true}) {
                PolicyScope scope;
                if (printers)
                    scope.printers = {u"x"_s};
                if (groups)
                    scope.groups = {u"x"_s};
                ranks += rankOf(scope);
            }
        }
        QCOMPARE(ranks.size(), int(policyRanks().size()));
    }

    void everyKeyIsDecidedByTheSameOrder()
    {
        const auto policy = policyFrom({"[all]\nhide=yes\nfile-output=no\nlast-used=no\n"
                                        "presets=/a\njournal=yes\njournal-title=yes\n"
                                        "confirm-sheets=5\n",
                                        "[printer hall]\nhide=no\nfile-output=yes\nlast-used=yes\n"
                                        "presets=/b\njournal=no\njournal-title=no\n"
                                        "confirm-sheets=7\n"});
        const Printer lobby = queue(u"lobby"_s);
        const Printer hall = queue(u"hall"_s);
        QVERIFY(policy->whatHides(lobby) && !policy->whatHides(hall));
        QVERIFY(policy->whatForbidsFiles(lobby) && !policy->whatForbidsFiles(hall));
        QVERIFY(!policy->bringsLastUsedBack(lobby) && policy->bringsLastUsedBack(hall));
        QCOMPARE(policy->presetsFolder(lobby), u"/a"_s);
        QCOMPARE(policy->presetsFolder(hall), u"/b"_s);
        QVERIFY(policy->writesJournal(lobby) && !policy->writesJournal(hall));
        QVERIFY(policy->journalHasTitles(lobby) && !policy->journalHasTitles(hall));
        QCOMPARE(policy->confirmSheets(lobby), 5);
        QCOMPARE(policy->confirmSheets(hall), 7);
    }

    void aPolicyWithoutAWordDecidesNothing()
    {
        const Policy policy;
        const Printer lobby = queue(u"lobby"_s);
        QVERIFY(policy.isEmpty());
        QVERIFY(!policy.whatHides(lobby) && !policy.whatForbidsFiles(lobby));
        QVERIFY(policy.bringsLastUsedBack(lobby));
        QVERIFY(!policy.writesJournal(lobby));
        QVERIFY(!policy.confirmSheets(lobby));
        QVERIFY(policy.locksOf(lobby).isEmpty() && policy.defaultsOf(lobby).isEmpty());
    }

    void whoeverMayNotPrintToFilesHasNoPrinterThatIsOne()
    {
        const auto policy = policyFrom("[printer pdf]\nfile-output=no\n");
        Printer pdf;
        pdf.name = kPdfPrinterName;
        QVERIFY(policy->whatHides(pdf));
        QVERIFY(!policy->whatHides(queue(u"pdf"_s)));
        QVERIFY(policy->whatForbidsFiles(queue(u"pdf"_s)));
    }
};

QTEST_MAIN(PolicyScopesTest)
#include "policy_scopes_test.moc"
