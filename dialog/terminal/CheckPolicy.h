#pragma once

#include <QString>

#include "dialog/task/PrintRequest.h"

namespace corvana {

/// Writes what a policy decides for the user of this program, or as root for the user of that name:
/// of a printer that is wanted what counts there, and what is void because the printer lacks it;
/// else everything that applies at some printer. Each line says its file and line. What is refused
/// comes first. Answers the exit status: 0 when everything is used, else 1.
int checkPolicy(const PrintRequest &request, const QString &user);

/// The text for no printer in particular.
QString policyText(const Policy &policy);

} // namespace corvana
