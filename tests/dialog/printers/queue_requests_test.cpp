#include <QTest>

#include "dialog/printers/PpdCopy.h"
#include "dialog/printers/QueueRequests.h"
#include "tests/dialog/printers/CannedQueues.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 200;
const QByteArray kPpd = "*PPD-Adobe: \"4.3\"\n";

ServerContext contextFor(quint16 port)
{
    ServerContext context;
    context.address = {u"127.0.0.1"_s, port, HTTP_ENCRYPTION_IF_REQUESTED};
    return context;
}

QStringList namesOf(const QList<Printer> &printers)
{
    QStringList names;
    for (const Printer &printer : printers)
        names += printer.name;
    return names;
}

Printer queueOfName(const QString &name)
{
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    printer.name = name;
    printer.uri = queueUri(name.section(u'/', 0, 0));
    return printer;
}

} // namespace

class QueueRequestsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allQueuesAreFoundPageByPage_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<int>>("pages");
        QTest::newRow("none") << 0 << QList<int>{0};
        QTest::newRow("one") << 1 << QList<int>{1};
        QTest::newRow("one less than a page") << kPage - 1 << QList<int>{kPage - 1};
        QTest::newRow("a page") << kPage << QList<int>{kPage};
        QTest::newRow("one more") << kPage + 1 << QList<int>{kPage, 1};
        QTest::newRow("several") << 450 << QList<int>{200, 199, 51};
    }
    void allQueuesAreFoundPageByPage()
    {
        QFETCH(int, count);
        QFETCH(QList<int>, pages);
        CannedQueues server;
        server.setQueues(manyQueues(count));
        ServerConnection connection(contextFor(server.port()), nullptr);
        QList<Printer> all;
        QList<int> sizes;
        QVERIFY(listQueues(connection, [&](const QList<Printer> &page) {
            all += page;
            sizes += static_cast<int>(page.size());
        }));
        QCOMPARE(namesOf(all), namesOf(manyQueues(count)));
        QCOMPARE(sizes, pages);
    }

    void aServerThatKnowsNoPagesIsNotAskedForEver()
    {
        CannedQueues server;
        server.setQueues(manyQueues(450));
        server.ignoreLimits();
        ServerConnection connection(contextFor(server.port()), nullptr);
        QList<Printer> all;
        QVERIFY(listQueues(connection, [&](const QList<Printer> &page) { all += page; }));
        QCOMPARE(namesOf(all), namesOf(manyQueues(450)));
        QCOMPARE(server.pagesAsked(), 2);
    }

    void aListThatBreaksOffIsNoneYet_data()
    {
        QTest::addColumn<int>("pages");
        QTest::addColumn<int>("status");
        QTest::newRow("at once") << 0 << int(IPP_STATUS_ERROR_INTERNAL);
        QTest::newRow("on the second page") << 1 << int(IPP_STATUS_ERROR_INTERNAL);
        // The queue that the next page begins with was deleted meanwhile.
        QTest::newRow("not found on the second page") << 1 << int(IPP_STATUS_ERROR_NOT_FOUND);
    }
    void aListThatBreaksOffIsNoneYet()
    {
        QFETCH(int, pages);
        QFETCH(int, status);
        CannedQueues server;
        server.setQueues(manyQueues(450));
        server.failAfter(pages, static_cast<ipp_status_t>(status));
        ServerConnection connection(contextFor(server.port()), nullptr);
        int found = 0;
        QVERIFY(!listQueues(connection, [&](const QList<Printer> &page) {
            found += static_cast<int>(page.size());
        }));
        QVERIFY(connection.problem());
        QCOMPARE(found, pages * kPage);
    }

    void aListWithoutEndBreaksOff_data()
    {
        QTest::addColumn<QueueBounds>("bounds");
        QTest::addColumn<int>("length"); // of the description of each queue
        QTest::addColumn<int>("found");
        QTest::addColumn<QString>("problem"); // empty: the list is whole
        const QueueBounds standard;
        QTest::newRow("within all bounds") << standard << 10 << 1000 << QString();
        QTest::newRow("queues") << QueueBounds{.queues = 598} << 10 << 598
                                << u"more than 598 printers"_s;
        QTest::newRow("a page more")
            << QueueBounds{.queues = 599} << 10 << 797 << u"more than 599 printers"_s;
        QTest::newRow("few queues of many words")
            << QueueBounds{.texts = 450 * 600} << 400 << 598
            << u"printers with more than 270,000 characters in their texts"_s;
        QTest::newRow("few queues of few words")
            << QueueBounds{.texts = 450 * 600} << 10 << 1000 << QString();
    }
    void aListWithoutEndBreaksOff()
    {
        QFETCH(QueueBounds, bounds);
        QFETCH(int, length);
        QFETCH(int, found);
        QFETCH(QString, problem);
        QList<Printer> queues = manyQueues(1000);
        for (Printer &queue : queues)
            queue.description = QString(length, u'x');
        CannedQueues server;
        server.setQueues(queues);
        ServerConnection connection(contextFor(server.port()), nullptr);
        QList<Printer> all;
        QCOMPARE(listQueues(
                     connection, [&](const QList<Printer> &page) { all += page; }, bounds),
                 problem.isEmpty());
        QCOMPARE(all.size(), found);
        QCOMPARE(connection.problem().kind, problem.isEmpty() ? ServerProblem::Kind::None
                                                              : ServerProblem::Kind::TooLarge);
        QCOMPARE(connection.problem().detail, problem);
    }

    void everythingOfAQueueIsRead()
    {
        const CannedServer server([](const CannedRequest &) {
            ipp_t *answer = newIppAnswer();
            const auto text = [&](ipp_tag_t type, const char *name, const char *value) {
                ippAddString(answer, IPP_TAG_PRINTER, type, name, nullptr, value);
            };
            text(IPP_TAG_NAME, "printer-name", "all");
            text(IPP_TAG_TEXT, "printer-info", "Everyone's");
            text(IPP_TAG_TEXT, "printer-location", "Hall");
            text(IPP_TAG_TEXT, "printer-make-and-model", "Corvana Test");
            text(IPP_TAG_TEXT, "printer-state-message", "No paper");
            text(IPP_TAG_KEYWORD, "printer-state-reasons", "media-empty-error");
            text(IPP_TAG_KEYWORD, "auth-info-required", "none");
            text(IPP_TAG_URI, "device-uri", "socket://printer");
            // Its server calls itself what only it knows.
            text(IPP_TAG_URI, "printer-uri-supported", "ipp://inner.example/classes/all");
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state",
                          IPP_PSTATE_STOPPED);
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-type",
                          CUPS_PRINTER_CLASS | CUPS_PRINTER_COLOR);
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-config-change-time",
                          77);
            ippAddBoolean(answer, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 0);
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QList<Printer> all;
        QVERIFY(listQueues(connection, [&](const QList<Printer> &page) { all += page; }));
        Printer expected;
        expected.origin = PrinterOrigin::Queue;
        expected.name = u"all"_s;
        expected.description = u"Everyone's"_s;
        expected.location = u"Hall"_s;
        expected.makeAndModel = u"Corvana Test"_s;
        expected.state = PrinterState::Stopped;
        expected.stateMessage = u"No paper"_s;
        expected.stateReasons = {u"media-empty-error"_s};
        expected.accepting = false;
        expected.isClass = true;
        expected.configured = 77;
        expected.deviceUri = u"socket://printer"_s;
        expected.uri = u"ipp://localhost/classes/all"_s;
        QCOMPARE(all, QList<Printer>{expected});
    }

    void whatIsOfAWrongTypeIsLeftOut()
    {
        const CannedServer server([](const CannedRequest &) {
            ipp_t *answer = newIppAnswer();
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "a");
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-info", 1);
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "printer-state", nullptr,
                         "stopped");
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-state-reasons", 1);
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "printer-is-accepting-jobs", 0);
            ippAddOutOfBand(answer, IPP_TAG_PRINTER, IPP_TAG_NOVALUE, "printer-type");
            ippAddSeparator(answer);
            // One that has no name at all.
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-info", nullptr, "b");
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QList<Printer> all;
        QVERIFY(listQueues(connection, [&](const QList<Printer> &page) { all += page; }));
        QCOMPARE(all.size(), 1);
        QCOMPARE(all[0].description, u"a"_s);
        QCOMPARE(all[0].state, PrinterState::Unknown);
        QVERIFY(all[0].accepting);
        QVERIFY(all[0].stateReasons.isEmpty());
        QVERIFY(!all[0].isClass);
    }

    void theDefaultIsAskedFor()
    {
        CannedQueues server;
        ServerConnection connection(contextFor(server.port()), nullptr);
        QCOMPARE(defaultQueue(connection), QString());
        server.setDefault(u"office"_s);
        QCOMPARE(defaultQueue(connection), u"office"_s);
    }

    void thePpdIsFetchedWhereItIs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("member");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<int>("status");
        QTest::addColumn<QueueDetails::Ppd>("state");
        using Ppd = QueueDetails::Ppd;
        const QByteArray path("/printers/office.ppd");
        QTest::newRow("there") << u"office"_s << QString() << path << 200 << Ppd::Read;
        QTest::newRow("none") << u"office"_s << QString() << path << 404 << Ppd::None;
        QTest::newRow("refused") << u"office"_s << QString() << path << 403 << Ppd::Unknown;
        QTest::newRow("instance") << u"office/draft"_s << QString() << path << 200 << Ppd::Read;
        QTest::newRow("umlaut") << u"Büro"_s << QString() << QByteArray("/printers/B%C3%BCro.ppd")
                                << 200 << Ppd::Read;
        QTest::newRow("percent") << u"a%41"_s << QString() << QByteArray("/printers/a%2541.ppd")
                                 << 200 << Ppd::Read;
        QTest::newRow("class") << u"all"_s << u"office"_s << path << 200 << Ppd::Read;
    }
    void thePpdIsFetchedWhereItIs()
    {
        QFETCH(QString, name);
        QFETCH(QString, member);
        QFETCH(QByteArray, path);
        QFETCH(int, status);
        QFETCH(QueueDetails::Ppd, state);
        const CannedServer server([&](const CannedRequest &request) {
            if (request.operation == 0)
                return httpAnswer(status, status == 200 ? kPpd : QByteArray());
            ipp_t *answer = newIppAnswer();
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "office");
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-info", nullptr, "Hall");
            if (!member.isEmpty()) {
                ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-type",
                              CUPS_PRINTER_CLASS);
                ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "member-names", nullptr,
                             member.toUtf8().constData());
            }
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const Printer printer = queueOfName(name);
        const QueueDetails details = inspectQueue(connection, printer);
        QCOMPARE(details.state, state);
        QCOMPARE(server.requests().constFirst().head.path,
                 QByteArray(printer.uri.toUtf8()).remove(0, qstrlen("ipp://localhost")));
        QCOMPARE(server.requests().at(1).head.path, path);
        // Only of a queue without a PPD it is asked what its printer can do.
        QCOMPARE(server.requests().size(), state == QueueDetails::Ppd::None ? 3 : 2);
        QCOMPARE(server.requests()
                     .constLast()
                     .values("requested-attributes")
                     .contains("media-col-database"_L1),
                 state == QueueDetails::Ppd::None);
        QCOMPARE(details.printer.name, name); // as the dialog knows it
        QCOMPARE(details.printer.uri, printer.uri);
        QCOMPARE(details.printer.description, u"Hall"_s);
        QCOMPARE(bool(details.problem), state == QueueDetails::Ppd::Unknown);
        QCOMPARE(!details.ppd.isEmpty(), state == QueueDetails::Ppd::Read);
        QCOMPARE(details.ppdHash,
                 state == QueueDetails::Ppd::Read ? hashOfPpd(kPpd) : QByteArray());
    }

    void aPpdIsFetchedToBeComparedWithoutAskingForMore_data()
    {
        QTest::addColumn<QString>("member"); // of a class
        QTest::addColumn<bool>("knownAsClass");
        QTest::addColumn<int>("status");
        QTest::addColumn<QueueDetails::Ppd>("state");
        QTest::addColumn<QByteArrayList>("paths");
        using Ppd = QueueDetails::Ppd;
        const QByteArray ppd("/printers/all.ppd");
        const QByteArray queue("/printers/all");
        const QByteArray members("/printers/office.ppd");
        const auto row = [](const char *name, const QString &member, bool known, int status,
                            Ppd state, const QByteArrayList &paths) {
            QTest::newRow(name) << member << known << status << state << paths;
        };
        row("there", {}, false, 200, Ppd::Read, {ppd});
        row("refused", {}, false, 403, Ppd::Unknown, {ppd});
        row("none", {}, false, 404, Ppd::None, {ppd, queue});
        row("class", u"office"_s, true, 200, Ppd::Read, {queue, members});
        row("class whose member has none", u"office"_s, true, 404, Ppd::None, {queue, members});
        row("class without members", {}, true, 404, Ppd::None, {queue});
        row("nobody knew that it is a class", u"office"_s, false, 200, Ppd::Read,
            {ppd, queue, members});
    }
    void aPpdIsFetchedToBeComparedWithoutAskingForMore()
    {
        QFETCH(QString, member);
        QFETCH(bool, knownAsClass);
        QFETCH(int, status);
        QFETCH(QueueDetails::Ppd, state);
        QFETCH(QByteArrayList, paths);
        const CannedServer server([&](const CannedRequest &request) {
            if (request.operation == 0 && !member.isEmpty() &&
                !request.head.path.contains(member.toUtf8()))
                return httpAnswer(404); // classes have no PPD of their own
            if (request.operation == 0)
                return httpAnswer(status, status == 200 ? kPpd : QByteArray());
            ipp_t *answer = newIppAnswer();
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "all");
            if (!member.isEmpty())
                ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "member-names", nullptr,
                             member.toUtf8().constData());
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        Printer printer = queueOfName(u"all"_s);
        printer.isClass = knownAsClass;
        const QueueDetails details = fetchPpdOnly(connection, printer);
        QCOMPARE(details.state, state);
        QCOMPARE(bool(details.problem), state == QueueDetails::Ppd::Unknown);
        QCOMPARE(!details.ppd.isEmpty(), state == QueueDetails::Ppd::Read);
        QByteArrayList asked;
        for (const CannedRequest &request : server.requests()) {
            asked += request.head.path;
            if (request.operation != 0)
                QVERIFY(!request.values("requested-attributes").contains(u"all"_s));
        }
        QCOMPARE(asked, paths);
    }

    void aQueueThatWentAwayHasNoPpd()
    {
        const CannedServer server([](const CannedRequest &request) {
            return request.operation == 0 ? httpAnswer(404)
                                          : ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_FOUND));
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const QueueDetails details = fetchPpdOnly(connection, queueOfName(u"gone"_s));
        QCOMPARE(details.state, QueueDetails::Ppd::Unknown);
        QCOMPARE(details.problem.kind, ServerProblem::Kind::NotFound);
    }

    void aQueueThatIsNotThereIsSaid()
    {
        const CannedServer server([](const CannedRequest &) {
            return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_FOUND));
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const QueueDetails details = inspectQueue(connection, queueOfName(u"gone"_s));
        QCOMPARE(details.state, QueueDetails::Ppd::Unknown);
        QCOMPARE(details.problem.kind, ServerProblem::Kind::NotFound);
        QCOMPARE(server.requests().size(), 1); // no PPD is asked for
    }

    void requestsGoToThePathOfThePrinter_data()
    {
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QByteArray>("resource");
        QTest::newRow("queue") << u"ipp://localhost/printers/a"_s << QByteArray("/printers/a");
        QTest::newRow("escaped") << u"ipp://localhost/printers/B%C3%BCro"_s
                                 << QByteArray("/printers/Büro");
        QTest::newRow("device") << u"ipp://printer.example:8631/ipp/print"_s
                                << QByteArray("/ipp/print");
        QTest::newRow("nothing") << QString() << QByteArray("/");
        QTest::newRow("no URI") << u"printer"_s << QByteArray("/");
    }
    void requestsGoToThePathOfThePrinter()
    {
        QFETCH(QString, uri);
        QFETCH(QByteArray, resource);
        Printer printer;
        printer.uri = uri;
        QCOMPARE(resourceOf(printer), resource);
    }
};

QTEST_GUILESS_MAIN(QueueRequestsTest)
#include "queue_requests_test.moc"
