#include <QtTest>

#include <QAccessible>
#include <QRadioButton>

#include "platform/toolkit/RadioMatrix.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class RadioMatrixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewMatrixIsEmpty();
    void rowsAreAddedAndRemovedAtTheEnd();
    void fewerThanNoRowsAreNone();
    void theOthersKeepTheirOrderWhenARowIsRemoved();
    void rowsRemovedFromTheEndDownKeepTheFirst();
    void removingARowThatDoesNotExistIsIgnored();
    void removingTheSelectedRowSelectsNothing_data();
    void removingTheSelectedRowSelectsNothing();
    void removingAnotherRowKeepsTheSelectedOne();
    void aTitleIsShownAndReadAsGiven_data();
    void aTitleIsShownAndReadAsGiven();
    void aTitleMakesNoShortcut();
    void nothingIsSelectedUnlessToldSo();
    void oneRowAtMostIsSelected();
    void theSelectionCanBeTakenBack();
    void aSelectedRowCanBeSelectedAgainAfterNone();
    void twoMatricesOfOneParentAreIndependent();
    void aRowThatDoesNotExistAnswersNothing();
    void theFocusGoesToACellThatExists();
    void nothingHereActivates();

private:
    QStringList titles() const;

    std::unique_ptr<RadioMatrix> m_matrix;
};

void RadioMatrixTest::init()
{
    m_matrix = std::make_unique<RadioMatrix>();
    m_matrix->setNumberOfRows(5);
    for (int row = 0; row < 5; ++row) {
        m_matrix->setCellTitle(row, QString(QChar(u'a' + row)));
        m_matrix->setRepresentedObject(row, row * 10);
    }
}

QStringList RadioMatrixTest::titles() const
{
    QStringList result;
    for (int row = 0; row < m_matrix->numberOfRows(); ++row)
        result += m_matrix->cellTitle(row);
    return result;
}

void RadioMatrixTest::aNewMatrixIsEmpty()
{
    const RadioMatrix matrix;
    QCOMPARE(matrix.numberOfRows(), 0);
    QCOMPARE(matrix.selectedRow(), -1);
}

void RadioMatrixTest::rowsAreAddedAndRemovedAtTheEnd()
{
    m_matrix->setNumberOfRows(3);
    QCOMPARE(titles().join(QString()), u"abc"_s);
    m_matrix->setNumberOfRows(4);
    QCOMPARE(titles().join(u'|'), u"a|b|c|"_s);
    QVERIFY(!m_matrix->representedObject(3).isValid());
    m_matrix->addRow();
    QCOMPARE(m_matrix->numberOfRows(), 5);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_matrix->findChildren<QRadioButton *>().count(), 5);
}

void RadioMatrixTest::fewerThanNoRowsAreNone()
{
    m_matrix->setNumberOfRows(-3);
    QCOMPARE(m_matrix->numberOfRows(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_matrix->findChildren<QRadioButton *>().isEmpty());
}

void RadioMatrixTest::theOthersKeepTheirOrderWhenARowIsRemoved()
{
    m_matrix->removeRow(1);
    QCOMPARE(titles().join(QString()), u"acde"_s);
    QCOMPARE(m_matrix->representedObject(1), QVariant(20));
    m_matrix->removeRow(0);
    QCOMPARE(titles().join(QString()), u"cde"_s);
}

void RadioMatrixTest::rowsRemovedFromTheEndDownKeepTheFirst()
{
    // The order in which a panel takes surplus rows away: 2, 1.
    m_matrix->removeRow(2);
    m_matrix->removeRow(1);
    QCOMPARE(titles().join(QString()), u"ade"_s);
    // What is seen has the same order.
    int lowest = -1;
    m_matrix->resize(200, 200);
    m_matrix->show();
    for (int row = 0; row < 3; ++row) {
        QVERIFY(m_matrix->cell(row)->y() > lowest);
        lowest = m_matrix->cell(row)->y();
    }
}

void RadioMatrixTest::removingARowThatDoesNotExistIsIgnored()
{
    for (const int row : {-1, 5, 100})
        m_matrix->removeRow(row);
    QCOMPARE(m_matrix->numberOfRows(), 5);
}

void RadioMatrixTest::removingTheSelectedRowSelectsNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("middle") << 2;
    QTest::newRow("last") << 4;
}

void RadioMatrixTest::removingTheSelectedRowSelectsNothing()
{
    QFETCH(int, row);
    m_matrix->selectRow(row);
    m_matrix->removeRow(row);
    QCOMPARE(m_matrix->selectedRow(), -1);
}

