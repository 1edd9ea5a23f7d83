#pragma once

#include <optional>

#include <QString>

namespace corvana {

// Passwords for runs that nobody watches: on a command line everybody could read them.

/// The first line of a file that nobody but its owner may read. Symbolic links are followed; what
/// counts is the file that they lead to.
/// Errors: nothing; `error` says what is wrong, never what the file says.
std::optional<QString> passwordInFile(const QString &path, QString *error);

/// The first line of what can be read from an open descriptor, which is closed then, unless it is a
/// standard stream. Errors: as above.
std::optional<QString> passwordFromDescriptor(int descriptor, QString *error);

} // namespace corvana
