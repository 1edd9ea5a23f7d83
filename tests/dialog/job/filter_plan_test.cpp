#include <QTest>

#include "dialog/job/FilterPlan.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const FilterPlaces kPlaces{u"/sbin/cupsfilter"_s, u"/parts/printer.ppd"_s, u"/parts/filling.ppd"_s,
                           u"/parts"_s};
// Of a printer that takes PDF or raster files.
const FilterPlaces kOneFile{kPlaces.cupsFilter, kPlaces.ppd, kPlaces.fillingPpd, kPlaces.folder,
                            false};
const Document kText{u"/one.txt"_s, u"text/plain"_s, u"one.txt"_s};
const Document kPdf{u"/three.pdf"_s, u"application/pdf"_s, u"three.pdf"_s};
const Document kPicture{u"/two.png"_s, u"image/png"_s, u"two.png"_s};
const QList<JobOption> kOptions{{u"PageSize"_s, u"A5"_s},
                                {u"cpi"_s, u"12"_s},
                                {u"number-up"_s, u"2"_s},
                                {u"Tray"_s, u"Lower"_s}};

ConversionRequest request(const QList<Document> &documents, ConversionRequest::Result result)
{
    return {
        documents, {u"Title"_s, 3, kOptions}, u"/server/printer.ppd"_s, u"/out.part"_s, u"out.ps"_s,
        result};
}

const Document kPostScript{u"/four.ps"_s, u"application/postscript"_s, u"four.ps"_s};

bool isPagesOnASide(const JobOption &option)
{
    return option.name == u"number-up"_s;
}

struct Asked
{
    const char *name;
    const char *option;
    const char *value;
    bool picture;
    bool postScript;
};
const Asked kAsked[] = {
    {"one page on a side", "number-up", "1", false, false},
    {"two pages on a side", "number-up", "2", true, true},
    {"no border", "page-border", "none", false, false},
    {"a border", "page-border", "double", true, true},
    {"all pages", "page-set", "all", false, false},
    {"even pages", "page-set", "even", true, true},
    {"a range", "page-ranges", "1-2", true, true},
    {"upright", "orientation-requested", "3", false, false},
    {"landscape", "orientation-requested", "4", false, true},
    {"scaled as usual", "print-scaling", "auto", false, false},
    {"not scaled", "print-scaling", "none", false, false},
    {"scaled", "print-scaling", "fill", false, true},
    {"mirrored", "mirror", "true", true, true},
    {"an option of the printer", "Tray", "Lower", false, false},
};

// The steps of a plan in short: what each does, and to what.
QStringList inShort(const FilterPlan &plan)
{
    QStringList steps;
    for (const FilterStep &step : plan) {
        const QStringList &told = step.arguments;
        if (step.program == kPlaces.cupsFilter)
            steps += told.constLast() + u" to "_s + told.value(5) + u" as "_s + step.output;
        else if (step.pick)
            steps += u"pick of "_s + step.pick->document + u" as "_s + step.output;
        else if (told.contains(u"--show-npages"_s))
            steps += u"count "_s + told.constLast();
        else
            steps += step.program + u' ' + step.parts.join(u' ') + u" as "_s + step.output;
    }
    return steps;
}

// The values of "-o" of a step.
QStringList optionsOf(const FilterStep &step)
{
    QStringList options;
    for (qsizetype i = 0; i + 1 < step.arguments.size(); ++i) {
        if (step.arguments.at(i) == u"-o"_s)
            options += step.arguments.at(i + 1);
    }
    return options;
}

} // namespace

/// Which programs are run with what. Nothing runs here.
class FilterPlanTest : public QObject
{
    Q_OBJECT

    using Result = ConversionRequest::Result;

private Q_SLOTS:
    void pagesAreTurnedInTheEnd()
    {
        ConversionRequest turned = request({kPdf}, ConversionRequest::Result::PrinterData);
        turned.ticket.options.removeIf(isPagesOnASide);
        turned.turns = {0, 90, 90, 0, 270};
        const FilterPlan plan = planConversion(turned, kPlaces);
        QCOMPARE(inShort(plan), (QStringList{u"/three.pdf to printer/foo as /parts/unturned.pdf"_s,
                                             u"qpdf /parts/unturned.pdf as /out.part"_s}));
        QCOMPARE(plan.constLast().arguments.mid(2),
                 (QStringList{u"--rotate=+90:2-3"_s, u"--rotate=+270:5-5"_s,
                              u"/parts/unturned.pdf"_s, u"-"_s}));
        turned.turns = {0, 0};
        QCOMPARE(planConversion(turned, kPlaces).size(), 1);
    }

    void oneDocumentIsPrintedInOneStep()
    {
        const FilterStep step{kPlaces.cupsFilter,
                              {u"-p"_s,          kPlaces.ppd,      u"-i"_s,         u"text/plain"_s,
                               u"-m"_s,          u"printer/foo"_s, u"-e"_s,         u"-t"_s,
                               u"Title"_s,       u"-n"_s,          u"3"_s,          u"-o"_s,
                               u"PageSize=A5"_s, u"-o"_s,          u"cpi=12"_s,     u"-o"_s,
                               u"number-up=2"_s, u"-o"_s,          u"Tray=Lower"_s, kText.path},
                              u"/out.part"_s,
                              u"out.ps"_s};
        QCOMPARE(planConversion(request({kText}, Result::PrinterData), kPlaces), FilterPlan{step});
    }

