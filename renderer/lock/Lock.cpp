#include "renderer/lock/Lock.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <linux/capability.h>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "renderer/lock/CallFilter.h"
#include "renderer/lock/FileFence.h"
#include "renderer/protocol/Messages.h"

// A sanitizer reserves terabytes of addresses and keeps much more than the program itself: under
// one, memory has no limit. Everything else is the same.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define CORVANA_RENDERER_SANITIZED
#endif

#ifdef __SANITIZE_ADDRESS__
// Looking for leaks takes another process that looks into this one, which this one must not make.
extern "C" __attribute__((visibility("default"))) const char *__asan_default_options()
{
    return "detect_leaks=0";
}
#endif

namespace corvana::renderer {

namespace {

struct Limit
{
    __rlimit_resource resource;
    rlim_t most;
};

// Documents are mapped, not read, and stay within this; memory of this process's own has a limit of
// its own. Units: bytes
constexpr rlim_t kAddresses = sizeof(void *) > 4 ? rlim_t{8} << 30 : rlim_t{2} << 30;

constexpr Limit kLimits[] = {
#ifndef CORVANA_RENDERER_SANITIZED
    {RLIMIT_DATA, kOwnMemory}, {RLIMIT_AS, kAddresses},
#endif
    {RLIMIT_STACK, 8U << 20}, // of those that grow only this much counts as memory of its own
    {RLIMIT_CORE, 0},         // a document's contents are nobody's business
    {RLIMIT_NPROC, 0},         {RLIMIT_FSIZE, rlim_t{4} * kMaxPixels}, // the largest picture
    {RLIMIT_NOFILE, 64},       {RLIMIT_MEMLOCK, 0},
    {RLIMIT_MSGQUEUE, 0},
};

[[noreturn]] void giveUp(const char *what)
{
    std::perror(what);
    std::_Exit(3);
}

void setLimits()
{
    for (const Limit &limit : kLimits) {
        rlimit now{};
        ::getrlimit(limit.resource, &now);
        const rlim_t most = std::min(limit.most, now.rlim_max);
        const rlimit lower{most, most};
        if (::setrlimit(limit.resource, &lower) != 0)
            giveUp("setrlimit");
    }
}

void dropPrivileges()
{
    // Somebody may print as root.
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3]{};
    if (::syscall(SYS_capset, &header, none) != 0)
        giveUp("capset");
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        giveUp("PR_SET_NO_NEW_PRIVS");
    // Other programs of the user cannot look into this one, nor does it leave a core.
    if (::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) != 0)
        giveUp("PR_SET_DUMPABLE");
}

void closeAllBut(int socket)
{
    const auto kept = static_cast<unsigned>(socket);
    // Older kernels lack the call; whoever starts this program has closed the rest already.
    if (kept > STDERR_FILENO + 1)
        ::syscall(SYS_close_range, STDERR_FILENO + 1, kept - 1, 0);
    ::syscall(SYS_close_range, kept + 1, ~0U, 0);
}

} // namespace

Locks lockIn(int socket, const std::vector<std::string> &readable)
{
    if (::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0)
        giveUp("PR_SET_PDEATHSIG");
    closeAllBut(socket);
    setLimits();
    dropPrivileges();
    Locks locks;
    // In this order: the filter lets no fence be built.
    locks.fencesFiles = fenceFiles(readable);
    locks.filtersCalls = filterCalls(socket);
    return locks;
}

} // namespace corvana::renderer
