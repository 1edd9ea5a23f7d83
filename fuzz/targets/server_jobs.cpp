#include <QBuffer>

#include "dialog/job/JobEnds.h"
#include "dialog/job/JobRequests.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/printers/QueueRequests.h"
#include "fuzz/support/AnsweringServer.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Divides what is answered to successive requests.
constexpr char kNextAnswer[] = "\n----\n";
constexpr int kMostAnswers = 3;

// A message of IPP, or a PPD, as a server sends it; "404" is what it says where there is none.
QByteArray sent(const QByteArray &content)
{
    if (content == "404")
        return "HTTP/1.1 404 Not Found\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
    return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Type: application/ipp\r\n"
           "Content-Length: " +
           QByteArray::number(content.size()) + "\r\n\r\n" + content;
}

QList<QByteArray> answersIn(QByteArray input)
{
    QList<QByteArray> answers;
    qsizetype end = -1;
    while (answers.size() + 1 < kMostAnswers && (end = input.indexOf(kNextAnswer)) >= 0) {
        answers += sent(input.left(end));
        input = input.mid(end + static_cast<qsizetype>(qstrlen(kNextAnswer)));
    }
    return answers << sent(input);
}

ServerContext contextOf(const AnsweringServer &server)
{
    ServerContext context;
    context.address = *ServerAddress::parse(server.socket());
    context.address.encryption = HTTP_ENCRYPTION_NEVER;
    context.patience = {200ms, 200ms};
    return context;
}

void requirePlain(const QString &text)
{
    require(!text.contains(u'\n') && !text.contains(QChar(0x1b)) && !text.contains(QChar(0)),
            "a server's words are one line without control characters", text);
}

void requireQueues(ServerConnection &connection)
{
    QStringList names;
    const bool isWhole = listQueues(connection, [&](const QList<Printer> &page) {
        for (const Printer &printer : page) {
            require(!printer.name.isEmpty() && !names.contains(printer.name),
                    "a queue is listed once, by a name", printer.name);
            require(printer.uri.startsWith("ipp://localhost/"_L1),
                    "a queue is asked at the server that has it", printer.uri);
            names += printer.name;
        }
    });
    require(isWhole || connection.problem(), "a list that ends early has a reason");
}

void requireDetails(ServerConnection &connection, const Printer &printer)
{
    const QueueDetails details = inspectQueue(connection, printer);
    require(isSameQueue(details.printer.name, printer.name) && details.printer.uri == printer.uri &&
                details.printer.origin == printer.origin,
            "a queue stays the one that was asked about", details.printer.name);
    require((details.state == QueueDetails::Ppd::Unknown) == static_cast<bool>(details.problem),
            "what is not known of a queue has a reason");
    require(details.state != QueueDetails::Ppd::None || details.capabilities,
            "of a printer without a PPD it is known what it can do");
    require((details.state == QueueDetails::Ppd::Read) == !details.ppdHash.isEmpty(),
            "a PPD that was read has a digest");
}

void requireJob(ServerConnection &connection, const Printer &printer)
{
    const std::optional<JobStatus> status = lookUpJob(connection, printer, 7);
    if (!status) {
        require(static_cast<bool>(connection.problem()), "a job that is not known has a reason");
        return;
    }
    requirePlain(status->message);
    const std::optional<Printer> other = movedTo(*status, printer);
    require(!other || (!isSameQueue(other->name, printer.name) &&
                       other->uri.startsWith("ipp://localhost/"_L1)),
            "a job moves to another queue of the same server", other ? other->uri : QString());
    const QByteArray path = other ? resourceOf(*other) : QByteArray("/");
    require(path.startsWith('/'), "a request has a path", QString::fromUtf8(path));
}

void requireNumbers(ServerConnection &connection, const Printer &printer)
{
    JobTicket ticket;
    ticket.title = u"Report"_s;
    ticket.options = {{u"PageSize"_s, u"A4"_s}, {u"media-col"_s, u"{media-type=stationery}"_s}};
    const Credentials forDevice{u"user"_s, u"secret"_s};
    require(unsendableOption(ticket).isEmpty(), "what is usual can be sent");
    const auto created = createJob(connection, printer, ticket, newJobToken(), forDevice);
    require(!created || *created > 0, "a job has a number");
    QByteArray text = "text";
    QBuffer content(&text);
    content.open(QIODevice::ReadOnly);
    const DocumentToSend document{u"text/plain"_s, u"Report"_s, content};
    if (!sendDocument(connection, printer, 7, document, {}))
        require(static_cast<bool>(connection.problem()), "what is not sent has a reason");
}

void requireActsHaveReasons(ServerConnection &connection, const Printer &printer)
{
    const Credentials forDevice{u"user"_s, u"secret"_s};
    if (!authenticateJob(connection, printer, 7, forDevice) || !cancelJob(connection, printer, 7))
        require(static_cast<bool>(connection.problem()), "what is not done has a reason");
}

void requireFound(ServerConnection &connection, const Printer &printer)
{
    const auto found = findJob(connection, printer, u"urn:uuid:0"_s);
    require(!found || *found >= 0, "a job has a number");
}

void requireEnd(ServerConnection &connection)
{
    JobEnds ends;
    ends.remember(connection);
    ends.keepRemembering(connection);
    const std::optional<JobStatus> end = ends.endOf(connection, 7);
    require(!end || end->isOver(), "a job has ended, or its end is not known");
    if (end)
        requirePlain(end->message);
    ends.forget(connection);
}

/// Input: what a server answers to successive requests about its queues and jobs, each a message of
/// IPP or a PPD. Each queue is listed once and asked at the same server; a queue stays the one that
/// was asked about; what is not known has a reason; a number of a job is one; and an end is one.
void run(const QByteArray &input)
{
    static AnsweringServer server;
    const QList<QByteArray> answers = answersIn(input);
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    printer.name = u"lobby"_s;
    printer.uri = queueUri(printer.name, false);
    printer.authInfo = {u"username"_s, u"password"_s, u"domain"_s};
    Printer device = printer;
    device.origin = PrinterOrigin::Device;
    const auto asked = [&](const auto &ask) {
        server.setAnswers(answers);
        ServerConnection connection(contextOf(server), nullptr);
        ask(connection);
    };
    asked([](ServerConnection &connection) { requireQueues(connection); });
    asked([&](ServerConnection &connection) { requireDetails(connection, printer); });
    asked([&](ServerConnection &connection) { fetchPpdOnly(connection, printer); });
    asked([&](ServerConnection &connection) { requireDetails(connection, device); });
    asked([&](ServerConnection &connection) { requireActsHaveReasons(connection, printer); });
    asked([&](ServerConnection &connection) { requireJob(connection, printer); });
    asked([&](ServerConnection &connection) { requireNumbers(connection, printer); });
    asked([&](ServerConnection &connection) { requireFound(connection, printer); });
    asked([](ServerConnection &connection) { requireEnd(connection); });
    asked([](ServerConnection &connection) { requirePlain(defaultQueue(connection)); });
    asked([&](ServerConnection &connection) { whyNotAccepting(connection, printer); });
}

const Target target("server_jobs", run);

} // namespace

} // namespace corvana::fuzz
