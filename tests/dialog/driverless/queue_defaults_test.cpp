#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <cups/cups.h>

#include "dialog/driverless/CapabilityOptions.h"
#include "dialog/driverless/QueueDefaults.h"
#include "tests/dialog/driverless/PrinterProfiles.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// What cupsd says of a colour printer with a PPD whose administrator has set nothing.
PrinterAttributes untouched()
{
    PrinterAttributes queue;
    queue.enums("printer-type", {CUPS_PRINTER_COLOR | CUPS_PRINTER_DUPLEX});
    queue.integers("copies-default", {1});
    queue.formats({"application/octet-stream"});
    queue.keywords("job-hold-until-default", {"no-hold"});
    queue.integers("job-priority-default", {50});
    queue.integers("notify-lease-duration-default", {86400});
    queue.keywords("notify-events-default", {"job-completed"});
    queue.unknown("orientation-requested-default");
    return queue;
}

/// The rest of it, which an administrator's own default of the same name stands in front of.
PrinterAttributes &mirrored(PrinterAttributes &queue)
{
    queue.keywords("media-supported", {"iso_a4_210x297mm", "iso_a5_148x210mm"});
    queue.keywords("media-default", {"iso_a4_210x297mm"});
    queue.keywords("sides-supported", {"one-sided", "two-sided-long-edge"});
    queue.keywords("sides-default", {"one-sided"});
    queue.keywords("output-bin-default", {"face-down"});
    queue.keywords("output-bin-supported", {"face-down", "face-up"});
    queue.enums("finishings-supported", {3});
    queue.enums("finishings-default", {3});
    return queue;
}

struct DefaultCase
{
    const char *name;
    void (*say)(PrinterAttributes &queue);
    QList<JobOption> defaults;
};

const QList<DefaultCase> kDefaults{
    {"nothing", [](PrinterAttributes &) {}, {}},
    {"a number",
     [](PrinterAttributes &q) { q.integers("number-up-default", {2}); },
     {{u"number-up"_s, u"2"_s}}},
    {"the usual number", [](PrinterAttributes &q) { q.integers("number-up-default", {1}); }, {}},
    {"no cover sheets",
     [](PrinterAttributes &q) {
         q.names("job-sheets-default", {"none", "none"});
     },
     {}},
    {"a cover sheet",
     [](PrinterAttributes &q) {
         q.names("job-sheets-default", {"standard", "standard"});
     },
     {{u"job-sheets"_s, u"standard,standard"_s}}},
    {"black and white",
     [](PrinterAttributes &q) { q.keywords("print-color-mode-default", {"monochrome"}); },
     {{u"print-color-mode"_s, u"monochrome"_s}}},
    {"colour, on a printer that has it",
     [](PrinterAttributes &q) { q.keywords("print-color-mode-default", {"color"}); },
     {}},
    {"an enumeration",
     [](PrinterAttributes &q) { q.enums("print-quality-default", {5}); },
     {{u"print-quality"_s, u"5"_s}}},
    {"the usual quality", [](PrinterAttributes &q) { q.enums("print-quality-default", {4}); }, {}},
    {"on or off",
     [](PrinterAttributes &q) { q.boolean("fit-to-page-default", true); },
     {{u"fit-to-page"_s, u"true"_s}}},
    {"the usual end to waiting",
     [](PrinterAttributes &q) { q.integers("job-cancel-after-default", {10800}); },
     {}},
    {"an end to waiting",
     [](PrinterAttributes &q) { q.integers("job-cancel-after-default", {60}); },
     {{u"job-cancel-after"_s, u"60"_s}}},
    {"an end to waiting that never comes",
     [](PrinterAttributes &q) { q.integers("job-cancel-after-default", {0}); },
     {}},
    {"a name that nobody knows",
     [](PrinterAttributes &q) { q.names("Sparkle-default", {"bright"}); },
     {{u"Sparkle"_s, u"bright"_s}}},
    {"a list in one text",
     [](PrinterAttributes &q) { q.names("page-ranges-default", {"1,3"}); },
     {{u"page-ranges"_s, u"1,3"_s}}},
    {"a text with all that means something elsewhere",
     [](PrinterAttributes &q) { q.names("page-label-default", {R"(A, "B" = {'C'; \D})"}); },
     {{u"page-label"_s, uR"(A, "B" = {'C'; \D})"_s}}},
    {"what looks like another option",
     [](PrinterAttributes &q) { q.names("Sparkle-default", {"bright Glow=1"}); },
     {{u"Sparkle"_s, u"bright Glow=1"_s}}},
    {"several of which one would be more", // left out
     [](PrinterAttributes &q) {
         q.names("Sparkle-default", {"bright", "dim,dark"});
     },
     {}},
    {"what nobody could see", // left out
     [](PrinterAttributes &q) { q.names("Sparkle-default", {"bright\ndark"}); },
     {}},
    {"a default of nothing", // left out
     [](PrinterAttributes &q) { q.names("-default", {"bright"}); },
     {}},
    {"a name that would be another option", // left out
     [](PrinterAttributes &q) { q.names("Sparkle=1 Glow-default", {"bright"}); },
     {}},
    {"both sides in front of the PPD's",
     [](PrinterAttributes &q) { q.keywords("sides-default", {"two-sided-long-edge"}); },
     {{u"sides"_s, u"two-sided-long-edge"_s}}},
    {"the same as the PPD's",
     [](PrinterAttributes &q) { q.keywords("sides-default", {"one-sided"}); },
     {}},
    {"a paper in front of the PPD's",
     [](PrinterAttributes &q) { q.keywords("media-default", {"iso_a5_148x210mm"}); },
     {{u"media"_s, u"iso_a5_148x210mm"_s}}},
    {"staples in front of the PPD's",
     [](PrinterAttributes &q) { q.enums("finishings-default", {4}); },
     {{u"finishings"_s, u"4"_s}}},
};

} // namespace

