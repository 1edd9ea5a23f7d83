#include <QTest>

#include "dialog/window/chooser/PrinterIcon.h"
#include "dialog/window/chooser/PrinterTexts.h"
#include "tests/dialog/window/chooser/ChooserPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What a person reads about a printer, and what of it comes from a stranger.
class PrinterTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStateIsSaidInWords_data()
    {
        QTest::addColumn<Printer>("printer");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, auto change, const QString &text) {
            Printer printer = queue(u"q"_s);
            change(printer);
            QTest::newRow(name) << printer << text;
        };
        row(
            "idle", [](Printer &) {}, u"Idle"_s);
        row(
            "processing", [](Printer &p) { p.state = PrinterState::Processing; }, u"Printing"_s);
        row(
            "stopped", [](Printer &p) { p.state = PrinterState::Stopped; }, u"Stopped"_s);
        row(
            "unknown", [](Printer &p) { p.state = PrinterState::Unknown; }, QString());
        row(
            "stopped with a message",
            [](Printer &p) {
                p.state = PrinterState::Stopped;
                p.stateMessage = u"Being moved"_s;
            },
            u"Stopped: Being moved"_s);
        row(
            "the message of an idle printer is old", [](Printer &p) { p.stateMessage = u"Old"_s; },
            u"Idle"_s);
        row(
            "rejecting", [](Printer &p) { p.accepting = false; }, u"Takes no jobs"_s);
        row(
            "stopped and rejecting",
            [](Printer &p) {
                p.state = PrinterState::Stopped;
                p.accepting = false;
            },
            u"Stopped, takes no jobs"_s);
        row(
            "stopped says paused already",
            [](Printer &p) {
                p.state = PrinterState::Stopped;
                p.stateReasons = {u"paused"_s, u"door-open-error"_s};
            },
            u"Stopped, door open"_s);
        row(
            "a reason alone",
            [](Printer &p) {
                p.state = PrinterState::Unknown;
                p.stateReasons = {u"offline-report"_s};
            },
            u"not connected"_s);
        row(
            "a file",
            [](Printer &p) {
                p.origin = PrinterOrigin::File;
                p.state = PrinterState::Unknown;
            },
            u"Prints to a file"_s);
        row(
            "no reason", [](Printer &p) { p.stateReasons = {u"none"_s}; }, u"Idle"_s);
        row(
            "what CUPS notes for itself",
            [](Printer &p) {
                p.state = PrinterState::Processing;
                p.stateReasons = {u"cups-waiting-for-job-completed"_s, u"cups-remote-processing"_s,
                                  u"toner-low"_s};
            },
            u"Printing, toner low"_s);
        row(
            "a message with a place marker",
            [](Printer &p) {
                p.state = PrinterState::Stopped;
                p.stateMessage = u"%1 %2"_s;
                p.stateReasons = {u"media-jam"_s};
            },
            u"Stopped: %1 %2, paper jam"_s);
    }
    void theStateIsSaidInWords()
    {
        QFETCH(Printer, printer);
        QTEST(stateText(printer), "text");
    }

    void aReasonIsSaidInWords_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("words");
        QTest::newRow("warning") << u"media-empty-warning"_s << u"out of paper"_s;
        QTest::newRow("report") << u"toner-low-report"_s << u"toner low"_s;
        QTest::newRow("error") << u"door-open-error"_s << u"door open"_s;
        QTest::newRow("without severity") << u"media-jam"_s << u"paper jam"_s;
        QTest::newRow("unknown") << u"acme-flux-low-warning"_s << u"acme-flux-low-warning"_s;
    }
    void aReasonIsSaidInWords()
    {
        QFETCH(QString, keyword);
        QTEST(stateReasonText(keyword), "words");
    }

    void errorsComeBeforeWarningsBeforeReports()
    {
        QCOMPARE(stateReasonTexts({u"toner-low-report"_s, u"media-low-warning"_s, u"none"_s,
                                   u"media-jam"_s, u"cover-open-error"_s, u"media-low-report"_s}),
                 QStringList({u"paper jam"_s, u"cover open"_s, u"paper low"_s, u"toner low"_s}));
    }

    void whatIsMissingLeavesNoGap()
    {
        QCOMPARE(detailText(queue(u"q"_s, {}, u"Cellar"_s)), u"Cellar — Idle"_s);
        QCOMPARE(detailText(queue(u"q"_s)), u"Idle"_s);
        Printer silent = queue(u"q"_s, {}, u"Cellar"_s);
        silent.state = PrinterState::Unknown;
        QCOMPARE(detailText(silent), u"Cellar"_s);
        QCOMPARE(statusText(queue(u"q"_s, {}, u"Cellar"_s)), u"Cellar · Idle"_s);
        QCOMPARE(accessibleText(queue(u"q"_s, u"Red"_s, u"Cellar"_s)), u"Red, Cellar, Idle"_s);
        QCOMPARE(accessibleText(silent), u"q, Cellar"_s);
    }

    void thePlacesOfAFormatAreNotFilledByWhatFillsThem()
    {
        QCOMPARE(detailText(queue(u"q"_s, {}, u"%2 %1"_s)), u"%2 %1 — Idle"_s);
    }

    void aPrinterWithoutADescriptionHasItsName_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("shown");
        QTest::newRow("described") << u"Red"_s << u"Red"_s;
        QTest::newRow("none") << QString() << u"q"_s;
        QTest::newRow("blank") << u" \t\n"_s << u"q"_s;
        QTest::newRow("nothing that can be seen") << u"\u202e\u200b"_s << u"q"_s;
    }
    void aPrinterWithoutADescriptionHasItsName()
    {
        QFETCH(QString, description);
        QTEST(displayName(queue(u"q"_s, description)), "shown");
    }

    void aLineFromAServerIsPlain_data()
    {
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QString>("shown");
        QTest::newRow("words") << u"Red printer"_s << u"Red printer"_s;
        QTest::newRow("lines") << u"one\r\n\ttwo\u2028three"_s << u"one two three"_s;
        QTest::newRow("escape sequence") << u"\x1b[31mred\x07"_s << u"[31mred"_s;
        QTest::newRow("other direction") << u"a\u202eb\u2066c\u2069"_s << u"abc"_s;
        QTest::newRow("joiner of a script") << u"می\u200cخواهم"_s << u"می\u200cخواهم"_s;
        QTest::newRow("half a pair") << u"a"_s + QChar(0xd83d) + u"b"_s << u"a\ufffdb"_s;
        QTest::newRow("markup") << u"<b>a</b> &amp;"_s << u"<b>a</b> &amp;"_s;
    }
    void aLineFromAServerIsPlain()
    {
        QFETCH(QString, sent);
        QTEST(plainLine(sent), "shown");
    }

    void aVeryLongLineIsCutAtAWholeCharacter()
    {
        const QString fits = QString(199, u'a');
        QCOMPARE(plainLine(fits), fits);
        QCOMPARE(plainLine(QString(1000000, u'a')), fits + u'…');
        const QString pairs = u"x"_s + u"🖨"_s.repeated(500);
        const QString cut = plainLine(pairs);
        QVERIFY(cut.size() <= 200);
        QVERIFY(cut.isValidUtf16());
        QVERIFY(cut.endsWith(u'…'));
    }

    void toolTipsShowMarkupInsteadOfFollowingIt()
    {
        Printer printer = queue(u"<i>q</i>"_s, u"<b>Red</b>"_s, u"<img src=x>"_s);
        printer.makeAndModel = u"<u>Model</u>"_s;
        printer.state = PrinterState::Stopped;
        printer.stateMessage = u"<a href=x>click</a>"_s;
        const QString tip = printerToolTip(printer);
        for (const QString &foreign : {u"<i>"_s, u"<b>Red"_s, u"<img"_s, u"<u>"_s, u"<a "_s})
            QVERIFY2(!tip.contains(foreign), qPrintable(tip));
        QVERIFY(tip.contains(u"&lt;img src=x&gt;"_s));
    }

    void aToolTipHasAllThatIsKnown()
    {
        Printer printer = queue(u"red"_s, u"Red"_s, u"Cellar"_s);
        printer.makeAndModel = u"Model 5"_s;
        printer.stateReasons = {u"toner-low-report"_s};
        const QString tip = printerToolTip(printer);
        for (const QString &part : {u"Red"_s, u"red"_s, u"Cellar"_s, u"Model 5"_s, u"Idle"_s,
                                    u"toner low"_s, printer.uri})
            QVERIFY2(tip.contains(part), qPrintable(tip));
    }

    void aPrinterThatIsGoneSaysOnlyThat()
    {
        QCOMPARE(stateText(queue(u"q"_s), Presence::Gone), u"No longer available"_s);
    }

    void everyLookHasAPictureOfItsOwn()
    {
        QList<QImage> pictures;
        for (const PrinterLook look :
             {PrinterLook::Ready, PrinterLook::Printing, PrinterLook::Stopped,
              PrinterLook::TakesNoJobs, PrinterLook::Gone}) {
            const QImage picture = printerIcon(look, IconSource::Own).pixmap(QSize(24, 24), 2.0).toImage();
            QCOMPARE(picture.size(), QSize(48, 48));
            QVERIFY(!pictures.contains(picture));
            pictures += picture;
        }
    }

    void whatMattersMostDecidesTheLook()
    {
        Printer printer = queue(u"q"_s);
        QCOMPARE(lookOf(printer), PrinterLook::Ready);
        printer.state = PrinterState::Processing;
        QCOMPARE(lookOf(printer), PrinterLook::Printing);
        printer.accepting = false;
        QCOMPARE(lookOf(printer), PrinterLook::TakesNoJobs);
        printer.state = PrinterState::Stopped;
        QCOMPARE(lookOf(printer), PrinterLook::Stopped);
        QCOMPARE(lookOf(printer, Presence::Gone), PrinterLook::Gone);
    }
};

QTEST_MAIN(PrinterTextsTest)

#include "printer_texts_test.moc"
