#pragma once

#include "dialog/server/CredentialStore.h"

namespace corvana {

/// Asks for a user and a password on the terminal that the program was started from, whatever its
/// input and output are connected to. Nothing where there is none: then nobody can be asked.
/// `ending` says that the program was told to end, which ends the question.
CredentialStore::Questioner terminalQuestioner(const std::function<bool()> &ending);

} // namespace corvana
