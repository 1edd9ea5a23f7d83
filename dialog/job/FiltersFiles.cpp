#include "dialog/job/FiltersFiles.h"

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kPlace("/tmp/");
// More processes than any chain of filters has.
constexpr qsizetype kMostProcesses = 64;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The process first. A filter starts others from its only thread.
QList<pid_t> withAllStarted(pid_t process)
{
    QList<pid_t> all{process};
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QByteArrayList children =
            contentOf(u"/proc/%1/task/%1/children"_s.arg(all.at(i))).simplified().split(' ');
        for (const QByteArray &child : children) {
            if (const pid_t id = child.toInt(); id > 0 && all.size() < kMostProcesses)
                all += id;
        }
    }
    return all;
}

bool isOpenForWriting(pid_t process, const QString &descriptor)
{
    const QByteArray info =
        contentOf(u"/proc/%1/fdinfo/%2"_s.arg(QString::number(process), descriptor));
    for (const QByteArray &line : info.split('\n')) {
        if (line.startsWith("flags:"))
            return (line.mid(6).trimmed().toInt(nullptr, 8) & O_ACCMODE) != O_RDONLY;
    }
    return false;
}

bool isDirectlyInPlace(const QByteArray &path)
{
    return path.startsWith(kPlace) && path.indexOf('/', kPlace.size()) < 0;
}

// Whether the name stands for a file of this user that has no other one.
bool look(const QByteArray &path, struct stat &found)
{
    return ::lstat(path.constData(), &found) == 0 && S_ISREG(found.st_mode) &&
           found.st_uid == ::geteuid() && found.st_nlink == 1;
}

} // namespace

QList<FilterFile> temporaryFilesOf(pid_t process)
{
    QList<FilterFile> files;
    for (const pid_t one : withAllStarted(process)) {
        const QString folder = u"/proc/%1/fd"_s.arg(one);
        const QStringList descriptors = QDir(folder).entryList(QDir::Files | QDir::System);
        for (const QString &descriptor : descriptors) {
            char target[PATH_MAX];
            const QByteArray link = QFile::encodeName(folder + u'/' + descriptor);
            const ssize_t length = ::readlink(link.constData(), target, sizeof target);
            const QByteArray path(target, qMax(ssize_t(0), length));
            struct stat found;
            if (!isDirectlyInPlace(path) || !look(path, found) ||
                !isOpenForWriting(one, descriptor))
                continue;
            const FilterFile file{path, found.st_dev, found.st_ino};
            if (!files.contains(file))
                files += file;
        }
    }
    return files;
}

void removeFiles(const QList<FilterFile> &files)
{
    for (const FilterFile &file : files) {
        struct stat found;
        if (look(file.path, found) && found.st_dev == file.device && found.st_ino == file.inode)
            ::unlink(file.path.constData());
    }
}

} // namespace corvana
