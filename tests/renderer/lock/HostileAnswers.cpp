#include "tests/renderer/lock/HostileAnswers.h"

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstring>
#include <iterator>
#include <vector>

#include <unistd.h>

#include "renderer/protocol/MessageReading.h"
#include "renderer/protocol/MessageSocket.h"

namespace corvana::test {

using namespace renderer;

namespace {

struct Wire
{
    int socket;
    Received received;
    Header request;

    bool receive()
    {
        received = receiveMessage(socket);
        if (received.state != Received::State::Message)
            return false;
        std::memcpy(&request, received.room.data(), sizeof(request));
        return true;
    }
    bool isOpening() const { return request.kind == Kind::OpenDocument; }

    template <typename Answer> void answer(Answer answer, int descriptor = -1) const
    {
        sendMessage(socket, answer, descriptor);
    }
    void answerOpened() const
    {
        auto answer = made<Opened>(request.sequence);
        answer.pages = 100;
        sendMessage(socket, answer);
    }
    template <typename Answer> Answer to() const { return made<Answer>(request.sequence); }
};

struct Manner
{
    const char *name;
    /// Answers one request.
    void (*answer)(Wire &wire);
};

template <typename Change> void drawnBut(Wire &wire, Change change)
{
    if (wire.isOpening())
        return wire.answerOpened();
    auto answer = wire.to<Drawn>();
    change(answer);
    wire.answer(answer);
}

template <typename Change> void openedBut(Wire &wire, Change change)
{
    auto answer = wire.to<Opened>();
    answer.pages = 1;
    change(answer);
    wire.answer(answer);
}

void sendBytes(Wire &wire, std::size_t size)
{
    const std::vector<std::byte> bytes(size);
    sendMessage(wire.socket,
                std::span<const std::byte>(bytes)); // the filter lets no other call send
}

/// Every pixel transparent, and another one every time it is looked at.
[[noreturn]] void writeOnAndOn(Wire &wire)
{
    const Descriptor picture = std::move(wire.received.descriptor);
    std::vector<std::uint32_t> row(256, 0x00123456);
    const auto write = [&] {
        for (off_t at = 0; at < 64; ++at)
            (void)!::pwrite(picture.get(), row.data(), row.size() * 4, at * 1024);
    };
    write();
    wire.answer(wire.to<Drawn>());
    while (true) {
        std::fill(row.begin(), row.end(), ++row[0]);
        write();
    }
}

const Manner kManners[] = {
    {"another version", [](Wire &wire) { drawnBut(wire, [](Drawn &m) { ++m.header.version; }); }},
    {"another sequence", [](Wire &wire) { drawnBut(wire, [](Drawn &m) { ++m.header.sequence; }); }},
    {"another kind",
     [](Wire &wire) { drawnBut(wire, [](Drawn &m) { m.header.kind = Kind::Closed; }); }},
    {"another status", [](Wire &wire) { drawnBut(wire, [](Drawn &m) { m.status = Status{77}; }); }},
    {"refusing", [](Wire &wire) { drawnBut(wire, [](Drawn &m) { m.status = Status::Refused; }); }},
    {"a request", [](Wire &wire) { sendMessage(wire.socket, wire.received.bytes()); }},
    {"an empty message", [](Wire &wire) { sendBytes(wire, 0); }},
    {"a short message", [](Wire &wire) { sendBytes(wire, 3); }},
    {"a long message", [](Wire &wire) { sendBytes(wire, kLargestMessage + 100); }},
    {"a descriptor",
     [](Wire &wire) {
         wire.isOpening() ? wire.answerOpened() : wire.answer(wire.to<Drawn>(), STDERR_FILENO);
     }},
    {"no pages", [](Wire &wire) { openedBut(wire, [](Opened &m) { m.pages = 0; }); }},
    {"endless pages", [](Wire &wire) { openedBut(wire, [](Opened &m) { m.pages = 0xffffffff; }); }},
    {"two answers",
     [](Wire &wire) {
         if (wire.isOpening())
             return wire.answerOpened();
         wire.answer(wire.to<Drawn>());
         wire.answer(wire.to<Drawn>());
     }},
    {"answers before questions",
     [](Wire &wire) {
         for (std::uint32_t i = 0; i < 10000; ++i)
             wire.answer(made<Drawn>(i));
     }},
    {"looping",
     [](Wire &wire) {
         if (wire.isOpening())
             return wire.answerOpened();
         while (true) {
         }
     }},
    {"looping at once",
     [](Wire &) {
         while (true) {
         }
     }},
    {"dying while opening", [](Wire &) { ::_exit(1); }},
    {"dying while drawing",
     [](Wire &wire) {
         if (wire.isOpening())
             return wire.answerOpened();
         std::raise(SIGABRT);
     }},
    {"writing on", [](Wire &wire) { wire.isOpening() ? wire.answerOpened() : writeOnAndOn(wire); }},
};

} // namespace

bool answerBadly(std::string_view manner, int socket, const Locks &locks)
{
    Wire wire{socket, {}, {}};
    if (manner == "never ready") {
        ::pause();
        return true;
    }
    if (manner == "dying at once")
        return true;
    if (manner == "nonsense at once") {
        sendBytes(wire, 24);
        return true;
    }
    const auto *const found =
        std::find_if(std::begin(kManners), std::end(kManners),
                     [manner](const Manner &row) { return row.name == manner; });
    if (found == std::end(kManners))
        return false;
    auto ready = made<Ready>(0);
    ready.filtersCalls = locks.filtersCalls ? 1 : 0;
    ready.fencesFiles = static_cast<std::uint32_t>(locks.fencesFiles);
    wire.answer(ready);
    while (wire.receive())
        found->answer(wire);
    return true;
}

} // namespace corvana::test
