#pragma once

#include <iterator>

#include <QTest>

namespace corvana::test {

/// The rows of a test as a table of structs, each with a member `name`: a function `…_data()` calls
/// addRows(kTable), the test itself currentRow(kTable).
template <class Table> void addRows(const Table &table)
{
    QTest::addColumn<int>("row");
    int number = 0;
    for (const auto &row : table)
        QTest::newRow(row.name) << number++;
}

/// Ownership: the table's.
template <class Table> const auto &currentRow(const Table &table)
{
    QFETCH(int, row);
    return *std::next(std::begin(table), row);
}

} // namespace corvana::test
