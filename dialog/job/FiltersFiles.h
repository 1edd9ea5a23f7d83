#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QList>

namespace corvana {

/// A file, by what it is and not only by its name: another one may get that.
struct FilterFile
{
    QByteArray path;
    dev_t device = 0;
    ino_t inode = 0;

    bool operator==(const FilterFile &) const = default;
};

/// The temporary files of filters that are about to be killed. Filters, and what they run, keep
/// copies of what is printed while they work, and have no way to take them away when they are
/// killed. `cupsfilter` does not pass TMPDIR on to them, so that all of them are in `/tmp`.
///
/// What a process, and all that it has started, holds open for writing directly in `/tmp`, and
/// belongs to this user. What they only read there is a document. Errors: none of a process that is
/// gone, or whose files nobody may see.
QList<FilterFile> temporaryFilesOf(pid_t process);

/// Removes those that are still the same files.
void removeFiles(const QList<FilterFile> &files);

} // namespace corvana
