#include <QAbstractButton>
#include <QCheckBox>
#include <QSlider>
#include <QTest>

#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PanelChoices.h"
#include "tests/e2e/PpdLines.h"
#include "tests/e2e/SampleQueues.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kColorSettingPage = 2;
const QString kMonochromePrinter = u"corvana-ml3"_s;

/// The effects and their sliders; printing in monochrome has the first two.
const QList<std::pair<QString, QString>> kEffects{
    {u"QXBrightness"_s, u"brightnessSlider"_s},
    {u"QXContrast"_s, u"contrastSlider"_s},
    {u"QXRed"_s, u"redSlider"_s},
    {u"QXGreen"_s, u"greenSlider"_s},
    {u"QXBlue"_s, u"blueSlider"_s},
    {u"QXSaturation"_s, u"saturationSlider"_s},
};
constexpr qsizetype kMonochromeEffects = 2;
const QList<int> kEffectValues{-20, -1, 0, 1, 20};

} // namespace

/// From the Color Setting panel of the dialog, through a queue of a print server, to the data that
/// its printer gets: what the summary says is what is printed, for each sample printer.
class QueueColorsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SampleQueues> m_queues;

    // Opens the colour adjustment, in which the sliders are.
    static void disclose(DialogDriver &driver)
    {
        driver.showPage(kColorSettingPage);
        auto *slider = driver.child<QSlider>(u"brightnessSlider"_s);
        for (auto *button : driver.dialog().findChildren<QAbstractButton *>(u"optionButton"_s)) {
            if (button->isVisible() && !button->isChecked())
                button->click();
        }
        QTRY_VERIFY(slider->isVisible());
    }
    static void addPrinters()
    {
        QTest::addColumn<QString>("printer");
        for (const QString &printer : SampleQueues::printers())
            QTest::addRow("%s", qPrintable(printer)) << printer;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_queues = std::make_unique<SampleQueues>();
    }
    void cleanupTestCase() { m_queues.reset(); }

    void effectsReachThePrinterFromTheSetInForce_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("set");
        for (const QString &printer : SampleQueues::printers()) {
            if (printer == kMonochromePrinter)
                continue;
            const QStringList modes = PpdLines(printer, u"en"_s).choices(u"QXColorMatching"_s);
            for (const QString &set : {u"Normal"_s, u"Vivid"_s, u"Mono"_s}) {
                if (set == u"Mono"_s || modes.contains(set))
                    QTest::addRow("%s %s", qPrintable(printer), qPrintable(set)) << printer << set;
            }
        }
    }
    // In one job each effect has another one of the values; after five jobs each has had each. The
    // other printers have the same panel: two jobs for each of their sets, in which no effect is 0
    // twice.
    void effectsReachThePrinterFromTheSetInForce()
    {
        QFETCH(QString, printer);
        QFETCH(QString, set);
        const PpdLines ppd(printer, u"en"_s);
        const bool mono = set == u"Mono"_s;
        std::vector<SentJob> sent;
        const qsizetype jobs = printer == u"corvana-cl5"_s ? kEffectValues.size() : 2;
        for (qsizetype shift = 0; shift < jobs; ++shift) {
            auto driver = m_queues->open(printer);
            if (mono)
                QVERIFY(DialogDriver::choose(driver->control<QWidget>(u"monoColorPopup"_s), set));
            disclose(*driver);
            auto *matching = driver->child<QWidget>(u"colorMatchingMatrix"_s);
            if (!mono && DialogDriver::chosen(matching) != set)
                QVERIFY(DialogDriver::choose(matching, set));
            PanelJob expected;
            for (qsizetype i = 0; i < kEffects.size(); ++i) {
                const auto &[keyword, name] = kEffects.at(i);
                if (!ppd.has(keyword))
                    continue;
                if (mono && i >= kMonochromeEffects) {
                    expected += {keyword, ppd.defaultChoice(keyword)};
                    continue;
                }
                const int value = kEffectValues.at((i + shift) % kEffectValues.size());
                auto *slider = driver->child<QSlider>(name);
                slider->setValue(value == 0 ? 7 : 0); // 0 has to be come back to
                slider->setValue(value);
                expected += {keyword, QString::number(value)};
            }
            const QMap<QString, QString> summary = driver->summary();
            for (qsizetype i = 0; i < expected.size(); ++i) {
                const auto &[keyword, value] = expected.at(i);
                const bool inForce =
                    !mono || keyword == kEffects.at(0).first || keyword == kEffects.at(1).first;
                QCOMPARE(summary.value(ppd.text(keyword)), inForce ? value : QString());
            }
            driver->pressPrint();
            sent.push_back({std::move(driver), expected});
        }
        for (const SentJob &one : sent) {
            const QByteArray data = m_queues->printedBy(*one.driver, printer);
            QVERIFY2(!data.isEmpty(), qUtf8Printable(one.driver->message()));
            QVERIFY(one.choices.size() >= kMonochromeEffects);
            for (const auto &[keyword, value] : one.choices) {
                const QByteArray code = ppd.code(keyword, value);
                QVERIFY2(!code.isEmpty() && data.count(code) == 1,
                         qPrintable(keyword + u'=' + value));
                QCOMPARE(data.count("CorvanaOption(" + keyword.toLatin1() + '='), qsizetype(1));
            }
        }
    }

    void colorMatchingAndGrayReachThePrinter_data() { addPrinters(); }
    void colorMatchingAndGrayReachThePrinter()
    {
        QFETCH(QString, printer);
        const PpdLines ppd(printer, u"en"_s);
        if (printer == kMonochromePrinter) {
            QVERIFY(!ppd.has(u"QXColorMatching"_s));
            return;
        }
        std::vector<SentJob> sent;
        for (const QString &choice : ppd.choices(u"QXColorMatching"_s)) {
            auto driver = m_queues->open(printer);
            disclose(*driver);
            auto *matrix = driver->child<QWidget>(u"colorMatchingMatrix"_s);
            for (const QString &other : DialogDriver::offered(matrix)) {
                if (other != choice)
                    QVERIFY(DialogDriver::choose(matrix, other));
            }
            QVERIFY(DialogDriver::choose(matrix, choice));
            PanelJob expected{{u"QXColorMatching"_s, choice}};
            // One of the two boxes, in turns: gray keeps the other one off.
            const bool gray = sent.size() % 2 == 0;
            for (const auto &[keyword, name] :
                 {std::pair(u"QXGray"_s, u"grayCheckBox"_s),
                  std::pair(u"QXEnhanceBlkPrt"_s, u"enhancedBlackCheckBox"_s)}) {
                if (!ppd.has(keyword))
                    continue;
                const bool on = gray == (keyword == u"QXGray"_s);
                auto *box = driver->child<QCheckBox>(name);
                if (on)
                    QVERIFY(DialogDriver::choose(box, u"ON"_s));
                expected += {keyword, on ? u"ON"_s : u"OFF"_s};
            }
            QCOMPARE(driver->summary().value(ppd.text(u"QXColorMatching"_s)),
                     ppd.text(u"QXColorMatching"_s, choice));
            driver->pressPrint();
            sent.push_back({std::move(driver), expected});
        }
        for (const SentJob &one : sent) {
            const QByteArray data = m_queues->printedBy(*one.driver, printer);
            QVERIFY2(!data.isEmpty(), qUtf8Printable(one.driver->message()));
            const QString problem = wrongCode(ppd, one.choices, data);
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
        }
    }
};

QTEST_MAIN(QueueColorsTest)

#include "queue_colors_test.moc"
