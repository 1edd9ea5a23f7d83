#include "renderer/lock/CallFilter.h"

#include <cerrno>
#include <cstdint>
#include <initializer_list>

#include <fcntl.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <unistd.h>

namespace corvana::renderer {

namespace {

// Found with strace, while documents of all kinds were drawn; and what other versions of the C
// library use for the same. The kernel of another processor may lack some of them.
constexpr int kAllowed[] = {
    // Looking for fonts and for Poppler's tables of characters, and reading them. What may be
    // opened, see below.
    SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(readv), SCMP_SYS(lseek), SCMP_SYS(_llseek),
    SCMP_SYS(close), SCMP_SYS(stat), SCMP_SYS(stat64), SCMP_SYS(lstat), SCMP_SYS(lstat64),
    SCMP_SYS(fstat), SCMP_SYS(fstat64), SCMP_SYS(fstatat64), SCMP_SYS(newfstatat), SCMP_SYS(statx),
    SCMP_SYS(access), SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(readlink),
    SCMP_SYS(readlinkat), SCMP_SYS(getdents), SCMP_SYS(getdents64), SCMP_SYS(fadvise64),
    SCMP_SYS(statfs), SCMP_SYS(fstatfs), SCMP_SYS(statfs64), SCMP_SYS(fstatfs64), SCMP_SYS(getcwd),
    // Waiting for a request.
    SCMP_SYS(poll), SCMP_SYS(ppoll), SCMP_SYS(ppoll_time64),
    // The picture: the memory that came with a request is written like a file.
    SCMP_SYS(pwrite64),
    // Memory. What may be mapped, see below.
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise),
    // What the C library does by itself: locks, times, seeds of hash tables, how much memory there
    // is before something is sorted.
    SCMP_SYS(futex), SCMP_SYS(futex_time64), SCMP_SYS(sched_yield), SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_gettime64), SCMP_SYS(clock_getres), SCMP_SYS(gettimeofday), SCMP_SYS(time),
    SCMP_SYS(getrandom), SCMP_SYS(sysinfo), SCMP_SYS(uname), SCMP_SYS(getrusage),
    SCMP_SYS(getrlimit), SCMP_SYS(ugetrlimit), SCMP_SYS(getpid), SCMP_SYS(gettid), SCMP_SYS(getuid),
    SCMP_SYS(geteuid), SCMP_SYS(getgid), SCMP_SYS(getegid),
    // Ending, also by abort(), which sends itself a signal (see below).
    SCMP_SYS(exit), SCMP_SYS(exit_group), SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn), SCMP_SYS(sigreturn), SCMP_SYS(restart_syscall), SCMP_SYS(sigaltstack)};

// Nothing that draws pages comes near these: who does is an intruder, and learns nothing from an
// error. Making a thread or a process is not among them: a library that would like to have threads
// does without.
constexpr int kDeadly[] = {SCMP_SYS(execve),
                           SCMP_SYS(execveat),
                           SCMP_SYS(socket),
                           SCMP_SYS(connect),
                           SCMP_SYS(bind),
                           SCMP_SYS(ptrace),
                           SCMP_SYS(process_vm_readv),
                           SCMP_SYS(process_vm_writev),
                           SCMP_SYS(bpf),
                           SCMP_SYS(userfaultfd),
                           SCMP_SYS(io_uring_setup),
                           SCMP_SYS(perf_event_open),
                           SCMP_SYS(keyctl),
                           SCMP_SYS(add_key),
                           SCMP_SYS(mount),
                           SCMP_SYS(unshare),
                           SCMP_SYS(setns)};

// Calls for which the C library has an older one when the kernel is too old for them.
constexpr int kTooNew[] = {SCMP_SYS(openat2), SCMP_SYS(clone3)};

class Filter
{
public:
    explicit Filter(std::uint32_t action) : m_filter(::seccomp_init(action)) {}
    ~Filter() { ::seccomp_release(m_filter); }
    Filter(const Filter &) = delete;
    Filter &operator=(const Filter &) = delete;

    void add(std::uint32_t action, int call, std::initializer_list<scmp_arg_cmp> arguments = {})
    {
        // Negative numbers stand for calls that this processor's kernel does not have.
        if (!m_filter || call < 0)
            return;
        const int added = ::seccomp_rule_add_array(
            m_filter, action, call, static_cast<unsigned>(arguments.size()), arguments.begin());
        m_isWhole = m_isWhole && added == 0;
    }
    bool load() const { return m_filter && m_isWhole && ::seccomp_load(m_filter) == 0; }

private:
    scmp_filter_ctx m_filter;
    bool m_isWhole = true;
};

scmp_arg_cmp equals(unsigned argument, std::uint64_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp masked(unsigned argument, std::uint64_t mask, std::uint64_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

// Only the bit of O_TMPFILE that O_DIRECTORY is not.
constexpr std::uint64_t kWriting =
    O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);

void allowWithArguments(Filter &filter, int socket)
{
    const auto own = static_cast<std::uint64_t>(::getpid());
    const auto client = static_cast<std::uint64_t>(socket);
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(recvmsg), {equals(0, client)});
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(sendmsg), {equals(0, client)});
    // To read, and nothing else.
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(open), {masked(1, kWriting, O_RDONLY)});
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(openat), {masked(2, kWriting, O_RDONLY)});
    // The last words of a library.
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(write), {equals(0, STDERR_FILENO)});
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(writev), {equals(0, STDERR_FILENO)});
    // Memory that is this process's own, so that the limit counts it, and never code.
    constexpr std::uint64_t kinds = MAP_SHARED | MAP_PRIVATE;
    for (const int call : {SCMP_SYS(mmap), SCMP_SYS(mmap2)})
        filter.add(SCMP_ACT_ALLOW, call, {masked(2, PROT_EXEC, 0), masked(3, kinds, MAP_PRIVATE)});
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(mprotect), {masked(2, PROT_EXEC, 0)});
    // F_SETOWN, which is not among them, would let the kernel send signals to others.
    for (const std::uint64_t command : {F_GETFD, F_SETFD, F_GETFL, F_DUPFD, F_DUPFD_CLOEXEC}) {
        filter.add(SCMP_ACT_ALLOW, SCMP_SYS(fcntl), {equals(1, command)});
        filter.add(SCMP_ACT_ALLOW, SCMP_SYS(fcntl64), {equals(1, command)});
    }
    // To read limits, of itself.
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), {equals(0, 0), equals(2, 0)});
    filter.add(SCMP_ACT_ALLOW, SCMP_SYS(tgkill), {equals(0, own)});
}

} // namespace

bool filterCalls(int socket)
{
    Filter filter(SCMP_ACT_ERRNO(EPERM));
    for (const int call : kAllowed)
        filter.add(SCMP_ACT_ALLOW, call);
    for (const int call : kDeadly)
        filter.add(SCMP_ACT_KILL_PROCESS, call);
    for (const int call : kTooNew)
        filter.add(SCMP_ACT_ERRNO(ENOSYS), call);
    allowWithArguments(filter, socket);
    return filter.load();
}

} // namespace corvana::renderer
