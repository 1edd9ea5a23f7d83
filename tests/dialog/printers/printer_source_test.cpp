#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/LastPrinter.h"
#include "dialog/printers/PrinterSource.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kLong = 60000; // far more than the time between two looks at the list
const QString kQueue = u"office"_s;

/// What a source tells, in its order.
class Told : public QObject
{
public:
    explicit Told(PrinterSource &source)
    {
        connect(&source, &PrinterSource::ready, this, [this](const FetchedPrinter &printer) {
            said += u"ready"_s;
            last = printer;
        });
        connect(&source, &PrinterSource::checked, this, [this] { said += u"checked"_s; });
        connect(&source, &PrinterSource::failed, this, [this](const QString &why) {
            said += u"failed"_s;
            problem = why;
        });
    }

    QStringList said;
    FetchedPrinter last;
    QString problem;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Where printers come from, with a real server behind.
class PrinterSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_cups->addQueue(kQueue, ppdOf(5));
    }
    void cleanupTestCase() { m_cups.reset(); }

    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "HOME"})
            qputenv(name, QFile::encodeName(m_home->path()));
        qunsetenv("LPDEST");
        m_gate = std::make_unique<FaultyServer>(m_cups->port());
        m_server = {};
        m_server.address = {u"127.0.0.1"_s, m_gate->port(), HTTP_ENCRYPTION_IF_REQUESTED};
        m_server.patience = {20s, 20s};
    }
    void cleanup() { m_gate.reset(); }

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

    void aPpdThatHasChangedIsTakenAnew()
    {
        PrinterWish request;
        request.name = kQueue;
        dateBack();
        useOnce(request);
        PrinterSource source(request, m_server);
        Told told(source);
        source.start();
        source.open(source.first());
        QTRY_VERIFY(told.said.contains(u"checked"_s));
        const QByteArray before = contentOf(told.last.ppd->path);
        QCOMPARE(told.said.count(u"ready"_s), 1);

        m_cups->setPpd(kQueue, ppdOf(6));
        QTRY_COMPARE_WITH_TIMEOUT(told.said.count(u"ready"_s), 2, kLong);
        QVERIFY(contentOf(told.last.ppd->path) != before);
        m_cups->setPpd(kQueue, ppdOf(5));
    }

    void aPpdIsKnownByWhatItSaysWhateverItsDate_data()
    {
        QTest::addColumn<int>("later");
        QTest::newRow("restored from a backup") << -86400;
        QTest::newRow("twice within a second") << 0;
    }
    void aPpdIsKnownByWhatItSaysWhateverItsDate()
    {
        QFETCH(int, later);
        PrinterWish request;
        request.name = kQueue;
        const QDateTime now = QDateTime::currentDateTime();
        dateTo(now);
        useOnce(request);
        m_cups->setPpd(kQueue, ppdOf(6));
        dateTo(now.addSecs(later));
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        const QByteArray before = contentOf(told.last.ppd->path);
        QTRY_COMPARE(told.said, (QStringList{u"ready"_s, u"ready"_s}));
        QVERIFY(contentOf(told.last.ppd->path) != before);
        m_cups->setPpd(kQueue, ppdOf(5));
    }

    // The window stands before anybody is asked, so this time is waited for by its user.
    void whatIsKeptIsReadOnceBeforeItIsThere()
    {
        PrinterWish request;
        request.name = kQueue;
        useOnce(request);
        m_gate->setManner(FaultyServer::Manner::Refuses);
        PrinterSource source(request, m_server);
        Told told(source);
        const Printer first = source.first();
        QVERIFY(QDir(m_home->path()).removeRecursively());
        source.open(first);
        QCOMPARE(told.said, QStringList{u"ready"_s});
    }

    // Written anew with a later date, it is the same; what is stored is not read to find that out.
    void aPpdThatWasInstalledAgainIsKnownByItsHash()
    {
        PrinterWish request;
        request.name = kQueue;
        dateBack();
        useOnce(request);
        PrinterSource source(request, m_server);
        Told told(source);
        source.start();
        source.open(source.first());
        QTRY_VERIFY(told.said.contains(u"checked"_s));
        QFile stored(told.last.ppd->path);
        QVERIFY(stored.open(QIODevice::WriteOnly));
        stored.close();
        // The server counts seconds.
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() > now);
        m_cups->setPpd(kQueue, ppdOf(5));
        // It is fetched, and stored once more.
        QTRY_VERIFY_WITH_TIMEOUT(contentOf(stored.fileName()).startsWith("*PPD-Adobe"), kLong);
        QCOMPARE(told.said.count(u"ready"_s), 1);
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

private:
    /// The path of a PPD of that model.
    QString ppdOf(int model)
    {
        const QString path = m_ppds.filePath(QString::number(model) + u".ppd"_s);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(samplePpd(model));
        return path;
    }

    /// The PPD of the queue is from long ago: dates are counted in seconds.
    void dateBack() { dateTo(QDateTime::currentDateTime().addSecs(-3600)); }
    void dateTo(const QDateTime &date)
    {
        for (QDirIterator it(m_cups->folder(), {kQueue + u".ppd"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
             it.hasNext();) {
            QFile ppd(it.next());
            QVERIFY(ppd.open(QIODevice::ReadWrite));
            QVERIFY(ppd.setFileTime(date, QFileDevice::FileModificationTime));
        }
    }

    /// Puts the wanted printer into the cache.
    void useOnce(const PrinterWish &request)
    {
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QTRY_COMPARE(told.said.value(0), u"ready"_s);
    }

    QTemporaryDir m_ppds;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_gate;
    std::unique_ptr<QTemporaryDir> m_home;
    ServerContext m_server;
};

QTEST_GUILESS_MAIN(PrinterSourceTest)
#include "printer_source_test.moc"
