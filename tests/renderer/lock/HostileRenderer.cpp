// hostile_renderer: what a renderer would do that a document has taken over.
//
//   hostile_renderer locked|free ATTEMPT FOLDER   tries something (HostileAttempts.h), locked in
//                                                 like the renderer or not, and exits with what
//                                                 came of it
//   hostile_renderer                              serves the client at descriptor 3 in the manner
//                                                 that HOSTILE_MANNER names (HostileAnswers.h)

#include <cstdlib>
#include <string_view>

#include <sys/socket.h>
#include <unistd.h>

#include "renderer/Fonts.h"
#include "renderer/lock/Lock.h"
#include "tests/renderer/lock/HostileAnswers.h"
#include "tests/renderer/lock/HostileAttempts.h"

using namespace corvana;

namespace {

constexpr int kSocket = 3;
constexpr int kNotLocked = 12;

renderer::Locks lock()
{
    return renderer::lockIn(kSocket, renderer::prepareFonts());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        const char *manner = std::getenv("HOSTILE_MANNER");
        return test::answerBadly(manner ? manner : "", kSocket, lock()) ? 0 : 2;
    }
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends) != 0 || ::dup2(ends[0], kSocket) < 0)
        return 1;
    if (argv[1] == std::string_view("locked")) {
        const renderer::Locks locks = lock();
        if (!locks.filtersCalls || locks.fencesFiles == 0)
            return kNotLocked;
    }
    return test::attempt(argv[2], argv[3]);
}
