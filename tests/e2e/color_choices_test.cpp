#include <QAbstractButton>
#include <QCheckBox>
#include <QSlider>
#include <QTest>

#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PpdLines.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPrintSettingPage = 1;
constexpr int kColorSettingPage = 2;

/// The effects and their sliders; printing in monochrome has the first two.
const QList<std::pair<QString, QString>> kEffects{
    {u"QXBrightness"_s, u"brightnessSlider"_s},
    {u"QXContrast"_s, u"contrastSlider"_s},
    {u"QXRed"_s, u"redSlider"_s},
    {u"QXGreen"_s, u"greenSlider"_s},
    {u"QXBlue"_s, u"blueSlider"_s},
    {u"QXSaturation"_s, u"saturationSlider"_s},
};
constexpr int kMonochromeEffects = 2;

template <typename Control> Control *colorControl(DialogDriver &driver, const QString &name)
{
    return driver.child<Control>(name);
}

// Once, and nothing else of the option.
void verifyPrinted(const PpdLines &ppd, const QByteArray &data, const QString &keyword,
                   const QString &choice)
{
    const QByteArray code = ppd.code(keyword, choice);
    QVERIFY2(!code.isEmpty(), qPrintable(keyword + u'=' + choice));
    QVERIFY2(data.count(code) == 1, qPrintable(keyword + u'=' + choice));
    QCOMPARE(data.count("CorvanaOption(" + keyword.toLatin1() + '='), qsizetype(1));
}

} // namespace

