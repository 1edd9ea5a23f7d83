#include <QAccessible>
#include <QHelpEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QToolTip>

#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "tests/dialog/window/chooser/ChooserPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The line below the chosen printer.
class PrinterStatusLineTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PrinterStatusLine> m_line;

    ElidedLabel *text() const { return m_line->findChild<ElidedLabel *>(u"printerStatusText"_s); }
    QPushButton *retry() const { return m_line->findChild<QPushButton *>(u"printerStatusRetry"_s); }

private Q_SLOTS:
    void init()
    {
        m_line = std::make_unique<PrinterStatusLine>();
        m_line->resize(800, 40);
        m_line->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_line.get()));
    }
    void cleanup()
    {
        QToolTip::hideText();
        m_line.reset();
    }

    // A narrow list of printers asks for it so.
    void aPictureWithoutAnySizeIsNone()
    {
        QTest::failOnWarning(QRegularExpression(u"."_s));
        QVERIFY(printerIcon(PrinterLook::Ready, IconSource::Own).pixmap(QSize(0, 16)).isNull());
    }

    void aPrinterShowsItsLocationAndState()
    {
        m_line->setPrinter(queue(u"q"_s, u"Red"_s, u"Cellar"_s));
        QCOMPARE(m_line->text(), u"Cellar · Idle"_s);
        QVERIFY(!retry()->isVisible());
        m_line->setPrinter(queue(u"q"_s), Presence::Gone);
        QCOMPARE(m_line->text(), u"No longer available"_s);
    }

    void aProblemCanBeTriedAgain()
    {
        int tried = 0;
        m_line->setProblem(u"No answer"_s, [&] {
            ++tried;
            m_line->setPrinter(queue(u"q"_s)); // replaces what is running here
        });
        QVERIFY(retry()->isVisible());
        retry()->click();
        QCOMPARE(tried, 1);
        QCOMPARE(m_line->text(), u"Idle"_s);
        QVERIFY(!retry()->isVisible());
        m_line->setProblem(u"No answer"_s);
        QVERIFY(!retry()->isVisible());
    }

    void theLineIsAsHighWithAProblem()
    {
        m_line->setPrinter(queue(u"q"_s));
        const int height = m_line->sizeHint().height();
        m_line->setProblem(u"No answer"_s, [] {});
        QCOMPARE(m_line->sizeHint().height(), height);
        m_line->clear();
        QCOMPARE(m_line->sizeHint().height(), height);
        QCOMPARE(m_line->text(), QString());
    }

    void markupIsShownAsItIs()
    {
        m_line->setProblem(u"<b>a</b>\n&b"_s);
        QCOMPARE(text()->textFormat(), Qt::PlainText);
        QCOMPARE(text()->shownText(), u"<b>a</b> &b"_s);
    }

    void aTextWithoutRoomIsWholeInItsToolTip()
    {
        const QString whole = u"<i>"_s + u"long "_s.repeated(30).trimmed();
        m_line->resize(300, 40);
        m_line->setProblem(whole);
        QTRY_VERIFY(text()->shownText().endsWith(u'…'));
        QCOMPARE(m_line->text(), whole);
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), text()->mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(text(), &help);
        QCOMPARE(QToolTip::text(), u"<qt>%1</qt>"_s.arg(whole.toHtmlEscaped()));
    }

    void aLongLocationLeavesRoomForTheState()
    {
        m_line->resize(300, 40);
        m_line->setPrinter(queue(u"q"_s, {}, u"far away "_s.repeated(15)));
        QTRY_VERIFY(text()->shownText() != m_line->text());
        QVERIFY2(text()->shownText().endsWith(u"… · Idle"_s), qPrintable(text()->shownText()));
        QCOMPARE(text()->shownText().count(u'\n'), 1);
        for (const QString &line : text()->shownText().split(u'\n'))
            QVERIFY(text()->fontMetrics().horizontalAdvance(line) <= text()->width());
    }

    void aLongStateLeavesAThirdForTheLocation()
    {
        Printer printer = queue(u"q"_s, {}, QString(100, u'l'));
        printer.state = PrinterState::Stopped;
        printer.stateMessage = QString(100, u'm');
        m_line->resize(300, 40);
        m_line->setPrinter(printer);
        QTRY_VERIFY(text()->shownText() != m_line->text());
        QVERIFY(text()->shownText().startsWith(u"llll"_s));
        QVERIFY(text()->shownText().contains(u"… · Stopped"_s));
        QVERIFY(text()->shownText().endsWith(u'…'));
    }

    void aTextThatFitsIntoTwoLinesIsBrokenAndNotCut_data()
    {
        QTest::addColumn<QString>("whole");
        QTest::addColumn<QString>("between");
        QTest::newRow("words") << u"The server does not answer, which is a pity."_s << u" "_s;
        QTest::newRow("no blanks") << QString(24, u'印') << QString();
    }
    void aTextThatFitsIntoTwoLinesIsBrokenAndNotCut()
    {
        QFETCH(QString, whole);
        QFETCH(QString, between);
        m_line->resize(250, 40);
        m_line->setProblem(whole);
        QTRY_COMPARE(text()->shownText().count(u'\n'), 1);
        QCOMPARE(text()->shownText().replace(u"\n"_s, between), whole);
        for (const QString &line : text()->shownText().split(u'\n'))
            QVERIFY(text()->fontMetrics().horizontalAdvance(line) <= text()->width());
        QVERIFY(text()->height() >= 2 * text()->fontMetrics().height());
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), text()->mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(text(), &help);
        QCOMPARE(QToolTip::text(), QString());
    }

    void theButtonSaysWhatItDoes()
    {
        m_line->setProblem(
            u"No answer"_s, [] {}, u"Log In…"_s);
        QCOMPARE(retry()->text(), u"Log In…"_s);
        m_line->setProblem(u"No answer"_s, [] {});
        QCOMPARE(retry()->text(), u"Try Again"_s);
    }

    void aTextWithRoomNeedsNoToolTip()
    {
        m_line->setProblem(u"short"_s);
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), text()->mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(text(), &help);
        QCOMPARE(QToolTip::text(), QString());
    }

    void assistiveTechnologyGetsTheWholeText()
    {
        const QString whole = u"long "_s.repeated(30).trimmed();
        m_line->resize(200, 40);
        m_line->setProblem(whole);
        QCOMPARE(QAccessible::queryAccessibleInterface(text())->text(QAccessible::Name), whole);
    }

    void aLongTextDoesNotWidenTheWindow()
    {
        m_line->setProblem(QString(180, u'w'), [] {});
        QVERIFY(m_line->minimumSizeHint().width() < 300);
    }
};

QTEST_MAIN(PrinterStatusLineTest)

#include "printer_status_line_test.moc"
