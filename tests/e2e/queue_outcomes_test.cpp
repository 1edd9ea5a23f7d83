#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"
#include "tests/support/cups/FaultyServer.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 20000; // milliseconds that a queue may take on a busy machine

// Whether the server remembers jobs that are over.
enum class History { Kept, Forgotten };

struct End
{
    const char *name;
    BackendExit exit;
    int status;
    const char *state;
    const char *says; ///< behind "office-1"
};
constexpr End kEnds[] = {
    {"printed", BackendExit::Ok, 0, "printed", "."},
    {"given up", BackendExit::Failed, 1, "failed", " failed"},
    {"canceled by the device", BackendExit::Cancel, 1, "canceled", " was canceled at the printer"},
};

} // namespace

/// What runs without a window say and end with, people and programs, whatever becomes of the job.
class QueueOutcomesTest : public QueueRuns
{
    Q_OBJECT

private:
    void startServer(History history)
    {
        CupsSettings settings;
        if (history == History::Forgotten)
            settings.directives = "PreserveJobHistory No\nPreserveJobFiles No\n";
        m_runner.reset();
        m_cups = std::make_unique<PrivateCups>(settings);
        m_cups->start();
        m_runner = std::make_unique<ProgramRunner>(m_cups->server());
    }

    void addQueue(const QString &name, BackendExit exit = BackendExit::Ok)
    {
        QueueSettings settings;
        settings.deviceUri = m_cups->capture(name).exitWith(exit).uri();
        m_cups->addQueue(name, kPpd, settings);
    }

    // The line for programs, which has to be all of standard output.
    static QJsonObject lineOf(const RunEnd &end)
    {
        [&] {
            QCOMPARE(end.out.count(u'\n'), 1);
            QVERIFY(end.out.endsWith(u'\n'));
        }();
        QJsonParseError error;
        const QJsonObject line = QJsonDocument::fromJson(end.out.toUtf8(), &error).object();
        [&] { QVERIFY2(error.error == QJsonParseError::NoError, end.text().constData()); }();
        return line;
    }