/// From each choice and each effect of the Color Setting panel to the data that the printer gets
/// and the line that the summary tells, for each sample printer.
class ColorChoicesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_preferences;

    static QStringList printers()
    {
        return {u"corvana-cl2"_s, u"corvana-cl3"_s, u"corvana-cl4"_s, u"corvana-cl5"_s,
                u"corvana-mf4"_s};
    }

    // Opens the colour adjustment, in which the sliders are.
    static void disclose(DialogDriver &driver)
    {
        driver.showPage(kColorSettingPage);
        auto *slider = colorControl<QSlider>(driver, u"brightnessSlider"_s);
        for (auto *button : driver.dialog().findChildren<QAbstractButton *>(u"optionButton"_s)) {
            if (button->isVisible() && !button->isChecked())
                button->click();
        }
        QTRY_VERIFY(slider->isVisible());
    }

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", m_preferences.path().toLocal8Bit()); }

    void everyEffectReachesThePrinterFromTheSetInForce_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("set");
        QTest::addColumn<int>("value");
        for (const QString &printer : printers()) {
            const QStringList modes = PpdLines(printer, u"en"_s).choices(u"QXColorMatching"_s);
            for (const QString &set : {u"Normal"_s, u"Vivid"_s, u"Mono"_s}) {
                if (set != u"Mono"_s && !modes.contains(set))
                    continue;
                for (const int value : {-20, -1, 0, 1, 20})
                    QTest::addRow("%s %s %d", qPrintable(printer), qPrintable(set), value)
                        << printer << set << value;
            }
        }
    }
    void everyEffectReachesThePrinterFromTheSetInForce()
    {
        QFETCH(QString, printer);
        QFETCH(QString, set);
        QFETCH(int, value);
        const PpdLines ppd(printer, u"en"_s);
        const bool mono = set == u"Mono"_s;
        DialogDriver driver(printer);
        if (mono) {
            driver.showPage(kPrintSettingPage);
            QVERIFY(DialogDriver::choose(driver.control<QWidget>(u"monoColorPopup"_s), set));
        }
        disclose(driver);
        if (!mono &&
            DialogDriver::chosen(colorControl<QWidget>(driver, u"colorMatchingMatrix"_s)) != set) {
            QVERIFY(
                DialogDriver::choose(colorControl<QWidget>(driver, u"colorMatchingMatrix"_s), set));
        }
        const QString moved = QString::number(value);
        int reached = 0;
        for (int i = 0; i < kEffects.size(); ++i) {
            const auto &[keyword, name] = kEffects.at(i);
            auto *slider = colorControl<QSlider>(driver, name);
            QCOMPARE(slider->isVisible(), ppd.has(keyword));
            if (!ppd.has(keyword))
                continue;
            const bool usable = !mono || i < kMonochromeEffects;
            QCOMPARE(slider->isEnabled(), usable);
            if (!usable)
                continue;
            slider->setValue(value == 0 ? 7 : 0); // 0 has to be come back to
            slider->setValue(value);
            ++reached;
        }
        QVERIFY(reached >= kMonochromeEffects);
        const QMap<QString, QString> summary = driver.summary();
        const QByteArray data = driver.print();
        QVERIFY2(!data.isEmpty(), qUtf8Printable(driver.message()));
        for (int i = 0; i < kEffects.size(); ++i) {
            const QString keyword = kEffects.at(i).first;
            if (!ppd.has(keyword))
                continue;
            const bool inForce = !mono || i < kMonochromeEffects;
            verifyPrinted(ppd, data, keyword, inForce ? moved : ppd.defaultChoice(keyword));
            QCOMPARE(summary.contains(ppd.text(keyword)), inForce);
            if (inForce)
                QCOMPARE(summary.value(ppd.text(keyword)), moved);
        }
        // With its effects the mode itself is printed.
        if (!mono)
            verifyPrinted(ppd, data, u"QXColorMatching"_s, set);
    }

    void everyColorMatchingReachesThePrinter_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("choice");
        for (const QString &printer : printers()) {
            for (const QString &choice : PpdLines(printer, u"en"_s).choices(u"QXColorMatching"_s))
                QTest::addRow("%s %s", qPrintable(printer), qPrintable(choice))
                    << printer << choice;
        }
    }
    void everyColorMatchingReachesThePrinter()
    {
        QFETCH(QString, printer);
        QFETCH(QString, choice);
        const PpdLines ppd(printer, u"en"_s);
        DialogDriver driver(printer);
        disclose(driver);
        auto *matrix = colorControl<QWidget>(driver, u"colorMatchingMatrix"_s);
        QCOMPARE(DialogDriver::offered(matrix), ppd.choices(u"QXColorMatching"_s));
        for (const QString &other : DialogDriver::offered(matrix)) {
            if (other != choice)
                QVERIFY(DialogDriver::choose(matrix, other));
        }
        QVERIFY(DialogDriver::choose(matrix, choice));
        QCOMPARE(colorControl<QSlider>(driver, u"brightnessSlider"_s)->isEnabled(),
                 choice != u"None"_s);
        QCOMPARE(driver.summary().value(ppd.text(u"QXColorMatching"_s)),
                 ppd.text(u"QXColorMatching"_s, choice));
        verifyPrinted(ppd, driver.print(), u"QXColorMatching"_s, choice);
    }

    void grayAndEnhancedBlackReachThePrinter_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<bool>("gray");
        QTest::addColumn<bool>("black");
        for (const QString &printer : printers()) {
            for (const bool gray : {false, true}) {
                for (const bool black : {false, true})
                    QTest::addRow("%s gray %d black %d", qPrintable(printer), gray, black)
                        << printer << gray << black;
            }
        }
    }
    void grayAndEnhancedBlackReachThePrinter()
    {
        QFETCH(QString, printer);
        QFETCH(bool, gray);
        QFETCH(bool, black);
        const PpdLines ppd(printer, u"en"_s);
        DialogDriver driver(printer);
        driver.showPage(kColorSettingPage);
        auto *blackBox = colorControl<QCheckBox>(driver, u"enhancedBlackCheckBox"_s);
        auto *grayBox = colorControl<QCheckBox>(driver, u"grayCheckBox"_s);
        QCOMPARE(blackBox->isVisible(), ppd.has(u"QXEnhanceBlkPrt"_s));
        QCOMPARE(grayBox->isVisible(), ppd.has(u"QXGray"_s));
        if (black && blackBox->isVisible())
            blackBox->click();
        if (gray && grayBox->isVisible())
            grayBox->click();
        const bool grayPrinted = gray && ppd.has(u"QXGray"_s);
        const QByteArray data = driver.print();
        if (ppd.has(u"QXGray"_s))
            verifyPrinted(ppd, data, u"QXGray"_s, grayPrinted ? u"ON"_s : u"OFF"_s);
        // Gray is printed with black toner alone already.
        if (ppd.has(u"QXEnhanceBlkPrt"_s))
            verifyPrinted(ppd, data, u"QXEnhanceBlkPrt"_s,
                          black && !grayPrinted ? u"ON"_s : u"OFF"_s);
    }
};

QTEST_MAIN(ColorChoicesTest)

#include "color_choices_test.moc"
