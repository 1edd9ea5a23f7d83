#include <thread>

#include <QCoreApplication>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/Client.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString queue = u"office"_s;
constexpr auto format = "application/octet-stream";
constexpr int shortTime = 200; // milliseconds, after which a test gives up waiting for nothing

/// Printed unchanged on a queue without PPD, in several chunks.
QByteArray document()
{
    return QByteArray("0123456789abcdef").repeated(20000);
}

/// Gives up at once when an answer does not come.
void beImpatient(Client &client)
{
    httpSetTimeout(
        client.http(), shortTime / 1000.0, [](http_t *, void *) { return 0; }, nullptr);
}

} // namespace

class FaultyServerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_cups->addRawQueue(queue);
    }

    void cleanupTestCase() { m_cups.reset(); }

    void init() { m_server = std::make_unique<FaultyServer>(m_cups->port()); }

    void cleanup()
    {
        m_server.reset();
        cupsSetPasswordCB2(nullptr, nullptr);
    }

    void itPassesEverythingOn()
    {
        Client client(m_server->server());
        const int id = client.print(queue, document(), format);
        QVERIFY2(id > 0, cupsLastErrorString());
        QCOMPARE(client.queueValue(queue, "printer-name"), queue);
        QTRY_COMPARE(m_cups->job(id).state, IPP_JSTATE_COMPLETED);
        QCOMPARE(m_cups->capture(queue).jobs().last().data, document());
        QCOMPARE(m_server->faultsMade(), 0);
        QCOMPARE(m_server->acceptedConnections(), 1);
        QCOMPARE(m_server->openConnections(), 1);

        const QList<SeenRequest> seen = m_server->requests();
        QCOMPARE(seen.size(), 3);
        QCOMPARE(seen[0].operation, int(IPP_OP_CREATE_JOB));
        QCOMPARE(seen[1].operation, int(IPP_OP_SEND_DOCUMENT));
        QCOMPARE(seen[2].operation, int(IPP_OP_GET_PRINTER_ATTRIBUTES));
        QCOMPARE(seen[1].method, QByteArray("POST"));
        QCOMPARE(seen[1].path, QByteArray("/printers/office"));
        QVERIFY(seen[1].requestId > 0);
        QVERIFY(!seen[1].isAuthorized);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 1);
        QCOMPARE(m_server->count(FaultyServer::anyOperation), 3);
    }

    void aFileIsFetchedThroughIt()
    {
        const QString other = u"withppd"_s;
        QTemporaryDir folder;
        QFile ppd(folder.filePath(u"sample.ppd"_s));
        QVERIFY(ppd.open(QIODevice::WriteOnly));
        ppd.write(samplePpd(5));
        ppd.close();
        m_cups->addQueue(other, ppd.fileName());
        Client client(m_server->server());
        // The library writes only to a file that exists.
        QFile fetched(folder.filePath(u"fetched.ppd"_s));
        QVERIFY(fetched.open(QIODevice::ReadWrite));
        QCOMPARE(cupsGetFile(client.http(), "/printers/withppd.ppd",
                             QFile::encodeName(fetched.fileName()).constData()),
                 HTTP_STATUS_OK);
        QVERIFY(fetched.readAll().startsWith("*PPD-Adobe"));
        QCOMPARE(m_server->requests().value(0).method, QByteArray("GET"));
        QCOMPARE(m_server->requests().value(0).operation, 0);
        m_cups->removeQueue(other);
    }

    void aClosedPortRefusesAndOpensAgain()
    {
        const QString server = m_server->server();
        m_server->setManner(FaultyServer::Manner::Refuses);
        QVERIFY(!Client(server).isConnected());
        QCOMPARE(m_server->acceptedConnections(), 0);
        m_server->setManner(FaultyServer::Manner::Passes);
        QCOMPARE(m_server->server(), server);
        QCOMPARE(Client(server).ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
    }

    void howItAnswersInOtherManners_data()
    {
        QTest::addColumn<FaultyServer::Manner>("manner");
        QTest::newRow("never") << FaultyServer::Manner::NeverAnswers;
        QTest::newRow("garbage") << FaultyServer::Manner::Babbles;
        QTest::newRow("hangs up") << FaultyServer::Manner::HangsUp;
    }
    void howItAnswersInOtherManners()
    {
        QFETCH(FaultyServer::Manner, manner);
        m_server->setManner(manner);
        Client client(m_server->server());
        QVERIFY(client.isConnected());
        beImpatient(client);
        QVERIFY(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue) > IPP_STATUS_OK_EVENTS_COMPLETE);
        QVERIFY(m_server->acceptedConnections() > 0);
        QVERIFY(m_server->requests().isEmpty());
    }

    void onlyAServerThatNeverAnswersKeepsTheConnection()
    {
        m_server->setManner(FaultyServer::Manner::NeverAnswers);
        Client silent(m_server->server());
        QTRY_COMPARE(m_server->openConnections(), 1);
        QVERIFY(httpWait(silent.http(), shortTime) == 0);
        m_server->dropConnections();
        QCOMPARE(m_server->openConnections(), 0);

        m_server->setManner(FaultyServer::Manner::HangsUp);
        Client closed(m_server->server());
        QTRY_COMPARE(m_server->acceptedConnections(), 2);
        QTRY_COMPARE(m_server->openConnections(), 0);
    }

    void garbageIsWhatTheClientGets()
    {
        m_server->setManner(FaultyServer::Manner::Babbles);
        Client client(m_server->server());
        char bytes[64] = "";
        httpWrite2(client.http(), "GET", 3);
        httpFlushWrite(client.http());
        QVERIFY(httpWait(client.http(), 5000));
        QVERIFY(httpGets(bytes, sizeof bytes, client.http()));
        QVERIFY(QByteArray(bytes).startsWith("Fresh fish"));
    }

    void theConnectionBreaksInTheMiddleOfADocument_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::newRow("before its first byte") << qint64(0);
        QTest::newRow("in its first chunk") << qint64(1000);
        QTest::newRow("in a later one") << qint64(150001);
    }
    void theConnectionBreaksInTheMiddleOfADocument()
    {
        QFETCH(qint64, bytes);
        m_server->closeAfterDocumentBytes(bytes);
        Client client(m_server->server());
        const int before = m_cups->jobs(queue).size();
        const int captured = m_cups->capture(queue).jobs().size();
        QCOMPARE(client.print(queue, document(), format), 0);
        QCOMPARE(m_server->faultsMade(), 1);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 1);
        QTRY_COMPARE(m_server->openConnections(), 0);
        QCOMPARE(m_cups->jobs(queue).size(), before + 1);
        QCOMPARE(m_cups->capture(queue).jobs().size(), captured);
    }

    void theServerBehindGetsExactlyWhatCameBeforeTheBreak()
    {
        QTcpServer upstream;
        QVERIFY(upstream.listen(QHostAddress(QHostAddress::LocalHost)));
        FaultyServer server(upstream.serverPort());
        server.closeAfterDocumentBytes(7, IPP_OP_PRINT_JOB);
        const QByteArray attributes("\x02\0\0\x02\0\0\0\x05\x01\x47\0\x01"
                                    "a\0\x02"
                                    "\x03\x03\x03",
                                    18);
        QTcpSocket client;
        client.connectToHost(QHostAddress(QHostAddress::LocalHost), server.port());
        // The end of the attributes and the place of the break lie in the middle of chunks.
        client.write("POST / HTTP/1.1\r\nContent-Type: application/ipp\r\n"
                     "Transfer-Encoding: chunked\r\n\r\n14\r\n" +
                     attributes + "01\r\n3\r\n234\r\n6\r\n56789a\r\n0\r\n\r\n");
        QTRY_COMPARE(client.state(), QAbstractSocket::UnconnectedState);
        QTRY_VERIFY(upstream.hasPendingConnections());
        QTcpSocket *received = upstream.nextPendingConnection();
        QTRY_COMPARE(received->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(received->readAll().endsWith(attributes + "01\r\n3\r\n234\r\n6\r\n56"));
        QCOMPARE(server.requests().value(0).requestId, 5);
    }

    void aFaultMeetsAsManyRequestsAsItShould()
    {
        m_server->closeAfterDocumentBytes(10, IPP_OP_SEND_DOCUMENT, 1);
        QCOMPARE(Client(m_server->server()).print(queue, document(), format), 0);
        QVERIFY(Client(m_server->server()).print(queue, document(), format) > 0);
        m_server->answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_CREATE_JOB);
        QCOMPARE(Client(m_server->server()).print(queue, document(), format), 0);
        QCOMPARE(Client(m_server->server()).print(queue, document(), format), 0);
        m_server->clearFaults();
        QVERIFY(Client(m_server->server()).print(queue, document(), format) > 0);
    }

    void theServerHasDoneWhatItsLostAnswerSays_data()
    {
        QTest::addColumn<bool>("closes");
        QTest::newRow("the answer never comes") << false;
        QTest::newRow("the connection closes instead") << true;
    }
    void theServerHasDoneWhatItsLostAnswerSays()
    {
        QFETCH(bool, closes);
        if (closes)
            m_server->closeBeforeResponse(IPP_OP_SEND_DOCUMENT);
        else
            m_server->swallowResponse(IPP_OP_SEND_DOCUMENT);
        Client client(m_server->server());
        beImpatient(client);
        QCOMPARE(client.print(queue, document(), format), 0);
        QTRY_COMPARE(m_server->faultsMade(), 1);
        const KnownJob job = m_cups->jobs(queue).last();
        QTRY_COMPARE(m_cups->job(job.id).state, IPP_JSTATE_COMPLETED);
        QCOMPARE(m_cups->capture(queue).jobs().last().data, document());
    }

    void aDelayedAnswerComesWhenItIsReleased()
    {
        m_server->delayResponse(IPP_OP_CREATE_JOB);
        std::atomic<int> id = -1;
        std::thread printing([&] {
            Client client(m_server->server());
            id = client.print(queue, document(), format);
        });
        const auto end = qScopeGuard([&] {
            m_server->dropConnections();
            printing.join();
        });
        QTRY_COMPARE(m_server->faultsMade(), 1);
        QCOMPARE(m_server->count(IPP_OP_SEND_DOCUMENT), 0);
        QCOMPARE(id.load(), -1);
        m_server->releaseResponses();
        QTRY_VERIFY(id > 0);
    }

    void aPasswordIsAskedForUntilTheRightOneComes_data()
    {
        QTest::addColumn<int>("operation");
        QTest::newRow("for one operation") << int(IPP_OP_GET_PRINTER_ATTRIBUTES);
        QTest::newRow("for everything") << FaultyServer::anyOperation;
    }
    void aPasswordIsAskedForUntilTheRightOneComes()
    {
        QFETCH(int, operation);
        m_server->askForPassword(u"lisa"_s, u"sesame"_s, operation);
        static int questions;
        questions = 0;
        cupsSetPasswordCB2(
            [](const char *, http_t *, const char *, const char *, void *) -> const char * {
                cupsSetUser("lisa");
                return ++questions == 1 ? "guess" : "sesame";
            },
            nullptr);
        Client client(m_server->server());
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
        cupsSetUser(nullptr);
        QCOMPARE(questions, 2);
        // The library tries a wrong password once more before it asks again.
        const QList<SeenRequest> seen = m_server->requests();
        QVERIFY(seen.size() >= 3);
        QCOMPARE(m_server->passwordQuestions(), seen.size() - 1);
        QVERIFY(!seen.first().isAuthorized);
        for (const SeenRequest &wrong : seen.mid(1, seen.size() - 2))
            QCOMPARE(wrong.credentials, QByteArray("lisa:guess"));
        QVERIFY(seen.last().isAuthorized);
        QCOMPARE(seen.last().credentials, QByteArray("lisa:sesame"));
        QCOMPARE(seen.last().operation, int(IPP_OP_GET_PRINTER_ATTRIBUTES));
    }

    void itAnswersAnHttpStatusItself()
    {
        m_server->answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_CREATE_JOB);
        Client client(m_server->server());
        const int before = m_cups->jobs(queue).size();
        QCOMPARE(client.print(queue, document(), format), 0);
        QCOMPARE(client.status(), IPP_STATUS_ERROR_FORBIDDEN);
        QCOMPARE(m_cups->jobs(queue).size(), before);
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
    }

    void itAnswersAnIppStatusItself()
    {
        m_server->answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_GET_PRINTER_ATTRIBUTES, 1);
        Client client(m_server->server());
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_ERROR_BUSY);
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
        QCOMPARE(m_server->acceptedConnections(), 1);
    }

    void anAnswerComesInPieces()
    {
        m_server->answerInPieces(IPP_OP_GET_PRINTER_ATTRIBUTES, 1000, std::chrono::milliseconds(1),
                                 3);
        Client client(m_server->server());
        QCOMPARE(client.queueValue(queue, "printer-info"), QString(1000, QLatin1Char('x')));
        m_server->clearFaults();
        QCOMPARE(client.queueValue(queue, "printer-name"), queue);
        QCOMPARE(m_server->acceptedConnections(), 1);
    }

    void anAnswerWithoutEndGoesOnUntilTheClientGoes_data()
    {
        QTest::addColumn<int>("pause"); // milliseconds
        QTest::newRow("as fast as it is taken") << 0;
        QTest::newRow("now and then") << 1;
    }
    void anAnswerWithoutEndGoesOnUntilTheClientGoes()
    {
        QFETCH(int, pause);
        constexpr qint64 kEnough = 20000;
        m_server->answerInPieces(FaultyServer::anyOperation, 100, std::chrono::milliseconds(pause));
        QTcpSocket client;
        client.connectToHost(QHostAddress(QHostAddress::LocalHost), m_server->port());
        client.write("POST / HTTP/1.1\r\nContent-Length: 0\r\n\r\n");
        QTRY_VERIFY(client.bytesAvailable() > kEnough);
        QCOMPARE(m_server->openConnections(), 1);
        client.abort();
        QTRY_COMPARE(m_server->openConnections(), 0);
    }

    void encryptionIsAskedForAndUsed()
    {
        m_server->askForEncryption();
        Client client(m_server->server());
        QVERIFY(!httpIsEncrypted(client.http()));
        QCOMPARE(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), IPP_STATUS_OK);
        QVERIFY(httpIsEncrypted(client.http()));
        QCOMPARE(m_server->faultsMade(), 1);
        QCOMPARE(m_server->upgrades(), 1);
    }

    void aServerThatIsNotThereClosesTheConnection()
    {
        const LoopbackPort nobody;
        FaultyServer server(nobody.number());
        Client client(server.server());
        QVERIFY(client.isConnected());
        beImpatient(client);
        QVERIFY(client.ask(IPP_OP_GET_PRINTER_ATTRIBUTES, queue) > IPP_STATUS_OK_EVENTS_COMPLETE);
    }

private:
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_server;
};

QTEST_GUILESS_MAIN(FaultyServerTest)
#include "faulty_server_test.moc"
