#include <cstdlib>

#include <QFile>
#include <QProcess>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30000; // milliseconds that a program may take on a busy machine

// Three pages, with or without marks where they begin.
QByteArray threePages(bool hasMarks)
{
    QByteArray data = hasMarks ? "%!PS-Adobe-3.0\n%%Pages: 3\n%%EndComments\n" : "%!PS\n";
    for (const char *number : {"1", "2", "3"}) {
        if (hasMarks)
            data += QByteArray("%%Page: ") + number + ' ' + number + '\n';
        data += QByteArray("/Helvetica 24 selectfont 100 100 moveto (page ") + number +
                ") show showpage\n";
    }
    return data + "%%Trailer\n%%EOF\n";
}

// A page that sets the device up, with a square.
QByteArray pageOfSize(const QByteArray &size)
{
    return "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n<</PageSize [" + size +
           "]>> setpagedevice\n100 100 200 200 rectfill showpage\n";
}

struct Order
{
    const char *name;
    QByteArray document;
    QStringList arguments;
    QString sides; ///< that come out, "-" is a blank one
};

const QList<Order> &orders()
{
    static const QStringList reverse{u"-o"_s, u"outputorder=reverse"_s};
    static const QStringList collated{u"-n"_s, u"2"_s, u"-o"_s, u"sides=two-sided-long-edge"_s};
    static const QByteArray odd = threePages(true).replace("%%Page: 2 2\n", "");
    static const QList<Order> all{
        {"reverse", threePages(true), reverse, u"page 3 | page 2 | page 1"_s},
        {"reverse, without marks", threePages(false), reverse, u"page 3 | page 2 | page 1"_s},
        {"reverse, a mark is missing", odd, reverse, u"page 3 | page 2 | page 1"_s},
        {"two-sided copies", threePages(true), collated,
         u"page 1 | page 2 | page 3 | - | page 1 | page 2 | page 3 | -"_s},
        {"two-sided copies, without marks", threePages(false), collated,
         u"page 1 | page 2 | page 3 | - | page 1 | page 2 | page 3 | -"_s},
        {"a picture that ends no page",
         "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 300 200\n%%EndComments\n/Helvetica 24 "
         "selectfont 100 100 moveto (picture) show\n%%EOF\n",
         {},
         u"picture"_s},
    };
    return all;
}

} // namespace

/// Documents in PostScript at a printer that takes PostScript: what it gets is what was said.
class QueuePostScriptTest : public QueueRuns
{
    Q_OBJECT

private:
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_runner->filePath(name));
        [&] {
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(content), content.size());
        }();
        return file.fileName();
    }
    QByteArray printedDocument(const QByteArray &content, const QStringList &arguments = {})
    {
        return printed(u"office"_s, arguments + QStringList{write(u"page.ps"_s, content)}).data;
    }
    // What the marks on the first page reach to, "100 100 300 300". Units: points.
    static QByteArray boxOf(const QByteArray &data)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(u"gs"_s, {u"-q"_s, u"-dBATCH"_s, u"-dNOPAUSE"_s, u"-sDEVICE=bbox"_s, u"-"_s});
        process.write(data);
        process.closeWriteChannel();
        [&] { QVERIFY(process.waitForFinished(kPatience)); }();
        const QByteArray said = process.readAllStandardOutput();
        return said.mid(said.indexOf(": ") + 2, said.indexOf('\n') - said.indexOf(": ") - 2);
    }

