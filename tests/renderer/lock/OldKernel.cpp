// old_kernel: runs the program that OLD_KERNEL_RUNS names as on a kernel that lacks what
// OLD_KERNEL_LACKS names ("landlock", "seccomp", "both"), with the descriptors that it got itself.

#include <cerrno>
#include <cstdlib>
#include <string_view>

#include <linux/seccomp.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

int main(int, char **argv)
{
    const char *program = std::getenv("OLD_KERNEL_RUNS");
    const char *lacks = std::getenv("OLD_KERNEL_LACKS");
    if (!program || !lacks)
        return 2;
    const std::string_view what(lacks);
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ALLOW);
    if (what != "seccomp")
        ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(landlock_create_ruleset), 0);
    if (what != "landlock") {
        ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0);
        ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1,
                           SCMP_A0(SCMP_CMP_EQ, PR_SET_SECCOMP));
    }
    if (::seccomp_load(filter) != 0)
        return 3;
    argv[0] = const_cast<char *>(program);
    ::execv(program, argv);
    return 4;
}
