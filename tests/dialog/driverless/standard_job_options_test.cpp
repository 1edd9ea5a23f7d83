#include <QSet>
#include <QTest>

#include "dialog/driverless/CapabilityPpd.h"
#include "dialog/driverless/StandardJobOptions.h"
#include "dialog/session/JobTicket.h"
#include "tests/dialog/driverless/PrinterProfiles.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

PrinterCapabilities profile(const char *name)
{
    return capabilitiesOf(printerProfile(name).ipp());
}

QString written(const QList<JobOption> &options)
{
    QStringList all;
    for (const JobOption &option : options)
        all += option.name + u'=' + option.value;
    return all.join(u' ');
}

/// A job as libcups sends it to a printer.
class EncodedJob
{
public:
    explicit EncodedJob(const QList<JobOption> &options) : m_ipp(ippNewRequest(IPP_OP_PRINT_JOB))
    {
        cups_option_t *encoded = nullptr;
        int count = 0;
        for (const JobOption &option : options)
            count = cupsAddOption(option.name.toUtf8().constData(),
                                  option.value.toUtf8().constData(), count, &encoded);
        cupsEncodeOptions2(m_ipp, count, encoded, IPP_TAG_JOB);
        cupsFreeOptions(count, encoded);
    }
    ~EncodedJob() { ippDelete(m_ipp); }
    Q_DISABLE_COPY_MOVE(EncodedJob)

    QString text(const char *name) const { return textIn(m_ipp, name); }
    int number(const char *name) const { return numberIn(m_ipp, name); }
    QString detail(const char *name) const { return textIn(details(), name); }
    int detailNumber(const char *name) const { return numberIn(details(), name); }
    QSize size() const
    {
        ipp_t *size = collectionIn(details(), "media-size");
        return {numberIn(size, "x-dimension"), numberIn(size, "y-dimension")};
    }

private:
    static ipp_attribute_t *find(ipp_t *ipp, const char *name)
    {
        return ippFindAttribute(ipp, name, IPP_TAG_ZERO);
    }
    static ipp_t *collectionIn(ipp_t *ipp, const char *name)
    {
        ipp_attribute_t *attribute = find(ipp, name);
        return attribute ? ippGetCollection(attribute, 0) : nullptr;
    }
    static QString textIn(ipp_t *ipp, const char *name)
    {
        ipp_attribute_t *attribute = find(ipp, name);
        return attribute ? QString::fromUtf8(ippGetString(attribute, 0, nullptr)) : QString();
    }
    static int numberIn(ipp_t *ipp, const char *name)
    {
        ipp_attribute_t *attribute = find(ipp, name);
        return attribute ? ippGetInteger(attribute, 0) : -1;
    }
    ipp_t *details() const { return collectionIn(m_ipp, "media-col"); }

    ipp_t *m_ipp;
};

} // namespace

