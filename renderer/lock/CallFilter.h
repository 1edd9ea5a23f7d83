#pragma once

namespace corvana::renderer {

/// From now on this process makes the calls to the kernel that drawing pages needs and no others:
/// seccomp. Most others fail with EPERM; those that only an intruder makes end the process.
/// False where there is no seccomp.
bool filterCalls(int socket);

} // namespace corvana::renderer
