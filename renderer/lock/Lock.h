#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvana::renderer {

/// The memory that this program may have for itself, whatever a document asks for. With the pages
/// of programs and fonts, which it shares with others, it stays below 256 MiB.
/// Units: bytes
inline constexpr std::size_t kOwnMemory = std::size_t{208} << 20;

/// What holds beside the limits, which always do.
struct Locks
{
    bool filtersCalls = false; ///< seccomp
    int fencesFiles = 0;       ///< the version of Landlock; 0: none
};

/// Takes from this process, for good, everything that drawing pages does not need: to be called
/// before the first document is looked at, and when whatever has to be read for all of them has
/// been read.
///
/// Afterwards the process reads its socket, the descriptors that come through it, and files below
/// `readable`; it writes to descriptors that came through the socket, and nowhere else. It dies
/// with whoever started it.
///
/// `socket` is the one descriptor that stays open beside the standard ones.
/// Errors: where the system lacks Landlock or seccomp the rest holds, and the answer says so. Exits
/// where it lacks something that every Linux has.
Locks lockIn(int socket, const std::vector<std::string> &readable);

} // namespace corvana::renderer
