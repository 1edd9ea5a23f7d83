#include <array>

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/server/ServerConnection.h"
#include "tests/dialog/server/WorkerThread.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/CannedServer.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = ServerProblem::Kind;
using State = ServerConnection::File::State;

namespace {

const QString kQueue = u"office"_s;

ServerContext contextFor(quint16 port, std::chrono::milliseconds patience = 10s)
{
    ServerContext context;
    context.address = {u"127.0.0.1"_s, port, HTTP_ENCRYPTION_IF_REQUESTED};
    context.patience = {patience, patience};
    return context;
}

IppMessage aboutQueue(ipp_op_t operation = IPP_OP_GET_PRINTER_ATTRIBUTES,
                      const QString &queue = kQueue)
{
    return newIppRequest(operation, queueUri(queue));
}

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

Q_DECLARE_METATYPE(FaultyServer::Manner)
Q_DECLARE_METATYPE(ServerProblem::Kind)

/// One connection, against servers in every manner.
class ServerConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Certificates are remembered there.
        qputenv("HOME", QFile::encodeName(m_home.path()));
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_cups->addRawQueue(kQueue);
    }
    void cleanupTestCase() { m_cups.reset(); }
    void init() { m_server = std::make_unique<FaultyServer>(m_cups->port()); }
    void cleanup() { m_server.reset(); }

    void aRequestIsAnsweredOnOneConnection()
    {
        ServerConnection connection(contextFor(m_server->port()), nullptr);
        for (int i = 0; i < 3; ++i) {
            const IppMessage answer = connection.request(aboutQueue());
            QVERIFY(answer);
            QVERIFY(!connection.problem());
            QCOMPARE(ippText(ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME)), kQueue);
        }
        QCOMPARE(m_server->acceptedConnections(), 1);
    }

    void whatGoesWrongIsSaid_data()
    {
        QTest::addColumn<FaultyServer::Manner>("manner");
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::addColumn<bool>("wasSent");
        using Manner = FaultyServer::Manner;
        QTest::newRow("never answers") << Manner::NeverAnswers << Kind::NoAnswer << true;
        QTest::newRow("hangs up") << Manner::HangsUp << Kind::ConnectionLost << true;
        QTest::newRow("answers garbage") << Manner::Babbles << Kind::NotUnderstood << true;
        QTest::newRow("refuses") << Manner::Refuses << Kind::Unreachable << false;
    }
    void whatGoesWrongIsSaid()
    {
        QFETCH(FaultyServer::Manner, manner);
        QFETCH(ServerProblem::Kind, kind);
        QFETCH(bool, wasSent);
        m_server->setManner(manner);
        ServerConnection connection(contextFor(m_server->port(), 3s), nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, kind);
        QVERIFY(connection.problem().mayPass());
        QCOMPARE(connection.requestWasSent(), wasSent);
        QCOMPARE(connection.get("/printers/office.ppd").state, State::Failed);
        QCOMPARE(connection.problem().kind, kind);

        // The same object does its work as soon as the server does.
        m_server->setManner(FaultyServer::Manner::Passes);
        QVERIFY(connection.request(aboutQueue()));
        QVERIFY(!connection.problem());
    }

    void aConnectionThatWasIdleForTooLongIsMadeAnew()
    {
        ServerConnection connection(contextFor(m_server->port()), nullptr);
        QVERIFY(connection.request(aboutQueue()));
        m_server->dropConnections();
        QVERIFY2(connection.request(aboutQueue()),
                 qPrintable(connection.problem().text(connection.context().address)));
        m_server->dropConnections();
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
            m_server->answerHttp(http, IPP_OP_GET_PRINTER_ATTRIBUTES);
        else
            m_server->answerIpp(static_cast<ipp_status_t>(ipp), IPP_OP_GET_PRINTER_ATTRIBUTES);
        ServerConnection connection(contextFor(m_server->port()), nullptr);
        QCOMPARE(connection.request(aboutQueue()) == nullptr, kind != Kind::None);
        QCOMPARE(connection.problem().kind, kind);
        QCOMPARE(int(connection.problem().status), kind == Kind::None ? 0 : ipp);
        QCOMPARE(m_server->faultsMade(), 1); // and is not asked for again
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

    void cancelingEndsEveryWait_data()
    {
        QTest::addColumn<bool>("isGet");
        QTest::newRow("request") << false;
        QTest::newRow("get") << true;
    }
    void cancelingEndsEveryWait()
    {
        QFETCH(bool, isGet);
        m_server->setManner(FaultyServer::Manner::NeverAnswers);
        CancelFlag canceled{0};
        ServerProblem problem;
        {
            const WorkerThread worker([&] {
                ServerConnection connection(contextFor(m_server->port(), 1h), &canceled);
                if (isGet)
                    connection.get("/printers/office.ppd");
                else
                    connection.request(aboutQueue());
                problem = connection.problem();
            });
            QTRY_COMPARE(m_server->openConnections(), 1);
            canceled = 1;
            QTRY_VERIFY(worker.isDone());
        }
        QCOMPARE(problem.kind, Kind::Canceled);
        QVERIFY(!problem.mayPass());
    }

    void whatIsCanceledAlreadyAsksNobody()
    {
        CancelFlag canceled{1};
        ServerConnection connection(contextFor(m_server->port()), &canceled);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::Canceled);
        QCOMPARE(connection.get("/").state, State::Failed);
        QCOMPARE(connection.problem().kind, Kind::Canceled);
        QCOMPARE(m_server->acceptedConnections(), 0);
    }

    void aPasswordIsAskedForOnce_data()
    {
        QTest::addColumn<bool>("mayAsk");
        QTest::addColumn<bool>("answers");
        QTest::addColumn<QString>("password");
        QTest::addColumn<int>("questions");
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::newRow("right") << true << true << u"secret"_s << 1 << Kind::None;
        QTest::newRow("wrong") << true << true << u"guess"_s << 1 << Kind::PasswordRefused;
        QTest::newRow("not given") << true << false << QString() << 1 << Kind::PasswordCanceled;
        QTest::newRow("in the background")
            << false << true << u"secret"_s << 0 << Kind::PasswordNeeded;
    }
    void aPasswordIsAskedForOnce()
    {
        QFETCH(bool, mayAsk);
        QFETCH(bool, answers);
        QFETCH(QString, password);
        QFETCH(int, questions);
        QFETCH(ServerProblem::Kind, kind);
        m_server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_server->port());
        context.mayAsk = mayAsk;
        context.credentials = std::make_shared<CredentialStore>();
        context.credentials->setQuestioner(
            [&](const CredentialsQuestion &question, const auto &answer) {
                ++asked;
                QCOMPARE(question.server, context.address);
                QVERIFY(!question.forDevice);
                answer(answers ? std::optional(Credentials{u"lisa"_s, password}) : std::nullopt);
            });
        const auto bothWays = [&](const std::function<void(ServerConnection &)> &operation) {
            asked = 0;
            context.credentials->forget(context.address.argument());
            ServerProblem problem;
            onWorker([&] {
                ServerConnection connection(context, nullptr);
                operation(connection);
                problem = connection.problem();
            });
            QCOMPARE(problem.kind, kind);
            QCOMPARE(asked, questions);
            // What was wrong is not tried again; what was right is not asked again.
            QCOMPARE(context.credentials->known(context.address.argument()).has_value(),
                     kind == Kind::None);
        };
        bothWays([](ServerConnection &connection) { connection.request(aboutQueue()); });
        bothWays([](ServerConnection &connection) { connection.get("/printers/office.ppd"); });
        bothWays([](ServerConnection &connection) {
            QBuffer document;
            document.setData(QByteArray(100000, 'x'));
            document.open(QIODevice::ReadOnly);
            connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {});
        });
    }

    void whatIsKnownIsUsedByTheNextConnectionWithoutAQuestion()
    {
        m_server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_server->port());
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        context.credentials->setQuestioner([&](const CredentialsQuestion &, const auto &answer) {
            ++asked;
            answer(Credentials{u"lisa"_s, u"secret"_s});
        });
        for (int i = 0; i < 3; ++i) {
            onWorker([&] {
                ServerConnection connection(context, nullptr);
                if (!connection.request(aboutQueue()) || !connection.request(aboutQueue()))
                    QTest::qFail("refused", __FILE__, __LINE__);
            });
        }
        QCOMPARE(asked, 1);
        // The background may use what is known.
        context.mayAsk = false;
        onWorker([&] {
            ServerConnection connection(context, nullptr);
            if (!connection.request(aboutQueue()))
                QTest::qFail("refused", __FILE__, __LINE__);
        });
        QCOMPARE(asked, 1);
    }

    void withoutAStoreNobodyIsAsked()
    {
        m_server->askForPassword(u"lisa"_s, u"secret"_s);
        ServerContext context = contextFor(m_server->port());
        context.mayAsk = true;
        ServerConnection connection(context, nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::PasswordNeeded);
    }

    void aSecondConnectionOfAThreadDoesNotTakeTheQuestionsOfTheFirst()
    {
        m_server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_server->port());
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        context.credentials->setQuestioner([&](const CredentialsQuestion &, const auto &answer) {
            ++asked;
            answer(std::nullopt);
        });
        ServerProblem problem;
        onWorker([&] {
            ServerConnection first(context, nullptr);
            std::make_unique<ServerConnection>(context, nullptr).reset();
            first.request(aboutQueue());
            problem = first.problem();
        });
        QCOMPARE(problem.kind, Kind::PasswordCanceled);
        QCOMPARE(asked, 1);
    }

    void encryptionThatCannotBeMadeIsNotGoneWithout_data()
    {
        QTest::addColumn<bool>("isGet");
        QTest::newRow("request") << false;
        QTest::newRow("get") << true;
    }
    void encryptionThatCannotBeMadeIsNotGoneWithout()
    {
        QFETCH(bool, isGet);
        const CannedServer server([&](const CannedRequest &) {
            return httpAnswer(426, {}, "Connection: Upgrade\r\nUpgrade: TLS/1.2,HTTP/1.1\r\n");
        });
        ServerConnection connection(contextFor(server.port(), 2s), nullptr);
        if (isGet)
            QCOMPARE(connection.get("/printers/a.ppd").state, State::Failed);
        else
            QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::EncryptionMissing);
        QVERIFY(server.requests().size() < 10);
    }

    void itGoesOverToTlsWhenTheServerWantsThat()
    {
        m_server->askForEncryption();
        bool answered = false;
        ServerProblem problem;
        const ServerContext context = contextFor(m_server->port());
        onWorker([&] {
            ServerConnection connection(context, nullptr);
            answered = connection.request(aboutQueue()) != nullptr;
            problem = connection.problem();
        });
        QVERIFY2(answered, qPrintable(problem.text(context.address)));
        QVERIFY(m_server->upgrades() > 0);
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
            m_server->closeAfterDocumentBytes(100000, IPP_OP_PRINT_JOB);
        else
            m_server->closeBeforeResponse(IPP_OP_PRINT_JOB);
        ServerConnection connection(contextFor(m_server->port()), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        QCOMPARE(connection.problem().kind, Kind::ConnectionLost);
        QCOMPARE(connection.documentWasSent(), !beforeTheEnd);
        // No second copy by itself.
        QCOMPARE(m_server->count(IPP_OP_PRINT_JOB), 1);
    }

    void aDocumentThatCannotBeReadIsSaid()
    {
        BrokenDevice document;
        QVERIFY(document.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
        ServerConnection connection(contextFor(m_server->port()), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        QVERIFY(connection.problem());
        QVERIFY(connection.problem().detail.contains(u"the disk is broken"_s));
        QVERIFY(!connection.documentWasSent());
        QVERIFY(connection.request(aboutQueue()));
    }

    void aFileIsFetchedIfItHasChanged()
    {
        const QTemporaryDir folder;
        QFile ppd(folder.filePath(u"sample.ppd"_s));
        QVERIFY(ppd.open(QIODevice::WriteOnly));
        ppd.write(samplePpd(5));
        ppd.close();
        m_cups->addQueue(u"withppd"_s, ppd.fileName());
        ServerConnection connection(contextFor(m_server->port()), nullptr);
        const auto file = connection.get("/printers/withppd.ppd");
        QCOMPARE(file.state, State::Read);
        QVERIFY(file.content.startsWith("*PPD-Adobe"));
        QVERIFY(file.lastModified > 0);

        const auto again = connection.get("/printers/withppd.ppd", file.lastModified);
        QCOMPARE(again.state, State::Unchanged);
        QCOMPARE(again.lastModified, file.lastModified);
        QVERIFY(again.content.isEmpty());

        const auto older = connection.get("/printers/withppd.ppd", file.lastModified - 100);
        QCOMPARE(older.state, State::Read);
        QCOMPARE(older.content, file.content);
        m_cups->removeQueue(u"withppd"_s);

        QCOMPARE(connection.get("/printers/withppd.ppd", file.lastModified).state, State::Missing);
        QVERIFY(!connection.problem());
    }

    void answersToAGetAreToldApart_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<State>("state");
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::newRow("304") << 304 << State::Unchanged << Kind::None;
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
        QCOMPARE(connection.get("/printers/a.ppd", 1000000000).state, state);
        QCOMPARE(connection.problem().kind, kind);
        QCOMPARE(server.requests().constFirst().head.field("If-Modified-Since"),
                 QByteArray("Sun, 09 Sep 2001 01:46:40 GMT"));
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
        QCOMPARE(connection.problem().kind, Kind::NotUnderstood);
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

private:
    QTemporaryDir m_home;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_server;
};

QTEST_GUILESS_MAIN(ServerConnectionTest)
#include "server_connection_test.moc"
