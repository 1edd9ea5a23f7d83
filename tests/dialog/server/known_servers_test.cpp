#include <thread>
#include <vector>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/server/KnownServers.h"
#include "tests/support/FileSizeLimit.h"

using namespace corvana;
using namespace Qt::StringLiterals;
using Outcome = KnownServers::Outcome;

namespace {

const QString kServer = u"print.example.com:631"_s;
const QByteArray kKey(32, '\x1a');
const QByteArray kOther(32, '\x2b');
const QByteArray kLine = "print.example.com:631 sha256:" + QByteArray("1a").repeated(32) + '\n';

} // namespace

class KnownServersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void theFileIsTheUsers()
    {
        const QByteArray former = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->path()));
        QCOMPARE(KnownServers().path(), m_folder->filePath(u"corvana-print/known-servers"_s));
        qputenv("XDG_DATA_HOME", former);
    }

    void whatIsRememberedIsKnownToOthers()
    {
        QVERIFY(!servers().key(kServer));
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::Kept);
        QCOMPARE(servers().key(kServer), kKey);
        QVERIFY(!servers().key(u"print.example.com:8631"_s));
        QCOMPARE(content(), kLine);
        QCOMPARE(QFileInfo(path()).permissions() &
                     (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
    }

    void aFullDiskLeavesTheKeysThatAreKnown()
    {
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::Kept);
        {
            const FileSizeLimit limit(60); // there is room for the lock
            QCOMPARE(servers().remember(u"a:1"_s, std::nullopt, kOther), Outcome::NotKept);
        }
        QCOMPARE(content(), kLine);
    }

    void aServersKeyIsReplacedAndNoOthers()
    {
        QCOMPARE(servers().remember(u"a:1"_s, std::nullopt, kOther), Outcome::Kept);
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::Kept);
        QCOMPARE(servers().remember(kServer, kKey, kOther), Outcome::Kept);
        QCOMPARE(servers().key(kServer), kOther);
        QCOMPARE(servers().key(u"a:1"_s), kOther);
        QCOMPARE(content().count('\n'), 2);
    }

    void aKeyThatSomebodyElseHasNotedMeanwhileStays_data()
    {
        QTest::addColumn<QByteArray>("former"); // null: none
        QTest::addColumn<QByteArray>("noted");
        QTest::addColumn<Outcome>("outcome");
        const QByteArray third(32, '\x3c');
        QTest::newRow("another") << QByteArray() << kOther << Outcome::KnownOtherwise;
        QTest::newRow("another than the former") << third << kOther << Outcome::KnownOtherwise;
        QTest::newRow("the same") << QByteArray() << kKey << Outcome::Kept;
    }
    void aKeyThatSomebodyElseHasNotedMeanwhileStays()
    {
        QFETCH(QByteArray, former);
        QFETCH(QByteArray, noted);
        QFETCH(Outcome, outcome);
        QCOMPARE(servers().remember(kServer, std::nullopt, noted), Outcome::Kept);
        const auto known = former.isNull() ? std::nullopt : std::optional(former);
        QCOMPARE(servers().remember(kServer, known, kKey), outcome);
        QCOMPARE(servers().key(kServer), noted);
    }

    void aLineThatWasRemovedIsForgotten()
    {
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::Kept);
        write({});
        QVERIFY(!servers().key(kServer));
        QCOMPARE(servers().remember(kServer, kKey, kOther), Outcome::Kept);
        QCOMPARE(servers().key(kServer), kOther);
    }

    void linesThatAreNotUnderstoodSayNothingAndStay_data()
    {
        QTest::addColumn<QByteArray>("line");
        const QByteArray digits = QByteArray("1a").repeated(32);
        QTest::newRow("comment") << QByteArray("# my servers\n");
        QTest::newRow("another kind of key") << "print.example.com:631 sha512:" + digits + '\n';
        QTest::newRow("too short") << "print.example.com:631 sha256:" + digits.chopped(2) + '\n';
        QTest::newRow("no digits") << "print.example.com:631 sha256:" + digits.chopped(2) + "zz\n";
        QTest::newRow("more than digits")
            << "print.example.com:631 sha256:" + digits.chopped(2) + "1-a\n";
        QTest::newRow("another word") << kLine.chopped(1) + " today\n";
    }
    void linesThatAreNotUnderstoodSayNothingAndStay()
    {
        QFETCH(QByteArray, line);
        write(line);
        QVERIFY(!servers().key(kServer));
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::Kept);
        QCOMPARE(servers().key(kServer), kKey);
        QCOMPARE(content(), line + kLine);
    }

    void anyNameIsOneWord_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<QByteArray>("word");
        QTest::newRow("name") << kServer << QByteArray("print.example.com:631");
        QTest::newRow("address") << u"[fe80::1]:631"_s << QByteArray("[fe80::1]:631");
        QTest::newRow("spaces") << u"a b\nc:1"_s << QByteArray("a%20b%0Ac:1");
    }
    void anyNameIsOneWord()
    {
        QFETCH(QString, server);
        QFETCH(QByteArray, word);
        QCOMPARE(servers().remember(server, std::nullopt, kKey), Outcome::Kept);
        QCOMPARE(servers().key(server), kKey);
        QCOMPARE(content().split(' ').constFirst(), word);
    }

    void whatCannotBeWrittenIsSaid()
    {
        write("in the way\n");
        const KnownServers below(path() + u"/known-servers"_s);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"known-servers.*cannot be "_s));
        QCOMPARE(below.remember(kServer, std::nullopt, kKey), Outcome::NotKept);
    }

    void whileAnotherProgramWritesNothingIsWritten()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"some"_s));
        QLockFile others(path() + u".lock"_s);
        QVERIFY(others.lock());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"known-servers cannot be locked"_s));
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::NotKept);
        others.unlock();
        QCOMPARE(servers().remember(kServer, std::nullopt, kKey), Outcome::Kept);
    }

    // As when several connections meet servers at once.
    void nobodysKeyIsLostWhenManyAreRemembered()
    {
        constexpr int kThreads = 8;
        constexpr int kEach = 10;
        std::vector<std::thread> threads;
        for (int i = 0; i < kThreads; ++i) {
            threads.emplace_back([this, i] {
                for (int j = 0; j < kEach; ++j)
                    servers().remember(u"host%1:%2"_s.arg(i).arg(j), std::nullopt, kKey);
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(content().count('\n'), kThreads * kEach);
    }

private:
    QString path() const { return m_folder->filePath(u"some/known-servers"_s); }
    KnownServers servers() const { return KnownServers(path()); }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &content) const
    {
        QDir().mkpath(m_folder->filePath(u"some"_s));
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(KnownServersTest)
#include "known_servers_test.moc"
