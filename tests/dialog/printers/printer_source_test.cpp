#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/LastPrinter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/printers/PrinterSourceScene.h"
#include "tests/support/FileSizeLimit.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Where printers come from, with a real server behind.
class PrinterSourceTest : public PrinterSourceScene
{
    Q_OBJECT

private Q_SLOTS:
    void aUserWithoutHistoryBeginsWithThePrinterOfFiles()
    {
        PrinterSource source(PrinterWish(), m_server);
        const Printer first = source.first();
        QVERIFY(source.firstIsProvisional());
        QCOMPARE(first.origin, PrinterOrigin::File);
        Told told(source);
        source.open(first);
        QVERIFY(QFile::exists(told.last.ppd->path));
        QVERIFY(!source.expected());
        QCOMPARE(source.printers(), QList<Printer>{first});
        QCOMPARE(m_gate->acceptedConnections(), 0);
    }

    void whatIsOpenedFirst_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QByteArray>("usersDefault");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("first");
        QTest::newRow("named") << u"a"_s << QByteArray("b") << u"c"_s << u"a"_s;
        QTest::newRow("user's default") << QString() << QByteArray("b") << u"c"_s << u"b"_s;
        QTest::newRow("used last") << QString() << QByteArray() << u"c"_s << u"c"_s;
        QTest::newRow("instance") << u"a/draft"_s << QByteArray() << QString() << u"a/draft"_s;
        QTest::newRow("device") << u"ipp://printer.example/ipp/print"_s << QByteArray("b") << u"c"_s
                                << u"ipp://printer.example/ipp/print"_s;
    }
    void whatIsOpenedFirst()
    {
        QFETCH(QString, wanted);
        QFETCH(QByteArray, usersDefault);
        QFETCH(QString, last);
        QFETCH(QString, first);
        if (!usersDefault.isEmpty())
            qputenv("LPDEST", usersDefault);
        if (!last.isEmpty())
            rememberPrinter(m_server.address.argument(), last);
        PrinterWish request;
        request.name = wanted;
        PrinterSource source(request, m_server);
        const Printer printer = source.first();
        QCOMPARE(printer.name, first);
        QVERIFY(!source.firstIsProvisional());
        const bool isDevice = printer.origin == PrinterOrigin::Device;
        QCOMPARE(source.serverOf(printer).address.host,
                 isDevice ? u"printer.example"_s : u"127.0.0.1"_s);
    }

    // The file is gone by the time at which the printer is opened.
    void thePpdOfTheFirstPrinterIsReadAhead_data()
    {
        QTest::addColumn<bool>("isQueue");
        QTest::newRow("file") << false;
        QTest::newRow("queue") << true;
    }
    void thePpdOfTheFirstPrinterIsReadAhead()
    {
        QFETCH(bool, isQueue);
        PrinterWish request;
        PpdFile ppd;
        QString error;
        for (int patience = 50; !ppd && patience < 5000; patience *= 2) {
            if (isQueue) {
                request.name = kQueue;
                useOnce(request);
            } else {
                request.files = {{u"sample"_s, {}, ppdOf(5)}};
            }
            PrinterSource source(request, m_server);
            Told told(source);
            source.readAhead();
            const Printer first = source.first();
            QCOMPARE(first.name, isQueue ? kQueue : u"sample"_s);
            QCOMPARE(source.first(), first);
            source.open(first);
            QCOMPARE(told.said.value(0), u"ready"_s);
            QTest::qSleep(patience);
            const QString path = told.last.ppd->path;
            QVERIFY(QFile::remove(path));
            ppd = source.ppds().open(path, &error);
        }
        QVERIFY2(ppd, qPrintable(error));
    }

    void filesAreBeforeQueuesAndThePdfBehindThem()
    {
        Printer file;
        file.name = u"sample"_s;
        file.ppdPath = ppdOf(5);
        PrinterWish request;
        request.files = {file};
        PrinterSource source(request, m_server);
        QCOMPARE(source.first(), file);
        source.start();
        QTRY_COMPARE(source.printers().size(), 3);
        QCOMPARE(source.printers()[0], file);
        QCOMPARE(source.printers()[1].name, kQueue);
        QVERIFY(savesPdf(source.printers()[2]));
        Told told(source);
        source.open(file);
        QCOMPARE(told.said, QStringList{u"ready"_s}); // at once
    }

    // Its name on a command line is no queue's, as far as anybody can say.
    void aPdfIsSavedWhereNoQueueHasThatName_data()
    {
        QTest::addColumn<int>("manner");
        QTest::newRow("the server knows no such queue") << int(FaultyServer::Manner::Passes);
        QTest::newRow("no server") << int(FaultyServer::Manner::Refuses);
    }
    void aPdfIsSavedWhereNoQueueHasThatName()
    {
        QFETCH(int, manner);
        m_gate->setManner(FaultyServer::Manner(manner));
        PrinterWish request;
        request.name = kPdfPrinterName;
        for (const bool canChoose : {true, false}) {
            PrinterSource source(request, m_server);
            Told told(source);
            canChoose ? source.open(source.first()) : source.openWanted();
            QTRY_COMPARE_WITH_TIMEOUT(told.said, QStringList{u"ready"_s}, kLong);
            QVERIFY(savesPdf(told.last.printer));
            QVERIFY(QFile::exists(told.last.ppd->path));
        }
    }

    void whoForbidsToSaveAPdfIsSaid()
    {
        PrinterWish request;
        request.name = kPdfPrinterName;
        request.refusal = [](const Printer &printer) {
            return savesPdf(printer) ? u"not offered by your administrator"_s : QString();
        };
        for (const bool canChoose : {true, false}) {
            PrinterSource source(request, m_server);
            Told told(source);
            canChoose ? source.open(source.first()) : source.openWanted();
            QTRY_COMPARE_WITH_TIMEOUT(told.said, QStringList{u"failed"_s}, kLong);
            QCOMPARE(told.problem, u"not offered by your administrator"_s);
        }
        m_gate->setManner(FaultyServer::Manner::Refuses);
        PrinterSource source(request, m_server);
        Told told(source);
        source.openWanted();
        QTRY_COMPARE_WITH_TIMEOUT(told.said, QStringList{u"failed"_s}, kLong);
        QVERIFY(told.problem != u"not offered by your administrator"_s);
    }

    // Most people print on paper, and their window does not wait for a file that nobody reads.
    void whatSavesAPdfIsWrittenWhenItIsOpened()
    {
        const QTemporaryDir folder;
        const Variable place("TMPDIR", folder.path().toUtf8());
        const QDir files(folder.path());
        PrinterSource source(PrinterWish(), m_server);
        const QList<Printer> printers = source.printers();
        const auto pdf = std::find_if(printers.cbegin(), printers.cend(), savesPdf);
        QVERIFY(pdf != printers.cend());
        QVERIFY(files.isEmpty());
        Told told(source);
        source.open(*pdf);
        QCOMPARE(told.said, QStringList{u"ready"_s});
        QCOMPARE(QFileInfo(told.last.ppd->path).path(), folder.path());
        source.open(*pdf);
        QCOMPARE(files.entryList(QDir::Files).size(), 1); // the same one again
    }

    void whereThatCannotBeWrittenIsSaid()
    {
        PrinterSource source(PrinterWish(), m_server);
        const Printer pdf = source.first();
        QVERIFY(savesPdf(pdf));
        Told told(source);
        {
            const FileSizeLimit fullDisk(0);
            source.open(pdf);
        }
        QCOMPARE(told.said, QStringList{u"failed"_s});
        source.open(pdf);
        QCOMPARE(told.said, (QStringList{u"failed"_s, u"ready"_s}));
    }

    void aQueueOfThatNameGoesFirst()
    {
        m_cups->addQueue(u"PDF"_s, ppdOf(5));
        PrinterWish request;
        request.name = kPdfPrinterName;
        PrinterSource source(request, m_server);
        Told told(source);
        source.openWanted();
        QTRY_COMPARE_WITH_TIMEOUT(told.said, QStringList{u"ready"_s}, kLong);
        QCOMPARE(told.last.printer.origin, PrinterOrigin::Queue);
        QCOMPARE(told.last.printer.name, u"PDF"_s);
        m_cups->removeQueue(u"PDF"_s);
    }

    void theListTellsWhatAUserExpects()
    {
        m_cups->addQueue(u"another"_s, ppdOf(5));
        {
            PrinterSource source(PrinterWish(), m_server);
            source.start();
            QTRY_VERIFY(source.expected());
            QCOMPARE(source.expected()->name, u"another"_s); // the first
        }
        {
            qputenv("LPDEST", kQueue.toUtf8());
            PrinterSource source(PrinterWish(), m_server);
            source.start();
            QTRY_VERIFY(source.expected());
            QCOMPARE(source.expected()->name, kQueue);
        }
        m_cups->removeQueue(u"another"_s);
    }

    void aQueueIsFetchedAndThenThereAtOnce_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << kQueue;
        QTest::newRow("umlaut") << u"Büro"_s;
        QTest::newRow("percent") << u"a%41"_s;
    }
    void aQueueIsFetchedAndThenThereAtOnce()
    {
        QFETCH(QString, name);
        if (name != kQueue)
            m_cups->addQueue(name, ppdOf(5));
        PrinterWish request;
        request.name = name;
        {
            PrinterSource source(request, m_server);
            Told told(source);
            source.open(source.first());
            QVERIFY(told.said.isEmpty()); // nobody knows it yet
            QTRY_COMPARE(told.said, QStringList{u"ready"_s});
            QCOMPARE(told.last.printer.name, name);
            QCOMPARE(told.last.ppd->hash, hashOfPpd(contentOf(told.last.ppd->path)));
            QVERIFY(contentOf(told.last.ppd->path).startsWith("*PPD-Adobe"));
            QVERIFY(!told.last.capabilities); // it is the queue's own
        }
        {
            PrinterSource source(request, m_server);
            Told told(source);
            source.open(source.first());
            QCOMPARE(told.said, QStringList{u"ready"_s}); // from the cache
            QTRY_COMPARE(told.said, (QStringList{u"ready"_s, u"checked"_s}));
        }
        if (name != kQueue)
            m_cups->removeQueue(name);
    }

    void aQueueIsThereWhileItsServerIsAwayAndIsCheckedWhenThatIsBack()
    {
        PrinterWish request;
        request.name = kQueue;
        useOnce(request);
        m_gate->setManner(FaultyServer::Manner::Refuses);
        PrinterSource source(request, m_server);
        Told told(source);
        source.start();
        source.open(source.first());
        QCOMPARE(told.said, QStringList{u"ready"_s});
        QTRY_COMPARE(told.said, (QStringList{u"ready"_s, u"failed"_s}));
        QVERIFY(!told.problem.isEmpty());
        QVERIFY(!source.printers().isEmpty());
        m_gate->setManner(FaultyServer::Manner::Passes);
        QTRY_VERIFY_WITH_TIMEOUT(told.said.contains(u"checked"_s), kLong);
        QCOMPARE(told.said.count(u"ready"_s), 1); // as it was
    }

    void aServerThatIsBackIsAskedAgainByHand()
    {
        PrinterWish request;
        request.name = kQueue;
        m_gate->setManner(FaultyServer::Manner::Refuses);
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QTRY_COMPARE(told.said, QStringList{u"failed"_s});
        m_gate->setManner(FaultyServer::Manner::Passes);
        source.retry();
        QTRY_COMPARE(told.said, (QStringList{u"failed"_s, u"ready"_s}));
    }

    void aQueueIsTheSameInAnySpelling_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("found");
        QTest::newRow("queue") << u"OFFICE"_s << kQueue;
        QTest::newRow("class") << u"floor"_s << u"Floor"_s;
    }
    void aQueueIsTheSameInAnySpelling()
    {
        QFETCH(QString, wanted);
        QFETCH(QString, found);
        m_cups->addClass(u"Floor"_s, {kQueue});
        PrinterWish request;
        request.name = wanted;
        {
            PrinterSource source(request, m_server);
            Told told(source);
            source.open(source.first());
            QTRY_COMPARE(told.said, QStringList{u"ready"_s});
            QCOMPARE(told.last.printer.name, found); // as the server's answers about jobs say it
        }
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QCOMPARE(told.said, QStringList{u"ready"_s}); // from the cache
        source.start();
        QTRY_COMPARE(source.queues().state(), QueueList::State::Known);
        QTRY_VERIFY(told.said.contains(u"checked"_s));
        QVERIFY(!told.said.contains(u"failed"_s));
        QStringList names;
        for (const Printer &printer : source.printers()) {
            if (printer.origin == PrinterOrigin::Queue)
                names += printer.name;
        }
        QCOMPARE(names, (QStringList{u"Floor"_s, kQueue}));
        // Found in its own spelling, under the default of the user's in another one.
        qputenv("LPDEST", wanted.toUtf8());
        PrinterSource unnamed(PrinterWish(), m_server);
        unnamed.start();
        QTRY_COMPARE(unnamed.queues().state(), QueueList::State::Known);
        QCOMPARE(unnamed.expected()->name, found);
        m_cups->removeQueue(u"Floor"_s);
    }

    void aQueueThatIsGoneIsSaid()
    {
        m_cups->addQueue(u"brief"_s, ppdOf(5));
        PrinterWish request;
        request.name = u"brief"_s;
        PrinterSource source(request, m_server);
        Told told(source);
        source.start();
        source.open(source.first());
        QTRY_VERIFY(told.said.contains(u"ready"_s));
        QTRY_COMPARE(source.queues().state(), QueueList::State::Known);
        m_cups->removeQueue(u"brief"_s);
        QTRY_VERIFY_WITH_TIMEOUT(told.said.contains(u"failed"_s), kLong);
        QVERIFY2(told.problem.contains(u"“brief”"_s), qPrintable(told.problem));
    }

    void aQueueThatNeverWasIsSaid()
    {
        PrinterWish request;
        request.name = u"nowhere"_s;
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QTRY_COMPARE(told.said, QStringList{u"failed"_s});
        QVERIFY2(told.problem.contains(u"“nowhere”"_s), qPrintable(told.problem));
    }

    void aQueueWithoutPpdGetsOne()
    {
        m_cups->addRawQueue(u"raw"_s);
        PrinterWish request;
        request.name = u"raw"_s;
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QTRY_COMPARE(told.said, QStringList{u"ready"_s});
        QVERIFY(told.last.capabilities);
        QVERIFY(contentOf(told.last.ppd->path).startsWith("*PPD-Adobe"));
        m_cups->removeQueue(u"raw"_s);
    }

    void anotherPrinterIsOpenedInItsPlace()
    {
        m_gate->setManner(FaultyServer::Manner::NeverAnswers);
        PrinterWish request;
        request.name = kQueue;
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QTRY_COMPARE(m_gate->openConnections(), 1);
        source.open(source.printers().constLast()); // the one that prints into a file
        QCOMPARE(told.said, QStringList{u"ready"_s});
        QCOMPARE(told.last.printer.origin, PrinterOrigin::File);
        QTRY_COMPARE(m_gate->openConnections(), 0); // nobody waits for the other any more
        QCOMPARE(told.said.size(), 1);
    }

    void thePrinterUsedLastIsRememberedForItsServer()
    {
        PrinterSource source(PrinterWish(), m_server);
        Printer queue;
        queue.origin = PrinterOrigin::Queue;
        queue.name = u"Büro/draft"_s;
        source.rememberUse(queue);
        QCOMPARE(lastPrinter(m_server.address.argument()), u"Büro/draft"_s);
        QCOMPARE(lastPrinter(u"other:631"_s), QString());
        queue.origin = PrinterOrigin::File;
        queue.name = u"sample"_s;
        source.rememberUse(queue);
        QCOMPARE(lastPrinter(m_server.address.argument()), u"Büro/draft"_s);
        rememberPrinter(u"other:631"_s, u"hall"_s);
        QCOMPARE(lastPrinter(u"other:631"_s), u"hall"_s);
    }
};

QTEST_GUILESS_MAIN(PrinterSourceTest)
#include "printer_source_test.moc"
