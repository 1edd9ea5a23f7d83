#include "renderer/protocol/MessageSocket.h"

#include <cerrno>
#include <cstring>

#include <sys/socket.h>

namespace corvana::renderer {

namespace {

// Room for more descriptors than a message may have, so that they arrive and are closed here.
constexpr std::size_t kDescriptorRoom = 8;

/// Takes the descriptors out of a message. Answers how many there were; the first one is kept.
int takeDescriptors(msghdr &message, Descriptor &first)
{
    int count = 0;
    for (cmsghdr *part = CMSG_FIRSTHDR(&message); part; part = CMSG_NXTHDR(&message, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        const std::size_t bytes = part->cmsg_len - CMSG_LEN(0);
        for (std::size_t at = 0; at + sizeof(int) <= bytes; at += sizeof(int)) {
            int descriptor = -1;
            std::memcpy(&descriptor, CMSG_DATA(part) + at, sizeof(int));
            Descriptor taken(descriptor);
            if (count++ == 0)
                first = std::move(taken);
        }
    }
    return count;
}

} // namespace

Received receiveMessage(int socket)
{
    Received received;
    alignas(cmsghdr) std::array<std::byte, CMSG_SPACE(kDescriptorRoom * sizeof(int))> control{};
    iovec part{received.room.data(), received.room.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    ssize_t size = 0;
    do {
        size = ::recvmsg(socket, &message, MSG_CMSG_CLOEXEC);
    } while (size < 0 && errno == EINTR);
    if (size < 0) {
        received.state = errno == ECONNRESET ? Received::State::Ended : Received::State::Wrong;
        return received;
    }
    const int descriptors = takeDescriptors(message, received.descriptor);
    // An empty message cannot be told from the end, and there is none.
    if (size == 0)
        return received;
    received.size = static_cast<std::size_t>(size);
    const bool isCut = (message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0;
    received.state = isCut || descriptors > 1 ? Received::State::Wrong : Received::State::Message;
    return received;
}

bool sendMessage(int socket, std::span<const std::byte> bytes, int descriptor)
{
    iovec part{const_cast<std::byte *>(bytes.data()), bytes.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    alignas(cmsghdr) std::array<std::byte, CMSG_SPACE(sizeof(int))> control{};
    if (descriptor >= 0) {
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        cmsghdr *rights = CMSG_FIRSTHDR(&message);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(sizeof(int));
        std::memcpy(CMSG_DATA(rights), &descriptor, sizeof(int));
    }
    ssize_t sent = 0;
    do {
        sent = ::sendmsg(socket, &message, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(bytes.size());
}

} // namespace corvana::renderer
