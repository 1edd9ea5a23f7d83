#include <QFile>
#include <QTest>
#include <QTranslator>

#include "platform/foundation/StringTable.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray number(quint32 value)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

QByteArray section(char tag, const QByteArray &content)
{
    return tag + number(static_cast<quint32>(content.size())) + content;
}

QByteArray magic()
{
    return QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
}

QByteArray hashes(quint32 offset)
{
    return section(0x42, number(1) + number(offset));
}

// The text "x", with nothing beside it.
QByteArray messages(quint32 length = 2)
{
    return section(0x69, "\3" + number(length) + QByteArray("\0x\1", 3));
}

struct TableCase
{
    const char *name;
    QByteArray table;
    bool isWhole;
};
const TableCase kTables[] = {
    {"nothing but the beginning", magic(), true},
    {"one text", magic() + hashes(0) + messages(), true},
    {"no table", "nonsense", false},
    {"a section that is longer than the table", magic() + section(0x69, "abc").chopped(1), false},
    {"an offset behind the texts", magic() + hashes(0x7fffffff) + messages(), false},
    {"an offset to the end of the texts", magic() + hashes(8) + messages(), false},
    {"a text that is longer than all of them", magic() + hashes(0) + messages(0x10000000), false},
    {"a text of a negative length", magic() + hashes(0) + messages(0xfffffff0), false},
    {"half a hash", magic() + section(0x42, "abc") + messages(), false},
    {"texts without any text", magic() + hashes(0), false},
    {"no place for a context", magic() + section(0x2f, QByteArray(2, '\0')), false},
    {"fewer contexts than it says", magic() + section(0x2f, QByteArray("\0\7\0\0", 4)), false},
    {"a context behind the contexts", magic() + section(0x2f, QByteArray("\0\1\7\7\0", 5)), false},
    {"a context without an end", magic() + section(0x2f, QByteArray("\0\1\0\1\0\0\5a", 8)), false},
    {"a context", magic() + section(0x2f, QByteArray("\0\1\0\1\0\0\1a\0", 9)), true},
    {"another table that it depends on", magic() + section(char(0x96), "a"), false},
};

} // namespace

/// Compiled tables of texts, which are looked at before Qt reads them.
class StringTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTableIsWholeWhereNothingLeadsOutOfIt_data() { addRows(kTables); }
    void aTableIsWholeWhereNothingLeadsOutOfIt()
    {
        const TableCase &row = currentRow(kTables);
        QCOMPARE(isWholeStringTable(row.table), row.isWhole);
    }

    void theTablesThatAreShippedAreWhole()
    {
        for (const char *name : {"English", "Japanese", "zh_CN"}) {
            QFile file(bundleFile(u"strings/%1.qm"_s.arg(QLatin1StringView(name))));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray table = file.readAll();
            QVERIFY(isWholeStringTable(table));
            // Cut anywhere, it is whole or refused, and never read behind its end.
            for (qsizetype size = 0; size < table.size(); size += 97)
                isWholeStringTable(table.left(size));
        }
    }
};

QTEST_GUILESS_MAIN(StringTableTest)
#include "string_table_test.moc"
