#pragma once

#include <QString>

namespace corvana {

/// The function `name` of the library `file`, which lies beside the platform library and is a part
/// of it that most windows do without, or need later than at once: it is loaded here, and stays.
///
/// Nothing from elsewhere is ever loaded: neither the environment nor the current folder has a say.
/// Errors: null, and `error` says why.
QFunctionPointer functionOfOwnLibrary(const QString &file, const char *name, QString *error);

} // namespace corvana
