#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "tests/dialog/window/chooser/PopupScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The open list: search, keys, picks, and lists that come while it is open.
class PrinterPopupTest : public QObject, private PopupScene
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void theSearchCanBeClearedFromItsFirstLetterOn()
    {
        open(queues(3));
        // Qt keeps the button in its place and makes it transparent where there is nothing to
        // clear.
        QToolButton *clear = nullptr;
        for (QToolButton *button : field()->findChildren<QToolButton *>()) {
            if (button->pos().x() > field()->width() / 2)
                clear = button;
        }
        QVERIFY(clear);
        const auto opacity = [clear] { return clear->property("opacity").toDouble(); };
        QCOMPARE(opacity(), 0.0);
        press(Qt::Key_1);
        QTRY_COMPARE(opacity(), 1.0);
        QTest::mouseClick(clear, Qt::LeftButton);
        QCOMPARE(field()->text(), QString());
        QCOMPARE(list()->model()->rowCount(), 3);
        QTRY_COMPARE(opacity(), 0.0);
    }

    void itOpensAtTheChosenPrinterWithTheFocusInTheSearch()
    {
        open(queues(2000), u"q1234"_s);
        QCOMPARE(highlighted(), u"q1234"_s);
        QVERIFY(list()->viewport()->rect().contains(rectOf(u"q1234"_s)));
        QCOMPARE(popup()->focusWidget(), field());
    }

    void keysMoveInTheList()
    {
        open(queues(2000));
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QCOMPARE(highlighted(), u"q2"_s);
        press(Qt::Key_Up);
        QCOMPARE(highlighted(), u"q1"_s);
        press(Qt::Key_End);
        QCOMPARE(highlighted(), u"q1999"_s);
        press(Qt::Key_Home);
        QCOMPARE(highlighted(), u"q0"_s);
        press(Qt::Key_PageDown);
        const int page = list()->currentIndex().row();
        QVERIFY2(page > 3 && page < 100, qPrintable(highlighted()));
        press(Qt::Key_PageUp);
        QCOMPARE(highlighted(), u"q0"_s);
        QVERIFY(popup()->isVisible());
        QCOMPARE(m_combo->currentText(), u"q0"_s);
        QCOMPARE(m_acts, 0);
    }

    // A key at the end of the list moves nothing, and it comes to an end itself.
    void keysAtTheEndsOfTheList_data()
    {
        QTest::addColumn<int>("printers");
        QTest::addColumn<QString>("searched");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("before"); // rows; -1: none
        QTest::addColumn<int>("after");
        const struct
        {
            const char *name;
            int key;
            bool toTheTop;
        } keys[] = {{"Up", Qt::Key_Up, true},
                    {"Page Up", Qt::Key_PageUp, true},
                    {"Home", Qt::Key_Home, true},
                    {"Down", Qt::Key_Down, false},
                    {"Page Down", Qt::Key_PageDown, false},
                    {"End", Qt::Key_End, false}};
        const struct
        {
            const char *name;
            int printers;
            QString searched;
            int rows;
        } lists[] = {{"no printer", 0, {}, 0},
                     {"one printer", 1, {}, 1},
                     {"two printers", 2, {}, 2},
                     {"many printers", 2000, {}, 2000},
                     {"nothing is found", 3, u"zebra"_s, 0},
                     {"one is found", 3, u"q2"_s, 1},
                     {"many are found", 2000, u"q19"_s, 111}};
        for (const auto &list : lists) {
            for (const auto &key : keys) {
                const int last = list.rows - 1;
                const int end = key.toTheTop ? qMin(0, last) : last;
                QTest::addRow("%s: %s at the end", list.name, key.name)
                    << list.printers << list.searched << key.key << end << end;
                if (list.rows != 2)
                    continue;
                QTest::addRow("%s: %s at the other end", list.name, key.name)
                    << list.printers << list.searched << key.key << last - end << end;
            }
        }
    }
    void keysAtTheEndsOfTheList()
    {
        QFETCH(int, printers);
        QFETCH(QString, searched);
        QFETCH(int, key);
        QFETCH(int, before);
        QFETCH(int, after);
        open(queues(printers));
        QTest::keyClicks(field(), searched);
        const QAbstractItemModel *rows = list()->model();
        list()->selectionModel()->setCurrentIndex(rows->index(before, 0),
                                                  QItemSelectionModel::ClearAndSelect);
        press(key);
        QCOMPARE(list()->currentIndex().row(), after);
        press(key);
        QCOMPARE(list()->currentIndex().row(), after);
        QCOMPARE(list()->selectionModel()->selectedIndexes().size(), after < 0 ? 0 : 1);
        QVERIFY(popup()->isVisible());
        QCOMPARE(field()->text(), searched);
        QCOMPARE(m_acts, 0);
    }

    void aKeyWithoutAHighlightBeginsAtTheTop_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::newRow("Up") << int(Qt::Key_Up) << 0;
        QTest::newRow("Page Up") << int(Qt::Key_PageUp) << 0;
        QTest::newRow("Home") << int(Qt::Key_Home) << 0;
        QTest::newRow("Down") << int(Qt::Key_Down) << 0;
        QTest::newRow("Page Down") << int(Qt::Key_PageDown) << 0;
        QTest::newRow("End") << int(Qt::Key_End) << 99;
    }
    void aKeyWithoutAHighlightBeginsAtTheTop()
    {
        QFETCH(int, key);
        QFETCH(int, row);
        open(queues(100), u"none of these"_s);
        QVERIFY(!list()->currentIndex().isValid());
        press(key);
        QCOMPARE(list()->currentIndex().row(), row);
    }

    // Where the footer's button has the focus, keys come to the popup from there.
    void keysMoveInTheListFromTheFooterToo()
    {
        m_combo->setFooter(u"No answer"_s, u"Try Again"_s, [] {});
        open(queues(2));
        auto *button = child<QPushButton>(u"printerFooterAction"_s);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_End);
        QCOMPARE(highlighted(), u"q1"_s);
        QTest::keyClick(button, Qt::Key_End);
        QCOMPARE(highlighted(), u"q1"_s);
    }

    void typingSearches()
    {
        open(queues(2000));
        QTest::keyClicks(field(), u"q 19"_s);
        QCOMPARE(field()->text(), u"q 19"_s);
        QCOMPARE(highlighted(), u"q19"_s); // the first that is found
        press(Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(field()->selectedText(), u"q 19"_s);
    }

    void enterPicksWhatIsHighlighted()
    {
        open(queues(2000));
        QSignalSpy activated(m_combo, &QComboBox::activated);
        QTest::keyClicks(field(), u"1500"_s);
        press(Qt::Key_Return);
        QVERIFY(!popup()->isVisible());
        QCOMPARE(m_combo->currentText(), u"q1500"_s);
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated.at(0).at(0).toInt(), 1500);
        QCOMPARE(m_acts, 1);
    }

    void theSamePrinterPickedAgainIsAnActToo()
    {
        open(queues(3));
        press(Qt::Key_Return);
        QCOMPARE(m_acts, 1);
        QCOMPARE(m_combo->currentText(), u"q0"_s);
    }

    void enterPicksNothingWhereNothingIsFound()
    {
        open(queues(3));
        QTest::keyClicks(field(), u"zebra"_s);
        press(Qt::Key_Return);
        QVERIFY(popup()->isVisible());
        QCOMPARE(m_acts, 0);
        QVERIFY(child<QLabel>(u"noPrinter"_s)->isVisible());
        QCOMPARE(child<QLabel>(u"noPrinter"_s)->text(), u"No printer matches"_s);
    }

    void escapeClearsTheSearchAndThenCloses()
    {
        open(queues(20), u"q7"_s);
        QTest::keyClicks(field(), u"q3"_s);
        press(Qt::Key_Escape);
        QVERIFY(popup()->isVisible());
        QCOMPARE(field()->text(), QString());
        QCOMPARE(highlighted(), u"q7"_s);
        press(Qt::Key_Down);
        press(Qt::Key_Escape);
        QVERIFY(!popup()->isVisible());
        QCOMPARE(m_combo->currentText(), u"q7"_s);
        QCOMPARE(m_acts, 0);
        QVERIFY(m_window->isVisible());
    }

    void theNextTimeTheSearchIsEmpty()
    {
        open(queues(20));
        QTest::keyClicks(field(), u"q3"_s);
        m_combo->hidePopup();
        m_combo->showPopup();
        QCOMPARE(field()->text(), QString());
        QCOMPARE(list()->model()->rowCount(), 20);
    }

    void aClickPicks()
    {
        open(queues(20));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"q4"_s).center());
        QVERIFY(!popup()->isVisible());
        QCOMPARE(m_combo->currentText(), u"q4"_s);
        QCOMPARE(m_acts, 1);
    }

    void theHighlightStaysWithItsPrinter_data()
    {
        QTest::addColumn<QList<Printer>>("after");
        QList<Printer> more;
        for (int i = 0; i < 30; ++i)
            more += queue(u"new%1"_s.arg(i));
        QTest::newRow("inserted before") << more + queues(200);
        QTest::newRow("removed before") << queues(200).mid(50);
        QList<Printer> reversed = queues(200);
        std::reverse(reversed.begin(), reversed.end());
        QTest::newRow("reversed") << reversed;
    }
    void theHighlightStaysWithItsPrinter()
    {
        QFETCH(QList<Printer>, after);
        open(queues(200), u"q100"_s);
        press(Qt::Key_Down);
        const QRect before = rectOf(u"q101"_s);
        m_combo->setPrinters(after);
        QVERIFY(popup()->isVisible());
        QCOMPARE(highlighted(), u"q101"_s);
        QCOMPARE(rectOf(u"q101"_s), before); // nor does it move below the pointer
        QCOMPARE(m_combo->currentText(), u"q100"_s);
        QCOMPARE(m_acts, 0);
    }

    void whatIsInViewStaysWhenTheHighlightIsElsewhere()
    {
        open(queues(200), u"q0"_s);
        list()->scrollTo(list()->model()->index(150, 0), QAbstractItemView::PositionAtTop);
        const QRect before = rectOf(u"q150"_s);
        m_combo->setPrinters(QList<Printer>{queue(u"new"_s)} + queues(200));
        QCOMPARE(rectOf(u"q150"_s), before);
        QCOMPARE(highlighted(), u"q0"_s);
    }

    void theHighlightOfAPrinterThatVanishedGoesToNoOther()
    {
        open(queues(10), u"q0"_s);
        press(Qt::Key_Down);
        QCOMPARE(highlighted(), u"q1"_s);
        QList<Printer> without = queues(10);
        without.removeAt(1);
        m_combo->setPrinters(without);
        QVERIFY(!list()->currentIndex().isValid());
        QVERIFY(list()->selectionModel()->selectedIndexes().isEmpty());
        press(Qt::Key_Return);
        QCOMPARE(m_acts, 0);
        press(Qt::Key_Down);
        QVERIFY(list()->currentIndex().isValid());
    }

    void aSearchGoesOnWhenAListComes()
    {
        open(queues(10));
        QTest::keyClicks(field(), u"q1"_s);
        QCOMPARE(list()->model()->rowCount(), 1);
        m_combo->setPrinters(queues(12));
        QCOMPARE(list()->model()->rowCount(), 3);
        QCOMPARE(field()->text(), u"q1"_s);
        QCOMPARE(highlighted(), u"q1"_s);
    }

    void aClosedListIsNotUpdated()
    {
        open(queues(10));
        m_combo->hidePopup();
        m_combo->setPrinters(queues(20));
        QCOMPARE(list()->model()->rowCount(), 0);
        m_combo->showPopup();
        QCOMPARE(list()->model()->rowCount(), 20);
    }
};

QTEST_MAIN(PrinterPopupTest)

#include "printer_popup_test.moc"