    void moveJob(int job, const QString &queue)
    {
        QProcess lpmove;
        lpmove.start(u"/usr/sbin/lpmove"_s,
                     {u"-h"_s, m_cups->server(), QString::number(job), queue});
        QVERIFY(lpmove.waitForFinished(kPatience));
        QCOMPARE(lpmove.exitCode(), 0);
    }

private Q_SLOTS:
    void theEndIsToldWhateverTheServerRemembers_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("forgotten");
        for (const bool forgotten : {false, true}) {
            int row = 0;
            for (const End &end : kEnds)
                QTest::addRow("%s, %s", end.name, forgotten ? "and forgotten" : "and kept")
                    << row++ << forgotten;
        }
    }
    void theEndIsToldWhateverTheServerRemembers()
    {
        const auto &[name, exit, status, state, says] = currentRow(kEnds);
        QFETCH(bool, forgotten);
        startServer(forgotten ? History::Forgotten : History::Kept);
        addQueue(u"office"_s, exit);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"--format=json"_s, kText});
        QVERIFY2(end.status == status, end.text().constData());
        const QJsonObject line = lineOf(end);
        QCOMPARE(line.value("state"_L1).toString(), QString::fromLatin1(state));
        QCOMPARE(line.value("queue"_L1).toString(), u"office"_s);
        QCOMPARE(line.value("job"_L1).toInt(), 1);
        // Of one that was done CUPS says nothing but what it was about to do before.
        const QJsonArray reasons = line.value("reasons"_L1).toArray();
        if (exit == BackendExit::Ok)
            QVERIFY(!reasons.contains(u"processing-to-stop-point"_s));
        else
            QVERIFY(!reasons.isEmpty());
        // People read the same on standard error.
        QVERIFY2(end.err.contains(u"office-1"_s + QString::fromLatin1(says)),
                 end.text().constData());
        QVERIFY(end.err.contains(line.value("message"_L1).toString()));
        if (forgotten)
            QVERIFY(m_cups->jobs().isEmpty());
    }

    void whatNobodyCanSayHasAStatusOfItsOwn()
    {
        startServer(History::Forgotten);
        addQueue(u"office"_s);
        FaultyServer server(m_cups->port());
        server.answerIpp(IPP_STATUS_ERROR_NOT_AUTHORIZED, IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS);
        const RunEnd end = m_runner->run({u"-h"_s, server.server(), u"-d"_s, u"office"_s, kText});
        QVERIFY2(end.status == 3, end.text().constData());
        QVERIFY2(end.err.contains(u"office-1"_s) && end.err.contains(u"is not known"_s),
                 end.text().constData());
        QCOMPARE(end.out, QString());
    }

    void aJobThatWasMovedIsReportedUnderItsNewQueue_data()
    {
        QTest::addColumn<bool>("forgotten");
        QTest::addColumn<bool>("raw");
        QTest::newRow("and kept") << false << false;
        QTest::newRow("and forgotten") << true << false;
        QTest::newRow("to a raw queue") << false << true;
        QTest::newRow("to a raw queue, and forgotten") << true << true;
    }
    void aJobThatWasMovedIsReportedUnderItsNewQueue()
    {
        QFETCH(bool, forgotten);
        QFETCH(bool, raw);
        startServer(forgotten ? History::Forgotten : History::Kept);
        addQueue(u"office"_s);
        if (raw)
            m_cups->addRawQueue(u"lab"_s);
        else
            addQueue(u"lab"_s);
        m_cups->stopQueue(u"office"_s, u"Being repaired"_s);
        const auto run = m_runner->start({u"-d"_s, u"office"_s, kText});
        QTRY_VERIFY_WITH_TIMEOUT(run->err().contains(u"office-1: The printer is stopped"_s),
                                 kPatience);
        moveJob(1, u"lab"_s);
        const RunEnd end = run->wait();
        QVERIFY2(end.status == 0, end.text().constData());
        const QString moved = u" The job had been moved from the queue “office” to “lab”.\n"_s;
        QCOMPARE(end.out,
                 (raw ? u"Sent to “lab” as job lab-1. That queue passes files on as they are: what "
                        "was set for the printer or the pages had no effect there."_s
                      : u"Printed on “lab” as job lab-1."_s) +
                     moved);
    }

    void theReasonOfAQueueThatTakesNoJobsIsTold()
    {
        startServer(History::Kept);
        addQueue(u"office"_s);
        m_cups->rejectJobs(u"office"_s, u"Toner is being changed."_s);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, kText});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.err.contains(u"takes no jobs at the moment: Toner is being changed. Nothing "
                                  "was printed."_s),
                 end.text().constData());
    }

    void aWaitThatIsLimitedLeavesTheJobAndSaysItsNumber()
    {
        startServer(History::Kept);
        addQueue(u"office"_s);
        m_cups->stopQueue(u"office"_s, u"Being repaired"_s);
        const RunEnd end =
            m_runner->run({u"-d"_s, u"office"_s, u"--wait=1"_s, u"--format=json"_s, kText});
        QVERIFY2(end.status == 4, end.text().constData());
        const QJsonObject line = lineOf(end);
        QCOMPARE(line.value("state"_L1).toString(), u"in-queue"_s);
        QCOMPARE(line.value("job"_L1).toInt(), 1);
        QCOMPARE(line.value("reasons"_L1).toArray().at(0).toString(), u"printer-stopped"_s);
        QVERIFY2(end.err.contains(u"Job office-1 waits in the queue “office”, which is stopped."_s),
                 end.text().constData());
        QCOMPARE(onlyJob(u"office"_s).state, IPP_JSTATE_PENDING);
    }

    void aWaitThatIsLongEnoughIsNotNoticed()
    {
        startServer(History::Kept);
        addQueue(u"office"_s);
        const RunEnd end = m_runner->run({u"-d"_s, u"office"_s, u"--wait=60"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(end.out, u"Printed on “office” as job office-1.\n"_s);
    }

    void switchesOfLpAreInTheJob()
    {
        startServer(History::Kept);
        addQueue(u"office"_s);
        const RunEnd end =
            m_runner->run({u"-d"_s, u"office"_s, u"-P"_s, u"1"_s, u"-q"_s, u"70"_s, u"-H"_s,
                           u"hold"_s, u"-U"_s, u"lisa"_s, u"-c"_s, u"-s"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(end.out + end.err, QString());
        const KnownJob job = onlyJob(u"office"_s);
        QCOMPARE(job.state, IPP_JSTATE_HELD);
        QCOMPARE(job.user, u"lisa"_s);
    }

    void theServerIsSpokenToInSecretWhereThatIsAskedFor_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("inSecret");
        QTest::newRow("asked for") << QStringList{u"-E"_s} << true;
        QTest::newRow("not asked for") << QStringList() << false;
    }
    void theServerIsSpokenToInSecretWhereThatIsAskedFor()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, inSecret);
        startServer(History::Kept);
        addQueue(u"office"_s);
        FaultyServer server(m_cups->port());
        const RunEnd end = m_runner->run(
            QStringList{u"-h"_s, server.server(), u"-d"_s, u"office"_s, kText} + arguments);
        QVERIFY2(end.status == 0, end.text().constData());
        QCOMPARE(server.upgrades() > 0, inSecret);
        QCOMPARE(server.count(IPP_OP_CREATE_JOB), inSecret ? 0 : 1); // it is not seen in between
    }

    void anInstanceThatNobodyHasMadeIsRefused()
    {
        startServer(History::Kept);
        addQueue(u"office"_s);
        const RunEnd none = m_runner->run({u"-d"_s, u"office/dupelx"_s, kText});
        QCOMPARE(none.status, 1);
        QVERIFY2(none.err.contains(u"There is no instance “office/dupelx”: lpoptions has none"_s),
                 none.text().constData());
        m_runner->setUserOptions("Dest office/duplex sides=two-sided-long-edge\nDest lab/draft\n");
        const RunEnd others = m_runner->run({u"-d"_s, u"office/dupelx"_s, kText});
        QCOMPARE(others.status, 1);
        QVERIFY2(others.err.contains(u"The queue “office” has: office/duplex."_s),
                 others.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
        QCOMPARE(m_runner->run({u"-d"_s, u"office/duplex"_s, kText}).status, 0);
    }

    void thePasswordComesFromAFileAndIsSaidNowhere_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("status");
        QTest::newRow("right") << QByteArray("rightpassword\n") << 0;
        QTest::newRow("wrong") << QByteArray("wrongpassword\n") << 1;
    }
    void thePasswordComesFromAFileAndIsSaidNowhere()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, status);
        startServer(History::Kept);
        addQueue(u"office"_s);
        FaultyServer server(m_cups->port());
        server.askForPassword(u"lisa"_s, u"rightpassword"_s, IPP_OP_CREATE_JOB);
        const QString name = m_runner->filePath(u"password"_s);
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QVERIFY(file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        m_runner->setVariable(u"QT_LOGGING_RULES"_s, u"corvana.*=true"_s);
        const RunEnd end =
            m_runner->run({u"-h"_s, server.server(), u"-U"_s, u"lisa"_s, u"--password-file"_s, name,
                           u"-d"_s, u"office"_s, u"--summary"_s, kText});
        QVERIFY2(end.status == status, end.text().constData());
        QVERIFY(!end.text().contains(content.trimmed()));
        QVERIFY(end.err.contains(u"corvana."_s)); // it was logged what there was to log
        if (status != 0)
            QVERIFY2(end.err.contains(u"does not accept this user and password"_s),
                     end.text().constData());
    }

    void standardOutputGetsTheResultAndNothingElse()
    {
        startServer(History::Kept);
        const QString file = m_runner->filePath(u"result.ps"_s);
        const QStringList arguments{u"--demo"_s, u"-d"_s, u"corvana-cl5"_s, u"--summary"_s};
        QCOMPARE(m_runner->run(arguments + QStringList{u"--output"_s, file, kText}).status, 0);
        const RunEnd end = m_runner->run(arguments + QStringList{u"--output"_s, u"-"_s, kText});
        QVERIFY2(end.status == 0, end.text().constData());
        QVERIFY2(end.out.startsWith(u"%!PS-Adobe"_s), end.text().constData());
        QVERIFY(end.out.contains(u"\n%%EOF"_s));
        QFile result(file);
        QVERIFY(result.open(QIODevice::ReadOnly));
        // The time at which it was made is in it.
        QCOMPARE(end.out.size(), QString::fromUtf8(result.readAll()).size());
        QVERIFY2(end.err.contains(u"Media Type"_s), end.text().constData());
    }

    void whatIsRefusedIsSaidToProgramsToo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("a choice") << QStringList{u"-o"_s, u"QXMediaType=Silk"_s, kText};
        QTest::newRow("a document") << QStringList{u"/nonexistent.pdf"_s};
        QTest::newRow("a password file")
            << QStringList{u"--password-file"_s, u"/nonexistent"_s, kText};
        QTest::newRow("an instance") << QStringList{u"-d"_s, u"office/nix"_s, kText};
    }
    void whatIsRefusedIsSaidToProgramsToo()
    {
        QFETCH(QStringList, arguments);
        startServer(History::Kept);
        addQueue(u"office"_s);
        const RunEnd end = m_runner->run(
            QStringList{u"-d"_s, u"office"_s, u"--format=json"_s, u"--summary"_s} + arguments);
        QCOMPARE(end.status, 1);
        const QJsonObject line = lineOf(end);
        QCOMPARE(line.value("state"_L1).toString(), u"refused"_s);
        QVERIFY(!line.value("message"_L1).toString().isEmpty());
        QVERIFY(line.value("job"_L1).isNull());
        QVERIFY(m_cups->jobs().isEmpty());
    }
};

QTEST_GUILESS_MAIN(QueueOutcomesTest)

#include "queue_outcomes_test.moc"
