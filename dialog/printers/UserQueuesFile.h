#pragma once

#include <functional>

#include <QByteArray>
#include <QList>
#include <QString>

#include "dialog/printers/SharedFile.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The lpoptions of this user, and those of the system, which count less.
QString ownUserQueues();
QString systemUserQueues();

/// No more than this is read of an lpoptions file.
inline constexpr qint64 kMostBytesOfUserQueues = kMostBytesOfSharedFile;

/// The user's lpoptions, to change the instances in it: of "NAME/INSTANCE" each line says something
/// else afterwards, or is gone, and every other byte is what it was.
///
/// Thread: any; both wait (SharedFile). Errors: both answer a sentence for the user, and the file
/// is as it was.
class UserQueuesFile
{
public:
    /// Whether an instance may be replaced or removed, by what stands there and what the file says
    /// of its queue. Asked under the lock, perhaps several times.
    using MayGo =
        std::function<bool(const QList<JobOption> &found, const QList<JobOption> &ofQueue)>;

    explicit UserQueuesFile(const QString &path = ownUserQueues()) : m_file(path) {}

    /// Writes an instance, instead of what stood there under its name. `mayGo`: null for any.
    QString setInstance(const QString &name, const QList<JobOption> &options,
                        const MayGo &mayGo = {}) const;
    /// Removes an instance; the user's default is not removed. One that may not go stays, and that
    /// is no problem.
    QString removeInstance(const QString &name, const MayGo &mayGo = {}) const;

private:
    SharedFile m_file;
};

/// Why no such instance can be written, whatever the file; null where it can.
QString problemOfInstance(const QString &name, const QList<JobOption> &options);

/// A file's content with an instance, whose lines stay where they stand; a new one comes last.
QByteArray withInstance(const QByteArray &content, const QString &name,
                        const QList<JobOption> &options);
/// The same without it. A line that makes it the user's default stays.
QByteArray withoutInstance(const QByteArray &content, const QString &name);

} // namespace corvana
