#include <QBuffer>
#include <QTest>

#include "tests/dialog/server/EarlyServer.h"
#include "tests/dialog/server/ServerScene.h"
#include "tests/support/Rows.h"
#include "tests/support/cups/CannedServer.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Kind = ServerProblem::Kind;

struct Early
{
    const char *name;
    CannedAnswer answer;
    Kind kind;
    QString detail;
    ipp_status_t status = IPP_STATUS_OK;
};

CannedAnswer saying(ipp_status_t status, const char *message)
{
    ipp_t *answer = newIppAnswer(status);
    ippAddString(answer, IPP_TAG_OPERATION, IPP_TAG_TEXT, "status-message", nullptr, message);
    return ippAnswer(answer);
}

const QList<Early> &earlyAnswers()
{
    static const QList<Early> all{
        {"busy", saying(IPP_STATUS_ERROR_BUSY, "Too busy for you"), Kind::Refused,
         u"Too busy for you"_s, IPP_STATUS_ERROR_BUSY},
        {"takes no jobs", saying(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS, "Closed"), Kind::Refused,
         u"Closed"_s, IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS},
        {"there is none", saying(IPP_STATUS_ERROR_NOT_FOUND, "Gone"), Kind::NotFound, u"Gone"_s,
         IPP_STATUS_ERROR_NOT_FOUND},
        {"503", httpAnswer(503), Kind::Refused, u"Service Unavailable"_s,
         IPP_STATUS_ERROR_SERVICE_UNAVAILABLE},
        {"413", httpAnswer(413), Kind::Refused, u"Request Entity Too Large"_s,
         IPP_STATUS_ERROR_REQUEST_ENTITY},
        {"403", httpAnswer(403), Kind::Forbidden, {}},
        {"401",
         httpAnswer(401, {}, "WWW-Authenticate: Basic realm=\"Test\"\r\n"),
         Kind::PasswordNeeded,
         {}},
        // It cannot have what it has not been given.
        {"well done", saying(IPP_STATUS_OK, "Printed"), Kind::NotUnderstood, {}},
        {"well done, as HTTP says it", httpAnswer(204), Kind::NotUnderstood, u"No Content"_s},
    };
    return all;
}

// More than the sockets of both sides hold.
constexpr qsizetype kDocument = 30 << 20;

} // namespace

/// A server that answers before it has the whole document: what it says is what is told.
class ServerEarlyAnswerTest : public QObject
{
    Q_OBJECT

    static void rows()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("hangsUp");
        for (int row = 0; row < earlyAnswers().size(); ++row) {
            for (const int after : {1, 3 << 20}) {
                for (const bool hangsUp : {false, true}) {
                    const QByteArray name = QByteArray(earlyAnswers().at(row).name) +
                                            (after > 1 ? ", in the midst" : ", at once") +
                                            (hangsUp ? ", and hangs up" : "");
                    QTest::newRow(name.constData()) << row << after << hangsUp;
                }
            }
        }
    }

private Q_SLOTS:
    void whatAServerSaysBeforeItHasTheDocumentIsTold_data() { rows(); }
    void whatAServerSaysBeforeItHasTheDocumentIsTold()
    {
        QFETCH(int, row);
        QFETCH(int, after);
        QFETCH(bool, hangsUp);
        const Early &early = earlyAnswers().at(row);
        const EarlyServer server(early.answer.bytes, after,
                                 hangsUp ? EarlyServer::Then::HangsUp : EarlyServer::Then::Waits);
        QBuffer document;
        document.setData(QByteArray(kDocument, 'x'));
        QVERIFY(document.open(QIODevice::ReadOnly));
        // Longer than a test may take: what was said is heard while the document is stuck.
        ServerConnection connection(contextFor(server.port(), std::chrono::hours(1)), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        const ServerProblem &problem = connection.problem();
        QVERIFY2(problem.kind == early.kind,
                 qPrintable(problem.text(connection.context().address)));
        QCOMPARE(problem.detail, early.detail);
        QCOMPARE(problem.status, early.status);
        QVERIFY(!connection.documentWasSent());
    }

    // "Continue" may come late, while the server takes nothing for a moment.
    void anInterimAnswerInTheMidstEndsNothing()
    {
        constexpr qint64 kTaken = 3 << 20;
        const EarlyServer server("HTTP/1.1 100 Continue\r\n\r\n", kTaken,
                                 EarlyServer::Then::TakesTheRest,
                                 {kDocument - kTaken, saying(IPP_STATUS_OK, "Printed").bytes});
        QBuffer document;
        document.setData(QByteArray(kDocument, 'x'));
        QVERIFY(document.open(QIODevice::ReadOnly));
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY2(connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}),
                 qPrintable(connection.problem().text(connection.context().address)));
        QVERIFY(connection.documentWasSent());
    }

    // Nothing of it is left for the next request, of which the server gets the whole.
    void anAnswerThatCameTooEarlySaysNothingOfTheNext()
    {
        const EarlyServer server(saying(IPP_STATUS_OK, "Done").bytes, 1,
                                 EarlyServer::Then::HangsUp);
        QBuffer document;
        document.setData(QByteArray(kDocument, 'x'));
        QVERIFY(document.open(QIODevice::ReadOnly));
        ServerConnection connection(contextFor(server.port()), nullptr);
        QVERIFY(
            !connection.request(aboutQueue(IPP_OP_PRINT_JOB), "/printers/office", document, {}));
        QVERIFY(connection.problem().kind == Kind::NotUnderstood);
        QVERIFY(connection.request(aboutQueue(IPP_OP_GET_PRINTER_ATTRIBUTES), "/printers/office"));
    }
};

QTEST_GUILESS_MAIN(ServerEarlyAnswerTest)

#include "server_early_answer_test.moc"
