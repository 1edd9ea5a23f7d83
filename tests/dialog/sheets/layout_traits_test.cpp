#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/PpdFile.h"
#include "dialog/sheets/LayoutTraits.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Papers of its own, so that their numbers can be anything.
QByteArray ppdWith(const QByteArray &lines, const QByteArray &dimension = "595 842",
                   const QByteArray &area = "12 20 580 830")
{
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
           "*ModelName: \"Test\"\n*NickName: \"Test\"\n*PCFileName: \"T.PPD\"\n"
           "*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n*PageSize A4: \"\"\n"
           "*PageSize A5: \"\"\n*CloseUI: *PageSize\n*DefaultImageableArea: A4\n"
           "*ImageableArea A4: \"" +
           area +
           "\"\n*ImageableArea A5: \"0 0 420 595\"\n"
           "*DefaultPaperDimension: A4\n*PaperDimension A4: \"" +
           dimension + "\"\n*PaperDimension A5: \"420 595\"\n" + lines;
}

LayoutTraits traitsOf(const QByteArray &ppd, const QList<JobOption> &options)
{
    const auto session = sessionFor(ppd);
    return layoutTraits(session->ppd(), options);
}

struct Sided
{
    const char *name;
    QList<JobOption> options;
    bool isTwoSided;
};
const Sided kSided[] = {
    {"nothing said", {}, false},
    {"one-sided", {{u"Duplex"_s, u"None"_s}}, false},
    {"long edge", {{u"Duplex"_s, u"DuplexNoTumble"_s}}, true},
    {"short edge", {{u"Duplex"_s, u"DuplexTumble"_s}}, true},
    {"another option", {{u"EFDuplex"_s, u"LongEdge"_s}}, true},
    {"an option that the chain does not know", {{u"XDuplex"_s, u"LongEdge"_s}}, false},
    {"a choice that the chain does not know", {{u"Duplex"_s, u"Both"_s}}, false},
    {"the attribute", {{u"sides"_s, u"two-sided-long-edge"_s}}, true},
    {"the attribute, one-sided", {{u"sides"_s, u"one-sided"_s}}, false},
};

struct Order
{
    const char *name;
    QByteArray lines;
    QList<JobOption> options;
    bool isReversed;            // by the layout step
    bool isTurnedRound = false; // behind it
};
constexpr auto kPdfPrinter = "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n";
const Order kOrders[] = {
    {"nothing said", "", {}, false},
    {"the printer's own", "*DefaultOutputOrder: Reverse\n", {}, false, true},
    {"of a printer of PDF", QByteArray("*DefaultOutputOrder: Reverse\n") + kPdfPrinter, {}, true},
    {"of the tray",
     "*DefaultOutputOrder: Normal\n*PageStackOrder Up: Reverse\n",
     {{u"OutputBin"_s, u"Up"_s}},
     false,
     true},
    {"of another tray",
     "*DefaultOutputOrder: Reverse\n*PageStackOrder Down: Normal\n",
     {{u"OutputBin"_s, u"Down"_s}},
     false},
    {"asked for", "*DefaultOutputOrder: Normal\n", {{u"outputorder"_s, u"reverse"_s}}, true},
    {"asked not for",
     "*DefaultOutputOrder: Reverse\n",
     {{u"OutputOrder"_s, u"Normal"_s}},
     true,
     true},
    {"asked not for, of a printer of PDF",
     QByteArray("*DefaultOutputOrder: Reverse\n") + kPdfPrinter,
     {{u"OutputOrder"_s, u"Normal"_s}},
     false},
};

struct BadNumbers
{
    const char *name;
    QByteArray dimension;
    QByteArray area;
};
const BadNumbers kBadNumbers[] = {
    {"no paper at all", "0 0", "0 0 0 0"},
    {"less than nothing", "-595 -842", "0 0 0 0"},
    {"far too large", "1e30 1e30", "0 0 1e30 1e30"},
    {"no number", "nan nan", "nan nan nan nan"},
    {"margins that cross", "595 842", "500 800 10 10"},
    {"margins beyond the paper", "595 842", "-100 -100 9000 9000"},
    {"margins without end", "595 842", "inf -inf inf -inf"},
};

} // namespace

class LayoutTraitsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    PpdFile opened(const LayoutTraits &traits)
    {
        QString error;
        const QString path = writeFile(m_folder.filePath(u"l.ppd"_s), layoutPpd(traits));
        PpdFile ppd = openPpdFile(path, &error);
        if (!ppd)
            qWarning("%s", qPrintable(error));
        return ppd;
    }

