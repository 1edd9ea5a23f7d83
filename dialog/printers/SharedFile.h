#pragma once

#include <functional>
#include <utility>

#include <QByteArray>
#include <QString>

namespace corvana {

/// A small file of the user's that other programs write as well, which take no lock, empty the file
/// first and write it in place, as libcups does with lpoptions. A change of ours is whole or did
/// not happen, and takes up what the others write meanwhile:
///
/// - Programs of ours wait for each other, by a lock file beside it.
/// - A file that somebody is writing is waited for, so that half a file is never taken for the
///   whole; it is read again just before it is replaced, by renaming.
/// - Whoever had it open for writing while it was renamed writes into a file without a name. What
///   stands there then is taken up, and our change is made in it again.
/// - Whoever had read it before that, and writes afterwards, undoes our change without knowing.
///   The file is looked at again after a short while, and the change is made once more. What other
///   programs of the same kind undo of each other nobody can know.
///
/// Mode, owner, and everything else that stands in it stay. A symbolic link stays one, and the file
/// that it leads to is replaced.
///
/// Thread: any; change() waits, for a quarter of a second at least.
class SharedFile
{
public:
    struct Change
    {
        /// What is to stand there instead. Called several times; what it makes of its own result
        /// is the same again.
        std::function<QByteArray(const QByteArray &content)> edit;
        /// Whether a content says so, in whatever words another program has put it.
        std::function<bool(const QByteArray &content)> isIn;
    };

    explicit SharedFile(QString path) : m_path(std::move(path)) {}

    /// Errors: answers a sentence for the user, and the file is as it was.
    QString change(const Change &change) const;

private:
    QString m_path;
};

/// The most bytes of such a file. No hand and no program has written a longer one.
inline constexpr qint64 kMostBytesOfSharedFile = qint64(16) * 1024 * 1024;

} // namespace corvana
