#include <QTest>

#include "platform/toolkit/RowKeys.h"

using namespace corvana;

class RowKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A list of ten rows of which four are seen.
    void keysLeadTo_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("expected");

        QTest::newRow("up") << int(Qt::Key_Up) << 5 << 4;
        QTest::newRow("up, on the first") << int(Qt::Key_Up) << 0 << 0;
        QTest::newRow("up, with none") << int(Qt::Key_Up) << -1 << 0;
        QTest::newRow("down") << int(Qt::Key_Down) << 5 << 6;
        QTest::newRow("down, on the last") << int(Qt::Key_Down) << 9 << 9;
        QTest::newRow("down, with none") << int(Qt::Key_Down) << -1 << 0;
        QTest::newRow("page up") << int(Qt::Key_PageUp) << 5 << 1;
        QTest::newRow("page up, near the top") << int(Qt::Key_PageUp) << 2 << 0;
        QTest::newRow("page up, with none") << int(Qt::Key_PageUp) << -1 << 0;
        QTest::newRow("page down") << int(Qt::Key_PageDown) << 5 << 9;
        QTest::newRow("page down, near the end") << int(Qt::Key_PageDown) << 7 << 9;
        QTest::newRow("page down, with none") << int(Qt::Key_PageDown) << -1 << 0;
        QTest::newRow("home") << int(Qt::Key_Home) << 5 << 0;
        QTest::newRow("end") << int(Qt::Key_End) << 5 << 9;
        QTest::newRow("end, with none") << int(Qt::Key_End) << -1 << 9;
    }
    void keysLeadTo()
    {
        QFETCH(int, key);
        QFETCH(int, row);
        QTEST(rowAfterKey(key, row, 9, 4).value_or(-1), "expected");
    }

    void otherKeysLeadNowhere()
    {
        for (const int key : {int(Qt::Key_Left), int(Qt::Key_Return), int(Qt::Key_A)})
            QVERIFY(!rowAfterKey(key, 5, 9, 4));
    }

    void anEmptyListLeadsNowhere()
    {
        for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End})
            QVERIFY(!rowAfterKey(key, -1, -1, 1));
    }
};

QTEST_APPLESS_MAIN(RowKeysTest)

#include "row_keys_test.moc"
