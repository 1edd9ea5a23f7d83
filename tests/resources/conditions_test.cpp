// What each sample printer is there for: conditions.tsv says which printer shows which condition,
// and these tests hold it against the PPD files.

#include <map>
#include <memory>

#include <QFile>
#include <QSet>
#include <QTest>

#include "tests/resources/Conditions.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString condition;
    QSet<QString> meeting;
    QSet<QString> missing;
};

// "cl2 cl5" as the names of printers.
QSet<QString> printersIn(const QString &cell)
{
    QSet<QString> printers;
    for (const QString &series : cell.split(u' ', Qt::SkipEmptyParts))
        printers += u"corvana-"_s + series;
    return printers;
}

QList<Row> readTable()
{
    QList<Row> rows;
    QFile file(corvana::test::sourceFile(u"tests/resources/conditions.tsv"_s));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return rows;
    file.readLine(); // the headings
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(u'\t');
        rows += {cells.value(0), printersIn(cells.value(1)), printersIn(cells.value(2))};
    }
    return rows;
}

QSet<QString> setOf(const QStringList &list)
{
    return {list.begin(), list.end()};
}

QByteArray listOf(const QSet<QString> &printers)
{
    QStringList sorted = printers.values();
    sorted.sort();
    return sorted.join(u' ').toUtf8();
}

} // namespace

class ConditionsTest : public QObject
{
    Q_OBJECT

private:
    QList<Row> m_rows = readTable();
    QStringList m_names = samplePrinterNames();
    std::map<QString, std::unique_ptr<SamplePrinter>> m_printers;

    // The printers that meet the condition according to their PPD files.
    QSet<QString> meeting(const Condition &condition)
    {
        QSet<QString> found;
        for (const auto &[name, printer] : m_printers) {
            if (condition.isMetBy(*printer))
                found += name;
        }
        return found;
    }

    const Condition *conditionOf(const Row &row)
    {
        for (const Condition &condition : conditions()) {
            if (condition.name == row.condition)
                return &condition;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(!m_names.isEmpty());
        for (const QString &name : m_names) {
            auto printer = std::make_unique<SamplePrinter>(name);
            QVERIFY2(printer->english.isOpen(), qPrintable(name));
            QVERIFY2(printer->japanese.isOpen(), qPrintable(name));
            QVERIFY2(printer->chinese.isOpen(), qPrintable(name));
            m_printers.emplace(name, std::move(printer));
        }
    }

    void theTableListsEachConditionOnce()
    {
        QStringList listed;
        for (const Row &row : m_rows)
            listed += row.condition;
        QStringList known;
        for (const Condition &condition : conditions())
            known += condition.name;
        QCOMPARE(listed, known);
        QCOMPARE(setOf(listed).size(), listed.size());
    }

    void theTableIsTrue_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < m_rows.size(); ++i)
            QTest::newRow(qPrintable(m_rows[i].condition)) << i;
    }
    void theTableIsTrue()
    {
        QFETCH(int, index);
        const Row &row = m_rows[index];
        const Condition *condition = conditionOf(row);
        QVERIFY(condition);
        const QSet<QString> found = meeting(*condition);
        QCOMPARE(listOf(row.meeting), listOf(found));
        QCOMPARE(listOf(row.missing), listOf(setOf(m_names) - found));
    }

    // A condition that all printers share, or none, would not show what it changes.
    void eachConditionIsMetByOnePrinterAndMissedByAnother()
    {
        for (const Condition &condition : conditions()) {
            const qsizetype count = meeting(condition).size();
            QVERIFY2(count > 0, qPrintable(condition.name));
            QVERIFY2(count < m_names.size(), qPrintable(condition.name));
        }
    }

    void eachPrinterShowsWhatNoOtherDoes_data()
    {
        QTest::addColumn<QString>("printer");
        for (const QString &name : m_names)
            QTest::newRow(qPrintable(name)) << name;
    }
    void eachPrinterShowsWhatNoOtherDoes()
    {
        QFETCH(QString, printer);
        const bool needed =
            std::any_of(conditions().begin(), conditions().end(), [&](const Condition &condition) {
                return meeting(condition) == QSet{printer};
            });
        QVERIFY2(needed, "this printer could be left out");
    }
};

QTEST_APPLESS_MAIN(ConditionsTest)

#include "conditions_test.moc"
