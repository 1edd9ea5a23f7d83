#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "dialog/window/chooser/PrinterComboBox.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/ScreenReader.h"
#include "tests/dialog/window/chooser/ChooserPrinters.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The closed combo box: what it shows, what opens it, and what counts as an act of the user's.
class PrinterComboBoxTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    PrinterComboBox *m_combo = nullptr;
    QLineEdit *m_other = nullptr;
    int m_acts = 0;

    QWidget *popup() const { return m_combo->findChild<QWidget *>(u"printerPopup"_s); }
    bool isOpen() const { return popup() && popup()->isVisible(); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_combo = new PrinterComboBox;
        m_other = new QLineEdit;
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_other);
        layout->addWidget(m_combo);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_combo->setFocus();
        m_acts = 0;
        connectControlAction(m_combo, [this](QWidget *) { ++m_acts; });
    }
    void cleanup()
    {
        QToolTip::hideText();
        m_window.reset();
    }

    void nothingIsChosenByItself()
    {
        m_combo->setPrinters(queues(3));
        QCOMPARE(m_combo->currentIndex(), -1);
        QVERIFY(!m_combo->currentPrinter());
        QVERIFY(!m_combo->isCurrentPrinterGone());
        m_combo->setPrinters({});
        m_combo->setPrinters(queues(2));
        QCOMPARE(m_combo->currentIndex(), -1);
    }

    void theListThatItReplacesIsNeverMade()
    {
        nameListsOfPopUps(m_window.get());
        m_combo->setPrinters(queues(3));
        m_combo->showPopup();
        QTRY_VERIFY(m_combo->findChild<QLineEdit *>(u"printerSearch"_s)->hasFocus());
        QCOMPARE(m_combo->findChildren<QAbstractItemView *>().size(), 1);
    }

    void theProgramChoosesWithoutAnAct()
    {
        m_combo->setPrinters(queues(5));
        QVERIFY(m_combo->setCurrentPrinter(idOf(queue(u"q3"_s))));
        QCOMPARE(m_combo->currentText(), u"q3"_s);
        QVERIFY(!m_combo->setCurrentPrinter(idOf(queue(u"other"_s))));
        QCOMPARE(m_combo->currentText(), u"q3"_s);
        QCOMPARE(m_acts, 0);
    }

    void aListThatComesIsNoAct_data()
    {
        QTest::addColumn<QList<Printer>>("after");
        QTest::newRow("before it") << (QList<Printer>{queue(u"new"_s)} + queues(5));
        QTest::newRow("removed before it") << queues(5).mid(2);
        QTest::newRow("without it") << queues(2);
        QTest::newRow("empty") << QList<Printer>();
        QList<Printer> reversed = queues(5);
        std::reverse(reversed.begin(), reversed.end());
        QTest::newRow("another order") << reversed;
    }
    void aListThatComesIsNoAct()
    {
        QFETCH(QList<Printer>, after);
        m_combo->setPrinters(queues(5));
        m_combo->setCurrentPrinter(idOf(queue(u"q3"_s)));
        m_combo->setPrinters(after);
        QCOMPARE(m_acts, 0);
        QCOMPARE(m_combo->currentText(), u"q3"_s);
        QCOMPARE(m_combo->currentPrinter()->name, u"q3"_s);
    }

    void aPrinterThatVanishedStaysUntilAnotherIsChosen()
    {
        m_combo->setPrinters(queues(5));
        m_combo->setCurrentPrinter(idOf(queue(u"q3"_s)));
        m_combo->setPrinters(queues(2));
        QVERIFY(m_combo->isCurrentPrinterGone());
        QCOMPARE(m_combo->count(), 3);
        m_combo->setPrinters(queues(5));
        QVERIFY(!m_combo->isCurrentPrinterGone());
        m_combo->setPrinters(queues(2));
        m_combo->setCurrentPrinter(idOf(queue(u"q1"_s)));
        QTRY_COMPARE(m_combo->count(), 2);
        QCOMPARE(m_combo->currentText(), u"q1"_s);
        QCOMPARE(m_acts, 0);
    }

    void aPickIsOneAct()
    {
        m_combo->setPrinters(queues(5));
        QVERIFY(pick(m_combo, u"q2"_s));
        QCOMPARE(m_acts, 1);
        QVERIFY(pick(m_combo, u"q2"_s));
        QCOMPARE(m_acts, 2); // picked again
    }

    void itOpensAsAnyOther_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
        QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier);
        QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
    }
    void itOpensAsAnyOther()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        m_combo->setPrinters(queues(3));
        QTest::keyClick(m_combo, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QVERIFY(isOpen());
        QCOMPARE(m_combo->findChild<QLineEdit *>(u"printerSearch"_s)->text(), QString());
        QCOMPARE(m_acts, 0);
    }

    void aClickOpensIt()
    {
        m_combo->setPrinters(queues(3));
        QTest::mousePress(m_combo, Qt::LeftButton);
        QVERIFY(isOpen());
    }

    void typingOpensItWithWhatWasTyped()
    {
        m_combo->setPrinters(queues(3));
        m_combo->setCurrentPrinter(idOf(queue(u"q0"_s)));
        QTest::keyClick(m_combo, 'q');
        QVERIFY(isOpen());
        QCOMPARE(m_combo->findChild<QLineEdit *>(u"printerSearch"_s)->text(), u"q"_s);
        QCOMPARE(m_combo->currentText(), u"q0"_s);
        QCOMPARE(m_acts, 0);
    }

    void shortcutsAreNotTyped()
    {
        m_combo->setPrinters(queues(3));
        QTest::keyClick(m_combo, 'q', Qt::ControlModifier);
        QTest::keyClick(m_combo, 'q', Qt::AltModifier);
        QVERIFY(!isOpen());
    }

    void aDisabledComboBoxCloses()
    {
        m_combo->setPrinters(queues(3));
        m_combo->showPopup();
        QVERIFY(isOpen());
        m_combo->setEnabled(false);
        QVERIFY(!isOpen());
    }

    void theWheelNeedsTheFocus_data()
    {
        QTest::addColumn<bool>("focused");
        QTest::newRow("focused") << true;
        QTest::newRow("not focused") << false;
    }
    void theWheelNeedsTheFocus()
    {
        QFETCH(bool, focused);
        m_combo->setPrinters(queues(5));
        m_combo->setCurrentPrinter(idOf(queue(u"q2"_s)));
        (focused ? static_cast<QWidget *>(m_combo) : m_other)->setFocus();
        const QPointF at(5, 5);
        QWheelEvent wheel(at, m_combo->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_combo, &wheel);
        QCOMPARE(m_combo->currentText(), focused ? u"q3"_s : u"q2"_s);
    }

    void itsWidthDoesNotDependOnThePrinters()
    {
        PrinterComboBox empty;
        PrinterComboBox full;
        full.setPrinters({queue(u"q"_s, QString(150, u'w'))});
        full.setCurrentIndex(0);
        empty.show();
        full.show();
        QCOMPARE(full.sizeHint(), empty.sizeHint());
        QCOMPARE(full.minimumSizeHint(), empty.minimumSizeHint());
    }

    void theToolTipIsThatOfTheChosenPrinter()
    {
        m_combo->setPrinters({queue(u"q"_s, u"<b>Red"_s, u"Cellar"_s)});
        m_combo->setCurrentIndex(0);
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), m_combo->mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(m_combo, &help);
        QVERIFY(QToolTip::text().contains(u"&lt;b&gt;Red"_s));
        QVERIFY(QToolTip::text().contains(u"Cellar"_s));
    }

    void assistiveTechnologyReadsTheChosenPrinter()
    {
        m_combo->setPrinters(queues(3));
        m_combo->setCurrentIndex(1);
        QLabel label(u"Printer:"_s, m_window.get());
        label.setBuddy(m_combo);
        QAccessibleInterface *combo = QAccessible::queryAccessibleInterface(m_combo);
        QCOMPARE(combo->role(), QAccessible::ComboBox);
        QCOMPARE(combo->relations(QAccessible::Label).size(), 1);
        QCOMPARE(combo->text(QAccessible::Value), u"q1"_s);
    }
};

QTEST_MAIN(PrinterComboBoxTest)

#include "printer_combo_box_test.moc"
