#include <QDir>
#include <QFile>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

qsizetype pagesOf(const QByteArray &data)
{
    return data.count("\n%%Page: ");
}

} // namespace

/// Runs without a window that print to the queues of a server, as scripts make them: which queue is
/// printed to, what the server and the printer get, and what the run says and ends with.
class QueueRunTest : public QueueRuns
{
    Q_OBJECT

private Q_SLOTS:
    // Which queue

    void theQueueIsTheOneThatTheUserExpects_data()
    {
        QTest::addColumn<QByteArray>("userOptions");
        QTest::addColumn<QString>("destination"); // LPDEST
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("queue");
        QTest::addColumn<QByteArray>("medium");
        const QByteArray instance = "Dest office/cards QXMediaType=Thick\n";
        const auto row = [](const char *what, const QByteArray &userOptions,
                            const QString &destination, const QStringList &arguments,
                            const char *queue, const char *medium) {
            QTest::newRow(what) << userOptions << destination << arguments
                                << QString::fromLatin1(queue) << QByteArray(medium);
        };
        row("the server's default", {}, {}, {}, "office", "Plain");
        row("the user's default", "Default lab\n", {}, {}, "lab", "Plain");
        row("the user's default with its options", "Default lab QXMediaType=Thin\n", {}, {}, "lab",
            "Thin");
        row("options of the server's default", "Dest office QXMediaType=Thin\n", {}, {}, "office",
            "Thin");
        row("LPDEST before the user's default", "Default lab\n", u"office"_s, {}, "office",
            "Plain");
        row("an instance as default", "Default office/cards QXMediaType=Thick\n", {}, {}, "office",
            "Thick");
        row("an instance in LPDEST", instance, u"office/cards"_s, {}, "office", "Thick");
        row("an instance by its name", instance, {}, {u"-d"_s, u"office/cards"_s}, "office",
            "Thick");
        row("the queue of an instance without its options", instance, {}, {u"-d"_s, u"office"_s},
            "office", "Plain");
        row("the command line before all", "Default office/cards QXMediaType=Thick\n", u"office"_s,
            {u"-d"_s, u"lab"_s}, "lab", "Plain");
        row("an option of the command line before the instance's", instance, {},
            {u"-d"_s, u"office/cards"_s, u"-o"_s, u"QXMediaType=Thin"_s}, "office", "Thin");
    }
    void theQueueIsTheOneThatTheUserExpects()
    {
        QFETCH(QByteArray, userOptions);
        QFETCH(QString, destination);
        QFETCH(QStringList, arguments);
        QFETCH(QString, queue);
        QFETCH(QByteArray, medium);
        m_cups->addQueue(u"lab"_s, kPpd);
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->setDefault(u"office"_s);
        m_runner->setUserOptions(userOptions);
        if (!destination.isEmpty())
            m_runner->setVariable(u"LPDEST"_s, destination);
        const RunEnd end = m_runner->run(arguments + QStringList{kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(m_cups->jobs().size(), 1);
        QCOMPARE(onlyJob(queue).state, IPP_JSTATE_COMPLETED);
        const QByteArray data = m_cups->capture(queue).jobs().value(0).data;
        QCOMPARE(data.count("CorvanaOption(QXMediaType="), qsizetype(1));
        QVERIFY(data.contains(codeOf("QXMediaType=" + medium)));
    }

    void withoutADefaultNothingIsPrintedAndTheRunSaysWhatToDo()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end = m_runner->run({kText});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"There is no default printer. Name a printer with -d"_s),
                 end.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
    }

