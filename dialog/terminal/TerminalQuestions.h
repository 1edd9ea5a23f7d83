#pragma once

#include "dialog/server/CredentialStore.h"
#include "dialog/task/TaskFace.h"

namespace corvana {

/// Asks for a user and a password on the terminal that the program was started from, whatever its
/// input and output are connected to. Nothing where there is none: then nobody can be asked.
/// `ending` says that the program was told to end, which ends the question.
CredentialStore::Questioner terminalQuestioner(const std::function<bool()> &ending);

/// Asks for the password of a document on that terminal. Nothing when the question is left with
/// Ctrl+D or an empty line, and as above.
std::optional<QString> documentPasswordFromTerminal(const DocumentPasswordQuestion &question,
                                                    const std::function<bool()> &ending);

/// Says on that terminal what has to be done with sheets whose first sides are printed, and waits
/// for Enter. False when the question is left with Ctrl+D, and as above.
bool sheetsArePutBack(const TurnQuestion &question, const std::function<bool()> &ending);

} // namespace corvana
