#include <array>

#include <QBuffer>
#include <QTest>

#include "dialog/job/JobRequests.h"
#include "tests/support/cups/CannedServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kToken = u"urn:uuid:00000000-0000-4000-8000-000000000001"_s;
constexpr auto kTokenAttribute = "corvana-job-token";

ServerContext contextFor(quint16 port)
{
    ServerContext context;
    context.address = {u"127.0.0.1"_s, port, HTTP_ENCRYPTION_IF_REQUESTED};
    return context;
}

Printer office()
{
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    printer.name = u"office"_s;
    printer.uri = u"ipp://localhost/printers/office"_s;
    return printer;
}

/// A server that makes job 7 of everything.
CannedAnswer jobSeven(const CannedRequest &)
{
    ipp_t *answer = newIppAnswer();
    ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 7);
    return ippAnswer(answer);
}

/// What a server tells of one job in a list.
struct ListedJob
{
    int id = 0;
    QString token{};
};

} // namespace

class JobRequestsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatServersDropOrCutIsNotSent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("isSendable");
        const QString name = u"QXName"_s;
        QTest::newRow("plain") << name << u"Hall 2, left"_s << true;
        QTest::newRow("empty value") << name << QString() << true;
        QTest::newRow("as long as can be") << name << QString(255, u'x') << true;
        QTest::newRow("one too long") << name << QString(256, u'x') << false;
        // It is bytes that count: three for each of these.
        QTest::newRow("85 characters") << name << QString(85, u'会') << true;
        QTest::newRow("86 characters") << name << QString(86, u'会') << false;
        QTest::newRow("long name") << QString(256, u'x') << u"1"_s << false;
        QTest::newRow("line break") << name << u"a\nb"_s << false;
        QTest::newRow("tab") << name << u"a\tb"_s << false;
        QTest::newRow("second set of controls") << name << u"a\u009bb"_s << false;
        QTest::newRow("control in the name") << u"QX\nName"_s << u"1"_s << false;
        QTest::newRow("brace in front") << name << u"{a=b}"_s << false;
        QTest::newRow("brace behind") << name << u"a{b}"_s << true;
        QTest::newRow("quotes and commas") << name << u"'a', \"b\""_s << true;
        QTest::newRow("emoji") << name << u"🖨"_s << true;
    }
    void whatServersDropOrCutIsNotSent()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(bool, isSendable);
        const QString problem =
            unsendableOption({u"title"_s, 1, {{u"media"_s, u"A4"_s}, {name, value}}});
        QCOMPARE(problem.isEmpty(), isSendable);
        if (!isSendable)
            QVERIFY(problem.contains(name));
    }

    void everyKindOfOptionArrivesInItsType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("sent");
        const auto row = [](const char *name, const char *value, int group, int type,
                            const QStringList &sent) {
            QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(value) << group
                                << type << sent;
        };
        row("QXColorMode", "Vivid", IPP_TAG_JOB, IPP_TAG_NAME, {u"Vivid"_s});
        row("media", "iso_a4_210x297mm", IPP_TAG_JOB, IPP_TAG_KEYWORD, {u"iso_a4_210x297mm"_s});
        row("sides", "two-sided-long-edge", IPP_TAG_JOB, IPP_TAG_KEYWORD,
            {u"two-sided-long-edge"_s});
        row("number-up", "4", IPP_TAG_JOB, IPP_TAG_INTEGER, {u"4"_s});
        row("print-quality", "5", IPP_TAG_JOB, IPP_TAG_ENUM, {u"5"_s});
        row("finishings", "4,5", IPP_TAG_JOB, IPP_TAG_ENUM, {u"4"_s, u"5"_s});
        row("job-priority", "50", IPP_TAG_JOB, IPP_TAG_INTEGER, {u"50"_s});
        row("job-hold-until", "indefinite", IPP_TAG_JOB, IPP_TAG_KEYWORD, {u"indefinite"_s});
        row("job-sheets", "confidential,none", IPP_TAG_JOB, IPP_TAG_NAME,
            {u"confidential"_s, u"none"_s});
        row("PageSize", "Custom.100x200mm", IPP_TAG_JOB, IPP_TAG_NAME, {u"Custom.100x200mm"_s});
        row("QXUmlaut", "größer 会", IPP_TAG_JOB, IPP_TAG_NAME, {u"größer 会"_s});
    }
    void everyKindOfOptionArrivesInItsType()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(int, group);
        QFETCH(int, type);
        QFETCH(QStringList, sent);
        const CannedServer server(jobSeven);
        ServerConnection connection(contextFor(server.port()), nullptr);
        const auto job =
            createJob(connection, office(), {u"title"_s, 3, {{name, value}}}, kToken, std::nullopt);
        QCOMPARE(job.value_or(0), 7);
        const CannedRequest request = server.requests().constFirst();
        QCOMPARE(request.operation, int(IPP_OP_CREATE_JOB));
        QCOMPARE(request.head.path, QByteArray("/printers/office"));
        QCOMPARE(request.values(name.toUtf8().constData()), sent);
        const auto attribute = request.find(name.toUtf8().constData());
        QCOMPARE(attribute.group, group);
        QCOMPARE(attribute.type, type);
        QCOMPARE(request.value("copies"), u"3"_s);
        QCOMPARE(request.value("job-name"), u"title"_s);
        QCOMPARE(request.value("printer-uri"), u"ipp://localhost/printers/office"_s);
    }

    void theTitleIsCutBetweenCharacters_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("characters");
        QTest::newRow("fits") << QString(255, u'x') << 255;
        QTest::newRow("ASCII") << QString(300, u'x') << 255;
        QTest::newRow("three bytes each") << QString(100, u'会') << 85;
        QTest::newRow("two bytes each") << QString(200, u'ü') << 127;
        QTest::newRow("four bytes each") << u"🖨"_s.repeated(100) << 126; // UTF-16: two each
        QTest::newRow("four bytes and one") << u"x"_s + u"🖨"_s.repeated(100) << 127;
    }
    void theTitleIsCutBetweenCharacters()
    {
        QFETCH(QString, title);
        QFETCH(int, characters);
        const CannedServer server(jobSeven);
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(createJob(connection, office(), {title, 1, {}}, kToken, std::nullopt));
        QBuffer document;
        document.setData("x");
        QVERIFY(document.open(QIODevice::ReadOnly));
        QVERIFY(sendDocument(connection, office(), 7, {u"text/plain"_s, title, document}, {}));
        const QString cut = title.left(characters);
        QCOMPARE(server.requests().at(0).value("job-name"), cut);
        QCOMPARE(server.requests().at(1).value("document-name"), cut);
    }

    void thePasswordOfADeviceGoesInTheOrderThatItWants_data()
    {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QStringList>("sent");
        QTest::newRow("both") << QStringList{u"username"_s, u"password"_s}
                              << QStringList{u"lisa"_s, u"secret"_s};
        QTest::newRow("turned round")
            << QStringList{u"password"_s, u"username"_s} << QStringList{u"secret"_s, u"lisa"_s};
        QTest::newRow("with a domain") << QStringList{u"domain"_s, u"username"_s, u"password"_s}
                                       << QStringList{QString(), u"lisa"_s, u"secret"_s};
        QTest::newRow("password only") << QStringList{u"password"_s} << QStringList{u"secret"_s};
    }
    void thePasswordOfADeviceGoesInTheOrderThatItWants()
    {
        QFETCH(QStringList, wanted);
        QFETCH(QStringList, sent);
        const CannedServer server(jobSeven);
        ServerConnection connection(contextFor(server.port()), nullptr);
        Printer printer = office();
        printer.authInfo = wanted;
        QVERIFY(createJob(connection, printer, {u"t"_s, 1, {}}, kToken,
                          Credentials{u"lisa"_s, u"secret"_s}));
        QCOMPARE(server.requests().at(0).values("auth-info"), sent);
        QVERIFY(createJob(connection, printer, {u"t"_s, 1, {}}, kToken, std::nullopt));
        QVERIFY(server.requests().at(1).values("auth-info").isEmpty());
    }

    void anAnswerWithoutANumberIsNoJob_data()
    {
        QTest::addColumn<int>("number"); // -1: none
        QTest::newRow("none") << -1;
        QTest::newRow("zero") << 0;
    }
    void anAnswerWithoutANumberIsNoJob()
    {
        QFETCH(int, number);
        const CannedServer server([&](const CannedRequest &) {
            ipp_t *answer = newIppAnswer();
            if (number >= 0)
                ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", number);
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(!createJob(connection, office(), {u"t"_s, 1, {}}, kToken, std::nullopt));
        QVERIFY(!connection.problem());
    }

    void everyJobHasATokenOfItsOwn()
    {
        const CannedServer server(jobSeven);
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(newJobToken() != newJobToken());
        const QString token = newJobToken();
        QVERIFY(createJob(connection, office(), {u"t"_s, 1, {}}, token, std::nullopt));
        const CannedRequest request = server.requests().constFirst();
        QCOMPARE(request.value(kTokenAttribute), token);
        // What is no URI would get into the options of the filters.
        QCOMPARE(request.find(kTokenAttribute).type, int(IPP_TAG_URI));
        QCOMPARE(request.find(kTokenAttribute).group, int(IPP_TAG_JOB));
    }

    void aJobIsFoundByItsToken_data()
    {
        QTest::addColumn<QList<ListedJob>>("jobs");
        QTest::addColumn<int>("found");
        const QString other = u"urn:uuid:00000000-0000-4000-8000-000000000002"_s;
        QTest::newRow("none at all") << QList<ListedJob>{} << 0;
        QTest::newRow("the only one") << QList<ListedJob>{{7, kToken}} << 7;
        QTest::newRow("the last one") << QList<ListedJob>{{5, other}, {6, {}}, {7, kToken}} << 7;
        QTest::newRow("the first one") << QList<ListedJob>{{5, kToken}, {6, other}, {7, {}}} << 5;
        QTest::newRow("those of others") << QList<ListedJob>{{5, other}, {6, {}}} << 0;
        QTest::newRow("without a number") << QList<ListedJob>{{0, kToken}, {6, {}}} << 0;
    }
    void aJobIsFoundByItsToken()
    {
        QFETCH(QList<ListedJob>, jobs);
        QFETCH(int, found);
        // Servers order the attributes of a job as they like.
        for (const bool numberFirst : {true, false}) {
            const CannedServer server([&](const CannedRequest &) {
                ipp_t *answer = newIppAnswer();
                for (const ListedJob &job : jobs) {
                    ippAddSeparator(answer);
                    const auto number = [&] {
                        if (job.id > 0)
                            ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", job.id);
                    };
                    if (numberFirst)
                        number();
                    if (!job.token.isEmpty())
                        ippAddString(answer, IPP_TAG_JOB, IPP_TAG_URI, kTokenAttribute, nullptr,
                                     job.token.toUtf8().constData());
                    if (!numberFirst)
                        number();
                }
                return ippAnswer(answer);
            });
            ServerConnection connection(contextFor(server.port()), nullptr);
            QCOMPARE(findJob(connection, office(), kToken).value_or(-1), found);
            const CannedRequest request = server.requests().constFirst();
            QCOMPARE(request.operation, int(IPP_OP_GET_JOBS));
            QCOMPARE(request.value("printer-uri"), u"ipp://localhost/printers/office"_s);
            QCOMPARE(request.find("my-jobs").truth, true);
            QCOMPARE(request.value("which-jobs"), u"not-completed"_s);
            QCOMPARE(request.values("requested-attributes"),
                     (QStringList{u"job-id"_s, QString::fromLatin1(kTokenAttribute)}));
        }
    }

    void jobsThatNobodyListsAreNotCalledAbsent()
    {
        const CannedServer server([](const CannedRequest &) {
            return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_AUTHORIZED));
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(!findJob(connection, office(), kToken));
        QVERIFY(connection.problem());
    }

    void theDocumentIsTheJobsOnlyOne()
    {
        const CannedServer server(jobSeven);
        ServerConnection connection(contextFor(server.port()), nullptr);
        QBuffer document;
        document.setData(QByteArray(100000, 'x'));
        QVERIFY(document.open(QIODevice::ReadOnly));
        QVERIFY(
            sendDocument(connection, office(), 7, {u"application/pdf"_s, u"t"_s, document}, {}));
        const CannedRequest request = server.requests().constFirst();
        QCOMPARE(request.operation, int(IPP_OP_SEND_DOCUMENT));
        QCOMPARE(request.value("job-id"), u"7"_s);
        QCOMPARE(request.value("document-format"), u"application/pdf"_s);
        QCOMPARE(request.find("last-document").truth, true);
        QCOMPARE(request.document(), document.data());
    }

    void theStateOfAJobIsRead()
    {
        const CannedServer server([](const CannedRequest &) {
            ipp_t *answer = newIppAnswer();
            ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_PROCESSING);
            const std::array<const char *, 2> reasons{"job-printing", "printer-stopped"};
            ippAddStrings(answer, IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons", 2, nullptr,
                          reasons.data());
            ippAddString(answer, IPP_TAG_JOB, IPP_TAG_TEXT, "job-printer-state-message", nullptr,
                         "No\npaper");
            ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-media-sheets-completed", 2);
            ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-impressions-completed", 3);
            ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "number-of-documents", 1);
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const auto status = lookUpJob(connection, office(), 7);
        QVERIFY(status);
        const JobStatus expected{.state = IPP_JSTATE_PROCESSING,
                                 .pages = 3,
                                 .documents = 1,
                                 .message = u"No paper"_s,
                                 .reasons = {u"job-printing"_s, u"printer-stopped"_s},
                                 .printerStopped = true};
        QVERIFY(*status == expected);
        QVERIFY(!status->isOver());
        QCOMPARE(server.requests().at(0).value("job-id"), u"7"_s);
    }

    void whatAServerDoesNotSayOfAJobIsNotKnown()
    {
        const CannedServer server([](const CannedRequest &) {
            ipp_t *answer = newIppAnswer();
            ippAddString(answer, IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state", nullptr, "completed");
            ippAddOutOfBand(answer, IPP_TAG_JOB, IPP_TAG_NOVALUE, "job-impressions-completed");
            ippAddString(answer, IPP_TAG_JOB, IPP_TAG_TEXT, "job-state-message", nullptr, "Hm");
            return ippAnswer(answer);
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        const auto status = lookUpJob(connection, office(), 7);
        QVERIFY(status);
        QVERIFY(*status == (JobStatus{.message = u"Hm"_s}));
        QVERIFY(!status->isOver());
    }

    void jobsAreOverInTheirEndStatesOnly_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("isOver");
        QTest::newRow("unknown") << 0 << false;
        QTest::newRow("pending") << int(IPP_JSTATE_PENDING) << false;
        QTest::newRow("held") << int(IPP_JSTATE_HELD) << false;
        QTest::newRow("processing") << int(IPP_JSTATE_PROCESSING) << false;
        QTest::newRow("stopped") << int(IPP_JSTATE_STOPPED) << false;
        QTest::newRow("canceled") << int(IPP_JSTATE_CANCELED) << true;
        QTest::newRow("aborted") << int(IPP_JSTATE_ABORTED) << true;
        QTest::newRow("completed") << int(IPP_JSTATE_COMPLETED) << true;
    }
    void jobsAreOverInTheirEndStatesOnly()
    {
        QFETCH(int, state);
        QFETCH(bool, isOver);
        QCOMPARE((JobStatus{.state = state}.isOver()), isOver);
    }

    void aJobThatNobodyKnowsIsNotFound()
    {
        const CannedServer server([](const CannedRequest &) {
            return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_FOUND));
        });
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(!lookUpJob(connection, office(), 7));
        QCOMPARE(connection.problem().kind, ServerProblem::Kind::NotFound);
        QVERIFY(!cancelJob(connection, office(), 7));
        QCOMPARE(server.requests().at(1).operation, int(IPP_OP_CANCEL_JOB));
        QCOMPARE(server.requests().at(1).value("job-id"), u"7"_s);
    }
};

QTEST_GUILESS_MAIN(JobRequestsTest)
#include "job_requests_test.moc"
