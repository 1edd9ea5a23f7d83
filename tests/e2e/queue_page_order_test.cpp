#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct OrderCase
{
    const char *name;
    QStringList options;
    int pages;
    QString sides; // the pages of each in the order of their numbers; "-" is a blank side
    QString twoSided;
    QStringList summary;
};
const OrderCase kOrders[] = {
    {"a booklet of eight pages",
     {u"booklet=left"_s},
     8,
     u"1 8 | 2 7 | 3 6 | 4 5"_s,
     u"DuplexTumble"_s,
     {u"Booklet: Bound at the Left"_s, u"Pages per Sheet: 2"_s,
      u"Two-Sided Printing: Short-Edge Binding"_s, u"Sheets: 8 pages = 2 sheets"_s}},
    {"a booklet with blank pages",
     {u"booklet=right"_s},
     5,
     u"1 | 2 | 3 | 4 5"_s,
     u"DuplexTumble"_s,
     {u"Booklet: Bound at the Right"_s, u"Sheets: 5 pages = 2 sheets"_s}},
    {"a booklet of some pages",
     {u"booklet=left"_s, u"page-ranges=2-5"_s},
     8,
     u"2 5 | 3 4"_s,
     u"DuplexTumble"_s,
     {u"Sheets: 4 pages = 1 sheet"_s}},
    {"a booklet whose backs are asked for otherwise",
     {u"booklet=left sides=two-sided-long-edge"_s},
     4,
     u"1 4 | 2 3"_s,
     u"DuplexNoTumble"_s,
     {}},
    {"no booklet", {u"booklet=no repeat=1"_s}, 2, u"1 | 2"_s, u"None"_s, {}},
    {"each page four times",
     {u"repeat=4"_s},
     2,
     u"1 1 1 1 | 2 2 2 2"_s,
     u"None"_s,
     {u"Each Page, Times on a Side: 4"_s, u"Pages per Sheet: 4"_s}},
};

} // namespace

/// Booklets and repeated pages on a queue: what a printer gets, and what its server is told.
class QueuePageOrderTest : public QueueRuns
{
    Q_OBJECT

private:
    QString document(int pages) const
    {
        QFile file(m_runner->filePath(u"a.pdf"_s));
        [&] {
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.write(numberedPdf("a", pages)) > 0);
        }();
        return file.fileName();
    }
    static QString sidesOf(const QByteArray &data)
    {
        static const QRegularExpression page(u"a ([0-9]+)"_s);
        QStringList sides = printedSides(data);
        for (QString &side : sides) {
            QStringList pages = side.replace(page, u"\\1"_s).split(u' ', Qt::SkipEmptyParts);
            pages.sort();
            side = pages.isEmpty() ? u"-"_s : pages.join(u' ');
        }
        return sides.join(u" | "_s);
    }

private Q_SLOTS:
    void pagesComeInTheirOrder_data() { addRows(kOrders); }
    void pagesComeInTheirOrder()
    {
        const OrderCase &row = currentRow(kOrders);
        m_cups->addQueue(u"office"_s, kPpd);
        QStringList arguments{u"-d"_s, u"office"_s, u"--summary"_s};
        for (const QString &option : row.options)
            arguments += {u"-o"_s, option};
        const RunEnd run = m_runner->run(arguments + QStringList{document(row.pages)});
        QVERIFY2(run.status == 0, run.text().constData());
        for (const QString &line : row.summary)
            QVERIFY2(run.out.split(u'\n').contains(line), run.text().constData());
        const CapturedJob job = m_cups->capture(u"office"_s).jobs().value(0);
        QCOMPARE(sidesOf(job.data), row.sides);
        QVERIFY(printedFeatures(job.data).contains(u"Duplex="_s + row.twoSided));
        QVERIFY2(!job.options.contains(u"booklet"_s) && !job.options.contains(u"repeat"_s),
                 qPrintable(job.options));
    }

    void aQueueWithoutADriverRefusesWhatItCannotDo()
    {
        m_cups->addRawQueue(u"raw"_s);
        const RunEnd run =
            m_runner->run({u"-d"_s, u"raw"_s, u"-o"_s, u"booklet=left"_s, document(4)});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(u"booklet=left"_s), run.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
    }
};

QTEST_GUILESS_MAIN(QueuePageOrderTest)
#include "queue_page_order_test.moc"
