#include <QFile>
#include <QProcess>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// Without a cover sheet, which has the number of its job on it, and the lines that are different
/// in every job, or say beside "Duplex" that a job is two-sided.
QByteArray comparable(const QByteArray &data)
{
    QByteArrayList lines = data.mid(data.lastIndexOf("%!PS-Adobe-")).split('\n');
    lines.removeIf([](const QByteArray &line) {
        return line.startsWith("%%CreationDate: ") || line.startsWith("%%Requirements: ") ||
               line.startsWith("%%Title: ") || line.startsWith("%%For: ");
    });
    return lines.join('\n');
}

QByteArray firstDifference(const QByteArray &data, const QByteArray &other)
{
    const QByteArrayList lines = data.split('\n');
    const QByteArrayList otherLines = other.split('\n');
    for (qsizetype i = 0; i < std::max(lines.size(), otherLines.size()); ++i) {
        if (lines.value(i) != otherLines.value(i))
            return "line " + QByteArray::number(i + 1) + ": " + lines.value(i).left(200) + " / " +
                   otherLines.value(i).left(200);
    }
    return {};
}

/// A default of the queue, and what a job for it asks for besides.
struct DefaultRun
{
    const char *name;
    const char *byQueue;     // as lpadmin -o takes it
    const char *option;      // of the job, or null
    const char *summary;     // a line of it
    int streams = 1;         // of PostScript that the printer gets, one behind the other
    const char *marker = ""; // in what the printer gets
    /// lp takes what a server says of the PPD for the queue's own default, where it says both.
    bool isAsWithLp = true;
    /// What lp has to be told besides: it does not know the options of these printers.
    const char *toLp = nullptr;
};

constexpr DefaultRun kDefaults[] = {
    {"two pages on a sheet", "number-up-default=2", nullptr, "Pages per Sheet: 2"},
    {"one page on a sheet after all", "number-up-default=2", "number-up=1", "Pages per Sheet: 1"},
    {"a cover sheet", "job-sheets-default=standard,none", nullptr, "Banner Pages: standard,none",
     2},
    {"no cover sheet after all", "job-sheets-default=standard,none", "job-sheets=none",
     "Banner Pages: none"},
    {"black and white", "print-color-mode-default=monochrome", nullptr, "Color Mode: ", 1,
     "CorvanaOption(QXMonoColor=Mono)", true, "QXMonoColor=Mono"},
    {"colours after all", "print-color-mode-default=monochrome", "print-color-mode=color",
     "Color Mode: ", 1, "CorvanaOption(QXMonoColor=Color)", true, "QXMonoColor=Color"},
    {"both sides", "sides-default=two-sided-long-edge", nullptr, "Long-Edge", 1,
     "CorvanaOption(Duplex=DuplexNoTumble)", false},
    {"one side after all", "sides-default=two-sided-long-edge", "sides=one-sided", "Two-Sided", 1,
     "CorvanaOption(Duplex=None)"},
    {"both sides by the PPD", "Duplex=DuplexNoTumble", nullptr, "Long-Edge", 1,
     "CorvanaOption(Duplex=DuplexNoTumble)"},
    {"another paper", "media-default=iso_a5_148x210mm", nullptr, "A5"},
    {"its own paper after all", "media-default=iso_a5_148x210mm", "media=A4", "A4"},
    {"landscape", "orientation-requested-default=4", nullptr, "Orientation: Landscape"},
    {"a choice of the PPD", "QXMediaType-default=Thick", nullptr, "Thick", 1,
     "CorvanaOption(QXMediaType=Thick)"},
    {"some pages", "page-ranges-default=1,3", nullptr, "Pages: 1,3"},
    {"all pages after all", "page-ranges-default=1,3", "page-ranges=1-", "Copies: 1"},
    {"a text with a comma", "page-label-default=A,B", nullptr, "A,B"},
    {"a number of its own", "QXSleepTime=Custom.12", nullptr, "12", 1,
     "CorvanaOption(QXSleepTime=Custom)"},
    {"another number after all", "QXSleepTime=Custom.12", "QXSleepTime=Custom.9", "9", 1,
     "CorvanaOption(QXSleepTime=Custom)"},
    {"a paper of its own", "PageSize=Custom.300x400", nullptr, "106 × 141 mm", 1,
     "CorvanaOption(PageSize=Custom)"},
    {"what nobody knows", "Sparkle-default=bright", nullptr, "Sparkle: bright"},
};

} // namespace

