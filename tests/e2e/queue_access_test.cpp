#include <functional>
#include <optional>

#include <QDir>
#include <QFile>
#include <QTest>

#include <cups/cups.h>
#include <unistd.h>

#include "tests/e2e/QueueScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using States = QList<int>;

const Credentials kRight{u"lisa"_s, u"right"_s};
const Credentials kWrong{u"lisa"_s, u"wrong"_s};

CupsSettings onlyTls()
{
    CupsSettings settings;
    settings.encryption = CupsSettings::Encryption::Always;
    return settings;
}

} // namespace

/// Print servers and printers that want to know who prints, and those that want to be spoken to in
/// secret: how often somebody is asked, and what is said.
class QueueAccessTest : public QueueFixture
{
    Q_OBJECT

private:
    static void verifyPrinted(QueueScene &scene, int job)
    {
        QVERIFY(scene.window->waitForTheEnd());
        QVERIFY2(!scene.window->dialog().isVisible(), qPrintable(scene.window->message()));
        QVERIFY(matches(scene.window->dialog().report(), kPrintedAs.arg(job)));
        QCOMPARE(scene.cups.job(job).state, IPP_JSTATE_COMPLETED);
    }

    static void verifyFailed(QueueScene &scene, const QString &says)
    {
        QVERIFY(scene.window->waitForTheEnd());
        QVERIFY2(matches(scene.window->message(), says), qPrintable(scene.window->message()));
        QVERIFY(scene.window->dialog().isVisible());
        QCOMPARE(scene.window->dialog().report(), QString());
    }

private Q_SLOTS:
    void initTestCase() { makeFolders(); }

    void cleanup() { cupsSetEncryption(HTTP_ENCRYPTION_IF_REQUESTED); }

    void theServerAsksOnceAndIsAnswered_data()
    {
        QTest::addColumn<int>("operation");
        QTest::newRow("when the job is made") << int(IPP_OP_CREATE_JOB);
        QTest::newRow("when the document is sent") << int(IPP_OP_SEND_DOCUMENT);
        QTest::newRow("when the job is followed") << int(IPP_OP_GET_JOB_ATTRIBUTES);
    }
    void theServerAsksOnceAndIsAnswered()
    {
        QFETCH(int, operation);
        QueueScene scene;
        open(scene);
        scene.between.askForPassword(kRight.user, kRight.password, operation);
        scene.window->logins().answer = kRight;
        QVERIFY(scene.window->press(u"print"_s));
        verifyPrinted(scene, 1);
        QCOMPARE(scene.window->logins().asked, 1);
        QVERIFY(!scene.window->logins().warned); // it does not leave the machine
    }

    void aSecondJobAsksNoMore()
    {
        QueueScene scene;
        scene.device.exitWith(BackendExit::Failed);
        open(scene);
        scene.between.askForPassword(kRight.user, kRight.password, IPP_OP_CREATE_JOB);
        scene.window->logins().answer = kRight;
        QVERIFY(scene.window->press(u"print"_s));
        verifyFailed(scene, u"Job office-1 failed.*"_s);
        QVERIFY(scene.window->press(u"print"_s));
        verifyFailed(scene, u"Job office-2 failed.*"_s);
        QCOMPARE(scene.window->logins().asked, 1);
    }

    void whoIsNotLetInIsAskedAgainNextTime_data()
    {
        QTest::addColumn<bool>("canceled");
        QTest::addColumn<QString>("says");
        QTest::newRow("wrong password")
            << false << kServer + u"does not accept this user and password\\."_s + kNothingPrinted;
        QTest::newRow("no password")
            << true
            << kServer + u"wants a user and a password; none was given\\."_s + kNothingPrinted;
    }
    void whoIsNotLetInIsAskedAgainNextTime()
    {
        QFETCH(bool, canceled);
        QFETCH(QString, says);
        QueueScene scene;
        open(scene);
        const QStringList settings = scene.window->settings();
        scene.between.askForPassword(kRight.user, kRight.password, IPP_OP_CREATE_JOB);
        LoginAnswerer &logins = scene.window->logins();
        if (!canceled)
            logins.answer = kWrong;
        QVERIFY(scene.window->press(u"print"_s));
        verifyFailed(scene, says);
        QCOMPARE(logins.asked, 1);
        QCOMPARE(scene.states(), States());
        QCOMPARE(scene.window->settings(), settings);
        logins.answer = kRight;
        QVERIFY(scene.window->press(u"print"_s));
        verifyPrinted(scene, 1);
        QCOMPARE(logins.asked, 2);
    }

    // Nobody is asked for what nobody has asked for.
    void aServerThatShowsNothingWithoutAPasswordAsksOnRequest()
    {
        QueueScene scene;
        scene.addQueue();
        scene.between.askForPassword(kRight.user, kRight.password);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        window.logins().answer = kWrong;
        QVERIFY(window.waitUntil([&] {
            return matches(window.waiting(), kServer + u"wants a user and a password\\."_s);
        }));
        QCOMPARE(window.logins().asked, 0);
        QVERIFY(window.press(u"retry"_s));
        QVERIFY(window.waitUntil([&] {
            return matches(window.waiting(),
                           kServer + u"does not accept this user and password\\."_s);
        }));
        QCOMPARE(window.logins().asked, 1);
        window.logins().answer = kRight;
        QVERIFY(window.press(u"retry"_s));
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        QVERIFY(window.press(u"print"_s));
        verifyPrinted(scene, 1);
        QCOMPARE(window.logins().asked, 2);
    }