    void streamsStandInARow()
    {
        ConversionRequest two = request({kText, kPicture}, Result::PrinterData);
        two.ticket.copies = 1;
        two.ticket.options.removeIf(isPagesOnASide);
        QCOMPARE(inShort(planConversion(two, kPlaces)),
                 (QStringList{u"/one.txt to printer/foo as /parts/0.data"_s,
                              u"/two.png to printer/foo as /parts/1.data"_s,
                              u"cat /parts/0.data /parts/1.data as /out.part"_s}));
    }

    // What the chain makes of a picture at once has not what was asked for.
    void aPictureThatSharesItsSideBecomesAPdfFirst()
    {
        QCOMPARE(inShort(planConversion(request({kPicture}, Result::PrinterData), kPlaces)),
                 (QStringList{u"/two.png to application/vnd.cups-pdf as /parts/0.pdf"_s,
                              u"/parts/0.pdf to printer/foo as /out.part"_s}));
        ConversionRequest plain = request({kPicture}, Result::PrinterData);
        plain.ticket.options.removeIf(isPagesOnASide);
        QCOMPARE(inShort(planConversion(plain, kPlaces)),
                 QStringList{u"/two.png to printer/foo as /out.part"_s});
    }

    void aPdfOfAPictureKeepsItsColors()
    {
        QCOMPARE(inShort(planConversion(request({kPicture}, Result::Pdf), kPlaces)),
                 QStringList{u"/two.png to application/vnd.cups-pdf as /out.part"_s});
    }

    void whatBecomesAPdfDependsOnItsKind_data() { addRows(kAsked); }
    void whatBecomesAPdfDependsOnItsKind()
    {
        const Asked &row = currentRow(kAsked);
        const QList<JobOption> options{
            {QString::fromLatin1(row.option), QString::fromLatin1(row.value)}};
        QCOMPARE(mustBecomePdf(kPicture, options), row.picture);
        QCOMPARE(mustBecomePdf(kPostScript, options), row.postScript);
        QVERIFY(!mustBecomePdf(kText, options));
        QVERIFY(!mustBecomePdf(kPdf, options));
    }

    // Of several documents one may have none of the pages, whoever converts them one by one.
    void pagesOfOneOfSeveralArePickedBefore()
    {
        ConversionRequest one = request({kPdf}, Result::PrinterData);
        one.ticket.options = {{u"page-set"_s, u"even"_s}};
        QCOMPARE(planConversion(one, kPlaces).size(), 1);
        one.picksPages = true;
        QCOMPARE(planConversion(one, kPlaces).size(), 3);
        one.ticket.options = {};
        QCOMPARE(planConversion(one, kPlaces).size(), 1);
    }

    void filesArePutTogetherOfLaidOutPages()
    {
        QCOMPARE(inShort(planConversion(request({kText, kPdf}, Result::PrinterData), kOneFile)),
                 (QStringList{u"/one.txt to application/pdf as /parts/0.pdf"_s,
                              u"/parts/0.pdf to application/vnd.cups-pdf as /parts/1.pdf"_s,
                              u"/three.pdf to application/vnd.cups-pdf as /parts/2.pdf"_s,
                              u"qpdf /parts/1.pdf /parts/2.pdf as /parts/whole.pdf"_s,
                              u"/parts/whole.pdf to printer/foo as /out.part"_s}));
    }

    void aPdfOfOneDocumentHasItsPaperAndNoOtherChoice()
    {
        const FilterPlan plan = planConversion(request({kText}, Result::Pdf), kPlaces);
        QCOMPARE(inShort(plan), QStringList{u"/one.txt to application/pdf as /out.part"_s});
        QCOMPARE(optionsOf(plan.constFirst()), (QStringList{u"PageSize=A5"_s, u"cpi=12"_s}));
        QVERIFY(!plan.constFirst().arguments.contains(u"-e"_s));
    }

    void aPdfOfSeveralEndsWithTheirUnion()
    {
        QCOMPARE(inShort(planConversion(request({kText, kPdf}, Result::Pdf), kPlaces)),
                 (QStringList{u"/one.txt to application/pdf as /parts/0.pdf"_s,
                              u"/parts/0.pdf to application/vnd.cups-pdf as /parts/1.pdf"_s,
                              u"/three.pdf to application/vnd.cups-pdf as /parts/2.pdf"_s,
                              u"qpdf /parts/1.pdf /parts/2.pdf as /out.part"_s}));
    }

