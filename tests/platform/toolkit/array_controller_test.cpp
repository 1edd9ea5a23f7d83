#include <QHeaderView>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QtTest>

#include "platform/toolkit/ArrayController.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Rows, their selection, and what shows them.
class ArrayControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_rows = std::make_unique<ArrayController>();
        m_rows->setSelectsInsertedObjects(false);
    }

    void rowsKeepTheirOrder()
    {
        add({u"b"_s, u"a"_s, u"b"_s}); // equal ones too
        QCOMPARE(m_rows->rowCount(), 3);
        QCOMPARE(label(0), u"label b"_s);
        QCOMPARE(label(1), u"label a"_s);
        QCOMPARE(label(2), u"label b"_s);
        QCOMPARE(m_rows->arrangedObjects().at(1).value(u"id"_s), QVariant(u"a"_s));
        QCOMPARE(m_rows->rowCount(m_rows->index(0)), 0);
    }

    void aLabelIsReadOutInFullWhereItIsCut()
    {
        add({u"a"_s});
        QCOMPARE(m_rows->index(0).data(Qt::ToolTipRole), QVariant(u"<qt>label a</qt>"_s));
        QVERIFY(!m_rows->index(0).data(Qt::DecorationRole).isValid());
    }

    void nothingIsSelectedUntilSomethingSelects()
    {
        add({u"a"_s, u"b"_s});
        QCOMPARE(m_rows->selectionIndex(), -1);
        m_rows->setSelectsInsertedObjects(true);
        add({u"c"_s});
        QCOMPARE(m_rows->selectionIndex(), 2);
    }

    void aRowThatDoesNotExistIsNotSelected_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("before the first") << -1;
        QTest::newRow("behind the last") << 2;
        QTest::newRow("far behind") << 1000;
    }
    void aRowThatDoesNotExistIsNotSelected()
    {
        QFETCH(int, index);
        add({u"a"_s, u"b"_s});
        QVERIFY(m_rows->setSelectionIndex(1));
        QVERIFY(!m_rows->setSelectionIndex(index));
        QCOMPARE(m_rows->selectionIndex(), 1);
    }

    void onlyAnotherSelectionIsTold()
    {
        add({u"a"_s, u"b"_s});
        QSignalSpy told(m_rows.get(), &ArrayController::selectionChanged);
        m_rows->setSelectionIndex(1);
        m_rows->setSelectionIndex(1);
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().first().toInt(), 1);
    }

    void aTableShowsRowsAndSelection()
    {
        add({u"a"_s, u"b"_s});
        m_rows->setSelectionIndex(1);
        QTableView table;
        m_rows->bindTable(&table);
        QCOMPARE(table.model(), m_rows.get());
        QCOMPARE(table.currentIndex().row(), 1);
        m_rows->setSelectionIndex(0);
        QCOMPARE(table.currentIndex().row(), 0);
        QVERIFY(table.selectionModel()->isRowSelected(0));
        table.setCurrentIndex(m_rows->index(1));
        QCOMPARE(m_rows->selectionIndex(), 1);
    }

    void aTableWithoutSelectionKeepsThatOfItsRows()
    {
        add({u"a"_s, u"b"_s});
        m_rows->setSelectionIndex(1);
        QTableView table;
        m_rows->bindTable(&table);
        table.setCurrentIndex(QModelIndex());
        QCOMPARE(m_rows->selectionIndex(), 1);
    }

    void aTableKeepsRoomForAllRows()
    {
        QTableView table;
        m_rows->bindTable(&table);
        const int empty = table.minimumHeight();
        add({u"a"_s});
        const int one = table.minimumHeight();
        add({u"b"_s, u"c"_s, u"d"_s});
        QVERIFY(one > empty);
        QCOMPARE(table.minimumHeight() - empty, 4 * (one - empty));
        QVERIFY(table.verticalHeader()->defaultSectionSize() >= table.fontMetrics().height());
    }

    void theTabKeyLeavesTheTable()
    {
        add({u"a"_s, u"b"_s});
        QTableView table;
        m_rows->bindTable(&table);
        QVERIFY(!table.tabKeyNavigation());
        QVERIFY(table.editTriggers() == QAbstractItemView::NoEditTriggers);
    }

    void thePageOfTheSelectedRowIsShown()
    {
        add({u"a"_s, u"b"_s, u"c"_s});
        QStackedWidget pages;
        addPages(&pages, {u"b"_s, u""_s, u"a"_s});
        m_rows->bindPages(&pages);
        QCOMPARE(pages.currentIndex(), 1); // without a selection the page without a name
        m_rows->setSelectionIndex(0);
        QCOMPARE(pages.currentIndex(), 2);
        m_rows->setSelectionIndex(1);
        QCOMPARE(pages.currentIndex(), 0);
        m_rows->setSelectionIndex(2); // has no page
        QCOMPARE(pages.currentIndex(), 1);
    }

    void withoutAPageForNothingTheCurrentOneStays()
    {
        add({u"a"_s, u"b"_s});
        QStackedWidget pages;
        addPages(&pages, {u"x"_s, u"a"_s});
        m_rows->bindPages(&pages);
        QCOMPARE(pages.currentIndex(), 0);
        m_rows->setSelectionIndex(0);
        QCOMPARE(pages.currentIndex(), 1);
        m_rows->setSelectionIndex(1);
        QCOMPARE(pages.currentIndex(), 1);
    }

    void aRowWithoutAnIdentifierHasNoPage()
    {
        m_rows->addObject({{u"label"_s, u"nameless"_s}});
        m_rows->addObject({});
        QStackedWidget pages;
        addPages(&pages, {u"x"_s, u""_s});
        m_rows->bindPages(&pages);
        for (int row = 0; row < 2; ++row) {
            pages.setCurrentIndex(0);
            m_rows->setSelectionIndex(row);
            QCOMPARE(pages.currentIndex(), 1);
        }
        QVERIFY(!m_rows->index(1).data().isValid());
    }

    void aTableAndItsPagesTurnTogether()
    {
        add({u"a"_s, u"b"_s});
        QTableView table;
        QStackedWidget pages;
        addPages(&pages, {u"a"_s, u"b"_s});
        m_rows->bindTable(&table);
        m_rows->bindPages(&pages);
        QTest::keyClick(&table, Qt::Key_Down);
        QTest::keyClick(&table, Qt::Key_Down);
        QCOMPARE(m_rows->selectionIndex(), 1);
        QCOMPARE(pages.currentIndex(), 1);
        QTest::keyClick(&table, Qt::Key_Up);
        QCOMPARE(pages.currentIndex(), 0);
    }

    void whatShowsTheRowsMayGoFirst()
    {
        add({u"a"_s});
        {
            QTableView table;
            QStackedWidget pages;
            m_rows->bindTable(&table);
            m_rows->bindPages(&pages);
        }
        add({u"b"_s});
        m_rows->setSelectionIndex(1);
        QCOMPARE(m_rows->selectionIndex(), 1);
    }

private:
    void add(const QStringList &ids)
    {
        for (const QString &id : ids)
            m_rows->addObject({{u"id"_s, id}, {u"label"_s, u"label "_s + id}});
    }
    QString label(int row) const { return m_rows->index(row).data().toString(); }
    static void addPages(QStackedWidget *pages, const QStringList &names)
    {
        for (const QString &name : names) {
            auto *page = new QWidget;
            page->setObjectName(name);
            pages->addWidget(page);
        }
    }

    std::unique_ptr<ArrayController> m_rows;
};

QTEST_MAIN(ArrayControllerTest)
#include "array_controller_test.moc"