    void thePrinterBehindTheQueueGetsUserAndPassword()
    {
        QueueScene scene;
        scene.addQueue();
        QueueSettings settings;
        settings.deviceUri = scene.device.uri();
        settings.options = {u"auth-info-required=username,password"_s};
        scene.cups.addQueue(kQueue, samplePpdPath(u"corvana-cl5"_s), settings);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));

        QVERIFY(window.press(u"print"_s));
        verifyFailed(scene,
                     u"The printer “office” wants a user and a password; none was given\\."_s +
                         kNothingPrinted);
        QCOMPARE(window.logins().asked, 1);
        QCOMPARE(scene.states(), States());

        window.logins().answer = kRight;
        QVERIFY(window.press(u"print"_s));
        verifyPrinted(scene, 1);
        QCOMPARE(window.logins().asked, 2);
        if (::getuid() != 0)
            return; // such a server keeps no passwords for its backends
        const QMap<QString, QString> seen = scene.device.jobs().value(0).environment;
        QCOMPARE(seen.value(u"AUTH_USERNAME"_s), kRight.user);
        QCOMPARE(seen.value(u"AUTH_PASSWORD"_s), kRight.password);
    }

    void aPrinterThatDoesNotLetInIsAskedForAgain()
    {
        QueueScene scene;
        scene.device.exitWith(BackendExit::AuthRequired);
        QueueSettings settings;
        settings.deviceUri = scene.device.uri();
        settings.options = {u"auth-info-required=username,password"_s};
        scene.cups.addQueue(kQueue, samplePpdPath(u"corvana-cl5"_s), settings);
        scene.open({m_document});
        QueueDriver &window = *scene.window;
        QVERIFY(window.waitUntil([&] { return window.canPrint(); }));
        window.logins().answer = kWrong;
        const QString says = u"The printer “office” does not accept this user and password\\. Job "
                             "office-%1 was canceled; nothing was printed\\."_s;
        for (const int job : {1, 2}) {
            QVERIFY(window.press(u"print"_s));
            verifyFailed(scene, says.arg(job));
            QCOMPARE(window.logins().asked, job);
        }
        QCOMPARE(scene.states(), (States{IPP_JSTATE_CANCELED, IPP_JSTATE_CANCELED}));
    }

    void aServerThatWantsEncryptionGetsIt()
    {
        QueueScene scene;
        scene.addQueue();
        scene.between.askForEncryption();
        scene.open({m_document});
        QVERIFY(scene.window->waitUntil([&] { return scene.window->canPrint(); }));
        QVERIFY(scene.window->press(u"print"_s));
        verifyPrinted(scene, 1);
        QVERIFY(scene.between.upgrades() > 0);
        QCOMPARE(scene.between.count(IPP_OP_SEND_DOCUMENT), 0); // none that others could read
    }

    void aServerThatSpeaksTlsOnlyIsPrintedTo()
    {
        QueueScene scene(onlyTls());
        scene.addQueue();
        cupsSetEncryption(HTTP_ENCRYPTION_ALWAYS); // as the user's client.conf says
        scene.open({m_document});
        QVERIFY(scene.window->waitUntil([&] { return scene.window->canPrint(); }));
        QVERIFY(scene.window->press(u"print"_s));
        verifyPrinted(scene, 1);
    }

    // By one that runs out later, as every new one does.
    void aCertificateThatWasReplacedIsSaidBeforeAnythingIsSent()
    {
        cupsSetEncryption(HTTP_ENCRYPTION_ALWAYS);
        QueueScene scene(onlyTls());
        scene.addQueue();
        scene.open({m_document});
        QVERIFY(scene.window->waitUntil([&] { return scene.window->canPrint(); }));
        scene.window->changeSettings();
        const QStringList settings = scene.window->settings();
        scene.cups.stop();
        const QDir keys(scene.cups.folder() + u"/ssl"_s);
        QVERIFY(!keys.isEmpty());
        for (const QString &name : keys.entryList(QDir::Files))
            QVERIFY(QFile::remove(keys.filePath(name)));
        scene.cups.start();
        QVERIFY(scene.window->press(u"print"_s));
        verifyFailed(scene,
                     u"The certificate of the print server “127\\.0\\.0\\.1:[0-9]+” is not the "
                     "one that it had before: .* remove the line “127\\.0\\.0\\.1:[0-9]+” "
                     "from the file .*/corvana-print/known-servers\\. \\(.*\\)"_s +
                         kNothingPrinted);
        QCOMPARE(scene.window->settings(), settings);
        QCOMPARE(scene.states(), States());
    }
};

QTEST_MAIN(QueueAccessTest)

#include "queue_access_test.moc"
