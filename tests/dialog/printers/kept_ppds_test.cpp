#include <QDir>
#include <QTest>

#include "tests/dialog/printers/PrinterSourceScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// PPDs that are kept: there at once, and never those of yesterday.
class KeptPpdsTest : public PrinterSourceScene
{
    Q_OBJECT

private Q_SLOTS:
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

        awaitNextSecond();
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
        awaitNextSecond();
        m_cups->setPpd(kQueue, ppdOf(5));
        // It is fetched, and stored once more.
        QTRY_VERIFY_WITH_TIMEOUT(contentOf(stored.fileName()).startsWith("*PPD-Adobe"), kLong);
        QCOMPARE(told.said.count(u"ready"_s), 1);
    }
};

QTEST_GUILESS_MAIN(KeptPpdsTest)
#include "kept_ppds_test.moc"