private Q_SLOTS:
    void pagesComeInTheOrderThatIsSaid_data() { addRows(orders()); }
    void pagesComeInTheOrderThatIsSaid()
    {
        const Order &row = currentRow(orders());
        m_cups->addQueue(u"office"_s, kPpd);
        QStringList sides = printedSides(printedDocument(row.document, row.arguments));
        for (QString &side : sides)
            side = side.isEmpty() ? u"-"_s : side;
        QCOMPARE(sides.join(u" | "_s), row.sides);
    }

    // As applications and drivers write it.
    void commandsAroundADocumentAreTakenOff_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("behind");
        QTest::addColumn<QByteArray>("said");
        QTest::newRow("Ctrl-D") << QByteArray("\x04") << QByteArray("\x04") << QByteArray();
        QTest::newRow("commands") << QByteArray(
                                         "\x1B%-12345X@PJL SET COPIES=2\r\n@PJL SET "
                                         "HOLDKEY=4711\r\n@PJL ENTER LANGUAGE=POSTSCRIPT\r\n")
                                  << QByteArray("\x04\x1B%-12345X")
                                  << QByteArray("which are not followed: COPIES, HOLDKEY.");
    }
    void commandsAroundADocumentAreTakenOff()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, behind);
        QFETCH(QByteArray, said);
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end =
            m_runner->run({u"-d"_s, u"office"_s, u"--summary"_s, u"-P"_s, u"2-3"_s,
                           write(u"three.ps"_s, before + threePages(true) + behind)});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.contains(u"2 pages = 2 sheets"_s), end.text().constData());
        QCOMPARE(end.text().contains("not followed"), !said.isEmpty());
        QVERIFY2(end.text().contains(said), end.text().constData());
        QVERIFY(!end.text().contains("4711"));
        const QByteArray data = m_cups->capture(u"office"_s).jobs().constFirst().data;
        QCOMPARE(printedSides(data), (QStringList{u"page 2"_s, u"page 3"_s}));
    }

    // Where nobody reads the document its printer gets all of it.
    void commandsAroundADocumentGetWhereItGoesAsItIs_data()
    {
        QTest::addColumn<QStringList>("asked");
        QTest::newRow("a queue without a driver") << QStringList{u"-d"_s, u"bare"_s};
        QTest::newRow("raw") << QStringList{u"-d"_s, u"office"_s, u"-o"_s, u"raw"_s};
    }
    void commandsAroundADocumentGetWhereItGoesAsItIs()
    {
        QFETCH(QStringList, asked);
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->addRawQueue(u"bare"_s);
        const QByteArray whole = "\x1B%-12345X@PJL SET COPIES=2\n@PJL ENTER LANGUAGE=POSTSCRIPT\n" +
                                 threePages(true) + "\x04\x1B%-12345X";
        const RunEnd end = m_runner->run(asked + QStringList{write(u"three.ps"_s, whole)});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(!end.text().contains("not followed"), end.text().constData());
        QCOMPARE(m_cups->capture(asked.value(1)).jobs().constFirst().data, whole);
    }

    // What sets its device up undoes what the filter behind PostScript has turned over before it.
    void aPageThatSetsItsDeviceUpIsMirrored()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const QByteArray page = printedDocument(pageOfSize("595 842"), {u"-o"_s, u"mirror=true"_s});
        const int left = boxOf(page).split(' ').value(0).toInt();
        QVERIFY2(std::abs(left - 295) <= 2, boxOf(page).constData());
    }

    // Beside a text, whose pages have their margins already, as well.
    void marginsShapeWhatIsMadeToFit_data()
    {
        QTest::addColumn<bool>("withText");
        QTest::newRow("alone") << false;
        QTest::newRow("before a text") << true;
    }
    void marginsShapeWhatIsMadeToFit()
    {
        QFETCH(bool, withText);
        m_cups->addQueue(u"office"_s, kPpd);
        QStringList arguments{u"-d"_s,
                              u"office"_s,
                              u"-o"_s,
                              u"page-left=100"_s,
                              u"-o"_s,
                              u"page-right=100"_s,
                              write(u"page.ps"_s, pageOfSize("842 1191"))};
        if (withText)
            arguments += kText;
        const RunEnd end = m_runner->run(arguments);
        QVERIFY2(end.status == 0, end.text().constData());
        // 395 points for the 842 of the page.
        const QByteArrayList box =
            boxOf(m_cups->capture(u"office"_s).jobs().constFirst().data).split(' ');
        QVERIFY2(std::abs(box.value(2).toInt() - box.value(0).toInt() - 94) <= 2,
                 box.join(' ').constData());
    }

    void whatWasLaidOutIsWhatIsSaid()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end =
            m_runner->run({u"-d"_s, u"office"_s, u"--summary"_s, u"-o"_s, u"page-set=even"_s,
                           write(u"three.ps"_s, threePages(true))});
        QVERIFY2(end.out.contains(u"1 page = 2 sheets"_s), end.text().constData());
        QCOMPARE(printedSides(m_cups->capture(u"office"_s).jobs().constFirst().data),
                 (QStringList{u"page 2"_s, QString()}));
    }

    // A3 on A4. The filter behind PDF makes it smaller, the one behind PostScript would not.
    void anotherSizeIsMadeToFit()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const QByteArray large = printedDocument(pageOfSize("842 1191"));
        const QByteArrayList box = boxOf(large).split(' ');
        const int width = box.value(2).toInt() - box.value(0).toInt();
        QVERIFY2(width > 120 && width < 150, box.join(' ').constData());
        QVERIFY(!large.contains("/PageSize [842 1191]"));
    }

    void whatAsksTheDeviceItselfGetsThere_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("as large as the paper") << pageOfSize("595 842") + "(a setting) pop\n";
        // It may set the printer up.
        QTest::newRow("draws nothing") << QByteArray("%!PS\n(a setting) pop\n");
    }
    void whatAsksTheDeviceItselfGetsThere()
    {
        QFETCH(QByteArray, document);
        m_cups->addQueue(u"office"_s, kPpd);
        m_runner->run({u"-d"_s, u"office"_s, write(u"page.ps"_s, document)});
        QVERIFY(m_cups->capture(u"office"_s).jobs().constFirst().data.contains("(a setting) pop"));
    }
};

QTEST_GUILESS_MAIN(QueuePostScriptTest)

#include "queue_postscript_test.moc"