void RadioMatrixTest::removingAnotherRowKeepsTheSelectedOne()
{
    m_matrix->selectRow(3);
    m_matrix->removeRow(1);
    QCOMPARE(m_matrix->selectedRow(), 2);
    QCOMPARE(m_matrix->cellTitle(2), u"d"_s);
}

void RadioMatrixTest::aTitleIsShownAndReadAsGiven_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("plain") << u"Tray 1"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("ampersand") << u"Black & White"_s;
    QTest::newRow("two ampersands") << u"A && B"_s;
    QTest::newRow("three in a row") << u"&&&"_s;
    QTest::newRow("at the end") << u"A&"_s;
    QTest::newRow("mark-up") << u"<b>A</b>"_s;
    QTest::newRow("Japanese") << u"写真＆図(&P)"_s;
}

void RadioMatrixTest::aTitleIsShownAndReadAsGiven()
{
    QFETCH(QString, title);
    m_matrix->setCellTitle(1, title);
    QCOMPARE(m_matrix->cellTitle(1), title);
    QAccessibleInterface *cell = QAccessible::queryAccessibleInterface(m_matrix->cell(1));
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), title);
}

void RadioMatrixTest::aTitleMakesNoShortcut()
{
    m_matrix->setCellTitle(1, u"Photo (&P)"_s);
    QVERIFY(m_matrix->cell(1)->shortcut().isEmpty());
}

void RadioMatrixTest::nothingIsSelectedUnlessToldSo()
{
    QCOMPARE(m_matrix->selectedRow(), -1);
}

void RadioMatrixTest::oneRowAtMostIsSelected()
{
    m_matrix->selectRow(1);
    m_matrix->selectRow(3);
    QCOMPARE(m_matrix->selectedRow(), 3);
    QVERIFY(!m_matrix->cell(1)->isChecked());
}

void RadioMatrixTest::theSelectionCanBeTakenBack()
{
    for (const int none : {-1, 5, -7}) {
        m_matrix->selectRow(1);
        m_matrix->selectRow(none);
        QCOMPARE(m_matrix->selectedRow(), -1);
    }
}

void RadioMatrixTest::aSelectedRowCanBeSelectedAgainAfterNone()
{
    m_matrix->selectRow(1);
    m_matrix->selectRow(-1);
    m_matrix->selectRow(1);
    QCOMPARE(m_matrix->selectedRow(), 1);
}

void RadioMatrixTest::twoMatricesOfOneParentAreIndependent()
{
    QWidget parent;
    auto *first = new RadioMatrix(&parent);
    auto *second = new RadioMatrix(&parent);
    first->setNumberOfRows(2);
    second->setNumberOfRows(2);
    first->selectRow(0);
    second->selectRow(1);
    QCOMPARE(first->selectedRow(), 0);
    second->cell(0)->click();
    QCOMPARE(first->selectedRow(), 0);
    QCOMPARE(second->selectedRow(), 0);
}

void RadioMatrixTest::aRowThatDoesNotExistAnswersNothing()
{
    for (const int row : {-1, 5}) {
        m_matrix->setCellTitle(row, u"x"_s);
        m_matrix->setRepresentedObject(row, 1);
        QVERIFY(m_matrix->cellTitle(row).isNull());
        QVERIFY(!m_matrix->representedObject(row).isValid());
        QVERIFY(!m_matrix->cell(row));
    }
    QCOMPARE(titles().join(QString()), u"abcde"_s);
}

void RadioMatrixTest::theFocusGoesToACellThatExists()
{
    QCOMPARE(m_matrix->focusProxy(), m_matrix->cell(0));
    m_matrix->removeRow(0);
    QCOMPARE(m_matrix->focusProxy(), m_matrix->cell(0));
    m_matrix->setNumberOfRows(0);
    QVERIFY(!m_matrix->focusProxy());
    m_matrix->addRow();
    QCOMPARE(m_matrix->focusProxy(), m_matrix->cell(0));
}

void RadioMatrixTest::nothingHereActivates()
{
    const QSignalSpy activated(m_matrix.get(), &RadioMatrix::activated);
    m_matrix->selectRow(2);
    m_matrix->selectRow(-1);
    m_matrix->selectRow(1);
    m_matrix->removeRow(1);
    m_matrix->setNumberOfRows(2);
    m_matrix->setNumberOfRows(6);
    m_matrix->selectRow(5);
    QCoreApplication::processEvents();
    QCOMPARE(activated.count(), 0);
}

QTEST_MAIN(RadioMatrixTest)
#include "radio_matrix_test.moc"
