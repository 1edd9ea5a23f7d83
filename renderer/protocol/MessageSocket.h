#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "renderer/protocol/Descriptor.h"
#include "renderer/protocol/Messages.h"

namespace corvana::renderer {

/// A message as it came: nobody has looked into it.
struct Received
{
    enum class State {
        Message,
        Ended, ///< the other side has gone
        Wrong, ///< more bytes or more descriptors than any message has, or the socket fails
    };

    State state = State::Ended;
    std::array<std::byte, kLargestMessage> room{};
    std::size_t size = 0;
    Descriptor descriptor;

    std::span<const std::byte> bytes() const { return std::span(room).first(size); }
};

/// Waits for the next message. Whatever else the other side sends along is closed.
Received receiveMessage(int socket);

/// Sends a message as a whole, with a descriptor unless that is -1. The caller keeps the
/// descriptor. Errors: false when the other side has gone, or takes nothing.
bool sendMessage(int socket, std::span<const std::byte> bytes, int descriptor = -1);

template <typename Message>
requires kIsPlain<Message>
bool sendMessage(int socket, const Message &message, int descriptor = -1)
{
    return sendMessage(socket, std::as_bytes(std::span(&message, 1)), descriptor);
}

} // namespace corvana::renderer
