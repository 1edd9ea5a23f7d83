#include "dialog/server/ServerConnection.h"
#include "fuzz/support/AnsweringServer.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Divides what successive connections are answered.
constexpr char kNextConnection[] = "\n----\n";
constexpr int kMostConnections = 4;

QList<QByteArray> answersIn(QByteArray input)
{
    QList<QByteArray> answers;
    qsizetype end = -1;
    while (answers.size() + 1 < kMostConnections && (end = input.indexOf(kNextConnection)) >= 0) {
        answers += input.left(end);
        input = input.mid(end + static_cast<qsizetype>(qstrlen(kNextConnection)));
    }
    return answers << input;
}

ServerContext contextOf(const AnsweringServer &server)
{
    ServerContext context;
    context.address = *ServerAddress::parse(server.socket());
    context.address.encryption = HTTP_ENCRYPTION_NEVER;
    context.patience = {200ms, 200ms};
    return context;
}

void requireReason(const ServerConnection &connection)
{
    const ServerProblem &problem = connection.problem();
    require(static_cast<bool>(problem), "what failed has a reason");
    for (const QString &text : {problem.text(connection.context().address),
                                problem.brief(connection.context().address)}) {
        require(!text.isEmpty(), "a reason has words");
        require(!text.contains(QChar(0x1b)) && !text.contains(QChar(0)),
                "what a server says is shown without control characters", text);
    }
    problem.mayPass();
}

// libcups loses what it unpacks an answer with when that is damaged; nobody here asks for packed
// ones. Null where nothing looks for leaks.
extern "C" {
__attribute__((weak)) void __lsan_disable();
__attribute__((weak)) void __lsan_enable();
}

class PackedAnswer
{
public:
    explicit PackedAnswer(const QByteArray &input)
        : m_isPacked(__lsan_disable && input.toLower().contains("content-encoding"))
    {
        if (m_isPacked)
            __lsan_disable();
    }
    ~PackedAnswer()
    {
        if (m_isPacked)
            __lsan_enable();
    }
    PackedAnswer(const PackedAnswer &) = delete;
    PackedAnswer &operator=(const PackedAnswer &) = delete;

private:
    bool m_isPacked;
};

/// Input: what a server says over HTTP, connection by connection. Asked by IPP and for a file,
/// there is an answer that is whole and is no refusal, or a reason in words that no terminal obeys;
/// and both within the patience.
void run(const QByteArray &input)
{
    static AnsweringServer server;
    const PackedAnswer packed(input);
    const QList<QByteArray> answers = answersIn(input);
    const auto begin = std::chrono::steady_clock::now();

    server.setAnswers(answers);
    ServerConnection asking(contextOf(server), nullptr);
    const IppMessage answer = asking.request(newIppRequest(IPP_OP_GET_PRINTER_ATTRIBUTES));
    if (answer)
        require(ippGetStatusCode(answer.get()) < IPP_STATUS_ERROR_BAD_REQUEST,
                "an answer is no refusal");
    else
        requireReason(asking);

    server.setAnswers(answers);
    ServerConnection fetching(contextOf(server), nullptr);
    const ServerConnection::File file = fetching.get("/printers/a.ppd");
    if (file.state == ServerConnection::File::State::Failed)
        requireReason(fetching);
    require(file.state == ServerConnection::File::State::Read || file.content.isEmpty(),
            "a file that was not read has no content");

    require(std::chrono::steady_clock::now() - begin < 5s,
            "a server is waited for as long as said");
}

const Target target("http_answer", run);

} // namespace

} // namespace corvana::fuzz
