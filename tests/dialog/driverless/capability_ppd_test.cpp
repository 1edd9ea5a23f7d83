#include <clocale>
#include <thread>

#include <QLocale>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/driverless/CapabilityPpd.h"
#include "dialog/job/CupsFilter.h"
#include "dialog/job/FileJob.h"
#include "dialog/session/AttributeChoices.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/Summary.h"
#include "tests/dialog/driverless/PrinterProfiles.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

PrinterCapabilities profile(const char *name)
{
    return capabilitiesOf(printerProfile(name).ipp());
}

std::unique_ptr<PpdSession> sessionOf(const PrinterCapabilities &printer)
{
    return sessionFor(ppdOfCapabilities(printer));
}

// What cupstestppd has against a PPD; empty when it has nothing.
QString complaints(const QByteArray &ppd)
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"test.ppd"_s), ppd);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(u"cupstestppd"_s, {u"-vv"_s, path});
    if (!program.waitForFinished())
        return program.errorString();
    const QString report = QString::fromUtf8(program.readAll());
    static const QRegularExpression bad(u"WARN|FAIL"_s);
    const bool passed = program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0;
    if (passed && report.contains(u"PASS"_s) && !bad.match(report).hasMatch())
        return {};
    QStringList lines = report.split(u'\n').filter(bad);
    return lines.isEmpty() ? report : lines.join(u'\n');
}

QStringList choicesOf(const PpdSession &session, const QString &keyword)
{
    QStringList choices;
    const ppd_option_t *option = ppdOption(session.ppd(), keyword);
    for (int i = 0; option && i < option->num_choices; ++i)
        choices += ppdKeyword(option->choices[i].choice);
    return choices;
}

QString defaultOf(const PpdSession &session, const QString &keyword)
{
    return session.markedChoice(keyword);
}

// The texts of an option in a language: of its choices by their keywords, and its title without
// one. libcups settles the language once a thread.
QMap<QString, QString> textsIn(const QByteArray &language, const QByteArray &ppdText,
                               const QString &keyword)
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder.filePath(u"test.ppd"_s), ppdText);
    qputenv("LC_ALL", language);
    std::setlocale(LC_ALL, "C");
    QMap<QString, QString> texts;
    std::thread reader([&] {
        QString error;
        const PpdFile ppd = openPpdFile(path, &error);
        const ppd_option_t *option = ppd ? ppdOption(ppd.get(), keyword) : nullptr;
        if (!option)
            return;
        texts.insert(QString(), corvana::ppdText(option->text).value_or(u"not UTF-8"_s));
        for (int i = 0; i < option->num_choices; ++i)
            texts.insert(ppdKeyword(option->choices[i].choice),
                         corvana::ppdText(option->choices[i].text).value_or(u"not UTF-8"_s));
    });
    reader.join();
    qputenv("LC_ALL", "C.UTF-8");
    std::setlocale(LC_ALL, "");
    return texts;
}

void addProfiles()
{
    QTest::addColumn<QByteArray>("name");
    const QList<Profile> profiles = printerProfiles();
    for (const Profile &one : profiles)
        QTest::newRow(one.name) << QByteArray(one.name);
}

// A string of bytes that a careless or hostile printer might send.
QByteArray anyBytes(QRandomGenerator &random)
{
    constexpr char kMeaningful[] = "*\"/:<>{}%\n\r\t\\()[] ,=;.'";
    QByteArray bytes;
    for (int length = random.bounded(60); length > 0; --length) {
        switch (random.bounded(5)) {
        case 0:
            bytes += kMeaningful[random.bounded(int(sizeof kMeaningful) - 1)];
            break;
        case 1:
            bytes += QString(QChar(random.bounded(0xa0, 0xd000))).toUtf8();
            break;
        case 2:
            bytes += char(random.bounded(1, 256));
            break;
        default:
            bytes += char('a' + random.bounded(26));
        }
    }
    return bytes;
}

QByteArray anyMedia(QRandomGenerator &random)
{
    const auto length = [&] { return QByteArray::number(random.bounded(1, 900)); };
    return "om_" + anyBytes(random) + '_' + length() + 'x' + length() +
           (random.bounded(2) ? "mm" : "in");
}

