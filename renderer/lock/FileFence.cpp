#include "renderer/lock/FileFence.h"

#include <array>
#include <cstdint>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "renderer/protocol/Descriptor.h"

namespace corvana::renderer {

namespace {

// The kernel may know more than the headers that this was compiled with: a ruleset as it is since
// version 6, whose last fields an older kernel must not be told of.
struct Ruleset
{
    std::uint64_t files = 0;
    std::uint64_t network = 0;
    std::uint64_t scopes = 0;
};

constexpr std::uint64_t bits(int count)
{
    return (std::uint64_t{1} << count) - 1;
}

// How many rights there are to files in each version, from 1 on: 2 brought moving between folders,
// 3 truncating, 5 the controls of devices.
constexpr std::array kFileRights{13, 14, 15, 15, 16};
constexpr int kNetworkSince = 4; // binding and connecting TCP
constexpr int kScopesSince = 6;  // abstract sockets of others, signals to others
constexpr std::uint64_t kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

Ruleset everything(int version)
{
    const auto known = static_cast<int>(kFileRights.size());
    const int row = version < known ? version : known;
    Ruleset ruleset;
    ruleset.files = bits(kFileRights[static_cast<std::size_t>(row - 1)]);
    ruleset.network = version >= kNetworkSince ? bits(2) : 0;
    ruleset.scopes = version >= kScopesSince ? bits(2) : 0;
    return ruleset;
}

std::size_t sizeFor(int version)
{
    const std::size_t fields = version >= kScopesSince ? 3 : version >= kNetworkSince ? 2 : 1;
    return fields * sizeof(std::uint64_t);
}

void allowReading(int ruleset, const std::string &path)
{
    const Descriptor opened(::open(path.c_str(), O_PATH | O_CLOEXEC));
    struct stat information
    {
    };
    if (!opened || ::fstat(opened.get(), &information) != 0)
        return;
    landlock_path_beneath_attr rule{};
    rule.parent_fd = opened.get();
    // A file that is no folder has no right to be listed.
    rule.allowed_access =
        S_ISDIR(information.st_mode) ? kReading : std::uint64_t{LANDLOCK_ACCESS_FS_READ_FILE};
    ::syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0U);
}

} // namespace

int fenceFiles(const std::vector<std::string> &readable)
{
    const auto version = static_cast<int>(
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
    if (version <= 0)
        return 0;
    const Ruleset all = everything(version);
    const Descriptor ruleset(
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &all, sizeFor(version), 0U)));
    if (!ruleset)
        return 0;
    for (const std::string &path : readable)
        allowReading(ruleset.get(), path);
    return ::syscall(SYS_landlock_restrict_self, ruleset.get(), 0U) == 0 ? version : 0;
}

} // namespace corvana::renderer