/// What an administrator has set for a queue, told apart from what any queue says.
class QueueDefaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatTheServerAddsToJobsIsADefault_data() { addRows(kDefaults); }
    void onlyWhatTheServerAddsToJobsIsADefault()
    {
        const DefaultCase &row = currentRow(kDefaults);
        PrinterAttributes queue = untouched();
        row.say(queue);
        mirrored(queue);
        QCOMPARE(queueDefaults(queue.ipp()), row.defaults);
    }

    void whatNoPpdSaysIsTheAdministrators()
    {
        PrinterAttributes queue = untouched();
        queue.keywords("sides-default", {"two-sided-short-edge"});
        QCOMPARE(queueDefaults(queue.ipp()),
                 (QList<JobOption>{{u"sides"_s, u"two-sided-short-edge"_s}}));
    }

    void bothSidesAreTheAdministratorsAlsoWhereThePpdSaysSo()
    {
        PrinterAttributes queue = untouched();
        queue.keywords("sides-supported", {"one-sided", "two-sided-long-edge"});
        queue.keywords("sides-default", {"two-sided-long-edge"});
        QCOMPARE(queueDefaults(queue.ipp()), QList<JobOption>());
        queue.keywords("sides-default", {"two-sided-long-edge"});
        QCOMPARE(queueDefaults(queue.ipp()),
                 (QList<JobOption>{{u"sides"_s, u"two-sided-long-edge"_s}}));
    }

    void aPrinterWithoutColorsIsBlackAndWhiteAnyway()
    {
        PrinterAttributes queue;
        queue.enums("printer-type", {CUPS_PRINTER_BW});
        queue.keywords("print-color-mode-default", {"monochrome"});
        QCOMPARE(queueDefaults(queue.ipp()), QList<JobOption>());
        QCOMPARE(queueDefaults(nullptr), QList<JobOption>());
    }

    // A walk for each would take half a minute.
    void defaultsWithoutNumberAreReadInOneWalk()
    {
        PrinterAttributes queue = untouched();
        for (int i = 0; i < 40'000; ++i)
            queue.integers(QByteArray("a" + QByteArray::number(i) + "-default").constData(), {7});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"too many defaults"_s));
        QElapsedTimer time;
        time.start();
        const QList<JobOption> defaults = queueDefaults(queue.ipp());
        QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
        QVERIFY(defaults.size() > 900 && defaults.size() <= 1000);
        QCOMPARE(defaults.at(0), (JobOption{u"a0"_s, u"7"_s}));
    }

    void aRawQueueIsToldApartAndOffersNothing()
    {
        PrinterAttributes queue;
        queue.enums("printer-type", {CUPS_PRINTER_BW});
        queue.text("printer-make-and-model", "Local Raw Printer");
        queue.keywords("sides-supported", {"one-sided", "two-sided-long-edge"});
        QVERIFY(isRawQueue(queue.ipp()));
        const PrinterCapabilities printer = capabilitiesOf(queue.ipp());
        QVERIFY(printer.passesFilesOn);
        QVERIFY(capabilityOptions(printer).isEmpty());
    }

    void otherPrintersAreNoRawQueues_data()
    {
        QTest::addColumn<bool>("isQueue");
        QTest::addColumn<QByteArray>("model");
        QTest::newRow("a queue of another server") << true << QByteArray("Remote Printer");
        QTest::newRow("an IPP Everywhere queue") << true << QByteArray("Example - IPP Everywhere");
        QTest::newRow("a device that calls itself so") << false << QByteArray("Local Raw Printer");
    }
    void otherPrintersAreNoRawQueues()
    {
        QFETCH(bool, isQueue);
        QFETCH(QByteArray, model);
        PrinterAttributes queue;
        if (isQueue)
            queue.enums("printer-type", {CUPS_PRINTER_BW});
        queue.text("printer-make-and-model", model);
        QVERIFY(!isRawQueue(queue.ipp()));
        QVERIFY(!capabilityOptions(capabilitiesOf(queue.ipp())).isEmpty());
    }
};

QTEST_GUILESS_MAIN(QueueDefaultsTest)
#include "queue_defaults_test.moc"
