#include <array>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>

#include <QFile>

#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"
#include "renderer/Service.h"
#include "renderer/protocol/MessageReading.h"

namespace corvana::fuzz {

namespace {

using namespace renderer;

// Requests stand one behind the other in the input, each behind a byte that says how it comes.
constexpr unsigned char kBringsDescriptor = 1;
constexpr int kMostRequests = 8;
constexpr std::uint32_t kLargestDrawn = 64; // pixels; Poppler's own time is nobody's find

struct Sent
{
    QByteArray bytes;
    bool hasDescriptor = false;
    std::optional<Request> request{};
};

std::size_t sizeOf(Kind kind)
{
    switch (kind) {
    case Kind::OpenDocument:
        return sizeof(OpenDocument);
    case Kind::ListSizes:
        return sizeof(ListSizes);
    case Kind::DrawPage:
        return sizeof(DrawPage);
    case Kind::CloseDocument:
        return sizeof(CloseDocument);
    case Kind::CheckDocument:
        return sizeof(CheckDocument);
    case Kind::CopyDocument:
        return sizeof(CopyDocument);
    case Kind::ListLabels:
        return sizeof(ListLabels);
    default:
        return sizeof(Header);
    }
}

std::span<const std::byte> bytesOf(const QByteArray &bytes)
{
    return std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

std::vector<Sent> requestsIn(const QByteArray &input)
{
    std::vector<Sent> requests;
    qsizetype at = 0;
    while (at < input.size() && requests.size() < kMostRequests) {
        Sent sent;
        sent.hasDescriptor = (static_cast<unsigned char>(input.at(at++)) & kBringsDescriptor) != 0;
        Header header;
        const QByteArray head = input.mid(at, sizeof header);
        std::size_t size = sizeof header;
        if (head.size() == sizeof header) {
            std::memcpy(&header, head.constData(), sizeof header);
            size = sizeOf(header.kind);
        }
        sent.bytes = input.mid(at, static_cast<qsizetype>(size));
        at += sent.bytes.size();
        if (sent.bytes.isEmpty())
            break;
        sent.request = readRequest(bytesOf(sent.bytes), sent.hasDescriptor);
        requests.push_back(std::move(sent));
    }
    return requests;
}

void requireWhole(const Sent &sent)
{
    if (!sent.request)
        return;
    std::visit(
        [&](const auto &message) {
            require(sent.bytes.size() == sizeof message &&
                        std::memcmp(sent.bytes.constData(), &message, sizeof message) == 0,
                    "a request that is read is exactly what was sent");
            require(message.header.bytes == sizeof message && message.header.sequence != 0,
                    "a request says its size and its number");
        },
        *sent.request);
    if (const auto *draw = std::get_if<DrawPage>(&*sent.request))
        require(isPictureSize(draw->width, draw->height), "a picture that is drawn has bounds");
    if (const auto *open = std::get_if<OpenDocument>(&*sent.request))
        require(open->passwordBytes < kPasswordRoom, "a password ends within its room");
}

template <typename Answer> bool isAnswer(const Received &received, std::uint32_t sequence)
{
    return readAnswer<Answer>(received.bytes(), static_cast<bool>(received.descriptor), sequence)
        .has_value();
}

bool isAnswerTo(const Request &request, const Received &received)
{
    return std::visit(
        [&](const auto &message) {
            using Message = std::decay_t<decltype(message)>;
            const std::uint32_t sequence = message.header.sequence;
            if constexpr (std::is_same_v<Message, OpenDocument>)
                return isAnswer<Opened>(received, sequence);
            else if constexpr (std::is_same_v<Message, ListSizes>)
                return isAnswer<Sizes>(received, sequence);
            else if constexpr (std::is_same_v<Message, ListLabels>)
                return isAnswer<Labels>(received, sequence);
            else if constexpr (std::is_same_v<Message, DrawPage>)
                return isAnswer<Drawn>(received, sequence);
            else if constexpr (std::is_same_v<Message, CloseDocument>)
                return isAnswer<Closed>(received, sequence);
            else if constexpr (std::is_same_v<Message, CheckDocument>)
                return isAnswer<Checked>(received, sequence);
            else
                return isAnswer<Copied>(received, sequence);
        },
        request);
}

QByteArray smallPdf()
{
    QFile file(QStringLiteral(CORVANA_FUZZ_SOURCE_DIR "/tests/data/pages.pdf"));
    require(file.open(QIODevice::ReadOnly), "there is a document", file.fileName());
    return file.readAll();
}

/// Input: what a client says to the renderer. A message that is not exactly a request ends the
/// conversation; each request before it has one answer, in order, which the client's own reading
/// takes.
void run(const QByteArray &input)
{
    static const QByteArray pdf = smallPdf();
    const std::vector<Sent> requests = requestsIn(input);
    std::array<int, 2> sockets{};
    require(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets.data()) == 0,
            "there are sockets");
    const Descriptor client(sockets[0]);
    const Descriptor server(sockets[1]);
    std::size_t understood = 0;
    bool isSense = true;
    for (const Sent &sent : requests) {
        requireWhole(sent);
        const auto *draw = sent.request ? std::get_if<DrawPage>(&*sent.request) : nullptr;
        if (draw && (draw->width > kLargestDrawn || draw->height > kLargestDrawn))
            break;
        const MemoryFile document(
            draw ? QByteArray(static_cast<qsizetype>(pictureBytes(draw->width, draw->height)), 0)
                 : pdf);
        if (draw)
            ::fcntl(document.descriptor(), F_ADD_SEALS, F_SEAL_SHRINK);
        require(sendMessage(client.get(), bytesOf(sent.bytes),
                            sent.hasDescriptor ? document.descriptor() : -1),
                "a message can be sent");
        if (!sent.request) {
            isSense = false;
            break;
        }
        ++understood;
    }
    ::shutdown(client.get(), SHUT_WR);
    require(Service(server.get()).run() == isSense, "what is no request ends the conversation");
    ::shutdown(server.get(), SHUT_WR);
    for (std::size_t i = 0; i < understood; ++i) {
        const Received received = receiveMessage(client.get());
        require(received.state == Received::State::Message, "each request is answered once");
        require(isAnswerTo(*requests[i].request, received),
                "an answer is one that the client takes");
    }
    require(receiveMessage(client.get()).state == Received::State::Ended,
            "nothing is answered that nobody has asked");
}

const Target target("renderer_request", run);

} // namespace

} // namespace corvana::fuzz
