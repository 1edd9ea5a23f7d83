#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "dialog/printers/SharedFile.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The lpoptions of this user, and those of the system, which count less.
QString ownUserQueues();
QString systemUserQueues();

/// No more than this is read of an lpoptions file.
inline constexpr qint64 kMostBytesOfUserQueues = kMostBytesOfSharedFile;

/// What is to become of an instance in a file.
struct InstanceLine
{
    QString name;                            ///< "NAME/INSTANCE"
    std::optional<QList<JobOption>> options; ///< what it says from now on; nothing: it goes
};

/// The user's lpoptions, to change the instances in it: of "NAME/INSTANCE" each line says something
/// else afterwards, or is gone, and every other byte is what it was.
///
/// Thread: any; it waits (SharedFile), however many instances there are, once.
class UserQueuesFile
{
public:
    /// Which of some instances have to stay, by what the file says. Asked under the lock, perhaps
    /// several times.
    using Staying = std::function<QStringList(const QByteArray &content, const QStringList &names)>;

    explicit UserQueuesFile(const QString &path = ownUserQueues()) : m_file(path) {}

    /// Writes instances, instead of what stood there under their names, and removes others, each at
    /// most once; the user's default is not removed. One that is to be removed and has to stay is
    /// no problem. `staying`: null for none. Errors: answers a sentence for the user for each that
    /// is as it was; all others are done.
    QMap<QString, QString> change(const QList<InstanceLine> &lines,
                                  const Staying &staying = {}) const;

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