// A printer that lists anything under every name.
PrinterAttributes anyPrinter(quint32 seed)
{
    QRandomGenerator random(seed);
    const auto list = [&](auto make) {
        QList<QByteArray> values;
        for (int count = random.bounded(1, 40); count > 0; --count)
            values += make(random);
        return values;
    };
    PrinterAttributes attributes;
    attributes.text("printer-info", anyBytes(random))
        .text("printer-make-and-model", anyBytes(random))
        .names("media-supported", list(anyMedia))
        .names("media-default", list(anyBytes))
        .keywords("media-col-supported", {"media-size", "media-type", "media-source"})
        .names("media-type-supported", list(anyBytes))
        .names("media-source-supported", list(anyBytes))
        .names("output-bin-supported", list(anyBytes))
        .names("print-color-mode-supported", list(anyBytes))
        .names("sides-supported", list(anyBytes))
        .integers("media-left-margin-supported", {int(random.generate()), 100})
        .integers("media-top-margin-supported", {int(random.bounded(10'000)), 0})
        .enums("print-quality-supported", {int(random.generate()), random.bounded(7), 4})
        .enums("finishings-supported", {random.bounded(3, 110), random.bounded(3, 110)})
        .resolutions("printer-resolution-supported",
                     {int(random.generate()), random.bounded(2400)});
    return attributes;
}

} // namespace

/// The PPDs of printers that have none.
class CapabilityPpdTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAttributeFindsTheChoicesThatStandForIt()
    {
        const auto session = sessionOf(profile("office laser"));
        const auto choice = [&](const QString &name, const QString &value) {
            const AttributeChoices found =
                AttributeReader(session->ppd(), nullptr).read({name, value});
            QStringList choices;
            for (const JobOption &one : found.choices)
                choices += one.name + u'=' + one.value;
            return choices.join(u' ');
        };
        QCOMPARE(choice(u"finishings"_s, u"staple-top-left"_s), u"StapleLocation=StapleTopLeft"_s);
        QCOMPARE(choice(u"finishings"_s, u"20"_s), u"StapleLocation=StapleTopLeft"_s);
        QCOMPARE(choice(u"print-color-mode"_s, u"monochrome"_s), u"ColorModel=Gray"_s);
    }

    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void thePpdHasNoFault_data() { addProfiles(); }
    void thePpdHasNoFault()
    {
        QFETCH(QByteArray, name);
        if (QStandardPaths::findExecutable(u"cupstestppd"_s).isEmpty())
            QSKIP("cupstestppd is not installed");
        const QString found = complaints(ppdOfCapabilities(profile(name.constData())));
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }

    void theFaultsOfAPpdAreSeen()
    {
        if (QStandardPaths::findExecutable(u"cupstestppd"_s).isEmpty())
            QSKIP("cupstestppd is not installed");
        QByteArray ppd = ppdOfCapabilities({});
        ppd.replace("*ja.Duplex None", "*ja.Duplex Nothing");
        QVERIFY(!complaints(ppd).isEmpty());
        QVERIFY(!complaints("Dear printer,\n").isEmpty());
    }

    void whateverAPrinterSaysItsPpdHasNoFault_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 40; ++seed)
            QTest::addRow("%u", seed) << seed;
    }
    void whateverAPrinterSaysItsPpdHasNoFault()
    {
        QFETCH(quint32, seed);
        const PrinterCapabilities printer = capabilitiesOf(anyPrinter(seed).ipp());
        const QByteArray ppd = ppdOfCapabilities(printer);
        const auto session = sessionFor(ppd);
        QVERIFY(!session->markedChoice(kPageSizeOption).isNull());
        const qsizetype types = printer.mediaTypes.size();
        QCOMPARE(choicesOf(*session, u"MediaType"_s).size(), types > 1 ? types + 1 : 0);
        if (!QStandardPaths::findExecutable(u"cupstestppd"_s).isEmpty()) {
            const QString found = complaints(ppd);
            QVERIFY2(found.isEmpty(), qPrintable(found));
        }
    }

    void aSessionHasTheGeneralOptions_data() { addProfiles(); }
    void aSessionHasTheGeneralOptions()
    {
        QFETCH(QByteArray, name);
        const PrinterCapabilities printer = profile(name.constData());
        const auto session = sessionOf(printer);
        QVERIFY(!session->markedChoice(kPageSizeOption).isNull());
        QVERIFY(!optionLine(*session, kPageSizeOption).value.isEmpty());
        QVERIFY(session->pageFormat().paper.width > 0);
        const bool bothSides = printer.sides.size() != 1;
        QCOMPARE(ppdOption(session->ppd(), kDuplexOption) != nullptr, bothSides);
        if (bothSides) {
            QCOMPARE(choicesOf(*session, kDuplexOption).value(0), QString(kDuplexNone));
            QCOMPARE(ppdKeyword(ppdOption(session->ppd(), kDuplexOption)->defchoice),
                     QString(kDuplexNone));
        }
    }

    void whatThePrinterDefaultsToIsMarked_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        const auto row = [](const char *name, const char *keyword, const char *choice) {
            QTest::addRow("%s: %s", name, keyword)
                << QByteArray(name) << QString::fromLatin1(keyword) << QString::fromLatin1(choice);
        };
        row("office laser", "PageSize", "A4");
        row("office laser", "Duplex", "DuplexNoTumble");
        row("office laser", "ColorModel", "Auto");
        row("office laser", "cupsPrintQuality", "Normal");
        row("office laser", "MediaType", "Stationery");
        row("office laser", "InputSlot", "Tray1");
        row("office laser", "OutputBin", "FaceDown");
        row("office laser", "StapleLocation", "None");
        row("nothing known", "Duplex", "None");
        row("nothing known", "ColorModel", "RGB");
        row("label printer", "PageSize", "100x192mm");
        row("label printer", "ColorModel", "Gray");
        row("label printer", "Resolution", "203dpi");
        row("photo inkjet", "PageSize", "4x6");
        row("photo inkjet", "MediaType", "PrinterDefault");
        row("A3 with 500 media", "PageSize", "A3");
        row("A3 with 500 media", "Resolution", "600dpi");
    }
    void whatThePrinterDefaultsToIsMarked()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QCOMPARE(defaultOf(*sessionOf(profile(name.constData())), keyword), choice);
    }

    void theGenericPaperIsTheOneOfTheRegion()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(defaultOf(*sessionOf({}), kPageSizeOption), u"Letter"_s);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(defaultOf(*sessionOf({}), kPageSizeOption), u"A4"_s);
    }

    void papersBetweenTheLimitsCanBeMadeUp()
    {
        const auto session = sessionOf(profile("office laser"));
        const auto check = [&](const QString &value) {
            return checkCustomValue(session->ppd(), kPageSizeOption, value).value.has_value();
        };
        QVERIFY(check(u"Custom.100x150mm"_s));
        QVERIFY(check(u"Custom.216x356mm"_s));
        QVERIFY(!check(u"Custom.217x356mm"_s));
        QVERIFY(!check(u"Custom.75x127mm"_s));
        QVERIFY(!takesCustomPageSizes(sessionOf(profile("photo inkjet"))->ppd()));
        QVERIFY(takesCustomPageSizes(sessionOf({})->ppd()));
    }

    void marginsAreThoseOfThePrinter()
    {
        const auto session = sessionOf(profile("photo inkjet"));
        const ppd_size_t *plain = ppdPageSize(session->ppd(), "4x6");
        QCOMPARE(qRound(plain->left * 100), 850); // 3 mm
        QCOMPARE(qRound(plain->top * 100), 43200 - 850);
        const ppd_size_t *borderless = ppdPageSize(session->ppd(), "4x6.Fullbleed");
        QCOMPARE(borderless->left, 0.0F);
        QCOMPARE(borderless->top, 432.0F);
    }

    void textsAreInTheUsersLanguage_data()
    {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QString>("maker");
        QTest::newRow("English") << QByteArray("en_US.UTF-8") << u"Paper Type"_s
                                 << u"Glossy Photo Paper"_s << u"光沢紙"_s;
        QTest::newRow("Japanese") << QByteArray("ja_JP.UTF-8") << u"用紙の種類"_s
                                  << u"光沢写真用紙"_s << u"光沢紙"_s;
        QTest::newRow("Chinese") << QByteArray("zh_CN.UTF-8") << u"介质类型"_s << u"光面照片纸"_s
                                 << u"光沢紙"_s;
        QTest::newRow("Austria") << QByteArray("de_AT.UTF-8") << u"Papiertyp"_s
                                 << u"Fotopapier, glänzend"_s << u"光沢紙"_s;
        QTest::newRow("Portugal") << QByteArray("pt_PT.UTF-8") << u"Tipo de papel"_s
                                  << u"Papel fotográfico brilhante"_s << u"光沢紙"_s;
        QTest::newRow("Taiwan") << QByteArray("zh_TW.UTF-8") << u"紙張類型"_s << u"光面相片紙"_s
                                << u"光沢紙"_s;
        QTest::newRow("a language that it does not know")
            << QByteArray("sv_SE.UTF-8") << u"Paper Type"_s << u"Glossy Photo Paper"_s
            << u"Choice"_s;
    }
    void textsAreInTheUsersLanguage()
    {
        QFETCH(QByteArray, language);
        QFETCH(QString, title);
        QFETCH(QString, choice);
        QFETCH(QString, maker);
        const QMap<QString, QString> texts =
            textsIn(language, ppdOfCapabilities(profile("photo inkjet")), u"MediaType"_s);
        QCOMPARE(texts.value(QString()), title);
        QCOMPARE(texts.value(u"PhotographicGlossy"_s), choice);
        QCOMPARE(texts.value(u"Choice"_s), maker);
    }

    void longTextsAreCutBetweenCharacters()
    {
        const QByteArray longName = QString(u"紙"_s.repeated(80)).toUtf8();
        const auto attributes = PrinterAttributes()
                                    .keywords("media-col-supported", {"media-size", "media-type"})
                                    .names("media-type-supported", {longName, QByteArray(100, 'x'),
                                                                    QByteArray(99, 'x'), "plain"});
        const QMap<QString, QString> texts = textsIn(
            "ja_JP.UTF-8", ppdOfCapabilities(capabilitiesOf(attributes.ipp())), u"MediaType"_s);
        QCOMPARE(texts.value(u"Choice"_s), u"紙"_s.repeated(26));
        QCOMPARE(texts.size(), 6); // the title, the printer's default, and four
        const QStringList keywords = texts.keys();
        for (const QString &keyword : keywords)
            QVERIFY(keyword.size() <= 40);
    }

    void aFileIsWhatThePrinterTakes_data()
    {
        QTest::addColumn<QList<QByteArray>>("formats");
        QTest::addColumn<QByteArray>("beginning");
        using Formats = QList<QByteArray>;
        QTest::newRow("nothing known") << Formats{} << QByteArray("%!PS");
        QTest::newRow("PDF") << Formats{"image/pwg-raster", "application/pdf"}
                             << QByteArray("%PDF");
        QTest::newRow("PWG raster data")
            << Formats{"image/urf", "image/pwg-raster"} << QByteArray("RaS2PwgRaster");
        QTest::newRow("Apple raster data")
            << Formats{"image/jpeg", "image/urf"} << QByteArray("UNIRAST");
        QTest::newRow("PostScript") << Formats{"application/postscript"} << QByteArray("%!PS");
    }
    void aFileIsWhatThePrinterTakes()
    {
        QFETCH(QList<QByteArray>, formats);
        QFETCH(QByteArray, beginning);
        QString problem;
        if (findCupsFilter(&problem).isEmpty())
            QSKIP("cupsfilter is not installed");
        auto attributes = PrinterAttributes().resolutions("printer-resolution-supported", {100});
        if (!formats.isEmpty())
            attributes.formats(formats);
        const QTemporaryDir folder;
        const QString ppd = writeFile(folder.filePath(u"printer.ppd"_s),
                                      ppdOfCapabilities(capabilitiesOf(attributes.ipp())));
        const QString output = folder.filePath(u"output"_s);
        const Document document{corvana::test::sourceFile(u"resources/sample/welcome.pdf"_s),
                                u"application/pdf"_s, u"Job"_s};
        FileJob job({{document}, {u"Job"_s, 1, {{u"PageSize"_s, u"A5"_s}}}, ppd, output});
        job.start();
        const JobOutcome outcome = job.wait();
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text));
        QFile file(output);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(beginning.size()), beginning);
    }
};

QTEST_GUILESS_MAIN(CapabilityPpdTest)

#include "capability_ppd_test.moc"
