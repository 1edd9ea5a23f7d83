#include <chrono>
#include <optional>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include <QElapsedTimer>
#include <QTest>

#include "dialog/server/AnswerReader.h"
#include "tests/dialog/server/EndlessServer.h"
#include "tests/dialog/server/IppBytes.h"
#include "tests/dialog/server/ServerScene.h"
#include "tests/dialog/server/WorkerThread.h"
#include "tests/support/cups/CannedServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = ServerProblem::Kind;
using State = ServerConnection::File::State;

Q_DECLARE_METATYPE(std::chrono::milliseconds)

namespace {

const QByteArray kIpp = "Content-Type: application/ipp\r\n";

// While one of these lives, what is allocated on this thread is not reported when it leaks.
#ifdef __SANITIZE_ADDRESS__
using LeaksOfOthers = __lsan::ScopedDisabler;
#else
struct LeaksOfOthers
{
};
#endif

// As HTTP calls it; zlib's own head and end are not a part of it.
QByteArray deflated(const QByteArray &content)
{
    const QByteArray bytes = qCompress(content, 1);
    return bytes.sliced(6, bytes.size() - 10);
}

// Queues that tell as much of themselves as CUPS does.
QByteArray talkativeQueues(int queues)
{
    QByteArray content;
    for (int queue = 0; queue < queues; ++queue) {
        content += static_cast<char>(IPP_TAG_PRINTER);
        for (int i = 0; i < 30; ++i) {
            const QByteArray number = QByteArray::number(i);
            content += ippField(IPP_TAG_NAME, "about-" + number,
                                "queue" + QByteArray::number(queue) + '-' + number);
            content += ippField(IPP_TAG_KEYWORD, "can-" + number, "what-all-of-them-can");
            content += ippField(IPP_TAG_BOOLEAN, "does-" + number, "\1");
            content += ippNumberField("number-" + number);
        }
    }
    return ippAnswerBytes(content);
}

// Every paper with every tray and every type, as printers without a driver list them.
QByteArray manyMedia(int media)
{
    QByteArray content;
    for (int i = 0; i < media; ++i) {
        content += ippBegin(i == 0 ? "media-col-database" : "");
        content += ippMember("media-size") + ippBegin();
        for (const char *name : {"x-dimension", "y-dimension"})
            content += ippMember(name) + ippNumberField({});
        content += ippEnd();
        for (const char *name : {"media-top-margin", "media-bottom-margin", "media-left-margin",
                                 "media-right-margin", "media-thickness"})
            content += ippMember(name) + ippNumberField({});
        for (const char *name : {"media-source", "media-type", "media-color", "media-key"})
            content += ippMember(name) +
                       ippField(IPP_TAG_KEYWORD, {}, "choice-" + QByteArray::number(i % 40));
        content += ippEnd();
    }
    return ippAnswerBytes(content);
}

} // namespace

