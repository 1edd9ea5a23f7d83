#pragma once

#include <memory>
#include <stop_token>

#include <QString>
#include <QTemporaryDir>

namespace corvana {

/// The most that is kept of a document that can be read only once.
inline constexpr qint64 kMostBytesOfCopy = qint64(4) * 1024 * 1024 * 1024;

/// Reads a file, a pipe or a socket to its end into a file of the user's own, for what can be read
/// only once, or has no name that the programs of a chain could be told.
///
/// `descriptor` is left open; `name` is what messages call it. Where it is a pipe that nobody has
/// opened for writing yet, it is waited for as long as a person would think that it works.
/// `stop` ends it early, with an error that nobody is to read.
/// Ownership: the folder holds the file "document", and removes it at its end.
/// Errors: null; `error` says what is wrong.
std::shared_ptr<QTemporaryDir> copyOfDocument(int descriptor, const QString &name, QString *error,
                                              qint64 mostBytes = kMostBytesOfCopy,
                                              const std::stop_token &stop = {});

/// Where that file is.
QString pathOfCopy(const QTemporaryDir &folder);

} // namespace corvana