/// What an administrator has set for a queue: the program and lp send its printer the same.
class DefaultStreamsTest : public QueueRuns
{
    Q_OBJECT

private:
    // What the printer has got of the last job.
    QByteArray lastStream() const { return m_cups->capture(u"office"_s).jobs().constLast().data; }
    // A job that names nothing at all.
    void printAsItIs()
    {
        Client client(m_cups->server());
        QVERIFY(client.print(u"office"_s, readAll(kThreePages), "application/pdf") > 0);
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->jobs().constLast().state, IPP_JSTATE_COMPLETED, 20000);
    }
    void runLp(const QStringList &arguments)
    {
        QProcess lp;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"CUPS_SERVER"_s, m_cups->server());
        environment.insert(u"HOME"_s, m_runner->filePath(u"."_s));
        lp.setProcessEnvironment(environment);
        lp.start(u"lp"_s, arguments);
        QVERIFY(lp.waitForFinished());
        QVERIFY2(lp.exitCode() == 0, lp.readAllStandardError().constData());
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->jobs().constLast().state, IPP_JSTATE_COMPLETED, 20000);
    }

private Q_SLOTS:
    void theProgramAndLpPrintTheSame_data() { addRows(kDefaults); }
    void theProgramAndLpPrintTheSame()
    {
        const DefaultRun &row = currentRow(kDefaults);
        m_cups->addQueue(u"office"_s, kPpd, {.options = {QString::fromLatin1(row.byQueue)}});
        QStringList arguments{u"-d"_s, u"office"_s};
        if (row.option)
            arguments += {u"-o"_s, QString::fromLatin1(row.option)};
        const RunEnd end =
            m_runner->run(QStringList{u"--summary"_s} + arguments + QStringList{kThreePages});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.contains(QString::fromUtf8(row.summary)), end.text().constData());
        const QByteArray ours = lastStream();
        QCOMPARE(ours.count("%!PS-Adobe-3.0"), qsizetype(row.streams));
        QVERIFY2(ours.contains(row.marker), row.marker);
        if (row.toLp)
            arguments += {u"-o"_s, QString::fromLatin1(row.toLp)};
        if (row.isAsWithLp)
            runLp(arguments + QStringList{kThreePages});
        else
            printAsItIs();
        const QByteArray theirs = lastStream();
        QCOMPARE(theirs.count("%!PS-Adobe-3.0"), qsizetype(row.streams));
        const QByteArray our = comparable(ours);
        const QByteArray their = comparable(theirs);
        QVERIFY2(our == their, firstDifference(our, their).constData());
    }

    void aDefaultThatNobodyUnderstandsIsSaid()
    {
        m_cups->addQueue(u"office"_s, kPpd, {.options = {u"Sparkle-default=bright"_s}});
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.err.contains(u"Sparkle=bright"_s), end.text().constData());
    }

    void copiesOfTheQueueAreMadeUnlessTheJobSaysOtherwise()
    {
        m_cups->addQueue(u"office"_s, kPpd, {.options = {u"copies-default=3"_s}});
        QCOMPARE(printed(u"office"_s, {kText}).copies, 3);
        QVERIFY(m_runner->run({u"-d"_s, u"office"_s, u"-n"_s, u"1"_s, kText}).status == 0);
        QCOMPARE(m_cups->capture(u"office"_s).jobs().constLast().copies, 1);
    }

    // A queue without filters

    void aRawQueueGetsTheFileAsItIs()
    {
        m_cups->addRawQueue(u"office"_s);
        const RunEnd end =
            m_runner->run({u"--summary"_s, u"-d"_s, u"office"_s, u"-n"_s, u"3"_s, kThreePages});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.contains(u"Document: Passed on as it is"_s), end.text().constData());
        QVERIFY2(!end.text().contains("Printed on"), end.text().constData());
        QVERIFY2(end.text().contains("Sent to"), end.text().constData());
        const CapturedJob job = m_cups->capture(u"office"_s).jobs().constLast();
        QCOMPARE(job.copies, 3);
        QVERIFY(job.data == readAll(kThreePages));
    }

    void aRawQueueRefusesWhatItDoesNotDo_data()
    {
        QTest::addColumn<QString>("option");
        for (const char *option : {"page-ranges=1-2", "number-up=2", "sides=two-sided-long-edge",
                                   "job-sheets=standard", "print-scaling=fit"})
            QTest::newRow(option) << QString::fromLatin1(option);
    }
    void aRawQueueRefusesWhatItDoesNotDo()
    {
        QFETCH(QString, option);
        m_cups->addRawQueue(u"office"_s);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"-o"_s, option, kText});
        QCOMPARE(end.status, 1);
        const QString words =
            u"The queue “office” passes files on as they are: %1 cannot be done."_s.arg(option);
        QVERIFY2(end.err.contains(words), end.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
    }

    void rawGoesPastTheFiltersOfAnyQueueAsWithLp()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const QStringList arguments{u"-d"_s, u"office"_s, u"-n"_s, u"2"_s,
                                    u"-o"_s, u"raw"_s,    kText};
        const RunEnd end = m_runner->run(arguments);
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.text().contains("Sent to"), end.text().constData());
        const CapturedJob ours = m_cups->capture(u"office"_s).jobs().constLast();
        QVERIFY(ours.data == readAll(kText));
        runLp(arguments);
        const CapturedJob theirs = m_cups->capture(u"office"_s).jobs().constLast();
        QVERIFY(theirs.id != ours.id);
        QCOMPARE(ours.data, theirs.data);
        QCOMPARE(ours.copies, theirs.copies);
        QCOMPARE(ours.environment.value(u"CONTENT_TYPE"_s),
                 theirs.environment.value(u"CONTENT_TYPE"_s));
    }

    // A printer finds the end of most documents by the end of the job only.
    void severalThatGoPastTheFiltersAreAJobEach_data()
    {
        QTest::addColumn<QStringList>("documents");
        QTest::addColumn<int>("jobs");
        QTest::newRow("what cannot stand in a row") << QStringList{kThreePages, kText} << 2;
        QTest::newRow("what can") << QStringList{kText, kText} << 1;
    }
    void severalThatGoPastTheFiltersAreAJobEach()
    {
        QFETCH(QStringList, documents);
        QFETCH(int, jobs);
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end =
            m_runner->run(QStringList{u"-d"_s, u"office"_s, u"-o"_s, u"raw"_s} + documents);
        QVERIFY2(end.status == 0, end.text().constData());
        const QList<KnownJob> known = m_cups->jobs(u"office"_s);
        QCOMPARE(known.size(), jobs);
        const QString words = u"With “raw” the queue “office” would have sent the documents in one "
                              "stream. So each is a job of its own: office-1, office-2."_s;
        QVERIFY2(end.out.contains(words) == (jobs > 1), end.text().constData());
        // What stands in a row comes in one stream.
        QList<QByteArray> streams;
        for (const QString &document : documents)
            streams += readAll(document);
        if (jobs == 1)
            streams = {streams.join()};
        QList<QByteArray> arrived;
        for (const CapturedJob &job : m_cups->capture(u"office"_s).jobs())
            arrived += job.data;
        QVERIFY(arrived == streams);
    }
};

QTEST_GUILESS_MAIN(DefaultStreamsTest)
#include "default_streams_test.moc"