/// Answers that are none, that have no end, or that take their time.
class ServerAnswerTest : public ServerFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startScene(); }
    void cleanupTestCase() { m_scene.reset(); }
    void init() { m_scene->anew(); }

    void anAnswerThatIsNoneIsNotTaken_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<ServerProblem::Kind>("kind");
        const QByteArray whole = ippAnswer(newIppAnswer()).bytes;
        QTest::newRow("no IPP behind HTTP")
            << httpAnswer(200, "<html>Hello</html>").bytes << Kind::NotUnderstood;
        QTest::newRow("cut in the midst") << whole.chopped(20) << Kind::ConnectionLost;
        QTest::newRow("cut within HTTP") << whole.left(12) << Kind::ConnectionLost;
        // A group of the printer's, whose attribute says that it is longer than the answer.
        QTest::newRow("a length that is not there")
            << httpAnswer(200, QByteArray::fromHex("0200000000000001014700ff") + "attributes",
                          "Content-Type: application/ipp\r\n")
                   .bytes
            << Kind::NotUnderstood;
        QTest::newRow("nothing behind HTTP") << httpAnswer(200).bytes << Kind::NotUnderstood;
    }
    void anAnswerThatIsNoneIsNotTaken()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(ServerProblem::Kind, kind);
        const CannedServer server([&](const CannedRequest &) { return CannedAnswer{bytes, true}; });
        ServerConnection connection(contextFor(server.port(), 2s), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QVERIFY2(connection.problem().mayPass(),
                 qPrintable(connection.problem().text(connection.context().address)));
        // Which of both it was is not to be told from every cut.
        if (connection.problem().kind != Kind::NotUnderstood)
            QCOMPARE(connection.problem().kind, kind);
    }

    void bytesThatAreNoHttpAreNotTakenForSilence_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("a line of something else") << QByteArray("220 mail ready\r\n");
        QTest::newRow("a status of something else") << QByteArray("RTSP/1.0 200 OK\r\n\r\n");
        QTest::newRow("an empty line, and something else") << QByteArray("\r\nHello\r\n");
    }
    void bytesThatAreNoHttpAreNotTakenForSilence()
    {
        QFETCH(QByteArray, bytes);
        const CannedServer server([&](const CannedRequest &) { return CannedAnswer{bytes}; });
        ServerConnection connection(contextFor(server.port(), 1s), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::NotUnderstood);
        QCOMPARE(connection.get("/printers/office.ppd").state, State::Failed);
        QCOMPARE(connection.problem().kind, Kind::NotUnderstood);
    }

    // libcups goes down into each collection of a collection until its stack is gone, and makes
    // sixty times their size of groups.
    void anAnswerThatWouldBecomeTooMuchIsRefused_data()
    {
        QTest::addColumn<QByteArray>("answer");
        const QByteArray nested = ippAnswerBytes(ippNested(100'000));
        const QByteArray groups = ippAnswerBytes(QByteArray(8'000'000, IPP_TAG_JOB));
        QTest::newRow("collections within collections") << httpAnswer(200, nested, kIpp).bytes;
        QTest::newRow("collections that never end")
            << httpAnswer(200, nested.first(1'000'000), kIpp).bytes;
        QTest::newRow("groups") << httpAnswer(200, groups, kIpp).bytes;
        QTest::newRow("groups, compressed")
            << httpAnswer(200, deflated(groups), kIpp + "Content-Encoding: deflate\r\n").bytes;
        QTest::newRow("attributes")
            << httpAnswer(200, ippAnswerBytes(ippNumberField("n").repeated(260'000)), kIpp).bytes;
        QByteArray names;
        for (int i = 0; i < 80'000; ++i)
            names += ippNumberField("n" + QByteArray::number(i));
        QTest::newRow("names") << httpAnswer(200, ippAnswerBytes(names), kIpp).bytes;
    }
    void anAnswerThatWouldBecomeTooMuchIsRefused()
    {
        QFETCH(QByteArray, answer);
        // libcups leaves its decoder behind when a connection is closed in the midst of an answer.
        std::optional<LeaksOfOthers> decoder;
        if (answer.contains("Content-Encoding"))
            decoder.emplace();
        const CannedServer server([&](const CannedRequest &) { return CannedAnswer{answer}; });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::TooLarge);
        QVERIFY(connection.problem().mayPass());
        QTRY_COMPARE(server.openConnections(), 0);
    }

    void theLargestHonestAnswersAreRead_data()
    {
        QTest::addColumn<QByteArray>("answer");
        const QByteArray queues = talkativeQueues(2000);
        QTest::newRow("queues") << httpAnswer(200, queues, kIpp).bytes;
        QTest::newRow("queues, compressed")
            << httpAnswer(200, deflated(queues), kIpp + "Content-Encoding: deflate\r\n").bytes;
        QTest::newRow("media") << httpAnswer(200, manyMedia(1000), kIpp).bytes;
    }
    void theLargestHonestAnswersAreRead()
    {
        QFETCH(QByteArray, answer);
        const CannedServer server([&](const CannedRequest &) { return CannedAnswer{answer}; });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const IppMessage message = connection.request(aboutQueue());
        QVERIFY2(message, qPrintable(connection.problem().text(connection.context().address)));
        QVERIFY(connection.request(aboutQueue()));
        QCOMPARE(server.requests().size(), 2);
    }

    void anAnswerWithoutEndEnds_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<std::chrono::milliseconds>("pause");
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::newRow("as fast as it is read") << 30000 << 0ms << Kind::TooLarge;
        QTest::newRow("never silent for long") << 1 << 50ms << Kind::NoAnswer;
    }
    void anAnswerWithoutEndEnds()
    {
        QFETCH(int, bytes);
        QFETCH(std::chrono::milliseconds, pause);
        QFETCH(ServerProblem::Kind, kind);
        m_scene->server->answerInPieces(IPP_OP_GET_PRINTER_ATTRIBUTES, bytes, pause);
        const auto patience = kind == Kind::NoAnswer ? 1s : 10s;
        ServerConnection connection(contextFor(m_scene->server->port(), patience), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, kind);
        // It is not listened to any more, and the same object goes on.
        QTRY_COMPARE(m_scene->server->openConnections(), 0);
        m_scene->server->clearFaults();
        QVERIFY(connection.request(aboutQueue()));
    }

    void aHeadWithoutEndEnds_data()
    {
        QTest::addColumn<QByteArray>("piece");
        QTest::addColumn<std::chrono::milliseconds>("pause");
        QTest::newRow("lines, as fast as they are read")
            << QByteArray("X-More: of it\r\n").repeated(1000) << 0ms;
        QTest::newRow("lines, never silent for long") << QByteArray("X-More: of it\r\n") << 50ms;
        QTest::newRow("a line") << QByteArray(10000, 'x') << 0ms;
    }
    void aHeadWithoutEndEnds()
    {
        QFETCH(QByteArray, piece);
        QFETCH(std::chrono::milliseconds, pause);
        for (const bool isGet : {false, true}) {
            const EndlessServer server("HTTP/1.1 200 OK\r\nX-First: one\r\n", piece, pause);
            ServerConnection connection(contextFor(server.port(), 500ms), nullptr);
            QElapsedTimer time;
            time.start();
            if (isGet)
                QCOMPARE(connection.get("/printers/office.ppd").state, State::Failed);
            else
                QVERIFY(!connection.request(aboutQueue()));
            QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
            QVERIFY(connection.problem().mayPass());
        }
    }

    void cancelingEndsAHeadWithoutEnd()
    {
        const EndlessServer server("HTTP/1.1 200 OK\r\n", "X-More: of it\r\n", 10ms);
        CancelFlag canceled{0};
        ServerProblem problem;
        {
            const WorkerThread worker([&] {
                ServerConnection connection(contextFor(server.port(), 1h), &canceled);
                connection.request(aboutQueue());
                problem = connection.problem();
            });
            QTRY_VERIFY(server.hasBegun());
            canceled = 1;
            QTRY_VERIFY(worker.isDone());
        }
        QCOMPARE(problem.kind, Kind::Canceled);
    }

    // What is no value of libcups' enumerations, which an answer may have all the same.
    void aStatusThatNobodyKnowsIsARefusal()
    {
        QByteArray ipp = ippAnswerBytes({});
        ipp[2] = '\x7f';
        QByteArray bytes = httpAnswer(200, ipp, kIpp).bytes;
        const CannedServer server([&](const CannedRequest &) { return CannedAnswer{bytes}; });
        ServerConnection connection(contextFor(server.port(), 2s), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::Refused);
        bytes = "HTTP/1.1 77777 What\r\nContent-Length: 0\r\n\r\n";
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::NotUnderstood);
    }

    void cancelingEndsAnAnswerInItsMidst_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<std::chrono::milliseconds>("pause");
        QTest::newRow("that comes fast") << 10 << 0ms;
        QTest::newRow("that comes slowly") << 1 << 50ms;
    }
    void cancelingEndsAnAnswerInItsMidst()
    {
        QFETCH(int, bytes);
        QFETCH(std::chrono::milliseconds, pause);
        m_scene->server->answerInPieces(IPP_OP_GET_PRINTER_ATTRIBUTES, bytes, pause);
        CancelFlag canceled{0};
        ServerProblem problem;
        {
            const WorkerThread worker([&] {
                ServerConnection connection(contextFor(m_scene->server->port(), 1h), &canceled);
                connection.request(aboutQueue());
                problem = connection.problem();
            });
            QTRY_COMPARE(m_scene->server->faultsMade(), 1);
            canceled = 1;
            QTRY_VERIFY(worker.isDone());
        }
        QCOMPARE(problem.kind, Kind::Canceled);
    }

    // Longer than the patience that a silence gets, and never silent.
    void aSlowAnswerIsHeardToItsEnd()
    {
        m_scene->server->answerInPieces(IPP_OP_GET_PRINTER_ATTRIBUTES, 8000, 200ms, 15);
        ServerConnection connection(contextFor(m_scene->server->port(), 2s), nullptr);
        const IppMessage answer = connection.request(aboutQueue());
        QVERIFY2(answer, qPrintable(connection.problem().text(connection.context().address)));
        QVERIFY(ippLength(answer.get()) > 120000);
        // Its end was read as well.
        m_scene->server->clearFaults();
        QVERIFY(connection.request(aboutQueue()));
        QCOMPARE(m_scene->server->acceptedConnections(), 1);
    }

    // Both are what printers have been seen to do: the message says itself where it ends.
    void whatStandsBehindAMessageIsNotWaitedFor_data()
    {
        QTest::addColumn<QByteArray>("length");
        QTest::newRow("a length that is too large") << QByteArray("Content-Length: 100000\r\n");
        QTest::newRow("no length, and no end") << QByteArray();
    }
    void whatStandsBehindAMessageIsNotWaitedFor()
    {
        QFETCH(QByteArray, length);
        QByteArray bytes = ippAnswer(newIppAnswer()).bytes;
        const QByteArray message = bytes.mid(bytes.indexOf("\r\n\r\n") + 4);
        bytes = "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\n" + length + "\r\n" + message;
        const CannedServer server([&](const CannedRequest &) { return CannedAnswer{bytes}; });
        ServerConnection connection(contextFor(server.port(), 1h), nullptr);
        QVERIFY(connection.request(aboutQueue()));
        QVERIFY(connection.request(aboutQueue())); // on a connection that says nothing else
        QCOMPARE(server.requests().size(), 2);
    }

    void anAnswerMayTakeLongerTheMoreOfItHasCome_data()
    {
        QTest::addColumn<qint64>("received");
        QTest::addColumn<std::chrono::milliseconds>("after"); // since its beginning
        QTest::addColumn<std::chrono::milliseconds>("until");
        const qint64 second = AnswerPace::kSlowest;
        QTest::newRow("nothing yet") << qint64(0) << 0ms << 20000ms;
        QTest::newRow("nothing, soon over") << qint64(0) << 19999ms << 20000ms;
        QTest::newRow("the pace bounds a wait") << second << 10000ms << 21000ms;
        QTest::newRow("silence bounds one that is ahead") << 60 * second << 10000ms << 30000ms;
        QTest::newRow("just keeping up") << 60 * second << 60000ms << 80000ms;
        QTest::newRow("too slow by now") << 60 * second << 90000ms << 80000ms;
        QTest::newRow("as long as there may be") << (qint64(1) << 40) << 0ms << 20000ms;
    }
    void anAnswerMayTakeLongerTheMoreOfItHasCome()
    {
        QFETCH(qint64, received);
        QFETCH(std::chrono::milliseconds, after);
        QFETCH(std::chrono::milliseconds, until);
        const ServerWait::Clock::time_point begin{1000h};
        QCOMPARE(AnswerPace(begin, 20s).deadline(received, begin + after) - begin, until);
    }
};

QTEST_GUILESS_MAIN(ServerAnswerTest)
#include "server_answer_test.moc"