    void theServerOfTheCommandLineIsUsed()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        m_runner->setVariable(u"CUPS_SERVER"_s, u"/nonexistent/cups.sock"_s);
        QCOMPARE(printed(u"office"_s, {u"--server"_s, m_cups->server(), kText}).title,
                 u"page.txt"_s);
    }

    void thePrintersAreListedWithTheirDescriptions()
    {
        m_cups->addQueue(u"office"_s, kPpd, {.description = u"Büro, 2. Stock"_s});
        m_cups->addRawQueue(u"label.printer"_s, {.description = u"Labels"_s});
        m_cups->addClass(u"all"_s, {u"office"_s});
        const RunEnd end = m_runner->run({u"--list-printers"_s});
        QVERIFY2(end.status == 0, end.text().constData());
        QStringList lines = end.out.split(u'\n', Qt::SkipEmptyParts);
        lines.sort();
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines.at(0).startsWith(u"all\t"_s), qUtf8Printable(lines.at(0)));
        QCOMPARE(lines.at(1), u"label.printer\tLabels"_s);
        QCOMPARE(lines.at(2), u"office\tBüro, 2. Stock"_s);
        QCOMPARE(end.err, QString());
    }

    void whatAPolicyHidesIsNotListedInstancesIncluded()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->addQueue(u"attic"_s, kPpd);
        m_runner->setUserOptions("Dest office/cards a=1\nDest office/drafts a=1\n"
                                 "Dest attic/drafts a=1\n");
        const QString policy = m_runner->filePath(u"policy"_s);
        QVERIFY(QDir().mkpath(policy));
        QFile file(policy + u"/10.conf"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[printer attic office/cards]\nhide = yes\n");
        file.close();
        m_runner->setVariable(u"CORVANA_PRINT_POLICY"_s, policy);
        const RunEnd end = m_runner->run({u"--list-printers"_s});
        QVERIFY2(end.status == 0, end.text().constData());
        QStringList names = end.out.split(u'\n', Qt::SkipEmptyParts);
        for (QString &name : names)
            name = name.section(u'\t', 0, 0);
        QCOMPARE(names, (QStringList{u"office"_s, u"office/drafts"_s}));
    }

    void queuesAreFoundByEveryName_data()
    {
        QTest::addColumn<QString>("queue");
        for (const char *name : {"hp.2nd-floor", "büro", "印刷", "100%", "a%20b", "a&b", "$HOME"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }
    void queuesAreFoundByEveryName()
    {
        QFETCH(QString, queue);
        m_cups->addQueue(queue, kPpd);
        const RunEnd end = m_runner->run({u"-d"_s, queue, u"-o"_s, u"QXMediaType=Thick"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        const KnownJob job = onlyJob(queue);
        QCOMPARE(job.state, IPP_JSTATE_COMPLETED);
        QCOMPARE(end.out, u"Printed on “%1” as job %1-%2.\n"_s.arg(queue).arg(job.id));
        QVERIFY(m_cups->capture(queue).jobs().value(0).data.contains(codeOf("QXMediaType=Thick")));
        QVERIFY(m_runner->run({u"--list-printers"_s}).out.contains(queue + u'\t'));
    }

    void aClassPrintsWithTheOptionsOfItsMembers()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->addClass(u"all"_s, {u"office"_s});
        const RunEnd end =
            m_runner->run({u"-d"_s, u"all"_s, u"-o"_s, u"QXMediaType=Thick"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(onlyJob(u"all"_s).state, IPP_JSTATE_COMPLETED);
        QVERIFY(m_cups->capture(u"office"_s)
                    .jobs()
                    .value(0)
                    .data.contains(codeOf("QXMediaType=Thick")));
    }

    void aRawQueueGetsTheDocumentAsItIs()
    {
        m_cups->addRawQueue(u"raw"_s);
        QCOMPARE(printed(u"raw"_s, {kThreePages}).data, readAll(kThreePages));
    }

    // What is printed

    void aQueueIsAskedToPassOnWhatNobodyKnows_data()
    {
        QTest::addColumn<bool>("hasDriver");
        QTest::addColumn<bool>("byPipe");
        QTest::newRow("with a driver") << true << false;
        QTest::newRow("without a driver") << false << false;
        QTest::newRow("from a pipe") << true << true;
    }
    void aQueueIsAskedToPassOnWhatNobodyKnows()
    {
        QFETCH(bool, hasDriver);
        QFETCH(bool, byPipe);
        if (hasDriver)
            m_cups->addQueue(u"office"_s, kPpd);
        else
            m_cups->addRawQueue(u"office"_s);
        const QByteArray pcl("\x1B"
                             "E\x1B&l26AHello\x1B"
                             "E\0\x01",
                             18);
        const QString path = m_runner->filePath(u"job.pcl"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(pcl) == pcl.size());
        file.close();
        const QStringList arguments{u"-d"_s, u"office"_s, byPipe ? u"-"_s : path};
        const RunEnd refused = m_runner->run(arguments, path);
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.err.contains(u"cannot be printed"_s), refused.text().constData());
        const RunEnd end = m_runner->run(arguments + QStringList{u"-o"_s, u"raw"_s}, path);
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.startsWith(u"Sent to “office”"_s), end.text().constData());
        QCOMPARE(m_cups->capture(u"office"_s).jobs().constLast().data, pcl);
    }

    void severalDocumentsAreOneJob()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const CapturedJob job =
            printed(u"office"_s, {u"-o"_s, u"QXMediaType=Thick"_s, kThreePages, kPicture, kText});
        QCOMPARE(onlyJob(u"office"_s).state, IPP_JSTATE_COMPLETED);
        QCOMPARE(pagesOf(job.data), 5);
        QCOMPARE(job.title, u"welcome.pdf and 2 more"_s);
        QCOMPARE(job.data.count(codeOf("QXMediaType=Thick")), qsizetype(3)); // each for itself
    }

    void standardInputIsPrinted()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"-"_s}, kThreePages);
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(pagesOf(m_cups->capture(u"office"_s).jobs().value(0).data), 3);
    }

    void theServerIsToldWhatWasAskedFor()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const QString title = u"Übersicht – 100 % größer"_s;
        const CapturedJob job =
            printed(u"office"_s, {u"-t"_s, title, u"-n"_s, u"3"_s, u"-o"_s, u"page-ranges=2-3"_s,
                                  u"-o"_s, u"job-priority=70"_s, kThreePages});
        QCOMPARE(pagesOf(job.data), 6); // three copies, collated
        QCOMPARE(job.title, title);
        Client client(m_cups->server());
        QCOMPARE(client.jobValue(job.id, "job-name"), title);
        QCOMPARE(client.jobValue(job.id, "copies"), u"3"_s);
        QCOMPARE(client.jobValue(job.id, "page-ranges"), u"2-3"_s);
        QCOMPARE(client.jobValue(job.id, "job-priority"), u"70"_s);
        QCOMPARE(client.jobValue(job.id, "document-format-supplied"), u"application/pdf"_s);
        QCOMPARE(client.jobValue(job.id, "job-originating-user-name"),
                 QString::fromUtf8(cupsUser()));
        // The job can be told from all others, which is no concern of its printer's.
        const QString token = client.jobValue(job.id, "corvana-job-token");
        QVERIFY2(token.startsWith(u"urn:uuid:"_s), qUtf8Printable(token));
        QVERIFY2(!job.options.contains(u"token"_s), qUtf8Printable(job.options));
        QVERIFY(!job.data.contains(token.toUtf8()));
    }

    void thePrinterIsToldTheNumberOfCopies()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end = m_runner->run(
            {u"-d"_s, u"office"_s, u"-n"_s, u"3"_s, u"-o"_s, u"collate=false"_s, kThreePages});
        QVERIFY2(end.status == 0, end.text().constData());
        // The printer repeats the pages; collated, the filters do.
        const QByteArray data = m_cups->capture(u"office"_s).jobs().value(0).data;
        QCOMPARE(pagesOf(data), 3);
        QCOMPARE(data.count("{userdict/#copies 3 "), qsizetype(1));
    }

    void aJobIsHeldWhenThatIsAskedFor()
    {
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end =
            m_runner->run({u"-d"_s, u"office"_s, u"-o"_s, u"job-hold-until=indefinite"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        const KnownJob job = onlyJob(u"office"_s);
        QCOMPARE(job.state, IPP_JSTATE_HELD);
        QVERIFY2(end.out.startsWith(u"Job office-%1 is held in the queue “office”."_s.arg(job.id)),
                 end.text().constData());
        QVERIFY(m_cups->capture(u"office"_s).jobs().isEmpty());
    }

    void withNoWaitTheRunEndsWhenTheQueueHasTheJob()
    {
        m_cups->addQueue(u"office"_s, kPpd,
                         {.deviceUri = m_cups->capture(u"office"_s).waitAtStart().uri()});
        const CaptureDevice device = m_cups->capture(u"office"_s);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"--no-wait"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        const int first = jobNamed(u"office"_s, end.out);
        QCOMPARE(end.out, u"Job office-%1 is in the queue “office”.\n"_s.arg(first));
        QCOMPARE(onlyJob(u"office"_s).id, first);
        QVERIFY(onlyJob(u"office"_s).state < IPP_JSTATE_CANCELED);
        device.release(u"all"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->job(first).state, IPP_JSTATE_COMPLETED, kQueuePatience);
    }

    void withoutNoWaitTheRunEndsWhenTheJobIsPrinted()
    {
        m_cups->addQueue(u"office"_s, kPpd,
                         {.deviceUri = m_cups->capture(u"office"_s).waitAtEnd().uri()});
        const CaptureDevice device = m_cups->capture(u"office"_s);
        const auto run = m_runner->start({u"-d"_s, u"office"_s, kText});
        QTRY_VERIFY_WITH_TIMEOUT(device.hasReached(1, u"end"_s), kQueuePatience);
        QVERIFY(run->isRunning());
        QCOMPARE(run->out(), QString());
        device.release(u"all"_s);
        const RunEnd end = run->wait();
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(end.out, u"Printed on “office” as job office-1.\n"_s);
    }

    // What is refused

    void whatTheCommandLineGetsWrongReachesNoServer_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::newRow("a choice that the printer lacks")
            << QStringList{u"-o"_s, u"QXMediaType=Silk"_s, kText} << 1;
        QTest::newRow("an option that nobody knows")
            << QStringList{u"-o"_s, u"Sparkle=ON"_s, kText} << 1;
        QTest::newRow("a document that is not there") << QStringList{u"/nonexistent.pdf"_s} << 1;
        QTest::newRow("no document") << QStringList{} << 2;
        QTest::newRow("no number of copies") << QStringList{u"-n"_s, u"two"_s, kText} << 2;
    }
    void whatTheCommandLineGetsWrongReachesNoServer()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        m_cups->addQueue(u"office"_s, kPpd);
        const RunEnd end = m_runner->run(QStringList{u"-d"_s, u"office"_s} + arguments);
        QCOMPARE(end.status, status);
        QVERIFY(!end.err.isEmpty());
        QVERIFY(m_cups->jobs().isEmpty());
    }
};

QTEST_GUILESS_MAIN(QueueRunTest)

#include "queue_run_test.moc"
