#include <optional>

#include <QBuffer>
#include <QTest>

#include "tests/dialog/server/ServerScene.h"
#include "tests/dialog/server/WorkerThread.h"
#include "tests/support/cups/CannedServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = ServerProblem::Kind;
using State = ServerConnection::File::State;

namespace {

/// A device whose reading fails behind the first bytes, as a file on a broken disk.
class BrokenDevice : public QBuffer
{
public:
    BrokenDevice() { setData(QByteArray(200000, 'x')); }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        if (pos() > 0) {
            setErrorString(u"the disk is broken"_s);
            return -1;
        }
        return QBuffer::readData(data, std::min<qint64>(length, 1000));
    }
};

} // namespace

/// One connection, against servers in every manner.
class ServerConnectionTest : public ServerFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startScene(); }
    void cleanupTestCase() { m_scene.reset(); }
    void init() { m_scene->anew(); }

    void aRequestIsAnsweredOnOneConnection()
    {
        ServerConnection connection(contextFor(m_scene->server->port()), nullptr);
        for (int i = 0; i < 3; ++i) {
            const IppMessage answer = connection.request(aboutQueue());
            QVERIFY(answer);
            QVERIFY(!connection.problem());
            QCOMPARE(ippText(ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME)), kQueue);
        }
        QCOMPARE(m_scene->server->acceptedConnections(), 1);
    }

    void whatGoesWrongIsSaid_data()
    {
        QTest::addColumn<FaultyServer::Manner>("manner");
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::addColumn<bool>("wasSent");
        using Manner = FaultyServer::Manner;
        QTest::newRow("never answers") << Manner::NeverAnswers << Kind::NoAnswer << true;
        QTest::newRow("hangs up") << Manner::HangsUp << Kind::ConnectionLost << true;
        QTest::newRow("babbles") << Manner::Babbles << Kind::NotUnderstood << true;
        QTest::newRow("refuses") << Manner::Refuses << Kind::Unreachable << false;
    }
    void whatGoesWrongIsSaid()
    {
        QFETCH(FaultyServer::Manner, manner);
        QFETCH(ServerProblem::Kind, kind);
        QFETCH(bool, wasSent);
        m_scene->server->setManner(manner);
        ServerConnection connection(contextFor(m_scene->server->port(), 3s), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, kind);
        QVERIFY(connection.problem().mayPass());
        QCOMPARE(connection.requestWasSent(), wasSent);
        QCOMPARE(connection.get("/printers/office.ppd").state, State::Failed);
        QCOMPARE(connection.problem().kind, kind);

        // The same object does its work as soon as the server does.
        m_scene->server->setManner(FaultyServer::Manner::Passes);
        QVERIFY(connection.request(aboutQueue()));
        QVERIFY(!connection.problem());
    }

    void aConnectionThatWasIdleForTooLongIsMadeAnew()
    {
        ServerConnection connection(contextFor(m_scene->server->port()), nullptr);
        QVERIFY(connection.request(aboutQueue()));
        m_scene->server->dropConnections();
        QVERIFY2(connection.request(aboutQueue()),
                 qPrintable(connection.problem().text(connection.context().address)));
        m_scene->server->dropConnections();
        QCOMPARE(connection.get("/printers/office.ppd").state, State::Missing);
    }

    void refusalsAreToldApart_data()
    {
        QTest::addColumn<int>("http");
        QTest::addColumn<int>("ipp");
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::newRow("403") << 403 << 0 << Kind::Forbidden;
        QTest::newRow("404") << 404 << 0 << Kind::NotFound;
        QTest::newRow("500") << 500 << 0 << Kind::NotUnderstood;
        QTest::newRow("503") << 503 << 0 << Kind::NotUnderstood;
        QTest::newRow("IPP busy") << 0 << int(IPP_STATUS_ERROR_BUSY) << Kind::Refused;
        QTest::newRow("IPP not found") << 0 << int(IPP_STATUS_ERROR_NOT_FOUND) << Kind::NotFound;
        QTest::newRow("IPP not accepting")
            << 0 << int(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS) << Kind::Refused;
        QTest::newRow("IPP redirection")
            << 0 << int(IPP_STATUS_REDIRECTION_OTHER_SITE) << Kind::Refused;
        QTest::newRow("IPP ignored attributes")
            << 0 << int(IPP_STATUS_OK_IGNORED_OR_SUBSTITUTED) << Kind::None;
    }
    void refusalsAreToldApart()
    {
        QFETCH(int, http);
        QFETCH(int, ipp);
        QFETCH(ServerProblem::Kind, kind);
        if (http > 0)
            m_scene->server->answerHttp(http, IPP_OP_GET_PRINTER_ATTRIBUTES);
        else
            m_scene->server->answerIpp(static_cast<ipp_status_t>(ipp),
                                       IPP_OP_GET_PRINTER_ATTRIBUTES);
        ServerConnection connection(contextFor(m_scene->server->port()), nullptr);
        QCOMPARE(connection.request(aboutQueue()) == nullptr, kind != Kind::None);
        QCOMPARE(connection.problem().kind, kind);
        QCOMPARE(int(connection.problem().status), kind == Kind::None ? 0 : ipp);
        QCOMPARE(m_scene->server->faultsMade(), 1); // and is not asked for again
    }

    void theWordsOfARefusalAreKept()
    {
        const CannedServer server([](const CannedRequest &) {
            ipp_t *answer = newIppAnswer(IPP_STATUS_ERROR_NOT_POSSIBLE);
            ippAddString(answer, IPP_TAG_OPERATION, IPP_TAG_TEXT, "status-message", nullptr,
                         "Not\ntoday");
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().detail, u"Not today"_s);
    }

    void cancelingEndsEveryWait_data()
    {
        QTest::addColumn<bool>("isGet");
        QTest::newRow("request") << false;
        QTest::newRow("get") << true;
    }
    void cancelingEndsEveryWait()
    {
        QFETCH(bool, isGet);
        m_scene->server->setManner(FaultyServer::Manner::NeverAnswers);
        CancelFlag canceled{0};
        ServerProblem problem;
        {
            const WorkerThread worker([&] {
                ServerConnection connection(contextFor(m_scene->server->port(), 1h), &canceled);
                if (isGet)
                    connection.get("/printers/office.ppd");
                else
                    connection.request(aboutQueue());
                problem = connection.problem();
            });
            QTRY_COMPARE(m_scene->server->openConnections(), 1);
            canceled = 1;
            QTRY_VERIFY(worker.isDone());
        }
        QCOMPARE(problem.kind, Kind::Canceled);
        QVERIFY(!problem.mayPass());
    }

    void whatIsCanceledAlreadyAsksNobody()
    {
        CancelFlag canceled{1};
        ServerConnection connection(contextFor(m_scene->server->port()), &canceled);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::Canceled);
        QCOMPARE(connection.get("/").state, State::Failed);
        QCOMPARE(connection.problem().kind, Kind::Canceled);
        QCOMPARE(m_scene->server->acceptedConnections(), 0);
    }

    void theDocumentIsSentWholeAndItsProgressTold()
    {
        const QByteArray content = QByteArray("0123456789abcdef").repeated(20000);
        QBuffer document;
        document.setData(content);
        QVERIFY(document.open(QIODevice::ReadOnly));
        QList<qint64> told;
        const CannedServer server([](const CannedRequest &) { return ippAnswer(newIppAnswer()); });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document,
                                   [&](qint64 sent) { told += sent; }));
        QVERIFY(connection.documentWasSent());
        QVERIFY(server.requests().constFirst().document() == content);
        QVERIFY(told.size() > 1);
        QVERIFY(std::is_sorted(told.cbegin(), told.cend()));
        QCOMPARE(told.constLast(), content.size());
    }

    void whetherTheDocumentHadBeenSentIsKnownAfterALoss_data()
    {
        QTest::addColumn<bool>("beforeTheEnd");
        QTest::newRow("cut") << true;
        QTest::newRow("no answer") << false;
    }
    void whetherTheDocumentHadBeenSentIsKnownAfterALoss()
    {
        QFETCH(bool, beforeTheEnd);
        // Larger than what sockets take without anybody reading it.
        QBuffer document;
        document.setData(QByteArray(30 * 1000 * 1000, 'x'));
        QVERIFY(document.open(QIODevice::ReadOnly));
        if (beforeTheEnd)
            m_scene->server->closeAfterDocumentBytes(100000, IPP_OP_PRINT_JOB);
        else
            m_scene->server->closeBeforeResponse(IPP_OP_PRINT_JOB);
        ServerConnection connection(contextFor(m_scene->server->port()), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        QCOMPARE(connection.problem().kind, Kind::ConnectionLost);
        QCOMPARE(connection.documentWasSent(), !beforeTheEnd);
        // No second copy by itself.
        QCOMPARE(m_scene->server->count(IPP_OP_PRINT_JOB), 1);
    }

    void aDocumentThatCannotBeReadIsSaid()
    {
        BrokenDevice document;
        QVERIFY(document.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
        ServerConnection connection(contextFor(m_scene->server->port()), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        QVERIFY(connection.problem());
        QVERIFY(connection.problem().detail.contains(u"the disk is broken"_s));
        QVERIFY(!connection.documentWasSent());
        QVERIFY(connection.request(aboutQueue()));
    }

    void patienceComesFromTheEnvironment_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("milliseconds"); // 0: the usual ones
        QTest::newRow("seconds") << QByteArray("3") << 3000;
        QTest::newRow("parts") << QByteArray("0.25") << 250;
        QTest::newRow("the most") << QByteArray("3600") << 3600000;
        for (const char *wrong : {"", "0", "-1", "3601", "soon", "nan", "inf"})
            QTest::newRow(*wrong ? wrong : "empty") << QByteArray(wrong) << 0;
    }
    void patienceComesFromTheEnvironment()
    {
        QFETCH(QByteArray, value);
        QFETCH(int, milliseconds);
        qputenv("CORVANA_PRINT_PATIENCE", value);
        const ServerPatience patience = ServerPatience::fromEnvironment();
        qunsetenv("CORVANA_PRINT_PATIENCE");
        const ServerPatience usual;
        QCOMPARE(patience.answering.count(), milliseconds ? milliseconds : usual.answering.count());
        QCOMPARE(patience.connecting.count(),
                 milliseconds ? milliseconds : usual.connecting.count());
    }
};

QTEST_GUILESS_MAIN(ServerConnectionTest)
#include "server_connection_test.moc"
