#include <optional>

#include <QBuffer>
#include <QElapsedTimer>
#include <QTest>

#include "tests/dialog/server/EndlessServer.h"
#include "tests/dialog/server/ServerScene.h"
#include "tests/dialog/server/WorkerThread.h"
#include "tests/support/cups/CannedServer.h"
#include "tests/support/cups/TestCertificate.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = ServerProblem::Kind;
using State = ServerConnection::File::State;

/// Connections that are encrypted, and to whom.
class ServerEncryptionTest : public ServerFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startScene(); }
    void cleanupTestCase() { m_scene.reset(); }
    void init() { m_scene->anew(); }

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

    void silenceBeforeTheKeysAreChangedIsSaidToBeSilence()
    {
        m_scene->server->setManner(FaultyServer::Manner::NeverAnswers);
        ServerContext context = contextFor(m_scene->server->port(), 1s);
        context.address.encryption = HTTP_ENCRYPTION_ALWAYS;
        ServerConnection connection(context, nullptr);
        QElapsedTimer time;
        time.start();
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::NoAnswer);
        // libcups by itself waits for ten seconds, whatever the patience.
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

    // The head of a record of TLS, and then its bytes one by one.
    void keysThatNeverComeToAnEndAreNotWaitedFor()
    {
        const EndlessServer server(QByteArray::fromHex("1603030fff02"), "x", 20ms);
        ServerContext context = contextFor(server.port(), 1s);
        context.address.encryption = HTTP_ENCRYPTION_ALWAYS;
        ServerConnection connection(context, nullptr);
        QElapsedTimer time;
        time.start();
        QVERIFY(!connection.request(aboutQueue()));
        QVERIFY(connection.problem().mayPass());
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

    void cancelingEndsTheWaitForKeys()
    {
        m_scene->server->setManner(FaultyServer::Manner::NeverAnswers);
        ServerContext context = contextFor(m_scene->server->port(), 1h);
        context.address.encryption = HTTP_ENCRYPTION_ALWAYS;
        CancelFlag canceled{0};
        QElapsedTimer time;
        {
            const WorkerThread worker(
                [&] { ServerConnection(context, &canceled).request(aboutQueue()); });
            QTRY_COMPARE(m_scene->server->acceptedConnections(), 1);
            canceled = 1;
            time.start();
            QTRY_VERIFY_WITH_TIMEOUT(worker.isDone(), 20000);
        }
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

    void itGoesOverToTlsWhenTheServerWantsThat()
    {
        m_scene->server->askForEncryption();
        bool answered = false;
        ServerProblem problem;
        const ServerContext context = contextFor(m_scene->server->port());
        onWorker([&] {
            ServerConnection connection(context, nullptr);
            answered = connection.request(aboutQueue()) != nullptr;
            problem = connection.problem();
        });
        QVERIFY2(answered, qPrintable(problem.text(context.address)));
        QVERIFY(m_scene->server->upgrades() > 0);
    }

    // The server that is known by the first certificate shows the second one.
    void whoeverHasAnotherKeyIsSentNothing_data()
    {
        QTest::addColumn<bool>("hasSameKey");
        QTest::addColumn<int>("until"); // days; 100 is that of the first one
        QTest::addColumn<ServerProblem::Kind>("kind");
        QTest::newRow("renewed") << true << 200 << Kind::None;
        QTest::newRow("renewed for less") << true << 50 << Kind::None;
        QTest::newRow("renewed and expired") << true << -1 << Kind::CertificateInvalid;
        QTest::newRow("replaced by a later one") << false << 200 << Kind::CertificateChanged;
        QTest::newRow("replaced by one of the same date")
            << false << 100 << Kind::CertificateChanged;
        QTest::newRow("replaced by an earlier one") << false << 50 << Kind::CertificateChanged;
    }
    void whoeverHasAnotherKeyIsSentNothing()
    {
        QFETCH(bool, hasSameKey);
        QFETCH(int, until);
        QFETCH(ServerProblem::Kind, kind);
        CupsSettings settings;
        settings.encryption = CupsSettings::Encryption::Always;
        ServerScene scene(settings);
        const ServerContext context = encrypted(scene.server->port());
        const QString host = context.address.host;
        const TestCertificate former({.host = host});
        const TestCertificate next(
            {.host = host, .until = until, .key = hasSameKey ? &former : nullptr});
        scene.show(former);
        for (int i = 0; i < 2; ++i) {
            ServerConnection connection(context, nullptr);
            QVERIFY(connection.request(aboutQueue()));
            QVERIFY(connection.request(aboutQueue()));
        }

        scene.show(next);
        ServerConnection connection(context, nullptr);
        QBuffer document;
        document.setData("secret");
        QVERIFY(document.open(QIODevice::ReadOnly));
        connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {});
        QCOMPARE(connection.problem().kind, kind);
        QCOMPARE(scene.cups.jobs().size(), kind == Kind::None ? 1 : 0);
        QCOMPARE(connection.get("/printers/office.ppd").state,
                 kind == Kind::None ? State::Missing : State::Failed);
        QCOMPARE(connection.problem().kind, kind);

        // The one that was known is so still.
        scene.show(former);
        QVERIFY(connection.request(aboutQueue()));
    }

    void whatIsToBeDoneAboutAnotherKeyIsSaidAndHelps_data()
    {
        QTest::addColumn<bool>("isKnownToLibcups");
        QTest::newRow("known to us") << false;
        QTest::newRow("known to libcups") << true;
    }
    void whatIsToBeDoneAboutAnotherKeyIsSaidAndHelps()
    {
        QFETCH(bool, isKnownToLibcups);
        CupsSettings settings;
        settings.encryption = CupsSettings::Encryption::Always;
        ServerScene scene(settings);
        ServerContext context = encrypted(scene.server->port());
        context.trust = CertificateTrust({.libcups = scene.home.path()});
        const TestCertificate former({});
        if (isKnownToLibcups) {
            QFile file(scene.home.filePath(u"127.0.0.1.crt"_s));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(former.certificate());
        } else {
            scene.show(former);
            ServerConnection connection(context, nullptr);
            QVERIFY(connection.request(aboutQueue()));
        }
        scene.show(TestCertificate({}));
        ServerConnection connection(context, nullptr);
        QVERIFY(!connection.request(aboutQueue()));
        QCOMPARE(connection.problem().kind, Kind::CertificateChanged);
        const QString path = scene.home.filePath(
            isKnownToLibcups ? u"127.0.0.1.crt"_s : u"corvana-print/known-servers"_s);
        const QString line = context.address.argument();
        const QString text = connection.problem().text(context.address);
        QVERIFY2(text.contains(isKnownToLibcups
                                   ? u"remove the file %1."_s.arg(path)
                                   : u"remove the line “%1” from the file %2."_s.arg(line, path)),
                 qPrintable(text));

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().startsWith(line.toUtf8() + ' '), !isKnownToLibcups);
        QVERIFY(file.remove()); // the line is the only one
        QVERIFY(connection.request(aboutQueue()));
    }

    // After a question for a password another connection is made than the one that was found to be
    // good. Nothing is said on it before its key was looked at.
    void whoeverComesInBetweenIsNotReadFrom_data()
    {
        QTest::addColumn<bool>("isGet");
        QTest::addColumn<int>("connectionsBefore");
        for (const int before : {0, 1}) {
            QTest::addRow("request, %d", before) << false << before;
            QTest::addRow("get, %d", before) << true << before;
        }
    }
    void whoeverComesInBetweenIsNotReadFrom()
    {
        QFETCH(bool, isGet);
        QFETCH(int, connectionsBefore);
        CupsSettings settings;
        settings.encryption = CupsSettings::Encryption::Always;
        const ServerScene other(settings);
        settings.directives = "<Location /printers>\nAuthType Basic\nRequire valid-user\n"
                              "Order allow,deny\nAllow all\n</Location>\n";
        const ServerScene scene(settings);
        ServerContext context = encrypted(scene.server->port());
        QVERIFY(ServerConnection(context, nullptr).request(aboutQueue()));
        context.mayAsk = true;
        context.credentials = std::make_shared<CredentialStore>();
        context.credentials->setQuestioner([](const CredentialsQuestion &, const auto &answer) {
            answer(Credentials{u"lisa"_s, u"secret"_s});
        });
        const QString former = other.cups.accessLog(); // of its setting up
        scene.server->setUpstream(other.cups.port(), connectionsBefore);
        ServerProblem problem;
        onWorker([&] {
            ServerConnection connection(context, nullptr);
            if (isGet)
                connection.get("/printers/office.ppd");
            else
                connection.request(aboutQueue(), "/printers/office");
            problem = connection.problem();
        });
        QCOMPARE(problem.kind, Kind::CertificateChanged);
        QCOMPARE(other.cups.accessLog(), former);
    }

    // It comes by another connection.
    void aServerThatWantsEncryptionIsJudgedByItsKeyAsWell()
    {
        ServerScene scene;
        const ServerContext context = contextFor(scene.server->port());
        scene.server->askForEncryption();
        ServerConnection connection(context, nullptr);
        QVERIFY(connection.request(aboutQueue()));
        scene.show(TestCertificate({.host = context.address.host}));
        ServerConnection next(context, nullptr);
        QVERIFY(!next.request(aboutQueue()));
        QCOMPARE(next.problem().kind, Kind::CertificateChanged);
        QCOMPARE(next.get("/printers/office.ppd").state, State::Failed);
        QCOMPARE(next.problem().kind, Kind::CertificateChanged);
    }

private:
    static ServerContext encrypted(quint16 port)
    {
        ServerContext context = contextFor(port);
        context.address.encryption = HTTP_ENCRYPTION_ALWAYS;
        return context;
    }
};

QTEST_GUILESS_MAIN(ServerEncryptionTest)
#include "server_encryption_test.moc"
