#include "tests/renderer/lock/HostileAttempts.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <pthread.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvana::test {

namespace {

const char *theFolder = "";

std::string inFolder(const char *name)
{
    return std::string(theFolder) + '/' + name;
}

bool opens(const std::string &path, int flags)
{
    return ::open(path.c_str(), flags, 0600) >= 0;
}

bool reads(const char *path)
{
    char byte = 0;
    const int file = ::open(path, O_RDONLY);
    return file >= 0 && ::read(file, &byte, 1) == 1;
}

bool lists(const char *path)
{
    return ::opendir(path) != nullptr;
}

bool runsProgram()
{
    const char *const arguments[] = {"/bin/true", nullptr};
    // When it succeeds, what comes next is the status of that program.
    ::execv("/bin/true", const_cast<char *const *>(arguments));
    return false;
}

bool spawnsProgram()
{
    char name[] = "/bin/true";
    char *const arguments[] = {name, nullptr};
    pid_t child = -1;
    return ::posix_spawn(&child, name, nullptr, nullptr, arguments, environ) == 0;
}

bool forks()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    return child > 0;
}

bool startsThread()
{
    pthread_t thread{};
    return ::pthread_create(
               &thread, nullptr, [](void *nothing) { return nothing; }, nullptr) == 0;
}

bool connects()
{
    // Whether anybody listens there does not matter, but that it may be tried.
    return ::socket(AF_INET, SOCK_STREAM, 0) >= 0;
}

bool makesUnixSocket()
{
    return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0;
}

bool makesSocketPair()
{
    int ends[2];
    return ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) == 0;
}

bool touches(void *memory, std::size_t size)
{
    if (!memory || memory == MAP_FAILED)
        return false;
    for (std::size_t at = 0; at < size; at += 4096)
        static_cast<volatile char *>(memory)[at] = 1;
    return true;
}

// Units: bytes
constexpr std::size_t kMuch = std::size_t{2} << 30;
constexpr std::size_t kPiece = std::size_t{1} << 20;

bool usesMuchAtOnce()
{
    return touches(std::malloc(kMuch), kMuch);
}

bool usesMuchBitByBit()
{
    for (std::size_t used = 0; used < (std::size_t{300} << 20); used += kPiece) {
        if (!touches(std::malloc(kPiece), kPiece))
            return false;
    }
    return true;
}

bool usesMuchSharedMemory()
{
    return touches(
        ::mmap(nullptr, kMuch / 4, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0),
        kMuch / 4);
}

// Memory that can only be read does not count, until it can be written.
bool usesMuchThatWasReadOnly()
{
    void *memory =
        ::mmap(nullptr, kMuch / 4, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return memory != MAP_FAILED && ::mprotect(memory, kMuch / 4, PROT_READ | PROT_WRITE) == 0 &&
           touches(memory, kMuch / 4);
}

bool usesMuchInMemoryFile()
{
    const int file = ::memfd_create("much", 0);
    return file >= 0 && ::ftruncate(file, 1) == 0;
}

bool makesCode()
{
    return ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS,
                  -1, 0) != MAP_FAILED;
}

bool makesCodeLater()
{
    void *memory =
        ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return ::mprotect(memory, 4096, PROT_READ | PROT_EXEC) == 0;
}

bool changesLimit()
{
    const rlimit fewer{16, 16};
    return ::setrlimit(RLIMIT_NOFILE, &fewer) == 0;
}

bool readsLimitsOfOthers()
{
    rlimit found{};
    return ::prlimit(::getppid(), RLIMIT_CORE, nullptr, &found) == 0;
}

struct Attempt
{
    const char *name;
    bool (*succeeds)();
};

const Attempt kAttempts[] = {
    {"nothing", [] { return true; }},
    {"internet socket", connects},
    {"unix socket", makesUnixSocket},
    {"pair of sockets", makesSocketPair},
    {"program", runsProgram},
    {"spawned program", spawnsProgram},
    {"process", forks},
    {"thread", startsThread},
    {"reading /etc/passwd", [] { return reads("/etc/passwd"); }},
    {"reading /proc/self/environ", [] { return reads("/proc/self/environ"); }},
    {"reading its own program", [] { return reads("/proc/self/exe"); }},
    {"reading the user's file", [] { return reads(inFolder("present").c_str()); }},
    {"listing /", [] { return lists("/"); }},
    {"listing /etc", [] { return lists("/etc"); }},
    {"listing /proc", [] { return lists("/proc"); }},
    {"new file", [] { return opens(inFolder("new"), O_WRONLY | O_CREAT); }},
    {"new file, creat", [] { return ::syscall(SYS_creat, inFolder("new").c_str(), 0600) >= 0; }},
    {"new file without a name", [] { return opens(theFolder, O_TMPFILE | O_RDWR); }},
    {"appending", [] { return opens(inFolder("present"), O_WRONLY | O_APPEND); }},
    {"truncating while reading", [] { return opens(inFolder("present"), O_RDONLY | O_TRUNC); }},
    {"truncating by name", [] { return ::truncate(inFolder("present").c_str(), 0) == 0; }},
    {"deleting", [] { return ::unlink(inFolder("present").c_str()) == 0; }},
    {"renaming",
     [] { return ::rename(inFolder("present").c_str(), inFolder("other").c_str()) == 0; }},
    {"linking", [] { return ::link(inFolder("present").c_str(), inFolder("other").c_str()) == 0; }},
    {"new folder", [] { return ::mkdir(inFolder("folder").c_str(), 0700) == 0; }},
    {"other rights", [] { return ::chmod(inFolder("present").c_str(), 0666) == 0; }},
    {"shared memory by name", [] { return ::shm_open("/corvana", O_RDWR | O_CREAT, 0600) >= 0; }},
    {"memory file", usesMuchInMemoryFile},
    {"two gigabytes", usesMuchAtOnce},
    {"300 megabytes, bit by bit", usesMuchBitByBit},
    {"shared memory", usesMuchSharedMemory},
    {"memory that was read-only", usesMuchThatWasReadOnly},
    {"code", makesCode},
    {"code, later", makesCodeLater},
    {"tracing", [] { return ::ptrace(PTRACE_TRACEME, 0, 0, 0) == 0; }},
    {"signal", [] { return ::kill(::getppid(), 0) == 0; }},
    {"signal to a thread", [] { return ::syscall(SYS_tgkill, ::getppid(), ::getppid(), 0) == 0; }},
    {"signals by way of a descriptor",
     [] { return ::fcntl(STDERR_FILENO, F_SETOWN, ::getppid()) == 0; }},
    {"being looked into", [] { return ::prctl(PR_SET_DUMPABLE, 1) == 0; }},
    {"other limits", changesLimit},
    {"limits of others", readsLimitsOfOthers},
};

} // namespace

int attempt(std::string_view name, const char *folder)
{
    theFolder = folder;
    const auto *const found =
        std::find_if(std::begin(kAttempts), std::end(kAttempts),
                     [name](const Attempt &attempt) { return attempt.name == name; });
    if (found == std::end(kAttempts))
        return kNoSuchAttempt;
    return found->succeeds() ? kSucceeded : kRefused;
}

} // namespace corvana::test
