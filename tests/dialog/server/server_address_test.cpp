#include <QTest>

#include "dialog/server/ServerAddress.h"
#include "dialog/server/ServerProblem.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class ServerAddressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addressesAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("port");
        QTest::addColumn<QString>("argument");
        const auto row = [](const char *text, const char *host, int port, const char *argument) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(host) << port
                                << QString::fromUtf8(argument);
        };
        row("print", "print", 631, "print:631");
        row("print.example.com:8631", "print.example.com", 8631, "print.example.com:8631");
        row("192.0.2.7", "192.0.2.7", 631, "192.0.2.7:631");
        row("192.0.2.7:1", "192.0.2.7", 1, "192.0.2.7:1");
        row("host:65535", "host", 65535, "host:65535");
        row("[2001:db8::7]", "2001:db8::7", 631, "[2001:db8::7]:631");
        row("[2001:db8::7]:8631", "2001:db8::7", 8631, "[2001:db8::7]:8631");
        row("[fe80::1%eth0]", "fe80::1%eth0", 631, "[fe80::1%eth0]:631");
        row("[::ffff:192.0.2.7]:632", "::ffff:192.0.2.7", 632, "[::ffff:192.0.2.7]:632");
        row("/run/cups/cups.sock", "/run/cups/cups.sock", 631, "/run/cups/cups.sock");
        row("/with:colon and blank", "/with:colon and blank", 631, "/with:colon and blank");
        row("drucker.büro.example", "drucker.büro.example", 631, "drucker.büro.example:631");
    }
    void addressesAreRead()
    {
        QFETCH(QString, text);
        QFETCH(QString, host);
        QFETCH(int, port);
        QFETCH(QString, argument);
        const auto address = ServerAddress::parse(text);
        QVERIFY(address);
        QCOMPARE(address->host, host);
        QCOMPARE(address->port, port);
        QCOMPARE(address->argument(), argument);
        // What is written on a command line leads to the same server.
        QCOMPARE(ServerAddress::parse(argument), address);
    }

    void whatIsNoAddressIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"",
                                 " ",
                                 ":631",
                                 "host:",
                                 "host:0",
                                 "host:65536",
                                 "host:99999999999",
                                 "host:-1",
                                 "host:631x",
                                 "host:ipp",
                                 "user@host",
                                 "user:secret@host",
                                 "two words",
                                 "host ",
                                 " host",
                                 "2001:db8::7",
                                 "[2001:db8::7",
                                 "2001:db8::7]",
                                 "[]",
                                 "[]:631",
                                 "[host]",
                                 "[::1]631",
                                 "host/path",
                                 "host\x1b[31m",
                                 "ho\x01st",
                                 "ipp://host",
                                 "host\n",
                                 "host:631\n"})
            QTest::newRow(*text ? text : "nothing") << QString::fromUtf8(text);
    }
    void whatIsNoAddressIsRefused()
    {
        QFETCH(QString, text);
        QVERIFY(!ServerAddress::parse(text));
    }

    void anAddressThatIsWrittenIsReadAsItself()
    {
        for (const char *text : {"host:631", "[2001:db8::7]:8631", "ho%1st:77", "%2:77"})
            QCOMPARE(ServerAddress::parse(QString::fromUtf8(text))->argument(),
                     QString::fromUtf8(text));
    }

    void onlyThisMachineIsLocal_data()
    {
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("isLocal");
        QTest::newRow("socket") << u"/run/cups/cups.sock"_s << true;
        QTest::newRow("localhost") << u"localhost"_s << true;
        QTest::newRow("loopback") << u"127.0.0.1"_s << true;
        QTest::newRow("another loopback") << u"127.1.2.3"_s << true;
        QTest::newRow("loopback of IPv6") << u"::1"_s << true;
        QTest::newRow("an address") << u"192.0.2.7"_s << false;
        QTest::newRow("a name") << u"print.example.com"_s << false;
        QTest::newRow("a name that begins like it") << u"localhost.example.com"_s << false;
        // Whoever owns such a name would be sent passwords in plain without a warning.
        QTest::newRow("a name that begins like an address") << u"127.example.com"_s << false;
        QTest::newRow("a name in the form of one") << u"127.0.0.1.example.com"_s << false;
        QTest::newRow("nothing") << QString() << false;
    }
    void onlyThisMachineIsLocal()
    {
        QFETCH(QString, host);
        QFETCH(bool, isLocal);
        QCOMPARE((ServerAddress{host}.isLocal()), isLocal);
    }

    void messagesNameThePortOnlyWhereItIsUnusual()
    {
        QCOMPARE((ServerAddress{u"print"_s, 631}.text()), u"print"_s);
        QCOMPARE((ServerAddress{u"print"_s, 8631}.text()), u"print:8631"_s);
        QCOMPARE((ServerAddress{u"2001:db8::7"_s, 8631}.text()), u"[2001:db8::7]:8631"_s);
        QCOMPARE((ServerAddress{u"/run/cups/cups.sock"_s}.text()), u"this computer"_s);
    }

    void everyProblemNamesTheServerOrItsCause_data()
    {
        QTest::addColumn<int>("kind");
        using Kind = ServerProblem::Kind;
        for (int kind = int(Kind::Unreachable); kind < int(Kind::DocumentUnreadable); ++kind)
            QTest::newRow(qPrintable(QString::number(kind))) << kind;
    }
    void everyProblemNamesTheServerOrItsCause()
    {
        QFETCH(int, kind);
        const ServerProblem problem{static_cast<ServerProblem::Kind>(kind)};
        QVERIFY(problem);
        QVERIFY(problem.text({u"print.example.com"_s}).contains(u"“print.example.com”"_s));
    }

    void aDocumentThatCannotBeReadIsNoFaultOfTheServers()
    {
        const ServerProblem problem{ServerProblem::Kind::DocumentUnreadable, u"Is a directory"_s};
        const QString text = problem.text({u"print.example.com"_s});
        QVERIFY(text.contains(u"Is a directory"_s));
        QVERIFY(!text.contains(u"print.example.com"_s));
    }

    void aRefusalHasTheReason()
    {
        ServerProblem problem{ServerProblem::Kind::Refused, u"No paper today"_s,
                              IPP_STATUS_ERROR_BUSY};
        QVERIFY(problem.text({u"print"_s}).contains(u"No paper today"_s));
        problem.detail.clear();
        QVERIFY(problem.text({u"print"_s})
                    .contains(QString::fromUtf8(ippErrorString(IPP_STATUS_ERROR_BUSY))));
        QVERIFY(!ServerProblem());
        QVERIFY(ServerProblem().text({u"print"_s}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(ServerAddressTest)
#include "server_address_test.moc"