    void aPdfIsLaidOutWhereThatIsAskedFor()
    {
        ConversionRequest laidOut = request({kText}, Result::Pdf);
        laidOut.ticket.options += {u"Duplex"_s, u"DuplexNoTumble"_s};
        laidOut.layout = {{u"page-ranges"_s, u"2-3"_s}};
        const FilterPlan plan = planConversion(laidOut, kPlaces);
        QCOMPARE(inShort(plan),
                 (QStringList{u"/one.txt to application/pdf as /parts/0.pdf"_s,
                              u"/parts/0.pdf to application/vnd.cups-pdf as /out.part"_s}));
        // The order of the pages depends on whether they have backs.
        QCOMPARE(optionsOf(plan.constLast()),
                 (QStringList{u"PageSize=A5"_s, u"cpi=12"_s, u"Duplex=DuplexNoTumble"_s,
                              u"page-ranges=2-3"_s}));
    }

    void pagesThatTheChainWouldCountAsSidesArePickedBefore_data()
    {
        QTest::addColumn<ConversionRequest::Result>("result");
        QTest::addColumn<QStringList>("steps");
        QTest::newRow("for a printer")
            << Result::PrinterData
            << QStringList{u"count /three.pdf"_s, u"pick of /three.pdf as /parts/0.pdf"_s,
                           u"/parts/0.pdf to printer/foo as /out.part"_s};
        QTest::newRow("as a PDF")
            << Result::Pdf
            << QStringList{u"count /three.pdf"_s, u"pick of /three.pdf as /parts/0.pdf"_s,
                           u"/parts/0.pdf to application/vnd.cups-pdf as /out.part"_s};
        QTest::newRow("for a queue")
            << Result::ChosenPages
            << QStringList{u"count /three.pdf"_s, u"pick of /three.pdf as /out.part"_s};
    }
    void pagesThatTheChainWouldCountAsSidesArePickedBefore()
    {
        QFETCH(ConversionRequest::Result, result);
        ConversionRequest odd = request({kPdf}, result);
        odd.ticket.options += {u"page-set"_s, u"odd"_s};
        odd.layout = {{u"number-up"_s, u"2"_s}, {u"page-set"_s, u"odd"_s}};
        const FilterPlan plan = planConversion(odd, kPlaces);
        QTEST(inShort(plan), "steps");
        for (const FilterStep &step : plan)
            QVERIFY(!optionsOf(step).contains(u"page-set=odd"_s));
    }

    void whatWasLaidOutIsLeftAsItIs()
    {
        const QList<JobOption> before{
            {u"PageSize"_s, u"A5"_s},           {u"number-up"_s, u"4"_s},
            {u"number-up-layout"_s, u"tblr"_s}, {u"page-ranges"_s, u"2-"_s},
            {u"page-set"_s, u"odd"_s},          {u"orientation-requested"_s, u"4"_s},
            {u"OutputOrder"_s, u"Reverse"_s},   {u"MirrorPrint"_s, u"True"_s},
            {u"mirror"_s, u"true"_s},           {u"page-left"_s, u"50"_s},
            {u"print-scaling"_s, u"fit"_s},     {u"Duplex"_s, u"DuplexNoTumble"_s},
            {u"job-priority"_s, u"70"_s}};
        const QList<JobOption> after{{u"PageSize"_s, u"A5"_s},
                                     {u"number-up"_s, u"1"_s},
                                     {u"number-up-layout"_s, u"lrtb"_s},
                                     {u"page-set"_s, u"all"_s},
                                     {u"orientation-requested"_s, u"3"_s},
                                     {u"mirror"_s, u"false"_s},
                                     {u"Duplex"_s, u"DuplexNoTumble"_s},
                                     {u"job-priority"_s, u"70"_s},
                                     {u"print-scaling"_s, u"none"_s},
                                     {u"outputorder"_s, u"normal"_s}};
        QCOMPARE(optionsAfterLayout(before), after);
    }

    void onlyAResultForAPrinterUsesTheFiltersOfItsPpd()
    {
        for (const Result result : {Result::PrinterData, Result::Pdf}) {
            const FilterPlan plan = planConversion(request({kText, kPicture}, result), kOneFile);
            int steps = 0;
            for (const FilterStep &step : plan)
                steps += step.arguments.contains(u"-e"_s) ? 1 : 0;
            QCOMPARE(steps, result == Result::PrinterData ? 1 : 0);
            for (const FilterStep &step : plan)
                QVERIFY(!step.arguments.contains(u"/server/printer.ppd"_s));
        }
    }

    void programsThatReadHostilePdfsHaveTheirTime()
    {
        const FilterPlan plan = planConversion(request({kPdf}, Result::ChosenPages), kPlaces);
        for (const FilterStep &step : plan)
            QVERIFY(step.patience.count() > 0);
    }

    void whatShapesThePagesOfATextIsKnown()
    {
        QVERIFY(shapesDocuments(kOptions));
        QVERIFY(!shapesDocuments({{u"number-up"_s, u"2"_s}, {u"Tray"_s, u"Lower"_s}}));
        QVERIFY(!shapesDocuments({}));
    }
};

QTEST_GUILESS_MAIN(FilterPlanTest)

#include "filter_plan_test.moc"
