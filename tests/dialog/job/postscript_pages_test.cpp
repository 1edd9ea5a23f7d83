#include <QTemporaryFile>
#include <QTest>

#include "dialog/job/PostScriptPages.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBlock = 1 << 20; // that is read at a time

// A mark that the end of a block cuts in two.
QByteArray withMarkAcross(int before)
{
    const QByteArray begin = "%!PS-Adobe-3.0\n%";
    return begin + QByteArray(kBlock - begin.size() - before - 1, ' ') + "\n%%Page: 1 1\n";
}

struct Beginning
{
    const char *name;
    QByteArray content;
    int pages;
    bool marksPages;
    bool isEncapsulated = false;
};
const QList<Beginning> &beginnings()
{
    static const QList<Beginning> all{
        {"each page", "%!PS-Adobe-3.0\n%%Page: 1 1\nshowpage\n%%Page: 2 2\nshowpage\n", 2, true},
        {"lines of another system", "%!PS-Adobe-3.0\r%%Page: 1 1\rshowpage\r", 1, true},
        {"a page without one", "%!PS-Adobe-3.0\n%%Page: 1 1\nshowpage\nshowpage\n", 2, false},
        {"those of a document in it", "%!PS-Adobe-3.0\n%%Page: 1 1\n%%Page: 1 1\nshowpage\n", 1,
         false},
        {"no structure", "%!PS\n%%Page: 1 1\nshowpage\n", 1, false},
        {"within a line", "%!PS-Adobe-3.0\n(%%Page: 1 1) show\nshowpage\n", 1, false},
        {"the number of pages only", "%!PS-Adobe-3.0\n%%Pages: 1\nshowpage\n", 1, false},
        {"nothing", "", 0, false},
        {"a picture", "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 9 9\n", 1, false, true},
        {"a picture, further down", "%!PS-Adobe-3.0\n%%BeginDocument: x EPSF-3.0\n", 1, false},
        {"the end of a block before", withMarkAcross(0), 1, true},
        {"the end of a block in it", withMarkAcross(3), 1, true},
        {"the end of a block behind", withMarkAcross(7), 1, true},
        {"the end of a block behind its line", withMarkAcross(8), 1, true},
    };
    return all;
}

} // namespace

/// What PostScript says of its own structure.
class PostScriptPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksAreFound_data() { addRows(beginnings()); }
    void marksAreFound()
    {
        const Beginning &row = currentRow(beginnings());
        QTemporaryFile file;
        QVERIFY(file.open());
        QCOMPARE(file.write(row.content), row.content.size());
        QVERIFY(file.flush());
        QCOMPARE(marksPages(file.fileName(), row.pages), row.marksPages);
        QCOMPARE(isEncapsulated(file.fileName()), row.isEncapsulated);
    }

    void whatCannotBeReadMarksNothing()
    {
        QVERIFY(!marksPages(u"/nowhere.ps"_s, 0));
        QVERIFY(!isEncapsulated(u"/nowhere.ps"_s));
    }
};

QTEST_APPLESS_MAIN(PostScriptPagesTest)

#include "postscript_pages_test.moc"
