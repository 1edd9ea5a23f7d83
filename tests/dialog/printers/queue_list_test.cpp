#include <QSignalSpy>
#include <QTest>

#include "dialog/printers/QueueList.h"
#include "tests/dialog/printers/CannedQueues.h"
#include "tests/support/cups/FaultyServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using State = QueueList::State;

namespace {

// Far more than the time between two looks.
constexpr int kLong = 30000;

ServerContext contextFor(quint16 port, std::chrono::milliseconds patience = 20s)
{
    ServerContext context;
    context.address = {u"127.0.0.1"_s, port, HTTP_ENCRYPTION_IF_REQUESTED};
    context.patience = {patience, patience};
    return context;
}

Printer queueOf(const QString &name, const QString &description)
{
    Printer queue;
    queue.name = name;
    queue.description = description;
    return queue;
}

QStringList namesOf(const QueueList &list)
{
    QStringList names;
    for (const Printer &printer : list.printers())
        names += printer.name;
    return names;
}

QStringList defaultsOf(const QueueList &list)
{
    QStringList names;
    for (const Printer &printer : list.printers()) {
        if (printer.isDefault)
            names += printer.name;
    }
    return names;
}

} // namespace

class QueueListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }

    void nobodyIsAskedBeforeItIsStarted()
    {
        CannedQueues server;
        QueueList list(contextFor(server.port()), {});
        QCOMPARE(list.state(), State::Looking);
        QVERIFY(list.printers().isEmpty());
        QCoreApplication::processEvents();
        QVERIFY(server.requests().isEmpty());
    }

    void queuesAreInTheOrderInWhichPeopleLookForThem()
    {
        CannedQueues server;
        server.setQueues({queueOf(u"a"_s, u"Printer 10"_s), queueOf(u"b"_s, u"printer 9"_s),
                          queueOf(u"c"_s, u"Archive"_s), queueOf(u"d"_s, QString())});
        QueueList list(contextFor(server.port()), {});
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        QCOMPARE(namesOf(list), (QStringList{u"c"_s, u"d"_s, u"b"_s, u"a"_s}));
        QVERIFY(!list.problem());
    }

    void theFirstOfManyAreThereBeforeTheLast()
    {
        CannedQueues server;
        server.setQueues(manyQueues(450));
        QueueList list(contextFor(server.port()), {});
        QList<qsizetype> sizes;
        connect(&list, &QueueList::changed, &list, [&] { sizes += list.printers().size(); });
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        QCOMPARE(list.printers().size(), 450);
        QVERIFY(sizes.contains(200));
        QVERIFY(std::is_sorted(sizes.cbegin(), sizes.cend()));
    }

    // Each time the whole list is sorted and shown.
    void aListThatGrowsIsShownAFewTimesOnly()
    {
        CannedQueues server;
        server.setQueues(manyQueues(6000));
        QueueList list(contextFor(server.port()), {});
        const QSignalSpy changed(&list, &QueueList::changed);
        list.start();
        QTRY_COMPARE_WITH_TIMEOUT(list.state(), State::Known, kLong);
        QCOMPARE(server.pagesAsked(), 31);
        QCOMPARE(list.printers().size(), 6000);
        QVERIFY2(changed.size() <= 8, qPrintable(QString::number(changed.size())));
    }

    void whatCameBeforeAFailureIsShown()
    {
        CannedQueues server;
        server.setQueues(manyQueues(1200));
        server.failAfter(5, IPP_STATUS_ERROR_INTERNAL);
        QueueList list(contextFor(server.port()), {});
        list.start();
        QTRY_COMPARE_WITH_TIMEOUT(list.state(), State::Failed, kLong);
        QVERIFY2(list.printers().size() > 900, qPrintable(QString::number(list.printers().size())));
    }

    void changesShowByThemselvesAndAtOnce()
    {
        CannedQueues server;
        server.setQueues(manyQueues(450));
        QueueList list(contextFor(server.port()), {});
        list.start();
        QTRY_COMPARE(list.state(), State::Known);

        QList<qsizetype> sizes;
        connect(&list, &QueueList::changed, &list, [&] { sizes += list.printers().size(); });
        QList<Printer> others = manyQueues(440);
        others[0].description = u"A new name"_s;
        others[1].state = PrinterState::Stopped;
        server.setQueues(others);
        QTRY_COMPARE_WITH_TIMEOUT(list.printers().size(), 440, kLong);
        // A list that is complete is never shown in part again.
        QCOMPARE(sizes, QList<qsizetype>{440});
        QCOMPARE(list.printers().constFirst().description, u"A new name"_s);
        const auto stopped = std::find_if(list.printers().cbegin(), list.printers().cend(),
                                          [](const Printer &p) { return p.name == u"queue2"_s; });
        QCOMPARE(stopped->state, PrinterState::Stopped);

        server.setQueues({});
        QTRY_VERIFY_WITH_TIMEOUT(list.printers().isEmpty(), kLong);
        QCOMPARE(list.state(), State::Known);
    }

    void whatDidNotChangeIsNoNews()
    {
        CannedQueues server;
        server.setQueues(manyQueues(3));
        QueueList list(contextFor(server.port()), {});
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        const QSignalSpy changed(&list, &QueueList::changed);
        const int asked = server.pagesAsked();
        QTRY_VERIFY_WITH_TIMEOUT(server.pagesAsked() >= asked + 2, kLong);
        QCOMPARE(changed.size(), 0);
    }

    void aFailureKeepsWhatWasKnown()
    {
        CannedQueues server;
        server.setQueues(manyQueues(3));
        QueueList list(contextFor(server.port()), {});
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        server.failAfter(0, IPP_STATUS_ERROR_INTERNAL);
        QTRY_COMPARE_WITH_TIMEOUT(list.state(), State::Failed, kLong);
        QCOMPARE(list.problem().kind, ServerProblem::Kind::Refused);
        QCOMPARE(list.printers().size(), 3);

        server.failAfter(0, IPP_STATUS_OK);
        list.retry();
        QCOMPARE(list.state(), State::Looking);
        QVERIFY(!list.problem());
        QTRY_COMPARE(list.state(), State::Known);
        QVERIFY(!list.problem());
    }

    void aServerThatComesBackShowsByItself()
    {
        CannedQueues server;
        server.setQueues(manyQueues(3));
        FaultyServer gate(server.port(), FaultyServer::Manner::Refuses);
        QueueList list(contextFor(gate.port()), {});
        list.start();
        QTRY_COMPARE(list.state(), State::Failed);
        QCOMPARE(list.problem().kind, ServerProblem::Kind::Unreachable);
        gate.setManner(FaultyServer::Manner::Passes);
        QTRY_COMPARE_WITH_TIMEOUT(list.state(), State::Known, kLong);
        QCOMPARE(list.printers().size(), 3);
    }

    void aServerThatIsSlowIsSaidToBe()
    {
        FaultyServer server(0, FaultyServer::Manner::NeverAnswers);
        QueueList list(contextFor(server.port(), 4s), {});
        list.start();
        QCOMPARE(list.state(), State::Looking);
        QTRY_COMPARE(list.state(), State::Slow);
        QTRY_COMPARE_WITH_TIMEOUT(list.state(), State::Failed, kLong);
        QCOMPARE(list.problem().kind, ServerProblem::Kind::NoAnswer);
    }

    void aServerThatWaitsForAPasswordIsNotSlow()
    {
        FaultyServer server(0, FaultyServer::Manner::NeverAnswers);
        QueueList list(contextFor(server.port()), {});
        list.start();
        list.questionPut();
        list.questionPut(); // a second one, for the printer
        QueueList other(contextFor(server.port()), {});
        other.start();
        QTRY_COMPARE(other.state(), State::Slow);
        QCOMPARE(list.state(), State::Looking);
        list.questionAnswered();
        QueueList third(contextFor(server.port()), {});
        third.start();
        QTRY_COMPARE(third.state(), State::Slow);
        QCOMPARE(list.state(), State::Looking);
        list.questionAnswered();
        QTRY_COMPARE(list.state(), State::Slow);
    }

    void noSecondTryIsMadeWhileAQuestionStands()
    {
        FaultyServer server(0, FaultyServer::Manner::NeverAnswers);
        QueueList list(contextFor(server.port()), {});
        list.retry();
        QTRY_COMPARE(list.state(), State::Slow);
        list.questionPut();
        list.retry();
        QCOMPARE(list.state(), State::Slow);
        list.questionAnswered();
        list.retry();
        QCOMPARE(list.state(), State::Looking);
    }

    // A slow server is asked rarely; a slow typist is no slow server.
    void theTimeOfAQuestionIsNotTheServers()
    {
        CannedQueues queues;
        queues.setQueues(manyQueues(1));
        FaultyServer server(queues.port());
        server.delayResponse(IPP_OP_CUPS_GET_PRINTERS, 1);
        QueueList list(contextFor(server.port()), {});
        list.start();
        list.questionPut();
        FaultyServer silent(0, FaultyServer::Manner::NeverAnswers);
        QueueList clock(contextFor(silent.port()), {});
        clock.start();
        QTRY_COMPARE(clock.state(), State::Slow);
        list.questionAnswered();
        server.releaseResponses();
        QTRY_COMPARE(list.state(), State::Known);
        // The next look would be due after twenty times as long.
        QTRY_VERIFY_WITH_TIMEOUT(queues.pagesAsked() >= 2, kLong);
    }

    void whileNobodyLooksNothingIsAsked()
    {
        CannedQueues server;
        server.setQueues(manyQueues(1));
        QueueList list(contextFor(server.port()), {});
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        list.pause();
        const int asked = server.pagesAsked();
        // Another list, of which two looks show that the time of one has passed.
        QueueList other(contextFor(server.port()), {});
        other.start();
        QTRY_VERIFY_WITH_TIMEOUT(server.pagesAsked() >= asked + 2, kLong);
        other.pause();
        QCOMPARE(server.pagesAsked(), asked + 2);
        list.start();
        QTRY_COMPARE(server.pagesAsked(), asked + 3);
    }

    void instancesStandBehindTheirQueue()
    {
        CannedQueues server;
        server.setQueues({queueOf(u"office"_s, u"Office"_s), queueOf(u"of"_s, u"Old"_s)});
        UserQueues user;
        user.options[u"office/draft"_s] = {};
        user.options[u"office/fine"_s] = {};
        user.options[u"gone/draft"_s] = {};
        user.options[u"of"_s] = {};
        QueueList list(contextFor(server.port()), user);
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        QCOMPARE(namesOf(list),
                 (QStringList{u"office"_s, u"office/draft"_s, u"office/fine"_s, u"of"_s}));
        QCOMPARE(list.printers()[1].description, u"Office/draft"_s);
        QCOMPARE(list.printers()[1].uri, list.printers()[0].uri);
    }

    void theDefaultIsTheUsersThenTheServers_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("marked");
        const QStringList none;
        QTest::newRow("neither") << QString() << QString() << QString() << none;
        QTest::newRow("server's") << QString() << u"queue2"_s << u"queue2"_s
                                  << QStringList{u"queue2"_s};
        QTest::newRow("user's") << u"queue1"_s << u"queue2"_s << u"queue1"_s
                                << QStringList{u"queue1"_s};
        QTest::newRow("user's instance") << u"queue1/draft"_s << u"queue2"_s << u"queue1/draft"_s
                                         << QStringList{u"queue1/draft"_s};
        QTest::newRow("another spelling") << u"Queue1/DRAFT"_s << u"queue2"_s << u"Queue1/DRAFT"_s
                                          << QStringList{u"queue1/draft"_s};
        QTest::newRow("user's that is gone") << u"gone"_s << u"queue2"_s << u"gone"_s << none;
    }
    void theDefaultIsTheUsersThenTheServers()
    {
        QFETCH(QString, user);
        QFETCH(QString, server);
        QFETCH(QString, name);
        QFETCH(QStringList, marked);
        CannedQueues canned;
        canned.setQueues(manyQueues(3));
        canned.setDefault(server);
        UserQueues userQueues;
        userQueues.defaultName = user;
        userQueues.options[u"queue1/draft"_s] = {};
        QueueList list(contextFor(canned.port()), userQueues);
        list.start();
        QTRY_COMPARE(list.state(), State::Known);
        QCOMPARE(list.defaultName(), name);
        QCOMPARE(defaultsOf(list), marked);
    }

    void aListThatIsGoneHearsNothing()
    {
        FaultyServer server(0, FaultyServer::Manner::NeverAnswers);
        auto list = std::make_unique<QueueList>(contextFor(server.port(), 1h), UserQueues());
        list->start();
        QTRY_COMPARE(server.openConnections(), 1);
        list.reset();
        // Its thread ends, and hangs up.
        QTRY_COMPARE(server.openConnections(), 0);
    }
};

QTEST_GUILESS_MAIN(QueueListTest)
#include "queue_list_test.moc"
