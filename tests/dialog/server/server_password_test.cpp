#include <mutex>
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

namespace {

/// What is logged while this lives, from whatever thread.
class Warnings
{
public:
    Warnings() : m_former(qInstallMessageHandler(&Warnings::take)) { texts().clear(); }
    ~Warnings() { qInstallMessageHandler(m_former); }
    Q_DISABLE_COPY_MOVE(Warnings)

    QStringList said() const
    {
        const std::scoped_lock lock(mutex());
        return texts();
    }

private:
    static std::mutex &mutex()
    {
        static std::mutex guards;
        return guards;
    }
    static QStringList &texts()
    {
        static QStringList all;
        return all;
    }
    static void take(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        const std::scoped_lock lock(mutex());
        if (type == QtWarningMsg)
            texts() += text;
    }

    QtMessageHandler m_former;
};

} // namespace

/// Who is asked for a password, how often, and what becomes of it.
class ServerPasswordTest : public ServerFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startScene(); }
    void cleanupTestCase() { m_scene.reset(); }
    void init() { m_scene->anew(); }

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
        m_scene->server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_scene->server->port());
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
            if (const auto known = context.credentials->known(context.address.argument()))
                context.credentials->forget(context.address.argument(), *known);
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

    void aUserWhoMayNotIsForgottenSoThatAnotherCanBeAskedFor()
    {
        const CannedServer server([](const CannedRequest &request) {
            if (request.head.field("Authorization").isEmpty())
                return httpAnswer(401, {}, "WWW-Authenticate: Basic realm=\"CUPS\"\r\n");
            return httpAnswer(403);
        });
        ServerContext context = contextFor(server.port());
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        int asked = 0;
        context.credentials->setQuestioner([&](const CredentialsQuestion &, const auto &answer) {
            ++asked;
            answer(Credentials{u"lisa"_s, u"secret"_s});
        });
        for (int tries = 1; tries <= 2; ++tries) {
            ServerProblem problem;
            onWorker([&] {
                ServerConnection connection(context, nullptr);
                connection.request(aboutQueue());
                problem = connection.problem();
            });
            QCOMPARE(problem.kind, Kind::Forbidden);
            QVERIFY(problem.anotherUserMay);
            QCOMPARE(asked, tries);
        }
    }

    void whatTheDeviceWasGivenIsTriedFirst_data()
    {
        QTest::addColumn<QString>("forDevice");
        QTest::addColumn<int>("questions");
        QTest::newRow("the same") << u"secret"_s << 0;
        QTest::newRow("another one") << u"other"_s << 1;
    }
    void whatTheDeviceWasGivenIsTriedFirst()
    {
        QFETCH(QString, forDevice);
        QFETCH(int, questions);
        m_scene->server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_scene->server->port());
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        context.credentials->setQuestioner(
            [&](const CredentialsQuestion &question, const auto &answer) {
                asked += question.forDevice ? 0 : 1;
                answer(Credentials{u"lisa"_s, question.forDevice ? forDevice : u"secret"_s});
            });
        const CredentialRealm device(context.address.argument(), u"ipp://localhost/printers/a"_s);
        ServerProblem problem;
        onWorker([&] {
            CredentialsQuestion question;
            question.forDevice = true;
            context.credentials->ask(device, question, [] { return false; });
            ServerConnection connection(context, nullptr);
            connection.request(aboutQueue());
            problem = connection.problem();
        });
        QCOMPARE(problem.kind, Kind::None);
        QCOMPARE(asked, questions);
    }

    // What is asked aside, such as a subscription, may be for others than this user.
    void aRefusalOfWhatIsAskedAsideForgetsNothing_data()
    {
        QTest::addColumn<int>("status");
        QTest::newRow("not allowed") << 403;
        QTest::newRow("another password") << 401;
    }
    void aRefusalOfWhatIsAskedAsideForgetsNothing()
    {
        QFETCH(int, status);
        const CannedServer server([status](const CannedRequest &request) {
            if (request.head.field("Authorization").isEmpty())
                return httpAnswer(401, {}, "WWW-Authenticate: Basic realm=\"CUPS\"\r\n");
            return httpAnswer(status, {}, "WWW-Authenticate: Basic realm=\"CUPS\"\r\n");
        });
        ServerContext context = contextFor(server.port());
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        context.credentials->giveInAdvance({u"lisa"_s, u"secret"_s});
        for (const bool aside : {true, false}) {
            onWorker([&] {
                ServerConnection connection(context, nullptr);
                std::optional<ServerConnection::Aside> keeping;
                if (aside)
                    keeping.emplace(connection);
                connection.request(aboutQueue());
            });
            QCOMPARE(context.credentials->known(context.address.argument()).has_value(), aside);
        }
    }

    void aPasswordThatNobodyWasAskedForIsNotSentInPlainWithoutAWord_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<QByteArray>("scheme");
        QTest::addColumn<bool>("inAdvance");
        QTest::addColumn<int>("warnings");
        // It leads here as well, and says as little of that as any name in the network.
        const QString elsewhere = u"0.0.0.0"_s;
        const QByteArray basic = "Basic realm=\"CUPS\"";
        QTest::newRow("to another machine") << elsewhere << basic << true << 1;
        QTest::newRow("to this machine") << u"127.0.0.1"_s << basic << true << 0;
        QTest::newRow("the user was asked") << elsewhere << basic << false << 0;
        QTest::newRow("a digest of it")
            << elsewhere << QByteArray("Digest realm=\"CUPS\", nonce=\"12345\"") << true << 0;
    }
    void aPasswordThatNobodyWasAskedForIsNotSentInPlainWithoutAWord()
    {
        QFETCH(QString, host);
        QFETCH(QByteArray, scheme);
        QFETCH(bool, inAdvance);
        const CannedServer server([scheme](const CannedRequest &request) {
            if (request.head.field("Authorization").isEmpty())
                return httpAnswer(401, {}, "WWW-Authenticate: " + scheme + "\r\n");
            return httpAnswer(404, {});
        });
        ServerContext context = contextFor(server.port());
        context.address.host = host;
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        const Credentials lisa{u"lisa"_s, u"secret"_s};
        if (inAdvance)
            context.credentials->giveInAdvance(lisa);
        context.credentials->setQuestioner(
            [&](const CredentialsQuestion &, const auto &answer) { answer(lisa); });
        const Warnings warnings;
        for (int connections = 0; connections < 2; ++connections) {
            onWorker([&] {
                ServerConnection connection(context, nullptr);
                connection.request(aboutQueue());
            });
        }
        const QStringList said = warnings.said().filter(u"without encryption"_s);
        QTEST(int(said.size()), "warnings");
        QVERIFY(!said.join(u' ').contains(u"secret"_s));
    }

    void nobodyIsAskedForWhatIsAskedAside()
    {
        m_scene->server->askForPassword(u"lisa"_s, u"secret"_s);
        ServerContext context = contextFor(m_scene->server->port());
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        int asked = 0;
        context.credentials->setQuestioner([&](const CredentialsQuestion &, const auto &answer) {
            ++asked;
            answer(Credentials{u"lisa"_s, u"secret"_s});
        });
        ServerProblem problem;
        onWorker([&] {
            ServerConnection connection(context, nullptr);
            {
                const ServerConnection::Aside aside(connection);
                connection.request(aboutQueue());
            }
            problem = connection.problem();
        });
        QCOMPARE(problem.kind, Kind::PasswordNeeded);
        QCOMPARE(asked, 0);
    }

    void whatIsKnownIsUsedByTheNextConnectionWithoutAQuestion()
    {
        m_scene->server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_scene->server->port());
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

    // Which matters to whoever wonders whether to send it again.
    // Nobody can have given a wrong password who was not asked for one.
    void aLogInThatNobodyKnowsIsNoWrongPassword_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::newRow("of no kind") << QByteArray();
        QTest::newRow("of another kind") << QByteArray("WWW-Authenticate: Riddle of=sphinx\r\n");
    }
    void aLogInThatNobodyKnowsIsNoWrongPassword()
    {
        QFETCH(QByteArray, fields);
        const CannedServer server(
            [&](const CannedRequest &) { return httpAnswer(401, {}, fields); });
        ServerContext context = contextFor(server.port());
        context.mayAsk = true;
        ServerConnection connection(context, nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::LogInUnknown);
        QVERIFY(!connection.problem().text(context.address).contains(u"password"_s));
        QCOMPARE(connection.problem().detail.contains(u"Riddle"_s), !fields.isEmpty());
    }

    void aDocumentThatWasRefusedWasNotSent()
    {
        const CannedServer server([](const CannedRequest &) {
            return httpAnswer(401, {}, "WWW-Authenticate: Basic realm=\"Test\"\r\n");
        });
        QBuffer document;
        document.setData(QByteArray(100000, 'x'));
        QVERIFY(document.open(QIODevice::ReadOnly));
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        QCOMPARE(connection.problem().kind, Kind::PasswordNeeded);
        QCOMPARE(server.requests().constFirst().document().size(), document.size());
        QVERIFY(!connection.documentWasSent());
    }

    void withoutAStoreNobodyIsAsked()
    {
        m_scene->server->askForPassword(u"lisa"_s, u"secret"_s);
        ServerContext context = contextFor(m_scene->server->port());
        context.mayAsk = true;
        ServerConnection connection(context, nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::PasswordNeeded);
    }

    void aSecondConnectionOfAThreadDoesNotTakeTheQuestionsOfTheFirst()
    {
        m_scene->server->askForPassword(u"lisa"_s, u"secret"_s);
        int asked = 0;
        ServerContext context = contextFor(m_scene->server->port());
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
};

QTEST_GUILESS_MAIN(ServerPasswordTest)
#include "server_password_test.moc"