private Q_SLOTS:
    void thePaperIsThatOfTheJob()
    {
        LayoutTraits traits = traitsOf(ppdWith(""), {{u"PageSize"_s, u"A4"_s}});
        QCOMPARE(traits.paper, QSizeF(595, 842));
        QCOMPARE(traits.margins, QMarginsF(12, 12, 15, 20));
        traits = traitsOf(ppdWith(""), {{u"PageSize"_s, u"A5"_s}});
        QCOMPARE(traits.paper, QSizeF(420, 595));
        traits =
            traitsOf(ppdWith("*HWMargins: 1 2 3 4\n*ParamCustomPageSize Width: 1 points 1 999\n"
                             "*ParamCustomPageSize Height: 2 points 1 999\n"),
                     {{u"PageSize"_s, u"Custom.100x200"_s}});
        QCOMPARE(traits.paper, QSizeF(100, 200));
        QCOMPARE(traits.margins, QMarginsF(1, 4, 3, 2));
    }

    void twoSidedIsWhatTheLayoutStepTakesForThat_data() { addRows(kSided); }
    void twoSidedIsWhatTheLayoutStepTakesForThat()
    {
        const Sided &row = currentRow(kSided);
        QCOMPARE(traitsOf(ppdWith(""), row.options).isTwoSided, row.isTwoSided);
    }

    void theOrderIsLookedUpWhereTheLayoutStepLooks_data() { addRows(kOrders); }
    void theOrderIsLookedUpWhereTheLayoutStepLooks()
    {
        const Order &row = currentRow(kOrders);
        const LayoutTraits traits = traitsOf(ppdWith(row.lines), row.options);
        QCOMPARE(traits.isReversed, row.isReversed);
        QCOMPARE(traits.isTurnedRound, row.isTurnedRound);
    }

    void aPrinterThatNeedsFullSheetsGetsThem()
    {
        QVERIFY(traitsOf(ppdWith("*cupsEvenDuplex: True\n"), {}).fillsSheets);
        QVERIFY(!traitsOf(ppdWith(""), {}).fillsSheets);
        QVERIFY(traitsOf(ppdWith("*LandscapeOrientation: Minus90\n"), {}).turnsRight);
    }

    void whatWasWrittenIsReadBack()
    {
        LayoutTraits traits =
            traitsOf(ppdWith("*DefaultOutputOrder: Reverse\n*cupsEvenDuplex: True\n"
                             "*LandscapeOrientation: Minus90\n"),
                     {{u"Duplex"_s, u"DuplexTumble"_s}, {u"outputorder"_s, u"normal"_s}});
        // What happens behind the layout step is nothing to its PPD.
        QVERIFY(traits.isReversed && traits.isTurnedRound);
        traits.isTurnedRound = false;
        const PpdFile ppd = opened(traits);
        QVERIFY(ppd);
        QCOMPARE(layoutTraits(ppd.get(), {{u"PageSize"_s, QString::fromLatin1(kLayoutPaper)},
                                          {u"Duplex"_s, u"DuplexNoTumble"_s}}),
                 traits);
        QVERIFY(ppdIsMarked(ppd.get(), "Duplex", "DuplexNoTumble"));
    }

    void impossibleNumbersBecomePossibleOnes_data() { addRows(kBadNumbers); }
    void impossibleNumbersBecomePossibleOnes()
    {
        const BadNumbers &row = currentRow(kBadNumbers);
        const LayoutTraits traits = traitsOf(ppdWith("", row.dimension, row.area), {});
        const PpdFile ppd = opened(traits);
        QVERIFY(ppd);
        const ppd_size_t *size = ppdPageSize(ppd.get(), kLayoutPaper);
        QVERIFY(size && size->width > 0 && size->length > 0);
        QVERIFY(size->left >= 0 && size->left < size->right && size->right <= size->width);
        QVERIFY(size->bottom >= 0 && size->bottom < size->top && size->top <= size->length);
    }

    void nothingElseOfThePrinterGoesIntoIt()
    {
        const LayoutTraits traits = traitsOf(
            ppdWith("*cupsFilter2: \"application/vnd.cups-pdf x/y 0 evil\"\n"
                    "*cupsPreFilter: \"application/pdf 0 evil\"\n"
                    "*PageStackOrder evil: Reverse\n*DefaultOutputOrder: evil\n"
                    "*LandscapeOrientation: evil\n*JCLBegin: \"evil\"\n*cupsEvenDuplex: evil\n"),
            {{u"PageSize"_s, u"evil\"\n*cupsFilter: \"evil"_s},
             {u"OutputBin"_s, u"evil"_s},
             {u"Duplex"_s, u"evil"_s}});
        const QByteArray ppd = layoutPpd(traits);
        QVERIFY(!ppd.contains("evil"));
        QCOMPARE(ppd.count("Filter"), 1);
        QVERIFY(ppd.contains("application/pdf 0 -\""));
    }
};

QTEST_MAIN(LayoutTraitsTest)

#include "layout_traits_test.moc"
