#include <QAccessible>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "dialog/window/chooser/ElidedLabel.h"
#include "tests/dialog/window/chooser/PopupScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// How the open list looks: where it stands, what its rows show, what is said below it.
class PrinterPopupLookTest : public QObject, private PopupScene
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void aListWithoutPrintersSaysSo()
    {
        open({});
        QCOMPARE(child<QLabel>(u"noPrinter"_s)->text(), u"No printer was found"_s);
        m_combo->setPrinters(queues(1));
        QVERIFY(list()->isVisible());
    }

    void manyPrintersAreCounted()
    {
        open(queues(2000));
        QCOMPARE(count()->text(), u"2,000 printers"_s);
        QTest::keyClicks(field(), u"q19"_s);
        QCOMPARE(count()->text(), u"111 of 2,000 printers"_s);
        m_combo->setPrinters(queues(3));
        QVERIFY(!count()->isVisible());
    }

    void theFooterShowsTheOwnersTextAndDoesWhatItOffers()
    {
        int retried = 0;
        m_combo->setFooter(u"<b>No</b> answer"_s, u"R&etry"_s, [&] {
            ++retried;
            m_combo->setFooter(u"Looking…"_s);
        });
        open(queues(2));
        auto *text = child<ElidedLabel>(u"printerFooter"_s);
        auto *button = child<QPushButton>(u"printerFooterAction"_s);
        QCOMPARE(text->text(), u"<b>No</b> answer"_s);
        QCOMPARE(text->textFormat(), Qt::PlainText);
        QCOMPARE(button->text(), u"R&&etry"_s); // no key of its own
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(retried, 1);
        QVERIFY(popup()->isVisible());
        QCOMPARE(text->text(), u"Looking…"_s);
        QVERIFY(!button->isVisible());
        m_combo->setFooter(QString());
        QVERIFY(!text->isVisible());
    }

    void itStaysOnTheScreenAndBelowTwoThirdsOfIt()
    {
        open(queues(2000));
        const QRect screen = m_combo->screen()->availableGeometry();
        QVERIFY(screen.contains(popup()->geometry()));
        QVERIFY(popup()->height() <= screen.height() * 2 / 3);
        QVERIFY(popup()->width() >= m_combo->width());
        QCOMPARE(popup()->geometry().top(), m_combo->mapToGlobal(QPoint(0, m_combo->height())).y());
    }

    void itOpensUpwardsWhereThereIsMoreRoom()
    {
        const QRect screen = m_combo->screen()->availableGeometry();
        m_window->move(screen.left() + 20, screen.bottom() - 120);
        QTRY_VERIFY(m_combo->mapToGlobal(QPoint(0, 0)).y() > screen.center().y());
        open(queues(2000));
        QVERIFY(screen.contains(popup()->geometry()));
        QCOMPARE(popup()->geometry().bottom() + 1, m_combo->mapToGlobal(QPoint(0, 0)).y());
    }

    void itGrowsWithTheListAndDoesNotShrink()
    {
        open(queues(1));
        const int few = popup()->height();
        m_combo->setPrinters(queues(8));
        const int more = popup()->height();
        QVERIFY(more > few);
        m_combo->setPrinters(queues(1));
        QCOMPARE(popup()->height(), more);
        QTest::keyClicks(field(), u"zebra"_s);
        QCOMPARE(popup()->height(), more);
    }

    // A row mirrors: the icon is on the right, the right edge of the popup is that of the field.
    void fromRightToLeftEverythingIsMirrored()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const QRect screen = m_combo->screen()->availableGeometry();
        m_window->move(screen.right() - 420, screen.top());
        Printer wide = queue(u"q0"_s, u"Wide"_s, QString(60, u'm'));
        open({wide}, u"none"_s);
        QCOMPARE(popup()->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(popup()->geometry().right(),
                 m_combo->mapToGlobal(QPoint(m_combo->width() - 1, 0)).x());
        const QImage row =
            list()->viewport()->grab(list()->visualRect(list()->model()->index(0, 0))).toImage();
        const auto inkIn = [&](int left, int right) {
            int ink = 0;
            for (int y = 0; y < row.height() / 2; ++y) {
                for (int x = left; x < right; ++x)
                    ink += row.pixelColor(x, y) != row.pixelColor(0, 0) ? 1 : 0;
            }
            return ink;
        };
        QVERIFY(inkIn(row.width() - 30, row.width()) > 0);
        QCOMPARE(inkIn(0, row.width() / 3), 0);
    }

    void markupInARowIsDrawnAsItIs()
    {
        // Interpreted, both would look the same.
        open({queue(u"q0"_s, u"<u></u>Red"_s), queue(u"q1"_s, u"Red"_s)});
        list()->selectionModel()->clear();
        const auto picture = [&](int row) {
            return list()
                ->viewport()
                ->grab(list()->visualRect(list()->model()->index(row, 0)).adjusted(0, 0, -60, 0))
                .toImage();
        };
        QVERIFY(picture(0) != picture(1));
        const auto inkedColumns = [](const QImage &image) {
            int last = 0;
            for (int x = 0; x < image.width(); ++x) {
                for (int y = 0; y < image.height(); ++y) {
                    if (image.pixelColor(x, y) != image.pixelColor(0, 0))
                        last = x;
                }
            }
            return last;
        };
        QVERIFY(inkedColumns(picture(0)) > inkedColumns(picture(1)) + 20);
    }

    void aScreenReaderFindsNamesAndWholeRows()
    {
        open({queue(u"q0"_s), queue(u"q1"_s, u"Red"_s, u"Cellar"_s)});
        QAccessibleInterface *rows = QAccessible::queryAccessibleInterface(list());
        QCOMPARE(rows->role(), QAccessible::List);
        QCOMPARE(rows->text(QAccessible::Name), u"Printers"_s);
        QCOMPARE(rows->child(1)->text(QAccessible::Name), u"Red, Cellar, Idle"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(field())->text(QAccessible::Name),
                 u"Search printers"_s);
    }
};

QTEST_MAIN(PrinterPopupLookTest)

#include "printer_popup_look_test.moc"