/// Choices of a PPD in the words of the printer.
class StandardJobOptionsTest : public QObject
{
    Q_OBJECT

private:
    // What the printer gets for each choice of an option, less the choice "Custom".
    static QStringList valuesOf(const char *keyword, const PrinterCapabilities &printer,
                                QString (*value)(const EncodedJob &))
    {
        const auto session = sessionFor(ppdOfCapabilities(printer));
        const ppd_option_t *option = ppdOption(session->ppd(), QString::fromLatin1(keyword));
        QStringList values;
        for (int i = 0; option && i < option->num_choices; ++i) {
            const QString choice = ppdKeyword(option->choices[i].choice);
            if (choice == u"Custom"_s)
                continue;
            const EncodedJob job(
                standardJobOptions({{QString::fromLatin1(keyword), choice}}, printer));
            if (const QString got = value(job); !got.isEmpty())
                values += got;
        }
        return values;
    }

private Q_SLOTS:
    void aCoverSheetIsAskedForOnlyWhenSomebodyPickedIt_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QString>("attributes");
        QTest::newRow("untouched") << u"PrinterDefault"_s << u"job-sheets=secret,none"_s;
        QTest::newRow("picked") << u"Standard"_s << u"job-sheets=standard"_s;
        QTest::newRow("none picked") << u"None"_s << u"job-sheets=none"_s;
    }
    void aCoverSheetIsAskedForOnlyWhenSomebodyPickedIt()
    {
        QFETCH(QString, choice);
        QFETCH(QString, attributes);
        PrinterCapabilities printer;
        printer.jobSheets = {u"none"_s, u"standard"_s, u"secret"_s};
        const auto session = sessionFor(ppdOfCapabilities(printer));
        QCOMPARE(session->markedChoice(u"JobSheets"_s), u"PrinterDefault"_s);
        // What is picked comes before what a command line or a preference had set.
        QCOMPARE(written(standardJobOptions(
                     {{u"JobSheets"_s, choice}, {u"job-sheets"_s, u"secret,none"_s}}, printer)),
                 attributes);
        QCOMPARE(written(standardJobOptions({{u"JobSheets"_s, choice}}, printer)),
                 choice == u"PrinterDefault"_s ? QString() : attributes);
    }

    void everyListedValueIsExactlyOneChoice_data()
    {
        QTest::addColumn<QByteArray>("name");
        const QList<Profile> profiles = printerProfiles();
        for (const Profile &one : profiles)
            QTest::newRow(one.name) << QByteArray(one.name);
    }
    void everyListedValueIsExactlyOneChoice()
    {
        QFETCH(QByteArray, name);
        const PrinterCapabilities printer = profile(name.constData());
        const auto more = [](const QStringList &values) {
            return values.size() > 1 ? values : QStringList();
        };
        QCOMPARE(valuesOf("MediaType", printer,
                          [](const EncodedJob &job) { return job.detail("media-type"); }),
                 more(printer.mediaTypes));
        QCOMPARE(valuesOf("InputSlot", printer,
                          [](const EncodedJob &job) { return job.detail("media-source"); }),
                 more(printer.mediaSources));
        QCOMPARE(valuesOf("OutputBin", printer,
                          [](const EncodedJob &job) { return job.text("output-bin"); }),
                 more(printer.outputBins));
        if (!printer.sides.isEmpty())
            QCOMPARE(valuesOf("Duplex", printer,
                              [](const EncodedJob &job) { return job.text("sides"); }),
                     more(printer.sides));
        if (!printer.colorModes.isEmpty())
            QCOMPARE(valuesOf("ColorModel", printer,
                              [](const EncodedJob &job) { return job.text("print-color-mode"); }),
                     printer.colorModes);
        QStringList qualities;
        for (const int quality : printer.qualities)
            qualities += QString::number(quality);
        QCOMPARE(valuesOf("cupsPrintQuality", printer,
                          [](const EncodedJob &job) {
                              const int quality = job.number("print-quality");
                              return quality < 0 ? QString() : QString::number(quality);
                          }),
                 more(qualities));
    }

    void everyListedPaperIsExactlyOneChoice_data() { everyListedValueIsExactlyOneChoice_data(); }
    void everyListedPaperIsExactlyOneChoice()
    {
        QFETCH(QByteArray, name);
        const PrinterCapabilities printer = profile(name.constData());
        if (printer.sizes.isEmpty())
            return;
        QStringList expected;
        for (const MediaSize &size : printer.sizes) {
            const QString borderless =
                u"%1x%2 borderless"_s.arg(size.dimension.width()).arg(size.dimension.height());
            expected += size.margins.isBorderless() ? borderless : size.name;
            if (size.alsoBorderless)
                expected += borderless;
        }
        const auto paper = [](const EncodedJob &job) {
            for (const char *edge : {"left", "right", "top", "bottom"}) {
                const QByteArray margin = QByteArray("media-") + edge + "-margin";
                if (job.detailNumber(margin.constData()) != 0)
                    return job.text("media");
            }
            const QSize size = job.size();
            return u"%1x%2 borderless"_s.arg(size.width()).arg(size.height());
        };
        QCOMPARE(valuesOf("PageSize", printer, paper), expected);
    }

    void optionsAreSaidInTheWordsOfThePrinter_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QList<JobOption>>("given");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *what, const char *name, const QList<JobOption> &given,
                            const QString &expected) {
            QTest::newRow(what) << QByteArray(name) << given << expected;
        };
        row("nothing", "office laser", {}, QString());
        row("a paper alone goes by its name", "office laser", {{u"PageSize"_s, u"A5"_s}},
            u"media=iso_a5_148x210mm"_s);
        row("a paper with a type is described", "office laser",
            {{u"PageSize"_s, u"A5"_s}, {u"MediaType"_s, u"Labels"_s}},
            u"media-col={media-size={x-dimension=14800 y-dimension=21000} media-type=labels}"_s);
        row("a type with blanks is quoted", "photo inkjet", {{u"MediaType"_s, u"GlossyDeluxeII"_s}},
            u"media-col={media-type=\"Glossy Deluxe II\"}"_s);
        row("the printer's default is not said", "photo inkjet",
            {{u"PageSize"_s, u"A4"_s}, {u"MediaType"_s, u"PrinterDefault"_s}},
            u"media=iso_a4_210x297mm"_s);
        row("a made-up paper", "office laser", {{u"PageSize"_s, u"Custom.100x150mm"_s}},
            u"media=custom_100x150mm_100x150mm"_s);
        row("a made-up paper in points", "office laser",
            {{u"PageSize"_s, u"Custom.283.5x425.25"_s}},
            u"media=custom_100.01x150.02mm_100.01x150.02mm"_s);
        row("a made-up paper from a tray", "office laser",
            {{u"PageSize"_s, u"Custom.4x6in"_s}, {u"InputSlot"_s, u"ByPassTray"_s}},
            u"media-col={media-size={x-dimension=10160 y-dimension=15240} "
            "media-source=by-pass-tray}"_s);
        row("the largest paper, rounded to points", "office laser",
            {{u"PageSize"_s, u"Custom.612.29x1009.14"_s}}, u"media=custom_216x356mm_216x356mm"_s);
        row("several finishings are one attribute", "office laser",
            {{u"StapleLocation"_s, u"StapleTopLeft"_s}, {u"PunchMedia"_s, u"PunchDualLeft"_s}},
            u"finishings=20,74"_s);
        row("no finishing is not said", "office laser", {{u"StapleLocation"_s, u"None"_s}},
            QString());
        row("a resolution", "A3 with 500 media", {{u"Resolution"_s, u"1200dpi"_s}},
            u"printer-resolution=1200dpi"_s);
        row("others are passed on", "office laser",
            {{u"page-ranges"_s, u"1-4"_s}, {u"Duplex"_s, u"DuplexTumble"_s}, {u"x"_s, u"{y}"_s}},
            u"sides=two-sided-short-edge page-ranges=1-4 x={y}"_s);
        row("a printer that says nothing gets the standard's words", "queue of another server",
            {{u"PageSize"_s, u"A4"_s}, {u"Duplex"_s, u"None"_s}, {u"ColorModel"_s, u"Gray"_s}},
            u"media=iso_a4_210x297mm sides=one-sided print-color-mode=monochrome"_s);
        row("a printer that says nothing gets any size", "nothing known",
            {{u"PageSize"_s, u"Custom.100x150mm"_s}}, u"media=custom_100x150mm_100x150mm"_s);
        row("a known paper between limits", "label printer", {{u"PageSize"_s, u"4x6"_s}},
            u"media=custom_101.6x152.4mm_101.6x152.4mm"_s);
    }
    void optionsAreSaidInTheWordsOfThePrinter()
    {
        QFETCH(QByteArray, name);
        QFETCH(QList<JobOption>, given);
        QFETCH(QString, expected);
        QCOMPARE(written(standardJobOptions(given, profile(name.constData()))), expected);
    }

    void whatThePrinterDoesNotTakeIsLeftOutAndLogged_data()
    {
        QTest::addColumn<JobOption>("given");
        QTest::newRow("a paper") << JobOption{u"PageSize"_s, u"A0"_s};
        QTest::newRow("a paper in other letters") << JobOption{u"PageSize"_s, u"a4"_s};
        QTest::newRow("a size beyond the limits") << JobOption{u"PageSize"_s, u"Custom.9x99in"_s};
        QTest::newRow("no size") << JobOption{u"PageSize"_s, u"Custom.axb"_s};
        QTest::newRow("a unit that is none") << JobOption{u"PageSize"_s, u"Custom.9x9miles"_s};
        QTest::newRow("a size without end")
            << JobOption{u"PageSize"_s, u"Custom.999999999x999999999m"_s};
        QTest::newRow("a tray") << JobOption{u"InputSlot"_s, u"Tray9"_s};
    }
    void whatThePrinterDoesNotTakeIsLeftOutAndLogged()
    {
        QFETCH(JobOption, given);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QRegularExpression::escape(given.value)));
        QCOMPARE(written(standardJobOptions({given}, profile("office laser"))), QString());
    }

    void thePaperOfAPrinterWithoutCustomSizesCannotBeMadeUp()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no paper of the size"_s));
        QCOMPARE(written(standardJobOptions({{u"PageSize"_s, u"Custom.100x150mm"_s}},
                                            profile("photo inkjet"))),
                 QString());
    }

    void everyMarkOfASessionArrives()
    {
        const PrinterCapabilities printer = profile("office laser");
        const auto session = sessionFor(ppdOfCapabilities(printer));
        const EncodedJob job(
            standardJobOptions(jobOptions(*session, nullptr, {{u"copies"_s, u"2"_s}}), printer));
        QCOMPARE(job.size(), QSize(21000, 29700));
        QCOMPARE(job.detail("media-type"), u"stationery"_s);
        QCOMPARE(job.detail("media-source"), u"tray-1"_s);
        QCOMPARE(job.text("media"), QString());
        QCOMPARE(job.text("sides"), u"two-sided-long-edge"_s);
        QCOMPARE(job.text("print-color-mode"), u"auto"_s);
        QCOMPARE(job.number("print-quality"), 4);
        QCOMPARE(job.text("output-bin"), u"face-down"_s);
        QCOMPARE(job.number("copies"), 2);
        QCOMPARE(job.number("finishings"), -1);
    }
};

QTEST_GUILESS_MAIN(StandardJobOptionsTest)

#include "standard_job_options_test.moc"
