#include <cstdio>

#include <QFile>
#include <QTest>

#include "tests/dialog/job/DocumentsScene.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Several documents as one job: what each step is told, and what comes of them.
class FileJobDocumentsTest : public QObject, private DocumentsScene
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void theDocumentsArePrintedInTheirOrderAsOneJob()
    {
        QCOMPARE(printed({document(u"two.txt"_s), document(u"one.txt"_s)}), QString());
        QCOMPARE(lines(u"stages"_s), (QStringList{u"two.txt"_s, u"0.pdf"_s, u"one.txt"_s,
                                                  u"2.pdf"_s, u"unite"_s, u"whole.pdf"_s}));
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("2 as PDF\n1 as PDF\n"));
        QCOMPARE(m_filter->leftOvers(), QStringList());
        QCOMPARE(temporaryFiles(), QStringList());
    }

    void oneDocumentTwiceIsPrintedTwice()
    {
        QCOMPARE(printed({document(u"one.txt"_s), document(u"one.txt"_s)}), QString());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n1 as PDF\n"));
    }

    void eachDocumentIsLaidOutAndFilledUpByItself()
    {
        const JobTicket ticket{
            u"Title"_s,
            3,
            {{u"PageSize"_s, u"A5"_s}, {u"number-up"_s, u"2"_s}, {u"Tray"_s, u"Lower"_s}}};
        QCOMPARE(printed(documents(), ticket), QString());
        const QStringList first = lines(u"arguments-0.pdf"_s);
        QCOMPARE(first.mid(2, first.size() - 3),
                 (QStringList{u"-i"_s, u"application/pdf"_s, u"-m"_s, u"application/vnd.cups-pdf"_s,
                              u"-o"_s, u"PageSize=A5"_s, u"-o"_s, u"number-up=2"_s, u"-o"_s,
                              u"Tray=Lower"_s, u"-o"_s, u"emit-jcl=false"_s}));
        QVERIFY(first.value(1).endsWith(u"/filling.ppd"_s));
        const QStringList last = lines(u"arguments-2.pdf"_s);
        QCOMPARE(last.mid(2, last.size() - 3), first.mid(2, first.size() - 3));
        QVERIFY(last.value(1).endsWith(u"/printer.ppd"_s)); // no blank side at the end
    }

    void theWholeIsNotLaidOutOnceMore()
    {
        const JobTicket ticket{
            u"Title"_s,
            3,
            {{u"PageSize"_s, u"A5"_s}, {u"number-up"_s, u"2"_s}, {u"Tray"_s, u"Lower"_s}}};
        QCOMPARE(printed(documents(), ticket), QString());
        const QStringList whole = lines(u"arguments-whole.pdf"_s);
        QCOMPARE(whole.mid(2, whole.size() - 3),
                 (QStringList{u"-i"_s, u"application/pdf"_s, u"-m"_s, u"printer/foo"_s, u"-e"_s,
                              u"-t"_s, u"Title"_s, u"-n"_s, u"3"_s, u"-o"_s, u"PageSize=A5"_s,
                              u"-o"_s, u"number-up=1"_s, u"-o"_s, u"Tray=Lower"_s, u"-o"_s,
                              u"print-scaling=none"_s, u"-o"_s, u"outputorder=normal"_s}));
    }

    void choicesOfPagesCountInEachDocument()
    {
        QCOMPARE(printed(documents(), {u"Title"_s, 1, {{u"page-ranges"_s, u"2-3,7"_s}}}),
                 QString());
        QCOMPARE(m_filter->content(u"out.ps"_s),
                 QByteArray("1 as PDF, pages 2-3\n2 as PDF, pages 2-3\n"));
        for (const QString &stage : {u"arguments-2.pdf"_s, u"arguments-whole.pdf"_s})
            QVERIFY(!lines(stage).join(u' ').contains(u"page-ranges"_s));
    }

    void pagesThatNoDocumentHasAreSaid()
    {
        const QString problem = printed(documents(), {u"t"_s, 1, {{u"page-ranges"_s, u"6-9"_s}}});
        QVERIFY2(problem.contains(u"none of the documents"_s), qPrintable(problem));
        verifyNothingIsLeft();
    }

    void aDocumentWhosePagesNobodyCanCountIsNotGuessed_data()
    {
        QTest::addColumn<QByteArray>("count");
        QTest::newRow("no number") << QByteArray("many\n");
        QTest::newRow("none") << QByteArray("0\n");
        QTest::newRow("more than there can be") << QByteArray("2000000000\n");
        QTest::newRow("two answers") << QByteArray("5\n5\n");
        QTest::newRow("an endless one") << QByteArray(100, '1');
    }
    void aDocumentWhosePagesNobodyCanCountIsNotGuessed()
    {
        QFETCH(QByteArray, count);
        writeFile(path(u"pages"_s), count);
        const QString problem = printed(documents(), {u"t"_s, 1, {{u"page-ranges"_s, u"1"_s}}});
        QVERIFY2(problem.contains(u"could not be found out"_s), qPrintable(problem));
        verifyNothingIsLeft();
    }

    void withSeveralPagesOnASheetThePagesOfTheDocumentArePickedFirst()
    {
        const JobTicket ticket{u"t"_s, 1, {{u"number-up"_s, u"2"_s}, {u"page-ranges"_s, u"3-4"_s}}};
        QCOMPARE(printed({document(u"one.txt"_s)}, ticket), QString());
        QCOMPARE(lines(u"stages"_s),
                 (QStringList{u"one.txt"_s, u"count"_s, u"pick"_s, u"1.pdf"_s}));
        const QString told = lines(u"arguments-1.pdf"_s).join(u' ');
        QVERIFY2(told.contains(u"number-up=2"_s) && !told.contains(u"page-ranges"_s),
                 qPrintable(told));
        QVERIFY(m_filter->content(u"out.ps"_s).startsWith("1 as PDF, pages 3-4\n"));
    }

    void whatCanStandInARowDoes()
    {
        writeFile(m_filter->ppdPath(), PpdBuilder().text());
        QCOMPARE(printed(documents()), QString());
        QCOMPARE(lines(u"stages"_s), (QStringList{u"one.txt"_s, u"two.txt"_s}));
        QVERIFY(lines(u"arguments-one.txt"_s).contains(u"printer/foo"_s));
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n%%EOF\n2 as PDF\n%%EOF\n"));
    }

    void copiesOfWhatStandsInARowComeInSets_data()
    {
        QTest::addColumn<QList<JobOption>>("options");
        QTest::addColumn<QString>("copies");
        QTest::addColumn<QByteArray>("order");
        QTest::newRow("as usual") << QList<JobOption>() << u"1"_s << QByteArray("1 2 1 2 ");
        QTest::newRow("not collated")
            << QList<JobOption>{{u"collate"_s, u"false"_s}} << u"2"_s << QByteArray("1 2 ");
    }
    void copiesOfWhatStandsInARowComeInSets()
    {
        QFETCH(QList<JobOption>, options);
        QFETCH(QString, copies);
        QFETCH(QByteArray, order);
        writeFile(m_filter->ppdPath(), PpdBuilder().text());
        QCOMPARE(printed(documents(), {u"t"_s, 2, options}), QString());
        QCOMPARE(m_filter->content(u"out.ps"_s).replace("as PDF\n%%EOF\n", ""), order);
        const QStringList told = lines(u"arguments-one.txt"_s);
        QCOMPARE(told.value(told.indexOf(u"-n"_s) + 1), copies);
    }

    void eachDocumentKeepsItsFormat()
    {
        Document picture = document(u"two.txt"_s);
        picture.format = u"image/png"_s;
        QCOMPARE(printed({document(u"one.txt"_s), picture}), QString());
        QVERIFY(lines(u"arguments-one.txt"_s).contains(u"application/postscript"_s));
        QVERIFY(lines(u"arguments-two.txt"_s).contains(u"image/png"_s));
    }

    void standardInputIsADocumentLikeOthers()
    {
        writeFile(path(u"piped"_s), "%!PS from a pipe\n");
        QVERIFY(std::freopen(QFile::encodeName(path(u"piped"_s)).constData(), "r", stdin));
        QString error;
        Document piped = inspectDocument(kStandardInput, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(piped.format, u"application/postscript"_s);
        QCOMPARE(piped.title, u"standard input"_s);
        QCOMPARE(printed({document(u"one.txt"_s), piped}), QString());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n%!PS from a pipe as PDF\n"));
        QVERIFY(QFile::exists(piped.path)); // for another try
        piped.copy.reset();
        QVERIFY(!QFile::exists(piped.path));
    }

    void anEmptyStandardInputIsRefusedByItsName()
    {
        QVERIFY(std::freopen("/dev/null", "r", stdin));
        QString error;
        QVERIFY(inspectDocument(kStandardInput, &error).path.isEmpty());
        QCOMPARE(error, u"standard input is empty."_s);
    }
};

QTEST_GUILESS_MAIN(FileJobDocumentsTest)

#include "file_job_documents_test.moc"
