#include "dialog/printers/SharedFile.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <memory>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>

namespace corvana {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SharedFile)
};

// Between two looks at a file that somebody is writing, and until it is taken as it is.
constexpr auto kBetweenLooks = 5ms;
constexpr auto kPatienceWithWriters = 2000ms;
// A file that was written this long ago is taken for whole where nobody can say who writes it.
constexpr auto kUntilWhole = 30ms;
// Whoever has read the file before it was changed has written it by then: lpoptions asks its server
// for its queues in between.
constexpr auto kUntilLookedAtAgain = 250ms;
constexpr auto kPatienceWithLock = 5000ms;
constexpr int kMostAttempts = 20;

// A file as it was found: open, so that what is written to it under no name is seen.
struct Found
{
    std::unique_ptr<QFile> file; // null: there is none
    struct stat state = {};
    QByteArray content;
};

QString cannotBeRead(const QString &path, const QString &reason)
{
    return Texts::tr("“%1” cannot be read: %2. It was not changed.").arg(path, reason);
}

QString cannotBeWritten(const QString &path, const QString &reason)
{
    return Texts::tr("“%1” cannot be written: %2. It was not changed.").arg(path, reason);
}

QString lastError()
{
    return qt_error_string(errno);
}

// Clients of a file server refuse leases whoever writes, unless the server has delegated the file.
bool isOnFileServer(int descriptor)
{
    constexpr unsigned kNfs = 0x6969;
    constexpr unsigned kCifs = 0xff534d42;
    constexpr unsigned kSmb2 = 0xfe534d42;
    struct statfs system = {};
    if (::fstatfs(descriptor, &system) != 0)
        return true;
    const auto type = static_cast<unsigned>(system.f_type);
    return type == kNfs || type == kCifs || type == kSmb2;
}

// A lease for reading is given only while nobody has the file open for writing. It is given back
// at once; a writer that comes in between is announced by a signal that does nothing, since the
// usual one would end the program. Errors: false where the file system knows no leases.
bool isBeingWritten(int descriptor)
{
    if (isOnFileServer(descriptor))
        return false;
    ::fcntl(descriptor, F_SETSIG, SIGURG);
    if (::fcntl(descriptor, F_SETLEASE, F_RDLCK) != 0)
        return errno == EAGAIN;
    ::fcntl(descriptor, F_SETLEASE, F_UNLCK);
    return false;
}

bool wasWrittenJustNow(const struct stat &state)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const auto age = std::chrono::seconds(now.tv_sec - state.st_mtim.tv_sec) +
                     std::chrono::nanoseconds(now.tv_nsec - state.st_mtim.tv_nsec);
    // The clock of a file server may be ahead.
    return age >= 0ns && age < kUntilWhole;
}

// The content of an open file, once nobody writes it any more. Errors: nothing; errno says why.
std::optional<QByteArray> settledContent(QFile &file, struct stat *state)
{
    const auto end = std::chrono::steady_clock::now() + kPatienceWithWriters;
    while (::fstat(file.handle(), state) == 0) {
        const bool isWritten = isBeingWritten(file.handle());
        const bool waits = std::chrono::steady_clock::now() < end;
        if (waits && (isWritten || wasWrittenJustNow(*state))) {
            std::this_thread::sleep_for(kBetweenLooks);
            continue;
        }
        if (isWritten) {
            errno = EBUSY;
            return std::nullopt;
        }
        if (state->st_size > kMostBytesOfSharedFile) {
            errno = EFBIG;
            return std::nullopt;
        }
        if (!file.seek(0))
            return std::nullopt;
        QByteArray content = file.readAll();
        if (file.error() != QFileDevice::NoError)
            return std::nullopt;
        return content;
    }
    return std::nullopt;
}

// The file itself, where the name is a link. One that somebody else has made could have root write
// into any file. Errors: a sentence.
QString resolve(QString *path)
{
    const QFileInfo info(*path);
    if (!info.isSymLink())
        return {};
    const QString target = info.canonicalFilePath();
    struct stat link = {};
    struct stat file = {};
    if (target.isEmpty() || ::lstat(QFile::encodeName(*path).constData(), &link) != 0 ||
        ::stat(QFile::encodeName(target).constData(), &file) != 0)
        return cannotBeRead(*path, Texts::tr("the link leads nowhere"));
    if (link.st_uid != 0 && link.st_uid != file.st_uid)
        return cannotBeRead(*path, Texts::tr("the link leads to a file of somebody else"));
    *path = target;
    return {};
}

// Errors: a sentence.
QString find(const QString &path, Found *found)
{
    // Whatever it is by now, opening it must not wait for anybody.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return errno == ENOENT ? QString() : cannotBeRead(path, lastError());
    found->file = std::make_unique<QFile>();
    if (!found->file->open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                           QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return cannotBeRead(path, found->file->errorString());
    }
    if (::fstat(descriptor, &found->state) != 0)
        return cannotBeRead(path, lastError());
    if (!S_ISREG(found->state.st_mode))
        return cannotBeRead(path, Texts::tr("it is no file"));
    if (::geteuid() != 0 && found->state.st_uid != ::geteuid())
        return cannotBeWritten(path, Texts::tr("it belongs to somebody else"));
    std::optional<QByteArray> content = settledContent(*found->file, &found->state);
    if (!content)
        return cannotBeRead(path, lastError());
    found->content = *content;
    return {};
}

