#include <optional>

#include <QTest>

#include "tests/dialog/server/ServerScene.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/CannedServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = ServerProblem::Kind;
using State = ServerConnection::File::State;

/// Files that are fetched from a server.
class ServerGetTest : public ServerFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startScene(); }
    void cleanupTestCase() { m_scene.reset(); }
    void init() { m_scene->anew(); }

    void aFileIsFetchedWheneverItIsAskedFor()
    {
        const QTemporaryDir folder;
        QFile ppd(folder.filePath(u"sample.ppd"_s));
        QVERIFY(ppd.open(QIODevice::WriteOnly));
        ppd.write(samplePpd(5));
        ppd.close();
        m_scene->cups.addQueue(u"withppd"_s, ppd.fileName());
        ServerConnection connection(contextFor(m_scene->server->port()), nullptr);
        const auto file = connection.get("/printers/withppd.ppd");
        QCOMPARE(file.state, State::Read);
        QVERIFY(file.content.startsWith("*PPD-Adobe"));

        const auto again = connection.get("/printers/withppd.ppd");
        QCOMPARE(again.state, State::Read);
        QCOMPARE(again.content, file.content);
        m_scene->cups.removeQueue(u"withppd"_s);

        QCOMPARE(connection.get("/printers/withppd.ppd").state, State::Missing);
        QVERIFY(!connection.problem());
    }

    void aServerThatHangsUpBehindEachAnswerIsSpokenToAllTheSame_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::newRow("and says so") << QByteArray("Connection: close\r\n");
        QTest::newRow("without a word") << QByteArray();
    }
    void aServerThatHangsUpBehindEachAnswerIsSpokenToAllTheSame()
    {
        QFETCH(QByteArray, fields);
        const CannedServer server([&](const CannedRequest &request) {
            CannedAnswer answer = httpAnswer(200, "*PPD-Adobe", fields);
            if (request.operation != 0)
                answer = ippAnswer(newIppAnswer());
            answer.bytes.replace("\r\n\r\n", "\r\n" + fields + "\r\n");
            answer.hangsUp = true;
            return answer;
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        for (int i = 0; i < 20; ++i) {
            QVERIFY2(connection.request(aboutQueue()),
                     qPrintable(connection.problem().text(connection.context().address)));
            QCOMPARE(connection.get("/printers/a.ppd").state, State::Read);
        }
    }

    // What is sent only once would be lost on it.
    void aConnectionThatTheServerIsAboutToCloseIsNotUsedAgain()
    {
        const CannedServer server([](const CannedRequest &request) {
            CannedAnswer answer =
                request.operation == 0 ? httpAnswer(200, "*PPD-Adobe") : ippAnswer(newIppAnswer());
            answer.bytes.replace("\r\n\r\n", "\r\nConnection: close\r\n\r\n");
            return answer;
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(connection.request(aboutQueue()));
        QTRY_COMPARE(server.openConnections(), 0);
        QCOMPARE(connection.get("/printers/a.ppd").state, State::Read);
        QTRY_COMPARE(server.openConnections(), 0);
    }

    void answersToAGetAreToldApart_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<State>("state");
        QTest::addColumn<ServerProblem::Kind>("kind");
        // Nobody has asked whether something has changed.
        QTest::newRow("304") << 304 << State::Failed << Kind::NotUnderstood;
        QTest::newRow("403") << 403 << State::Failed << Kind::Forbidden;
        QTest::newRow("404") << 404 << State::Missing << Kind::None;
        QTest::newRow("500") << 500 << State::Failed << Kind::NotUnderstood;
    }
    void answersToAGetAreToldApart()
    {
        QFETCH(int, status);
        QFETCH(State, state);
        QFETCH(ServerProblem::Kind, kind);
        const CannedServer server([&](const CannedRequest &) { return httpAnswer(status); });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QCOMPARE(connection.get("/printers/a.ppd").state, state);
        QCOMPARE(connection.problem().kind, kind);
        QVERIFY(server.requests().constFirst().head.field("If-Modified-Since").isEmpty());
    }

    void aFileThatEndsTooSoonIsNone()
    {
        CannedAnswer cut = httpAnswer(200, QByteArray(100000, 'x'));
        cut.bytes.chop(50000);
        cut.hangsUp = true;
        const CannedServer server([&](const CannedRequest &) { return cut; });
        ServerConnection connection(contextFor(server.port(), 2s), nullptr);
        const auto file = connection.get("/printers/a.ppd");
        QCOMPARE(file.state, State::Failed);
        QVERIFY(file.content.isEmpty());
        QVERIFY(connection.problem());
    }

    void aFileThatIsLargerThanAnyPpdIsNotTaken_data()
    {
        QTest::addColumn<bool>("isChunked");
        QTest::newRow("of known length") << false;
        QTest::newRow("in chunks") << true;
    }
    void aFileThatIsLargerThanAnyPpdIsNotTaken()
    {
        QFETCH(bool, isChunked);
        const QByteArray large(40 * 1024 * 1024, 'x');
        CannedAnswer answer = httpAnswer(200, large);
        if (isChunked) {
            answer.bytes = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
            const QByteArray chunk = "100000\r\n" + QByteArray(0x100000, 'x') + "\r\n";
            for (int i = 0; i < 40; ++i)
                answer.bytes += chunk;
            answer.bytes += "0\r\n\r\n";
        }
        const CannedServer server([&](const CannedRequest &) { return answer; });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const auto file = connection.get("/printers/a.ppd");
        QCOMPARE(file.state, State::Failed);
        QVERIFY(file.content.isEmpty());
        QCOMPARE(connection.problem().kind, Kind::TooLarge);
    }
};

QTEST_GUILESS_MAIN(ServerGetTest)
#include "server_get_test.moc"
