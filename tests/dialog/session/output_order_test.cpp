#include <QTest>

#include "dialog/session/OutputOrder.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray kFaceUp = "*DefaultOutputOrder: Reverse\n";
const JobOption kFirst{u"outputorder"_s, u"normal"_s};
const JobOption kLast{u"outputorder"_s, u"reverse"_s};
const JobOption kRear{u"OutputBin"_s, u"Rear"_s};
const JobOption kOther{u"number-up"_s, u"2"_s};

struct Told
{
    const char *name;
    QByteArray lines;
    QList<JobOption> options;
    QList<JobOption> told; // to the filters
};
const Told kTold[] = {
    {"nothing is said of the order", {}, {kOther, kLast}, {kOther, kLast}},
    {"face down", "*DefaultOutputOrder: Normal\n", {kLast}, {kLast}},
    {"face up", kFaceUp, {kOther}, {kOther, kFirst}},
    {"face up, the first page first", kFaceUp, {kFirst, kOther}, {kOther, kLast}},
    {"face up, the last page first", kFaceUp, {kLast}, {kFirst}},
    {"in another spelling", kFaceUp, {{u"OutputOrder"_s, u"Normal"_s}}, {kLast}},
    {"said twice, the last counts", kFaceUp, {kLast, kFirst}, {kLast}},
    {"into a bin that stacks face up", "*PageStackOrder Rear: Reverse\n", {kRear}, {kRear, kFirst}},
    {"into another bin", "*PageStackOrder Rear: Reverse\n", {}, {}},
    {"into a bin that stacks face down",
     kFaceUp + "*PageStackOrder Rear: Normal\n",
     {kRear},
     {kRear}},
    {"an order that only the layout step knows",
     "*DefaultOutputOrder: reverse-order\n",
     {kFirst},
     {kFirst}},
    {"the printer turns it round itself",
     kFaceUp + "*OpenUI *OutputOrder: PickOne\n*DefaultOutputOrder: Normal\n"
               "*OutputOrder Normal: \"\"\n*OutputOrder Reverse: \"\"\n*CloseUI: *OutputOrder\n",
     {kFirst},
     {kFirst}},
};

struct Filters
{
    const char *name;
    QByteArray lines;
    bool isTurnedRound;
};
const Filters kFilters[] = {
    {"no filter", {}, true},
    {"PostScript", "*cupsFilter2: \"application/vnd.cups-postscript a/ps 0 -\"\n", true},
    {"PostScript, in the older form", "*cupsFilter: \"application/vnd.cups-postscript 0 -\"\n",
     true},
    {"PDF", "*cupsFilter2: \"application/vnd.cups-pdf a/pdf 0 -\"\n", false},
    {"raster data", "*cupsFilter: \"application/vnd.cups-raster 0 rastertohp\"\n", false},
    {"either, PDF being cheaper",
     "*cupsFilter: \"application/vnd.cups-postscript 0 a\"\n"
     "*cupsFilter: \"application/vnd.cups-pdf 0 b\"\n",
     false},
    {"either, PostScript being cheaper",
     "*cupsFilter: \"application/vnd.cups-postscript 0 a\"\n"
     "*cupsFilter: \"application/vnd.cups-pdf 200 b\"\n",
     true},
    {"the newer form hides the older one",
     "*cupsFilter: \"application/vnd.cups-postscript 0 a\"\n"
     "*cupsFilter2: \"application/vnd.cups-pdf a/pdf 200 b\"\n",
     false},
    {"no document's", "*cupsFilter: \"application/vnd.cups-command 0 commandtops\"\n", false},
    {"damaged", "*cupsFilter: \"application/vnd.cups-postscript\"\n", false},
};

} // namespace

/// In which order sides are to leave a printer, and what its filters are told for that.
class OutputOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filtersAreToldWhatMakesThatOrder_data() { addRows(kTold); }
    void filtersAreToldWhatMakesThatOrder()
    {
        const Told &row = currentRow(kTold);
        PpdBuilder ppd;
        if (!row.lines.isEmpty())
            ppd.line(row.lines);
        QCOMPARE(withOrderForFilters(row.options, sessionFor(ppd)->ppd()), row.told);
    }

    void onlyPostScriptIsTurnedRoundOnTheWay_data() { addRows(kFilters); }
    void onlyPostScriptIsTurnedRoundOnTheWay()
    {
        const Filters &row = currentRow(kFilters);
        PpdBuilder ppd;
        ppd.line(kFaceUp + row.lines);
        const auto session = sessionFor(ppd);
        QCOMPARE(isTurnedRoundOnTheWay(session->ppd(), {}), row.isTurnedRound);
        // The paper lies in the bin in the same order, whatever that takes.
        QVERIFY(printsLastPageFirst(session->ppd(), {}));
        QVERIFY(!printsLastPageFirst(session->ppd(), {kFirst}));
    }
};

QTEST_GUILESS_MAIN(OutputOrderTest)
#include "output_order_test.moc"
