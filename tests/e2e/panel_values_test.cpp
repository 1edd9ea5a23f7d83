#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include "platform/toolkit/Stepper.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PpdLines.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

void paste(QLineEdit *field, const QString &text)
{
    QApplication::clipboard()->setText(text);
    field->selectAll();
    QTest::keySequence(field, QKeySequence::Paste);
}

void typeOver(QLineEdit *field, const QString &text)
{
    field->selectAll();
    // One key after the other, those of other scripts as well, which QTest knows no names of.
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, character);
        QCoreApplication::sendEvent(field, &press);
    }
}

} // namespace

/// The numbers of the Print Setting panel and the choices that a printer refuses, from the controls
/// of the dialog to the data that the printer gets.
class PanelValuesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_preferences;

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", m_preferences.path().toLocal8Bit()); }

    void theSleepTimeReachesThePrinterInsideItsBoundsOnly_data()
    {
        enum { Paste, Keys, Steps };
        QTest::addColumn<QString>("printer");
        QTest::addColumn<int>("gesture");
        QTest::addColumn<QString>("text"); // pasted or typed; how many steps up
        QTest::addColumn<int>("minutes");
        for (const char *printer : {"corvana-cl2", "corvana-cl4", "corvana-cl5"}) {
            const PpdLines ppd(QString::fromLatin1(printer), u"en"_s);
            const auto bounds = ppd.numbers(u"QXSleepTime"_s, u"Time"_s);
            QVERIFY(bounds);
            const int least = bounds->minimum;
            const int most = bounds->maximum;
            const int usual = std::clamp(ppd.modelNumber() < 4 ? 5 : 3, least, most);
            const auto row = [&](const char *what, int gesture, int number, int minutes) {
                QTest::addRow("%s, %s", printer, what) << QString::fromLatin1(printer) << gesture
                                                       << QString::number(number) << minutes;
            };
            row("the shortest", Paste, least, least);
            row("the longest", Paste, most, most);
            row("one between", Paste, (least + most) / 2, (least + most) / 2);
            row("too short is not taken", Paste, least - 1, usual);
            row("too long is not taken", Paste, most + 1, usual);
            row("two steps up", Steps, 2, usual + 2);
            row("steps end at the longest", Steps, 1000, most);
            row("steps end at the shortest", Steps, -1000, least);
        }
        QTest::newRow("corvana-cl5, typed") << u"corvana-cl5"_s << int(Keys) << u"42"_s << 42;
        QTest::newRow("corvana-cl5, a third digit is not taken")
            << u"corvana-cl5"_s << int(Keys) << u"150"_s << 15;
        QTest::newRow("corvana-cl5, full-width digits")
            << u"corvana-cl5"_s << int(Keys) << u"３０"_s << 30;
        QTest::newRow("corvana-cl5, nothing but digits is taken")
            << u"corvana-cl5"_s << int(Keys) << u"1a2b"_s << 12;
    }
    void theSleepTimeReachesThePrinterInsideItsBoundsOnly()
    {
        enum { Paste, Keys, Steps };
        QFETCH(QString, printer);
        QFETCH(int, gesture);
        QFETCH(QString, text);
        QFETCH(int, minutes);
        const PpdLines ppd(printer, u"en"_s);
        DialogDriver driver(printer);
        auto *mode = driver.control<QWidget>(u"sleepTimeMatrix"_s);
        auto *field = driver.control<QLineEdit>(u"sleepTimeField"_s);
        QVERIFY(driver.reach(mode) && field->isVisible());
        QVERIFY(!field->isEnabled()); // until the time is the user's own
        QVERIFY(DialogDriver::choose(mode, u"Custom"_s));
        QVERIFY(field->isEnabled());
        field->setFocus();
        if (gesture == Paste)
            paste(field, text);
        else if (gesture == Keys)
            typeOver(field, text);
        for (int step = 0; gesture == Steps && step < qAbs(text.toInt()); ++step)
            QTest::keyClick(field, text.toInt() > 0 ? Qt::Key_Up : Qt::Key_Down);
        QCOMPARE(field->text(), QString::number(minutes));

        const QMap<QString, QString> summary = driver.summary();
        QCOMPARE(summary.value(ppd.text(u"QXSleepTime"_s)), u"Manual"_s);
        QCOMPARE(summary.value(ppd.numbers(u"QXSleepTime"_s, u"Time"_s)->text),
                 QString::number(minutes));
        const QByteArray data = driver.print();
        QCOMPARE(data.count("CorvanaOption(QXSleepTime="), qsizetype(1));
        QCOMPARE(data.count('\n' + QByteArray::number(minutes) +
                            "\n<</CorvanaOption(QXSleepTime=Custom)"),
                 qsizetype(1));
    }

    void aSleepTimeThatIsGivenUpIsNotPrinted()
    {
        const PpdLines ppd(u"corvana-cl5"_s, u"en"_s);
        DialogDriver driver(u"corvana-cl5"_s, {u"QXSleepTime=Custom.42"_s});
        auto *mode = driver.control<QWidget>(u"sleepTimeMatrix"_s);
        QVERIFY(driver.reach(mode));
        QCOMPARE(driver.control<QLineEdit>(u"sleepTimeField"_s)->text(), u"42"_s);
        QVERIFY(DialogDriver::choose(mode, u"Default"_s));
        QVERIFY(!driver.summary().contains(ppd.numbers(u"QXSleepTime"_s, u"Time"_s)->text));
        const QByteArray data = driver.print();
        QCOMPARE(data.count("CorvanaOption(QXSleepTime="), qsizetype(1));
        QCOMPARE(data.count(ppd.code(u"QXSleepTime"_s, u"Default"_s)), qsizetype(1));
    }

    void theDensityReachesThePrinterInsideItsBounds_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("typed"); // empty: with the slider's keys
        QTest::addColumn<int>("density");
        for (const char *printer : {"corvana-cl3", "corvana-cl5", "corvana-mf4", "corvana-ml3"}) {
            const PpdLines ppd(QString::fromLatin1(printer), u"en"_s);
            const auto bounds = ppd.numbers(u"QXDensityAdjustment"_s, u"Density"_s);
            QVERIFY(bounds);
            const auto row = [&](const char *what, const QString &typed, int density) {
                QTest::addRow("%s, %s", printer, what)
                    << QString::fromLatin1(printer) << typed << density;
            };
            const int least = bounds->minimum;
            const int most = bounds->maximum;
            row("the lightest by the slider", {}, least);
            row("the darkest by the slider", {}, most);
            row("one between by the slider", {}, most - 1);
            row("the lightest typed", QString::number(least), least);
            row("the darkest typed", QString::number(most), most);
            row("one between typed", u"2"_s, 2);
            row("too light is the lightest", QString::number(least - 1), least);
            row("too dark is the darkest", QString::number(most + 1), most);
            row("nonsense is the former one", u"dark"_s, 0);
        }
    }
    void theDensityReachesThePrinterInsideItsBounds()
    {
        QFETCH(QString, printer);
        QFETCH(QString, typed);
        QFETCH(int, density);
        const PpdLines ppd(printer, u"en"_s);
        DialogDriver driver(printer);
        auto *slider = driver.control<QSlider>(u"densitySlider"_s);
        auto *field = driver.control<QLineEdit>(u"densityField"_s);
        QVERIFY(driver.reach(slider) && field->isVisible());
        if (typed.isEmpty()) {
            QVERIFY(DialogDriver::choose(slider, QString::number(density)));
        } else {
            field->setFocus();
            typeOver(field, typed);
            QTest::keyClick(field, Qt::Key_Tab);
        }
        QCOMPARE(slider->value(), density);
        QCOMPARE(field->text(), QString::number(density));
        QCOMPARE(driver.summary().value(ppd.text(u"QXDensityAdjustment"_s)),
                 QString::number(density));
        const QByteArray data = driver.print();
        QCOMPARE(data.count("CorvanaOption(QXDensityAdjustment="), qsizetype(1));
        // The printer's own density is a choice without a number.
        const QByteArray code = density == 0 ? ppd.code(u"QXDensityAdjustment"_s, u"0"_s)
                                             : '\n' + QByteArray::number(density) +
                                                   "\n<</CorvanaOption(QXDensityAdjustment=Custom)";
        QVERIFY(!code.isEmpty());
        QCOMPARE(data.count(code), qsizetype(1));
    }

    void aChoiceThatThePrinterRefusesIsToldAndTheFormerOneIsPrinted_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("general"); // OPTION=CHOICE, chosen first
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("refused");
        int rows = 0;
        for (const char *printer : {"corvana-cl2", "corvana-cl3", "corvana-cl4", "corvana-cl5",
                                    "corvana-mf4", "corvana-ml3"}) {
            const PpdLines ppd(QString::fromLatin1(printer), u"en"_s);
            for (const PpdLines::Conflict &conflict : ppd.conflicts()) {
                if (!conflict.keyword.startsWith(u"QX"_s))
                    continue;
                ++rows;
                QTest::addRow("%s, %s with %s", printer, qPrintable(conflict.choice),
                              qPrintable(conflict.otherChoice))
                    << QString::fromLatin1(printer)
                    << QString(conflict.otherKeyword + u'=' + conflict.otherChoice)
                    << conflict.keyword << conflict.choice;
            }
        }
        QVERIFY2(rows >= 25, "the conflicts were not read");
    }
    void aChoiceThatThePrinterRefusesIsToldAndTheFormerOneIsPrinted()
    {
        QFETCH(QString, printer);
        QFETCH(QString, general);
        QFETCH(QString, keyword);
        QFETCH(QString, refused);
        const QString other = general.section(u'=', 0, 0);
        const QString otherChoice = general.section(u'=', 1, 1);
        const PpdLines ppd(printer, u"en"_s);
        DialogDriver driver(printer);
        driver.showPage(0);
        auto *popUp = driver.child<QComboBox>(other);
        popUp->setCurrentText(ppd.text(other, otherChoice));
        Q_EMIT popUp->activated(popUp->currentIndex());
        driver.showPage(1);
        QCOMPARE(driver.message(), QString());
        auto *control = driver.control<QWidget>(keyword == u"QXMediaType"_s ? u"mediaTypePopup"_s
                                                                            : u"paperFeedPopup"_s);
        const QString former = DialogDriver::chosen(control);
        QVERIFY(!former.isEmpty() && former != refused);
        QVERIFY(driver.reach(control));
        driver.alerts().seen.clear();
        DialogDriver::choose(control, refused);
        QTRY_VERIFY2(driver.message().contains(ppd.text(keyword, refused)),
                     qPrintable(driver.message()));
        QVERIFY2(driver.message().contains(ppd.text(other, otherChoice)),
                 qPrintable(driver.message()));
        QCOMPARE(DialogDriver::chosen(control), former);
        QCOMPARE(driver.alerts().seen.size(), 0); // nothing to load that is not printed

        QCOMPARE(driver.summary().value(ppd.text(keyword)), ppd.text(keyword, former));
        const QByteArray data = driver.print();
        QCOMPARE(data.count("CorvanaOption(" + keyword.toLatin1() + '='), qsizetype(1));
        QCOMPARE(data.count(ppd.code(keyword, former)), qsizetype(1));
        QCOMPARE(data.count(ppd.code(other, otherChoice)), qsizetype(1));
    }
};

QTEST_MAIN(PanelValuesTest)

#include "panel_values_test.moc"
