// corvana-page-renderer: looks into documents and draws their pages for another program, which need
// not trust the documents, nor this program. It is started by that program with a socket as
// descriptor 3 (see protocol/Messages.h), and of no use to anybody else.

#include <csignal>
#include <cstdio>
#include <optional>

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <poppler-global.h>

#include "renderer/Fonts.h"
#include "renderer/Service.h"
#include "renderer/lock/Lock.h"
#include "renderer/protocol/MessageSocket.h"

using namespace corvana::renderer;

namespace {

constexpr int kSocket = 3;
constexpr int kHurry = 10; ///< milliseconds

bool isSocket(int descriptor)
{
    int type = 0;
    socklen_t size = sizeof(type);
    return ::getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0 &&
           type == SOCK_SEQPACKET;
}

bool hasRequestWithin(int milliseconds)
{
    pollfd socket{kSocket, POLLIN, 0};
    return ::poll(&socket, 1, milliseconds) > 0;
}

} // namespace

int main()
{
    if (!isSocket(kSocket)) {
        std::fputs("corvana-page-renderer is started by corvana-print, which hands it a socket.\n",
                   stderr);
        return 2;
    }
    // What is wrong with a document is of no use to anyone in Poppler's words.
    poppler::set_debug_error_function([](const std::string &, void *) {}, nullptr);

    // A copy that becomes larger than a file may be here is an error of that copy.
    std::signal(SIGXFSZ, SIG_IGN);

    const Locks locks = lockIn(kSocket, prepareFonts());
    auto ready = made<Ready>(0);
    ready.filtersCalls = locks.filtersCalls ? 1 : 0;
    ready.fencesFiles = static_cast<std::uint32_t>(locks.fencesFiles);
    if (!sendMessage(kSocket, ready))
        return 1;
    // Somebody who is in a hurry has sent a request already, and is served first.
    std::optional<WarmFonts> fonts;
    if (!hasRequestWithin(kHurry))
        fonts.emplace();
    return Service(kSocket).run() ? 0 : 1;
}
