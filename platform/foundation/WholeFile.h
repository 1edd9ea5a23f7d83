#pragma once

#include <cerrno>

#include <unistd.h>

#include <QSaveFile>

namespace corvana {

/// Gives a file its name once the whole of it is on the disk, as QSaveFile::commit() does not: that
/// does not hear of a full disk where it writes only then what it has buffered, and puts an empty
/// file in the place of the former one.
///
/// Errors: false, and what had the name before still has it; errno says why.
inline bool commitWhole(QSaveFile &file)
{
    errno = 0;
    const bool isWritten = file.flush() && file.error() == QFileDevice::NoError;
    // Some file systems know nothing of it.
    const bool isWhole = isWritten && (::fsync(file.handle()) == 0 || errno == EINVAL);
    if (isWhole)
        return file.commit();
    const int why = errno;
    file.cancelWriting();
    file.commit();
    errno = why;
    return false;
}

} // namespace corvana
