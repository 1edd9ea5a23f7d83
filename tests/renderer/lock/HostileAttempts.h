#pragma once

#include <string_view>

namespace corvana::test {

/// What came of an attempt, as an exit status. Being killed is the third thing that can happen.
inline constexpr int kRefused = 0;
inline constexpr int kSucceeded = 10;
inline constexpr int kNoSuchAttempt = 11;

/// Tries something that a renderer that is locked in must not be able to do. `folder` can be
/// written to by the user, and holds the file "present".
int attempt(std::string_view name, const char *folder);

} // namespace corvana::test
