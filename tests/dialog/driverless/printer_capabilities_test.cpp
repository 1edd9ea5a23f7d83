#include <algorithm>
#include <limits>

#include <QTest>

#include "dialog/driverless/PrinterCapabilities.h"
#include "tests/dialog/driverless/PrinterProfiles.h"
#include "tests/dialog/server/IppBytes.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QStringList namesOf(const PrinterCapabilities &printer)
{
    QStringList names;
    for (const MediaSize &size : printer.sizes)
        names += size.name;
    return names;
}

MediaSize sizeNamed(const PrinterCapabilities &printer, const QString &name)
{
    for (const MediaSize &size : printer.sizes) {
        if (size.name == name)
            return size;
    }
    return {};
}

// An attribute of a type that no attribute of this name has.
using WrongType = void (*)(PrinterAttributes &, const char *name);

} // namespace

/// What is read from the attributes of a printer, well-formed or not.
class PrinterCapabilitiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingThatAnOfficePrinterSaysIsRead()
    {
        const PrinterCapabilities printer = capabilitiesOf(printerProfile("office laser").ipp());
        QCOMPARE(printer.info, u"Büro, 2. Stock"_s);
        QCOMPARE(printer.makeAndModel, u"Example Laser 2000 (PDF)"_s);
        QCOMPARE(printer.sizes.size(), 8);
        const MediaMargins margins{423, 423, 423, 423};
        QCOMPARE(printer.sizes.at(0),
                 (MediaSize{u"iso_a4_210x297mm"_s, {21000, 29700}, margins, false}));
        QCOMPARE(printer.sizes.at(7).dimension, QSize(27500, 39500));
        QCOMPARE(printer.customSizes, (MediaSizeRange{{7600, 12700}, {21600, 35600}}));
        QCOMPARE(printer.defaultSize, u"iso_a4_210x297mm"_s);
        QCOMPARE(printer.readySizes, QStringList{u"na_letter_8.5x11in"_s});
        QCOMPARE(printer.mediaTypes, (QStringList{u"stationery"_s, u"stationery-letterhead"_s,
                                                  u"envelope"_s, u"labels"_s}));
        QCOMPARE(printer.defaultMediaType, u"stationery"_s);
        QCOMPARE(printer.mediaSources,
                 (QStringList{u"auto"_s, u"tray-1"_s, u"tray-2"_s, u"by-pass-tray"_s}));
        QCOMPARE(printer.defaultMediaSource, u"tray-1"_s);
        QVERIFY(printer.mediaDetails);
        QCOMPARE(printer.sides.size(), 3);
        QCOMPARE(printer.defaultSides, u"two-sided-long-edge"_s);
        QCOMPARE(printer.colorModes, (QStringList{u"auto"_s, u"color"_s, u"monochrome"_s}));
        QCOMPARE(printer.defaultColorMode, u"auto"_s);
        QCOMPARE(printer.qualities, (QList<int>{3, 4, 5}));
        QCOMPARE(printer.defaultQuality, 4);
        QCOMPARE(printer.resolutions, (QList<QSize>{{300, 300}, {600, 600}, {1200, 1200}}));
        QCOMPARE(printer.defaultResolution, QSize(600, 600));
        QCOMPARE(printer.outputBins, (QStringList{u"face-down"_s, u"face-up"_s, u"mailbox-1"_s}));
        QCOMPARE(printer.defaultOutputBin, u"face-down"_s);
        QCOMPARE(printer.finishings, (QList<int>{4, 5, 20, 22, 28, 74}));
        QCOMPARE(printer.documentFormats.size(), 3);
        QCOMPARE(printer.maximumCopies, 999);
        QCOMPARE(printer.jobSheets, (QStringList{u"none"_s, u"standard"_s}));
    }

    void copiesAreLimitedOnlyByARange_data()
    {
        QTest::addColumn<bool>("isRange");
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("most");
        QTest::newRow("range") << true << 25 << 25;
        QTest::newRow("backwards") << true << -3 << 0;
        QTest::newRow("number") << false << 25 << 0;
    }
    void copiesAreLimitedOnlyByARange()
    {
        QFETCH(bool, isRange);
        QFETCH(int, number);
        QFETCH(int, most);
        PrinterAttributes printer;
        if (isRange)
            printer.range("copies-supported", 1, number);
        else
            printer.integers("copies-supported", {number});
        QCOMPARE(capabilitiesOf(printer.ipp()).maximumCopies, most);
    }

    void aQueueOfAServerTakesNoDetailsOfThePaper()
    {
        const PrinterCapabilities printer =
            capabilitiesOf(printerProfile("queue of another server").ipp());
        QVERIFY(!printer.mediaDetails);
        QCOMPARE(printer.maximumCopies, 9999);
        auto office = printerProfile("office laser");
        office.enums("printer-type", {4});
        QVERIFY(capabilitiesOf(office.ipp()).mediaTypes.isEmpty());
        QVERIFY(capabilitiesOf(office.ipp()).mediaSources.isEmpty());
    }

    void aDefaultThatIsNotSupportedIsNone()
    {
        // As a queue without a driver says it.
        const PrinterCapabilities printer =
            capabilitiesOf(printerProfile("queue of another server").ipp());
        QCOMPARE(printer.defaultColorMode, QString());
        QCOMPARE(printer.defaultQuality, 0);
    }

    void papersHaveTheLargestOfTheirMargins()
    {
        const PrinterCapabilities printer = capabilitiesOf(printerProfile("photo inkjet").ipp());
        const MediaSize a4 = sizeNamed(printer, u"iso_a4_210x297mm"_s);
        QCOMPARE(a4.margins, (MediaMargins{300, 300, 300, 300}));
        QVERIFY(!a4.alsoBorderless);
        const MediaSize photo = sizeNamed(printer, u"na_index-4x6_4x6in"_s);
        QCOMPARE(photo.margins, (MediaMargins{300, 300, 300, 300}));
        QVERIFY(photo.alsoBorderless);
        const MediaSize postcard = sizeNamed(printer, u"jpn_hagaki_100x148mm"_s);
        QVERIFY(postcard.margins.isBorderless());
        QVERIFY(!postcard.alsoBorderless);
    }

    void withoutADatabaseAllPapersAreBorderlessWhereAllMarginsMayBeNothing_data()
    {
        QTest::addColumn<QList<int>>("bottom");
        QTest::addColumn<bool>("borderless");
        QTest::newRow("all of them") << QList<int>{0, 500} << true;
        QTest::newRow("not the lower one") << QList<int>{500} << false;
        QTest::newRow("only absurd ones") << QList<int>{-1, 1'000'000} << false;
    }
    void withoutADatabaseAllPapersAreBorderlessWhereAllMarginsMayBeNothing()
    {
        QFETCH(QList<int>, bottom);
        QFETCH(bool, borderless);
        const auto attributes = PrinterAttributes()
                                    .keywords("media-supported", {"iso_a4_210x297mm"})
                                    .integers("media-left-margin-supported", {0, 300})
                                    .integers("media-right-margin-supported", {0, 300})
                                    .integers("media-top-margin-supported", {0, 300})
                                    .integers("media-bottom-margin-supported", bottom);
        const PrinterCapabilities printer = capabilitiesOf(attributes.ipp());
        QCOMPARE(printer.sizes.at(0).alsoBorderless, borderless);
        QCOMPARE(printer.sizes.at(0).margins.top, 300);
    }

    void papersThatOnlyTheirSizesTellGetTheirNames()
    {
        const auto attributes = PrinterAttributes().collections(
            "media-size-supported",
            {mediaSize(21000, 29700), mediaSize(12345, 23456),
             mediaSizeRange(5000, 22000, 6000, 40000), mediaSize(21000, 29700), mediaSize(-5, 0)});
        const PrinterCapabilities printer = capabilitiesOf(attributes.ipp());
        QCOMPARE(namesOf(printer),
                 (QStringList{u"iso_a4_210x297mm"_s, u"custom_123.45x234.56mm_123.45x234.56mm"_s}));
        QCOMPARE(printer.customSizes, (MediaSizeRange{{5000, 6000}, {22000, 40000}}));
    }

    void theDefaultPaperComesFromWhateverSaysIt_data()
    {
        QTest::addColumn<QByteArray>("media");
        QTest::addColumn<bool>("details");
        QTest::addColumn<QByteArray>("ready");
        QTest::addColumn<QString>("expected");
        const QByteArray a4 = "iso_a4_210x297mm";
        const QByteArray a5 = "iso_a5_148x210mm";
        const QByteArray odd = "custom_label_50x100mm";
        QTest::newRow("its name") << a5 << true << a4 << u"iso_a5_148x210mm"_s;
        QTest::newRow("a size in the range of custom ones")
            << odd << true << a4 << u"custom_label_50x100mm"_s;
        QTest::newRow("its details")
            << QByteArray("unknown") << true << a5 << u"iso_a4_210x297mm"_s;
        QTest::newRow("what is loaded")
            << QByteArray("big") << false << a5 << u"iso_a5_148x210mm"_s;
        QTest::newRow("a paper that is not taken") << QByteArray("iso_a0_841x1189mm") << false
                                                   << QByteArray("iso_a1_594x841mm") << QString();
    }
    void theDefaultPaperComesFromWhateverSaysIt()
    {
        QFETCH(QByteArray, media);
        QFETCH(bool, details);
        QFETCH(QByteArray, ready);
        QFETCH(QString, expected);
        auto attributes =
            PrinterAttributes()
                .keywords("media-supported", {"iso_a4_210x297mm", "iso_a5_148x210mm",
                                              "custom_min_40x40mm", "custom_max_216x356mm"})
                .keywords("media-default", {media})
                .keywords("media-ready", {ready});
        if (details)
            attributes.collections("media-col-default", {mediaDefault(21000, 29700, "a", "b")});
        QCOMPARE(capabilitiesOf(attributes.ipp()).defaultSize, expected);
    }

    void whatCannotBeAMediaNameIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name :
             {"", " ", "auto", "main", "A4\nLetter", "custom_x_99999999999x1in", "x_y_-3x5mm",
              "x_y_0x0mm", "x_y_0.5x100mm", "x_y_100x60000mm", "iso_a4_210x297mm\x01", "{",
              "iso_a4,_210x297mm", "caf\xe9_x_100x200mm", "oe_\"_4x6in", "custom_min_", "_x_"})
            QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
    }
    void whatCannotBeAMediaNameIsLeftOut()
    {
        QFETCH(QByteArray, name);
        const auto attributes =
            PrinterAttributes().names("media-supported", {name, "iso_a5_148x210mm", name});
        QCOMPARE(namesOf(capabilitiesOf(attributes.ipp())), QStringList{u"iso_a5_148x210mm"_s});
    }

    void whatCannotBeAJobOptionIsLeftOut()
    {
        const auto attributes =
            PrinterAttributes()
                .keywords("media-col-supported", {"media-size", "media-type"})
                .names("media-type-supported",
                       {"plain", "a,b", "{x}", "tab\there", "plain", "say \"hi\"", "back\\slash",
                        "\xff\xfe", "Photo Glossy", QByteArray(256, 'x'), "new\nline", "  ", ""});
        QCOMPARE(capabilitiesOf(attributes.ipp()).mediaTypes,
                 (QStringList{u"plain"_s, u"Photo Glossy"_s}));
    }

    void textsForPeopleAreOneLine()
    {
        const auto attributes = PrinterAttributes()
                                    .text("printer-info", "Room\t12\nleft ")
                                    .text("printer-make-and-model", "Bro\xffken");
        const PrinterCapabilities printer = capabilitiesOf(attributes.ipp());
        QCOMPARE(printer.info, u"Room 12 left"_s);
        QCOMPARE(printer.makeAndModel, QString());
    }

    void limitsThatContradictEachOtherAreNone_data()
    {
        QTest::addColumn<QList<QByteArray>>("media");
        using Names = QList<QByteArray>;
        QTest::newRow("smallest above largest")
            << Names{"custom_min_300x300mm", "custom_max_200x400mm"};
        QTest::newRow("only a smallest") << Names{"custom_min_30x30mm"};
        QTest::newRow("only a largest") << Names{"custom_max_200x400mm"};
        QTest::newRow("absurd") << Names{"custom_min_1x1mm", "custom_max_99999999999x1in"};
    }
    void limitsThatContradictEachOtherAreNone()
    {
        QFETCH(QList<QByteArray>, media);
        const auto attributes = PrinterAttributes().keywords("media-supported", media);
        const PrinterCapabilities printer = capabilitiesOf(attributes.ipp());
        QVERIFY(!printer.customSizes);
        QVERIFY(printer.sizes.isEmpty());
    }

    void marginsThatLeaveNothingAreNone()
    {
        const auto attributes =
            PrinterAttributes().collections("media-col-database", {media(5000, 5000, 2500)});
        QVERIFY(capabilitiesOf(attributes.ipp()).sizes.at(0).margins.isBorderless());
    }

    void resolutionsPerCentimetreAreConverted()
    {
        const PrinterAttributes attributes;
        ippAddResolution(attributes.ipp(), IPP_TAG_PRINTER, "printer-resolution-supported",
                         IPP_RES_PER_CM, 236, 118);
        QCOMPARE(capabilitiesOf(attributes.ipp()).resolutions, QList<QSize>{QSize(599, 300)});
    }

    // The unit is one byte, whatever the enumeration has.
    void resolutionsOfAnUnknownUnitAreLeftOut()
    {
        const auto resolution = [](const QByteArray &name, int dots, int unit) {
            const QByteArray number = QByteArray(2, '\0') + twoBytes(dots);
            return ippField(IPP_TAG_RESOLUTION, name, number + number + static_cast<char>(unit));
        };
        QByteArray bytes =
            ippAnswerBytes(resolution("printer-resolution-supported", 600, IPP_RES_PER_INCH) +
                           resolution({}, 300, 200) + resolution({}, 1200, 0) +
                           resolution("printer-resolution-default", 300, 200));
        const auto read = [](void *rest, ipp_uchar_t *buffer, size_t length) {
            auto &left = *static_cast<QByteArray *>(rest);
            const auto part = std::min(left.size(), static_cast<qsizetype>(length));
            std::copy_n(left.cbegin(), part, buffer);
            left.remove(0, part);
            return static_cast<ssize_t>(part);
        };
        const PrinterAttributes attributes;
        while (ippReadIO(&bytes, read, 1, nullptr, attributes.ipp()) == IPP_STATE_ATTRIBUTE) {
        }
        QCOMPARE(bytes.size(), 0);
        const PrinterCapabilities printer = capabilitiesOf(attributes.ipp());
        QCOMPARE(printer.resolutions, (QList<QSize>{{600, 600}}));
        QVERIFY(printer.defaultResolution.isEmpty());
    }

    void absurdNumbersAreLeftOut()
    {
        constexpr int kMost = std::numeric_limits<int>::max();
        const auto attributes = PrinterAttributes()
                                    .enums("print-quality-supported", {-1, 0, 2, 6, kMost})
                                    .enums("finishings-supported", {-7, 0, 3})
                                    .resolutions("printer-resolution-supported", {-600, 0, kMost})
                                    .range("copies-supported", -5, -1);
        QCOMPARE(capabilitiesOf(attributes.ipp()), PrinterCapabilities());
    }

    void attributesOfAWrongTypeAreAsIfTheyWereNot_data()
    {
        QTest::addColumn<WrongType>("add");
        QTest::addColumn<QStringList>("rightFor");
        const auto row = [](const char *name, WrongType add, const QStringList &rightFor = {}) {
            QTest::newRow(name) << add << rightFor;
        };
        row("no value", [](PrinterAttributes &a, const char *name) { a.unknown(name); });
        row("a boolean", [](PrinterAttributes &a, const char *name) { a.boolean(name, true); },
            {u"multiple-document-jobs-supported"_s});
        row("a number", [](PrinterAttributes &a, const char *name) { a.integers(name, {-99}); });
        row("a resolution",
            [](PrinterAttributes &a, const char *name) { a.resolutions(name, {0}); });
        row("a range", [](PrinterAttributes &a, const char *name) { a.range(name, 1, 2); },
            {u"copies-supported"_s});
        row("an empty text", [](PrinterAttributes &a, const char *name) { a.text(name, ""); });
        row("a collection of something else",
            [](PrinterAttributes &a, const char *name) { a.collections(name, {mediaSize(1, 1)}); });
        row("an empty collection",
            [](PrinterAttributes &a, const char *name) { a.collections(name, {ippNew()}); });
    }
    void attributesOfAWrongTypeAreAsIfTheyWereNot()
    {
        QFETCH(WrongType, add);
        QFETCH(QStringList, rightFor);
        PrinterAttributes attributes;
        for (int i = 0; i < capabilityAttributeCount(); ++i) {
            if (!rightFor.contains(QLatin1StringView(kCapabilityAttributes[i])))
                add(attributes, kCapabilityAttributes[i]);
        }
        QCOMPARE(capabilitiesOf(attributes.ipp()), PrinterCapabilities());
    }

    void noAnswerIsAPrinterOfWhichNothingIsKnown()
    {
        QCOMPARE(capabilitiesOf(nullptr), PrinterCapabilities());
    }

    void thousandsOfPapersAreCutToAThousand()
    {
        QList<QByteArray> media;
        for (int i = 0; i < 5000; ++i)
            media +=
                "om_sheet-" + QByteArray::number(i) + "_100x" + QByteArray::number(100 + i) + "mm";
        const auto attributes = PrinterAttributes().keywords("media-supported", media);
        QCOMPARE(capabilitiesOf(attributes.ipp()).sizes.size(), 1000);
    }

    void theListOfAttributesEndsWithANull()
    {
        QVERIFY(capabilityAttributeCount() > 20);
        QVERIFY(!kCapabilityAttributes[capabilityAttributeCount()]);
    }
};

QTEST_GUILESS_MAIN(PrinterCapabilitiesTest)

#include "printer_capabilities_test.moc"
