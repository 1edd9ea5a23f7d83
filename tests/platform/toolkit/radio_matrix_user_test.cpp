#include <QtTest>

#include <QLabel>
#include <QRadioButton>

#include "platform/toolkit/RadioMatrix.h"

#include "UserActs.h"

using namespace corvana;

class RadioMatrixUserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aClickActivatesOnce();
    void aClickOnTheSelectedRowActivatesAgain();
    void theKeyboardActivatesOnce();
    void assistiveTechnologyActivatesOnce();
    void aChangeThatComesWithoutAClickActivatesOnce();
    void aClickRightAfterSuchAChangeIsAnActOfItsOwn();
    void anActivationThatWaitsIsReportedOnce();
    void quickClicksAreReportedOnceEachEvenIfOneWaits();
    void aPickWhileAnActivationWaitsIsReportedOnceEach();
    void theSelectionIsMadeWhenItIsTold();
    void aRefusedPickCanBeTakenBack();
    void aPickAfterARefusalActivatesAgain();
    void theRowsMayBeRebuiltWhileOneIsActivated();
    void aDisabledMatrixActivatesNothing();

private:
    void click(int row);
    QList<int> rows() const;

    std::unique_ptr<RadioMatrix> m_matrix;
    std::unique_ptr<QSignalSpy> m_activated;
};

void RadioMatrixUserTest::init()
{
    m_matrix = std::make_unique<RadioMatrix>();
    m_matrix->setNumberOfRows(3);
    for (int row = 0; row < 3; ++row)
        m_matrix->setCellTitle(row, QString::number(row));
    m_matrix->selectRow(0);
    QVERIFY(user::show(m_matrix.get()));
    m_activated = std::make_unique<QSignalSpy>(m_matrix.get(), &RadioMatrix::activated);
}

void RadioMatrixUserTest::click(int row)
{
    QRadioButton *cell = m_matrix->cell(row);
    QTest::mouseClick(cell, Qt::LeftButton, {}, QPoint(8, cell->height() / 2));
}

QList<int> RadioMatrixUserTest::rows() const
{
    QList<int> result;
    for (const QVariantList &arguments : *m_activated)
        result += arguments.first().toInt();
    return result;
}

void RadioMatrixUserTest::aClickActivatesOnce()
{
    click(1);
    QCoreApplication::processEvents();
    QCOMPARE(rows(), QList<int>{1});
    QCOMPARE(m_matrix->selectedRow(), 1);
}

void RadioMatrixUserTest::aClickOnTheSelectedRowActivatesAgain()
{
    click(0);
    click(0);
    click(2);
    click(2);
    QCOMPARE(rows(), (QList<int>{0, 0, 2, 2}));
}

void RadioMatrixUserTest::theKeyboardActivatesOnce()
{
    m_matrix->setFocus();
    QVERIFY(m_matrix->cell(0)->hasFocus());
    QTest::keyClick(m_matrix->cell(0), Qt::Key_Down);
    QCOMPARE(rows(), QList<int>{1});
    QTest::keyClick(m_matrix->cell(1), Qt::Key_Space); // re-picked
    QCOMPARE(rows(), (QList<int>{1, 1}));
    QTest::keyClick(m_matrix->cell(1), Qt::Key_Up);
    QCOMPARE(rows(), (QList<int>{1, 1, 0}));
}

void RadioMatrixUserTest::assistiveTechnologyActivatesOnce()
{
    QAccessibleInterface *cell = QAccessible::queryAccessibleInterface(m_matrix->cell(2));
    QVERIFY(cell && cell->actionInterface());
    const QStringList offered = cell->actionInterface()->actionNames();
    QVERIFY(!offered.isEmpty());
    QVERIFY(user::act(m_matrix->cell(2), offered.first()));
    QTRY_COMPARE(m_matrix->selectedRow(), 2);
    QTest::qWait(200); // a press by assistive technology is shown for a moment
    QCOMPARE(rows(), QList<int>{2});
}

void RadioMatrixUserTest::aChangeThatComesWithoutAClickActivatesOnce()
{
    m_matrix->cell(1)->setChecked(true);
    QCoreApplication::processEvents();
    QCOMPARE(rows(), QList<int>{1});
}

void RadioMatrixUserTest::aClickRightAfterSuchAChangeIsAnActOfItsOwn()
{
    m_matrix->cell(1)->setChecked(true);
    QCoreApplication::processEvents();
    click(1);
    QCOMPARE(rows(), (QList<int>{1, 1}));
}

void RadioMatrixUserTest::anActivationThatWaitsIsReportedOnce()
{
    connect(m_matrix.get(), &RadioMatrix::activated, this, &user::runNestedEventLoop);
    click(1);
    QCoreApplication::processEvents();
    QCOMPARE(rows(), QList<int>{1});
    click(1);
    QCOMPARE(rows(), (QList<int>{1, 1}));
}

void RadioMatrixUserTest::quickClicksAreReportedOnceEachEvenIfOneWaits()
{
    // Both clicks are in the queue before the event loop turns, as on a busy machine.
    connect(m_matrix.get(), &RadioMatrix::activated, this, [](int row) {
        if (row == 2)
            user::runNestedEventLoop();
    });
    click(1);
    click(2);
    QCOMPARE(rows(), (QList<int>{1, 2}));
}

void RadioMatrixUserTest::aPickWhileAnActivationWaitsIsReportedOnceEach()
{
    connect(m_matrix.get(), &RadioMatrix::activated, this, [this](int row) {
        if (row == 1) {
            click(2);
            user::runNestedEventLoop();
        }
    });
    click(1);
    QCOMPARE(rows(), (QList<int>{1, 2}));
}

void RadioMatrixUserTest::theSelectionIsMadeWhenItIsTold()
{
    int told = -1;
    connect(m_matrix.get(), &RadioMatrix::activated, this, [&] { told = m_matrix->selectedRow(); });
    click(2);
    QCOMPARE(told, 2);
}

void RadioMatrixUserTest::aRefusedPickCanBeTakenBack()
{
    connect(m_matrix.get(), &RadioMatrix::activated, this, [this] { m_matrix->selectRow(0); });
    click(2);
    QCOMPARE(m_matrix->selectedRow(), 0);
    QCOMPARE(rows(), QList<int>{2});
}

void RadioMatrixUserTest::aPickAfterARefusalActivatesAgain()
{
    connect(m_matrix.get(), &RadioMatrix::activated, this, [this] { m_matrix->selectRow(0); });
    click(2);
    click(2);
    QCOMPARE(rows(), (QList<int>{2, 2}));
}

void RadioMatrixUserTest::theRowsMayBeRebuiltWhileOneIsActivated()
{
    connect(m_matrix.get(), &RadioMatrix::activated, this, [this] {
        m_matrix->setNumberOfRows(0);
        m_matrix->setNumberOfRows(2);
    });
    click(2);
    QCoreApplication::processEvents();
    QCOMPARE(rows(), QList<int>{2});
    click(1);
    click(0);
    QCOMPARE(rows(), (QList<int>{2, 1, 0}));
}

void RadioMatrixUserTest::aDisabledMatrixActivatesNothing()
{
    m_matrix->setEnabled(false);
    click(1);
    QCOMPARE(rows(), QList<int>());
    QCOMPARE(m_matrix->selectedRow(), 0);
}

QTEST_MAIN(RadioMatrixUserTest)
#include "radio_matrix_user_test.moc"
