#include <QTest>

#include "dialog/job/FilterPlan.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

const FilterPlaces kPlaces{u"/sbin/cupsfilter"_s, u"/parts/printer.ppd"_s, u"/parts"_s};
const Document kText{u"/one.txt"_s, u"text/plain"_s, u"one.txt"_s};
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

// What the chain is called with. `more` stand between the format and the options.
FilterStep conversion(const Document &document, const QString &format, const QStringList &more,
                      const QStringList &options, const QString &output, const QString &name)
{
    QStringList arguments{u"-p"_s, kPlaces.ppd, u"-i"_s, document.format, u"-m"_s, format};
    arguments += more;
    for (const QString &option : options)
        arguments << u"-o"_s << option;
    return {kPlaces.cupsFilter, arguments << document.path, output, name};
}

FilterStep part(const Document &document, const QString &file)
{
    return conversion(document, u"application/pdf"_s, {}, {u"PageSize=A5"_s, u"cpi=12"_s}, file,
                      file);
}

FilterStep uniting(const QString &output, const QString &name)
{
    return {u"pdfunite"_s,
            {u"/parts/0.pdf"_s, u"/parts/1.pdf"_s, output},
            output,
            name,
            FilterStep::Writes::FileOfItsOwn};
}

FilterStep printing(const Document &document)
{
    return conversion(document, u"printer/foo"_s, {u"-e"_s, u"-t"_s, u"Title"_s, u"-n"_s, u"3"_s},
                      {u"PageSize=A5"_s, u"cpi=12"_s, u"number-up=2"_s, u"Tray=Lower"_s},
                      u"/out.part"_s, u"out.ps"_s);
}

const Document kWhole{u"/parts/whole.pdf"_s, u"application/pdf"_s, u"Title"_s};

} // namespace

/// Which programs are run with what. Nothing runs here.
class FilterPlanTest : public QObject
{
    Q_OBJECT

    using Result = ConversionRequest::Result;

private Q_SLOTS:
    void oneDocumentIsPrintedInOneStep()
    {
        QCOMPARE(planConversion(request({kText}, Result::PrinterData), kPlaces),
                 FilterPlan{printing(kText)});
    }

    void severalDocumentsBecomeOneFirst()
    {
        QCOMPARE(planConversion(request({kText, kPicture}, Result::PrinterData), kPlaces),
                 (FilterPlan{part(kText, u"/parts/0.pdf"_s), part(kPicture, u"/parts/1.pdf"_s),
                             uniting(kWhole.path, kWhole.path), printing(kWhole)}));
    }

    void aPdfOfOneDocumentHasItsPaperAndNoOtherChoice()
    {
        FilterStep step = part(kText, u"/out.part"_s);
        step.outputName = u"out.ps"_s;
        QCOMPARE(planConversion(request({kText}, Result::Pdf), kPlaces), FilterPlan{step});
    }

    void aPdfOfSeveralEndsWithTheirUnion()
    {
        QCOMPARE(planConversion(request({kText, kPicture}, Result::Pdf), kPlaces),
                 (FilterPlan{part(kText, u"/parts/0.pdf"_s), part(kPicture, u"/parts/1.pdf"_s),
                             uniting(u"/out.part"_s, u"out.ps"_s)}));
    }

    void aPdfIsLaidOutWhereThatIsAskedFor()
    {
        ConversionRequest laidOut = request({kText}, Result::Pdf);
        laidOut.layout = {{u"page-ranges"_s, u"2-3"_s}};
        QCOMPARE(planConversion(laidOut, kPlaces),
                 (FilterPlan{part(kText, kWhole.path),
                             conversion(kWhole, u"application/vnd.cups-pdf"_s, {},
                                        {u"PageSize=A5"_s, u"cpi=12"_s, u"page-ranges=2-3"_s},
                                        u"/out.part"_s, u"out.ps"_s)}));
    }

    void onlyAResultForAPrinterUsesTheFiltersOfItsPpd()
    {
        for (const Result result : {Result::PrinterData, Result::Pdf}) {
            const FilterPlan plan = planConversion(request({kText, kPicture}, result), kPlaces);
            int steps = 0;
            for (const FilterStep &step : plan)
                steps += step.arguments.contains(u"-e"_s) ? 1 : 0;
            QCOMPARE(steps, result == Result::PrinterData ? 1 : 0);
            for (const FilterStep &step : plan)
                QVERIFY(!step.arguments.contains(u"/server/printer.ppd"_s));
        }
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