// Whether what was found is what has the name now.
bool isStillThere(const QString &path, const Found &found)
{
    struct stat now = {};
    if (::lstat(QFile::encodeName(path).constData(), &now) != 0)
        return !found.file && errno == ENOENT;
    return found.file && now.st_dev == found.state.st_dev && now.st_ino == found.state.st_ino;
}

// What stands in the file that was found, where that is something else by now.
std::optional<QByteArray> writtenSince(Found *found)
{
    if (!found->file)
        return std::nullopt;
    struct stat state = {};
    const std::optional<QByteArray> content = settledContent(*found->file, &state);
    return content && *content != found->content ? content : std::nullopt;
}

void keepOwnerAndMode(int descriptor, const Found &found)
{
    if (found.file) {
        // The owner is ours, or we may give it away; a group that we are not in is lost.
        [[maybe_unused]] const int done =
            ::fchown(descriptor, found.state.st_uid, found.state.st_gid);
        ::fchmod(descriptor, found.state.st_mode & 07777);
    } else if (::getuid() == 0) {
        // As libcups makes one for root.
        ::fchmod(descriptor, 0644);
    }
}

void flushFolder(const QString &path)
{
    const int folder = ::open(QFile::encodeName(QFileInfo(path).path()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

enum class Replacing { Done, Overtaken };

// Errors: `problem` is a sentence.
Replacing replace(const QString &path, Found *found, const QByteArray &content, QString *problem)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        *problem = cannotBeWritten(path, file.errorString());
        return Replacing::Done;
    }
    keepOwnerAndMode(file.handle(), *found);
    // On the disk already, so that nothing but the renaming is left once the file was looked at.
    if (file.write(content) != content.size() || !file.flush() || ::fsync(file.handle()) != 0) {
        *problem = cannotBeWritten(path, file.error() == QFileDevice::NoError ? lastError()
                                                                              : file.errorString());
        file.cancelWriting();
        return Replacing::Done;
    }
    if (!isStillThere(path, *found) || writtenSince(found)) {
        file.cancelWriting();
        return Replacing::Overtaken;
    }
    if (!file.commit())
        *problem = cannotBeWritten(path, file.errorString());
    else
        flushFolder(path);
    return Replacing::Done;
}

// As libcups makes it. Errors: a sentence.
QString makeFolder(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    if (QFileInfo::exists(folder) || ::mkdir(QFile::encodeName(folder).constData(), 0700) == 0)
        return {};
    return cannotBeWritten(path, lastError());
}

// What one round has left behind, to be looked at again.
struct Changed
{
    Found former;
    QByteArray content;
};

// Changes the file once. `late`: what somebody wrote into the file that was replaced before, which
// counts unless yet another one stands there. Errors: a sentence.
QString changeOnce(const QString &path, const SharedFile::Change &change, Changed *changed,
                   const std::optional<QByteArray> &late)
{
    QLockFile lock(path + u".lock"_s);
    if (!lock.tryLock(int(kPatienceWithLock.count())))
        return lock.error() == QLockFile::LockFailedError
                   ? cannotBeWritten(path, Texts::tr("another program of ours is writing it"))
                   : cannotBeWritten(path, Texts::tr("nothing can be written into its folder"));
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        Found found;
        if (const QString problem = find(path, &found); !problem.isEmpty())
            return problem;
        const bool takesLate = late && found.content == changed->content;
        const QByteArray content = change.edit(takesLate ? *late : found.content);
        QString problem;
        if (found.file && content == found.content) {
            *changed = {{}, content};
            return {};
        }
        if (!found.file && content.isEmpty())
            return {};
        if (replace(path, &found, content, &problem) == Replacing::Overtaken)
            continue;
        if (problem.isEmpty())
            *changed = {std::move(found), content};
        return problem;
    }
    return cannotBeWritten(path, Texts::tr("other programs write it all the time"));
}

} // namespace

QString SharedFile::change(const Change &change) const
{
    QString path = m_path;
    if (const QString problem = resolve(&path); !problem.isEmpty())
        return problem;
    if (const QString problem = makeFolder(path); !problem.isEmpty())
        return problem;
    Changed changed;
    std::optional<QByteArray> late;
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        if (const QString problem = changeOnce(path, change, &changed, late); !problem.isEmpty())
            return problem;
        late = writtenSince(&changed.former);
        if (late)
            continue;
        if (!change.isIn)
            return {};
        std::this_thread::sleep_for(kUntilLookedAtAgain);
        late = writtenSince(&changed.former);
        Found now;
        if (const QString problem = find(path, &now); !problem.isEmpty())
            return problem;
        if (!late && change.isIn(now.content))
            return {};
    }
    return cannotBeWritten(path, Texts::tr("other programs write it all the time"));
}

} // namespace corvana
