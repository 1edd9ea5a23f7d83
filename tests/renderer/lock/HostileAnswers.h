#pragma once

#include <string_view>

#include "renderer/lock/Lock.h"

namespace corvana::test {

/// Answers the requests that come through `socket` as no renderer should; until the client has
/// gone. `manner` is one of the names in HostileAnswers.cpp. Errors: false when there is no such
/// manner.
bool answerBadly(std::string_view manner, int socket, const renderer::Locks &locks);

} // namespace corvana::test
